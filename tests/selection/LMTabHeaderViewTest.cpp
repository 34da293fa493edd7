// SPDX-License-Identifier: MIT
#include "LMTabHeaderView.h"

#include "LMFormatInternationalizationMgr.h"
#include "LMTabHeaderViewDelegate.h"
#include "LMUiTestSupport.h"

#include <QAccessible>
#include <QIcon>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

// A strip as tall as the popup gives it room for the search field beside the
// tabs; the tabs stand on its bottom edge.
constexpr int kStripWidth = 800;
constexpr int kStripHeight = 40;
constexpr int kTabTop = kStripHeight - 27;

std::string rgbAt(const QImage& image, int x, int y) {
    const QColor color = image.pixelColor(x, y);
    return std::to_string(color.red()) + "," + std::to_string(color.green()) + "," +
           std::to_string(color.blue()) +
           (color.alpha() == 255 ? "" : " alpha " + std::to_string(color.alpha()));
}

const std::string kGrey = "191,191,191";
const std::string kWhite = "255,255,255";
const std::string kLilacGrey = "241,235,243";

struct DelegateMessage {
    enum Kind { WillChange, DidChange };
    Kind kind;
    // The index will-change announced (unused for did-change).
    std::size_t newIndex;
    // The strip's indexOfSelected() when the message arrived.
    std::size_t selectedWhenSent;

    bool operator==(const DelegateMessage&) const = default;
};

void PrintTo(const DelegateMessage& message, std::ostream* out) {
    *out << (message.kind == DelegateMessage::WillChange ? "will-change " : "did-change ")
         << message.newIndex << " (selected " << message.selectedWhenSent << ")";
}

class RecordingDelegate : public LMTabHeaderViewDelegate {
public:
    void tabHeaderView(LMTabHeaderView* header, std::size_t newIndex) override {
        messages.push_back({DelegateMessage::WillChange, newIndex, header->indexOfSelected()});
    }
    void tabHeaderViewSelectionDidChanged(LMTabHeaderView* header) override {
        messages.push_back({DelegateMessage::DidChange, 0, header->indexOfSelected()});
    }

    std::vector<DelegateMessage> messages;
};

class LMTabHeaderViewTest : public Lumeran::TestSupport::UiTest {
protected:
    void SetUp() override {
        UiTest::SetUp();
        strip = std::make_unique<LMTabHeaderView>();
        strip->resize(kStripWidth, kStripHeight);
        strip->setDelegate(&delegate);
    }

    void addTabs(const QStringList& keys) {
        for (const QString& key : keys)
            strip->addTab(key, QIcon());
    }

    // Recent, four categories, Custom and one more: seven tabs, enough to see
    // the sixth one widen and overlap the seventh.
    void addSevenTabs() {
        addTabs({QStringLiteral("Recent"), QStringLiteral("Video"), QStringLiteral("Audio"),
                 QStringLiteral("Device"), QStringLiteral("Web Video"), QStringLiteral("Custom"),
                 QStringLiteral("Settings")});
    }

    void showStrip() {
        strip->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(strip.get()));
    }

    // Shown and active, the first tab's neighbour given the focus with Right
    // from the first tab.
    void focusSecondTabByKey() {
        showStrip();
        strip->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(strip.get()));
        strip->tabButtons().at(0)->setFocus(Qt::TabFocusReason);
        QTest::keyClick(strip->tabButtons().at(0), Qt::Key_Right);
        ASSERT_TRUE(strip->tabButtons().at(1)->hasFocus());
    }

    void click(std::size_t index) {
        QTest::mouseClick(strip->tabButtons().at(static_cast<qsizetype>(index)), Qt::LeftButton);
    }

    QImage rendered() const { return strip->grab().toImage(); }

    RecordingDelegate delegate;
    std::unique_ptr<LMTabHeaderView> strip;
};

TEST_F(LMTabHeaderViewTest, TabsStandOnTheBottomEdgeAtA97PointPitch) {
    addSevenTabs();
    showStrip();

    ASSERT_EQ(strip->countOfTab(), 7u);
    for (std::size_t i = 0; i < 7; ++i) {
        const QRect expected(10 + 97 * static_cast<int>(i), kTabTop, 97, 27);
        EXPECT_EQ(strip->frameOfTabButton(i), expected) << "tab " << i;
        EXPECT_EQ(strip->tabButtons().at(static_cast<qsizetype>(i))->geometry(), expected)
            << "tab " << i;
    }
}

