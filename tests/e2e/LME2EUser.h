// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>

#include <QList>
#include <QString>
#include <QStringList>

class QAbstractItemView;
class QPoint;
class QComboBox;
class QDialog;
class QPushButton;
class QWidget;

// What a user of the popup sees and does, found the way a user finds it: by the
// windows on screen, their tabs, lists and buttons, never through the framework's
// classes. Shared by the end-to-end tests and their second-process host.
namespace Lumeran::E2E {

// The selection popup when it is on screen, else nullptr.
QWidget* VisiblePopup();
// The visible top-level dialog of that object name, else nullptr.
QDialog* VisibleDialog(const QString& objectName);
// The visible name prompt (the dialog holding an "OK" button named btnOK) over
// the editor, else nullptr.
QDialog* VisibleNamePrompt();

// Waits (processing events) until the popup shows count tabs; false on timeout.
bool WaitForTabCount(QWidget* popup, int count, int timeoutMs = 5000);
// The popup's visible tab buttons, left to right.
QList<QPushButton*> TabButtons(QWidget* popup);
QStringList TabTitles(QWidget* popup);
// Index of the checked (selected) tab, -1 when none is.
int SelectedTab(QWidget* popup);
// False when there is no such tab.
bool ClickTab(QWidget* popup, int index);

// The visible lists inside the popup, left to right: a category or the custom
// tab shows nodes and presets, the recent tab one list.
QList<QAbstractItemView*> VisibleLists(QWidget* popup);
// The list of presets (or recent entries): the rightmost visible list.
QAbstractItemView* PresetList(QWidget* popup);
// The list of nodes beside it, or nullptr on a tab with one list.
QAbstractItemView* NodeList(QWidget* popup);
QStringList RowTexts(const QAbstractItemView* view);
// Texts of the selected rows.
QStringList SelectedRowTexts(const QAbstractItemView* view);
// Clicks a row on its text, away from its buttons.
void ClickRow(QAbstractItemView* view, int row);
// Rests the pointer on the row's edit button (shown while the row is hovered)
// and clicks it; an editor it opens runs modally inside this call.
void ClickEditButton(QAbstractItemView* view, int row);

// Whether the windows are on a real X server (the xcb platform), where the
// user's clicks and keys below go through the server with xdotool, and with it
// through the window manager, as a person's do. Elsewhere they go to the
// window at that point of the screen as the window system's events.
bool OnRealDisplay();
// Clicks the left button at a point of the screen; count 2 is a double-click
// (within the platform's double-click interval). Returns once the clicks have
// been made and the events they caused handled.
void ClickAt(const QPoint& global, int count = 1);
// Presses and releases a key times times, delayMs apart, in the window that has
// the keyboard. xKey is the key's X name (as xdotool takes it).
void PressKey(Qt::Key key, const QString& xKey, int times, int delayMs);

// A box of a dialog by object name, and the user's way to pick its next item
// (or the previous one at the end of the list): the arrow keys.
QComboBox* Box(QWidget* dialog, const QString& objectName);
void ChooseAnotherItem(QComboBox* box);
// The text of the label standing for box (its buddy), empty when none does.
QString LabelOf(QWidget* dialog, const QComboBox* box);
// False when the dialog has no such button.
bool ClickButton(QWidget* dialog, const QString& objectName);

} // namespace Lumeran::E2E
