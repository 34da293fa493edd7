// SPDX-License-Identifier: MIT
#include "LMFormatDataView.h"

#include "LMFmtNodeViewCtrl.h"
#include "LMFormatCollectionView.h"
#include "LMFormatDataViewItem.h"
#include "LMFormatInternationalizationMgr.h"
#include "LMListsTestSupport.h"
#include "LMUiTestSupport.h"

#include <QCursor>
#include <QScrollBar>
#include <QTest>

using namespace Lumeran;
using namespace Lumeran::TestSupport;

namespace {

class LMFormatDataViewTest : public UiTest {
protected:
    void SetUp() override {
        UiTest::SetUp();
        ctrl.reset(LMFmtNodeViewCtrl::fmtNodeViewCtrl());
    }
    void TearDown() override {
        ctrl.reset();
        UiTest::TearDown();
    }

    // A category whose first node has many presets, so the format list scrolls.
    void LoadLongList(int presets) {
        std::vector<std::string> titles;
        for (int i = 0; i < presets; ++i)
            titles.push_back("Preset " + std::to_string(i));
        auto root = ILMFormatNode::MallocFormatNode("Video", "", 10);
        root->AddChild(MakeFormat("MP4", titles));
        ctrl->loadFormatNode(root);
    }

    std::unique_ptr<LMFmtNodeViewCtrl> ctrl;
};

// A point inside the inset background, left of the image.
QPoint InsideInset(const QImage& image) {
    return QPoint(7, image.height() / 2);
}

} // namespace

TEST_F(LMFormatDataViewTest, ShowEditingIsOffOutsideAndFollowsThePointerInAndOut) {
    ctrl->loadFormatNode(MakeCategory());
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    LMFormatCollectionView* list = ctrl->fmtListView();
    LMFormatDataViewItem* item = list->itemAtIndex(1);
    ASSERT_NE(item, nullptr);
    ASSERT_TRUE(item->editable());
    EXPECT_FALSE(item->showEditing());

    HoverRow(list, 1);
    EXPECT_TRUE(item->showEditing());
    EXPECT_TRUE(item->dataView()->isEditVisible());
    EXPECT_TRUE(item->dataView()->mouseIn());

    HoverRow(list, 0);
    EXPECT_FALSE(item->showEditing());
    EXPECT_TRUE(list->itemAtIndex(0)->showEditing());

    // Leaving the list altogether.
    HoverRow(ctrl->nodeListView(), 0);
    EXPECT_FALSE(list->itemAtIndex(0)->showEditing());
    EXPECT_FALSE(list->itemAtIndex(0)->dataView()->mouseIn());
}

TEST_F(LMFormatDataViewTest, ScrollingACellUnderAStillPointerHighlightsItWithoutAnEntryMessage) {
    LoadLongList(60);
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    LMFormatCollectionView* list = ctrl->fmtListView();
    HoverRow(list, 2);
    LMFormatDataViewItem* before = list->itemAtIndex(2);
    LMFormatDataViewItem* arriving = list->itemAtIndex(4);
    ASSERT_NE(before, nullptr);
    ASSERT_NE(arriving, nullptr);
    ASSERT_TRUE(before->showEditing());
    ASSERT_FALSE(arriving->showActionButton());

    // Count what every cell's view tells its item from here on.
    std::vector<std::unique_ptr<CountingViewDelegate>> counters;
    for (LMFormatDataViewItem* item : list->findChildren<LMFormatDataViewItem*>()) {
        counters.push_back(std::make_unique<CountingViewDelegate>(item));
        item->dataView()->setDelegate(counters.back().get());
    }
    const int rowHeight = list->visualRect(list->model()->index(1, 0)).top() -
                          list->visualRect(list->model()->index(0, 0)).top();
    list->verticalScrollBar()->setValue(2 * rowHeight);
    QCoreApplication::processEvents();

    // Row 4 now lies where row 2 was, under the pointer.
    ASSERT_EQ(list->indexAt(list->viewport()->mapFromGlobal(QCursor::pos())).row(), 4);
    EXPECT_EQ(list->itemAtIndex(4), arriving);
    EXPECT_TRUE(arriving->showActionButton());
    EXPECT_TRUE(arriving->showEditing());
    EXPECT_TRUE(arriving->dataView()->isEditVisible());
    EXPECT_TRUE(arriving->dataView()->mouseIn());
    EXPECT_FALSE(before->showActionButton());
    EXPECT_FALSE(before->dataView()->mouseIn());
    for (const auto& counter : counters) {
        EXPECT_EQ(counter->enters, 0);
        EXPECT_EQ(counter->exits, 0);
    }
    const QImage cell = RenderCell(arriving->dataView());
    EXPECT_EQ(cell.pixelColor(InsideInset(cell)), Highlight());
}

