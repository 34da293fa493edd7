// SPDX-License-Identifier: MIT
#pragma once

#include "LMFormatInternationalizationMgr.h"

#include <QString>

#include <ostream>

// Failed comparisons of texts print the text, not its bytes.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

namespace Lumeran::TestSupport {

// The text the popup shows for key in the current language.
inline QString Localized(const char* key) {
    return LMFormatInternationalizationMgr::classStringForKey(QString::fromUtf8(key));
}

} // namespace Lumeran::TestSupport
