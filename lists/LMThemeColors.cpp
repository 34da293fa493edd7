// SPDX-License-Identifier: MIT
#include "LMThemeColors.h"

#include <QPalette>

#include <cmath>

namespace {

// The least contrast a text may have against what lies behind it.
constexpr double kMinimumContrast = 4.5;
// The description is greyed only as far as this: a margin over the minimum, so
// antialiased strokes still read.
constexpr double kSecondaryContrast = 5.5;

double channel(double value) {
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

QColor blend(const QColor& over, const QColor& under, double amount) {
    const auto mix = [amount](int top, int bottom) {
        return static_cast<int>(std::lround(top * amount + bottom * (1.0 - amount)));
    };
    return QColor(mix(over.red(), under.red()), mix(over.green(), under.green()),
                  mix(over.blue(), under.blue()));
}

// A translucent colour as it lands on background.
QColor landed(const QColor& color, const QColor& background) {
    return blend(color, background, color.alphaF());
}

} // namespace

LMThemeColors::LMThemeColors(const QPalette& palette)
    : m_text(palette.color(QPalette::WindowText)), m_base(palette.color(QPalette::Base)),
      m_dark(isDark(palette)) {}

bool LMThemeColors::isDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightnessF() < 0.5;
}

double LMThemeColors::relativeLuminance(const QColor& color) {
    return 0.2126 * channel(color.redF()) + 0.7152 * channel(color.greenF()) +
           0.0722 * channel(color.blueF());
}

double LMThemeColors::contrastRatio(const QColor& first, const QColor& second) {
    const double a = relativeLuminance(first);
    const double b = relativeLuminance(second);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QColor LMThemeColors::legibleOn(const QColor& preferred, const QColor& background) {
    if (contrastRatio(landed(preferred, background), background) >= kMinimumContrast)
        return preferred;
    const QColor black(0, 0, 0);
    const QColor white(255, 255, 255);
    return contrastRatio(black, background) >= contrastRatio(white, background) ? black : white;
}

bool LMThemeColors::dark() const {
    return m_dark;
}

QColor LMThemeColors::rowHighlight() const {
    // Dark: the list's base lifted a little toward its text, as the light fill
    // is the white base pressed a little toward black.
    return m_dark ? blend(m_text, m_base, 0.16) : QColor(221, 220, 221);
}

QColor LMThemeColors::rowText(const QColor& background) const {
    return legibleOn(m_text, background);
}

QColor LMThemeColors::rowSecondaryText(const QColor& background) const {
    const QColor text = rowText(background);
    // Toward the background in small steps while the contrast stays ample.
    for (double toward = 0.45; toward > 0.0; toward -= 0.05) {
        const QColor grey = blend(background, landed(text, background), toward);
        if (contrastRatio(grey, background) >= kSecondaryContrast)
            return grey;
    }
    return text;
}

QColor LMThemeColors::glyph(bool dark) {
    return dark ? QColor(200, 200, 200) : QColor(96, 96, 96);
}

QColor LMThemeColors::border() const {
    return m_dark ? QColor(86, 86, 86) : QColor(191, 191, 191);
}

QColor LMThemeColors::tabBackground() const {
    // The same lilac hue as the light strip, dark.
    return m_dark ? QColor(58, 52, 62) : QColor(241, 235, 243);
}

QColor LMThemeColors::selectedTabBackground() const {
    // The selected tab opens onto the list below it, so it takes the list's base.
    return m_dark ? m_base : QColor(255, 255, 255);
}

QColor LMThemeColors::tabTitle(const QColor& background, bool enabled) const {
    const QColor ink = m_dark ? QColor(255, 255, 255) : QColor(0, 0, 0);
    if (!enabled)
        return QColor(ink.red(), ink.green(), ink.blue(), 64);
    return legibleOn(QColor(ink.red(), ink.green(), ink.blue(), 217), background);
}
