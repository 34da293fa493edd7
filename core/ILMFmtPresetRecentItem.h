// SPDX-License-Identifier: MIT
#pragma once

#include "ILMArtworkImageGroup.h"
#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"
#include "LMCoreExport.h"

#include <memory>
#include <string>

namespace Lumeran {

// One entry of the recent list, or of a search over it: a format preset together
// with the format node it belongs to. Title, description and face id are derived
// from the pair, so an entry reads the same wherever it is shown.
//
// Entries are only ever handled through shared pointers made by
// MallocFmtPresetRecentItem, whose deleter knows the concrete type; the
// destructor is therefore protected and not virtual.
class LMCORE_EXPORT ILMFmtPresetRecentItem {
public:
    virtual std::shared_ptr<const ILMFormatNode> FormatNode() const = 0;
    virtual std::shared_ptr<const ILMFormatPreset> FormatPreset() const = 0;
    // The preset title when it already contains the node title ("MP4" under
    // "MP4"), else the node title, a blank and the preset title. Empty for an
    // empty entry.
    virtual std::string Title() const = 0;
    // The node's description; empty for an empty entry.
    virtual std::string Description() const = 0;
    // The node's face id (the preset's own is not used); 0 for an empty entry.
    virtual int FaceID() const = 0;
    // A new entry over the same node and preset objects.
    virtual std::shared_ptr<const ILMFmtPresetRecentItem> Clone() const = 0;
    // Face id, description, title, node and preset equal, tested in that order
    // so that the cheap comparisons rule most entries out first. Nodes are
    // compared by their own attributes: an entry over a catalogue node equals
    // the recent list's copy of it, which holds that one preset only.
    virtual bool IsEqualTo(std::shared_ptr<const ILMFmtPresetRecentItem> other) const = 0;

    // Note the order: preset first, then its node.
    static std::shared_ptr<const ILMFmtPresetRecentItem>
    MallocFmtPresetRecentItem(std::shared_ptr<const ILMFormatPreset> preset,
                              std::shared_ptr<const ILMFormatNode> node);

    // True when the entry has no preset; the node is not looked at.
    bool IsEmpty() const;
    // The artwork of FaceID() from the shared data source; empty before the
    // external data (and with it the artwork) has been asked for.
    std::shared_ptr<ILMArtworkImageGroup> GetArtworkGroup() const;

protected:
    ILMFmtPresetRecentItem() = default;
    ILMFmtPresetRecentItem(const ILMFmtPresetRecentItem&) = default;
    ILMFmtPresetRecentItem& operator=(const ILMFmtPresetRecentItem&) = default;
    ~ILMFmtPresetRecentItem() = default;
};

} // namespace Lumeran
