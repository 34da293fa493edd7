// SPDX-License-Identifier: MIT
#include "ILMFormatNode.h"
#include "ILMJsonReader.h"
#include "ILMJsonWriter.h"
#include "LMFormatReadOptions.h"
#include "LMFormatReadReport.h"
#include "LMFormatTreeFactory.h"
#include "LMTestEnvironment.h"

#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <atomic>

using namespace Lumeran;
using namespace Lumeran::TestSupport;

namespace {

std::shared_ptr<ILMFormatNode> FromText(const std::string& text) {
    return ILMFormatNode::MallocFormatNode(ILMJsonReader::ReadJsonString(text, nullptr));
}

std::shared_ptr<ILMFormatNode> RoundTrip(const std::shared_ptr<const ILMFormatNode>& node) {
    return FromText(ILMJsonWriter::WriteJsonString(node->ToJson()));
}

std::shared_ptr<ILMFormatNode> SampleTree() {
    auto root = MakeNode("Root", "The root", 7);
    auto a = MakeNode("A", "Format A", 100);
    a->AddFormatPreset(MakePreset("mp4", "High Quality"));
    a->AddFormatPreset(MakePreset("mp4", "Low Quality"));
    auto b = MakeNode("B", "Format B", 101);
    b->AddFormatPreset(MakePreset("wav", "Lossless"));
    auto c = MakeNode("C");
    c->AddFormatPreset(MakePreset("mkv", "Deep"));
    b->AddChild(c);
    root->AddChild(a);
    root->AddChild(b);
    return root;
}

} // namespace

TEST(ILMFormatNodeTest, AttributesAreStored) {
    auto node = MakeNode("MP4", "MP4 file format", 100);
    EXPECT_EQ(node->Title(), "MP4");
    EXPECT_EQ(node->Description(), "MP4 file format");
    EXPECT_EQ(node->FaceID(), 100);
    EXPECT_EQ(node->FormatPresetCount(), 0);
    EXPECT_EQ(node->ChildCount(), 0);
}

TEST(ILMFormatNodeTest, AddChildAppendsAtTheEnd) {
    auto root = MakeNode("Root");
    root->AddChild(MakeNode("first"));
    root->AddChild(MakeNode("second"));
    root->AddChild(MakeNode("third"));
    ASSERT_EQ(root->ChildCount(), 3);
    EXPECT_EQ(root->ChildAt(0)->Title(), "first");
    EXPECT_EQ(root->ChildAt(2)->Title(), "third");
    EXPECT_EQ(ILMFormatNode::FirstChild(root)->Title(), "first");
    EXPECT_FALSE(root->ChildAt(3));
    EXPECT_FALSE(root->ChildAt(-1));
}

TEST(ILMFormatNodeTest, ChildLookupsGoByTitle) {
    auto root = SampleTree();
    EXPECT_EQ(root->IndexOfChild("B"), 1);
    EXPECT_EQ(root->IndexOfChild("missing"), -1);
    EXPECT_EQ(root->FindChild("A")->Description(), "Format A");
    EXPECT_FALSE(root->FindChild("C")) << "only direct children are found";
}

TEST(ILMFormatNodeTest, RemoveChildByIndexTitleAndObject) {
    auto root = SampleTree();
    root->AddChild(MakeNode("D"));
    root->RemoveChildAt(0);
    EXPECT_EQ(root->ChildAt(0)->Title(), "B");
    root->RemoveChildAt(10);
    EXPECT_EQ(root->ChildCount(), 2);
    root->RemoveChild(std::string("D"));
    EXPECT_EQ(root->ChildCount(), 1);
    const auto equalButOther = root->ChildAt(0)->Clone(ILMFormatNode::CloneAll);
    root->RemoveChild(std::shared_ptr<const ILMFormatNode>(equalButOther));
    EXPECT_EQ(root->ChildCount(), 1) << "only the very same object is removed";
    root->RemoveChild(std::shared_ptr<const ILMFormatNode>(root->ChildAt(0)));
    EXPECT_EQ(root->ChildCount(), 0);
}

TEST(ILMFormatNodeTest, PresetsAreAppendedFoundAndRemovedByTitle) {
    auto node = MakeNode("MP4");
    node->AddFormatPreset(MakePreset("mp4", "High Quality"));
    node->AddFormatPreset(MakePreset("mp4", "Low Quality"));
    EXPECT_EQ(node->FormatPresetCount(), 2);
    EXPECT_EQ(ILMFormatNode::FirstFormatPreset(node)->Title(), "High Quality");
    EXPECT_EQ(node->FindFormatPreset("Low Quality"), node->FormatPresetAt(1));
    EXPECT_FALSE(node->FindFormatPreset("Medium Quality"));
    EXPECT_FALSE(node->RemoveFormatPreset("Medium Quality"));
    EXPECT_TRUE(node->RemoveFormatPreset("High Quality"));
    EXPECT_EQ(node->FormatPresetCount(), 1);
    EXPECT_FALSE(node->FormatPresetAt(1));
}

