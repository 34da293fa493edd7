// SPDX-License-Identifier: MIT
#include "LMFmtNodeViewCtrl.h"

#include "ILMFmtPresetDataSource.h"
#include "LMFormatCollectionModel.h"
#include "LMFormatCollectionView.h"
#include "LMFormatDataViewItem.h"
#include "LMFormatInternationalizationMgr.h"
#include "LMListsTestSupport.h"
#include "LMUiTestSupport.h"

#include <QElapsedTimer>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <iostream>

using namespace Lumeran;
using namespace Lumeran::TestSupport;

namespace {

class LMFmtNodeViewCtrlTest : public NodeViewCtrlTest {
protected:
    // A custom tab over the shared data source's custom list.
    void LoadCustomTab() {
        ctrl->setRemovable(true);
        ctrl->loadFormatNode(FillCustomList());
    }
};

QStringList CustomGroupTitles() {
    QStringList titles;
    const auto custom = ILMFmtPresetDataSource::Shared()->GetCustomList();
    for (int i = 0; i < custom->ChildCount(); ++i)
        titles.append(QString::fromStdString(custom->ChildAt(i)->Title()));
    return titles;
}

QStringList PresetTitles(const std::shared_ptr<const ILMFormatNode>& node) {
    QStringList titles;
    for (int i = 0; node && i < node->FormatPresetCount(); ++i)
        titles.append(QString::fromStdString(node->FormatPresetAt(i)->Title()));
    return titles;
}

} // namespace

TEST_F(LMFmtNodeViewCtrlTest, LoadingATreeWithoutChildrenLeavesBothListsEmpty) {
    ctrl->loadFormatNode(ILMFormatNode::MallocFormatNode("Empty", "", 10));
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    EXPECT_EQ(nodes()->numberOfItems(), 0);
    EXPECT_EQ(nodes()->model()->rowCount(), 0);
    EXPECT_TRUE(nodes()->selectionIndexPaths().isEmpty());
    EXPECT_EQ(formats()->numberOfItems(), 0);
    EXPECT_EQ(formats()->model()->rowCount(), 0);
    // Not a search: no hint.
    EXPECT_TRUE(formats()->emptyText().isEmpty());
}

TEST_F(LMFmtNodeViewCtrlTest, AnEmptySearchTextSelectsTheRootsFirstChildAgain) {
    ctrl->loadFormatNode(MakeCategory());
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    ClickRow(nodes(), 2);
    ASSERT_EQ(nodes()->selectionIndexPaths(), QList<int>{2});
    ASSERT_EQ(Titles(formats()), QStringList{QStringLiteral("MKV Archive")});

    ctrl->searchFormatNode(QString());

    EXPECT_EQ(nodes()->selectionIndexPaths(), QList<int>{0});
    EXPECT_EQ(Titles(nodes()),
              (QStringList{QStringLiteral("MP4"), QStringLiteral("MOV"), QStringLiteral("MKV")}));
    EXPECT_EQ(Titles(formats()),
              (QStringList{QStringLiteral("MP4 HD 1080p"), QStringLiteral("MP4 HD 720p"),
                           QStringLiteral("MP4 Phone")}));
}

TEST_F(LMFmtNodeViewCtrlTest, ANonEmptySearchSelectsTheFirstResultNodeAndShowsItsMatches) {
    ctrl->loadFormatNode(MakeCategory());
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    ClickRow(nodes(), 2);
    ClickRow(formats(), 0);
    ASSERT_EQ(formats()->selectionIndexPaths(), QList<int>{0});

    ctrl->searchFormatNode(QStringLiteral("720p"));

    EXPECT_EQ(Titles(nodes()), (QStringList{QStringLiteral("MP4"), QStringLiteral("MOV")}));
    EXPECT_EQ(nodes()->selectionIndexPaths(), QList<int>{0});
    EXPECT_EQ(Titles(formats()), QStringList{QStringLiteral("MP4 HD 720p")});
    EXPECT_TRUE(formats()->selectionIndexPaths().isEmpty());
    // Cells are made when the reloaded list lays its rows out.
    QCoreApplication::processEvents();
    ASSERT_NE(formats()->itemAtIndex(0), nullptr);
    EXPECT_FALSE(formats()->itemAtIndex(0)->isSelected());

    // The second result node holds only its matching preset too.
    ClickRow(nodes(), 1);
    EXPECT_EQ(Titles(formats()), QStringList{QStringLiteral("MOV HD 720p")});
}

