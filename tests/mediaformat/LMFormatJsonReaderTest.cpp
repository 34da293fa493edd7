// SPDX-License-Identifier: MIT
// What the tree reader makes of text that only it sees: escapes in keys and
// strings, descriptions that presets share, and trees given as Qt values.
#include "ILMFormatNode.h"
#include "ILMJsonReader.h"

#include <QJsonArray>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace Lumeran;

namespace {

std::shared_ptr<ILMFormatNode> Read(const std::string& text) {
    return ILMFormatNode::MallocFormatNode(ILMJsonReader::ReadJsonString(text, nullptr));
}

} // namespace

TEST(LMFormatJsonReaderTest, EscapesInKeysAndStringsReadAsTheirText) {
    const auto node = Read(R"({"ti\u0074le":"A\"B","presets":[{"f\u006frmat":"mp4",)"
                           R"("title":"x\u00e9\n","description":"d\\e"}]})");
    ASSERT_TRUE(node);
    EXPECT_EQ(node->Title(), "A\"B");
    ASSERT_EQ(node->FormatPresetCount(), 1);
    EXPECT_EQ(node->FormatPresetAt(0)->Title(), "x\xC3\xA9\n");
    EXPECT_EQ(node->FormatPresetAt(0)->Description(), "d\\e");
}

TEST(LMFormatJsonReaderTest, PresetsReadWithTheSameDescriptionAreChangedOneAtATime) {
    const auto node = Read(R"({"title":"G","presets":[)"
                           R"({"format":"mp4","title":"a","description":"Same"},)"
                           R"({"format":"mp4","title":"b","description":"Same"}]})");
    ASSERT_TRUE(node);
    node->FormatPresetAt(0)->SetDescription("Changed");
    EXPECT_EQ(node->FormatPresetAt(0)->Description(), "Changed");
    EXPECT_EQ(node->FormatPresetAt(1)->Description(), "Same");
    node->FormatPresetAt(1)->SetDescription("");
    EXPECT_EQ(node->FormatPresetAt(1)->Description(), "");
    EXPECT_EQ(node->FormatPresetAt(0)->Description(), "Changed");
}

TEST(LMFormatJsonReaderTest, ATreeGivenAsAQtValueReadsAsItsText) {
    const QJsonObject preset{{QStringLiteral("format"), QStringLiteral("mkv")},
                             {QStringLiteral("title"), QStringLiteral("P")}};
    const QJsonObject root{{QStringLiteral("title"), QStringLiteral("R")},
                           {QStringLiteral("presets"), QJsonArray{preset}}};
    const auto fromQt = ILMFormatNode::MallocFormatNode(ILMJsonValue::MallocJsonValue(root));
    const auto fromText = Read(R"({"presets":[{"format":"mkv","title":"P"}],"title":"R"})");
    ASSERT_TRUE(fromQt);
    ASSERT_TRUE(fromText);
    EXPECT_TRUE(fromQt->IsEqualTo(fromText));
}

TEST(LMFormatJsonReaderTest, AListRootIsNoTree) {
    EXPECT_FALSE(Read(R"([{"title":"R"}])"));
    EXPECT_FALSE(ILMFormatNode::MallocFormatNode(ILMJsonValue::MallocJsonValue(QJsonArray{1})));
}
