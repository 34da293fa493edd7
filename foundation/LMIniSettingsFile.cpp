// SPDX-License-Identifier: MIT
#include "LMIniSettingsFile.h"

#include <algorithm>

#include "ILMFileProvider.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>
#include <QString>

#include <cerrno>
#include <cstring>
#include <sys/stat.h>

namespace Lumeran {

namespace {

constexpr const char* kBom = "\xEF\xBB\xBF";
constexpr int kLockWaitMs = 10000;
// A write holds the lock for milliseconds. A process killed while taking it may
// leave a lock file without its owner written in it, which only its age can show
// to be stale; a few seconds keeps such a leftover from blocking every save.
constexpr int kStaleLockMs = 5000;

std::string Trim(const std::string& text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string::npos)
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
std::string UnescapeKey(const std::string& text) {
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
std::string UnescapeValue(const std::string& text) {
    std::string out;
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
    if (out.rfind("@@", 0) == 0)
        return out.substr(1);
    if (out.rfind("@ByteArray(", 0) == 0 && out.back() == ')')
        return out.substr(11, out.size() - 12);
    if (out == "@Invalid()")
        return {};
    return out;
}

std::string EscapeValue(const std::string& value) {
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
            // A hex digit right after would be read as part of the escape.
            if (i + 1 < text.size() && HexDigit(text[i + 1]) >= 0) {
                body.append(buffer, static_cast<std::size_t>(std::snprintf(
                                        buffer, sizeof buffer, "\\x%x", unsigned(text[i + 1]))));
                ++i;
            }
        } else {
            body.push_back(static_cast<char>(c));
        }
    }
    return quote ? "\"" + body + "\"" : body;
}

// "section/key" -> ("section", "key" with further '/' kept); a key without '/'
// lives in [General].
std::pair<std::string, std::string> SplitKey(const std::string& key) {
    const std::size_t slash = key.find('/');
    if (slash == std::string::npos)
        return {std::string(), key};
    return {key.substr(0, slash), key.substr(slash + 1)};
}

bool IsSectionLine(const std::string& trimmed) {
    return trimmed.size() >= 2 && trimmed.front() == '[' && trimmed.back() == ']';
}

std::string SectionOf(const std::string& trimmed) {
    const std::string name = UnescapeKey(trimmed.substr(1, trimmed.size() - 2));
    return name == "General" ? std::string() : name;
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
    const Signature now = Stat();
    if (now == m_seen && m_readError.empty())
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
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string::npos)
            end = text.size();
        std::string line = text.substr(start, end - start);
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
            m_crlf = m_crlf || m_lines.empty();
        }
        m_lines.push_back(std::move(line));
        start = end + 1;
    }
    std::string section;
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        const std::string trimmed = Trim(m_lines[i]);
        if (trimmed.empty() || trimmed.front() == ';' || trimmed.front() == '#')
            continue;
        if (IsSectionLine(trimmed)) {
            section = SectionOf(trimmed);
            continue;
        }
        const std::size_t equals = trimmed.find('=');
        if (equals == std::string::npos || equals == 0)
            continue; // not a setting; kept as it stands
        const std::string key = UnescapeKey(Trim(trimmed.substr(0, equals)));
        m_entries.push_back({section.empty() ? key : section + "/" + key,
                             UnescapeValue(Trim(trimmed.substr(equals + 1))), i});
    }
}

std::string LMIniSettingsFile::Compose() const {
    std::string text = m_bom ? kBom : "";
    const char* end = m_crlf ? "\r\n" : "\n";
    for (const std::string& line : m_lines)
        text += line + end;
    return text;
}

std::optional<std::string> LMIniSettingsFile::Value(const std::string& key) {
    Refresh();
    for (auto it = m_entries.rbegin(); it != m_entries.rend(); ++it) {
        if (it->key == key)
            return it->value;
    }
    return std::nullopt;
}

std::vector<std::string> LMIniSettingsFile::ShadowedValues(const std::string& key) {
    Refresh();
    std::vector<std::string> values;
    for (const Entry& entry : m_entries) {
        if (entry.key == key)
            values.push_back(entry.value);
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
        const std::string trimmed = Trim(m_lines[i]);
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

void LMIniSettingsFile::Set(const std::string& key, const std::string& value) {
    const auto [section, name] = SplitKey(key);
    const std::string line = EscapeKey(name) + "=" + EscapeValue(value);
    std::vector<std::size_t> lines;
    for (const Entry& entry : m_entries) {
        if (entry.key == key)
            lines.push_back(entry.line);
    }
    if (!lines.empty()) {
        // The last line is the one read; earlier ones are dropped from the file.
        m_lines[lines.back()] = line;
        for (auto it = lines.rbegin() + 1; it != lines.rend(); ++it)
            m_lines.erase(m_lines.begin() + static_cast<std::ptrdiff_t>(*it));
    } else {
        bool newSection = false;
        const std::size_t at = InsertionLine(section, &newSection);
        std::vector<std::string> added;
        if (newSection) {
            if (at > 0 && !Trim(m_lines[at - 1]).empty())
                added.emplace_back();
            added.push_back("[" + (section.empty() ? std::string("General") : EscapeKey(section)) +
                            "]");
        }
        added.push_back(line);
        if (newSection && at < m_lines.size())
            added.emplace_back();
        m_lines.insert(m_lines.begin() + static_cast<std::ptrdiff_t>(at), added.begin(),
                       added.end());
    }
    Parse(Compose());
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
    const QString path = QString::fromStdString(m_path);
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        return fail("not a regular file: " + m_path);
    if (!QDir().mkpath(info.absolutePath()))
        return fail("cannot create the folder of " + m_path);
    QLockFile lock(path + QStringLiteral(".lock"));
    lock.setStaleLockTime(kStaleLockMs);
    if (!lock.tryLock(kLockWaitMs))
        return fail("the settings file " + m_path + " stays locked by another process");
    std::string why;
    if (!Read(&why))
        return fail(why + "; it is left as it is");
    const std::optional<Values> next = update(CurrentValues(keys));
    if (!next)
        return false;
    for (const auto& [key, value] : *next)
        Set(key, value);
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
            current.emplace(key, last->value);
    }
    return current;
}

bool LMIniSettingsFile::Commit(std::string* error) const {
    const std::string text = Compose();
    QSaveFile file(QString::fromStdString(m_path));
    file.setDirectWriteFallback(false);
    if (file.open(QIODevice::WriteOnly) &&
        file.write(text.data(), static_cast<qint64>(text.size())) ==
            static_cast<qint64>(text.size()) &&
        file.commit())
        return true;
    *error = "cannot write " + m_path + ": " + file.errorString().toStdString();
    return false;
}

} // namespace Lumeran