TEST_F(LMFmtNodeViewCtrlTest, ASearchThatMatchesNothingEmptiesTheListsAndEndingItRestoresTheTree) {
    ctrl->loadFormatNode(MakeCategory());
    ASSERT_TRUE(ShowAndWait(ctrl.get()));

    ctrl->searchFormatNode(QStringLiteral("no such preset"));

    EXPECT_EQ(nodes()->numberOfItems(), 0);
    EXPECT_TRUE(nodes()->selectionIndexPaths().isEmpty());
    EXPECT_EQ(formats()->numberOfItems(), 0);
    EXPECT_EQ(formats()->emptyText(), QStringLiteral("No matching presets"));
    // Choosing nothing: a click on the empty list sends nothing.
    QTest::mouseClick(formats()->viewport(), Qt::LeftButton);
    EXPECT_TRUE(delegate.selections.empty());

    // Without a search result the unfiltered tree is back, its first child selected.
    ctrl->searchFormatNode(QString());
    EXPECT_EQ(nodes()->numberOfItems(), 3);
    EXPECT_EQ(nodes()->selectionIndexPaths(), QList<int>{0});
    EXPECT_EQ(formats()->numberOfItems(), 3);
    EXPECT_TRUE(formats()->emptyText().isEmpty());
}

TEST_F(LMFmtNodeViewCtrlTest, RemovingTheLastPresetOfACustomNodeWhileSearchingDropsTheNode) {
    LoadCustomTab();
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    ctrl->searchFormatNode(QStringLiteral("720p"));
    ASSERT_EQ(Titles(nodes()), (QStringList{QStringLiteral("MP4"), QStringLiteral("MOV")}));
    ClickRow(nodes(), 1);
    ASSERT_EQ(Titles(formats()), QStringList{QStringLiteral("MOV HD 720p")});
    QSignalSpy nodeResets(nodes()->model(), &QAbstractItemModel::modelReset);
    QSignalSpy formatResets(formats()->model(), &QAbstractItemModel::modelReset);

    HoverRow(formats(), 0);
    const QPoint remove = ButtonCenter(formats(), 0, LMFormatDataView::ActionButton::Remove);
    ASSERT_FALSE(remove.isNull());
    QTest::mouseClick(formats()->viewport(), Qt::LeftButton, Qt::NoModifier, remove);

    // The search result lost the node; its first remaining child is selected.
    EXPECT_EQ(Titles(nodes()), QStringList{QStringLiteral("MP4")});
    EXPECT_EQ(nodes()->selectionIndexPaths(), QList<int>{0});
    EXPECT_EQ(Titles(formats()), QStringList{QStringLiteral("MP4 HD 720p")});
    EXPECT_EQ(nodeResets.count(), 1);
    EXPECT_GE(formatResets.count(), 1);
    // The stored custom list lost the preset and, with it, the group MOV kept
    // its other preset.
    EXPECT_EQ(PresetTitles(ILMFmtPresetDataSource::Shared()->GetCustomList()->FindChild("MOV")),
              QStringList{QStringLiteral("MOV ProRes")});
    EXPECT_TRUE(delegate.selections.empty());
}

