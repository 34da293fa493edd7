// SPDX-License-Identifier: MIT
#include "LMKeyText.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QStringList>

#include <algorithm>

QString LMKeyText::names(std::initializer_list<QKeyCombination> keys) {
    QStringList words;
    for (const QKeyCombination key : keys)
        words << QKeySequence(key).toString(QKeySequence::NativeText);
    return words.join(QStringLiteral(", "));
}

QString LMKeyText::typedText(const QKeyEvent& event) {
    const QString text = event.text();
    const bool command =
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (command || !std::all_of(text.begin(), text.end(), [](QChar c) { return c.isPrint(); }))
        return {};
    return text;
}