TEST_F(LMTabHeaderViewTest, FrenchWidensOnlyTheSixthTabWhichOverlapsTheSeventh) {
    LMFormatInternationalizationMgr::sharedObject()->setLanguage(LMFormatLanguageFrench);
    addSevenTabs();

    for (std::size_t i = 0; i < 7; ++i) {
        const QRect frame = strip->tabButtons().at(static_cast<qsizetype>(i))->geometry();
        EXPECT_EQ(frame.x(), 10 + 97 * static_cast<int>(i)) << "tab " << i;
        EXPECT_EQ(frame.width(), i == 5 ? 112 : 97) << "tab " << i;
    }
    const QRect sixth = strip->frameOfTabButton(5);
    const QRect seventh = strip->frameOfTabButton(6);
    EXPECT_EQ(sixth.x() + sixth.width() - seventh.x(), 15);

    // Other languages with long words get no wider tab.
    LMFormatInternationalizationMgr::sharedObject()->setLanguage(LMFormatLanguageGerman);
    EXPECT_EQ(strip->frameOfTabButton(5).width(), 97);
    EXPECT_EQ(strip->tabButtons().at(5)->width(), 97);
}

TEST_F(LMTabHeaderViewTest, ClickingTheSelectedTabSendsNothingAndLeavesItSelected) {
    addSevenTabs();
    strip->setIndexOfSelected(2);
    showStrip();

    click(2);

    EXPECT_TRUE(delegate.messages.empty());
    EXPECT_EQ(strip->indexOfSelected(), 2u);
    EXPECT_TRUE(strip->tabButtons().at(2)->isChecked());
    const QRect tab = strip->frameOfTabButton(2);
    const QImage image = rendered();
    EXPECT_EQ(rgbAt(image, tab.x() + 3, tab.y() + 3), kWhite);
    EXPECT_EQ(rgbAt(image, tab.center().x(), tab.bottom()), kWhite);
}

TEST_F(LMTabHeaderViewTest, ClickingAnotherTabSendsWillChangeThenDidChangeWithTheNewIndex) {
    addSevenTabs();
    showStrip();

    click(3);

    const std::vector<DelegateMessage> expected{
        {DelegateMessage::WillChange, 3, 0},
        {DelegateMessage::DidChange, 0, 3},
    };
    EXPECT_EQ(delegate.messages, expected);
    EXPECT_EQ(strip->indexOfSelected(), 3u);
    for (std::size_t i = 0; i < 7; ++i)
        EXPECT_EQ(strip->tabButtons().at(static_cast<qsizetype>(i))->isChecked(), i == 3)
            << "tab " << i;
}

TEST_F(LMTabHeaderViewTest, WithoutADelegateAClickStillMovesTheSelection) {
    strip->setDelegate(nullptr);
    addSevenTabs();
    showStrip();

    click(4);

    EXPECT_EQ(strip->indexOfSelected(), 4u);
    EXPECT_TRUE(strip->tabButtons().at(4)->isChecked());
    EXPECT_FALSE(strip->tabButtons().at(0)->isChecked());
}

TEST_F(LMTabHeaderViewTest, SelectingInCodeTellsTheDelegateNothing) {
    addSevenTabs();

    strip->setIndexOfSelected(5);

    EXPECT_TRUE(delegate.messages.empty());
    EXPECT_EQ(strip->indexOfSelected(), 5u);
    EXPECT_TRUE(strip->tabButtons().at(5)->isChecked());
}

TEST_F(LMTabHeaderViewTest, SelectingTheIndexEqualToTheTabCountChangesNothing) {
    addSevenTabs();
    strip->setIndexOfSelected(1);

    strip->setIndexOfSelected(strip->countOfTab());

    EXPECT_EQ(strip->indexOfSelected(), 1u);
    EXPECT_TRUE(strip->tabButtons().at(1)->isChecked());
    for (std::size_t i = 0; i < 7; ++i)
        EXPECT_EQ(strip->tabButtons().at(static_cast<qsizetype>(i))->isChecked(), i == 1);
}

