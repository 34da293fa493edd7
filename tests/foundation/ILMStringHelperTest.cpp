// SPDX-License-Identifier: MIT
#include "ILMStringHelper.h"

#include <gtest/gtest.h>

using namespace Lumeran;

TEST(ILMStringHelperTest, LowersAscii) {
    EXPECT_EQ(ILMStringHelper::ToLower("High Quality MP4 1080P"), "high quality mp4 1080p");
    EXPECT_EQ(ILMStringHelper::ToLower(""), "");
    EXPECT_EQ(ILMStringHelper::ToLower("already lower 123 -_"), "already lower 123 -_");
}

TEST(ILMStringHelperTest, LowersNonAsciiText) {
    EXPECT_EQ(ILMStringHelper::ToLower("QUALITÉ"), "qualité");
    EXPECT_EQ(ILMStringHelper::ToLower("ÄÖÜ"), "äöü");
    EXPECT_EQ(ILMStringHelper::ToLower("ΑΒΓ Привет"), "αβγ привет");
}

TEST(ILMStringHelperTest, LeavesScriptsWithoutCaseUnchanged) {
    EXPECT_EQ(ILMStringHelper::ToLower("高画質 MP4"), "高画質 mp4");
}