TEST_F(LMFormatDataViewTest, ASelectedCellWithoutHoverDrawsLikeAHoveredOneAndAPlainCellNothing) {
    ctrl->loadFormatNode(MakeCategory());
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    LMFormatCollectionView* nodes = ctrl->nodeListView();
    LMFormatDataViewItem* selected = nodes->itemAtIndex(0);
    LMFormatDataViewItem* plain = nodes->itemAtIndex(1);
    ASSERT_NE(selected, nullptr);
    ASSERT_NE(plain, nullptr);
    ASSERT_TRUE(selected->isSelected());
    ASSERT_FALSE(selected->dataView()->mouseIn());

    const QImage selectedImage = RenderCell(selected->dataView());
    EXPECT_EQ(selectedImage.pixelColor(InsideInset(selectedImage)), Highlight());
    // Outside the inset, and in the rounded corner, nothing is drawn.
    EXPECT_EQ(selectedImage.pixelColor(1, 1).alpha(), 0);
    EXPECT_EQ(selectedImage.pixelColor(4, 4).alpha(), 0);
    EXPECT_EQ(
        selectedImage.pixelColor(selectedImage.width() - 2, selectedImage.height() - 2).alpha(), 0);

    const QImage plainImage = RenderCell(plain->dataView());
    EXPECT_EQ(plainImage.pixelColor(InsideInset(plainImage)).alpha(), 0);
    EXPECT_EQ(plainImage.pixelColor(plainImage.width() / 2, 5).alpha(), 0);

    HoverRow(nodes, 1);
    const QImage hoveredImage = RenderCell(plain->dataView());
    EXPECT_EQ(hoveredImage.pixelColor(InsideInset(hoveredImage)), Highlight());
    EXPECT_EQ(hoveredImage.pixelColor(1, 1).alpha(), 0);
}

TEST_F(LMFormatDataViewTest, TheListPaintsTheCellBackgroundOverItsRow) {
    ctrl->loadFormatNode(MakeCategory());
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    LMFormatCollectionView* nodes = ctrl->nodeListView();
    const QImage viewport = nodes->viewport()->grab().toImage();
    const qreal ratio = viewport.devicePixelRatio();
    const QRect selectedRow = nodes->visualRect(nodes->model()->index(0, 0));
    const QRect plainRow = nodes->visualRect(nodes->model()->index(1, 0));
    const auto pixel = [&](const QRect& row) {
        const QPoint at = row.topLeft() + QPoint(7, row.height() / 2);
        return viewport.pixelColor(QPoint(qRound(at.x() * ratio), qRound(at.y() * ratio)));
    };
    EXPECT_EQ(pixel(selectedRow), Highlight());
    EXPECT_NE(pixel(plainRow), Highlight());
}

TEST_F(LMFormatDataViewTest, ButtonsAreNamedWithTheirKeysInTheCurrentLanguage) {
    LMFormatDataView view;
    EXPECT_EQ(view.actionButtonToolTip(LMFormatDataView::ActionButton::Edit),
              QStringLiteral("Edit (F2, Ctrl+E, Menu)"));
    EXPECT_EQ(view.actionButtonToolTip(LMFormatDataView::ActionButton::Remove),
              QStringLiteral("Remove (Del)"));
    LMFormatInternationalizationMgr::sharedObject()->setLanguage(LMFormatLanguageFrench);
    EXPECT_EQ(view.actionButtonToolTip(LMFormatDataView::ActionButton::Edit),
              QStringLiteral("Modifier (F2, Ctrl+E, Menu)"));
    EXPECT_EQ(view.actionButtonToolTip(LMFormatDataView::ActionButton::Remove),
              QStringLiteral("Supprimer (Del)"));
}

TEST_F(LMFormatDataViewTest, ResetMouseStateSendsNoMessageAndTheBorderColourIsLightGrey) {
    EXPECT_EQ(LMFormatDataView::borderColor(), QColor::fromRgb(191, 191, 191));
    LMFormatDataViewItem item;
    CountingViewDelegate counter(&item);
    item.dataView()->setDelegate(&counter);
    ParkCursor();
    EXPECT_FALSE(item.dataView()->resetMouseState());
    item.dataView()->mouseEntered();
    EXPECT_EQ(counter.enters, 1);
    // The pointer is far away: the reset clears the hover, silently.
    EXPECT_FALSE(item.dataView()->resetMouseState());
    EXPECT_FALSE(item.dataView()->mouseIn());
    EXPECT_EQ(counter.exits, 0);
}

TEST_F(LMFormatDataViewTest, RowsArePaintedWithoutAWidgetOfTheirOwn) {
    LoadLongList(60);
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    LMFormatCollectionView* list = ctrl->fmtListView();
    ASSERT_GT(LiveItemCount(list), 0);
    EXPECT_TRUE(list->viewport()->findChildren<QWidget*>().isEmpty());
}

TEST_F(LMFormatDataViewTest, TheEditButtonIsPaintedOnlyOnTheHoveredRow) {
    ctrl->loadFormatNode(MakeCategory());
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    LMFormatCollectionView* list = ctrl->fmtListView();
    HoverRow(list, 1);
    LMFormatDataViewItem* hovered = list->itemAtIndex(1);
    LMFormatDataViewItem* plain = list->itemAtIndex(0);
    ASSERT_NE(hovered, nullptr);
    ASSERT_NE(plain, nullptr);
    const QRect button =
        hovered->dataView()->actionButtonGeometry(LMFormatDataView::ActionButton::Edit);
    ASSERT_FALSE(button.isEmpty());
    // The glyph is darker than the hover background it sits on; the same place
    // of a row without hover stays empty.
    const auto darkest = [&](const QImage& image) {
        int value = 255;
        for (int y = button.top(); y <= button.bottom(); ++y) {
            for (int x = button.left(); x <= button.right(); ++x) {
                const QColor pixel = image.pixelColor(x, y);
                if (pixel.alpha() > 0)
                    value = qMin(value, pixel.value());
            }
        }
        return value;
    };
    EXPECT_LT(darkest(RenderCell(hovered->dataView())), Highlight().value() - 60);
    EXPECT_EQ(darkest(RenderCell(plain->dataView())), 255);
}
