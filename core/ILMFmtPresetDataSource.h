// SPDX-License-Identifier: MIT
#pragma once

#include "ILMArtworkImageGroup.h"
#include "ILMFmtPresetRecentItem.h"
#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"
#include "LMCoreExport.h"
#include "LMCustomPresetRef.h"
#include "LMPresetArgumentsResult.h"
#include "LMPresetBackup.h"
#include "LMPresetFileResult.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Lumeran {

// The one process-wide store of everything the format popup shows: the external
// format tree (loaded off the caller's thread), its artwork, the built-in default
// preset, the user's recent selections and the user's custom presets.
//
// Apart from the load itself, every operation belongs to the thread that made the
// store (the host's main thread); nothing here locks. Nothing saves by itself:
// whoever changes a list calls SaveRecentList() or SaveCustomList() afterwards.
//
// The store is only handled through shared pointers that know its concrete type,
// so the destructor is protected and not virtual.
class LMCORE_EXPORT ILMFmtPresetDataSource {
public:
    using RecentList = std::vector<std::shared_ptr<const ILMFmtPresetRecentItem>>;

    // The single instance, made on first use. The first call must come from one
    // thread; the instance lives until the process ends.
    static std::shared_ptr<ILMFmtPresetDataSource> Shared();

    // Makes the artwork manager from the "icfg" file beside path at once, then
    // reads the tree at path on a worker thread and calls completion on another
    // thread (never the caller's) when it is done, whether it succeeded or not.
    // Meant to be called once; calling it again before WaitForLoadingComplete()
    // has joined the previous load ends the process, as assigning over any
    // running std::thread does.
    virtual void AsyncLoadExternalDataSource(const std::string& path,
                                             std::function<void()> completion) = 0;
    // Returns once the completion of the last load has run; at once when there
    // is no load to wait for. Must not be called from the completion itself.
    virtual void WaitForLoadingComplete() = 0;
    // The external tree. Blocks for at most a millisecond: empty while the load
    // runs, and empty for good when it failed.
    virtual std::shared_ptr<ILMFormatNode> GetExternalFormatPresets() = 0;
    // The newest recent entry, or the default entry when the list is empty.
    virtual std::shared_ptr<const ILMFmtPresetRecentItem> GetCurrentPreset() const = 0;
    // The built-in MP4 entry.
    virtual std::shared_ptr<const ILMFmtPresetRecentItem> GetDefaultPreset() const = 0;
    // A copy of the recent list, newest first.
    virtual RecentList GetRecentList() const = 0;
    // Puts a copy of the entry at the head of the list; an equal entry already
    // listed is removed first, so a re-selection moves to the front.
    virtual bool PushRecentItem(std::shared_ptr<const ILMFmtPresetRecentItem> item) = 0;
    virtual bool PushRecentItem(std::shared_ptr<const ILMFormatPreset> preset,
                                std::shared_ptr<const ILMFormatNode> node) = 0;
    // Removes the first entry with this title; false when there is none.
    virtual bool RemoveRecentItem(const std::string& title) = 0;
    // Removes that very entry object (not an equal one); false when not listed.
    virtual bool RemoveRecentItem(std::shared_ptr<const ILMFmtPresetRecentItem> item) = 0;
    virtual void SaveRecentList() const = 0;
    // The "Custom" tree: one copy of a format node per group, holding the
    // presets the user stored under it.
    virtual std::shared_ptr<ILMFormatNode> GetCustomList() = 0;
    virtual std::shared_ptr<const ILMFormatNode> GetCustomList() const = 0;
    // Files a copy of preset under the group of node's title, making the group
    // from a copy of node when needed. Equal presets are not merged.
    virtual void AddCustomPreset(std::shared_ptr<const ILMFormatPreset> preset,
                                 std::shared_ptr<const ILMFormatNode> node) = 0;
    // Removes the preset of preset's title from the group of node's title; a
    // group left empty disappears. False when nothing was removed.
    virtual bool RemoveCustomPreset(std::shared_ptr<const ILMFormatPreset> preset,
                                    std::shared_ptr<const ILMFormatNode> node) = 0;
    virtual void SaveCustomList() const = 0;
    // The artwork of a face id; empty before AsyncLoadExternalDataSource() or
    // when the artwork configuration has none for it.
    virtual std::shared_ptr<ILMArtworkImageGroup> GetArtworkGroup(int faceID) const = 0;
    // A new tree of copies of the parts of node that match key (case-insensitive
    // substring of a preset's title or description, or of a child's title, which
    // then comes whole). Empty for an empty key or node; otherwise at least a
    // copy of node itself, possibly without presets or children. Pass an empty
    // parent; the recursion passes the node it builds.
    virtual std::shared_ptr<ILMFormatNode>
    SearchFormatPresets(std::shared_ptr<const ILMFormatNode> node, const std::string& key,
                        std::shared_ptr<ILMFormatNode> parent) = 0;
    // The entries of list whose title or description contains key, in list
    // order and as the same objects; the whole list for an empty key.
    virtual RecentList SearchFormatPresets(const RecentList& list, const std::string& key) = 0;

