// SPDX-License-Identifier: MIT
#include "LMIniSettingsFile.h"

#include <algorithm>

#include "ILMFileProvider.h"
#include "LMSettingsLockFile.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QString>

#include <array>
#include <cerrno>
#include <climits>
#include <cstring>
#include <ctime>
#include <string_view>
#include <sys/stat.h>
#include <sys/uio.h>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace Lumeran {

namespace {

constexpr const char* kBom = "\xEF\xBB\xBF";
constexpr int kLockWaitMs = 10000;
// A write holds the lock for milliseconds. A process killed while taking it may
// leave a lock file without its owner written in it, which only its age can show
// to be stale; a few seconds keeps such a leftover from blocking every save.
constexpr int kStaleLockMs = 5000;

std::string_view Trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return {};
    const std::size_t last = text.find_last_not_of(" \t");
    return text.substr(first, last - first + 1);
}

int HexDigit(char c) {
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

void AppendCodePoint(std::string& out, char32_t code) {
    out += QString::fromUcs4(&code, 1).toStdString();
}

// Keys: %XX and %UXXXX escapes, '\' for the separator '/'.
std::string UnescapeKey(std::string_view text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\\') {
            out.push_back('/');
            continue;
        }
        const bool wide = c == '%' && i + 1 < text.size() && text[i + 1] == 'U';
        const std::size_t digits = wide ? 4 : 2;
        const std::size_t start = wide ? i + 2 : i + 1;
        if (c != '%' || start + digits > text.size()) {
            out.push_back(c);
            continue;
        }
        char32_t code = 0;
        bool ok = true;
        for (std::size_t d = 0; d < digits && ok; ++d) {
            const int digit = HexDigit(text[start + d]);
            ok = digit >= 0;
            code = code * 16 + static_cast<char32_t>(digit);
        }
        if (!ok) {
            out.push_back(c);
            continue;
        }
        if (wide || code >= 0x80)
            AppendCodePoint(out, code);
        else
            out.push_back(static_cast<char>(code));
        i = start + digits - 1;
    }
    return out;
}

std::string EscapeKey(const std::string& key) {
    std::string out;
    const QString text = QString::fromStdString(key);
    for (const QChar ch : text) {
        const char16_t u = ch.unicode();
        const bool plain = (u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z') ||
                           (u >= '0' && u <= '9') || u == '_' || u == '-' || u == '.';
        char buffer[8];
        if (plain)
            out.push_back(static_cast<char>(u));
        else if (u == '/')
            out.push_back('\\');
        else if (u < 0x100)
            out.append(buffer, static_cast<std::size_t>(
                                   std::snprintf(buffer, sizeof buffer, "%%%02X", unsigned(u))));
        else
            out.append(buffer, static_cast<std::size_t>(
                                   std::snprintf(buffer, sizeof buffer, "%%U%04X", unsigned(u))));
    }
    return out;
}

char Escaped(char c) {
    switch (c) {
    case 'a':
        return '\a';
    case 'b':
        return '\b';
    case 'f':
        return '\f';
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    case 't':
        return '\t';
    case 'v':
        return '\v';
    default:
        return c;
    }
}

// A value as QSettings reads it, with one difference that is the point of this
// class: a double quote left open ends at the end of its line.
std::string UnescapeQuotedValue(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    bool quoted = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '"') {
            quoted = !quoted;
        } else if (c == '\\' && i + 1 < text.size()) {
            const char next = text[++i];
            if (next == 'x') {
                char32_t code = 0;
                while (i + 1 < text.size() && HexDigit(text[i + 1]) >= 0)
                    code = (code * 16 + static_cast<char32_t>(HexDigit(text[++i]))) & 0xFFFF;
                AppendCodePoint(out, code);
            } else if (next >= '0' && next <= '7') {
                char32_t code = static_cast<char32_t>(next - '0');
                while (i + 1 < text.size() && text[i + 1] >= '0' && text[i + 1] <= '7')
                    code = (code * 8 + static_cast<char32_t>(text[++i] - '0')) & 0xFFFF;
                AppendCodePoint(out, code);
            } else {
                out.push_back(Escaped(next));
            }
        } else {
            out.push_back(c);
        }
    }
    return out;
}

