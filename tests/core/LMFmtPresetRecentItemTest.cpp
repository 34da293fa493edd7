// SPDX-License-Identifier: MIT
#include "ILMArtworkImageMgr.h"
#include "ILMFmtPresetDataSource.h"
#include "ILMFmtPresetRecentItem.h"
#include "LMCoreTestSupport.h"
#include "LMDefaultCatalogue.h"
#include "LMSingleton_p.h"
#include "LMTestEnvironment.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Lumeran;
using namespace Lumeran::TestSupport;
using ::testing::_;
using ::testing::NiceMock;
using ::testing::Return;

namespace {

using Item = std::shared_ptr<const ILMFmtPresetRecentItem>;

Item MakeItem(const std::string& nodeTitle, const std::string& presetTitle,
              const std::string& nodeDescription = "Node description", int nodeFaceID = 100) {
    auto node = MakeNode(nodeTitle, nodeDescription, nodeFaceID);
    auto preset = MakePreset("mp4", presetTitle);
    node->AddFormatPreset(preset);
    return ILMFmtPresetRecentItem::MallocFmtPresetRecentItem(preset, node);
}

} // namespace

// ---- Title, description, face id ------------------------------------------------

TEST(LMFmtPresetRecentItemTest, TitleIsThePresetTitleAloneWhenItContainsTheNodeTitle) {
    EXPECT_EQ(MakeItem("MP4", "MP4")->Title(), "MP4");
    EXPECT_EQ(MakeItem("MP4", "HEVC MP4 4K")->Title(), "HEVC MP4 4K");
}

TEST(LMFmtPresetRecentItemTest, TitleStartsWithTheNodeTitleWhenThePresetTitleLacksIt) {
    EXPECT_EQ(MakeItem("MP4", "High Quality")->Title(), "MP4 High Quality");
    // The containment test is exact: a differently cased node title is not found.
    EXPECT_EQ(MakeItem("MP4", "mp4 small")->Title(), "MP4 mp4 small");
}

TEST(LMFmtPresetRecentItemTest, DescriptionAndFaceIdComeFromTheNodeNotThePreset) {
    auto node = MakeNode("WAV", "Waveform audio", 200);
    auto preset = MakePreset("wav", "Lossless", "PCM 16 bit");
    preset->SetFaceID(999);
    const auto item = ILMFmtPresetRecentItem::MallocFmtPresetRecentItem(preset, node);
    EXPECT_EQ(item->Description(), "Waveform audio");
    EXPECT_EQ(item->FaceID(), 200);
    EXPECT_EQ(item->FormatNode(), node);
    EXPECT_EQ(item->FormatPreset(), preset);
}

TEST(LMFmtPresetRecentItemTest, EntryWithoutAPresetIsEmptyAndHasNoTitleDescriptionOrFaceId) {
    const auto item = ILMFmtPresetRecentItem::MallocFmtPresetRecentItem(
        nullptr, MakeNode("MP4", "MP4 file format", 100));
    EXPECT_TRUE(item->IsEmpty());
    EXPECT_EQ(item->Title(), "");
    EXPECT_EQ(item->Description(), "");
    EXPECT_EQ(item->FaceID(), 0);
}

TEST(LMFmtPresetRecentItemTest, IsEmptyLooksOnlyAtThePreset) {
    const auto withoutNode =
        ILMFmtPresetRecentItem::MallocFmtPresetRecentItem(MakePreset("mp4", "Alone"), nullptr);
    EXPECT_FALSE(withoutNode->IsEmpty());
    EXPECT_EQ(withoutNode->Title(), "Alone");
    EXPECT_EQ(withoutNode->Description(), "");
    EXPECT_EQ(withoutNode->FaceID(), 0);
    EXPECT_FALSE(MakeItem("MP4", "High")->IsEmpty());
}

// ---- Clone and equality -----------------------------------------------------------

TEST(LMFmtPresetRecentItemTest, CloneIsANewEntryOverTheSameNodeAndPresetObjects) {
    const auto item = MakeItem("MP4", "High Quality");
    const auto clone = item->Clone();
    EXPECT_NE(clone.get(), item.get());
    EXPECT_EQ(clone->FormatNode().get(), item->FormatNode().get());
    EXPECT_EQ(clone->FormatPreset().get(), item->FormatPreset().get());
    EXPECT_TRUE(clone->IsEqualTo(item));
}

TEST(LMFmtPresetRecentItemTest, EntriesOverEqualCopiesAreEqual) {
    const auto item = MakeItem("MP4", "High Quality");
    const auto copy = ILMFmtPresetRecentItem::MallocFmtPresetRecentItem(
        item->FormatPreset()->Clone(), item->FormatNode()->Clone(ILMFormatNode::CloneAll));
    EXPECT_TRUE(item->IsEqualTo(copy));
    EXPECT_TRUE(copy->IsEqualTo(item));
}