TEST_F(LMFmtNodeViewCtrlTest, RemovingTheLastPresetOfAGroupDropsItFromTheStoredList) {
    LoadCustomTab();
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    ClickRow(nodes(), 2);
    ASSERT_EQ(Titles(formats()), QStringList{QStringLiteral("MKV Archive")});
    HoverRow(formats(), 0);
    QTest::mouseClick(formats()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      ButtonCenter(formats(), 0, LMFormatDataView::ActionButton::Remove));

    EXPECT_EQ(CustomGroupTitles(), (QStringList{QStringLiteral("MP4"), QStringLiteral("MOV")}));
    EXPECT_EQ(Titles(nodes()), (QStringList{QStringLiteral("MP4"), QStringLiteral("MOV")}));
    EXPECT_EQ(nodes()->selectionIndexPaths(), QList<int>{0});
    EXPECT_EQ(formats()->numberOfItems(), 3);
    // The removal was saved: a fresh read of the settings has no MKV group.
    const auto stored = ILMFmtPresetDataSource::Shared()->GetCustomList();
    EXPECT_EQ(stored->FindChild("MKV"), nullptr);
}

TEST_F(LMFmtNodeViewCtrlTest, RemovingOneOfSeveralPresetsDeletesOnlyThatCell) {
    LoadCustomTab();
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    ASSERT_EQ(nodes()->selectionIndexPaths(), QList<int>{0});
    QSignalSpy nodeResets(nodes()->model(), &QAbstractItemModel::modelReset);
    QSignalSpy formatResets(formats()->model(), &QAbstractItemModel::modelReset);
    QSignalSpy formatRemovals(formats()->model(), &QAbstractItemModel::rowsRemoved);
    LMFormatDataViewItem* last = formats()->itemAtIndex(2);
    ASSERT_NE(last, nullptr);

    HoverRow(formats(), 1);
    QTest::mouseClick(formats()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      ButtonCenter(formats(), 1, LMFormatDataView::ActionButton::Remove));

    EXPECT_EQ(Titles(formats()),
              (QStringList{QStringLiteral("MP4 HD 1080p"), QStringLiteral("MP4 Phone")}));
    EXPECT_EQ(formatRemovals.count(), 1);
    EXPECT_EQ(formatRemovals.first().at(1).toInt(), 1);
    EXPECT_EQ(formatResets.count(), 0);
    EXPECT_EQ(nodeResets.count(), 0);
    EXPECT_EQ(nodes()->selectionIndexPaths(), QList<int>{0});
    // The cell after the removed one moved up with its entry.
    EXPECT_EQ(formats()->itemAtIndex(1), last);
    EXPECT_EQ(formats()->indexPathForItem(last), 1);
    EXPECT_EQ(PresetTitles(ILMFmtPresetDataSource::Shared()->GetCustomList()->FindChild("MP4")),
              (QStringList{QStringLiteral("MP4 HD 1080p"), QStringLiteral("MP4 Phone")}));
    // The cell now under the pointer shows its remove button at once.
    EXPECT_TRUE(last->showRemoving());
}

TEST_F(LMFmtNodeViewCtrlTest, SelectingANodeClearsTheFormatSelectionAndAFormatIsReported) {
    const auto category = MakeCategory();
    ctrl->loadFormatNode(category);
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    ClickRow(formats(), 1);
    ASSERT_EQ(delegate.selections.size(), 1u);
    EXPECT_EQ(delegate.selections[0].ctrl, ctrl.get());
    EXPECT_EQ(delegate.selections[0].preset, category->ChildAt(0)->FormatPresetAt(1));
    EXPECT_EQ(delegate.selections[0].node, category->ChildAt(0));
    // The list keeps the chosen cell selected.
    EXPECT_EQ(formats()->selectionIndexPaths(), QList<int>{1});
    EXPECT_TRUE(formats()->itemAtIndex(1)->isSelected());

    ClickRow(nodes(), 1);
    EXPECT_EQ(nodes()->selectionIndexPaths(), QList<int>{1});
    EXPECT_TRUE(formats()->selectionIndexPaths().isEmpty());
    EXPECT_EQ(Titles(formats()),
              (QStringList{QStringLiteral("MOV ProRes"), QStringLiteral("MOV HD 720p")}));
    // A node is not a choice.
    EXPECT_EQ(delegate.selections.size(), 1u);
}