std::string UnescapeValue(std::string_view text) {
    // Most values (Base64 always) hold neither quotes nor escapes: copied as they
    // stand.
    const bool plain = std::memchr(text.data(), '"', text.size()) == nullptr &&
                       std::memchr(text.data(), '\\', text.size()) == nullptr;
    std::string out = plain ? std::string(text) : UnescapeQuotedValue(text);
    if (out.empty() || out.front() != '@')
        return out;
    if (out.rfind("@@", 0) == 0)
        return out.substr(1);
    if (out.rfind("@ByteArray(", 0) == 0 && out.back() == ')')
        return out.substr(11, out.size() - 12);
    if (out == "@Invalid()")
        return {};
    return out;
}

// Bytes that a value cannot hold as they are: control characters, and what
// QSettings reads as a quote, an escape, a list separator or a comment.
constexpr std::array<bool, 256> MakeSpecialBytes() {
    std::array<bool, 256> special{};
    for (int c = 0; c < 0x20; ++c)
        special[static_cast<std::size_t>(c)] = true;
    for (const char c : {'\x7F', ';', ',', '"', '\\'})
        special[static_cast<unsigned char>(c)] = true;
    return special;
}
constexpr std::array<bool, 256> kSpecialBytes = MakeSpecialBytes();

bool HasSpecialBytes(std::string_view text) {
    const auto* bytes = reinterpret_cast<const unsigned char*>(text.data());
    std::size_t i = 0;
#ifdef __SSE2__
    // Sixteen bytes at a time: a stored list's value is megabytes long.
    const __m128i control = _mm_set1_epi8(0x1F);
    const __m128i del = _mm_set1_epi8(0x7F);
    const __m128i semicolon = _mm_set1_epi8(';');
    const __m128i comma = _mm_set1_epi8(',');
    const __m128i quote = _mm_set1_epi8('"');
    const __m128i backslash = _mm_set1_epi8('\\');
    for (; i + 16 <= text.size(); i += 16) {
        const __m128i chunk = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes + i));
        __m128i hits = _mm_cmpeq_epi8(_mm_min_epu8(chunk, control), chunk);
        hits = _mm_or_si128(hits, _mm_cmpeq_epi8(chunk, del));
        hits = _mm_or_si128(hits, _mm_cmpeq_epi8(chunk, semicolon));
        hits = _mm_or_si128(hits, _mm_cmpeq_epi8(chunk, comma));
        hits = _mm_or_si128(hits, _mm_cmpeq_epi8(chunk, quote));
        hits = _mm_or_si128(hits, _mm_cmpeq_epi8(chunk, backslash));
        if (_mm_movemask_epi8(hits) != 0)
            return true;
    }
#endif
    for (; i < text.size(); ++i) {
        if (kSpecialBytes[bytes[i]])
            return true;
    }
    return false;
}

// Whether value is written exactly as it stands.
bool IsPlainValue(std::string_view value) {
    return value.empty() || (value.front() != '@' && value.front() != ' ' && value.back() != ' ' &&
                             !HasSpecialBytes(value));
}

void AppendEscapedValue(std::string& out, const std::string& value) {
    if (IsPlainValue(value)) {
        out += value;
        return;
    }
    const std::string text = value.rfind('@', 0) == 0 ? "@" + value : value;
    bool quote = !text.empty() && (text.front() == ' ' || text.back() == ' ');
    std::string body;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        // A ',' would make QSettings read a list and a ';' may start a comment
        // for other readers; a '=' after the first is read as part of the value.
        if (c == ';' || c == ',')
            quote = true;
        if (c == '"' || c == '\\') {
            body.push_back('\\');
            body.push_back(static_cast<char>(c));
        } else if (c == '\n' || c == '\r' || c == '\t') {
            body.push_back('\\');
            body.push_back(c == '\n' ? 'n' : c == '\r' ? 'r' : 't');
        } else if (c < 0x20 || c == 0x7F) {
            char buffer[8];
            body.append(buffer, static_cast<std::size_t>(
                                    std::snprintf(buffer, sizeof buffer, "\\x%x", unsigned(c))));
            // Hex digits right after would be read as part of the escape: each is
            // escaped too, as QSettings does.
            while (i + 1 < text.size() && HexDigit(text[i + 1]) >= 0) {
                body.append(buffer, static_cast<std::size_t>(std::snprintf(
                                        buffer, sizeof buffer, "\\x%x", unsigned(text[i + 1]))));
                ++i;
            }
        } else {
            body.push_back(static_cast<char>(c));
        }
    }
    if (quote)
        out += '"';
    out += body;
    if (quote)
        out += '"';
}

