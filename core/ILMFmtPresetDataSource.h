#pragma once

#include "ILMArtworkImageGroup.h"
#include "ILMFmtPresetRecentItem.h"
#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"
#include "LMCoreExport.h"

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

protected:
    ILMFmtPresetDataSource() = default;
    ILMFmtPresetDataSource(const ILMFmtPresetDataSource&) = default;
    ILMFmtPresetDataSource& operator=(const ILMFmtPresetDataSource&) = default;
    ~ILMFmtPresetDataSource() = default;
};

} // namespace Lumeran