TEST_F(LMFmtNodeViewCtrlTest, FormatCellsOfACategoryAreEditableAndNodeCellsNeither) {
    ctrl->loadFormatNode(MakeCategory());
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    for (int row = 0; row < formats()->numberOfItems(); ++row) {
        const LMFormatDataViewItem* item = formats()->itemAtIndex(row);
        ASSERT_NE(item, nullptr);
        EXPECT_TRUE(item->editable());
        EXPECT_FALSE(item->removable());
    }
    for (int row = 0; row < nodes()->numberOfItems(); ++row) {
        const LMFormatDataViewItem* item = nodes()->itemAtIndex(row);
        ASSERT_NE(item, nullptr);
        EXPECT_FALSE(item->editable());
        EXPECT_FALSE(item->removable());
        EXPECT_EQ(item->delegate(), nullptr);
        EXPECT_FALSE(item->visibleDescription());
    }

    // In the custom tab the format cells remove instead.
    LMFmtNodeViewCtrl custom;
    custom.setRemovable(true);
    custom.loadFormatNode(FillCustomList());
    ASSERT_TRUE(ShowAndWait(&custom));
    for (int row = 0; row < custom.fmtListView()->numberOfItems(); ++row) {
        const LMFormatDataViewItem* item = custom.fmtListView()->itemAtIndex(row);
        ASSERT_NE(item, nullptr);
        EXPECT_FALSE(item->editable());
        EXPECT_TRUE(item->removable());
    }
    for (int row = 0; row < custom.nodeListView()->numberOfItems(); ++row) {
        EXPECT_FALSE(custom.nodeListView()->itemAtIndex(row)->editable());
        EXPECT_FALSE(custom.nodeListView()->itemAtIndex(row)->removable());
    }
}

TEST_F(LMFmtNodeViewCtrlTest, TheEditButtonAsksToEditThatVeryPresetOfTheTree) {
    const auto category = MakeCategory();
    ctrl->loadFormatNode(category);
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    HoverRow(formats(), 2);
    const QPoint edit = ButtonCenter(formats(), 2, LMFormatDataView::ActionButton::Edit);
    ASSERT_FALSE(edit.isNull());
    EXPECT_TRUE(ButtonCenter(formats(), 2, LMFormatDataView::ActionButton::Remove).isNull());

    QTest::mouseClick(formats()->viewport(), Qt::LeftButton, Qt::NoModifier, edit);

    ASSERT_EQ(delegate.edits.size(), 1u);
    EXPECT_EQ(delegate.edits[0].ctrl, ctrl.get());
    EXPECT_EQ(delegate.edits[0].preset, category->ChildAt(0)->FormatPresetAt(2));
    EXPECT_EQ(delegate.edits[0].node, category->ChildAt(0));
    // A button click is no choice and selects nothing.
    EXPECT_TRUE(delegate.selections.empty());
    EXPECT_TRUE(formats()->selectionIndexPaths().isEmpty());
}

TEST_F(LMFmtNodeViewCtrlTest, ArrowKeysSelectNodesButOnlyMoveThroughFormatsUntilEnter) {
    const auto category = MakeCategory();
    ctrl->loadFormatNode(category);
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    nodes()->setFocus();
    QTest::keyClick(nodes(), Qt::Key_Down);
    EXPECT_EQ(nodes()->selectionIndexPaths(), QList<int>{1});
    EXPECT_EQ(Titles(formats()),
              (QStringList{QStringLiteral("MOV ProRes"), QStringLiteral("MOV HD 720p")}));

    // Right moves to the presets; arrows there choose nothing.
    QTest::keyClick(nodes(), Qt::Key_Right);
    EXPECT_TRUE(formats()->hasFocus());
    QTest::keyClick(formats(), Qt::Key_Down);
    EXPECT_EQ(formats()->currentIndex().row(), 1);
    EXPECT_TRUE(formats()->selectionIndexPaths().isEmpty());
    EXPECT_TRUE(delegate.selections.empty());

    QTest::keyClick(formats(), Qt::Key_Return);
    ASSERT_EQ(delegate.selections.size(), 1u);
    EXPECT_EQ(delegate.selections[0].preset, category->ChildAt(1)->FormatPresetAt(1));
    EXPECT_EQ(delegate.selections[0].node, category->ChildAt(1));
}

