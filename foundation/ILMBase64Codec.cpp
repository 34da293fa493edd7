// SPDX-License-Identifier: MIT
#include "ILMBase64Codec.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace Lumeran {

namespace {

constexpr char kAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::uint8_t kNotInAlphabet = 0xFF;

// Sextet of every byte; kNotInAlphabet for the padding '=' and everything else.
constexpr std::array<std::uint8_t, 256> MakeSextets() {
    std::array<std::uint8_t, 256> table{};
    table.fill(kNotInAlphabet);
    for (std::uint8_t i = 0; i < 64; ++i)
        table[static_cast<unsigned char>(kAlphabet[i])] = i;
    return table;
}
constexpr std::array<std::uint8_t, 256> kSextets = MakeSextets();

// The two characters of every 12 bits: a group of three bytes is written with
// two look-ups instead of four.
using CharPair = std::array<char, 2>;
constexpr std::array<CharPair, 4096> MakePairs() {
    std::array<CharPair, 4096> pairs{};
    for (std::size_t i = 0; i < pairs.size(); ++i)
        pairs[i] = {kAlphabet[i >> 6], kAlphabet[i & 63]};
    return pairs;
}
constexpr std::array<CharPair, 4096> kPairs = MakePairs();

bool IsSpace(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f' || c == '\v';
}

bool IsAlphabet(char c) {
    return kSextets[static_cast<unsigned char>(c)] != kNotInAlphabet;
}

// Strict decoding, as stored values have always been read: any length, the last
// partial group's spare bits dropped; '=' only as one or two final characters of
// text whose length is a multiple of four; anything else refuses the whole text.
bool Strict(std::string_view text, std::string* out) {
    const std::size_t size = text.size();
    std::size_t end = size;
    if (end > 0 && text[end - 1] == '=') {
        --end;
        if (end > 0 && text[end - 1] == '=')
            --end;
        if (size % 4 != 0)
            return false;
    }
    out->clear();
    out->resize(end / 4 * 3 + 3);
    char* write = out->data();
    const auto* read = reinterpret_cast<const unsigned char*>(text.data());
    std::size_t i = 0;
    // Whole groups of four: one table look-up per character, three bytes out.
    for (; i + 4 <= end; i += 4) {
        const std::uint32_t a = kSextets[read[i]];
        const std::uint32_t b = kSextets[read[i + 1]];
        const std::uint32_t c = kSextets[read[i + 2]];
        const std::uint32_t d = kSextets[read[i + 3]];
        if (((a | b | c | d) & 0xC0) != 0) // a sextet is below 64; kNotInAlphabet is not
            return false;
        const std::uint32_t bits = a << 18 | b << 12 | c << 6 | d;
        *write++ = static_cast<char>(bits >> 16);
        *write++ = static_cast<char>(bits >> 8);
        *write++ = static_cast<char>(bits);
    }
    // The last, partial group: a byte out for every eight bits, spare bits dropped.
    std::uint32_t bits = 0;
    int pending = 0;
    for (; i < end; ++i) {
        const std::uint32_t sextet = kSextets[read[i]];
        if (sextet == kNotInAlphabet)
            return false;
        bits = bits << 6 | sextet;
        pending += 6;
        if (pending >= 8) {
            pending -= 8;
            *write++ = static_cast<char>(bits >> pending);
            bits &= (1u << pending) - 1;
        }
    }
    out->resize(static_cast<std::size_t>(write - out->data()));
    return true;
}

std::string Strict(std::string_view text) {
    std::string out;
    if (!Strict(text, &out))
        return {};
    return out;
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
    std::string out((data.size() + 2) / 3 * 4, '=');
    const auto* read = reinterpret_cast<const unsigned char*>(data.data());
    char* write = out.data();
    std::size_t i = 0;
    for (; i + 3 <= data.size(); i += 3) {
        const std::uint32_t bits = std::uint32_t(read[i]) << 16 | std::uint32_t(read[i + 1]) << 8 |
                                   std::uint32_t(read[i + 2]);
        std::memcpy(write, kPairs[bits >> 12].data(), 2);
        std::memcpy(write + 2, kPairs[bits & 0xFFF].data(), 2);
        write += 4;
    }
    if (const std::size_t rest = data.size() - i; rest > 0) {
        std::uint32_t bits = std::uint32_t(read[i]) << 16;
        if (rest == 2)
            bits |= std::uint32_t(read[i + 1]) << 8;
        *write++ = kAlphabet[bits >> 18];
        *write++ = kAlphabet[(bits >> 12) & 63];
        if (rest == 2)
            *write = kAlphabet[(bits >> 6) & 63];
    }
    return out;
}

std::string ILMBase64Codec::Decode(std::string_view text) {
    // White space is never valid in itself: text that decodes as it stands has
    // none, so it is only looked for in text that does not.
    std::string decoded;
    if (Strict(text, &decoded))
        return decoded;
    if (std::none_of(text.begin(), text.end(), IsSpace))
        return {};
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
