// SPDX-License-Identifier: MIT
// Real processes over one settings store: two copies of a host saving at once,
// and hosts killed at random moments of a save.

#include "ILMAppSettings.h"
#include "LMFmtPresetDataSource.h"
#include "LMStoredList.h"
#include "LMStoredListTestSupport.h"
#include "LMTestEnvironment.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

using namespace Lumeran;
using namespace Lumeran::TestSupport;

namespace {

constexpr int kTwoHostTries = 10;
constexpr int kEntriesPerHost = 8;
constexpr int kKills = 100;

QString HostProgram() {
    return QStringLiteral(LMFP_STORE_HOST);
}

std::set<std::string> Names(const std::vector<std::string>& entries, std::size_t skipPrefix) {
    std::set<std::string> names;
    for (const std::string& entry : entries)
        names.insert(entry.substr(std::min(skipPrefix, entry.size())));
    return names;
}

} // namespace

TEST(LMStoreProcessesTest, TwoHostProcessesSavingAtOnceLoseNoEntry) {
    int lost = 0;
    for (int attempt = 0; attempt < kTwoHostTries; ++attempt) {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("shared.ini"));
        QProcess first;
        QProcess second;
        first.start(HostProgram(), {path, QStringLiteral("add"), QStringLiteral("A"),
                                    QString::number(kEntriesPerHost)});
        second.start(HostProgram(), {path, QStringLiteral("add"), QStringLiteral("B"),
                                     QString::number(kEntriesPerHost)});
        ASSERT_TRUE(first.waitForFinished(60000));
        ASSERT_TRUE(second.waitForFinished(60000));
        EXPECT_EQ(first.exitCode(), 0) << first.readAllStandardError().toStdString();
        EXPECT_EQ(second.exitCode(), 0) << second.readAllStandardError().toStdString();

        ILMAppSettings::UseSettingsFile(path.toStdString());
        LMFmtPresetDataSource reread;
        const auto custom = CustomEntries(reread);
        const auto recent = Names(RecentEntries(reread), std::string("Picks ").size());
        for (const char* tag : {"A", "B"}) {
            for (int i = 0; i < kEntriesPerHost; ++i) {
                const std::string name = std::string(tag) + " " + std::to_string(i);
                const std::string entry = std::string("Group ") + tag + "/" + name;
                if (std::find(custom.begin(), custom.end(), entry) == custom.end())
                    ++lost;
                if (!recent.count(name))
                    ++lost;
            }
        }
        EXPECT_EQ(custom.size(), static_cast<std::size_t>(2 * kEntriesPerHost));
    }
    std::printf("two hosts over one store: %d lost entries in %d tries of %d entries\n", lost,
                kTwoHostTries, 4 * kEntriesPerHost);
    EXPECT_EQ(lost, 0);
}

TEST(LMStoreProcessesTest, AHostKilledAtAnyMomentOfASaveLeavesAWholeOldOrNewList) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("host.ini"));
    WriteFile(path, "[General]\nhost_window=\"800,600\"\n\n[Other]\nkeep=me\n");
    std::mt19937 random(20261122);
    std::uniform_int_distribution<int> delay(0, 40);
    int bad = 0;
    for (int attempt = 0; attempt < kKills; ++attempt) {
        QProcess host;
        host.start(HostProgram(), {path, QStringLiteral("churn")});
        ASSERT_TRUE(host.waitForStarted(30000));
        ASSERT_TRUE(host.waitForReadyRead(30000)) << "the host never saved";
        QThread::msleep(static_cast<unsigned long>(delay(random)));
        host.kill();
        ASSERT_TRUE(host.waitForFinished(30000));

        ILMAppSettings::UseSettingsFile(path.toStdString());
        const auto settings = ILMAppSettings::Shared();
        const LMStoredList::Reading recent =
            LMStoredList(RecentKey, LMStoredList::Kind::Recent, nullptr)
                .Read(settings->StringValue(RecentKey));
        const LMStoredList::Reading custom =
            LMStoredList(CustomKey, LMStoredList::Kind::Custom, nullptr)
                .Read(settings->StringValue(CustomKey));
        const bool whole = recent.complete && custom.complete && recent.tree && custom.tree &&
                           LMStoredList::EntryCount(recent.tree) >= 1 &&
                           settings->StringValue("host_window") == "800,600" &&
                           ReadFile(path).contains("\n[Other]\nkeep=me\n");
        if (!whole)
            ++bad;
    }
    std::printf("kills during saves: %d bad stores in %d kills\n", bad, kKills);
    EXPECT_EQ(bad, 0);
}
