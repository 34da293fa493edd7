// SPDX-License-Identifier: MIT
#include "LMStableHash.h"

#include <gtest/gtest.h>

#include <string>

using namespace Lumeran;

// Names of files written by earlier runs are looked up by this hash, so its value
// for given bytes must never change: these are XXH64's published results.
TEST(LMStableHashTest, GivesTheSameValueForTheSameBytesEverywhere) {
    EXPECT_EQ(LMStableHash::Of(""), 0xEF46DB3751D8E999ULL);
    EXPECT_EQ(LMStableHash::Of("a"), 0xD24EC4F1A98C6E5BULL);
    EXPECT_EQ(LMStableHash::Of("abc"), 0x44BC2CF5AD770999ULL);
    EXPECT_EQ(LMStableHash::Of("0123456789abcdefghijklmnopqrstuvwxyz"), 0x69196C1B3AF0BFF9ULL);
    std::string bytes;
    for (int round = 0; round < 4; ++round) {
        for (int i = 0; i < 256; ++i)
            bytes.push_back(static_cast<char>(i));
    }
    bytes += "tail!";
    EXPECT_EQ(LMStableHash::Of(bytes), 0x92FD9DCCCA84E2EBULL);
}

TEST(LMStableHashTest, EveryByteAndTheLengthChangeTheValue) {
    const std::string base(100, 'x');
    for (std::size_t i = 0; i < base.size(); ++i) {
        std::string changed = base;
        changed[i] = 'y';
        EXPECT_NE(LMStableHash::Of(changed), LMStableHash::Of(base)) << i;
    }
    EXPECT_NE(LMStableHash::Of(base + '\0'), LMStableHash::Of(base));
}