TEST(ILMFormatNodeTest, FirstHelpersOfEmptyNodesAreEmpty) {
    EXPECT_FALSE(ILMFormatNode::FirstChild(nullptr));
    EXPECT_FALSE(ILMFormatNode::FirstFormatPreset(std::shared_ptr<const ILMFormatNode>()));
    EXPECT_FALSE(ILMFormatNode::FirstFormatPreset(MakeNode("empty")));
}

TEST(ILMFormatNodeTest, CloneWithOptionOneCopiesOnlyTheNodesOwnAttributes) {
    auto root = SampleTree();
    root->AddFormatPreset(MakePreset("mp4", "Own"));
    const auto copy = root->Clone(1);
    EXPECT_EQ(copy->Title(), "Root");
    EXPECT_EQ(copy->Description(), "The root");
    EXPECT_EQ(copy->FaceID(), 7);
    EXPECT_EQ(copy->FormatPresetCount(), 0);
    EXPECT_EQ(copy->ChildCount(), 0);
    EXPECT_FALSE(copy->Parent());
}

TEST(ILMFormatNodeTest, CloneAllCopiesTheWholeSubtreeDeeply) {
    auto root = SampleTree();
    const auto copy = root->Clone(ILMFormatNode::CloneAll);
    EXPECT_TRUE(copy->IsEqualTo(root));
    EXPECT_NE(copy->ChildAt(0)->FormatPresetAt(0), root->ChildAt(0)->FormatPresetAt(0));
    EXPECT_EQ(copy->ChildAt(1)->Parent(), copy);
    copy->ChildAt(1)->ChildAt(0)->SetTitle("changed");
    EXPECT_EQ(root->ChildAt(1)->ChildAt(0)->Title(), "C");
}

TEST(ILMFormatNodeTest, IsEqualToComparesEverySetting) {
    auto a = SampleTree();
    auto b = SampleTree();
    EXPECT_TRUE(a->IsEqualTo(b));
    b->ChildAt(0)->FormatPresetAt(0)->CurrentVideoCodec()->SetCurrentResolution(2);
    EXPECT_FALSE(a->IsEqualTo(b));
    EXPECT_FALSE(a->IsEqualTo(nullptr));
    auto c = SampleTree();
    c->ChildAt(1)->SetDescription("other");
    EXPECT_FALSE(a->IsEqualTo(c));
}

TEST(ILMFormatNodeTest, JsonRoundTripOfTheDefaultCatalogueIsExact) {
    const auto catalogue = LoadDefaultCatalogue();
    ASSERT_TRUE(catalogue);
    const auto back = RoundTrip(catalogue);
    ASSERT_TRUE(back);
    EXPECT_TRUE(back->IsEqualTo(catalogue));
    EXPECT_EQ(ILMJsonWriter::WriteJsonString(back->ToJson()),
              ILMJsonWriter::WriteJsonString(catalogue->ToJson()));
}

TEST(ILMFormatNodeTest, JsonRoundTripOfRandomTreesIsExact) {
    std::mt19937 random(20261122);
    for (int i = 0; i < 200; ++i) {
        const auto tree = MakeRandomTree(random, 3);
        const auto back = RoundTrip(tree);
        ASSERT_TRUE(back) << "tree " << i;
        EXPECT_TRUE(back->IsEqualTo(tree))
            << "tree " << i << ": " << ILMJsonWriter::WriteJsonString(tree->ToJson());
    }
}

TEST(ILMFormatNodeTest, ReadTreeSetsParents) {
    const auto back = RoundTrip(SampleTree());
    ASSERT_TRUE(back);
    EXPECT_EQ(back->ChildAt(1)->ChildAt(0)->Parent(), back->ChildAt(1));
}

TEST(ILMFormatNodeTest, StoredRecentEntryIsCompact) {
    auto entry = MakeNode("MP4", "MP4 file format", 100);
    auto preset = MakePreset("mp4", "HD 1080p");
    preset->CurrentVideoCodec()->SetCurrentResolution(3);
    entry->AddFormatPreset(preset);
    const auto text = ILMJsonWriter::WriteJsonString(entry->ToJson());
    EXPECT_LT(text.size(), 300u) << text;
}