TEST(LMFmtPresetRecentItemTest, EntryOverACatalogueNodeEqualsTheOnePresetCopyOfIt) {
    // What the recent list keeps of a choice: the node alone, with the preset.
    auto catalogueNode = MakeFormat(
        "MP4", "MP4 file format", 100, "mp4",
        {QStringLiteral("High Quality"), QStringLiteral("HD 720p"), QStringLiteral("HD 1080p")});
    catalogueNode->AddChild(MakeNode("Nested"));
    const auto preset = catalogueNode->FindFormatPreset("HD 720p");
    auto kept = catalogueNode->Clone(ILMFormatNode::CloneAttributes);
    auto keptPreset = preset->Clone();
    kept->AddFormatPreset(keptPreset);

    const auto chosen = ILMFmtPresetRecentItem::MallocFmtPresetRecentItem(preset, catalogueNode);
    const auto listed = ILMFmtPresetRecentItem::MallocFmtPresetRecentItem(keptPreset, kept);
    EXPECT_TRUE(chosen->IsEqualTo(listed));
    EXPECT_TRUE(listed->IsEqualTo(chosen));
    // Another preset of the same node is another entry.
    EXPECT_FALSE(ILMFmtPresetRecentItem::MallocFmtPresetRecentItem(
                     catalogueNode->FindFormatPreset("HD 1080p"), catalogueNode)
                     ->IsEqualTo(listed));
}

TEST(LMFmtPresetRecentItemTest, EntriesDifferingInAnyPartAreNotEqual) {
    const auto item = MakeItem("MP4", "High Quality", "MP4 file format", 100);
    EXPECT_FALSE(item->IsEqualTo(MakeItem("MP4", "High Quality", "MP4 file format", 101)));
    EXPECT_FALSE(item->IsEqualTo(MakeItem("MP4", "High Quality", "MP4 File Format", 100)));
    EXPECT_FALSE(item->IsEqualTo(MakeItem("MP4", "Low Quality", "MP4 file format", 100)));
    EXPECT_FALSE(item->IsEqualTo(nullptr));

    // Same texts, but the preset's codec choice differs.
    auto other = item->FormatPreset()->Clone();
    other->CurrentVideoCodec()->SetCurrentResolution(1);
    EXPECT_FALSE(item->IsEqualTo(
        ILMFmtPresetRecentItem::MallocFmtPresetRecentItem(other, item->FormatNode())));
}

namespace {

// Texts and answers of two entries over mock nodes and presets, and which
// comparisons must have been reached.
struct EqualityRow {
    const char* name;
    int otherFaceID;
    const char* otherDescription;
    const char* otherPresetTitle;
    bool nodesEqual;
    bool presetsEqual;
    bool reachesDescription;
    bool reachesTitle;
    bool reachesNode;
    bool reachesPreset;
    bool expected;
};

// Rows print as their name in test listings.
void PrintTo(const EqualityRow& row, std::ostream* out) {
    *out << row.name;
}

class RecentItemEqualityOrderTest : public ::testing::TestWithParam<EqualityRow> {};

} // namespace

