// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

// Keeps the rest of a click sequence away from the application once the popup
// has gone away under the pointer. A press that chooses a preset, or that closes
// the popup, hides it in the middle of the user's click: the release, and the
// second click of a double-click, would otherwise land on whatever the host shows
// underneath (a "Convert" button, say). While it swallows, every mouse press,
// release and double-click of the application's windows goes nowhere; moves,
// the wheel and the keyboard are left alone.
//
// It stops when the platform's double-click interval has passed and no press it
// swallowed still waits for its release, or at once when stop() is called (the
// popup shows again).
class LMClickSequenceGuard final : public QObject {
    Q_OBJECT

public:
    explicit LMClickSequenceGuard(QObject* parent = nullptr);
    ~LMClickSequenceGuard() override;

    // Starts swallowing. buttonHeld: the press that ended the showing is still
    // down, so its release belongs to the sequence too.
    void swallowRestOfClick(bool buttonHeld);
    void stop();
    bool isSwallowing() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void stopUnlessAButtonIsHeld();

    QElapsedTimer m_since;
    QTimer m_interval;
    bool m_swallowing = false;
    bool m_buttonHeld = false;
};
