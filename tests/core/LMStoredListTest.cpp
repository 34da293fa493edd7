// SPDX-License-Identifier: MIT
// The stored recent and custom lists on a bad day: damaged or foreign values,
// failed saves, two copies of a host, backups and versions. Every test works on a
// settings file of its own and looks at what a new data source reads back.

#include "LMStoredList.h"
#include "ILMAppSettings.h"
#include "ILMBase64Codec.h"
#include "ILMJsonReader.h"
#include "ILMJsonWriter.h"
#include "LMCoreTestSupport.h"
#include "LMFmtPresetDataSource.h"
#include "LMStoredListTestSupport.h"
#include "LMTestEnvironment.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Lumeran;
using namespace Lumeran::TestSupport;

namespace {

using StoredList = ILMFmtPresetDataSource::StoredList;

class LMStoredListTest : public SettingsTest {
protected:
    QString SettingsPath() const { return QString::fromStdString(settings->FilePath()); }
};

} // namespace

TEST_F(LMStoredListTest, ANameOverTheLimitIsCutBeforeItIsStoredAndTheWholeListReadsBack) {
    {
        LMFmtPresetDataSource source;
        source.AddCustomPreset(MakePreset("mp4", "Short"), MakeNode("MP4"));
        source.AddCustomPreset(
            MakePreset("mp4", std::string(ILMFormatNode::MaxTextLength + 1, 'n')), MakeNode("MP4"));
        source.SaveCustomList();
        ASSERT_TRUE(source.LastSaveSucceeded());
    }
    LMFmtPresetDataSource reread;
    const auto entries = CustomEntries(reread);
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[0], "MP4/Short");
    EXPECT_TRUE(ILMFormatNode::IsAcceptableText(entries[1].substr(4)));
}

TEST_F(LMStoredListTest, AnEntryNamingAnUnknownCodecKeepsEveryOtherEntryAndIsSavedAgainUnchanged) {
    SeedStore(0, 2, 3);
    const QJsonObject custom = WithPresetField(
        StoredJson(CustomKey), 1, 1, QStringLiteral("video"),
        QJsonObject{{QStringLiteral("codec"), QStringLiteral("h266-from-the-future")}});
    const QJsonValue foreign = custom.value(QStringLiteral("children"))
                                   .toArray()
                                   .at(1)
                                   .toObject()
                                   .value(QStringLiteral("presets"))
                                   .toArray()
                                   .at(1);
    const std::string damaged = EncodeJson(custom);
    ILMAppSettings::Shared()->SetStringValue(damaged, CustomKey);
    ILMAppSettings::Shared()->Synchronize();

    LMFmtPresetDataSource source;
    EXPECT_EQ(CustomEntries(source).size(), 5u);
    source.AddCustomPreset(MakePreset("mp4", "Added"), MakeNode("Group 0"));
    source.SaveCustomList();
    ASSERT_TRUE(source.LastSaveSucceeded());

    const QJsonArray savedPresets = StoredJson(CustomKey)
                                        .value(QStringLiteral("children"))
                                        .toArray()
                                        .at(1)
                                        .toObject()
                                        .value(QStringLiteral("presets"))
                                        .toArray();
    ASSERT_EQ(savedPresets.size(), 3);
    EXPECT_EQ(savedPresets.at(1), foreign);
    EXPECT_TRUE(BackupHoldsValue(damaged));
    LMFmtPresetDataSource reread;
    EXPECT_EQ(CustomEntries(reread).size(), 6u);
}

