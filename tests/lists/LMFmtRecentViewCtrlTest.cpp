// SPDX-License-Identifier: MIT
#include "LMFmtRecentViewCtrl.h"

#include "ILMFmtPresetDataSource.h"
#include "LMFormatCollectionView.h"
#include "LMFormatDataViewItem.h"
#include "LMFormatInternationalizationMgr.h"
#include "LMListsTestSupport.h"
#include "LMUiTestSupport.h"

#include <QSignalSpy>
#include <QTest>

using namespace Lumeran;
using namespace Lumeran::TestSupport;

namespace {

class LMFmtRecentViewCtrlTest : public UiTest {
protected:
    void SetUp() override {
        UiTest::SetUp();
        ctrl.reset(LMFmtRecentViewCtrl::fmtRecentViewCtrl());
        ctrl->setDelegate(&delegate);
    }
    void TearDown() override {
        ctrl.reset();
        UiTest::TearDown();
    }

    LMFormatCollectionView* list() const { return ctrl->recentListView(); }

    // Chooses presets of MakeCategory() in this order; the last one is newest.
    void Choose(const std::vector<std::pair<int, int>>& nodeAndPreset) {
        auto source = ILMFmtPresetDataSource::Shared();
        for (const auto& [node, preset] : nodeAndPreset)
            source->PushRecentItem(category->ChildAt(node)->FormatPresetAt(preset),
                                   category->ChildAt(node));
        source->SaveRecentList();
    }

    std::shared_ptr<ILMFormatNode> category = MakeCategory();
    RecordingDataDelegate delegate;
    std::unique_ptr<LMFmtRecentViewCtrl> ctrl;
};

QStringList StoredTitles() {
    QStringList titles;
    for (const auto& entry : ILMFmtPresetDataSource::Shared()->GetRecentList())
        titles.append(QString::fromStdString(entry->Title()));
    return titles;
}

} // namespace

TEST_F(LMFmtRecentViewCtrlTest, WithNoRecentEntriesTheListIsEmptyAndASearchFindsNothing) {
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    EXPECT_EQ(list()->numberOfItems(), 0);
    // An empty Recent tab says what it is for.
    EXPECT_EQ(list()->emptyText(), QStringLiteral("The presets you choose appear here."));

    ctrl->searchRecentList(QStringLiteral("MP4"));

    EXPECT_EQ(list()->numberOfItems(), 0);
    EXPECT_EQ(list()->model()->rowCount(), 0);
    EXPECT_EQ(list()->emptyText(), QStringLiteral("No matching presets"));
}

TEST_F(LMFmtRecentViewCtrlTest, ClearingTheSearchShowsTheCurrentRecentListFetchedAnew) {
    Choose({{2, 0}, {1, 0}, {0, 1}});
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    ASSERT_EQ(Titles(list()),
              (QStringList{QStringLiteral("MP4 HD 720p"), QStringLiteral("MOV ProRes"),
                           QStringLiteral("MKV Archive")}));

    ctrl->searchRecentList(QStringLiteral("mov"));
    EXPECT_EQ(Titles(list()), QStringList{QStringLiteral("MOV ProRes")});

    // The stored list changes while the search is on.
    Choose({{0, 2}});
    ctrl->searchRecentList(QString());

    EXPECT_EQ(Titles(list()),
              (QStringList{QStringLiteral("MP4 Phone"), QStringLiteral("MP4 HD 720p"),
                           QStringLiteral("MOV ProRes"), QStringLiteral("MKV Archive")}));
    EXPECT_TRUE(list()->emptyText().isEmpty());
}

TEST_F(LMFmtRecentViewCtrlTest, AnEmptyRecentTabSaysWhatItIsForInTheLanguageSet) {
    LMFormatInternationalizationMgr::sharedObject()->setLanguage(LMFormatLanguageGerman);
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    EXPECT_EQ(list()->emptyText(),
              QStringLiteral("Hier erscheinen die Voreinstellungen, die Sie wählen."));
    Choose({{0, 0}});
    ctrl->loadRecentList();
    EXPECT_TRUE(list()->emptyText().isEmpty());
}