TEST_F(LMTabHeaderViewTest, ClearingKeepsTheSelectedIndexUntilTheNextValidSelection) {
    addSevenTabs();
    strip->setIndexOfSelected(4);

    strip->clearTab();

    EXPECT_EQ(strip->countOfTab(), 0u);
    EXPECT_TRUE(strip->tabButtons().isEmpty());
    EXPECT_EQ(strip->indexOfSelected(), 4u);
    strip->setIndexOfSelected(0);
    EXPECT_EQ(strip->indexOfSelected(), 4u);

    addTabs({QStringLiteral("Recent"), QStringLiteral("Custom")});
    EXPECT_EQ(strip->indexOfSelected(), 4u);
    strip->setIndexOfSelected(1);
    EXPECT_EQ(strip->indexOfSelected(), 1u);
    EXPECT_TRUE(strip->tabButtons().at(1)->isChecked());
}

TEST_F(LMTabHeaderViewTest, RemovingAMiddleTabLeavesAGapUntilTheNextAddition) {
    addTabs({QStringLiteral("Recent"), QStringLiteral("Video"), QStringLiteral("Audio"),
             QStringLiteral("Custom")});
    showStrip();

    strip->removeTabAtIndex(1);
    QCoreApplication::processEvents();

    ASSERT_EQ(strip->countOfTab(), 3u);
    EXPECT_EQ(strip->tabButtons().at(1)->text(), QStringLiteral("Audio"));
    EXPECT_EQ(strip->tabButtons().at(1)->x(), 10 + 97 * 2);
    EXPECT_EQ(strip->tabButtons().at(2)->x(), 10 + 97 * 3);
    // Where the second tab stood, only the rule is left.
    const QImage gap = rendered();
    const int gapX = 10 + 97 + 48;
    EXPECT_NE(rgbAt(gap, gapX, kTabTop + 5), kLilacGrey);
    EXPECT_NE(rgbAt(gap, gapX, kTabTop), kGrey);
    EXPECT_EQ(rgbAt(gap, gapX, kStripHeight - 1), kGrey);

    strip->addTab(QStringLiteral("Settings"), QIcon());

    ASSERT_EQ(strip->countOfTab(), 4u);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(strip->tabButtons().at(static_cast<qsizetype>(i))->x(),
                  10 + 97 * static_cast<int>(i));
    EXPECT_EQ(rgbAt(rendered(), gapX, kTabTop + 5), kLilacGrey);
}

TEST_F(LMTabHeaderViewTest, AnInsertionClosesTheGapOfARemoval) {
    addTabs({QStringLiteral("Recent"), QStringLiteral("Video"), QStringLiteral("Audio")});
    strip->removeTabAtIndex(0);
    EXPECT_EQ(strip->tabButtons().at(0)->x(), 10 + 97);

    strip->insertTab(QStringLiteral("Custom"), QIcon(), 1);

    ASSERT_EQ(strip->countOfTab(), 3u);
    const QStringList expected{QStringLiteral("Video"), QStringLiteral("Custom"),
                               QStringLiteral("Audio")};
    for (std::size_t i = 0; i < 3; ++i) {
        const QPushButton* button = strip->tabButtons().at(static_cast<qsizetype>(i));
        EXPECT_EQ(button->text(), expected.at(static_cast<qsizetype>(i)));
        EXPECT_EQ(button->x(), 10 + 97 * static_cast<int>(i));
    }
}

TEST_F(LMTabHeaderViewTest, RemovingPastTheEndIsIgnored) {
    addTabs({QStringLiteral("Recent"), QStringLiteral("Custom")});
    strip->setIndexOfSelected(1);

    strip->removeTabAtIndex(2);

    EXPECT_EQ(strip->countOfTab(), 2u);
    EXPECT_EQ(strip->indexOfSelected(), 1u);
}

TEST_F(LMTabHeaderViewTest, InsertingDoesNotAdjustTheSelectedIndex) {
    addTabs({QStringLiteral("Recent"), QStringLiteral("Video"), QStringLiteral("Custom")});
    strip->setIndexOfSelected(1);

    strip->insertTab(QStringLiteral("Audio"), QIcon(), 0);

    ASSERT_EQ(strip->countOfTab(), 4u);
    EXPECT_EQ(strip->tabButtons().at(0)->text(), QStringLiteral("Audio"));
    EXPECT_EQ(strip->tabButtons().at(0)->x(), 10);
    // The stored index now names another tab; the tab that was selected keeps
    // its look until the selection is set again.
    EXPECT_EQ(strip->indexOfSelected(), 1u);
    EXPECT_EQ(strip->tabButtons().at(1)->text(), QStringLiteral("Recent"));
    EXPECT_TRUE(strip->tabButtons().at(2)->isChecked());
    EXPECT_TRUE(delegate.messages.empty());
}

