// SPDX-License-Identifier: MIT
#include "ILMFormatPreset.h"
#include "LMFormatTreeFactory.h"

#include <gtest/gtest.h>

using namespace Lumeran;
using namespace Lumeran::TestSupport;

TEST(ILMFormatPresetTest, DefaultMp4PresetIsComplete) {
    const auto preset = ILMFormatPreset::MallocFormatPreset(LMFormatNameMP4, "");
    ASSERT_TRUE(preset);
    EXPECT_EQ(preset->Title(), LMFormatNameMP4);
    EXPECT_EQ(preset->FormatName(), "MP4");
    EXPECT_EQ(preset->FormatId(), "mp4");
    EXPECT_GT(preset->VideoCodecCount(), 1);
    EXPECT_GT(preset->AudioCodecCount(), 1);
    ASSERT_EQ(preset->CurrentVideoCodecIndex(), 0);
    ASSERT_EQ(preset->CurrentAudioCodecIndex(), 0);
    EXPECT_EQ(preset->CurrentVideoCodec()->Name(), "H.264");
    EXPECT_EQ(preset->CurrentAudioCodec()->Name(), "AAC");
    EXPECT_GE(preset->CurrentVideoCodec()->CurrentResolutionIndex(), 0);
    EXPECT_GE(preset->CurrentVideoCodec()->CurrentQualityIndex(), 0);
    EXPECT_GE(preset->CurrentAudioCodec()->CurrentSamplerateIndex(), 0);
}

TEST(ILMFormatPresetTest, TitleIsTakenWhenGivenAndUnknownFormatsGiveNothing) {
    EXPECT_EQ(ILMFormatPreset::MallocFormatPreset("MP4", "High Quality")->Title(), "High Quality");
    EXPECT_FALSE(ILMFormatPreset::MallocFormatPreset("NoSuchFormat", ""));
}

TEST(ILMFormatPresetTest, AudioOnlyFormatHasNoVideoStream) {
    const auto preset = MakePreset("wav", "");
    EXPECT_EQ(preset->VideoCodecCount(), 0);
    EXPECT_EQ(preset->CurrentVideoCodecIndex(), -1);
    EXPECT_FALSE(preset->CurrentVideoCodec());
    EXPECT_TRUE(preset->CurrentAudioCodec());
}

TEST(ILMFormatPresetTest, SettingAnOutOfRangeCodecRemovesTheStream) {
    const auto preset = MakePreset("mp4", "");
    preset->SetCurrentVideoCodec(1);
    EXPECT_EQ(preset->CurrentVideoCodecIndex(), 1);
    preset->SetCurrentVideoCodec(99);
    EXPECT_EQ(preset->CurrentVideoCodecIndex(), -1);
    preset->SetCurrentAudioCodec(-1);
    EXPECT_FALSE(preset->CurrentAudioCodec());
}

TEST(ILMFormatPresetTest, CodecChangesWriteThroughToThePreset) {
    const auto preset = MakePreset("mp4", "");
    preset->VideoCodecAt(1)->SetCurrentResolution(3);
    EXPECT_EQ(preset->VideoCodecAt(1)->CurrentResolutionIndex(), 3);
    EXPECT_EQ(preset->VideoCodecAt(0)->CurrentResolutionIndex(), 0)
        << "each codec keeps its own choices";
}

TEST(ILMFormatPresetTest, CloneIsDeep) {
    const auto preset = MakePreset("mp4", "High Quality");
    preset->SetFaceID(100);
    const auto copy = preset->Clone();
    EXPECT_TRUE(copy->IsEqualTo(preset));
    copy->CurrentVideoCodec()->SetCurrentResolution(4);
    copy->SetTitle("Other");
    EXPECT_EQ(preset->CurrentVideoCodec()->CurrentResolutionIndex(), 0);
    EXPECT_EQ(preset->Title(), "High Quality");
    EXPECT_FALSE(copy->IsEqualTo(preset));
}

TEST(ILMFormatPresetTest, CopyFromTakesOverEverySetting) {
    const auto original = MakePreset("mp4", "Mine");
    const auto edited = original->Clone();
    edited->SetCurrentVideoCodec(1);
    edited->CurrentVideoCodec()->SetCurrentFramerate(2);
    edited->CurrentAudioCodec()->SetCurrentChannelLayout(1);
    original->CopyFrom(edited);
    EXPECT_TRUE(original->IsEqualTo(edited));
    EXPECT_EQ(original->CurrentVideoCodecIndex(), 1);
    const auto other = MakePreset("wav", "Wave");
    original->CopyFrom(other);
    EXPECT_EQ(original->FormatId(), "wav");
    EXPECT_TRUE(original->IsEqualTo(other));
}

TEST(ILMFormatPresetTest, IsEqualToComparesAllSettings) {
    const auto a = MakePreset("mp4", "A");
    EXPECT_TRUE(a->IsEqualTo(MakePreset("mp4", "A")));
    EXPECT_FALSE(a->IsEqualTo(MakePreset("mp4", "B")));
    EXPECT_FALSE(a->IsEqualTo(MakePreset("mkv", "A")));
    auto b = MakePreset("mp4", "A");
    b->SetDescription("described");
    EXPECT_FALSE(a->IsEqualTo(b));
    b = MakePreset("mp4", "A");
    b->SetFaceID(3);
    EXPECT_FALSE(a->IsEqualTo(b));
    b = MakePreset("mp4", "A");
    b->AudioCodecAt(2)->SetCurrentSamplerate(1);
    EXPECT_FALSE(a->IsEqualTo(b)) << "a choice on a codec that is not current still counts";
    b->AudioCodecAt(2)->SetCurrentSamplerate(0);
    EXPECT_TRUE(a->IsEqualTo(b)) << "setting the default back is equal again";
    EXPECT_FALSE(a->IsEqualTo(nullptr));
}