TEST_F(LMFmtRecentViewCtrlTest, RemovingAnEntryWhileFilteredRemovesItFromBothLists) {
    Choose({{0, 0}, {0, 1}, {1, 1}, {2, 0}});
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    ctrl->searchRecentList(QStringLiteral("720p"));
    ASSERT_EQ(Titles(list()),
              (QStringList{QStringLiteral("MOV HD 720p"), QStringLiteral("MP4 HD 720p")}));
    QSignalSpy resets(list()->model(), &QAbstractItemModel::modelReset);

    HoverRow(list(), 0);
    const QPoint remove = ButtonCenter(list(), 0, LMFormatDataView::ActionButton::Remove);
    ASSERT_FALSE(remove.isNull());
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, Qt::NoModifier, remove);

    EXPECT_EQ(Titles(list()), QStringList{QStringLiteral("MP4 HD 720p")});
    EXPECT_EQ(resets.count(), 0);
    EXPECT_EQ(StoredTitles(),
              (QStringList{QStringLiteral("MKV Archive"), QStringLiteral("MP4 HD 720p"),
                           QStringLiteral("MP4 HD 1080p")}));
    EXPECT_TRUE(delegate.selections.empty());

    ctrl->searchRecentList(QString());
    EXPECT_EQ(Titles(list()), StoredTitles());
    EXPECT_FALSE(Titles(list()).contains(QStringLiteral("MOV HD 720p")));
}

TEST_F(LMFmtRecentViewCtrlTest, EveryRecentCellShowsARemoveButtonOnHoverAndNeverAnEditButton) {
    Choose({{0, 0}, {1, 0}, {2, 0}});
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    for (int row = 0; row < list()->numberOfItems(); ++row) {
        LMFormatDataViewItem* item = list()->itemAtIndex(row);
        ASSERT_NE(item, nullptr);
        EXPECT_TRUE(item->removable());
        EXPECT_FALSE(item->editable());
        EXPECT_FALSE(item->showRemoving());

        HoverRow(list(), row);
        EXPECT_TRUE(item->showRemoving());
        EXPECT_TRUE(item->dataView()->isRemoveVisible());
        EXPECT_FALSE(item->showEditing());
        EXPECT_FALSE(item->dataView()->isEditVisible());
        EXPECT_TRUE(ButtonCenter(list(), row, LMFormatDataView::ActionButton::Edit).isNull());
    }
}

TEST_F(LMFmtRecentViewCtrlTest, SelectingARecentCellPassesTheEntrysOwnNode) {
    Choose({{1, 1}, {0, 0}});
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    const auto entries = ILMFmtPresetDataSource::Shared()->GetRecentList();

    ClickRow(list(), 1);

    ASSERT_EQ(delegate.selections.size(), 1u);
    EXPECT_EQ(delegate.selections[0].ctrl, ctrl.get());
    EXPECT_EQ(delegate.selections[0].preset, entries[1]->FormatPreset());
    EXPECT_EQ(delegate.selections[0].node, entries[1]->FormatNode());
    // The entry's node is the recent list's own, not the category's.
    EXPECT_NE(delegate.selections[0].node, category->ChildAt(1));
    EXPECT_EQ(delegate.selections[0].node->Title(), "MOV");
    EXPECT_EQ(delegate.selections[0].preset->Title(), "MOV HD 720p");
}

TEST_F(LMFmtRecentViewCtrlTest, ShowingTheTabReloadsTheListWithNothingSelected) {
    Choose({{0, 0}});
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    ClickRow(list(), 0);
    ASSERT_EQ(list()->selectionIndexPaths(), QList<int>{0});
    ctrl->hide();
    Choose({{2, 0}});

    ctrl->show();

    EXPECT_TRUE(list()->selectionIndexPaths().isEmpty());
    EXPECT_EQ(Titles(list()),
              (QStringList{QStringLiteral("MKV Archive"), QStringLiteral("MP4 HD 1080p")}));
}

TEST_F(LMFmtRecentViewCtrlTest, KeysChooseRemoveAndOfferTextButLeaveEscape) {
    Choose({{0, 0}, {1, 0}, {2, 0}});
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    QSignalSpy typed(ctrl.get(), &LMFmtRecentViewCtrl::textTyped);
    list()->setFocus();
    QTest::keyClick(list(), Qt::Key_Down);
    const int current = list()->currentIndex().row();
    ASSERT_GE(current, 0);
    EXPECT_TRUE(delegate.selections.empty());

    const QString removed = Titles(list()).at(current);
    QTest::keyClick(list(), Qt::Key_Delete);
    EXPECT_EQ(list()->numberOfItems(), 2);
    EXPECT_FALSE(StoredTitles().contains(removed));

    QTest::keyClick(list(), Qt::Key_Home);
    QTest::keyClick(list(), Qt::Key_Enter);
    ASSERT_EQ(delegate.selections.size(), 1u);
    EXPECT_EQ(QString::fromStdString(delegate.selections[0].preset->Title()), Titles(list()).at(0));

    QTest::keyClicks(list(), QStringLiteral("mov"));
    ASSERT_EQ(typed.count(), 3);
    EXPECT_EQ(typed.at(1).at(0).toString(), QStringLiteral("o"));
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(list(), &escape);
    EXPECT_FALSE(escape.isAccepted());
}