TEST_F(LMFmtNodeViewCtrlTest, DeleteRemovesTheCurrentCustomPresetAndTypedTextIsOffered) {
    LoadCustomTab();
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    QSignalSpy typed(ctrl.get(), &LMFmtNodeViewCtrl::textTyped);
    formats()->setFocus();
    QTest::keyClick(formats(), Qt::Key_Down);
    const int current = formats()->currentIndex().row();
    ASSERT_GE(current, 0);
    const QString removed = Titles(formats()).at(current);
    QTest::keyClick(formats(), Qt::Key_Delete);
    EXPECT_EQ(formats()->numberOfItems(), 2);
    EXPECT_FALSE(Titles(formats()).contains(removed));
    EXPECT_FALSE(PresetTitles(ILMFmtPresetDataSource::Shared()->GetCustomList()->FindChild("MP4"))
                     .contains(removed));
    EXPECT_TRUE(delegate.selections.empty());

    QTest::keyClicks(formats(), QStringLiteral("hd"));
    QTest::keyClicks(nodes(), QStringLiteral("x"));
    ASSERT_EQ(typed.count(), 3);
    EXPECT_EQ(typed.at(0).at(0).toString(), QStringLiteral("h"));
    EXPECT_EQ(typed.at(2).at(0).toString(), QStringLiteral("x"));

    // Escape is left to the window.
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(formats(), &escape);
    EXPECT_FALSE(escape.isAccepted());

    // In a category tab Delete removes nothing.
    LMFmtNodeViewCtrl category;
    category.loadFormatNode(MakeCategory());
    ASSERT_TRUE(ShowAndWait(&category));
    category.fmtListView()->setFocus();
    QTest::keyClick(category.fmtListView(), Qt::Key_Down);
    QTest::keyClick(category.fmtListView(), Qt::Key_Delete);
    EXPECT_EQ(category.fmtListView()->numberOfItems(), 3);
}

TEST_F(LMFmtNodeViewCtrlTest, ShowingTheTabDeselectsTheFormatList) {
    ctrl->loadFormatNode(MakeCategory());
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    ClickRow(formats(), 0);
    ASSERT_EQ(formats()->selectionIndexPaths(), QList<int>{0});
    ctrl->hide();
    ctrl->show();
    EXPECT_TRUE(formats()->selectionIndexPaths().isEmpty());
    EXPECT_EQ(nodes()->selectionIndexPaths(), QList<int>{0});
}

