// SPDX-License-Identifier: MIT
#include "LMPresetFile.h"

#include "ILMJsonValue.h"
#include "LMFormatReadOptions.h"
#include "LMFormatReadReport.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>

#include <cmath>
#include <optional>

namespace Lumeran {

namespace {

const QString kFormatKey = QStringLiteral("format");
const QString kVersionKey = QStringLiteral("version");
const QString kPresetsKey = QStringLiteral("presets");
const QString kGroupKey = QStringLiteral("group");
const QString kChildrenKey = QStringLiteral("children");
const QString kTitleKey = QStringLiteral("title");

QByteArray Compact(const QJsonValue& value) {
    // QJsonDocument writes objects and arrays only; a scalar goes in a list of one.
    const QByteArray text = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return text.mid(1, text.size() - 2);
}

std::string Quoted(const QString& text) {
    return "\"" + text.toStdString() + "\"";
}

// The version as a whole number of 1 or more, or 0 when it is anything else.
int VersionOf(const QJsonValue& value) {
    if (!value.isDouble())
        return 0;
    const double version = value.toDouble();
    if (version < 1 || version > 1e9 || std::floor(version) != version)
        return 0;
    return static_cast<int>(version);
}

// Reads one entry through the format model's own reader, as the node it would be
// filed under holding that one preset. Empty when the entry cannot be read.
std::optional<LMPresetFile::Entry> ReadEntry(const QJsonValue& value) {
    if (!value.isObject())
        return std::nullopt;
    QJsonObject preset = value.toObject();
    const QJsonValue groupValue = preset.take(kGroupKey);
    if (groupValue.toObject().value(kTitleKey).toString().isEmpty())
        return std::nullopt;
    QJsonObject node = groupValue.toObject();
    if (node.contains(kPresetsKey) || node.contains(kChildrenKey))
        return std::nullopt;
    node.insert(kPresetsKey, QJsonArray{preset});
    // Unreadable presets are carried rather than failing the read, so that one
    // that is not understood shows as a node without a readable preset.
    LMFormatReadReport report;
    LMFormatReadOptions options;
    options.keepUnreadable = true;
    options.report = &report;
    auto read = ILMFormatNode::MallocFormatNode(ILMJsonValue::MallocJsonValue(node), options);
    if (!read || read->FormatPresetCount() != 1 || report.carried != 0)
        return std::nullopt;
    LMPresetFile::Entry entry;
    entry.preset = read->FormatPresetAt(0);
    entry.group = read->Clone(ILMFormatNode::CloneAttributes);
    return entry;
}

std::string EntryName(const QJsonValue& value, qsizetype index) {
    std::string name = "entry " + std::to_string(index + 1);
    const QJsonValue title = value.toObject().value(kTitleKey);
    if (title.isString())
        name += " (" + Quoted(title.toString()) + ")";
    return name;
}

} // namespace

bool LMPresetFile::Read(const std::string& path, std::string* error) {
    const QString name = QString::fromStdString(path);
    const QFileInfo info(name);
    // The size is looked at before anything is read: a huge file (or one that
    // only claims to be, a sparse one) costs nothing.
    if (!info.exists()) {
        *error = "there is no file " + path;
        return false;
    }
    if (!info.isFile()) {
        *error = path + " is not a preset file: it is not a plain file";
        return false;
    }
    if (info.size() > MaxFileSize) {
        *error = path + " is not a preset file: it is " +
                 std::to_string(info.size() / (1024 * 1024)) +
                 " MB, and preset files are at most " +
                 std::to_string(MaxFileSize / (1024 * 1024)) + " MB";
        return false;
    }
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = "cannot read " + path + ": " + file.errorString().toStdString();
        return false;
    }
    // A file that grew since it was looked at is read only up to the cap, and
    // then fails as JSON cut short.
    const QByteArray text = file.read(MaxFileSize + 1);
    if (text.size() > MaxFileSize) {
        *error = path + " is not a preset file: it is larger than " +
                 std::to_string(MaxFileSize / (1024 * 1024)) + " MB";
        return false;
    }
    std::string reason;
    if (!ReadText(text, &reason)) {
        *error = path + " " + reason;
        return false;
    }
    return true;
}

