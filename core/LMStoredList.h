// SPDX-License-Identifier: MIT
#pragma once

#include "ILMAppSettings.h"
#include "ILMFormatNode.h"
#include "LMPresetBackup.h"
#include "LMPresetBackupFolder.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Lumeran {

// One list (recent or custom) as it is kept in the host's settings: Base64 of the
// JSON text of its tree under one key. Reading keeps every entry it can and puts
// the stored value aside before anything can overwrite what it could not read;
// saving merges with what another process saved meanwhile, keeps the replaced
// value among the backups, and never overwrites a value of a newer version.
class LMStoredList {
public:
    enum class Kind { Recent, Custom };

    // The key beside the lists that says which version of the stored form wrote
    // them; only its major number matters.
    static constexpr const char* VersionKey = "format_preset_store_version";
    static constexpr int Version = 1;

    // defaultRoot gives the root's title, description and face id: the root is the
    // data source's own, whatever a damaged or foreign value says.
    LMStoredList(std::string key, Kind kind, std::shared_ptr<const ILMFormatNode> defaultRoot);

    // The stored tree, or empty when nothing is stored or nothing in it could be
    // read. Logs one line when the value could not be read in full.
    std::shared_ptr<ILMFormatNode> Load();
    // Writes tree. When another process saved this key since this one last read
    // or wrote it, the two are merged first and *merged receives the tree that was
    // written; otherwise *merged is left empty. False when nothing was written;
    // LastError() then says why.
    bool Save(const std::shared_ptr<const ILMFormatNode>& tree,
              std::shared_ptr<ILMFormatNode>* merged);

    // Earlier values, newest first, with the entries each holds.
    std::vector<LMPresetBackup> Backups() const;
    // The tree of an earlier value, or empty when it holds nothing readable.
    std::shared_ptr<ILMFormatNode> ReadBackup(const LMPresetBackup& backup) const;

    const std::string& Key() const { return m_key; }
    const std::string& LastError() const { return m_lastError; }
    std::string BackupFolder() const { return m_backups.Folder(); }

    // Reads a stored value: the tree, and whether every part of it was understood.
    // Text that is no valid Base64 reads as nothing, as it always has, unless
    // salvageBase64 asks for the best that its damaged text still gives.
    struct Reading {
        std::shared_ptr<ILMFormatNode> tree;
        bool complete = true;
        int notUnderstood = 0;
        // What was not understood, when the value itself was read whole: a value
        // with the same parts not understood needs no second copy.
        std::string notUnderstoodParts;
        // The JSON text of tree, as this version writes it.
        std::string text;
    };
    Reading Read(const std::string& value, bool salvageBase64 = false) const;
    static int EntryCount(const std::shared_ptr<const ILMFormatNode>& tree);

private:
    bool Preserve(const std::string& value, const std::string& why, bool quiet = false,
                  const std::string& identity = {});
    std::optional<std::string> Encode(const std::string& text);

    // What one save writes: the Base64 value, its JSON text, and the merged tree
    // when another process's value was merged in.
    struct Written {
        std::string value;
        std::string text;
        std::shared_ptr<ILMFormatNode> mergedTree;
    };
    // Logs why LastError() stopped a save; false.
    bool Refuse() const;
    // Puts aside a value read at load that could not be read in full, if that
    // has not happened yet. Nothing is saved over it before it is.
    bool PreserveUnread();
    // False (with the reason) when a newer version wrote the stored lists.
    bool MayOverwrite(const ILMAppSettings::Values& stored);
    // What to write over current, the value stored now (merged when another
    // process wrote it since this one read); empty with the reason on failure.
    std::optional<Written> WriteOver(const std::optional<std::string>& current, std::string ours);
    std::shared_ptr<ILMFormatNode> MergeWith(const std::string& current, const std::string& ours);

    std::string m_key;
    Kind m_kind;
    std::shared_ptr<const ILMFormatNode> m_defaultRoot;
    LMPresetBackupFolder m_backups;
    // The value as this process last read or wrote it; absent when nothing was
    // stored. A save that finds something else stored merges against it.
    std::optional<std::string> m_base;
    // The JSON text of that value's tree, as this version writes it.
    std::string m_baseText;
    // A value that could not be read in full and could not be put aside yet:
    // nothing overwrites it until it is.
    std::optional<std::string> m_unpreserved;
    std::string m_lastError;
};

} // namespace Lumeran