TEST_F(LMFmtNodeViewCtrlTest, AListOfTenThousandPresetsMakesCellsOnlyForVisibleRows) {
    std::vector<std::string> titles;
    for (int i = 0; i < 10000; ++i)
        titles.push_back("Preset " + std::to_string(i));
    auto root = ILMFormatNode::MallocFormatNode("Generated", "", 10);
    root->AddChild(MakeFormat("MP4", titles));

    QElapsedTimer timer;
    timer.start();
    ctrl->loadFormatNode(root);
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    std::cout << "10000 presets: loaded and shown in " << timer.elapsed() << " ms\n";

    const auto visibleRows = [this] {
        int rows = 0;
        for (int row = 0; row < formats()->numberOfItems(); ++row)
            rows += formats()
                            ->visualRect(formats()->model()->index(row, 0))
                            .intersects(formats()->viewport()->rect())
                        ? 1
                        : 0;
        return rows;
    };
    ASSERT_EQ(formats()->numberOfItems(), 10000);
    EXPECT_EQ(LiveItemCount(formats()), visibleRows());
    EXPECT_LE(visibleRows(), 10);

    timer.restart();
    QScrollBar* bar = formats()->verticalScrollBar();
    for (int step = 0; step < 100; ++step) {
        bar->setValue(bar->maximum() * step / 100);
        QCoreApplication::processEvents();
    }
    bar->setValue(bar->maximum());
    QCoreApplication::processEvents();
    std::cout << "10000 presets: 101 scroll steps in " << timer.elapsed() << " ms\n";

    EXPECT_EQ(LiveItemCount(formats()), visibleRows());
    EXPECT_NE(formats()->itemAtIndex(9999), nullptr);
    EXPECT_EQ(formats()->itemAtIndex(0), nullptr);
    EXPECT_EQ(formats()->itemAtIndex(9999)->fmtTitle(), QStringLiteral("Preset 9999"));
    // Cells are reused, not made per row.
    EXPECT_LE(formats()->findChildren<LMFormatDataViewItem*>().size(), visibleRows() + 4);
    // Rows without a cell still answer for themselves.
    EXPECT_EQ(formats()->model()->index(5000, 0).data().toString(), QStringLiteral("Preset 5000"));
    EXPECT_EQ(formats()->itemAtIndex(5000), nullptr);
}

TEST_F(LMFmtNodeViewCtrlTest, F2CtrlEAndTheMenuKeyAskToEditTheCurrentPresetOfACategory) {
    const auto category = MakeCategory();
    ctrl->loadFormatNode(category);
    ASSERT_TRUE(ShowActive(ctrl.get()));
    ClickRow(nodes(), 0);
    QTest::keyClick(nodes(), Qt::Key_Right);
    QTest::keyClick(formats(), Qt::Key_Down);
    ASSERT_EQ(formats()->currentIndex().row(), 1);

    QTest::keyClick(formats(), Qt::Key_F2);
    QTest::keyClick(formats(), Qt::Key_E, Qt::ControlModifier);
    QTest::keyClick(formats(), Qt::Key_Menu);
    ASSERT_EQ(delegate.edits.size(), 3u);
    for (const auto& edit : delegate.edits) {
        EXPECT_EQ(edit.preset, category->ChildAt(0)->FormatPresetAt(1));
        EXPECT_EQ(edit.node, category->ChildAt(0));
    }
    EXPECT_TRUE(delegate.selections.empty());
    // Ctrl+E without Ctrl is typing.
    QSignalSpy typed(ctrl.get(), &LMFmtNodeViewCtrl::textTyped);
    QTest::keyClick(formats(), Qt::Key_E);
    EXPECT_EQ(delegate.edits.size(), 3u);
    EXPECT_EQ(typed.count(), 1);
}

TEST_F(LMFmtNodeViewCtrlTest, TheEditKeysAskNothingWhereEditingIsNotAllowed) {
    LoadCustomTab();
    ASSERT_TRUE(ShowActive(ctrl.get()));
    ClickRow(nodes(), 0);
    for (LMFormatCollectionView* list : {nodes(), formats()}) {
        if (list == formats())
            QTest::keyClick(nodes(), Qt::Key_Right);
        ASSERT_TRUE(list->currentIndex().isValid());
        QTest::keyClick(list, Qt::Key_F2);
        QTest::keyClick(list, Qt::Key_E, Qt::ControlModifier);
        QTest::keyClick(list, Qt::Key_Menu);
    }
    EXPECT_TRUE(delegate.edits.empty());
}