TEST_F(LMStoredListTest, RemovingTheLastReadablePresetOfAGroupKeepsTheOnesThisVersionCannotRead) {
    SeedStore(0, 1, 2);
    QJsonObject custom = StoredJson(CustomKey);
    QJsonArray groups = custom.value(QStringLiteral("children")).toArray();
    QJsonObject group = groups.at(0).toObject();
    QJsonArray presets = group.value(QStringLiteral("presets")).toArray();
    QJsonObject foreign = presets.at(0).toObject();
    foreign.insert(QStringLiteral("format"), QStringLiteral("container-from-the-future"));
    presets.replace(0, foreign);
    group.insert(QStringLiteral("presets"), presets);
    groups.replace(0, group);
    custom.insert(QStringLiteral("children"), groups);
    ILMAppSettings::Shared()->SetStringValue(EncodeJson(custom), CustomKey);
    ILMAppSettings::Shared()->Synchronize();

    LMFmtPresetDataSource source;
    ASSERT_EQ(CustomEntries(source), std::vector<std::string>{"Group 0/Preset 0.1"});
    const auto node = source.GetCustomList()->ChildAt(0);
    ASSERT_TRUE(source.RemoveCustomPreset(node->FormatPresetAt(0), node));
    EXPECT_EQ(source.GetCustomList()->ChildCount(), 0);
    source.SaveCustomList();
    ASSERT_TRUE(source.LastSaveSucceeded());
    const QString saved = QString::fromUtf8(QJsonDocument(StoredJson(CustomKey)).toJson());
    EXPECT_TRUE(saved.contains(QStringLiteral("container-from-the-future")));
}

TEST_F(LMStoredListTest, AStrayQuoteAboveTheListsDoesNotHideThem) {
    SeedStore(3, 2, 2);
    QByteArray text = ReadFile(SettingsPath());
    text.replace("[General]\n", "[General]\nnote=\"an unfinished quote\n");
    WriteFile(SettingsPath(), text);

    LMFmtPresetDataSource source;
    EXPECT_EQ(RecentEntries(source).size(), 3u);
    EXPECT_EQ(CustomEntries(source).size(), 4u);
}

TEST_F(LMStoredListTest, ALineWrappedValueReadsBack) {
    SeedStore(4, 1, 3);
    const std::string value = ILMAppSettings::Shared()->StringValue(CustomKey);
    std::string wrapped;
    for (std::size_t i = 0; i < value.size(); i += 76)
        wrapped += value.substr(i, 76) + "\n";
    ILMAppSettings::Shared()->SetStringValue(wrapped, CustomKey);
    ILMAppSettings::Shared()->Synchronize();

    LMFmtPresetDataSource source;
    EXPECT_EQ(CustomEntries(source).size(), 3u);
}

TEST_F(LMStoredListTest, AValueThatCannotBeReadIsKeptInABackupBeforeAnySaveOverwritesIt) {
    const std::string garbage = "this is not what the lists are stored as";
    ILMAppSettings::Shared()->SetStringValue(garbage, CustomKey);
    ILMAppSettings::Shared()->Synchronize();

    LMFmtPresetDataSource source;
    EXPECT_TRUE(CustomEntries(source).empty());
    const auto backups = source.GetBackups(StoredList::Custom);
    ASSERT_EQ(backups.size(), 1u);
    EXPECT_TRUE(backups[0].unreadable);
    EXPECT_TRUE(BackupHoldsValue(garbage));

    source.AddCustomPreset(MakePreset("mp4", "New"), MakeNode("MP4"));
    source.SaveCustomList();
    ASSERT_TRUE(source.LastSaveSucceeded());
    EXPECT_TRUE(BackupHoldsValue(garbage));
}

TEST_F(LMStoredListTest, DuplicateKeysKeepTheValueThatIsNotReadInABackup) {
    SeedStore(2, 1, 1);
    const std::string older = ILMAppSettings::Shared()->StringValue(RecentKey);
    SeedStore(1, 0, 0); // one more recent entry: a different value
    QByteArray text = ReadFile(SettingsPath());
    text.replace("[General]\n", QByteArray(QByteArray("[General]\nrecent_format_preset=") +
                                           QByteArray::fromStdString(older) + QByteArray("\n")));
    WriteFile(SettingsPath(), text);
    ASSERT_FALSE(ILMAppSettings::Shared()->ShadowedValues(RecentKey).empty());

    LMFmtPresetDataSource source;
    EXPECT_TRUE(BackupHoldsValue(ILMAppSettings::Shared()->ShadowedValues(RecentKey).front()));
}

