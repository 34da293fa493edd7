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
    EXPECT_EQ(ILMBase64Codec::Decode("Zm9v YmFy"), "");
    EXPECT_EQ(ILMBase64Codec::Decode("Zm9vYmFy$"), "");
    EXPECT_EQ(ILMBase64Codec::Decode("{\"title\":\"x\"}"), "");
}

TEST(ILMBase64CodecTest, DecodeOfEmptyTextIsEmpty) {
    EXPECT_EQ(ILMBase64Codec::Decode(""), "");
}
