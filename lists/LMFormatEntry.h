// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFmtPresetRecentItem.h"
#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"

#include <QIcon>
#include <QString>

#include <memory>

// What one row of a list shows: a recent entry, a format node or a format
// preset (at most one of them), and the texts and image derived from it. The
// list's model keeps one per row it was asked about, with the derived values, so
// each is worked out once per row and not once per paint.
class LMFormatEntry {
public:
    LMFormatEntry() = default;
    static LMFormatEntry
    fromRecentItem(std::shared_ptr<const Lumeran::ILMFmtPresetRecentItem> item);
    static LMFormatEntry fromNode(std::shared_ptr<const Lumeran::ILMFormatNode> node);
    static LMFormatEntry fromPreset(std::shared_ptr<const Lumeran::ILMFormatPreset> preset);

    const std::shared_ptr<const Lumeran::ILMFmtPresetRecentItem>& recentItem() const;
    const std::shared_ptr<const Lumeran::ILMFormatNode>& node() const;
    const std::shared_ptr<const Lumeran::ILMFormatPreset>& preset() const;

    // The localized title and description, each looked up a second time on
    // purpose: a localized text that is itself a key maps onward, and any other
    // text comes back as it is.
    QString title() const;
    QString description() const;
    // Node rows show a title only.
    bool visibleDescription() const;
    // The artwork of the entry's face; null when it has none.
    QIcon image() const;

private:
    std::shared_ptr<const Lumeran::ILMFmtPresetRecentItem> m_recentItem;
    std::shared_ptr<const Lumeran::ILMFormatNode> m_node;
    std::shared_ptr<const Lumeran::ILMFormatPreset> m_preset;
};
