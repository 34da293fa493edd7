// SPDX-License-Identifier: MIT
#include "LMThemeColors.h"

#include <QPalette>

#include <gtest/gtest.h>

namespace {

QPalette PaletteOf(const QColor& window, const QColor& text, const QColor& base) {
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, base);
    return palette;
}

// Made once the application exists, which a default palette starts from.
QPalette Light() {
    return PaletteOf(QColor(239, 239, 239), QColor(0, 0, 0), QColor(255, 255, 255));
}
QPalette Dark() {
    return PaletteOf(QColor(45, 45, 48), QColor(230, 230, 230), QColor(30, 30, 32));
}

} // namespace

TEST(LMThemeColorsTest, ContrastRunsFromOneForEqualColoursToTwentyOneForBlackOnWhite) {
    EXPECT_DOUBLE_EQ(LMThemeColors::contrastRatio(Qt::white, Qt::white), 1.0);
    EXPECT_NEAR(LMThemeColors::contrastRatio(Qt::black, Qt::white), 21.0, 1e-9);
    EXPECT_NEAR(LMThemeColors::contrastRatio(Qt::white, Qt::black), 21.0, 1e-9);
    // Mid grey (118) on white is the classic borderline of 4.5:1.
    EXPECT_NEAR(LMThemeColors::contrastRatio(QColor(118, 118, 118), Qt::white), 4.54, 0.01);
}

TEST(LMThemeColorsTest, APaletteIsDarkWhenItsWindowColourIsDark) {
    EXPECT_FALSE(LMThemeColors::isDark(Light()));
    EXPECT_TRUE(LMThemeColors::isDark(Dark()));
}

TEST(LMThemeColorsTest, ALightPaletteKeepsThePopupsOwnLightColours) {
    const LMThemeColors colors(Light());
    EXPECT_EQ(colors.rowHighlight(), QColor(221, 220, 221));
    EXPECT_EQ(colors.tabBackground(), QColor(241, 235, 243));
    EXPECT_EQ(colors.selectedTabBackground(), QColor(255, 255, 255));
    EXPECT_EQ(colors.border(), QColor(191, 191, 191));
    EXPECT_EQ(colors.rowText(colors.rowHighlight()), QColor(0, 0, 0));
}

TEST(LMThemeColorsTest, ADarkPaletteGetsDarkFillsAndTheSelectedTabJoinsTheList) {
    const LMThemeColors colors(Dark());
    EXPECT_LT(colors.rowHighlight().lightnessF(), 0.5);
    EXPECT_NE(colors.rowHighlight(), Dark().color(QPalette::Base));
    EXPECT_LT(colors.tabBackground().lightnessF(), 0.5);
    EXPECT_EQ(colors.selectedTabBackground(), Dark().color(QPalette::Base));
}

TEST(LMThemeColorsTest, EveryTextReadsAtLeastFourAndAHalfToOneOnItsBackground) {
    for (const QPalette& palette : {Light(), Dark()}) {
        const LMThemeColors colors(palette);
        for (const QColor& behind : {colors.rowHighlight(), palette.color(QPalette::Base)}) {
            EXPECT_GE(LMThemeColors::contrastRatio(colors.rowText(behind), behind), 4.5);
            EXPECT_GE(LMThemeColors::contrastRatio(colors.rowSecondaryText(behind), behind), 4.5);
        }
    }
}

TEST(LMThemeColorsTest, TheDescriptionIsGreyerThanTheTitle) {
    for (const QPalette& palette : {Light(), Dark()}) {
        const LMThemeColors colors(palette);
        const QColor behind = colors.rowHighlight();
        EXPECT_LT(LMThemeColors::contrastRatio(colors.rowSecondaryText(behind), behind),
                  LMThemeColors::contrastRatio(colors.rowText(behind), behind));
    }
}

TEST(LMThemeColorsTest, ATextColourThatWouldVanishFallsBackToBlackOrWhite) {
    // White text of a dark palette on a light fill turns black, and the reverse.
    EXPECT_EQ(LMThemeColors::legibleOn(Qt::white, QColor(221, 220, 221)), QColor(Qt::black));
    EXPECT_EQ(LMThemeColors::legibleOn(QColor(60, 60, 60), QColor(40, 40, 40)), QColor(Qt::white));
    // A colour that already reads well is kept.
    EXPECT_EQ(LMThemeColors::legibleOn(QColor(0, 0, 128), Qt::white), QColor(0, 0, 128));
    // A translucent colour is judged as it lands: 25% black on white is too faint.
    EXPECT_EQ(LMThemeColors::legibleOn(QColor(0, 0, 0, 64), Qt::white), QColor(Qt::black));
}
