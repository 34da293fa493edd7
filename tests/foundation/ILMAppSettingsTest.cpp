// SPDX-License-Identifier: MIT
#include "ILMAppSettings.h"
#include "ILMBase64Codec.h"
#include "LMTestEnvironment.h"

#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>

#include <atomic>
#include <chrono>
#include <map>
#include <random>
#include <thread>

#include <sys/stat.h>

using namespace Lumeran;

class ILMAppSettingsTest : public TestSupport::SettingsTest {};

TEST_F(ILMAppSettingsTest, AbsentKeyGivesEmptyString) {
    EXPECT_EQ(ILMAppSettings::Shared()->StringValue("no_such_key"), "");
}

TEST_F(ILMAppSettingsTest, StoredValueReadsBack) {
    auto store = ILMAppSettings::Shared();
    store->SetStringValue("value one", "key");
    EXPECT_EQ(store->StringValue("key"), "value one");
    store->SetStringValue("Qualité ÄÖÜ 日本語", "key");
    EXPECT_EQ(store->StringValue("key"), "Qualité ÄÖÜ 日本語");
}

TEST_F(ILMAppSettingsTest, SynchronizeWritesTheFileAtOnce) {
    auto store = ILMAppSettings::Shared();
    store->SetStringValue("persisted", "recent_format_preset");
    store->Synchronize();
    EXPECT_TRUE(store->LastSynchronizeSucceeded());
    ASSERT_TRUE(QFile::exists(QString::fromStdString(settings->FilePath())));
    QSettings reader(QString::fromStdString(settings->FilePath()), QSettings::IniFormat);
    EXPECT_EQ(reader.value(QStringLiteral("recent_format_preset")).toString(),
              QStringLiteral("persisted"));
}

TEST_F(ILMAppSettingsTest, RedirectingToAnotherFileSeparatesStores) {
    ILMAppSettings::Shared()->SetStringValue("first", "key");
    ILMAppSettings::Shared()->Synchronize();
    TestSupport::IsolatedSettings other;
    EXPECT_EQ(ILMAppSettings::Shared()->StringValue("key"), "");
}

TEST_F(ILMAppSettingsTest, UnwritableLocationReportsFailedSynchronize) {
    ILMAppSettings::UseSettingsFile("/proc/lmfp-no-such-dir/settings.ini");
    auto store = ILMAppSettings::Shared();
    store->SetStringValue("x", "key");
    store->Synchronize();
    EXPECT_FALSE(store->LastSynchronizeSucceeded());
}

