// SPDX-License-Identifier: MIT
#include "ILMCodecPreset.h"
#include "LMFormatRegistry.h"
#include "LMFormatTreeFactory.h"

#include <gtest/gtest.h>

using namespace Lumeran;
using namespace Lumeran::TestSupport;

TEST(ILMCodecPresetTest, H264ListsItsOptions) {
    const auto codec = MakePreset("mp4", "")->VideoCodecAt(0);
    ASSERT_TRUE(codec);
    EXPECT_EQ(codec->Name(), "H.264");
    EXPECT_EQ(codec->Encoder(), "libx264");
    EXPECT_FALSE(codec->IsAutoValue());
    EXPECT_GT(codec->ResolutionCount(), 3);
    EXPECT_EQ(codec->ResolutionAt(0)->Name(), "Same as source");
    EXPECT_TRUE(codec->ResolutionAt(0)->IsAutoValue());
    EXPECT_EQ(codec->FramerateAt(0)->Name(), "Same as source");
    EXPECT_EQ(codec->SamplerateCount(), 0);
    EXPECT_EQ(codec->CurrentSamplerateIndex(), -1);
    EXPECT_EQ(codec->ChannelLayoutCount(), 0);
    EXPECT_FALSE(codec->ResolutionAt(codec->ResolutionCount()));
}

TEST(ILMCodecPresetTest, OptionsCarryTheirEncoderMeaning) {
    const auto video = MakePreset("mp4", "")->VideoCodecAt(0);
    for (int i = 1; i < video->ResolutionCount(); ++i) {
        EXPECT_GT(video->ResolutionAt(i)->Width(), 0);
        EXPECT_EQ(video->ResolutionAt(i)->Name(),
                  std::to_string(video->ResolutionAt(i)->Width()) + "x" +
                      std::to_string(video->ResolutionAt(i)->Height()));
    }
    for (int i = 1; i < video->FramerateCount(); ++i)
        EXPECT_GT(video->FramerateAt(i)->FramesPerSecond(), 0);
    const auto audio = MakePreset("mp4", "")->AudioCodecAt(0);
    EXPECT_EQ(audio->SamplerateAt(0)->Name(), "Auto");
    for (int i = 1; i < audio->SamplerateCount(); ++i)
        EXPECT_GT(audio->SamplerateAt(i)->Hertz(), 0);
    for (int i = 1; i < audio->ChannelLayoutCount(); ++i)
        EXPECT_GT(audio->ChannelLayoutAt(i)->Channels(), 0);
}

TEST(ILMCodecPresetTest, SettersIgnoreIndexesOutsideTheList) {
    const auto codec = MakePreset("mp4", "")->VideoCodecAt(0);
    codec->SetCurrentResolution(2);
    codec->SetCurrentResolution(-1);
    codec->SetCurrentResolution(codec->ResolutionCount());
    EXPECT_EQ(codec->CurrentResolutionIndex(), 2);
    codec->SetCurrentSamplerate(0);
    EXPECT_EQ(codec->CurrentSamplerateIndex(), -1);
}

TEST(ILMCodecPresetTest, AutomaticCodecHasNoEncoderAndNoOptions) {
    const auto preset = MakePreset("mp4", "");
    std::shared_ptr<ILMCodecPreset> automatic;
    for (int i = 0; i < preset->VideoCodecCount(); ++i) {
        if (preset->VideoCodecAt(i)->IsAutoValue())
            automatic = preset->VideoCodecAt(i);
    }
    ASSERT_TRUE(automatic);
    EXPECT_EQ(automatic->Name(), "Auto");
    EXPECT_EQ(automatic->ResolutionCount(), 0);
    EXPECT_EQ(automatic->QualityCount(), 0);
    EXPECT_EQ(automatic->CurrentQualityIndex(), -1);
}

TEST(ILMCodecPresetTest, EveryQualityListEndsWithTheHiddenBestLevel) {
    for (const auto& container : LMFormatRegistry::Instance().Containers()) {
        const auto preset = MakePreset(container->id, "");
        for (const bool audio : {false, true}) {
            const int count = audio ? preset->AudioCodecCount() : preset->VideoCodecCount();
            for (int i = 0; i < count; ++i) {
                const auto codec = audio ? preset->AudioCodecAt(i) : preset->VideoCodecAt(i);
                if (codec->QualityCount() == 0)
                    continue;
                EXPECT_EQ(codec->QualityAt(codec->QualityCount() - 1)->Name(), "Best")
                    << container->id << "/" << codec->Id();
                EXPECT_LT(codec->CurrentQualityIndex(), codec->QualityCount() - 1)
                    << "defaults never pick the hidden level: " << codec->Id();
            }
        }
    }
}
