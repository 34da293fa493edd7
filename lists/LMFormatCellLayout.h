// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

// Where the parts of a list row lie: the image on the left, the title over the
// description beside it, and the edit and remove buttons (those that show) at
// the right end, which take their room from the texts. The delegate paints by
// it and the list hit-tests the buttons by it, so both always agree.
struct LMFormatCellLayout {
    QRect image;
    QRect title;
    QRect description;
    QRect edit;
    QRect remove;

    // rect is the row's; the heights are the line heights of the title and
    // description fonts. A hidden description or button gets an empty rectangle.
    static LMFormatCellLayout of(const QRect& rect, int titleHeight, int descriptionHeight,
                                 bool descriptionVisible, bool editVisible, bool removeVisible);
};