// "section/key" -> ("section", "key" with further '/' kept); a key without '/'
// lives in [General].
std::pair<std::string, std::string> SplitKey(const std::string& key) {
    const std::size_t slash = key.find('/');
    if (slash == std::string::npos)
        return {std::string(), key};
    return {key.substr(0, slash), key.substr(slash + 1)};
}

bool IsSectionLine(std::string_view trimmed) {
    return trimmed.size() >= 2 && trimmed.front() == '[' && trimmed.back() == ']';
}

std::string SectionOf(std::string_view trimmed) {
    const std::string name = UnescapeKey(trimmed.substr(1, trimmed.size() - 2));
    return name == "General" ? std::string() : name;
}

// A setting line: its key (section prefixed) and where its value sits; false for
// a line that sets nothing (blank, comment, header or not a setting).
bool ParseSetting(const std::string& line, const std::string& section, std::string* key,
                  std::size_t* valueStart, std::size_t* valueSize) {
    const std::string_view trimmed = Trim(line);
    if (trimmed.empty() || trimmed.front() == ';' || trimmed.front() == '#' ||
        IsSectionLine(trimmed))
        return false;
    const std::size_t equals = trimmed.find('=');
    if (equals == std::string_view::npos || equals == 0)
        return false; // not a setting; kept as it stands
    const std::string name = UnescapeKey(Trim(trimmed.substr(0, equals)));
    *key = section.empty() ? name : section + "/" + name;
    const std::string_view value = Trim(trimmed.substr(equals + 1));
    *valueStart =
        value.empty() ? line.size() : static_cast<std::size_t>(value.data() - line.data());
    *valueSize = value.size();
    return true;
}

// QSettings takes a file it has read for unchanged while its size and its time
// of change, in milliseconds, stay the same; the file system keeps that time at
// the clock's tick, several milliseconds. A value replaced by one of the same
// length within a tick would then go unseen by the host's QSettings, in this
// process or another. The new file is stamped with the precise time instead,
// and at least a millisecond after the file it replaces.
bool Stamp(int fd, std::int64_t replacedNs) {
    constexpr std::int64_t kMs = 1000000;
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    std::int64_t stamp = static_cast<std::int64_t>(now.tv_sec) * 1000000000 + now.tv_nsec;
    if (replacedNs >= 0 && stamp / kMs <= replacedNs / kMs)
        stamp = (replacedNs / kMs + 1) * kMs;
    const timespec times[2] = {
        {0, UTIME_OMIT},
        {static_cast<time_t>(stamp / 1000000000), static_cast<long>(stamp % 1000000000)}};
    return ::futimens(fd, times) == 0;
}

} // namespace

LMIniSettingsFile::LMIniSettingsFile(std::string path) : m_path(std::move(path)) {}

LMIniSettingsFile::Signature LMIniSettingsFile::Stat() const {
    struct stat info {};
    if (::stat(m_path.c_str(), &info) != 0)
        return {};
    return {static_cast<std::int64_t>(info.st_mtim.tv_sec) * 1000000000 + info.st_mtim.tv_nsec,
            static_cast<std::int64_t>(info.st_size), static_cast<std::uint64_t>(info.st_ino)};
}

void LMIniSettingsFile::Refresh() {
    if (Stat() == m_seen && m_readError.empty())
        return;
    std::string error;
    Read(&error);
}

bool LMIniSettingsFile::Read(std::string* error) {
    m_seen = Stat();
    m_readError.clear();
    std::string text;
    std::string why;
    struct stat info {};
    if (::lstat(m_path.c_str(), &info) != 0 && errno == ENOENT) {
        Parse({});
        return true; // not written yet: an empty store
    }
    if (!ILMFileProvider::ReadRegularFile(m_path, MaxFileSize, &text, &why)) {
        Parse({});
        m_readError = why;
        if (error)
            *error = why;
        return false;
    }
    Parse(text);
    return true;
}

void LMIniSettingsFile::Parse(const std::string& text) {
    m_lines.clear();
    m_entries.clear();
    m_bom = text.rfind(kBom, 0) == 0;
    m_crlf = false;
    std::size_t start = m_bom ? 3 : 0;
    std::string section;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string::npos)
            end = text.size();
        std::size_t size = end - start;
        if (size > 0 && text[end - 1] == '\r') {
            --size;
            m_crlf = m_crlf || m_lines.empty();
        }
        const std::string& line = m_lines.emplace_back(text, start, size);
        start = end + 1;
        if (const std::string_view trimmed = Trim(line); IsSectionLine(trimmed)) {
            section = SectionOf(trimmed);
            continue;
        }
        Entry entry;
        entry.line = m_lines.size() - 1;
        if (ParseSetting(line, section, &entry.key, &entry.valueStart, &entry.valueSize))
            m_entries.push_back(std::move(entry));
    }
}

