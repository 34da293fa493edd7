// SPDX-License-Identifier: MIT
#include "LMPresetBackupFolder.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>

using namespace Lumeran;

namespace {

std::string ValueOf(const LMPresetBackup& backup) {
    std::string value;
    EXPECT_TRUE(LMPresetBackupFolder::ReadValue(backup.path, &value)) << backup.path;
    return value;
}

QStringList FilesIn(const std::string& folder) {
    return QDir(QString::fromStdString(folder)).entryList(QDir::Files | QDir::Hidden);
}

} // namespace

TEST(LMPresetBackupFolderTest, KeepsTheLastFiveDistinctReplacedValuesNewestFirst) {
    QTemporaryDir dir;
    const LMPresetBackupFolder folder(dir.filePath(QStringLiteral("recent")).toStdString());
    // The first value is the longest: the file of the oldest is written over.
    // Kept faster than a millisecond apart, they still keep their order.
    for (const char* value :
         {"a long first value", "two", "three", "two", "four", "five", "six", "seven"})
        ASSERT_TRUE(folder.KeepReplaced(value));
    const auto backups = folder.List();
    ASSERT_EQ(backups.size(), 5u);
    // "two" kept again became the newest of its time instead of a second copy.
    const char* const expected[] = {"seven", "six", "five", "four", "two"};
    for (std::size_t i = 0; i < backups.size(); ++i) {
        EXPECT_EQ(ValueOf(backups[i]), expected[i]) << i;
        EXPECT_FALSE(backups[i].unreadable);
    }
    // Nothing but the backups themselves is left in the folder.
    EXPECT_EQ(FilesIn(folder.Folder()).size(), 5);
}

TEST(LMPresetBackupFolderTest, AReplacedValueIsNamedByItsBytesAlone) {
    QTemporaryDir dir;
    const LMPresetBackupFolder folder(dir.filePath(QStringLiteral("recent")).toStdString());
    ASSERT_TRUE(folder.KeepReplaced("abc"));
    const auto backups = folder.List();
    ASSERT_EQ(backups.size(), 1u);
    // The same name in every run and on every machine, so a later run finds it.
    EXPECT_TRUE(
        QString::fromStdString(backups[0].path).endsWith(QStringLiteral("-44bc2cf5ad770999.b64")))
        << backups[0].path;
}

TEST(LMPresetBackupFolderTest, ALargeReplacedValueIsKeptWhole) {
    QTemporaryDir dir;
    const LMPresetBackupFolder folder(dir.filePath(QStringLiteral("custom")).toStdString());
    std::string value;
    for (int i = 0; value.size() < 3'000'000; ++i)
        value += std::to_string(i) + ",";
    ASSERT_TRUE(folder.KeepReplaced(value));
    const auto backups = folder.List();
    ASSERT_EQ(backups.size(), 1u);
    EXPECT_EQ(ValueOf(backups[0]), value);
}

TEST(LMPresetBackupFolderTest, AnUnreadableValueIsKeptOnceAndNeverPruned) {
    QTemporaryDir dir;
    const LMPresetBackupFolder folder(dir.filePath(QStringLiteral("recent")).toStdString(), 2);
    const std::string first = folder.KeepUnreadable("damaged value", "part not understood");
    ASSERT_FALSE(first.empty());
    EXPECT_EQ(folder.KeepUnreadable("damaged value, saved again", "part not understood"), first);
    for (const char* value : {"one", "two", "three"})
        ASSERT_TRUE(folder.KeepReplaced(value));
    int unreadable = 0;
    for (const LMPresetBackup& backup : folder.List()) {
        if (backup.unreadable) {
            ++unreadable;
            EXPECT_EQ(ValueOf(backup), "damaged value");
        }
    }
    EXPECT_EQ(unreadable, 1);
    EXPECT_EQ(folder.List().size(), 3u);
}

TEST(LMPresetBackupFolderTest, AFolderThatCannotBeMadeKeepsNothing) {
    const LMPresetBackupFolder folder("/proc/lmfp-no-such-folder/recent");
    EXPECT_FALSE(folder.KeepReplaced("value"));
    EXPECT_TRUE(folder.KeepUnreadable("value").empty());
    const LMPresetBackupFolder nowhere("");
    EXPECT_FALSE(nowhere.KeepReplaced("value"));
}