namespace {

QByteArray ReadAll(const std::string& path) {
    QFile file(QString::fromStdString(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void WriteAll(const std::string& path, const QByteArray& bytes) {
    QFile file(QString::fromStdString(path));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

} // namespace

TEST_F(ILMAppSettingsTest, AStrayQuoteDoesNotHideTheLinesAfterIt) {
    WriteAll(settings->FilePath(),
             "[General]\nnote=\"an open quote\nrecent_format_preset=\"QUJD\"\nlater=1\n");
    EXPECT_EQ(ILMAppSettings::Shared()->StringValue("recent_format_preset"), "QUJD");
    EXPECT_EQ(ILMAppSettings::Shared()->StringValue("later"), "1");
}

TEST_F(ILMAppSettingsTest, AByteOrderMarkAndWindowsLineEndsReadAndWriteCleanly) {
    WriteAll(settings->FilePath(), "\xEF\xBB\xBF[General]\r\nkey=one\r\n");
    auto store = ILMAppSettings::Shared();
    EXPECT_EQ(store->StringValue("key"), "one");
    store->SetStringValue("two", "key");
    store->Synchronize();
    EXPECT_TRUE(store->LastSynchronizeSucceeded());
    EXPECT_EQ(ReadAll(settings->FilePath()), QByteArray("\xEF\xBB\xBF[General]\r\nkey=two\r\n"));
}

TEST_F(ILMAppSettingsTest, AWriteAfterAFailedOneReportsItsOwnSuccess) {
    const std::string good = settings->FilePath();
    auto store = ILMAppSettings::Shared();
    store->SetStringValue("w", "key");
    store->Synchronize();
    ILMAppSettings::UseSettingsFile(good + "/under-a-file/settings.ini");
    store->SetStringValue("x", "key");
    store->Synchronize();
    EXPECT_FALSE(store->LastSynchronizeSucceeded());
    ILMAppSettings::UseSettingsFile(good);
    store->SetStringValue("y", "key");
    store->Synchronize();
    EXPECT_TRUE(store->LastSynchronizeSucceeded());
}

TEST_F(ILMAppSettingsTest, AFailedWriteKeepsItsValuesForTheNextOne) {
    const std::string path = settings->DirPath() + "/later/settings.ini";
    WriteAll(settings->DirPath() + "/later", "a file where the folder should be");
    ILMAppSettings::UseSettingsFile(path);
    auto store = ILMAppSettings::Shared();
    store->SetStringValue("kept", "key");
    store->Synchronize();
    ASSERT_FALSE(store->LastSynchronizeSucceeded());
    EXPECT_EQ(store->StringValue("key"), "kept");
    ASSERT_TRUE(QFile::remove(QString::fromStdString(settings->DirPath() + "/later")));
    store->Synchronize();
    EXPECT_TRUE(store->LastSynchronizeSucceeded());
    EXPECT_TRUE(ReadAll(path).contains("key=kept"));
}

TEST_F(ILMAppSettingsTest, LinesThisStoreDoesNotWriteAreKeptAsTheyStand) {
    const QByteArray host = "; the host's comment\n[General]\nwindow=\"1, 2\"\ngarbage line\n\n"
                            "[Network]\nproxy=none\n";
    WriteAll(settings->FilePath(), host);
    auto store = ILMAppSettings::Shared();
    store->SetStringValue("QUJD==", "recent_format_preset");
    store->Synchronize();
    ASSERT_TRUE(store->LastSynchronizeSucceeded());
    const QByteArray written = ReadAll(settings->FilePath());
    EXPECT_EQ(written, "; the host's comment\n[General]\nwindow=\"1, 2\"\ngarbage line\n"
                       "recent_format_preset=QUJD==\n\n[Network]\nproxy=none\n");
}

TEST_F(ILMAppSettingsTest, QSettingsAndThisStoreReadWhatTheOtherWrote) {
    const std::vector<std::string> values = {"plain",
                                             "a, b; c=d",
                                             "\"quoted\" \\ back",
                                             " spaced ",
                                             "@at",
                                             "Qualité 日本語",
                                             "tab\there",
                                             "line\nbreak",
                                             std::string("c\x01"
                                                         "F"),
                                             std::string("c\x01"
                                                         "00F")};
    auto store = ILMAppSettings::Shared();
    for (std::size_t i = 0; i < values.size(); ++i)
        store->SetStringValue(values[i], "ours" + std::to_string(i));
    store->Synchronize();
    {
        QSettings qt(QString::fromStdString(settings->FilePath()), QSettings::IniFormat);
        for (std::size_t i = 0; i < values.size(); ++i) {
            const QString key = QStringLiteral("ours%1").arg(i);
            EXPECT_EQ(qt.value(key).toString().toStdString(), values[i]) << i;
            qt.setValue(QStringLiteral("theirs%1").arg(i), QString::fromStdString(values[i]));
        }
        qt.setValue(QStringLiteral("Section/nested key"), QStringLiteral("deep"));
    }
    ILMAppSettings::UseSettingsFile(settings->FilePath()); // forget what was read
    store = ILMAppSettings::Shared();
    for (std::size_t i = 0; i < values.size(); ++i)
        EXPECT_EQ(store->StringValue("theirs" + std::to_string(i)), values[i]) << i;
    EXPECT_EQ(store->StringValue("Section/nested key"), "deep");
}

TEST_F(ILMAppSettingsTest, DuplicateKeysReadTheLastLineAndShowTheEarlierOnes) {
    WriteAll(settings->FilePath(), "[General]\nkey=first\nkey=second\n");
    auto store = ILMAppSettings::Shared();
    EXPECT_EQ(store->StringValue("key"), "second");
    EXPECT_EQ(store->ShadowedValues("key"), std::vector<std::string>{"first"});
}

TEST_F(ILMAppSettingsTest, TransactSeesWhatAnotherWriterStoredMeanwhile) {
    auto store = ILMAppSettings::Shared();
    store->SetStringValue("1", "count");
    store->Synchronize();
    {
        QSettings other(QString::fromStdString(settings->FilePath()), QSettings::IniFormat);
        other.setValue(QStringLiteral("count"), QStringLiteral("5"));
    }
    const bool written = store->Transact({"count"}, [](const ILMAppSettings::Values& current) {
        const auto found = current.find("count");
        const int count = found == current.end() ? 0 : std::stoi(found->second);
        return std::optional(ILMAppSettings::Values{{"count", std::to_string(count + 1)}});
    });
    EXPECT_TRUE(written);
    EXPECT_EQ(store->StringValue("count"), "6");
    EXPECT_FALSE(store->Transact({"count"}, [](const ILMAppSettings::Values&) {
        return std::optional<ILMAppSettings::Values>();
    }));
    EXPECT_EQ(store->StringValue("count"), "6");
}

TEST_F(ILMAppSettingsTest, ASettingsFileThatIsANamedPipeIsNeitherReadNorReplaced) {
    const std::string path = settings->DirPath() + "/pipe.ini";
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    ILMAppSettings::UseSettingsFile(path);
    auto store = ILMAppSettings::Shared();
    EXPECT_EQ(store->StringValue("key"), "");
    store->SetStringValue("x", "key");
    store->Synchronize();
    EXPECT_FALSE(store->LastSynchronizeSucceeded());
    EXPECT_FALSE(QFileInfo(QString::fromStdString(path)).isFile());
}

namespace {

std::string RandomBase64(std::mt19937& random, std::size_t size) {
    std::string bytes(size, '\0');
    for (char& c : bytes)
        c = static_cast<char>(random());
    return ILMBase64Codec::Encode(bytes);
}

} // namespace

TEST_F(ILMAppSettingsTest, HostKeysSetThroughQSettingsBeforeAndAfterASaveSurvive) {
    const QString path = QString::fromStdString(settings->FilePath());
    {
        QSettings host(path, QSettings::IniFormat);
        host.setValue(QStringLiteral("before"), QStringLiteral("set, before \"ours\""));
        host.setValue(QStringLiteral("Window/geometry"), QByteArray("\x01\x02 bytes"));
    }
    std::mt19937 random(5);
    auto store = ILMAppSettings::Shared();
    const auto check = [&](const std::map<std::string, std::string>& ours, bool after) {
        QSettings host(path, QSettings::IniFormat);
        for (const auto& [key, value] : ours)
            EXPECT_EQ(host.value(QString::fromStdString(key)).toString().toStdString(), value)
                << key;
        EXPECT_EQ(host.value(QStringLiteral("before")).toString(),
                  QStringLiteral("set, before \"ours\""));
        EXPECT_EQ(host.value(QStringLiteral("Window/geometry")).toByteArray(),
                  QByteArray("\x01\x02 bytes"));
        if (after) {
            EXPECT_EQ(host.value(QStringLiteral("after")).toString(), QStringLiteral("set after"));
        }
    };
    std::map<std::string, std::string> ours = {
        {"recent_format_preset", RandomBase64(random, 300000)},
        {"note", "needs \"escaping\", ; \\ \t"}};
    for (const auto& [key, value] : ours)
        store->SetStringValue(value, key);
    store->Synchronize();
    ASSERT_TRUE(store->LastSynchronizeSucceeded());
    check(ours, false);

    QSettings(path, QSettings::IniFormat)
        .setValue(QStringLiteral("after"), QStringLiteral("set after"));
    // Saved again after the host wrote, then again with nobody writing between.
    for (int save = 0; save < 2; ++save) {
        ours["recent_format_preset"] = RandomBase64(random, 200000 + 1000 * save);
        ours["note"] += "\n@";
        for (const auto& [key, value] : ours)
            store->SetStringValue(value, key);
        store->Synchronize();
        ASSERT_TRUE(store->LastSynchronizeSucceeded());
        check(ours, true);
        for (const auto& [key, value] : ours)
            EXPECT_EQ(store->StringValue(key), value);
    }
}

TEST_F(ILMAppSettingsTest, ASaveWaitsWhileQSettingsHoldsTheLock) {
    const QString path = QString::fromStdString(settings->FilePath());
    auto held = std::make_unique<QLockFile>(path + QStringLiteral(".lock"));
    ASSERT_TRUE(held->tryLock(0));
    auto store = ILMAppSettings::Shared();
    store->SetStringValue("waited", "key");
    std::atomic<bool> done = false;
    std::thread save([&] {
        store->Synchronize();
        done = true;
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    EXPECT_FALSE(done);
    EXPECT_FALSE(QFile::exists(path));
    held.reset();
    save.join();
    EXPECT_TRUE(store->LastSynchronizeSucceeded());
    EXPECT_EQ(QSettings(path, QSettings::IniFormat).value(QStringLiteral("key")).toString(),
              QStringLiteral("waited"));
}

// The host's QSettings takes a file for unchanged while its size and its time of
// change in milliseconds are; saves in quick succession of values of one length
// must still be seen.
TEST_F(ILMAppSettingsTest, TheHostsQSettingsSeesEveryQuickSaveOfAValueOfTheSameLength) {
    const QString path = QString::fromStdString(settings->FilePath());
    auto store = ILMAppSettings::Shared();
    QSettings host(path, QSettings::IniFormat);
    for (int i = 0; i < 50; ++i) {
        const std::string value = "value-" + std::to_string(i % 10);
        store->SetStringValue(value, "key");
        store->Synchronize();
        ASSERT_TRUE(store->LastSynchronizeSucceeded());
        host.sync();
        ASSERT_EQ(host.value(QStringLiteral("key")).toString().toStdString(), value) << i;
    }
}