std::string LMIniSettingsFile::ValueOf(const Entry& entry) const {
    return UnescapeValue(
        std::string_view(m_lines[entry.line]).substr(entry.valueStart, entry.valueSize));
}

std::optional<std::string> LMIniSettingsFile::Value(const std::string& key) {
    Refresh();
    for (auto it = m_entries.rbegin(); it != m_entries.rend(); ++it) {
        if (it->key == key)
            return ValueOf(*it);
    }
    return std::nullopt;
}

std::vector<std::string> LMIniSettingsFile::ShadowedValues(const std::string& key) {
    Refresh();
    std::vector<std::string> values;
    for (const Entry& entry : m_entries) {
        if (entry.key == key)
            values.push_back(ValueOf(entry));
    }
    if (!values.empty())
        values.pop_back(); // the one that is read
    return values;
}

// The line after the last setting of section, or where a new header goes.
std::size_t LMIniSettingsFile::InsertionLine(const std::string& section, bool* newSection) const {
    std::string current;
    bool found = false;
    std::size_t after = 0;
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        const std::string_view trimmed = Trim(m_lines[i]);
        if (IsSectionLine(trimmed)) {
            current = SectionOf(trimmed);
            if (current == section) {
                found = true;
                after = i + 1;
            }
        } else if (current == section && !trimmed.empty()) {
            found = true;
            after = i + 1;
        }
    }
    *newSection = !found;
    // [General] goes first, as QSettings writes it; other sections at the end.
    return found ? after : section.empty() ? 0 : m_lines.size();
}

// Lines and entries are changed where they stand, so setting a key costs the
// length of its own line, not a new reading of the whole file.
void LMIniSettingsFile::Set(const std::string& key, const std::string& value) {
    const auto [section, name] = SplitKey(key);
    std::vector<std::size_t> found; // indices in m_entries, in line order
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        if (m_entries[i].key == key)
            found.push_back(i);
    }
    // A line is written over the one it replaces, in its storage: a stored list's
    // line is megabytes long, and a new one at every save would be taken from
    // and handed back to the system each time.
    std::string added;
    std::string& line = found.empty() ? added : m_lines[m_entries[found.back()].line];
    line.clear();
    line += EscapeKey(name);
    line += '=';
    Entry entry;
    entry.key = key;
    entry.valueStart = line.size();
    AppendEscapedValue(line, value);
    entry.valueSize = line.size() - entry.valueStart;

    if (!found.empty()) {
        // The last line is the one read; earlier ones are dropped from the file,
        // from the last up so that the indices still to come stay valid.
        Entry& kept = m_entries[found.back()];
        entry.line = kept.line;
        kept = std::move(entry);
        for (auto it = found.rbegin() + 1; it != found.rend(); ++it)
            RemoveLine(m_entries[*it].line);
        return;
    }
    bool newSection = false;
    const std::size_t at = InsertionLine(section, &newSection);
    std::vector<std::string> lines;
    if (newSection) {
        if (at > 0 && !Trim(m_lines[at - 1]).empty())
            lines.emplace_back();
        lines.push_back("[" + (section.empty() ? std::string("General") : EscapeKey(section)) +
                        "]");
    }
    entry.line = at + lines.size();
    lines.push_back(std::move(added));
    if (newSection && at < m_lines.size())
        lines.emplace_back();
    // As a reading of the file names it: a "General/" prefix names no section.
    if (section == "General")
        entry.key = name;
    InsertLines(at, std::move(lines), std::move(entry));
}

void LMIniSettingsFile::RemoveLine(std::size_t line) {
    m_lines.erase(m_lines.begin() + static_cast<std::ptrdiff_t>(line));
    std::erase_if(m_entries, [line](const Entry& entry) { return entry.line == line; });
    for (Entry& entry : m_entries) {
        if (entry.line > line)
            --entry.line;
    }
}

