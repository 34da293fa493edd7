// SPDX-License-Identifier: MIT
#include "ILMMediaFormatPopup.h"

#include "ILMFmtPresetDataSource.h"
#include "LMDefaultCatalogue.h"
#include "LMFmtNodeViewCtrl.h"
#include "LMFormatCollectionView.h"
#include "LMFormatSelectionWndCtrl.h"
#include "LMFormatSelectionWndCtrl_p.h"
#include "LMPresetManagerWndCtrl.h"
#include "LMTabHeaderView.h"
#include "LMUiTestSupport.h"

#include <QApplication>
#include <QTest>
#include <QTreeWidget>

#include <gtest/gtest.h>

using namespace Lumeran;
using Lumeran::TestSupport::UiTest;

namespace {

// The insides of the popup the facade shows.
LMFormatSelectionWndCtrlPrivate* Window() {
    return LMFormatSelectionWndCtrlPrivate::get(LMFormatSelectionWndCtrl::shared());
}

class ILMMediaFormatPopupTest : public UiTest {};

// Loads the default catalogue through the facade and lets the queued building of
// the tabs run, as a host's event loop would.
void SetupThroughFacade() {
    auto popup = ILMMediaFormatPopup::Shared();
    popup->SetupExternalFormatData(LMDefaultCatalogue::Path());
    popup->WaitForFormatDataLoadingComplete();
    QTRY_VERIFY(Window()->tabHeaderView()->countOfTab() > 2);
}

} // namespace

TEST_F(ILMMediaFormatPopupTest, SharedReturnsTheSameFacadeEveryTime) {
    EXPECT_EQ(ILMMediaFormatPopup::Shared(), ILMMediaFormatPopup::Shared());
    EXPECT_NE(ILMMediaFormatPopup::Shared(), nullptr);
}

TEST_F(ILMMediaFormatPopupTest, WaitingBeforeSetupReturnsAtOnce) {
    // Nothing to wait for: the call returns (a wait on nothing would never end,
    // and the test with it), twice as well as once.
    ILMMediaFormatPopup::Shared()->WaitForFormatDataLoadingComplete();
    ILMMediaFormatPopup::Shared()->WaitForFormatDataLoadingComplete();
    SUCCEED();
}

TEST_F(ILMMediaFormatPopupTest, SetupBuildsTheTabsOnTheGuiThread) {
    SetupThroughFacade();
    auto* ctrl = LMFormatSelectionWndCtrl::shared();
    EXPECT_EQ(Window()->tabHeaderView()->countOfTab(),
              std::size_t(Window()->defFmtViewCtrls().size()) + 2);
    EXPECT_EQ(ctrl->thread(), QThread::currentThread());
}

TEST_F(ILMMediaFormatPopupTest, PopupSelectionWithAPointGivesTheWindowAOnePointRectangle) {
    auto popup = ILMMediaFormatPopup::Shared();
    popup->PopupSelection(std::pair<float, float>{500.0f, 200.0f}, {});
    auto* ctrl = LMFormatSelectionWndCtrl::shared();
    EXPECT_TRUE(ctrl->isVisible());
    EXPECT_EQ(ctrl->geometry(), ctrl->frameFromRect(QRectF(500.0, 200.0, 1.0, 1.0)));
    ctrl->windowDidResignKey();
}

TEST_F(ILMMediaFormatPopupTest, PopupSelectionWithARectanglePlacesTheWindowUnderIt) {
    auto popup = ILMMediaFormatPopup::Shared();
    popup->PopupSelection(ILMMediaFormatPopup::Rect{300.0f, 40.0f, 200.0f, 30.0f}, {});
    auto* ctrl = LMFormatSelectionWndCtrl::shared();
    EXPECT_EQ(ctrl->geometry(), ctrl->frameFromRect(QRectF(300.0, 40.0, 200.0, 30.0)));
    ctrl->windowDidResignKey();
}

TEST_F(ILMMediaFormatPopupTest, AnEmptyCompletionStillOpensThePopupAndAChoiceCallsNothing) {
    SetupThroughFacade();
    ILMMediaFormatPopup::Shared()->PopupSelection(ILMMediaFormatPopup::Rect{100, 100, 50, 20},
                                                  ILMMediaFormatPopup::Completion{});
    auto* ctrl = LMFormatSelectionWndCtrl::shared();
    ASSERT_TRUE(ctrl->isVisible());
    QAbstractItemView* list = Window()->defFmtViewCtrls().first()->fmtListView();
    const QRect row = list->visualRect(list->model()->index(0, 0));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row.center() - QPoint(40, 0));
    EXPECT_FALSE(ctrl->isVisible());
    // The choice is still recorded.
    EXPECT_EQ(ILMFmtPresetDataSource::Shared()->GetRecentList().size(), 1u);
}

