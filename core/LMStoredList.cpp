// SPDX-License-Identifier: MIT
#include "LMStoredList.h"

#include "ILMAppSettings.h"
#include "ILMBase64Codec.h"
#include "ILMJsonReader.h"
#include "ILMJsonWriter.h"
#include "ILMLogConfig.h"
#include "LMFormatReadOptions.h"
#include "LMFormatReadReport.h"
#include "LMStoredListMerge.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

#include <utility>

namespace Lumeran {

namespace {

// Beside the settings file when there is one ("<file>.preset-backups/<key>"),
// else in the application's data folder.
std::string BackupFolderFor(const std::string& key) {
    const std::string store = ILMAppSettings::Shared()->StorePath();
    QString base;
    if (!store.empty())
        base = QString::fromStdString(store) + QStringLiteral(".preset-backups");
    else if (const QString data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
             !data.isEmpty())
        base = data + QStringLiteral("/preset-backups");
    if (base.isEmpty())
        return {};
    return QDir(base).filePath(QString::fromStdString(key)).toStdString();
}

int MajorVersion(const std::string& stamp) {
    try {
        return std::stoi(stamp);
    } catch (...) {
        return 0; // unreadable stamps are taken as written before stamps existed
    }
}

std::string TextOf(const std::shared_ptr<const ILMFormatNode>& tree) {
    return tree ? ILMJsonWriter::WriteJsonString(tree->ToJson()) : std::string();
}

// The merge works on Qt's objects; it runs only when two processes saved at once.
QJsonObject ObjectOf(const std::string& text) {
    return QJsonDocument::fromJson(
               QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size())))
        .object();
}

} // namespace

LMStoredList::LMStoredList(std::string key, Kind kind,
                           std::shared_ptr<const ILMFormatNode> defaultRoot)
    : m_key(std::move(key)), m_kind(kind), m_defaultRoot(std::move(defaultRoot)),
      m_backups(BackupFolderFor(m_key)) {}

LMStoredList::Reading LMStoredList::Read(const std::string& value, bool salvageBase64) const {
    Reading best;
    best.complete = false;
    if (value.empty())
        return best;
    std::vector<std::string> decodings;
    const std::string decoded = ILMBase64Codec::Decode(value);
    const bool decodedWhole = !decoded.empty();
    if (decodedWhole)
        decodings.push_back(decoded);
    else if (salvageBase64)
        decodings = ILMBase64Codec::SalvageDecodings(value);
    // Damaged text may be read several ways; the one that keeps most entries wins.
    int bestCount = -1;
    for (const std::string& text : decodings) {
        bool jsonWhole = false;
        const auto json = ILMJsonReader::ReadJsonStringSalvaging(text, &jsonWhole);
        if (!json)
            continue;
        LMFormatReadReport report;
        LMFormatReadOptions options;
        options.keepUnreadable = true;
        options.report = &report;
        auto tree = ILMFormatNode::MallocFormatNode(json, options);
        if (!tree)
            continue;
        if (m_defaultRoot) {
            tree->SetTitle(m_defaultRoot->Title());
            tree->SetDescription(m_defaultRoot->Description());
            tree->SetFaceID(m_defaultRoot->FaceID());
        }
        const int count = EntryCount(tree);
        if (count <= bestCount)
            continue;
        bestCount = count;
        best.tree = std::move(tree);
        // Read in full means written back exactly: anything the writer would not
        // reproduce byte for byte (duplicate keys, text in another form, bytes
        // replaced on the way in) is worth keeping as it was.
        // Entries carried unread count as read here: they are written back as
        // they are.
        best.text = TextOf(best.tree);
        const bool exact = decodedWhole && jsonWhole && best.text == text;
        best.complete = exact && report.Complete();
        best.notUnderstood = report.carried + report.repaired;
        best.notUnderstoodParts = exact ? report.notUnderstood : std::string();
    }
    return best;
}

int LMStoredList::EntryCount(const std::shared_ptr<const ILMFormatNode>& tree) {
    if (!tree)
        return 0;
    int count = tree->FormatPresetCount();
    for (int i = 0; i < tree->ChildCount(); ++i)
        count += EntryCount(tree->ChildAt(i));
    return count;
}

bool LMStoredList::Preserve(const std::string& value, const std::string& why, bool quiet,
                            const std::string& identity) {
    const std::string path = m_backups.KeepUnreadable(value, identity);
    if (path.empty()) {
        m_unpreserved = value;
        ILMLogConfig::Printf("The stored %s %s, and no copy of it could be written to %s; it "
                             "will not be overwritten until one can",
                             m_key.c_str(), why.c_str(), m_backups.Folder().c_str());
        return false;
    }
    if (!quiet)
        ILMLogConfig::Printf("The stored %s %s; a copy of it is kept in %s", m_key.c_str(),
                             why.c_str(), path.c_str());
    return true;
}

std::shared_ptr<ILMFormatNode> LMStoredList::Load() {
    const auto settings = ILMAppSettings::Shared();
    const std::string value = settings->StringValue(m_key);
    // Earlier lines that repeat the key are values nobody reads any more.
    for (const std::string& shadowed : settings->ShadowedValues(m_key)) {
        if (!shadowed.empty() && shadowed != value)
            Preserve(shadowed, "appears more than once in the settings");
    }
    m_base = value.empty() ? std::nullopt : std::optional<std::string>(value);
    m_baseText.clear();
    if (value.empty())
        return {};
    Reading reading = Read(value);
    if (!reading.complete) {
        // A value that is no Base64 at all is put aside without a word, as hosts
        // have always seen it read as an empty list; the backups list shows it.
        const bool quiet = ILMBase64Codec::Decode(value).empty();
        const int kept = EntryCount(reading.tree);
        Preserve(value,
                 reading.tree
                     ? "could not be read in full (" + std::to_string(kept) + " entries kept, " +
                           std::to_string(reading.notUnderstood) + " not understood)"
                     : std::string("could not be read"),
                 quiet, reading.notUnderstoodParts);
    }
    m_baseText = std::move(reading.text);
    return reading.tree;
}

