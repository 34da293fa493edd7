// SPDX-License-Identifier: MIT
#include "LME2EUser.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QCursor>
#include <QDialog>
#include <QGuiApplication>
#include <QItemSelectionModel>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QStyleHints>
#include <QTest>
#include <QWindow>

#include <algorithm>

namespace Lumeran::E2E {

namespace {

// Left edge of a widget in the popup's coordinates, for ordering by place.
int LeftInWindow(const QWidget* widget) {
    return widget->mapTo(widget->window(), QPoint(0, 0)).x();
}

template <typename T>
void SortLeftToRight(QList<T*>& widgets) {
    std::sort(widgets.begin(), widgets.end(),
              [](const T* a, const T* b) { return LeftInWindow(a) < LeftInWindow(b); });
}

// Runs xdotool with args; a failure to run it fails the test that asked.
void Xdotool(const QStringList& args) {
    const int status = QProcess::execute(QStringLiteral("xdotool"), args);
    if (status != 0)
        qWarning("xdotool %s: exit status %d", qPrintable(args.join(QLatin1Char(' '))), status);
}

// Lets the events of what xdotool did arrive and be handled: the X server
// has them by the time xdotool returns, the application a moment later.
void HandleWhatTheServerSent() {
    QTest::qWait(QGuiApplication::styleHints()->mouseDoubleClickInterval());
}

// The window at a point of the screen: the popup above everything else.
QWindow* WindowAt(const QPoint& global) {
    QWidget* popup = VisiblePopup();
    QWidget* window =
        popup && popup->geometry().contains(global) ? popup : QApplication::topLevelAt(global);
    return window ? window->windowHandle() : nullptr;
}

} // namespace

bool OnRealDisplay() {
    return QGuiApplication::platformName() == QStringLiteral("xcb");
}

void ClickAt(const QPoint& global, int count) {
    if (OnRealDisplay()) {
        // Not with --sync: it can wait long for a move the server made at once
        // (or did not need).
        Xdotool({QStringLiteral("mousemove"), QString::number(global.x()),
                 QString::number(global.y())});
        if (!QTest::qWaitFor([global] { return QCursor::pos() == global; }, 2000))
            qWarning("ClickAt: the pointer did not reach %d, %d", global.x(), global.y());
        // Clicks 150 ms apart, well inside the double-click interval, as a
        // hand makes them: time enough for what the first click does to
        // happen before the second arrives.
        Xdotool({QStringLiteral("click"), QStringLiteral("--repeat"), QString::number(count),
                 QStringLiteral("--delay"), QStringLiteral("150"), QStringLiteral("1")});
        HandleWhatTheServerSent();
        return;
    }
    // Moved there first, as a pointer is before it clicks.
    QCursor::setPos(global);
    // Each press and release goes to the window at the point when it happens:
    // a press that closes the popup leaves the rest to what lies below.
    for (int click = 0; click < count; ++click) {
        for (const QTest::MouseAction action : {QTest::MousePress, QTest::MouseRelease}) {
            QWindow* window = WindowAt(global);
            if (!window) {
                qWarning("ClickAt: no window at %d, %d", global.x(), global.y());
                return;
            }
            QTest::mouseEvent(action, window, Qt::LeftButton, {}, window->mapFromGlobal(global));
        }
    }
}

void PressKey(Qt::Key key, const QString& xKey, int times, int delayMs) {
    if (OnRealDisplay()) {
        Xdotool({QStringLiteral("key"), QStringLiteral("--repeat"), QString::number(times),
                 QStringLiteral("--repeat-delay"), QString::number(delayMs), xKey});
        HandleWhatTheServerSent();
        return;
    }
    for (int i = 0; i < times; ++i) {
        QWindow* window = QGuiApplication::focusWindow();
        if (!window) {
            qWarning("PressKey: no window has the keyboard");
            return;
        }
        QTest::keyClick(window, key);
        QTest::qWait(delayMs);
    }
}

QWidget* VisiblePopup() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() &&
            window->objectName() == QStringLiteral("LMFormatSelectionWndCtrl"))
            return window;
    }
    return nullptr;
}

QDialog* VisibleDialog(const QString& objectName) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        auto* dialog = qobject_cast<QDialog*>(window);
        if (dialog && dialog->isVisible() && dialog->objectName() == objectName)
            return dialog;
    }
    return nullptr;
}

QDialog* VisibleNamePrompt() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        auto* dialog = qobject_cast<QDialog*>(window);
        if (dialog && dialog->isVisible() &&
            dialog->findChild<QPushButton*>(QStringLiteral("btnOK")))
            return dialog;
    }
    return nullptr;
}

bool WaitForTabCount(QWidget* popup, int count, int timeoutMs) {
    return QTest::qWaitFor([popup, count] { return TabButtons(popup).size() == count; }, timeoutMs);
}

