// SPDX-License-Identifier: MIT
#include "LMStableHash.h"

#include <bit>
#include <cstring>

namespace Lumeran {

namespace {

constexpr std::uint64_t kPrime1 = 0x9E3779B185EBCA87ULL;
constexpr std::uint64_t kPrime2 = 0xC2B2AE3D27D4EB4FULL;
constexpr std::uint64_t kPrime3 = 0x165667B19E3779F9ULL;
constexpr std::uint64_t kPrime4 = 0x85EBCA77C2B2AE63ULL;
constexpr std::uint64_t kPrime5 = 0x27D4EB2F165667C5ULL;

constexpr std::uint64_t RotateLeft(std::uint64_t value, int bits) {
    return (value << bits) | (value >> (64 - bits));
}

// Words are read as little-endian whatever the machine, so the hash does not
// change with it.
template <typename Word>
Word ReadLittleEndian(const unsigned char* at) {
    Word word = 0;
    std::memcpy(&word, at, sizeof word);
    if constexpr (std::endian::native == std::endian::big) {
        if constexpr (sizeof word == 8)
            word = __builtin_bswap64(word);
        else
            word = __builtin_bswap32(word);
    }
    return word;
}

std::uint64_t Round(std::uint64_t accumulator, std::uint64_t word) {
    accumulator += word * kPrime2;
    return RotateLeft(accumulator, 31) * kPrime1;
}

std::uint64_t MergeRound(std::uint64_t hash, std::uint64_t lane) {
    hash ^= Round(0, lane);
    return hash * kPrime1 + kPrime4;
}

} // namespace

std::uint64_t LMStableHash::Of(std::string_view bytes) {
    const auto* at = reinterpret_cast<const unsigned char*>(bytes.data());
    const std::size_t size = bytes.size();
    const unsigned char* const end = at + size;
    std::uint64_t hash = 0;
    if (size >= 32) {
        // Four independent lanes of a word each, so the multiplications overlap.
        std::uint64_t lane1 = kPrime1 + kPrime2;
        std::uint64_t lane2 = kPrime2;
        std::uint64_t lane3 = 0;
        std::uint64_t lane4 = 0 - kPrime1;
        const unsigned char* const lastStripe = end - 32;
        do {
            lane1 = Round(lane1, ReadLittleEndian<std::uint64_t>(at));
            lane2 = Round(lane2, ReadLittleEndian<std::uint64_t>(at + 8));
            lane3 = Round(lane3, ReadLittleEndian<std::uint64_t>(at + 16));
            lane4 = Round(lane4, ReadLittleEndian<std::uint64_t>(at + 24));
            at += 32;
        } while (at <= lastStripe);
        hash = RotateLeft(lane1, 1) + RotateLeft(lane2, 7) + RotateLeft(lane3, 12) +
               RotateLeft(lane4, 18);
        hash = MergeRound(hash, lane1);
        hash = MergeRound(hash, lane2);
        hash = MergeRound(hash, lane3);
        hash = MergeRound(hash, lane4);
    } else {
        hash = kPrime5;
    }
    hash += size;
    for (; at + 8 <= end; at += 8) {
        hash ^= Round(0, ReadLittleEndian<std::uint64_t>(at));
        hash = RotateLeft(hash, 27) * kPrime1 + kPrime4;
    }
    if (at + 4 <= end) {
        hash ^= std::uint64_t(ReadLittleEndian<std::uint32_t>(at)) * kPrime1;
        hash = RotateLeft(hash, 23) * kPrime2 + kPrime3;
        at += 4;
    }
    for (; at < end; ++at) {
        hash ^= *at * kPrime5;
        hash = RotateLeft(hash, 11) * kPrime1;
    }
    hash ^= hash >> 33;
    hash *= kPrime2;
    hash ^= hash >> 29;
    hash *= kPrime3;
    hash ^= hash >> 32;
    return hash;
}

} // namespace Lumeran
