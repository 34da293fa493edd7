// SPDX-License-Identifier: MIT
#include "ILMBase64Codec.h"

#include <gtest/gtest.h>

using namespace Lumeran;

TEST(ILMBase64CodecTest, EncodesStandardAlphabetWithPadding) {
    EXPECT_EQ(ILMBase64Codec::Encode(""), "");
    EXPECT_EQ(ILMBase64Codec::Encode("f"), "Zg==");
    EXPECT_EQ(ILMBase64Codec::Encode("fo"), "Zm8=");
    EXPECT_EQ(ILMBase64Codec::Encode("foobar"), "Zm9vYmFy");
    EXPECT_EQ(ILMBase64Codec::Encode(std::string("\xfb\xff", 2)), "+/8=");
}

TEST(ILMBase64CodecTest, DecodeRoundTripsBinaryData) {
    std::string data;
    for (int i = 0; i < 256; ++i)
        data.push_back(static_cast<char>(i));
    EXPECT_EQ(ILMBase64Codec::Decode(ILMBase64Codec::Encode(data)), data);
}

TEST(ILMBase64CodecTest, DecodeRejectsInvalidInput) {
    EXPECT_EQ(ILMBase64Codec::Decode("not base64!"), "");
    EXPECT_EQ(ILMBase64Codec::Decode("Zm9v-YmFy"), "");
    EXPECT_EQ(ILMBase64Codec::Decode("Zm9vYmFy$"), "");
    EXPECT_EQ(ILMBase64Codec::Decode("{\"title\":\"x\"}"), "");
}

TEST(ILMBase64CodecTest, DecodeOfEmptyTextIsEmpty) {
    EXPECT_EQ(ILMBase64Codec::Decode(""), "");
}

TEST(ILMBase64CodecTest, DecodeIgnoresWhiteSpaceAndLineBreaksOfWrappedText) {
    const std::string data(200, 'x');
    const std::string encoded = ILMBase64Codec::Encode(data);
    std::string wrapped; // as the base64 tool and MIME write it
    for (std::size_t i = 0; i < encoded.size(); i += 76)
        wrapped += encoded.substr(i, 76) + (i % 152 == 0 ? "\r\n" : "\n");
    EXPECT_EQ(ILMBase64Codec::Decode(wrapped), data);
    EXPECT_EQ(ILMBase64Codec::Decode(" Zm9v\tYmFy \n"), "foobar");
}

TEST(ILMBase64CodecTest, SalvageFindsWhatDamagedTextStillHolds) {
    const std::string encoded = ILMBase64Codec::Encode("a long enough text to damage");
    std::string damaged = encoded;
    damaged.insert(8, "!*");
    ASSERT_EQ(ILMBase64Codec::Decode(damaged), "");
    const auto decodings = ILMBase64Codec::SalvageDecodings(damaged);
    ASSERT_FALSE(decodings.empty());
    EXPECT_EQ(decodings.front(), "a long enough text to damage");
    const auto prefix = ILMBase64Codec::SalvageDecodings(encoded.substr(0, 12) + "%%%%");
    ASSERT_FALSE(prefix.empty());
    EXPECT_EQ(prefix.front(), "a long en");
    EXPECT_TRUE(ILMBase64Codec::SalvageDecodings("!!!").empty());
}