TEST_F(LMTabHeaderViewTest, InsertingAtOrPastTheEndAppends) {
    addTabs({QStringLiteral("Recent"), QStringLiteral("Video")});

    strip->insertTab(QStringLiteral("Custom"), QIcon(), 2);
    strip->insertTab(QStringLiteral("Audio"), QIcon(), 10);

    ASSERT_EQ(strip->countOfTab(), 4u);
    EXPECT_EQ(strip->tabButtons().at(2)->text(), QStringLiteral("Custom"));
    EXPECT_EQ(strip->tabButtons().at(3)->text(), QStringLiteral("Audio"));
    EXPECT_EQ(strip->tabButtons().at(3)->geometry(), strip->frameOfTabButton(3));
}

TEST_F(LMTabHeaderViewTest, SelectedTabIsWhiteWithAGreyBorderAndOpenAtTheBottom) {
    addSevenTabs();
    strip->setIndexOfSelected(1);
    showStrip();

    const QImage image = rendered();
    const QRect tab = strip->frameOfTabButton(1);
    // Border along the top, left and right edges.
    EXPECT_EQ(rgbAt(image, tab.center().x(), tab.top()), kGrey);
    EXPECT_EQ(rgbAt(image, tab.left(), tab.center().y()), kGrey);
    EXPECT_EQ(rgbAt(image, tab.right(), tab.center().y()), kGrey);
    EXPECT_EQ(rgbAt(image, tab.left(), tab.bottom()), kGrey);
    EXPECT_EQ(rgbAt(image, tab.right(), tab.bottom()), kGrey);
    // White inside, down to and including the bottom row, where the strip's
    // rule is covered: the tab is open toward the list below.
    EXPECT_EQ(rgbAt(image, tab.left() + 1, tab.top() + 1), kWhite);
    EXPECT_EQ(rgbAt(image, tab.right() - 1, tab.top() + 1), kWhite);
    for (int x = tab.left() + 1; x < tab.right(); ++x)
        ASSERT_EQ(rgbAt(image, x, tab.bottom()), kWhite) << "x " << x;
}

TEST_F(LMTabHeaderViewTest, UnselectedTabsAreLilacGreyWithAGreyBorderAllRound) {
    addSevenTabs();
    strip->setIndexOfSelected(1);
    showStrip();

    const QImage image = rendered();
    for (std::size_t i : {0u, 2u, 6u}) {
        const QRect tab = strip->frameOfTabButton(i);
        EXPECT_EQ(rgbAt(image, tab.center().x(), tab.top()), kGrey) << "tab " << i;
        EXPECT_EQ(rgbAt(image, tab.center().x(), tab.bottom()), kGrey) << "tab " << i;
        EXPECT_EQ(rgbAt(image, tab.left(), tab.center().y()), kGrey) << "tab " << i;
        EXPECT_EQ(rgbAt(image, tab.right(), tab.center().y()), kGrey) << "tab " << i;
        EXPECT_EQ(rgbAt(image, tab.left() + 1, tab.top() + 1), kLilacGrey) << "tab " << i;
        EXPECT_EQ(rgbAt(image, tab.right() - 1, tab.bottom() - 1), kLilacGrey) << "tab " << i;
    }
}

TEST_F(LMTabHeaderViewTest, TheRuleRunsGreyAlongTheStripsBottomEdge) {
    addTabs({QStringLiteral("Recent"), QStringLiteral("Custom")});
    showStrip();

    const QImage image = rendered();
    const int bottom = kStripHeight - 1;
    for (int x : {0, 5, 9, 10 + 97 * 2, 500, kStripWidth - 1}) {
        EXPECT_EQ(rgbAt(image, x, bottom), kGrey) << "x " << x;
        EXPECT_NE(rgbAt(image, x, bottom - 1), kGrey) << "x " << x;
    }
}

TEST_F(LMTabHeaderViewTest, TabsKeepStandingOnTheBottomEdgeWhenTheStripGrows) {
    addTabs({QStringLiteral("Recent"), QStringLiteral("Video"), QStringLiteral("Custom")});
    strip->removeTabAtIndex(1);
    showStrip();

    strip->resize(kStripWidth, 60);
    QCoreApplication::processEvents();

    EXPECT_EQ(strip->tabButtons().at(0)->geometry(), QRect(10, 33, 97, 27));
    // The gap of the removal stays where it was.
    EXPECT_EQ(strip->tabButtons().at(1)->geometry(), QRect(10 + 97 * 2, 33, 97, 27));
}

