// SPDX-License-Identifier: MIT
#include "LMClickSequenceGuard.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QStyleHints>

namespace {

bool IsClickEvent(QEvent::Type type) {
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
           type == QEvent::MouseButtonDblClick;
}

} // namespace

LMClickSequenceGuard::LMClickSequenceGuard(QObject* parent) : QObject(parent) {
    m_interval.setSingleShot(true);
    connect(&m_interval, &QTimer::timeout, this, [this] { stopUnlessAButtonIsHeld(); });
}

LMClickSequenceGuard::~LMClickSequenceGuard() {
    stop();
}

void LMClickSequenceGuard::swallowRestOfClick(bool buttonHeld) {
    QCoreApplication* app = QCoreApplication::instance();
    if (!app)
        return;
    if (!m_swallowing)
        app->installEventFilter(this);
    m_swallowing = true;
    m_buttonHeld = buttonHeld;
    // The interval the platform uses to pair two clicks into a double-click: a
    // press later than that starts a click of its own.
    m_since.start();
    m_interval.start(QGuiApplication::styleHints()->mouseDoubleClickInterval());
}

void LMClickSequenceGuard::stop() {
    m_interval.stop();
    m_buttonHeld = false;
    if (!m_swallowing)
        return;
    m_swallowing = false;
    if (QCoreApplication* app = QCoreApplication::instance())
        app->removeEventFilter(this);
}

bool LMClickSequenceGuard::isSwallowing() const {
    return m_swallowing;
}

void LMClickSequenceGuard::stopUnlessAButtonIsHeld() {
    // A second press inside the interval is swallowed; its release, however late,
    // ends the sequence and goes nowhere either.
    if (!m_buttonHeld)
        stop();
}

bool LMClickSequenceGuard::eventFilter(QObject* watched, QEvent* event) {
    if (!m_swallowing || !IsClickEvent(event->type()))
        return QObject::eventFilter(watched, event);
    const bool intervalOver =
        m_since.elapsed() > QGuiApplication::styleHints()->mouseDoubleClickInterval();
    if (event->type() == QEvent::MouseButtonRelease) {
        if (!m_buttonHeld && intervalOver) {
            stop();
            return QObject::eventFilter(watched, event);
        }
        m_buttonHeld = false;
        if (intervalOver)
            stop();
        return true;
    }
    // A press (or the press that pairs into a double-click).
    if (intervalOver && !m_buttonHeld) {
        stop();
        return QObject::eventFilter(watched, event);
    }
    m_buttonHeld = true;
    return true;
}