TEST_F(ILMMediaFormatPopupTest, TheCompletionReceivesTheChosenPresetAndNodeOnce) {
    SetupThroughFacade();
    int calls = 0;
    std::shared_ptr<const ILMFormatPreset> chosen;
    std::shared_ptr<const ILMFormatNode> node;
    ILMMediaFormatPopup::Shared()->PopupSelection(ILMMediaFormatPopup::Rect{100, 100, 50, 20},
                                                  [&](auto preset, auto owner) {
                                                      ++calls;
                                                      chosen = preset;
                                                      node = owner;
                                                  });
    QAbstractItemView* list = Window()->defFmtViewCtrls().first()->fmtListView();
    const QRect row = list->visualRect(list->model()->index(1, 0));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row.center() - QPoint(40, 0));
    EXPECT_EQ(calls, 1);
    ASSERT_NE(chosen, nullptr);
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(QString::fromStdString(chosen->Title()),
              list->model()->index(1, 0).data().toString());
}

TEST_F(ILMMediaFormatPopupTest, PopupManagerShowsTheManagerWindowWithTheCustomPresets) {
    const auto node = ILMFormatNode::MallocFormatNode("MP4", "MP4 file format", 100);
    ILMFmtPresetDataSource::Shared()->AddCustomPreset(
        ILMFormatPreset::MallocFormatPreset("mp4", "Mine"), node);
    ILMMediaFormatPopup::Shared()->PopupManager();
    LMPresetManagerWndCtrl* manager = LMPresetManagerWndCtrl::shared();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(manager));
    const auto* tree = manager->findChild<QTreeWidget*>(QStringLiteral("treePresets"));
    ASSERT_TRUE(tree);
    ASSERT_EQ(tree->topLevelItemCount(), 1);
    EXPECT_EQ(tree->topLevelItem(0)->child(0)->text(0), QStringLiteral("Mine"));
    // A second call raises the same window.
    ILMMediaFormatPopup::Shared()->PopupManager();
    EXPECT_EQ(LMPresetManagerWndCtrl::shared(), manager);
    manager->close();
}

TEST_F(ILMMediaFormatPopupTest, TheCustomTabShowsWhatTheManagerChangedAtTheNextShowing) {
    const auto node = ILMFormatNode::MallocFormatNode("MP4", "MP4 file format", 100);
    auto source = ILMFmtPresetDataSource::Shared();
    source->AddCustomPreset(ILMFormatPreset::MallocFormatPreset("mp4", "First"), node);
    source->AddCustomPreset(ILMFormatPreset::MallocFormatPreset("mp4", "Second"), node);
    SetupThroughFacade();
    const auto rows = [] {
        QStringList texts;
        const QAbstractItemModel* model = Window()->customFmtViewCtrl()->fmtListView()->model();
        for (int row = 0; row < model->rowCount(); ++row)
            texts << model->index(row, 0).data().toString();
        return texts;
    };
    auto* ctrl = LMFormatSelectionWndCtrl::shared();
    ILMMediaFormatPopup::Shared()->PopupSelection(ILMMediaFormatPopup::Rect{100, 100, 50, 20}, {});
    ASSERT_EQ(rows(), (QStringList{QStringLiteral("First"), QStringLiteral("Second")}));
    ctrl->windowDidResignKey();

    // What the manager's buttons do: a rename, a move, a duplicate, each saved.
    ASSERT_TRUE(source->RenameCustomPreset("MP4", "First", "Renamed", nullptr));
    ASSERT_TRUE(
        source->MoveCustomPreset("MP4", "Second", ILMFmtPresetDataSource::MoveDirection::Up));
    ASSERT_EQ(source->DuplicateCustomPreset("MP4", "Renamed"), "Renamed (2)");
    source->SaveCustomList();
    ILMMediaFormatPopup::Shared()->PopupSelection(ILMMediaFormatPopup::Rect{100, 100, 50, 20}, {});
    const QStringList after = rows();
    EXPECT_EQ(after, (QStringList{QStringLiteral("Second"), QStringLiteral("Renamed"),
                                  QStringLiteral("Renamed (2)")}))
        << after.join(QLatin1Char('|')).toStdString();
    ctrl->windowDidResignKey();
}
