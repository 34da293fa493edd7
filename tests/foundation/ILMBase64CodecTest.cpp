// SPDX-License-Identifier: MIT
#include "ILMBase64Codec.h"

#include <QByteArray>

#include <gtest/gtest.h>

#include <cctype>
#include <random>
#include <string_view>

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

namespace {

// How stored values were encoded and decoded before the codec had its own tables.
std::string QtEncode(const std::string& data) {
    return QByteArray::fromRawData(data.data(), static_cast<qsizetype>(data.size()))
        .toBase64()
        .toStdString();
}

std::string QtDecode(const std::string& text) {
    std::string compact;
    for (const char c : text) {
        if (std::string_view(" \t\r\n\f\v").find(c) == std::string_view::npos)
            compact.push_back(c);
    }
    const auto result = QByteArray::fromBase64Encoding(QByteArray::fromStdString(compact),
                                                       QByteArray::AbortOnBase64DecodingErrors);
    return result ? result.decoded.toStdString() : std::string();
}

std::string RandomBytes(std::mt19937& random, std::size_t size) {
    std::string data(size, '\0');
    for (char& c : data)
        c = static_cast<char>(random());
    return data;
}

} // namespace

TEST(ILMBase64CodecTest, EncodingMatchesQtsOnRandomData) {
    std::mt19937 random(1234);
    for (int round = 0; round < 2000; ++round) {
        const std::string data = RandomBytes(random, random() % 70);
        ASSERT_EQ(ILMBase64Codec::Encode(data), QtEncode(data)) << round;
        ASSERT_EQ(ILMBase64Codec::Decode(QtEncode(data)), data) << round;
    }
}

TEST(ILMBase64CodecTest, DecodingAcceptsAndRefusesExactlyWhatQtsDid) {
    // Mostly alphabet, with padding, white space and stray characters in random
    // places and random lengths: valid text, bad padding, bad lengths, bad bytes.
    const std::string pool = "AZaz09+/QUJDZm9v====  \n\r\t-_!\x80\xff.";
    std::mt19937 random(99);
    int accepted = 0;
    for (int round = 0; round < 20000; ++round) {
        const std::string valid = QtEncode(RandomBytes(random, random() % 20));
        std::string text = valid;
        const int edits = static_cast<int>(random() % 4);
        for (int e = 0; e < edits; ++e) {
            const std::size_t at = text.empty() ? 0 : random() % (text.size() + 1);
            const char c = pool[random() % pool.size()];
            if (random() % 3 == 0 && at < text.size())
                text.erase(at, 1);
            else
                text.insert(at, 1, c);
        }
        const std::string decoded = ILMBase64Codec::Decode(text);
        ASSERT_EQ(decoded, QtDecode(text)) << "round " << round << ": \"" << text << "\"";
        accepted += decoded.empty() ? 0 : 1;
    }
    // Both kinds were tried: texts that decode and texts that are refused.
    EXPECT_GT(accepted, 2000);
    EXPECT_LT(accepted, 18000);
}

TEST(ILMBase64CodecTest, SalvageMatchesDecodingsOfTheRepairedText) {
    std::mt19937 random(7);
    for (int round = 0; round < 2000; ++round) {
        std::string text = QtEncode(RandomBytes(random, random() % 40 + 1));
        text.insert(random() % text.size(), "*");
        const auto decodings = ILMBase64Codec::SalvageDecodings(text);
        std::string alphabetOnly;
        for (const char c : text) {
            if (std::isalnum(static_cast<unsigned char>(c)) || c == '+' || c == '/')
                alphabetOnly.push_back(c);
        }
        if (alphabetOnly.size() % 4 == 1)
            alphabetOnly.pop_back();
        while (alphabetOnly.size() % 4 != 0)
            alphabetOnly.push_back('=');
        const std::string expected = QtDecode(alphabetOnly);
        if (expected.empty())
            continue;
        ASSERT_FALSE(decodings.empty()) << text;
        EXPECT_EQ(decodings.front(), expected) << text;
    }
}
