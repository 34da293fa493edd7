// SPDX-License-Identifier: MIT
#include "LMFormatCellLayout.h"

namespace {

constexpr int kLeftMargin = 14;
constexpr int kRightMargin = 12;
constexpr int kVerticalMargin = 6;
constexpr int kSpacing = 10;
constexpr int kTextSpacing = 1;
constexpr int kImageSize = 32;
constexpr int kButtonSize = 26;

// A box of the given height centred in the content band of rect.
int centredTop(const QRect& rect, int height) {
    return rect.top() + kVerticalMargin + (rect.height() - 2 * kVerticalMargin - height) / 2;
}

} // namespace

LMFormatCellLayout LMFormatCellLayout::of(const QRect& rect, int titleHeight, int descriptionHeight,
                                          bool descriptionVisible, bool editVisible,
                                          bool removeVisible) {
    LMFormatCellLayout layout;
    layout.image =
        QRect(rect.left() + kLeftMargin, centredTop(rect, kImageSize), kImageSize, kImageSize);
    // The buttons line up from the right edge, the remove button last.
    int right = rect.right() + 1 - kRightMargin;
    const int buttonTop = centredTop(rect, kButtonSize);
    if (removeVisible) {
        layout.remove = QRect(right - kButtonSize, buttonTop, kButtonSize, kButtonSize);
        right -= kButtonSize + kSpacing;
    }
    if (editVisible) {
        layout.edit = QRect(right - kButtonSize, buttonTop, kButtonSize, kButtonSize);
        right -= kButtonSize + kSpacing;
    }
    const int textLeft = layout.image.right() + 1 + kSpacing;
    const int textWidth = qMax(0, right - textLeft);
    // The texts sit together in the middle; odd room left over goes above them.
    const int textHeight = titleHeight + (descriptionVisible ? descriptionHeight : 0);
    const int gaps = descriptionVisible ? 3 : 2;
    const int room = rect.height() - 2 * kVerticalMargin - textHeight - gaps * kTextSpacing;
    const int titleTop = rect.top() + kVerticalMargin + (room - room / 2) + kTextSpacing;
    layout.title = QRect(textLeft, titleTop, textWidth, titleHeight);
    if (descriptionVisible)
        layout.description =
            QRect(textLeft, titleTop + titleHeight + kTextSpacing, textWidth, descriptionHeight);
    return layout;
}