TEST_F(LMStoredListTest, AFailedSaveIsReportedKeptInMemoryAndWrittenByTheNextSave) {
    QTemporaryDir dir;
    const QString blocker = BlockSettingsFolder(dir);

    LMFmtPresetDataSource source;
    std::vector<std::string> reports;
    source.SetSaveFailureHandler([&](const std::string& message) { reports.push_back(message); });
    source.PushRecentItem(MakePreset("mp4", "Chosen"), MakeNode("MP4", "MP4 Format", 100));
    source.SaveRecentList();
    EXPECT_FALSE(source.LastSaveSucceeded());
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_NE(reports[0].find(RecentKey), std::string::npos);
    EXPECT_EQ(RecentEntries(source).size(), 1u);

    ASSERT_TRUE(QFile::remove(blocker));
    ASSERT_TRUE(QDir().mkpath(blocker));
    source.AddCustomPreset(MakePreset("mp4", "Mine"), MakeNode("MP4"));
    source.SaveCustomList();
    EXPECT_TRUE(source.LastSaveSucceeded());
    EXPECT_EQ(reports.size(), 1u);

    LMFmtPresetDataSource reread;
    EXPECT_EQ(RecentEntries(reread), std::vector<std::string>{"MP4 Chosen"});
    EXPECT_EQ(CustomEntries(reread), std::vector<std::string>{"MP4/Mine"});
}

TEST_F(LMStoredListTest, ASaveAfterAFailedOneReportsSuccess) {
    QTemporaryDir dir;
    const QString blocker = BlockSettingsFolder(dir);
    LMFmtPresetDataSource source;
    source.SaveRecentList();
    ASSERT_FALSE(source.LastSaveSucceeded());
    ASSERT_TRUE(QFile::remove(blocker));
    ASSERT_TRUE(QDir().mkpath(blocker));
    source.SaveRecentList();
    EXPECT_TRUE(source.LastSaveSucceeded());
    EXPECT_TRUE(ILMAppSettings::Shared()->LastSynchronizeSucceeded());
}

TEST_F(LMStoredListTest, ASettingsFileWithAByteOrderMarkSavesAndReportsSuccess) {
    SeedStore(2, 1, 1);
    WriteFile(SettingsPath(), "\xEF\xBB\xBF" + ReadFile(SettingsPath()));
    LMFmtPresetDataSource source;
    EXPECT_EQ(RecentEntries(source).size(), 2u);
    source.PushRecentItem(MakePreset("mp4", "Third"), MakeNode("MP4", "MP4 Format", 100));
    source.SaveRecentList();
    EXPECT_TRUE(source.LastSaveSucceeded());
    LMFmtPresetDataSource reread;
    EXPECT_EQ(RecentEntries(reread).size(), 3u);
}

TEST_F(LMStoredListTest, TwoSourcesOverOneStoreKeepWhatEitherAddedAndDropWhatEitherRemoved) {
    SeedStore(2, 1, 3);
    LMFmtPresetDataSource first;
    LMFmtPresetDataSource second;

    first.AddCustomPreset(MakePreset("mp4", "From first"), MakeNode("Group 0"));
    first.PushRecentItem(MakePreset("mp4", "First pick"), MakeNode("Picks", "P", 100));
    first.SaveCustomList();
    first.SaveRecentList();

    second.AddCustomPreset(MakePreset("mkv", "From second"), MakeNode("Other group"));
    const auto group = second.GetCustomList()->FindChild("Group 0");
    ASSERT_TRUE(second.RemoveCustomPreset(group->FindFormatPreset("Preset 0.1"), group));
    second.PushRecentItem(MakePreset("mp4", "Second pick"), MakeNode("Picks", "P", 100));
    second.SaveCustomList();
    second.SaveRecentList();
    ASSERT_TRUE(second.LastSaveSucceeded());

    const std::vector<std::string> expectedCustom{"Group 0/Preset 0.0", "Group 0/Preset 0.2",
                                                  "Group 0/From first", "Other group/From second"};
    EXPECT_EQ(CustomEntries(second), expectedCustom);
    LMFmtPresetDataSource reread;
    EXPECT_EQ(CustomEntries(reread), expectedCustom);
    const auto recent = RecentEntries(reread);
    ASSERT_EQ(recent.size(), 4u);
    EXPECT_EQ(recent[0], "Picks Second pick");
    EXPECT_EQ(recent[1], "Picks First pick");
}

