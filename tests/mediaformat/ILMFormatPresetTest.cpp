// SPDX-License-Identifier: MIT
#include "ILMFormatPreset.h"
#include "ILMCodecPreset.h"
#include "ILMFrameratePreset.h"
#include "ILMResolutionPreset.h"
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

namespace {

int IndexOf(const std::shared_ptr<ILMCodecPreset>& codec, int count,
            std::shared_ptr<const ILMResolutionPreset> (ILMCodecPreset::*at)(int) const,
            const std::string& id) {
    for (int i = 0; i < count; ++i) {
        if (((*codec).*at)(i)->Id() == id)
            return i;
    }
    return -1;
}

int CodecIndex(const ILMFormatPreset& preset, bool audio, const std::string& id) {
    const int count = audio ? preset.AudioCodecCount() : preset.VideoCodecCount();
    for (int i = 0; i < count; ++i) {
        if ((audio ? preset.AudioCodecAt(i) : preset.VideoCodecAt(i))->Id() == id)
            return i;
    }
    return -1;
}

} // namespace

TEST(ILMFormatPresetTest, TheSettingsDescribeTheVideoCodecWithItsFrameSizeAndTheAudioCodec) {
    auto mp4 = MakePreset("mp4", "x");
    EXPECT_EQ(ILMFormatPreset::DescribeSettings(*mp4), "H.264 / AAC");
    auto video = mp4->CurrentVideoCodec();
    video->SetCurrentResolution(
        IndexOf(video, video->ResolutionCount(), &ILMCodecPreset::ResolutionAt, "1280x720"));
    EXPECT_EQ(ILMFormatPreset::DescribeSettings(*mp4), "H.264 1280x720 / AAC");
    mp4->SetCurrentAudioCodec(-1);
    EXPECT_EQ(ILMFormatPreset::DescribeSettings(*mp4), "H.264 1280x720");
    mp4->SetCurrentVideoCodec(CodecIndex(*mp4, false, "hevc"));
    EXPECT_EQ(ILMFormatPreset::DescribeSettings(*mp4), "HEVC");
    EXPECT_EQ(ILMFormatPreset::DescribeSettings(*MakePreset("wav", "w")), "PCM 16-bit");
}

TEST(ILMFormatPresetTest, ANewCodecKeepsTheFrameSizeAndRateItAlsoOffers) {
    auto mp4 = MakePreset("mp4", "x");
    auto h264 = mp4->CurrentVideoCodec();
    h264->SetCurrentResolution(
        IndexOf(h264, h264->ResolutionCount(), &ILMCodecPreset::ResolutionAt, "1280x720"));
    h264->SetCurrentFramerate(2);
    const std::string rate = h264->FramerateAt(2)->Id();
    ILMFormatPreset::ChangeCodecKeepingChoices(*mp4, false, CodecIndex(*mp4, false, "hevc"));
    const auto hevc = mp4->CurrentVideoCodec();
    ASSERT_EQ(hevc->Id(), "hevc");
    EXPECT_EQ(hevc->ResolutionAt(hevc->CurrentResolutionIndex())->Id(), "1280x720");
    EXPECT_EQ(hevc->FramerateAt(hevc->CurrentFramerateIndex())->Id(), rate);

    // A size the new codec does not offer leaves it at its own default.
    auto portrait = MakePreset("mp4", "y");
    auto video = portrait->CurrentVideoCodec();
    video->SetCurrentResolution(
        IndexOf(video, video->ResolutionCount(), &ILMCodecPreset::ResolutionAt, "1080x1920"));
    ILMFormatPreset::ChangeCodecKeepingChoices(*portrait, false,
                                               CodecIndex(*portrait, false, "hevc"));
    const auto after = portrait->CurrentVideoCodec();
    EXPECT_EQ(after->ResolutionAt(after->CurrentResolutionIndex())->Id(), "same");
}

TEST(ILMFormatPresetTest, TheSameSettingsWhateverTheTexts) {
    auto a = MakePreset("mp4", "a");
    auto b = MakePreset("mp4", "b");
    b->SetDescription("other words");
    b->SetFaceID(7);
    EXPECT_TRUE(ILMFormatPreset::HaveSameSettings(*a, *b));
    b->CurrentAudioCodec()->SetCurrentSamplerate(1);
    EXPECT_FALSE(ILMFormatPreset::HaveSameSettings(*a, *b));
    EXPECT_FALSE(ILMFormatPreset::HaveSameSettings(*a, *MakePreset("mkv", "a")));
}
