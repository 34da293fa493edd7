// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

class QPalette;

// The colours the popup paints itself, for the palette it is shown with. A
// light palette gets the popup's own light look; a dark one (a window colour of
// lightness below one half) gets dark counterparts of the same roles, so a dark
// host shows no light patches. Every text colour is checked against what is
// painted behind it and falls back to black or white when the palette's own
// colour would be hard to read there (a contrast ratio below 4.5:1).
class LMThemeColors {
public:
    explicit LMThemeColors(const QPalette& palette);

    static bool isDark(const QPalette& palette);
    // The contrast ratio between two opaque colours, from 1 (none) to 21
    // (black on white), from their relative luminance.
    static double contrastRatio(const QColor& first, const QColor& second);
    static double relativeLuminance(const QColor& color);
    // preferred when it reads well on background, else black or white, whichever
    // reads better. A translucent preferred is judged as it lands on background.
    static QColor legibleOn(const QColor& preferred, const QColor& background);

    bool dark() const;
    // The rounded fill behind a hovered or selected row.
    QColor rowHighlight() const;
    // A row's title, and its description: greyer than the title, still readable.
    QColor rowText(const QColor& background) const;
    QColor rowSecondaryText(const QColor& background) const;
    // The stroke of the row's edit and remove glyphs, under a dark palette or not.
    static QColor glyph(bool dark);
    // The hairlines: the popup's frame, the strip's rule and the tabs' borders.
    QColor border() const;
    QColor tabBackground() const;
    QColor selectedTabBackground() const;
    QColor tabTitle(const QColor& background, bool enabled) const;

private:
    QColor m_text;
    QColor m_base;
    bool m_dark = false;
};