std::optional<std::string> LMStoredList::Encode(const std::string& text) {
    // What the reader would refuse is never written.
    if (text.empty() || static_cast<std::int64_t>(text.size()) > ILMJsonReader::MaxFileSize)
        return std::nullopt;
    return ILMBase64Codec::Encode(text);
}

bool LMStoredList::Save(const std::shared_ptr<const ILMFormatNode>& tree,
                        std::shared_ptr<ILMFormatNode>* merged) {
    if (merged)
        merged->reset();
    m_lastError.clear();
    if (!tree) {
        m_lastError = "nothing to save";
        return false;
    }
    if (!PreserveUnread()) {
        m_lastError = "no copy could be kept of the stored " + m_key + " that could not be read";
        return Refuse();
    }

    std::string ours = TextOf(tree);
    Written written;
    const auto update =
        [&](const ILMAppSettings::Values& stored) -> std::optional<ILMAppSettings::Values> {
        if (!MayOverwrite(stored))
            return std::nullopt;
        const auto found = stored.find(m_key);
        const std::optional<std::string> current = found == stored.end() || found->second.empty()
                                                       ? std::nullopt
                                                       : std::optional(found->second);
        std::optional<Written> result = WriteOver(current, std::move(ours));
        if (!result)
            return std::nullopt;
        written = std::move(*result);
        return ILMAppSettings::Values{{m_key, written.value},
                                      {VersionKey, std::to_string(Version)}};
    };
    const bool ok = ILMAppSettings::Shared()->Transact({m_key, VersionKey}, update);
    if (!ok && m_lastError.empty())
        m_lastError = "the settings could not be written";
    if (!ok || !m_lastError.empty())
        return Refuse();
    m_base = std::move(written.value);
    m_baseText = std::move(written.text);
    if (merged)
        *merged = std::move(written.mergedTree);
    return true;
}

bool LMStoredList::Refuse() const {
    ILMLogConfig::Printf("Not saving %s: %s", m_key.c_str(), m_lastError.c_str());
    return false;
}

bool LMStoredList::PreserveUnread() {
    if (m_unpreserved && !Preserve(*m_unpreserved, "could not be read in full"))
        return false;
    m_unpreserved.reset();
    return true;
}

bool LMStoredList::MayOverwrite(const ILMAppSettings::Values& stored) {
    const auto stamp = stored.find(VersionKey);
    if (stamp == stored.end() || MajorVersion(stamp->second) <= Version)
        return true;
    m_lastError = "the stored lists were written by a newer version (" + stamp->second +
                  ") and are left as they are";
    return false;
}

std::optional<LMStoredList::Written>
LMStoredList::WriteOver(const std::optional<std::string>& current, std::string ours) {
    Written result;
    if (current != m_base && current) {
        // Another process saved since we read: merge with what it stored.
        result.mergedTree = MergeWith(*current, ours);
        if (!result.mergedTree)
            return std::nullopt;
        ours = TextOf(result.mergedTree);
    }
    result.text = std::move(ours);
    std::optional<std::string> value = Encode(result.text);
    if (!value) {
        m_lastError = "the " + m_key + " is too large to be read back";
        return std::nullopt;
    }
    result.value = std::move(*value);
    if (current && *current != result.value && !m_backups.KeepReplaced(*current))
        ILMLogConfig::Printf("No backup of the replaced %s could be written to %s", m_key.c_str(),
                             m_backups.Folder().c_str());
    return result;
}

std::shared_ptr<ILMFormatNode> LMStoredList::MergeWith(const std::string& current,
                                                       const std::string& oursText) {
    const Reading theirs = Read(current);
    if (!theirs.complete &&
        !Preserve(current, "could not be read in full", false, theirs.notUnderstoodParts)) {
        m_lastError = "no copy could be kept of the stored " + m_key;
        return {};
    }
    const QJsonObject theirJson = ObjectOf(theirs.text);
    const QJsonObject ours = ObjectOf(oursText);
    const QJsonObject base = ObjectOf(m_baseText);
    const QJsonObject merged = m_kind == Kind::Recent
                                   ? LMStoredListMerge::MergeRecent(base, theirJson, ours)
                                   : LMStoredListMerge::MergeCustom(base, theirJson, ours);
    LMFormatReadOptions options;
    options.keepUnreadable = true;
    auto tree = ILMFormatNode::MallocFormatNode(ILMJsonValue::MallocJsonValue(merged), options);
    if (!tree)
        m_lastError = "the merged " + m_key + " could not be read back";
    return tree;
}

std::vector<LMPresetBackup> LMStoredList::Backups() const {
    std::vector<LMPresetBackup> backups = m_backups.List();
    for (LMPresetBackup& backup : backups)
        backup.entryCount = EntryCount(ReadBackup(backup));
    return backups;
}

std::shared_ptr<ILMFormatNode> LMStoredList::ReadBackup(const LMPresetBackup& backup) const {
    std::string value;
    if (!LMPresetBackupFolder::ReadValue(backup.path, &value))
        return {};
    // Putting an earlier value back is the user's own recovery: from a value that
    // was put aside because its Base64 was damaged, whatever can be salvaged.
    return Read(value, true).tree;
}

} // namespace Lumeran
