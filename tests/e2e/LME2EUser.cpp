// SPDX-License-Identifier: MIT
#include "LME2EUser.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QItemSelectionModel>
#include <QLabel>
#include <QPushButton>
#include <QTest>

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

} // namespace

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
    for (QPushButton* button : strip->findChildren<QPushButton*>(Qt::FindDirectChildrenOnly)) {
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
