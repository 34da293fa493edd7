// SPDX-License-Identifier: MIT
#include "LMTabButton.h"

#include <QKeyEvent>
#include <QPainter>

LMTabButton::LMTabButton(const QString& titleKey, QWidget* parent)
    : QPushButton(parent), m_titleKey(titleKey) {
    setCheckable(true);
    // A tab is a page switch, not a dialog's default button.
    setAutoDefault(false);
    setFlat(true);
    // Reachable from the keyboard and by assistive tools, but a click leaves
    // the focus where it was (the search field, usually).
    setFocusPolicy(Qt::TabFocus);
    m_cell.resetCursorRect(*this);
}

LMTabButton::~LMTabButton() = default;

LMTabButtonCell& LMTabButton::cell() {
    return m_cell;
}

const LMTabButtonCell& LMTabButton::cell() const {
    return m_cell;
}

std::size_t LMTabButton::tag() const {
    return m_tag;
}

void LMTabButton::setTag(std::size_t tag) {
    m_tag = tag;
}

QString LMTabButton::titleKey() const {
    return m_titleKey;
}

void LMTabButton::paintEvent(QPaintEvent* event) {
    (void)event;
    QPainter painter(this);
    m_cell.drawWithFrame(painter, QRectF(rect()), *this);
}

void LMTabButton::keyPressEvent(QKeyEvent* event) {
    // A plain button moves only the focus with the arrows; on a tab they select
    // the neighbour, which the strip does.
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (plain && (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right)) {
        event->ignore();
        return;
    }
    QPushButton::keyPressEvent(event);
}

void LMTabButton::nextCheckState() {
    // Pushing a tab does not select it: the strip decides, after asking its
    // delegate, and sets the state of every tab at once.
}
