// SPDX-License-Identifier: MIT
// The lists as assistive technology reads them through Qt's accessibility
// interfaces, which the AT-SPI bridge hands to screen readers as they are.
#include "LMFormatListAccessible.h"

#include "ILMFmtPresetDataSource.h"
#include "LMFmtNodeViewCtrl.h"
#include "LMFormatCollectionView.h"
#include "LMFormatInternationalizationMgr.h"
#include "LMFormatRowAccessible.h"
#include "LMListsTestSupport.h"
#include "LMUiTestSupport.h"

#include <QAccessible>
#include <QTest>

using namespace Lumeran;
using namespace Lumeran::TestSupport;

namespace {

class LMFormatListAccessibleTest : public NodeViewCtrlTest {};

QAccessibleInterface* Accessible(QWidget* widget) {
    return QAccessible::queryAccessibleInterface(widget);
}

QStringList ActionNames(QAccessibleInterface* row) {
    return row && row->actionInterface() ? row->actionInterface()->actionNames() : QStringList();
}

QStringList ChildNames(QAccessibleInterface* parent) {
    QStringList names;
    for (int i = 0; i < parent->childCount(); ++i)
        names << parent->child(i)->text(QAccessible::Name);
    return names;
}

} // namespace

TEST_F(LMFormatListAccessibleTest, TheListsAreNamedAndDescribedInTheLanguageOnScreen) {
    ctrl->loadFormatNode(MakeCategory());
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    QAccessibleInterface* nodeList = Accessible(nodes());
    QAccessibleInterface* presetList = Accessible(formats());
    EXPECT_EQ(nodeList->role(), QAccessible::List);
    EXPECT_EQ(nodeList->text(QAccessible::Name), QStringLiteral("Formats"));
    EXPECT_EQ(nodeList->text(QAccessible::Description), QStringLiteral("Formats of Video"));
    EXPECT_EQ(presetList->text(QAccessible::Name), QStringLiteral("Presets"));
    EXPECT_EQ(presetList->text(QAccessible::Description), QStringLiteral("Presets of MP4"));

    LMFormatInternationalizationMgr::sharedObject()->setLanguage(LMFormatLanguageFrench);
    EXPECT_EQ(presetList->text(QAccessible::Name), QStringLiteral("Préréglages"));
    EXPECT_EQ(presetList->text(QAccessible::Description), QStringLiteral("Préréglages de MP4"));
}

TEST_F(LMFormatListAccessibleTest, EveryRowIsAListItemNamedAndDescribedByItsEntry) {
    ctrl->loadFormatNode(MakeCategory());
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    QAccessibleInterface* nodeList = Accessible(nodes());
    ASSERT_EQ(nodeList->childCount(), 3);
    EXPECT_EQ(ChildNames(nodeList),
              (QStringList{QStringLiteral("MP4"), QStringLiteral("MOV"), QStringLiteral("MKV")}));
    QAccessibleInterface* mov = nodeList->child(1);
    EXPECT_EQ(mov->role(), QAccessible::ListItem);
    EXPECT_EQ(mov->text(QAccessible::Description), QStringLiteral("QuickTime Movie"));
    EXPECT_EQ(mov->parent(), nodeList);
    EXPECT_EQ(nodeList->indexOfChild(mov), 1);
    // The same row answers with the same interface, as screen readers expect.
    EXPECT_EQ(nodeList->child(1), mov);
    EXPECT_EQ(nodeList->child(3), nullptr);
    EXPECT_EQ(nodeList->childAt(mov->rect().center().x(), mov->rect().center().y()), mov);
}

TEST_F(LMFormatListAccessibleTest, TheSelectedAndFocusedRowsShowInTheirStates) {
    ctrl->loadFormatNode(MakeCategory());
    ASSERT_TRUE(ShowActive(ctrl.get()));
    ClickRow(nodes(), 2);
    QAccessibleInterface* nodeList = Accessible(nodes());
    EXPECT_TRUE(nodeList->child(2)->state().selected);
    EXPECT_FALSE(nodeList->child(0)->state().selected);
    ASSERT_TRUE(nodes()->hasFocus());
    EXPECT_TRUE(nodeList->child(2)->state().focused);
    EXPECT_EQ(nodeList->focusChild(), nodeList->child(2));
    QTest::keyClick(nodes(), Qt::Key_Right);
    EXPECT_FALSE(nodeList->child(2)->state().focused);
    EXPECT_EQ(nodeList->focusChild(), nullptr);
}