TEST_P(RecentItemEqualityOrderTest, IsEqualToTestsFaceIdDescriptionTitleNodeThenPresetAndStops) {
    const EqualityRow& row = GetParam();
    auto myNode = std::make_shared<NiceMock<MockFormatNode>>();
    auto myPreset = std::make_shared<NiceMock<MockFormatPreset>>();
    auto otherNode = std::make_shared<NiceMock<MockFormatNode>>();
    auto otherPreset = std::make_shared<NiceMock<MockFormatPreset>>();
    // Nodes are compared through copies of their own attributes.
    auto myOwn = std::make_shared<NiceMock<MockFormatNode>>();
    auto theirOwn = std::make_shared<NiceMock<MockFormatNode>>();
    ON_CALL(*myNode, Clone(ILMFormatNode::CloneAttributes)).WillByDefault(Return(myOwn));
    ON_CALL(*otherNode, Clone(ILMFormatNode::CloneAttributes)).WillByDefault(Return(theirOwn));

    ON_CALL(*myNode, FaceID()).WillByDefault(Return(100));
    ON_CALL(*otherNode, FaceID()).WillByDefault(Return(row.otherFaceID));
    ON_CALL(*myNode, Description()).WillByDefault(Return("MP4 file format"));
    ON_CALL(*otherNode, Description()).WillByDefault(Return(row.otherDescription));
    ON_CALL(*myPreset, Title()).WillByDefault(Return("High Quality"));
    ON_CALL(*otherPreset, Title()).WillByDefault(Return(row.otherPresetTitle));
    ON_CALL(*myNode, Title()).WillByDefault(Return("MP4"));
    ON_CALL(*otherNode, Title()).WillByDefault(Return("MP4"));
    ON_CALL(*myOwn, IsEqualTo(_)).WillByDefault(Return(row.nodesEqual));
    ON_CALL(*myPreset, IsEqualTo(_)).WillByDefault(Return(row.presetsEqual));

    // Each comparison is reached once, or not at all once an earlier one failed.
    EXPECT_CALL(*myNode, FaceID()).Times(1);
    EXPECT_CALL(*otherNode, FaceID()).Times(1);
    EXPECT_CALL(*myNode, Description()).Times(row.reachesDescription ? 1 : 0);
    EXPECT_CALL(*otherNode, Description()).Times(row.reachesDescription ? 1 : 0);
    EXPECT_CALL(*myPreset, Title()).Times(row.reachesTitle ? 1 : 0);
    EXPECT_CALL(*otherPreset, Title()).Times(row.reachesTitle ? 1 : 0);
    EXPECT_CALL(*myNode, Clone(_)).Times(row.reachesNode ? 1 : 0);
    EXPECT_CALL(*otherNode, Clone(_)).Times(row.reachesNode ? 1 : 0);
    EXPECT_CALL(*myOwn, IsEqualTo(std::shared_ptr<const ILMFormatNode>(theirOwn)))
        .Times(row.reachesNode ? 1 : 0);
    EXPECT_CALL(*myNode, IsEqualTo(_)).Times(0);
    EXPECT_CALL(*myPreset, IsEqualTo(_)).Times(row.reachesPreset ? 1 : 0);
    EXPECT_CALL(*otherNode, IsEqualTo(_)).Times(0);
    EXPECT_CALL(*otherPreset, IsEqualTo(_)).Times(0);

    const auto mine = ILMFmtPresetRecentItem::MallocFmtPresetRecentItem(myPreset, myNode);
    const auto theirs = ILMFmtPresetRecentItem::MallocFmtPresetRecentItem(otherPreset, otherNode);
    EXPECT_EQ(mine->IsEqualTo(theirs), row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    LMFmtPresetRecentItemTest, RecentItemEqualityOrderTest,
    ::testing::Values(EqualityRow{"FaceIdDiffers", 101, "MP4 file format", "High Quality", true,
                                  true, false, false, false, false, false},
                      EqualityRow{"DescriptionDiffers", 100, "Other", "High Quality", true, true,
                                  true, false, false, false, false},
                      EqualityRow{"TitleDiffers", 100, "MP4 file format", "Low Quality", true, true,
                                  true, true, false, false, false},
                      EqualityRow{"NodesDiffer", 100, "MP4 file format", "High Quality", false,
                                  true, true, true, true, false, false},
                      EqualityRow{"PresetsDiffer", 100, "MP4 file format", "High Quality", true,
                                  false, true, true, true, true, false},
                      EqualityRow{"AllEqual", 100, "MP4 file format", "High Quality", true, true,
                                  true, true, true, true, true}),
    [](const ::testing::TestParamInfo<EqualityRow>& info) { return std::string(info.param.name); });

// ---- Artwork ----------------------------------------------------------------------

class LMFmtPresetRecentItemArtworkTest : public SettingsTest {};

TEST_F(LMFmtPresetRecentItemArtworkTest, GetArtworkGroupAsksTheSharedDataSourceForTheNodesFaceId) {
    // A new shared instance, which loads once.
    LMSingletons::ResetForTesting();
    const auto source = ILMFmtPresetDataSource::Shared();
    source->AsyncLoadExternalDataSource(LMDefaultCatalogue::Path(), [] {});
    source->WaitForLoadingComplete();

    const auto mp4 =
        MakeItem("MP4", "High Quality", "MP4 file format", ILMArtworkImageMgr::FormatFaceIDMP4);
    const auto group = mp4->GetArtworkGroup();
    ASSERT_TRUE(group);
    EXPECT_EQ(group->FaceID(), ILMArtworkImageMgr::FormatFaceIDMP4);
    EXPECT_EQ(group, source->GetArtworkGroup(ILMArtworkImageMgr::FormatFaceIDMP4));

    EXPECT_FALSE(MakeItem("Nowhere", "Preset", "", 987654)->GetArtworkGroup());
    // An empty entry has face id 0, which no artwork is filed under.
    EXPECT_FALSE(
        ILMFmtPresetRecentItem::MallocFmtPresetRecentItem(nullptr, MakeNode("MP4", "", 100))
            ->GetArtworkGroup());
}
