// SPDX-License-Identifier: MIT
#pragma once

#include <QKeyCombination>
#include <QString>

#include <initializer_list>

class QKeyEvent;

// What keys say in words, for the popup's tool tips, and what a key press types.
class LMKeyText {
public:
    // The keys in the platform's own words, joined by commas ("Ctrl+Tab,
    // Ctrl+PgDown"); Qt translates the key names with its own tables.
    static QString names(std::initializer_list<QKeyCombination> keys);

    // The printable text a key press types, or an empty string when it types
    // nothing printable or is a command (Ctrl, Alt or Meta held).
    static QString typedText(const QKeyEvent& event);
};