TEST_F(LMFormatListAccessibleTest, ACatalogueRowOffersChooseAndEditButNotRemove) {
    ctrl->loadFormatNode(MakeCategory());
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    QAccessibleInterface* row = Accessible(formats())->child(1);
    EXPECT_EQ(ActionNames(row), (QStringList{QStringLiteral("Choose"), QStringLiteral("Edit")}));
    ASSERT_EQ(row->childCount(), 1);
    QAccessibleInterface* edit = row->child(0);
    EXPECT_EQ(edit->role(), QAccessible::PushButton);
    EXPECT_EQ(edit->text(QAccessible::Name), QStringLiteral("Edit"));
    EXPECT_TRUE(edit->text(QAccessible::Description).startsWith(QStringLiteral("Edit (F2")));
    EXPECT_EQ(edit->parent(), row);
    EXPECT_TRUE(row->rect().contains(edit->rect()));

    // Edit answers at once and asks the window to edit from the event loop.
    row->actionInterface()->doAction(QStringLiteral("Edit"));
    EXPECT_TRUE(delegate.edits.empty());
    QTRY_COMPARE(delegate.edits.size(), 1u);
    EXPECT_EQ(delegate.edits.front().preset->Title(), "MP4 HD 720p");
    // The button does the same.
    edit->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTRY_COMPARE(delegate.edits.size(), 2u);
}

TEST_F(LMFormatListAccessibleTest, ChooseOnAPresetRowTellsTheWindowOfThatPreset) {
    ctrl->loadFormatNode(MakeCategory());
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    Accessible(formats())->child(2)->actionInterface()->doAction(QStringLiteral("Choose"));
    QTRY_COMPARE(delegate.selections.size(), 1u);
    EXPECT_EQ(delegate.selections.front().preset->Title(), "MP4 Phone");
}

TEST_F(LMFormatListAccessibleTest, RemoveOnACustomRowRemovesItAndTheRowsAfterItFollow) {
    ctrl->setRemovable(true);
    ctrl->loadFormatNode(FillCustomList());
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    QAccessibleInterface* list = Accessible(formats());
    ASSERT_EQ(list->childCount(), 3);
    QAccessibleInterface* first = list->child(0);
    QAccessibleInterface* last = list->child(2);
    EXPECT_EQ(ActionNames(first),
              (QStringList{QStringLiteral("Choose"), QStringLiteral("Remove")}));
    EXPECT_EQ(ChildNames(first), QStringList{QStringLiteral("Remove")});

    first->actionInterface()->doAction(QStringLiteral("Remove"));
    QTRY_COMPARE(list->childCount(), 2);
    EXPECT_EQ(ILMFmtPresetDataSource::Shared()->GetCustomList()->ChildAt(0)->FormatPresetCount(),
              2);
    // The removed row's interface is no longer valid; the last row moved up.
    EXPECT_FALSE(first->isValid());
    EXPECT_EQ(last->text(QAccessible::Name), QStringLiteral("MP4 Phone"));
    EXPECT_EQ(list->indexOfChild(last), 1);
    EXPECT_EQ(list->child(1), last);
    EXPECT_EQ(ChildNames(list),
              (QStringList{QStringLiteral("MP4 HD 720p"), QStringLiteral("MP4 Phone")}));
}

TEST_F(LMFormatListAccessibleTest, AnActionOnARowThatWentMeanwhileDoesNothing) {
    ctrl->setRemovable(true);
    ctrl->loadFormatNode(FillCustomList());
    ASSERT_TRUE(ShowAndWait(ctrl.get()));
    QAccessibleInterface* row = Accessible(formats())->child(0);
    row->actionInterface()->doAction(QStringLiteral("Choose"));
    // Before the choice is made, the list is loaded anew.
    ctrl->loadFormatNode(MakeCategory());
    QTest::qWait(50);
    EXPECT_TRUE(delegate.selections.empty());
    EXPECT_FALSE(row->isValid());
}
