// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFmtPresetDataSource.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QTemporaryDir>

#include <string>
#include <vector>

namespace Lumeran::TestSupport {

inline constexpr const char* RecentKey = "recent_format_preset";
inline constexpr const char* CustomKey = "custom_format_preset";

// Stores, through a data source of its own, `recent` recent entries "Format i"
// (the last one newest) and `groups` custom groups "Group g" of `perGroup`
// presets "Preset g.p" each.
void SeedStore(int recent, int groups, int perGroup);

// The stored value of key, decoded and read as JSON (empty when it is not).
QJsonObject StoredJson(const std::string& key);
// The value a list is stored as: Base64 of the compact JSON text.
std::string EncodeJson(const QJsonObject& json);

QByteArray ReadFile(const QString& path);
void WriteFile(const QString& path, const QByteArray& bytes);

// "group/preset" for every custom preset, in order.
std::vector<std::string> CustomEntries(const ILMFmtPresetDataSource& source);
// The titles of the recent entries, newest first.
std::vector<std::string> RecentEntries(const ILMFmtPresetDataSource& source);

// root with field key of preset `preset` of child `child` set to value.
QJsonObject WithPresetField(QJsonObject root, int child, int preset, const QString& key,
                            const QJsonValue& value);

// Points the settings at a file in a folder of dir that cannot be made yet (a
// file stands where the folder should be: no one, root included, can write
// there). Returns the blocking file; remove it and make the folder to unblock.
QString BlockSettingsFolder(const QTemporaryDir& dir);

// Whether some file beside the current settings file keeps exactly value.
bool BackupHoldsValue(const std::string& value);

} // namespace Lumeran::TestSupport
