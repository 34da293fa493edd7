// SPDX-License-Identifier: MIT
#include "LMTabButtonCell.h"

#include "LMTabHeaderView.h"
#include "LMUiTestSupport.h"

#include <QFontMetricsF>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>

namespace {

constexpr int kTabWidth = 97;
constexpr int kTabHeight = 27;

std::string rgbaAt(const QImage& image, int x, int y) {
    const QColor color = image.pixelColor(x, y);
    return std::to_string(color.red()) + "," + std::to_string(color.green()) + "," +
           std::to_string(color.blue()) + "," + std::to_string(color.alpha());
}

const std::string kGrey = "191,191,191,255";
const std::string kWhite = "255,255,255,255";
const std::string kLilacGrey = "241,235,243,255";
const std::string kNothing = "0,0,0,0";

// A transparent image larger than the tab, so that what the cell draws outside
// its frame shows.
QImage canvas(int width, int height, qreal scale = 1.0) {
    QImage image(QSize(width, height) * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    return image;
}

QImage drawBezel(const LMTabButtonCell& cell, bool on, qreal scale = 1.0) {
    QImage image = canvas(kTabWidth, kTabHeight + 2, scale);
    QPainter painter(&image);
    cell.drawBezelWithFrame(painter, QRectF(0, 0, kTabWidth, kTabHeight), on);
    return image;
}

QImage drawTab(const LMTabButtonCell& cell, const QPushButton& button) {
    QImage image = canvas(kTabWidth, kTabHeight);
    QPainter painter(&image);
    cell.drawWithFrame(painter, QRectF(0, 0, kTabWidth, kTabHeight), button);
    return image;
}

// The smallest rectangle around the pixels that match.
QRect boundsOf(const QImage& image, const std::function<bool(QColor)>& matches) {
    QRect bounds;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (matches(image.pixelColor(x, y)))
                bounds |= QRect(x, y, 1, 1);
    return bounds;
}

bool isRed(QColor color) {
    return color.red() > 200 && color.green() < 60 && color.blue() < 60;
}

// Title ink: clearly darker than every fill the cell uses.
bool isInk(QColor color) {
    return color.alpha() == 255 && color.hslSaturation() < 40 && color.lightness() < 160;
}

class LMTabButtonCellTest : public Lumeran::TestSupport::UiTest {
protected:
    LMTabButtonCell cell;
};

TEST_F(LMTabButtonCellTest, DefaultsAreWhiteWhenSelectedTheStripsGreyAndLilacGrey) {
    EXPECT_EQ(cell.selectedBackgroundColor(), QColor(255, 255, 255));
    EXPECT_EQ(cell.borderColor(), QColor(191, 191, 191));
    EXPECT_EQ(cell.borderColor(), LMTabHeaderView::borderColor());
    EXPECT_EQ(cell.backgroundColor(), QColor(241, 235, 243));
    EXPECT_EQ(cell.backgroundColor().alpha(), 255);

    cell.setSelectedBackgroundColor(Qt::red);
    cell.setBorderColor(Qt::green);
    cell.setBackgroundColor(Qt::blue);
    cell.setupDefaultValues();

    EXPECT_EQ(cell.selectedBackgroundColor(), QColor(255, 255, 255));
    EXPECT_EQ(cell.borderColor(), QColor(191, 191, 191));
    EXPECT_EQ(cell.backgroundColor(), QColor(241, 235, 243));
}

TEST_F(LMTabButtonCellTest, SelectedBezelIsOnePointTallerThanItsFrame) {
    const QImage image = drawBezel(cell, true);

    EXPECT_EQ(rgbaAt(image, 48, 0), kGrey);
    EXPECT_EQ(rgbaAt(image, 0, 13), kGrey);
    EXPECT_EQ(rgbaAt(image, kTabWidth - 1, 13), kGrey);
    EXPECT_EQ(rgbaAt(image, 48, 13), kWhite);
    // The frame's last row is still inside; the bottom border lies one row
    // below the frame, where the button's bounds cut it off.
    EXPECT_EQ(rgbaAt(image, 48, kTabHeight - 1), kWhite);
    EXPECT_EQ(rgbaAt(image, 0, kTabHeight - 1), kGrey);
    EXPECT_EQ(rgbaAt(image, 48, kTabHeight), kGrey);
    EXPECT_EQ(rgbaAt(image, 48, kTabHeight + 1), kNothing);
}

TEST_F(LMTabButtonCellTest, UnselectedBezelIsLilacGreyWithItsBorderInsideTheFrame) {
    const QImage image = drawBezel(cell, false);

    EXPECT_EQ(rgbaAt(image, 48, 0), kGrey);
    EXPECT_EQ(rgbaAt(image, 0, 13), kGrey);
    EXPECT_EQ(rgbaAt(image, kTabWidth - 1, 13), kGrey);
    EXPECT_EQ(rgbaAt(image, 48, kTabHeight - 1), kGrey);
    EXPECT_EQ(rgbaAt(image, 1, 1), kLilacGrey);
    EXPECT_EQ(rgbaAt(image, 48, 13), kLilacGrey);
    EXPECT_EQ(rgbaAt(image, kTabWidth - 2, kTabHeight - 2), kLilacGrey);
    EXPECT_EQ(rgbaAt(image, 48, kTabHeight), kNothing);
}

TEST_F(LMTabButtonCellTest, BezelDrawsWithTheCellsOwnColours) {
    cell.setSelectedBackgroundColor(QColor(10, 20, 30));
    cell.setBackgroundColor(QColor(40, 50, 60));
    cell.setBorderColor(QColor(70, 80, 90));

    const QImage on = drawBezel(cell, true);
    const QImage off = drawBezel(cell, false);

    EXPECT_EQ(rgbaAt(on, 48, 13), "10,20,30,255");
    EXPECT_EQ(rgbaAt(on, 48, 0), "70,80,90,255");
    EXPECT_EQ(rgbaAt(off, 48, 13), "40,50,60,255");
    EXPECT_EQ(rgbaAt(off, 48, kTabHeight - 1), "70,80,90,255");
}

TEST_F(LMTabButtonCellTest, BezelReplacesWhatWasDrawnUnderIt) {
    QImage image = canvas(kTabWidth, kTabHeight);
    image.fill(Qt::red);
    cell.setBackgroundColor(QColor(0, 0, 255, 0));

    QPainter painter(&image);
    cell.drawBezelWithFrame(painter, QRectF(0, 0, kTabWidth, kTabHeight), false);
    painter.end();

    // A fully transparent fill leaves the tab cleared, not showing older paint.
    EXPECT_EQ(rgbaAt(image, 48, 13), kNothing);
    EXPECT_EQ(rgbaAt(image, 48, 0), kGrey);
}

TEST_F(LMTabButtonCellTest, BorderIsOneCrispLineAtDoubleScale) {
    const QImage image = drawBezel(cell, false, 2.0);

    // One point is two device pixels, both fully grey, then the fill.
    EXPECT_EQ(rgbaAt(image, 96, 0), kGrey);
    EXPECT_EQ(rgbaAt(image, 96, 1), kGrey);
    EXPECT_EQ(rgbaAt(image, 96, 2), kLilacGrey);
    EXPECT_EQ(rgbaAt(image, 0, 26), kGrey);
    EXPECT_EQ(rgbaAt(image, 1, 26), kGrey);
    EXPECT_EQ(rgbaAt(image, 2, 26), kLilacGrey);
}

TEST_F(LMTabButtonCellTest, ImageIsScaledDownAndLeadsTheTitle) {
    QPixmap artwork(40, 20);
    artwork.fill(Qt::red);
    QPushButton button;
    button.setIcon(QIcon(artwork));
    button.setText(QStringLiteral("Video"));

    const QImage image = drawTab(cell, button);

    const QRect red = boundsOf(image, isRed);
    const QRect ink = boundsOf(image, isInk);
    ASSERT_FALSE(red.isEmpty());
    ASSERT_FALSE(ink.isEmpty());
    // Scaled down in proportion to fit the tab, and vertically centred.
    EXPECT_LE(red.width(), 18);
    EXPECT_GE(red.width(), 16);
    EXPECT_NEAR(red.width(), 2 * red.height(), 1);
    EXPECT_NEAR(red.center().y(), kTabHeight / 2, 1);
    EXPECT_LT(red.right(), ink.left());
    // Image and title together are centred in the tab.
    EXPECT_NEAR(red.left(), kTabWidth - 1 - ink.right(), 3);
}

TEST_F(LMTabButtonCellTest, ATabWithoutAnImageShowsItsTitleCentred) {
    QPushButton button;
    button.setText(QStringLiteral("Recent"));

    const QImage image = drawTab(cell, button);

    const QRect ink = boundsOf(image, isInk);
    ASSERT_FALSE(ink.isEmpty());
    EXPECT_TRUE(boundsOf(image, isRed).isEmpty());
    EXPECT_NEAR(ink.left(), kTabWidth - 1 - ink.right(), 3);
}

TEST_F(LMTabButtonCellTest, ALongTitleIsShortenedInTheMiddle) {
    const QString title = QStringLiteral("MPEG file format for DVD - Video, widescreen");
    QPushButton button;
    button.setText(title);
    const QImage image = drawTab(cell, button);

    const QRect ink = boundsOf(image, isInk);
    ASSERT_FALSE(ink.isEmpty());
    EXPECT_GT(ink.left(), 0);
    EXPECT_LT(ink.right(), kTabWidth - 1);

    // What is drawn is the title with its middle left out: some shortening of
    // it in the middle, drawn as a title of its own, gives the same picture,
    // and no shortening at its end does.
    const QFontMetricsF metrics(button.font());
    auto drawnLike = [&](Qt::TextElideMode mode) {
        for (int width = 1; width <= kTabWidth; ++width) {
            QPushButton shortened;
            shortened.setText(metrics.elidedText(title, mode, width));
            if (drawTab(cell, shortened) == image)
                return std::optional<QString>(shortened.text());
        }
        return std::optional<QString>();
    };
    const std::optional<QString> middle = drawnLike(Qt::ElideMiddle);
    ASSERT_TRUE(middle.has_value());
    EXPECT_TRUE(middle->startsWith(title.left(2))) << middle->toStdString();
    EXPECT_TRUE(middle->endsWith(title.right(2))) << middle->toStdString();
    EXPECT_TRUE(middle->contains(QChar(0x2026))) << middle->toStdString();
    EXPECT_FALSE(drawnLike(Qt::ElideRight).has_value());
}

TEST_F(LMTabButtonCellTest, ResettingTheCursorRectShowsTheArrow) {
    QWidget view;
    view.setCursor(Qt::IBeamCursor);

    cell.resetCursorRect(view);

    EXPECT_EQ(view.cursor().shape(), Qt::ArrowCursor);
}

} // namespace