TEST_F(LMTabHeaderViewTest, TitlesFollowALanguageChange) {
    addTabs({QStringLiteral("Recent"), QStringLiteral("Custom")});
    const QPushButton* recent = strip->tabButtons().at(0);
    EXPECT_EQ(recent->text(), QStringLiteral("Recent"));

    LMFormatInternationalizationMgr::sharedObject()->setLanguage(LMFormatLanguageFrench);

    EXPECT_EQ(recent->text(), QStringLiteral("Récents"));
    // The tool tip's first line is the title; the keys follow it.
    EXPECT_EQ(recent->toolTip().section(QLatin1Char('\n'), 0, 0), QStringLiteral("Récents"));
    EXPECT_TRUE(recent->toolTip().contains(QStringLiteral("Onglet suivant")))
        << recent->toolTip().toStdString();
    EXPECT_EQ(recent->accessibleName(), QStringLiteral("Récents"));
    EXPECT_EQ(strip->tabButtons().at(1)->text(), QStringLiteral("Personnalisés"));
}

TEST_F(LMTabHeaderViewTest, AKeyWithoutATranslationShowsTheKey) {
    strip->addTab(QStringLiteral("Jazz Archive"), QIcon());

    EXPECT_EQ(strip->tabButtons().at(0)->text(), QStringLiteral("Jazz Archive"));
    EXPECT_EQ(strip->tabButtons().at(0)->toolTip().section(QLatin1Char('\n'), 0, 0),
              QStringLiteral("Jazz Archive"));
}

TEST_F(LMTabHeaderViewTest, TabsArePageTabsOfOneListInTheirOrderAndSelectedForAssistiveTools) {
    addTabs({QStringLiteral("Recent"), QStringLiteral("Custom")});
    // Made last, shown second: assistive tools still count it second.
    strip->insertTab(QStringLiteral("Video"), QIcon(), 1);
    strip->setIndexOfSelected(2);
    showStrip();

    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(strip->tabArea());
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->role(), QAccessible::PageTabList);
    EXPECT_EQ(list->text(QAccessible::Name), QStringLiteral("Categories"));
    ASSERT_EQ(list->childCount(), 3);
    QStringList names;
    for (int i = 0; i < list->childCount(); ++i) {
        EXPECT_EQ(list->child(i)->role(), QAccessible::PageTab);
        names << list->child(i)->text(QAccessible::Name);
    }
    EXPECT_EQ(names, (QStringList{QStringLiteral("Recent"), QStringLiteral("Video"),
                                  QStringLiteral("Custom")}));

    QPushButton* custom = strip->tabButtons().at(2);
    EXPECT_EQ(custom->accessibleName(), QStringLiteral("Custom"));
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(custom);
    ASSERT_NE(accessible, nullptr);
    EXPECT_TRUE(accessible->state().selected);
    EXPECT_FALSE(accessible->state().checkable);
    EXPECT_FALSE(list->child(0)->state().selected);
    EXPECT_TRUE(custom->focusPolicy() & Qt::TabFocus);

    // Pressing a tab selects it as a click does.
    list->child(1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(strip->indexOfSelected(), 1u);
    EXPECT_TRUE(list->child(1)->state().selected);
    EXPECT_FALSE(accessible->state().selected);
}

TEST_F(LMTabHeaderViewTest, SpaceOnAFocusedTabSelectsIt) {
    addTabs({QStringLiteral("Recent"), QStringLiteral("Video"), QStringLiteral("Custom")});
    showStrip();
    QPushButton* video = strip->tabButtons().at(1);
    video->setFocus(Qt::TabFocusReason);

    QTest::keyClick(video, Qt::Key_Space);

    const std::vector<DelegateMessage> expected{
        {DelegateMessage::WillChange, 1, 0},
        {DelegateMessage::DidChange, 0, 1},
    };
    EXPECT_EQ(delegate.messages, expected);
}

