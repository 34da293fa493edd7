// SPDX-License-Identifier: MIT
#pragma once

#include "LMTabButtonCell.h"

#include <QPushButton>
#include <QString>

#include <cstddef>

// One tab of LMTabHeaderView: a push button drawn entirely by its
// LMTabButtonCell. Its checked state marks the selected tab; only the strip
// changes it, so a click never flips it by itself, and Left and Right go to the
// strip, which moves the selection with them. Besides its cell it keeps
// what the strip needs to know about it: its place (tag) and the localization
// key of its title.
class LMTabButton : public QPushButton {
    Q_OBJECT

public:
    explicit LMTabButton(const QString& titleKey, QWidget* parent = nullptr);
    ~LMTabButton() override;

    LMTabButtonCell& cell();
    const LMTabButtonCell& cell() const;

    // Index of the tab at the strip's last arrangement.
    std::size_t tag() const;
    void setTag(std::size_t tag);

    // Key of the title; the shown title is its translation in the current
    // language.
    QString titleKey() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void nextCheckState() override;

private:
    LMTabButtonCell m_cell;
    std::size_t m_tag = 0;
    QString m_titleKey;
};