TEST_F(LMStoredListTest, RestoreBringsBackAnEarlierList) {
    SeedStore(0, 1, 3);
    {
        LMFmtPresetDataSource source;
        const auto group = source.GetCustomList()->ChildAt(0);
        source.RemoveCustomPreset(group->FindFormatPreset("Preset 0.0"), group);
        source.RemoveCustomPreset(group->FindFormatPreset("Preset 0.1"), group);
        source.SaveCustomList();
        ASSERT_EQ(CustomEntries(source).size(), 1u);
    }
    LMFmtPresetDataSource source;
    const auto backups = source.GetBackups(StoredList::Custom);
    ASSERT_FALSE(backups.empty());
    EXPECT_FALSE(backups[0].unreadable);
    EXPECT_EQ(backups[0].entryCount, 3);
    ASSERT_TRUE(source.RestoreBackup(StoredList::Custom, 0));
    source.SaveCustomList();
    ASSERT_TRUE(source.LastSaveSucceeded());
    LMFmtPresetDataSource reread;
    EXPECT_EQ(CustomEntries(reread).size(), 3u);
    EXPECT_FALSE(reread.RestoreBackup(StoredList::Custom, 99));
}

TEST_F(LMStoredListTest, BackupsKeepTheLastFiveDistinctValuesNewestFirst) {
    LMFmtPresetDataSource source;
    for (int i = 0; i < 8; ++i) {
        source.AddCustomPreset(MakePreset("mp4", "P" + std::to_string(i)), MakeNode("MP4"));
        source.SaveCustomList();
        source.SaveCustomList(); // the same value again: not a new backup
    }
    const auto backups = source.GetBackups(StoredList::Custom);
    ASSERT_EQ(backups.size(), 5u);
    for (std::size_t i = 0; i < backups.size(); ++i)
        EXPECT_EQ(backups[i].entryCount, static_cast<int>(7 - i)) << i;
}

TEST_F(LMStoredListTest, AStoreWrittenByANewerVersionIsNeverOverwritten) {
    SeedStore(1, 1, 1);
    ILMAppSettings::Shared()->SetStringValue("2", LMStoredList::VersionKey);
    ILMAppSettings::Shared()->Synchronize();
    const std::string before = ILMAppSettings::Shared()->StringValue(CustomKey);

    LMFmtPresetDataSource source;
    std::string report;
    source.SetSaveFailureHandler([&](const std::string& message) { report = message; });
    source.AddCustomPreset(MakePreset("mp4", "Older version's"), MakeNode("MP4"));
    source.SaveCustomList();
    EXPECT_FALSE(source.LastSaveSucceeded());
    EXPECT_NE(report.find("newer version"), std::string::npos) << report;
    EXPECT_EQ(ILMAppSettings::Shared()->StringValue(CustomKey), before);
    EXPECT_EQ(ILMAppSettings::Shared()->StringValue(LMStoredList::VersionKey), "2");
}

TEST_F(LMStoredListTest, ASavedListCarriesTheVersionStamp) {
    LMFmtPresetDataSource source;
    source.SaveRecentList();
    EXPECT_EQ(ILMAppSettings::Shared()->StringValue(LMStoredList::VersionKey),
              std::to_string(LMStoredList::Version));
}

TEST_F(LMStoredListTest, RestoringAValuePutAsideForBadBase64SalvagesTheEntriesBeforeTheDamage) {
    SeedStore(0, 2, 3);
    std::string value = ILMAppSettings::Shared()->StringValue(CustomKey);
    value.insert(value.size() * 9 / 10, "*");
    ILMAppSettings::Shared()->SetStringValue(value, CustomKey);
    ILMAppSettings::Shared()->Synchronize();

    LMFmtPresetDataSource source;
    EXPECT_TRUE(CustomEntries(source).empty());
    const auto backups = source.GetBackups(StoredList::Custom);
    const auto unreadable = std::find_if(backups.begin(), backups.end(),
                                         [](const LMPresetBackup& b) { return b.unreadable; });
    ASSERT_NE(unreadable, backups.end());
    EXPECT_GE(unreadable->entryCount, 3);
    ASSERT_TRUE(
        source.RestoreBackup(StoredList::Custom, static_cast<int>(unreadable - backups.begin())));
    const auto entries = CustomEntries(source);
    ASSERT_GE(entries.size(), 3u);
    EXPECT_EQ(entries[0], "Group 0/Preset 0.0");
}