TEST_F(LMTabHeaderViewTest, ClickingATabLeavesTheFocusInTheSearchField) {
    // The popup's layout: the search field stands in the strip's area, right of
    // the tabs.
    QWidget window;
    window.resize(kStripWidth, 200);
    auto* tabs = new LMTabHeaderView(&window);
    tabs->setGeometry(0, 0, kStripWidth, kStripHeight);
    tabs->addTab(QStringLiteral("Recent"), QIcon());
    tabs->addTab(QStringLiteral("Custom"), QIcon());
    auto* search = new QLineEdit(&window);
    search->setGeometry(600, 8, 190, 24);
    window.show();
    // Without a window manager nothing activates a new window by itself.
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    search->setFocus();
    ASSERT_TRUE(search->hasFocus());

    QTest::mouseClick(tabs->tabButtons().at(1), Qt::LeftButton);

    EXPECT_EQ(tabs->indexOfSelected(), 1u);
    EXPECT_TRUE(tabs->tabButtons().at(1)->isChecked());
    EXPECT_TRUE(search->hasFocus());
}

TEST_F(LMTabHeaderViewTest, LeftAndRightOnAFocusedTabSelectTheNeighbourWhichTakesTheFocus) {
    addTabs({QStringLiteral("Recent"), QStringLiteral("Video"), QStringLiteral("Custom")});
    focusSecondTabByKey();
    const QList<QPushButton*>& tabs = strip->tabButtons();
    EXPECT_EQ(strip->indexOfSelected(), 1u);
    QTest::keyClick(tabs.at(1), Qt::Key_Right);
    QTest::keyClick(tabs.at(2), Qt::Key_Right);
    EXPECT_EQ(strip->indexOfSelected(), 2u);
    EXPECT_TRUE(tabs.at(2)->hasFocus());
    QTest::keyClick(tabs.at(2), Qt::Key_Left);
    EXPECT_EQ(strip->indexOfSelected(), 1u);

    const std::vector<DelegateMessage> expected{
        {DelegateMessage::WillChange, 1, 0}, {DelegateMessage::DidChange, 0, 1},
        {DelegateMessage::WillChange, 2, 1}, {DelegateMessage::DidChange, 0, 2},
        {DelegateMessage::WillChange, 1, 2}, {DelegateMessage::DidChange, 0, 1},
    };
    EXPECT_EQ(delegate.messages, expected);
}

// The ring is the palette's highlight, whether the host's palette is light or
// dark; the other tabs keep the fill of that palette.
TEST_F(LMTabHeaderViewTest, TheFocusedTabShowsAFocusRingInLightAndDarkPalettes) {
    addSevenTabs();
    focusSecondTabByKey();

    for (const QColor& window : {QColor(239, 239, 239), QColor(45, 45, 45)}) {
        const bool dark = window.lightness() < 128;
        QPalette palette = strip->palette();
        palette.setColor(QPalette::Window, window);
        palette.setColor(QPalette::Highlight, QColor(200, 30, 40));
        strip->setPalette(palette);
        const QImage image = rendered();
        const QRect focused = strip->frameOfTabButton(1);
        const QRect other = strip->frameOfTabButton(2);
        for (const int inside : {2, 3}) {
            EXPECT_EQ(rgbAt(image, focused.left() + inside, focused.center().y()), "200,30,40")
                << window.name().toStdString();
            EXPECT_EQ(rgbAt(image, other.left() + inside, other.center().y()),
                      dark ? "58,52,62" : kLilacGrey);
        }
        // The tab's own border stays as it is.
        EXPECT_EQ(rgbAt(image, focused.left(), focused.center().y()), dark ? "86,86,86" : kGrey);
    }
}

TEST_F(LMTabHeaderViewTest, TabToolTipsNameTheKeysThatSwitchTabs) {
    addTabs({QStringLiteral("Recent"), QStringLiteral("Custom")});
    const QString tip = strip->tabButtons().at(0)->toolTip();
    for (const char* keys : {"Ctrl+Tab", "Ctrl+PgDown", "Ctrl+Shift+Tab", "Ctrl+PgUp", "Left"})
        EXPECT_TRUE(tip.contains(QLatin1StringView(keys))) << keys << " in " << tip.toStdString();
}

TEST_F(LMTabHeaderViewTest, TabsShowTheArrowCursor) {
    strip->setCursor(Qt::IBeamCursor);
    addTabs({QStringLiteral("Recent"), QStringLiteral("Custom")});

    for (QPushButton* button : strip->tabButtons()) {
        EXPECT_TRUE(button->testAttribute(Qt::WA_SetCursor));
        EXPECT_EQ(button->cursor().shape(), Qt::ArrowCursor);
    }
}

} // namespace