    // ---- Keeping the stored lists safe ----
    // (After the operations above, whose order hosts built against rely on.)
    enum class StoredList { Recent, Custom };
    // Whether the last save reached the settings store. A save that failed (a
    // read-only or full disk, a store written by a newer version) keeps the change
    // in memory; the next save of either list tries that list again.
    virtual bool LastSaveSucceeded() const = 0;
    // Called on the saving thread with one line that says what could not be saved
    // and why, each time a save fails; the same line goes to the log. Replaces any
    // earlier handler; an empty function removes it.
    virtual void SetSaveFailureHandler(std::function<void(const std::string& message)> handler) = 0;
    // Earlier values of a list kept beside the settings, newest first: the last
    // values that saves replaced and any value that could not be read in full.
    virtual std::vector<LMPresetBackup> GetBackups(StoredList list) const = 0;
    // Makes backup number index (0 = newest, as GetBackups() lists them) the list
    // in memory; the caller saves it, as after any change. False when the backup
    // holds nothing readable.
    virtual bool RestoreBackup(StoredList list, int index) = 0;

    // ---- The user's own presets: files, names and order ----
    // (After the operations above, whose order hosts built against rely on.)
    // Like every change to the custom list, the ones below are saved by the
    // caller's SaveCustomList().
    //
    // What an import does with a preset whose title its group already has:
    // files it as "TITLE (2)" (or the next free number), leaves it out, or gives
    // the listed preset its settings.
    enum class ImportClash { Rename, Skip, Replace };
    enum class MoveDirection { Up, Down };
    // Writes the custom presets named by presets, in that order, or all of them
    // in list order when presets is empty, to a preset file at path (see
    // docs/data-source.md). Fails, writing nothing, when one of them is not listed.
    virtual LMPresetFileResult
    ExportCustomPresets(const std::string& path,
                        const std::vector<LMCustomPresetRef>& presets) const = 0;
    // Adds the presets of the preset file at path to the custom list, each to the
    // group of its own group's title (made when missing). The whole file is read
    // and checked first: a file that is not a preset file, is damaged or is too
    // large fails with the reason and changes nothing.
    virtual LMPresetFileResult ImportCustomPresets(const std::string& path, ImportClash clash) = 0;
    // Gives preset title of group a new title. Refuses (false, with the reason in
    // *error when given) an empty or too long title, one that another preset of
    // the group has, and a preset that is not listed.
    virtual bool RenameCustomPreset(const std::string& group, const std::string& title,
                                    const std::string& newTitle, std::string* error) = 0;
    // Files a copy of preset title of group right after it, as "TITLE (2)" or
    // the next free number. The copy's title; empty when the preset is not listed.
    virtual std::string DuplicateCustomPreset(const std::string& group,
                                              const std::string& title) = 0;
    // Moves preset title one place up or down within its group. False when it is
    // not listed or already first (up) or last (down).
    virtual bool MoveCustomPreset(const std::string& group, const std::string& title,
                                  MoveDirection direction) = 0;
    // Files, as a custom preset named name, the preset whose FFmpeg output options
    // come nearest to arguments (an FFmpeg command line cut into words, as a shell
    // cuts it), under the format node of the external tree (or, before it is
    // loaded, of the built-in catalogue) that holds presets of its container.
    // Says which arguments the preset does not give. Refuses an empty or too long
    // name, and one the group already has.
    virtual LMPresetArgumentsResult
    AddCustomPresetFromArguments(const std::string& name,
                                 const std::vector<std::string>& arguments) = 0;

protected:
    ILMFmtPresetDataSource() = default;
    ILMFmtPresetDataSource(const ILMFmtPresetDataSource&) = default;
    ILMFmtPresetDataSource& operator=(const ILMFmtPresetDataSource&) = default;
    ~ILMFmtPresetDataSource() = default;
};

} // namespace Lumeran
