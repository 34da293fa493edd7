// SPDX-License-Identifier: MIT
#include "ILMStringHelper.h"

#include <QString>

#include <algorithm>

namespace Lumeran {

std::string ILMStringHelper::ToLower(const std::string& text) {
    const bool ascii =
        std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; });
    if (ascii) {
        std::string result(text);
        for (char& c : result) {
            if (c >= 'A' && c <= 'Z')
                c = static_cast<char>(c - 'A' + 'a');
        }
        return result;
    }
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))
        .toLower()
        .toStdString();
}

} // namespace Lumeran
