// SPDX-License-Identifier: MIT
#include "ILMBase64Codec.h"

#include <QByteArray>

#include <algorithm>

namespace Lumeran {

namespace {

QByteArray View(std::string_view data) {
    return QByteArray::fromRawData(data.data(), static_cast<qsizetype>(data.size()));
}

bool IsSpace(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f' || c == '\v';
}

bool IsAlphabet(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '+' ||
           c == '/';
}

std::string Strict(std::string_view text) {
    const auto result =
        QByteArray::fromBase64Encoding(View(text), QByteArray::AbortOnBase64DecodingErrors);
    if (!result)
        return {};
    return result.decoded.toStdString();
}

// Decodes alphabet characters only, padding what a damaged tail left short.
std::string Lenient(std::string text) {
    if (text.size() % 4 == 1)
        text.pop_back(); // a lone sextet holds no whole byte
    while (text.size() % 4 != 0)
        text.push_back('=');
    return Strict(text);
}

} // namespace

std::string ILMBase64Codec::Encode(std::string_view data) {
    return View(data).toBase64().toStdString();
}

std::string ILMBase64Codec::Decode(std::string_view text) {
    if (std::none_of(text.begin(), text.end(), IsSpace))
        return Strict(text);
    std::string compact;
    compact.reserve(text.size());
    std::copy_if(text.begin(), text.end(), std::back_inserter(compact),
                 [](char c) { return !IsSpace(c); });
    return Strict(compact);
}

std::vector<std::string> ILMBase64Codec::SalvageDecodings(std::string_view text) {
    std::string alphabetOnly;
    std::string prefix;
    bool damaged = false;
    for (const char c : text) {
        if (IsSpace(c))
            continue;
        if (!IsAlphabet(c)) {
            damaged = damaged || c != '=';
            continue;
        }
        alphabetOnly.push_back(c);
        if (!damaged)
            prefix.push_back(c);
    }
    std::vector<std::string> decodings;
    for (std::string candidate : {std::move(alphabetOnly), std::move(prefix)}) {
        std::string decoded = Lenient(std::move(candidate));
        if (!decoded.empty() &&
            std::find(decodings.begin(), decodings.end(), decoded) == decodings.end())
            decodings.push_back(std::move(decoded));
    }
    return decodings;
}

} // namespace Lumeran
