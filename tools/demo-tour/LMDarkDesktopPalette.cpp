// SPDX-License-Identifier: MIT
#include "LMDarkDesktopPalette.h"

QPalette LMDarkDesktopPalette::make() {
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(45, 45, 48));
    palette.setColor(QPalette::WindowText, QColor(230, 230, 230));
    palette.setColor(QPalette::Base, QColor(30, 30, 32));
    palette.setColor(QPalette::AlternateBase, QColor(40, 40, 42));
    palette.setColor(QPalette::Text, QColor(230, 230, 230));
    palette.setColor(QPalette::Button, QColor(55, 55, 58));
    palette.setColor(QPalette::ButtonText, QColor(230, 230, 230));
    // The bevels' shades, which frames and separators draw with.
    palette.setColor(QPalette::Light, QColor(75, 75, 78));
    palette.setColor(QPalette::Midlight, QColor(65, 65, 68));
    palette.setColor(QPalette::Mid, QColor(40, 40, 42));
    palette.setColor(QPalette::Dark, QColor(25, 25, 27));
    palette.setColor(QPalette::Shadow, QColor(10, 10, 10));
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, QColor(160, 160, 160));
    palette.setColor(QPalette::ToolTipBase, QColor(55, 55, 58));
    palette.setColor(QPalette::ToolTipText, QColor(230, 230, 230));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(127, 127, 127));
    return palette;
}
