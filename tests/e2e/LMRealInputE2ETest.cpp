// SPDX-License-Identifier: MIT
// The popup under a user's pointer and keyboard, beside a host window with a
// "Format" button: on a real display every click and key goes through the X
// server and the window manager (xdotool), offscreen through Qt's window
// system events. What is checked is what the host's widgets and callback
// receive.

#include "ILMMediaFormatPopup.h"
#include "LMDefaultCatalogue.h"
#include "LME2EUser.h"
#include "LMUiTestSupport.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPushButton>
#include <QShortcut>
#include <QStyleHints>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

using namespace Lumeran;

namespace {

// A host window as a converter has one: a "Format" button that pops the
// selection up under itself, F9 that pops it up from the keyboard, and a
// surface (the rest of the window) that notes every mouse press, release and
// double-click reaching it.
class FormatButtonHost : public QWidget {
public:
    FormatButtonHost() {
        setWindowTitle(QStringLiteral("Host"));
        setGeometry(40, 60, 1100, 800);
        button = new QPushButton(QStringLiteral("Format"), this);
        button->setGeometry(20, 20, 120, 30);
        QObject::connect(button, &QPushButton::clicked, this, [this] {
            ++buttonClicks;
            popUp();
        });
        auto* shortcut = new QShortcut(QKeySequence(Qt::Key_F9), this);
        shortcut->setContext(Qt::ApplicationShortcut);
        QObject::connect(shortcut, &QShortcut::activated, this, [this] { popUp(); });
    }

    QPoint buttonCentre() const { return button->mapToGlobal(button->rect().center()); }

    int showings = 0;
    int completions = 0;
    int choices = 0;
    int buttonClicks = 0;
    QList<QEvent::Type> surfaceEvents;

protected:
    void mousePressEvent(QMouseEvent* event) override { note(event); }
    void mouseReleaseEvent(QMouseEvent* event) override { note(event); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { note(event); }

private:
    void popUp() {
        ++showings;
        const QPoint origin = button->mapToGlobal(QPoint(0, 0));
        ILMMediaFormatPopup::Shared()->PopupSelection(
            ILMMediaFormatPopup::Rect{float(origin.x()), float(origin.y()), float(button->width()),
                                      float(button->height())},
            [this](auto preset, auto node) {
                ++completions;
                choices += preset && node ? 1 : 0;
            });
    }

    void note(QMouseEvent* event) {
        surfaceEvents.append(event->type());
        event->accept();
    }

    QPushButton* button = nullptr;
};

class LMRealInputE2ETest : public TestSupport::UiTest {
protected:
    void SetUp() override {
        UiTest::SetUp();
        auto popup = ILMMediaFormatPopup::Shared();
        popup->SetupExternalFormatData(LMDefaultCatalogue::Path());
        popup->WaitForFormatDataLoadingComplete();
        host.show();
        host.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&host));
    }

    void TearDown() override {
        if (QWidget* popup = E2E::VisiblePopup())
            QTest::keyClick(popup, Qt::Key_Escape);
        UiTest::TearDown();
    }

    // Clicks the host's button and waits for the popup with its tabs.
    QWidget* OpenWithTheButton() {
        E2E::ClickAt(host.buttonCentre());
        QWidget* popup = nullptr;
        if (!QTest::qWaitFor([&popup] { return (popup = E2E::VisiblePopup()) != nullptr; }))
            return nullptr;
        return E2E::WaitForTabCount(popup, 6) ? popup : nullptr;
    }

    // Double-clicks at a point: the popup closes with one completion (choices
    // of them a choice), and not one mouse event reaches the host.
    void DoubleClickToClose(const QWidget* popup, const QPoint& at, int choices) {
        E2E::ClickAt(at, 2);
        EXPECT_FALSE(popup->isVisible());
        EXPECT_EQ(host.completions, 1);
        EXPECT_EQ(host.choices, choices);
        EXPECT_TRUE(host.surfaceEvents.isEmpty())
            << host.surfaceEvents.size() << " mouse events reached the host";
    }

    // A click after this is a click of its own, not the second of a double-click.
    static void WaitOutTheDoubleClickInterval() {
        QTest::qWait(QGuiApplication::styleHints()->mouseDoubleClickInterval() + 100);
    }

    FormatButtonHost host;
};

} // namespace

TEST_F(LMRealInputE2ETest, TheHostsFormatButtonTogglesThePopup) {
    QWidget* popup = OpenWithTheButton();
    ASSERT_NE(popup, nullptr);
    ASSERT_EQ(host.buttonClicks, 1);

    // The click that closes the popup is not a click of the button as well,
    // which would open it again.
    E2E::ClickAt(host.buttonCentre());
    EXPECT_FALSE(popup->isVisible());
    EXPECT_EQ(host.buttonClicks, 1);
    EXPECT_EQ(host.showings, 1);
    EXPECT_EQ(host.completions, 1);
    EXPECT_EQ(host.choices, 0);

    // With the popup closed, a click of its own opens it again.
    WaitOutTheDoubleClickInterval();
    popup = OpenWithTheButton();
    ASSERT_NE(popup, nullptr);
    EXPECT_EQ(host.buttonClicks, 2);
}

TEST_F(LMRealInputE2ETest, DoubleClickingAPresetChoosesItOnceAndClicksNothingUnderneath) {
    QWidget* popup = OpenWithTheButton();
    ASSERT_NE(popup, nullptr);
    QAbstractItemView* presets = E2E::PresetList(popup);
    ASSERT_NE(presets, nullptr);
    const QRect row = presets->visualRect(presets->model()->index(1, 0));
    const QPoint target = presets->viewport()->mapToGlobal(row.center() - QPoint(40, 0));
    // Where the preset is, the host's surface lies under the popup.
    ASSERT_TRUE(host.frameGeometry().contains(target));

    DoubleClickToClose(popup, target, 1);
    EXPECT_EQ(host.showings, 1);

    // A click of its own, once the double-click is over, is the host's.
    WaitOutTheDoubleClickInterval();
    E2E::ClickAt(target);
    EXPECT_EQ(host.surfaceEvents,
              (QList<QEvent::Type>{QEvent::MouseButtonPress, QEvent::MouseButtonRelease}));
}

TEST_F(LMRealInputE2ETest, DoubleClickingBesideThePopupClosesItAndClicksNothing) {
    QWidget* popup = OpenWithTheButton();
    ASSERT_NE(popup, nullptr);
    // Right of the button, above the popup (which hangs under the button).
    const QPoint beside = host.mapToGlobal(QPoint(600, 10));
    ASSERT_FALSE(popup->frameGeometry().contains(beside));

    DoubleClickToClose(popup, beside, 0);
}

TEST_F(LMRealInputE2ETest, EveryShowingCompletesOnceWhenTheHostPopsUpAgainAndAgain) {
    QWidget* popup = OpenWithTheButton();
    ASSERT_NE(popup, nullptr);
    // Thirty double presses of the host's key, each press a new showing that
    // replaces the one still open.
    E2E::PressKey(Qt::Key_F9, QStringLiteral("F9"), 60, 5);
    ASSERT_TRUE(QTest::qWaitFor([this] { return host.showings == 61; }))
        << host.showings << " showings";
    EXPECT_EQ(host.completions, 60);
    QTest::keyClick(popup, Qt::Key_Escape);
    EXPECT_EQ(host.completions, 61);
    EXPECT_EQ(host.choices, 0);
}