void LMIniSettingsFile::InsertLines(std::size_t at, std::vector<std::string> lines, Entry added) {
    for (Entry& entry : m_entries) {
        if (entry.line >= at)
            entry.line += lines.size();
    }
    m_lines.insert(m_lines.begin() + static_cast<std::ptrdiff_t>(at),
                   std::make_move_iterator(lines.begin()), std::make_move_iterator(lines.end()));
    const auto before =
        std::upper_bound(m_entries.begin(), m_entries.end(), added.line,
                         [](std::size_t line, const Entry& entry) { return line < entry.line; });
    m_entries.insert(before, std::move(added));
}

bool LMIniSettingsFile::Write(const std::vector<std::string>& keys, const Update& update,
                              std::string* error) {
    const auto fail = [error](const std::string& message) {
        if (error)
            *error = message;
        return false;
    };
    if (error)
        error->clear();
    // One look at the file; its folder is made only when the file is not there.
    struct stat status {};
    const bool exists = ::stat(m_path.c_str(), &status) == 0;
    if (exists && !S_ISREG(status.st_mode))
        return fail("not a regular file: " + m_path);
    if (!exists && !QDir().mkpath(QFileInfo(QString::fromStdString(m_path)).absolutePath()))
        return fail("cannot create the folder of " + m_path);
    LMSettingsLockFile lock(m_path + ".lock");
    if (!lock.Lock(kLockWaitMs, kStaleLockMs))
        return fail("the settings file " + m_path + " stays locked by another process");
    // Under the lock the file can only change through a writer that takes it too;
    // when nobody has written it since this object did, what it holds is current.
    std::string why;
    if ((Stat() != m_seen || !m_readError.empty()) && !Read(&why))
        return fail(why + "; it is left as it is");
    std::optional<Values> next = update(CurrentValues(keys));
    if (!next)
        return false;
    for (auto& [key, value] : *next)
        Set(key, value);
    next.reset(); // the values are in the lines now; no second copy while writing
    if (!Commit(&why)) {
        Read(nullptr); // what is on disk, not what failed to get there
        return fail(why);
    }
    m_seen = Stat();
    return true;
}

LMIniSettingsFile::Values
LMIniSettingsFile::CurrentValues(const std::vector<std::string>& keys) const {
    Values current;
    for (const std::string& key : keys) {
        // The last line of a key is the one QSettings reads.
        const auto last = std::find_if(m_entries.rbegin(), m_entries.rend(),
                                       [&](const Entry& entry) { return entry.key == key; });
        if (last != m_entries.rend())
            current.emplace(key, ValueOf(*last));
    }
    return current;
}

bool LMIniSettingsFile::Commit(std::string* error) const {
    QSaveFile file(QString::fromStdString(m_path));
    file.setDirectWriteFallback(false);
    // The lines go to the file as they are held, with no copy of the whole text
    // in between; QSaveFile flushes the new file to the disk before it replaces
    // the old one: the one flush a write makes.
    if (file.open(QIODevice::WriteOnly) && WriteLines(file.handle()) &&
        Stamp(file.handle(), m_seen.modifiedNs) && file.commit())
        return true;
    *error = "cannot write " + m_path + ": " +
             (file.error() != QFileDevice::NoError ? file.errorString().toStdString()
                                                   : std::string(std::strerror(errno)));
    return false;
}

bool LMIniSettingsFile::WriteLines(int fd) const {
    const std::string_view end = m_crlf ? "\r\n" : "\n";
    std::vector<iovec> pieces;
    pieces.reserve(m_lines.size() * 2 + 1);
    const auto add = [&pieces](std::string_view piece) {
        if (!piece.empty())
            pieces.push_back({const_cast<char*>(piece.data()), piece.size()});
    };
    if (m_bom)
        add(kBom);
    for (const std::string& line : m_lines) {
        add(line);
        add(end);
    }
    std::size_t first = 0;
    while (first < pieces.size()) {
        const int count = static_cast<int>(std::min<std::size_t>(pieces.size() - first, IOV_MAX));
        ssize_t written = ::writev(fd, &pieces[first], count);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        // A short write leaves the rest of a piece and the pieces after it.
        while (written > 0) {
            iovec& piece = pieces[first];
            const auto done = std::min(static_cast<std::size_t>(written), piece.iov_len);
            piece.iov_base = static_cast<char*>(piece.iov_base) + done;
            piece.iov_len -= done;
            written -= static_cast<ssize_t>(done);
            if (piece.iov_len == 0)
                ++first;
        }
    }
    return true;
}

} // namespace Lumeran
