// SPDX-License-Identifier: MIT
#include "ILMFmtPresetRecentItem.h"

#include "ILMFmtPresetDataSource.h"
#include "LMFmtPresetRecentItem.h"

namespace Lumeran {

std::shared_ptr<const ILMFmtPresetRecentItem>
ILMFmtPresetRecentItem::MallocFmtPresetRecentItem(std::shared_ptr<const ILMFormatPreset> preset,
                                                  std::shared_ptr<const ILMFormatNode> node) {
    return std::make_shared<LMFmtPresetRecentItem>(std::move(node), std::move(preset));
}

bool ILMFmtPresetRecentItem::IsEmpty() const {
    return !FormatPreset();
}

std::shared_ptr<ILMArtworkImageGroup> ILMFmtPresetRecentItem::GetArtworkGroup() const {
    return ILMFmtPresetDataSource::Shared()->GetArtworkGroup(FaceID());
}

} // namespace Lumeran
