// SPDX-License-Identifier: MIT
#pragma once

#include "ILMArtworkImageGroup.h"
#include "LMMediaFormatPopupExport.h"

#include <QIcon>

#include <memory>

namespace Lumeran {

// Turns an artwork group into an icon. SVG artwork is drawn at whatever size and
// device pixel ratio the icon is asked for, so it stays crisp on HiDPI screens;
// bitmaps in a group become the icon's sizes. Files that cannot be read are
// skipped, and a group with nothing readable gives a null icon.
class LMMEDIAFORMATPOPUP_EXPORT ILMArtworkImageGroupAdapter {
public:
    static QIcon
    imageFromArtworkImageGroup(const std::shared_ptr<const ILMArtworkImageGroup>& group);
};

} // namespace Lumeran