QList<QPushButton*> TabButtons(QWidget* popup) {
    QList<QPushButton*> tabs;
    const auto* strip =
        popup ? popup->findChild<QWidget*>(QStringLiteral("tabHeaderView")) : nullptr;
    if (!strip)
        return tabs;
    // Tabs of an earlier build of the strip may linger, hidden, until deleted.
    // They stand in the strip's clipping area, at the strip's own coordinates.
    for (QPushButton* button : strip->findChildren<QPushButton*>()) {
        if (button->isVisible())
            tabs.append(button);
    }
    SortLeftToRight(tabs);
    return tabs;
}

QStringList TabTitles(QWidget* popup) {
    QStringList titles;
    for (const QPushButton* tab : TabButtons(popup))
        titles.append(tab->text());
    return titles;
}

int SelectedTab(QWidget* popup) {
    const QList<QPushButton*> tabs = TabButtons(popup);
    for (qsizetype i = 0; i < tabs.size(); ++i) {
        if (tabs.at(i)->isChecked())
            return int(i);
    }
    return -1;
}

bool ClickTab(QWidget* popup, int index) {
    const QList<QPushButton*> tabs = TabButtons(popup);
    if (index < 0 || index >= tabs.size())
        return false;
    QTest::mouseClick(tabs.at(index), Qt::LeftButton);
    return true;
}

QList<QAbstractItemView*> VisibleLists(QWidget* popup) {
    QList<QAbstractItemView*> lists;
    if (!popup)
        return lists;
    for (QAbstractItemView* view : popup->findChildren<QAbstractItemView*>()) {
        if (view->isVisible())
            lists.append(view);
    }
    SortLeftToRight(lists);
    return lists;
}

QAbstractItemView* PresetList(QWidget* popup) {
    const QList<QAbstractItemView*> lists = VisibleLists(popup);
    return lists.isEmpty() ? nullptr : lists.last();
}

QAbstractItemView* NodeList(QWidget* popup) {
    const QList<QAbstractItemView*> lists = VisibleLists(popup);
    return lists.size() > 1 ? lists.first() : nullptr;
}

QStringList RowTexts(const QAbstractItemView* view) {
    QStringList texts;
    const QAbstractItemModel* model = view ? view->model() : nullptr;
    for (int row = 0; model && row < model->rowCount(); ++row)
        texts.append(model->index(row, 0).data().toString());
    return texts;
}

QStringList SelectedRowTexts(const QAbstractItemView* view) {
    QStringList texts;
    if (!view || !view->selectionModel())
        return texts;
    for (const QModelIndex& index : view->selectionModel()->selectedRows())
        texts.append(index.data().toString());
    return texts;
}

void ClickRow(QAbstractItemView* view, int row) {
    const QRect rect = view->visualRect(view->model()->index(row, 0));
    // Left of the middle lies the row's text, well clear of its buttons.
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, rect.center() - QPoint(40, 0));
}

void ClickEditButton(QAbstractItemView* view, int row) {
    const QRect rect = view->visualRect(view->model()->index(row, 0));
    // The button stands at the row's right end, vertically centred; it shows
    // only while the pointer is on the row.
    const QPoint button(rect.right() - 20, rect.center().y());
    QTest::mouseMove(view->viewport(), button);
    if (OnRealDisplay()) {
        // The X server moves the pointer (a warp from outside the window is an
        // entry, not a motion, and rows hover on motion): on by a pixel and
        // back, as a hand coming to rest does, and the row hears of it.
        for (const QPoint step : {QPoint(1, 0), QPoint(0, 0)}) {
            QTest::qWait(50);
            QTest::mouseMove(view->viewport(), button + step);
        }
        QTest::qWait(100);
    }
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, button);
}

QComboBox* Box(QWidget* dialog, const QString& objectName) {
    return dialog ? dialog->findChild<QComboBox*>(objectName) : nullptr;
}

void ChooseAnotherItem(QComboBox* box) {
    const bool last = box->currentIndex() >= box->count() - 1;
    QTest::keyClick(box, last ? Qt::Key_Up : Qt::Key_Down);
}

QString LabelOf(QWidget* dialog, const QComboBox* box) {
    if (!dialog)
        return {};
    for (const QLabel* label : dialog->findChildren<QLabel*>()) {
        if (label->buddy() == box)
            return label->text();
    }
    return {};
}

bool ClickButton(QWidget* dialog, const QString& objectName) {
    auto* button = dialog ? dialog->findChild<QPushButton*>(objectName) : nullptr;
    if (!button)
        return false;
    QTest::mouseClick(button, Qt::LeftButton);
    return true;
}

} // namespace Lumeran::E2E
