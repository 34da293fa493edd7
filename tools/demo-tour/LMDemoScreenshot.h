// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRect>
#include <QString>

// Pictures of the screen as a user would see it, made without a display: every
// visible window is drawn at its place over a plain desktop, the pointer on top.
class LMDemoScreenshot {
public:
    // The part `area` of the (virtual) screen, at the screen's pixel ratio.
    static QImage compose(const QRect& area);
    // compose() of the area that holds every visible window, with a margin, saved
    // as PNG; false when the file could not be written.
    static bool save(const QString& path);
    // Whether tool tips are drawn (on top of every window). Off by default: the
    // tour's hovers leave tips that would land in later pictures.
    static void setShowsToolTips(bool shows);
};
