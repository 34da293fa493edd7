// SPDX-License-Identifier: MIT
#include "LMStoredListTestSupport.h"

#include "ILMAppSettings.h"
#include "ILMBase64Codec.h"
#include "LMCoreTestSupport.h"
#include "LMFmtPresetDataSource.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

namespace Lumeran::TestSupport {

void SeedStore(int recent, int groups, int perGroup) {
    LMFmtPresetDataSource source;
    for (int i = 0; i < recent; ++i) {
        const std::string name = "Format " + std::to_string(i);
        source.PushRecentItem(MakePreset("mp4", name + " preset"), MakeNode(name, "Format", 100));
    }
    for (int g = 0; g < groups; ++g) {
        const auto node = MakeNode("Group " + std::to_string(g), "A group", 100);
        for (int p = 0; p < perGroup; ++p)
            source.AddCustomPreset(MakePreset(p % 2 ? "mkv" : "mp4", "Preset " + std::to_string(g) +
                                                                         "." + std::to_string(p)),
                                   node);
    }
    source.SaveRecentList();
    source.SaveCustomList();
    EXPECT_TRUE(source.LastSaveSucceeded());
}

QJsonObject StoredJson(const std::string& key) {
    const std::string text = ILMBase64Codec::Decode(ILMAppSettings::Shared()->StringValue(key));
    return QJsonDocument::fromJson(QByteArray::fromStdString(text)).object();
}

std::string EncodeJson(const QJsonObject& json) {
    return ILMBase64Codec::Encode(QJsonDocument(json).toJson(QJsonDocument::Compact).toStdString());
}

QByteArray ReadFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void WriteFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate)) << path.toStdString();
    file.write(bytes);
}

std::vector<std::string> CustomEntries(const ILMFmtPresetDataSource& source) {
    std::vector<std::string> entries;
    const auto root = source.GetCustomList();
    for (int i = 0; i < root->ChildCount(); ++i) {
        const auto group = root->ChildAt(i);
        for (int j = 0; j < group->FormatPresetCount(); ++j)
            entries.push_back(group->Title() + "/" + group->FormatPresetAt(j)->Title());
    }
    return entries;
}

std::vector<std::string> RecentEntries(const ILMFmtPresetDataSource& source) {
    std::vector<std::string> titles;
    for (const auto& item : source.GetRecentList())
        titles.push_back(item->Title());
    return titles;
}

bool BackupHoldsValue(const std::string& value) {
    const QString folder = QString::fromStdString(ILMAppSettings::Shared()->StorePath()) +
                           QStringLiteral(".preset-backups");
    QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        if (ReadFile(it.next()) == QByteArray::fromStdString(value))
            return true;
    }
    return false;
}

QJsonObject WithPresetField(QJsonObject root, int child, int preset, const QString& key,
                            const QJsonValue& value) {
    const QString childrenKey = QStringLiteral("children");
    const QString presetsKey = QStringLiteral("presets");
    QJsonArray children = root.value(childrenKey).toArray();
    QJsonObject node = children.at(child).toObject();
    QJsonArray presets = node.value(presetsKey).toArray();
    QJsonObject entry = presets.at(preset).toObject();
    entry.insert(key, value);
    presets.replace(preset, entry);
    node.insert(presetsKey, presets);
    children.replace(child, node);
    root.insert(childrenKey, children);
    return root;
}

QString BlockSettingsFolder(const QTemporaryDir& dir) {
    const QString blocker = dir.filePath(QStringLiteral("blocked"));
    WriteFile(blocker, "a file, not a folder");
    ILMAppSettings::UseSettingsFile(QDir(blocker).filePath(QStringLiteral("s.ini")).toStdString());
    return blocker;
}

} // namespace Lumeran::TestSupport