TEST_F(LMFmtNodeViewCtrlTest, RemovingTheCurrentPresetByKeyLeavesTheFocusOnTheRowAfterIt) {
    LoadCustomTab();
    ASSERT_TRUE(ShowActive(ctrl.get()));
    ClickRow(nodes(), 0);
    QTest::keyClick(nodes(), Qt::Key_Right);
    ASSERT_TRUE(formats()->hasFocus());
    ASSERT_EQ(formats()->numberOfItems(), 3);
    const QString third = Titles(formats()).at(2);

    // The middle row goes: the row after it, not the one before, is current.
    QTest::keyClick(formats(), Qt::Key_Down);
    QTest::keyClick(formats(), Qt::Key_Delete);
    EXPECT_TRUE(formats()->hasFocus());
    EXPECT_EQ(formats()->currentIndex().row(), 1);
    EXPECT_EQ(formats()->currentIndex().data().toString(), third);

    // The last row gone, the new last row is current.
    QTest::keyClick(formats(), Qt::Key_End);
    QTest::keyClick(formats(), Qt::Key_Delete);
    ASSERT_EQ(formats()->numberOfItems(), 1);
    EXPECT_TRUE(formats()->hasFocus());
    EXPECT_EQ(formats()->currentIndex().row(), 0);
}

TEST_F(LMFmtNodeViewCtrlTest, RemovingTheLastPresetOfTheListReleasesTheFocus) {
    auto source = ILMFmtPresetDataSource::Shared();
    auto format = MakeFormat("MP4", {"MP4 Only"});
    source->AddCustomPreset(format->FormatPresetAt(0), format);
    source->SaveCustomList();
    ctrl->setRemovable(true);
    ctrl->loadFormatNode(source->GetCustomList());
    ASSERT_TRUE(ShowActive(ctrl.get()));
    QSignalSpy released(formats(), &LMFormatCollectionView::focusReleased);
    ClickRow(nodes(), 0);
    QTest::keyClick(nodes(), Qt::Key_Right);
    ASSERT_TRUE(formats()->hasFocus());

    QTest::keyClick(formats(), Qt::Key_Delete);
    EXPECT_EQ(formats()->numberOfItems(), 0);
    EXPECT_EQ(released.count(), 1);
}

// The node list's current row is always selected; the ring still shows where
// the keys act, in the palette's highlight, on light and dark bases alike.
TEST_F(LMFmtNodeViewCtrlTest, TheFocusedListsCurrentRowShowsAFocusRingEvenWhenSelected) {
    ctrl->loadFormatNode(MakeCategory());
    ASSERT_TRUE(ShowActive(ctrl.get()));
    ClickRow(nodes(), 1);
    ASSERT_TRUE(nodes()->hasFocus());
    ASSERT_EQ(nodes()->selectionIndexPaths(), QList<int>{1});
    const QRect row = nodes()->visualRect(nodes()->model()->index(1, 0));
    const QPoint onRing(row.left() + 4, row.center().y());
    const QColor ring(200, 30, 40);

    for (const QColor& base : {QColor(255, 255, 255), QColor(30, 30, 30)}) {
        QPalette palette = ctrl->palette();
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::Highlight, ring);
        ctrl->setPalette(palette);
        EXPECT_EQ(nodes()->viewport()->grab().toImage().pixelColor(onRing), ring)
            << base.name().toStdString();
    }
    // Elsewhere the focus, no ring.
    QTest::keyClick(nodes(), Qt::Key_Right);
    ASSERT_TRUE(formats()->hasFocus());
    EXPECT_NE(nodes()->viewport()->grab().toImage().pixelColor(onRing), ring);
}

TEST_F(LMFmtNodeViewCtrlTest, AnEmptyCustomTabSaysHowPresetsGetThere) {
    ctrl->setRemovable(true);
    ctrl->loadFormatNode(ILMFmtPresetDataSource::Shared()->GetCustomList());
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    EXPECT_EQ(formats()->numberOfItems(), 0);
    EXPECT_EQ(formats()->emptyText(),
              QStringLiteral("Presets you save with “Save as New Preset” appear here."));
    LMFormatInternationalizationMgr::sharedObject()->setLanguage(LMFormatLanguageFrench);
    ctrl->loadFormatNode(ILMFmtPresetDataSource::Shared()->GetCustomList());
    EXPECT_EQ(formats()->emptyText(),
              QStringLiteral("Les préréglages enregistrés avec « Enregistrer comme nouveau "
                             "préréglage » apparaissent ici."));
}