TEST(ILMFormatNodeTest, WrongTypesGiveEmptyPointer) {
    EXPECT_FALSE(FromText(R"([1,2])"));
    EXPECT_FALSE(FromText(R"({"description":"no title"})"));
    EXPECT_FALSE(FromText(R"({"title":5})"));
    EXPECT_FALSE(FromText(R"({"title":"x","faceId":"seven"})"));
    EXPECT_FALSE(FromText(R"({"title":"x","faceId":-3})"));
    EXPECT_FALSE(FromText(R"({"title":"x","children":{}})"));
    EXPECT_FALSE(FromText(R"({"title":"x","children":[5]})"));
    EXPECT_FALSE(FromText(R"({"title":"x","presets":[{"title":"p"}]})"));
    EXPECT_FALSE(FromText(R"({"title":"x","presets":[{"title":"p","format":"mp4","video":7}]})"));
    EXPECT_FALSE(ILMFormatNode::MallocFormatNode(std::shared_ptr<const ILMJsonValue>()));
}

TEST(ILMFormatNodeTest, UnknownIdsGiveEmptyPointer) {
    EXPECT_FALSE(FromText(R"({"title":"x","presets":[{"title":"p","format":"nope"}]})"));
    EXPECT_FALSE(FromText(
        R"({"title":"x","presets":[{"title":"p","format":"mp4","video":{"codec":"vp9"}}]})"));
    EXPECT_FALSE(FromText(
        R"({"title":"x","presets":[{"title":"p","format":"mp4","video":{"codec":"h264","resolution":"9x9"}}]})"));
    EXPECT_FALSE(FromText(
        R"({"title":"x","presets":[{"title":"p","format":"wav","audio":{"codec":"pcm_s16le","quality":"high"}}]})"));
}

TEST(ILMFormatNodeTest, NestingBeyondTheLimitGivesEmptyPointer) {
    std::string text;
    const int depth = ILMFormatNode::MaxDepth + 5;
    for (int i = 0; i < depth; ++i)
        text += R"({"title":"n","children":[)";
    text += R"({"title":"leaf"})";
    for (int i = 0; i < depth; ++i)
        text += "]}";
    EXPECT_FALSE(FromText(text));
    std::string deep(10000, '[');
    deep += std::string(10000, ']');
    EXPECT_FALSE(FromText(deep));
}

TEST(ILMFormatNodeTest, AbsurdlyLongTextGivesEmptyPointer) {
    std::string text = R"({"title":")";
    text.append(50 * 1024 * 1024, 'x');
    text += R"("})";
    EXPECT_FALSE(FromText(text));
}

TEST(ILMFormatNodeTest, BrokenFilesGiveEmptyPointer) {
    QTemporaryDir dir;
    const auto write = [&](const QString& name, const QByteArray& data) {
        return WriteTestFile(dir, name, data);
    };
    const auto read = [](const std::string& path) {
        return ILMFormatNode::MallocFormatNode(ILMJsonReader::ReadJsonFile(path, nullptr));
    };
    EXPECT_FALSE(read(write(QStringLiteral("empty.json"), {})));
    EXPECT_FALSE(read(
        write(QStringLiteral("truncated.json"), R"({"title":"Formats","children":[{"title")")));
    EXPECT_FALSE(read(write(QStringLiteral("utf8.json"), "{\"title\":\"\xc3\x28\"}")));
    EXPECT_FALSE(read(dir.path().toStdString()));
    EXPECT_FALSE(read(dir.filePath(QStringLiteral("missing.json")).toStdString()));
}

namespace {

std::shared_ptr<ILMFormatNode> Tolerantly(const std::string& text, LMFormatReadReport* report) {
    LMFormatReadOptions options;
    options.keepUnreadable = true;
    options.report = report;
    return ILMFormatNode::MallocFormatNode(ILMJsonReader::ReadJsonString(text, nullptr), options);
}

} // namespace

