// SPDX-License-Identifier: MIT
// Paths that are not what they seem: a settings file, an artwork configuration or
// a catalogue that is a named pipe, a device that never ends, a file too large.
// None of them may block the host's thread or grow memory without bound. Each
// call under test runs on a helper thread so that a regression fails the test
// instead of hanging the run.

#include "ILMAppSettings.h"
#include "LMFmtPresetDataSource.h"
#include "LMTestEnvironment.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Lumeran;
using namespace Lumeran::TestSupport;

namespace {

// Far beyond any honest duration: only a call that blocks for good reaches it.
constexpr auto kHangGuard = std::chrono::seconds(60);

bool MakeFifo(const QString& path) {
    return ::mkfifo(QFile::encodeName(path).constData(), 0600) == 0;
}

// Feeds a named pipe for as long as anyone reads it, then lets go.
class EndlessWriter {
public:
    explicit EndlessWriter(const QString& path) : m_path(QFile::encodeName(path)) {
        m_thread = std::thread([this] {
            // Non-blocking open fails while nobody reads; keep trying until stopped.
            int fd = -1;
            while (!m_stop && fd < 0) {
                fd = ::open(m_path.constData(), O_WRONLY | O_NONBLOCK);
                if (fd < 0)
                    std::this_thread::sleep_for(std::chrono::milliseconds(5));
            }
            const std::string chunk(4096, '[');
            while (!m_stop && fd >= 0) {
                if (::write(fd, chunk.data(), chunk.size()) < 0 && errno != EAGAIN)
                    break;
            }
            if (fd >= 0)
                ::close(fd);
        });
    }
    ~EndlessWriter() {
        m_stop = true;
        // Opening the reading end lets a writer still waiting to open go on and stop.
        const int fd = ::open(m_path.constData(), O_RDONLY | O_NONBLOCK);
        m_thread.join();
        if (fd >= 0)
            ::close(fd);
    }
    EndlessWriter(const EndlessWriter&) = delete;
    EndlessWriter& operator=(const EndlessWriter&) = delete;

private:
    QByteArray m_path;
    std::atomic<bool> m_stop{false};
    std::thread m_thread;
};

// Loads path with a data source of its own; true when the completion ran and the
// external tree is empty, as for any load that failed.
bool LoadFails(const std::string& path) {
    auto task = std::async(std::launch::async, [path] {
        LMFmtPresetDataSource source;
        std::promise<void> done;
        source.AsyncLoadExternalDataSource(path, [&done] { done.set_value(); });
        const bool completed = done.get_future().wait_for(kHangGuard) == std::future_status::ready;
        source.WaitForLoadingComplete();
        return completed && !source.GetExternalFormatPresets();
    });
    if (task.wait_for(kHangGuard) != std::future_status::ready) {
        ADD_FAILURE() << "the load of " << path << " never ended";
        std::abort(); // the thread cannot be joined; do not hang the whole run
    }
    return task.get();
}

class LMHostileInputTest : public SettingsTest {};

} // namespace

TEST_F(LMHostileInputTest, ASettingsFileThatIsANamedPipeDoesNotBlockTheHostAtStart) {
    QTemporaryDir dir;
    const QString pipe = dir.filePath(QStringLiteral("settings.ini"));
    ASSERT_TRUE(MakeFifo(pipe));
    ILMAppSettings::UseSettingsFile(pipe.toStdString());
    auto start = std::async(std::launch::async, [] {
        LMFmtPresetDataSource source;
        source.PushRecentItem(ILMFmtPresetRecentItem::MallocFmtPresetRecentItem(
            source.GetDefaultPreset()->FormatPreset(), source.GetDefaultPreset()->FormatNode()));
        source.SaveRecentList();
        return std::make_pair(source.GetRecentList().size(), source.LastSaveSucceeded());
    });
    ASSERT_EQ(start.wait_for(kHangGuard), std::future_status::ready);
    const auto [entries, saved] = start.get();
    EXPECT_EQ(entries, 1u);
    EXPECT_FALSE(saved);
}

TEST_F(LMHostileInputTest, AnArtworkConfigurationThatIsANamedPipeDoesNotBlockTheLoadCall) {
    QTemporaryDir dir;
    ASSERT_TRUE(MakeFifo(dir.filePath(QStringLiteral("formats.icfg"))));
    QFile catalogue(dir.filePath(QStringLiteral("formats.json")));
    ASSERT_TRUE(catalogue.open(QIODevice::WriteOnly));
    catalogue.write("{\"title\":\"Root\"}");
    catalogue.close();
    auto load = std::async(std::launch::async, [path = catalogue.fileName().toStdString()] {
        LMFmtPresetDataSource source;
        source.AsyncLoadExternalDataSource(path, {});
        source.WaitForLoadingComplete();
        return source.GetExternalFormatPresets() != nullptr;
    });
    ASSERT_EQ(load.wait_for(kHangGuard), std::future_status::ready);
    EXPECT_TRUE(load.get());
}

TEST_F(LMHostileInputTest, ACatalogueFedForeverThroughANamedPipeFailsTheLoadAndCompletes) {
    QTemporaryDir dir;
    const QString pipe = dir.filePath(QStringLiteral("endless.json"));
    ASSERT_TRUE(MakeFifo(pipe));
    EndlessWriter writer(pipe);
    EXPECT_TRUE(LoadFails(pipe.toStdString()));
}

TEST_F(LMHostileInputTest, ACatalogueThatIsADeviceWithoutEndFailsTheLoadAndCompletes) {
    EXPECT_TRUE(LoadFails("/dev/zero"));
}

TEST_F(LMHostileInputTest, ACatalogueOverTheSizeLimitIsRefusedWithoutBeingRead) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("huge.json"));
    QFile huge(path);
    ASSERT_TRUE(huge.open(QIODevice::WriteOnly));
    // Sparse: it claims a size no honest catalogue has without using the disk.
    ASSERT_TRUE(huge.resize(qint64(2) * 1024 * 1024 * 1024));
    huge.close();
    EXPECT_TRUE(LoadFails(path.toStdString()));
}