bool LMPresetFile::ReadText(const QByteArray& text, std::string* error) {
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(text, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        // Text that stops inside a value is what a copy cut short looks like.
        const bool cutShort = parseError.error == QJsonParseError::UnterminatedObject ||
                              parseError.error == QJsonParseError::UnterminatedArray ||
                              parseError.error == QJsonParseError::UnterminatedString ||
                              parseError.offset >= text.size();
        *error = "is not a preset file: it is not valid JSON (" +
                 parseError.errorString().toStdString() + " at byte " +
                 std::to_string(parseError.offset) + (cutShort ? "; it may be cut short)" : ")");
        return false;
    }
    if (!document.isObject()) {
        *error = "is not a preset file: it holds no JSON object";
        return false;
    }
    QJsonObject root = document.object();
    const QJsonValue format = root.take(kFormatKey);
    if (format.toString() != QLatin1String(FormatName.data(), qsizetype(FormatName.size()))) {
        *error = "is not a preset file: its \"format\" is " +
                 (format.isString() ? Quoted(format.toString()) : std::string("missing")) +
                 ", not \"" + std::string(FormatName) + "\"";
        return false;
    }
    const int version = VersionOf(root.take(kVersionKey));
    if (version == 0) {
        *error = "is not a preset file: its \"version\" is not a whole number of 1 or more";
        return false;
    }
    const QJsonValue presets = root.take(kPresetsKey);
    if (!presets.isArray()) {
        *error = "is not a preset file: it has no \"presets\" list";
        return false;
    }
    std::vector<Entry> entries;
    int unreadable = 0;
    const QJsonArray list = presets.toArray();
    for (qsizetype i = 0; i < list.size(); ++i) {
        auto entry = ReadEntry(list.at(i));
        if (entry) {
            entries.push_back(std::move(*entry));
            continue;
        }
        // A newer version may file presets this one cannot make; those are left
        // out. In a file of this version an entry that does not read is damage.
        if (version <= CurrentVersion) {
            *error = "is damaged: " + EntryName(list.at(i), i) +
                     " is not a preset this version can read (a group with a title, and a "
                     "known container, codecs and options)";
            return false;
        }
        ++unreadable;
    }
    m_entries = std::move(entries);
    m_version = version;
    m_unreadable = unreadable;
    m_extra = std::move(root);
    return true;
}

QByteArray LMPresetFile::Text() const {
    QByteArray text =
        "{\n  " + Compact(kFormatKey) + ": " +
        Compact(QString::fromLatin1(FormatName.data(), qsizetype(FormatName.size()))) + ",\n  " +
        Compact(kVersionKey) + ": " + QByteArray::number(CurrentVersion);
    for (auto field = m_extra.begin(); field != m_extra.end(); ++field)
        text += ",\n  " + Compact(field.key()) + ": " + Compact(field.value());
    text += ",\n  " + Compact(kPresetsKey) + ": [";
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        const Entry& entry = m_entries[i];
        // The format model writes the node with its one preset; the preset's
        // object becomes the entry and the node's own fields its group.
        auto node = entry.group->Clone(ILMFormatNode::CloneAttributes);
        node->AddFormatPreset(entry.preset->Clone());
        QJsonObject group = node->ToJson()->Value().toObject();
        QJsonObject preset = group.take(kPresetsKey).toArray().at(0).toObject();
        group.remove(kChildrenKey);
        preset.insert(kGroupKey, group);
        text += (i == 0 ? "\n    " : ",\n    ") + Compact(preset);
    }
    text += m_entries.empty() ? "]\n}\n" : "\n  ]\n}\n";
    return text;
}

bool LMPresetFile::Write(const std::string& path, std::string* error) const {
    QSaveFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::WriteOnly)) {
        *error = "cannot write " + path + ": " + file.errorString().toStdString();
        return false;
    }
    const QByteArray text = Text();
    if (file.write(text) != text.size() || !file.commit()) {
        *error = "cannot write " + path + ": " + file.errorString().toStdString();
        return false;
    }
    return true;
}

void LMPresetFile::Add(const std::shared_ptr<const ILMFormatNode>& group,
                       const std::shared_ptr<const ILMFormatPreset>& preset) {
    if (!group || !preset)
        return;
    m_entries.push_back({group->Clone(ILMFormatNode::CloneAttributes), preset->Clone()});
}

} // namespace Lumeran