TEST(ILMFormatNodeTest, SettersCutTextsToTheLimitTheReaderAccepts) {
    auto node = MakeNode("x");
    node->SetTitle(std::string(ILMFormatNode::MaxTextLength + 10, 'n'));
    EXPECT_EQ(QString::fromStdString(node->Title()).size(), ILMFormatNode::MaxTextLength);
    // A character outside the basic plane is never cut in half.
    std::string emoji;
    for (int i = 0; i < ILMFormatNode::MaxTextLength; ++i)
        emoji += "\xF0\x9F\x8E\xAC";
    auto preset = MakePreset("mp4", "p");
    preset->SetDescription(emoji);
    EXPECT_EQ(QString::fromStdString(preset->Description()).size(), ILMFormatNode::MaxTextLength);
    preset->SetTitle("y");
    preset->SetFaceID(-5);
    EXPECT_EQ(preset->FaceID(), 0);
    node->SetFaceID(2000000000);
    EXPECT_EQ(node->FaceID(), ILMFormatNode::MaxFaceID);
    node->AddFormatPreset(preset);
    EXPECT_TRUE(RoundTrip(node));
    EXPECT_FALSE(
        ILMFormatNode::IsAcceptableText(std::string(ILMFormatNode::MaxTextLength + 1, 'n')));
    EXPECT_TRUE(ILMFormatNode::IsAcceptableText(std::string(ILMFormatNode::MaxTextLength, 'n')));
}

TEST(ILMFormatNodeTest, ReadingKeepUnreadableCarriesWhatItCannotReadInItsPlace) {
    const std::string text =
        R"({"children":[{"presets":[{"audio":{"codec":"aac"},"format":"mp4","title":"a","video":{"codec":"h264"}},{"format":"future","title":"b"},)"
        R"({"audio":{"codec":"aac"},"format":"mp4","title":"c","video":{"codec":"h264"}}],"title":"G"},{"presets":[{"format":"mp4","title":"d",)"
        R"("video":{"codec":"h266"}}],"title":"Only unreadable"},{"title":7}],"title":"Custom"})";
    EXPECT_FALSE(FromText(text)); // a catalogue is all or nothing
    LMFormatReadReport report;
    const auto tree = Tolerantly(text, &report);
    ASSERT_TRUE(tree);
    EXPECT_EQ(report.carried, 3);
    ASSERT_EQ(tree->ChildCount(), 1);
    EXPECT_EQ(tree->ChildAt(0)->FormatPresetCount(), 2);
    EXPECT_EQ(ILMFormatNode::UnreadableEntryCount(tree), 3);
    EXPECT_EQ(ILMJsonWriter::WriteJsonString(tree->ToJson()), text);
}

TEST(ILMFormatNodeTest, FieldsOfAnotherVersionAndUnreadableAttributesAreWrittenBackAsRead) {
    const std::string text =
        R"({"faceId":5000000000,"presets":[{"audio":{"codec":"aac"},"format":"mp4","rating":{"stars":5},"title":"p","video":{"codec":"h264"}}],)"
        R"("title":"R","zz":[1,2]})";
    LMFormatReadReport report;
    const auto tree = Tolerantly(text, &report);
    ASSERT_TRUE(tree);
    EXPECT_EQ(report.repaired, 1);
    EXPECT_EQ(tree->FaceID(), 0);
    EXPECT_EQ(ILMJsonWriter::WriteJsonString(tree->ToJson()), text);
}

TEST(ILMFormatNodeTest, SettingAChildAsideKeepsItInWhatIsWritten) {
    const std::string text =
        R"({"children":[{"presets":[{"audio":{"codec":"aac"},"format":"mp4","title":"a","video":{"codec":"h264"}},{"format":"future","title":"b"}],)"
        R"("title":"G"},{"presets":[{"audio":{"codec":"aac"},"format":"mp4","title":"c","video":{"codec":"h264"}}],"title":"H"}],"title":"Custom"})";
    const auto tree = Tolerantly(text, nullptr);
    ASSERT_TRUE(tree);
    ASSERT_TRUE(tree->ChildAt(0)->RemoveFormatPreset("a"));
    ASSERT_TRUE(ILMFormatNode::SetChildAside(tree, "G"));
    EXPECT_EQ(tree->ChildCount(), 1);
    EXPECT_EQ(
        ILMJsonWriter::WriteJsonString(tree->ToJson()),
        R"({"children":[{"presets":[{"format":"future","title":"b"}],"title":"G"},)"
        R"({"presets":[{"audio":{"codec":"aac"},"format":"mp4","title":"c","video":{"codec":"h264"}}],"title":"H"}],"title":"Custom"})");
    EXPECT_FALSE(ILMFormatNode::SetChildAside(tree, "nobody"));
}

TEST(ILMFormatNodeTest, ASetCancelFlagStopsTheRead) {
    std::atomic<bool> cancel = true;
    LMFormatReadOptions options;
    options.cancel = &cancel;
    EXPECT_FALSE(ILMFormatNode::MallocFormatNode(
        ILMJsonReader::ReadJsonString(R"({"title":"x"})", nullptr), options));
}
