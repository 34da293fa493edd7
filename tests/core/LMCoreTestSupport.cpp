// SPDX-License-Identifier: MIT
#include "LMCoreTestSupport.h"

#include "LMCatalogueLoadHook_p.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <map>
#include <mutex>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Lumeran::TestSupport {

std::shared_ptr<ILMFormatPreset> MakePreset(const std::string& format, const std::string& title,
                                            const std::string& description) {
    auto preset = ILMFormatPreset::MallocFormatPreset(format, title);
    EXPECT_TRUE(preset) << "unknown container " << format;
    if (preset && !description.empty())
        preset->SetDescription(description);
    return preset;
}

std::shared_ptr<ILMFormatNode> MakeNode(const std::string& title, const std::string& description,
                                        int faceID) {
    return ILMFormatNode::MallocFormatNode(title, description, faceID);
}

std::shared_ptr<ILMFormatNode> MakeFormat(const std::string& title, const std::string& description,
                                          int faceID, const std::string& format,
                                          const QStringList& presetTitles) {
    auto node = MakeNode(title, description, faceID);
    for (const QString& presetTitle : presetTitles)
        node->AddFormatPreset(MakePreset(format, presetTitle.toStdString()));
    return node;
}

qint64 WriteLargeCatalogue(const QString& path, int formats, int presetsPerFormat) {
    static const char* const qualities[] = {"high", "medium", "low"};
    static const char* const resolutions[] = {"1920x1080", "1280x720", "854x480"};
    QJsonArray formatNodes;
    for (int f = 0; f < formats; ++f) {
        QJsonArray presets;
        for (int p = 0; p < presetsPerFormat; ++p) {
            const int pick = (f + p) % 3;
            presets.append(QJsonObject{
                {QStringLiteral("title"), QStringLiteral("Preset %1 of format %2").arg(p).arg(f)},
                {QStringLiteral("description"),
                 QStringLiteral("H.264 %1 / AAC, generated for load tests")
                     .arg(QLatin1StringView(resolutions[pick]))},
                {QStringLiteral("faceId"), 100},
                {QStringLiteral("format"), QStringLiteral("mp4")},
                {QStringLiteral("video"),
                 QJsonObject{{QStringLiteral("codec"), QStringLiteral("h264")},
                             {QStringLiteral("resolution"), QLatin1StringView(resolutions[pick])},
                             {QStringLiteral("quality"), QLatin1StringView(qualities[pick])}}},
                {QStringLiteral("audio"),
                 QJsonObject{{QStringLiteral("codec"), QStringLiteral("aac")},
                             {QStringLiteral("quality"), QLatin1StringView(qualities[pick])}}}});
        }
        formatNodes.append(
            QJsonObject{{QStringLiteral("title"), QStringLiteral("Format %1").arg(f)},
                        {QStringLiteral("faceId"), 100},
                        {QStringLiteral("presets"), presets}});
    }
    const QJsonObject category{{QStringLiteral("title"), QStringLiteral("Generated")},
                               {QStringLiteral("faceId"), 10},
                               {QStringLiteral("children"), formatNodes}};
    const QJsonObject root{{QStringLiteral("title"), QStringLiteral("Formats")},
                           {QStringLiteral("children"), QJsonArray{category}}};
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return -1;
    file.write(QJsonDocument(root).toJson(QJsonDocument::Indented));
    return file.size();
}

struct LoadGate::State {
    bool arrived = false;
    bool released = false;
};

namespace {

struct Gates {
    std::mutex mutex;
    std::condition_variable changed;
    std::map<std::string, std::shared_ptr<LoadGate::State>> byPath;
};

Gates& AllGates() {
    static auto* const gates = new Gates();
    return *gates;
}

// Runs on the loader thread: a load of a gated catalogue waits for its release.
void WaitAtGate(const std::string& path) {
    Gates& gates = AllGates();
    std::unique_lock lock(gates.mutex);
    const auto found = gates.byPath.find(path);
    if (found == gates.byPath.end())
        return;
    const std::shared_ptr<LoadGate::State> state = found->second;
    state->arrived = true;
    gates.changed.notify_all();
    gates.changed.wait(lock, [&] { return state->released; });
}

} // namespace

LoadGate::LoadGate(const QString& name) : m_state(std::make_shared<State>()) {
    m_path = m_dir.filePath(name + QStringLiteral(".json"));
    m_valid = m_dir.isValid();
    static const bool hooked = [] {
        LMCatalogueLoadHook::Set(&WaitAtGate);
        return true;
    }();
    (void)hooked;
    Gates& gates = AllGates();
    const std::lock_guard lock(gates.mutex);
    gates.byPath[m_path.toStdString()] = m_state;
}

// A load still held must not outlive the test: end it with an empty file.
LoadGate::~LoadGate() {
    Release(QByteArray());
    Gates& gates = AllGates();
    const std::lock_guard lock(gates.mutex);
    gates.byPath.erase(m_path.toStdString());
}

std::string LoadGate::Path() const {
    return m_path.toStdString();
}

QString LoadGate::DirPath() const {
    return m_dir.path();
}

bool LoadGate::Release(const QByteArray& text) {
    Gates& gates = AllGates();
    std::unique_lock lock(gates.mutex);
    if (!m_valid || m_state->released)
        return false;
    const bool arrived =
        gates.changed.wait_for(lock, std::chrono::seconds(30), [&] { return m_state->arrived; });
    QFile file(m_path);
    const bool written = file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
    file.close();
    m_state->released = true;
    gates.changed.notify_all();
    return arrived && written;
}

std::mutex LogCapture::s_mutex;
QStringList LogCapture::s_lines;

LogCapture::LogCapture() {
    {
        std::lock_guard lock(s_mutex);
        s_lines.clear();
    }
    m_previous = qInstallMessageHandler(&LogCapture::Handler);
}

LogCapture::~LogCapture() {
    qInstallMessageHandler(m_previous);
}

QStringList LogCapture::Lines() const {
    std::lock_guard lock(s_mutex);
    return s_lines;
}

void LogCapture::Handler(QtMsgType, const QMessageLogContext&, const QString& message) {
    std::lock_guard lock(s_mutex);
    s_lines << message;
}

} // namespace Lumeran::TestSupport
