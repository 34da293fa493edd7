// SPDX-License-Identifier: MIT
#include "LMFFmpegCapabilities.h"

#include "LMFFmpegArguments.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>

#include <chrono>
#include <sstream>
#include <vector>

namespace Lumeran {

namespace {

// An FFmpeg that loads slowly (a cold disk, a network share) still answers in
// this time; one that does not is taken as broken.
constexpr int kRunTimeoutMs = 30000;

struct Candidate {
    int category = -1;
    std::shared_ptr<const ILMFormatNode> node;
    std::shared_ptr<const ILMFormatPreset> preset;
};

void Collect(const std::shared_ptr<const ILMFormatNode>& node, int category,
             std::vector<Candidate>& out) {
    for (int i = 0; i < node->FormatPresetCount(); ++i)
        out.push_back({category, node, node->FormatPresetAt(i)});
    for (int i = 0; i < node->ChildCount(); ++i)
        Collect(node->ChildAt(i), category, out);
}

// Containers whose files players treat alike, so one stands in for another.
std::string Family(const std::string& formatId) {
    if (formatId == "mp4" || formatId == "mov" || formatId == "m4v" || formatId == "3gp" ||
        formatId == "3g2" || formatId == "m4a")
        return "isobmff";
    if (formatId == "mkv" || formatId == "mka" || formatId == "webm")
        return "matroska";
    return formatId;
}

std::set<std::string> ParseListing(const std::string& text) {
    std::set<std::string> names;
    std::istringstream lines(text);
    std::string line;
    bool listing = false;
    while (std::getline(lines, line)) {
        std::istringstream words(line);
        std::string flags, name;
        if (!(words >> flags))
            continue;
        if (!listing) {
            listing = flags.rfind("--", 0) == 0;
            continue;
        }
        if (!(words >> name))
            continue;
        // "mov,mp4,m4a": one entry under several names.
        std::istringstream parts(name);
        std::string part;
        while (std::getline(parts, part, ','))
            if (!part.empty())
                names.insert(part);
    }
    return names;
}

QJsonArray ToJson(const std::set<std::string>& names) {
    QJsonArray array;
    for (const auto& name : names)
        array.append(QString::fromStdString(name));
    return array;
}

std::set<std::string> FromJson(const QJsonValue& value) {
    std::set<std::string> names;
    for (const QJsonValue& name : value.toArray())
        if (!name.toString().isEmpty())
            names.insert(name.toString().toStdString());
    return names;
}

// The listing of `binary -hide_banner what`, or empty with the problem said.
std::string RunListing(const QString& binary, const QString& what, std::string& problem) {
    QProcess process;
    process.setProcessChannelMode(QProcess::SeparateChannels);
    process.start(binary, {QStringLiteral("-hide_banner"), what});
    if (!process.waitForStarted(kRunTimeoutMs)) {
        problem = binary.toStdString() + " cannot be run: " + process.errorString().toStdString();
        return {};
    }
    process.closeWriteChannel();
    if (!process.waitForFinished(kRunTimeoutMs)) {
        process.kill();
        process.waitForFinished();
        problem = binary.toStdString() + " did not answer " + what.toStdString();
        return {};
    }
    if (process.exitStatus() == QProcess::CrashExit) {
        problem = binary.toStdString() + " crashed on " + what.toStdString();
        return {};
    }
    if (process.exitCode() != 0) {
        problem = binary.toStdString() + " " + what.toStdString() + " exited with " +
                  std::to_string(process.exitCode());
        return {};
    }
    return process.readAllStandardOutput().toStdString();
}

} // namespace

LMFFmpegCapabilities::LMFFmpegCapabilities(std::string binary, std::string cacheDir)
    : m_binary(std::move(binary)), m_cacheDir(std::move(cacheDir)) {}

LMFFmpegCapabilities::~LMFFmpegCapabilities() {
    if (m_thread.joinable())
        m_thread.join();
}

void LMFFmpegCapabilities::Load(std::function<void()> onDone) {
    const std::lock_guard lock(m_mutex);
    if (m_state != State::NotLoaded)
        return;
    m_state = State::Loading;
    m_onDone = std::move(onDone);
    m_thread = std::thread([this] { Run(); });
}

bool LMFFmpegCapabilities::WaitForReady(int timeoutMs) {
    Load();
    std::unique_lock lock(m_mutex);
    const auto settled = [this] { return m_state == State::Ready || m_state == State::Unknown; };
    if (timeoutMs < 0) {
        m_settled.wait(lock, settled);
        return true;
    }
    return m_settled.wait_for(lock, std::chrono::milliseconds(timeoutMs), settled);
}

LMFFmpegCapabilities::State LMFFmpegCapabilities::CurrentState() const {
    const std::lock_guard lock(m_mutex);
    return m_state;
}

std::string LMFFmpegCapabilities::Problem() const {
    const std::lock_guard lock(m_mutex);
    return m_problem;
}

std::string LMFFmpegCapabilities::Binary() const {
    const std::lock_guard lock(m_mutex);
    return m_binary;
}

bool LMFFmpegCapabilities::CameFromCache() const {
    const std::lock_guard lock(m_mutex);
    return m_fromCache;
}

bool LMFFmpegCapabilities::HasEncoder(const std::string& name) const {
    const std::lock_guard lock(m_mutex);
    return m_encoders.count(name) > 0;
}

bool LMFFmpegCapabilities::HasMuxer(const std::string& name) const {
    const std::lock_guard lock(m_mutex);
    return m_muxers.count(name) > 0;
}

std::set<std::string> LMFFmpegCapabilities::Encoders() const {
    const std::lock_guard lock(m_mutex);
    return m_encoders;
}

std::set<std::string> LMFFmpegCapabilities::Muxers() const {
    const std::lock_guard lock(m_mutex);
    return m_muxers;
}

LMPresetAvailability
LMFFmpegCapabilities::Availability(const std::shared_ptr<const ILMFormatPreset>& preset,
                                   const std::shared_ptr<const ILMFormatNode>& catalogue) const {
    LMPresetAvailability availability;
    if (!preset || CurrentState() != State::Ready)
        return availability;
    availability.status = LMPresetAvailability::Status::Available;
    for (const auto& encoder : LMFFmpegArguments::RequiredEncoders(preset)) {
        if (!HasEncoder(encoder)) {
            availability.status = LMPresetAvailability::Status::Missing;
            availability.missingKind = "encoder";
            availability.missingName = encoder;
            break;
        }
    }
    const std::string muxer = LMFFmpegArguments::Muxer(preset);
    if (!availability.IsMissing() && !muxer.empty() && !HasMuxer(muxer)) {
        availability.status = LMPresetAvailability::Status::Missing;
        availability.missingKind = "muxer";
        availability.missingName = muxer;
    }
    if (availability.IsMissing() && catalogue)
        FindAlternative(preset, catalogue, availability);
    return availability;
}

void LMFFmpegCapabilities::FindAlternative(const std::shared_ptr<const ILMFormatPreset>& preset,
                                           const std::shared_ptr<const ILMFormatNode>& catalogue,
                                           LMPresetAvailability& into) const {
    std::vector<Candidate> candidates;
    for (int c = 0; c < catalogue->ChildCount(); ++c)
        Collect(catalogue->ChildAt(c), c, candidates);
    // The preset's own category: the entry that is the preset, or one of the
    // same title and settings (a copy the host kept).
    int category = -1;
    for (const auto& candidate : candidates) {
        if (candidate.preset == preset) {
            category = candidate.category;
            break;
        }
        if (category < 0 && candidate.preset->Title() == preset->Title() &&
            ILMFormatPreset::HaveSameSettings(*candidate.preset, *preset))
            category = candidate.category;
    }
    const bool video = preset->CurrentVideoCodec() != nullptr;
    int best = -1;
    const Candidate* found = nullptr;
    for (const auto& candidate : candidates) {
        if (candidate.preset == preset ||
            ILMFormatPreset::HaveSameSettings(*candidate.preset, *preset))
            continue;
        if ((candidate.preset->CurrentVideoCodec() != nullptr) != video)
            continue;
        if (Availability(candidate.preset).status != LMPresetAvailability::Status::Available)
            continue;
        int score = 0;
        if (candidate.preset->FormatId() == preset->FormatId())
            score += 8;
        if (Family(candidate.preset->FormatId()) == Family(preset->FormatId()))
            score += 4;
        if (category >= 0 && candidate.category == category)
            score += 2;
        if (candidate.preset->Title() == preset->Title())
            score += 1;
        if (score > best) {
            best = score;
            found = &candidate;
        }
    }
    if (found) {
        into.alternativeNode = found->node;
        into.alternative = found->preset;
    }
}

std::set<std::string> LMFFmpegCapabilities::ParseEncoders(const std::string& text) {
    return ParseListing(text);
}

std::set<std::string> LMFFmpegCapabilities::ParseMuxers(const std::string& text) {
    return ParseListing(text);
}

void LMFFmpegCapabilities::Settle(State state, const std::string& problem) {
    std::function<void()> onDone;
    {
        const std::lock_guard lock(m_mutex);
        m_state = state;
        m_problem = problem;
        onDone = m_onDone;
    }
    m_settled.notify_all();
    if (onDone)
        onDone();
}

void LMFFmpegCapabilities::Run() {
    QString binary = QString::fromStdString(Binary());
    if (binary.isEmpty() || !binary.contains(QLatin1Char('/'))) {
        const QString name = binary.isEmpty() ? QStringLiteral("ffmpeg") : binary;
        binary = QStandardPaths::findExecutable(name);
        if (binary.isEmpty())
            return Settle(State::Unknown, name.toStdString() + " was not found on PATH");
    }
    const QFileInfo info(binary);
    if (!info.exists())
        return Settle(State::Unknown, binary.toStdString() + " does not exist");
    if (!info.isFile() || !info.isExecutable())
        return Settle(State::Unknown, binary.toStdString() + " is not an executable file");
    binary = info.canonicalFilePath();
    {
        const std::lock_guard lock(m_mutex);
        m_binary = binary.toStdString();
    }

    const std::string stamp = binary.toStdString() + "\n" + std::to_string(info.size()) + "\n" +
                              std::to_string(info.lastModified().toMSecsSinceEpoch());
    QString folder = QString::fromStdString(m_cacheDir);
    if (folder.isEmpty())
        folder = QStandardPaths::writableLocation(QStandardPaths::CacheLocation) +
                 QStringLiteral("/ffmpeg-capabilities");
    const QString file =
        folder.isEmpty()
            ? QString()
            : folder + QLatin1Char('/') +
                  QString::fromLatin1(
                      QCryptographicHash::hash(binary.toUtf8(), QCryptographicHash::Sha1).toHex()) +
                  QStringLiteral(".json");
    if (!file.isEmpty() && ReadCache(file.toStdString(), stamp))
        return Settle(State::Ready, {});

    std::string problem;
    const std::string encoderText = RunListing(binary, QStringLiteral("-encoders"), problem);
    if (!problem.empty())
        return Settle(State::Unknown, problem);
    const std::string muxerText = RunListing(binary, QStringLiteral("-muxers"), problem);
    if (!problem.empty())
        return Settle(State::Unknown, problem);
    auto encoders = ParseEncoders(encoderText);
    auto muxers = ParseMuxers(muxerText);
    if (encoders.empty() || muxers.empty())
        return Settle(State::Unknown, binary.toStdString() + " printed no encoder or muxer list");
    {
        const std::lock_guard lock(m_mutex);
        m_encoders = std::move(encoders);
        m_muxers = std::move(muxers);
        m_fromCache = false;
    }
    if (!file.isEmpty())
        WriteCache(file.toStdString(), stamp);
    Settle(State::Ready, {});
}

bool LMFFmpegCapabilities::ReadCache(const std::string& file, const std::string& stamp) {
    QFile in(QString::fromStdString(file));
    if (!in.open(QIODevice::ReadOnly))
        return false;
    const QJsonObject cached = QJsonDocument::fromJson(in.readAll()).object();
    if (cached.value(QStringLiteral("stamp")).toString().toStdString() != stamp)
        return false;
    auto encoders = FromJson(cached.value(QStringLiteral("encoders")));
    auto muxers = FromJson(cached.value(QStringLiteral("muxers")));
    if (encoders.empty() || muxers.empty())
        return false;
    const std::lock_guard lock(m_mutex);
    m_encoders = std::move(encoders);
    m_muxers = std::move(muxers);
    m_fromCache = true;
    return true;
}

void LMFFmpegCapabilities::WriteCache(const std::string& file, const std::string& stamp) const {
    const QString path = QString::fromStdString(file);
    if (!QDir().mkpath(QFileInfo(path).absolutePath()))
        return;
    QJsonObject cached;
    cached.insert(QStringLiteral("stamp"), QString::fromStdString(stamp));
    cached.insert(QStringLiteral("encoders"), ToJson(Encoders()));
    cached.insert(QStringLiteral("muxers"), ToJson(Muxers()));
    // The cache only saves time: a file that cannot be written is asked again
    // next time, nothing else is lost.
    QSaveFile out(path);
    if (out.open(QIODevice::WriteOnly)) {
        out.write(QJsonDocument(cached).toJson(QJsonDocument::Compact));
        out.commit();
    }
}

} // namespace Lumeran
