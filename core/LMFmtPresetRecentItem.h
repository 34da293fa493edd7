// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFmtPresetRecentItem.h"

namespace Lumeran {

// The entry as it is stored: two pointers set once and never changed, so an
// entry can be shared between the recent list and search results freely.
class LMFmtPresetRecentItem final : public ILMFmtPresetRecentItem {
public:
    LMFmtPresetRecentItem(std::shared_ptr<const ILMFormatNode> node,
                          std::shared_ptr<const ILMFormatPreset> preset);

    std::shared_ptr<const ILMFormatNode> FormatNode() const override { return m_node; }
    std::shared_ptr<const ILMFormatPreset> FormatPreset() const override { return m_preset; }
    std::string Title() const override;
    std::string Description() const override;
    int FaceID() const override;
    std::shared_ptr<const ILMFmtPresetRecentItem> Clone() const override;
    bool IsEqualTo(std::shared_ptr<const ILMFmtPresetRecentItem> other) const override;

private:
    const std::shared_ptr<const ILMFormatNode> m_node;
    const std::shared_ptr<const ILMFormatPreset> m_preset;
};

} // namespace Lumeran
