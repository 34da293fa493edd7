// SPDX-License-Identifier: MIT
// The size estimate's arithmetic; LMSizeEstimateEncodeTest holds it against
// real encodes.

#include "LMSizeEstimate.h"
#include "LMFormatTreeFactory.h"
#include "LMSizeCalibration.h"

#include <gtest/gtest.h>

using namespace Lumeran;
using namespace Lumeran::TestSupport;

namespace {

// The index of the option of a codec list whose name is name.
template <typename At>
int IndexOf(int count, const At& at, const std::string& name) {
    for (int i = 0; i < count; ++i)
        if (at(i) == name)
            return i;
    return -1;
}

TEST(LMSizeEstimateTest, ABitrateFixesTheSize) {
    const auto preset = MakePreset("mp3", "");
    const auto audio = preset->CurrentAudioCodec();
    ASSERT_EQ(audio->CurrentQuality()->Value(), "192k");
    const auto estimate = LMSizeEstimate::For(preset, 60);
    ASSERT_TRUE(estimate.IsKnown());
    EXPECT_TRUE(estimate.IsExact());
    EXPECT_EQ(estimate.Low(), 192000 * 60 / 8);
    EXPECT_FALSE(estimate.UsesAssumedSource());
    EXPECT_EQ(estimate.Describe(), "1.4 MB");
}

TEST(LMSizeEstimateTest, PcmIsSampleRateTimesChannelsTimesSampleSize) {
    const auto preset = MakePreset("wav", "");
    const auto audio = preset->CurrentAudioCodec();
    ASSERT_EQ(audio->Encoder(), "pcm_s16le");
    // Auto rate and channels: the source's, or the assumed 48 kHz stereo.
    const auto assumed = LMSizeEstimate::For(preset, 10);
    EXPECT_TRUE(assumed.IsExact());
    EXPECT_TRUE(assumed.UsesAssumedSource());
    EXPECT_EQ(assumed.Low(), 48000 * 2 * 2 * 10);
    const auto fromSource = LMSizeEstimate::For(preset, 10, {0, 0, 0, 44100, 1});
    EXPECT_FALSE(fromSource.UsesAssumedSource());
    EXPECT_EQ(fromSource.Low(), 44100 * 1 * 2 * 10);
    audio->SetCurrentSamplerate(IndexOf(
        audio->SamplerateCount(), [&](int i) { return audio->SamplerateAt(i)->Id(); }, "96000"));
    audio->SetCurrentChannelLayout(IndexOf(
        audio->ChannelLayoutCount(), [&](int i) { return audio->ChannelLayoutAt(i)->Id(); },
        "5.1"));
    EXPECT_EQ(LMSizeEstimate::For(preset, 10).Low(), 96000LL * 6 * 2 * 10);
}

TEST(LMSizeEstimateTest, AQualitySettingGivesARangeThatScalesWithFrameAndTime) {
    const auto preset = MakePreset("mp4", "");
    const auto video = preset->CurrentVideoCodec();
    ASSERT_EQ(video->CurrentQuality()->Value(), "23");
    const auto row =
        LMSizeCalibration::Find(LMSizeCalibration::Stream::Video, "libx264", "crf", "23", "");
    ASSERT_TRUE(row);
    const LMSizeEstimate::Source hd{1280, 720, 25, 48000, 2};
    const auto estimate = LMSizeEstimate::For(preset, 600, hd);
    ASSERT_TRUE(estimate.IsKnown());
    EXPECT_FALSE(estimate.IsExact());
    EXPECT_LT(estimate.Low(), estimate.High());
    // Video from the table (widened), plus AAC at 192 kb/s exactly.
    const double pixels = 1280.0 * 720 * 25 * 600;
    const double audio = 192000.0 * 600 / 8;
    EXPECT_NEAR(static_cast<double>(estimate.Low()), row->low * pixels / 8 * 0.8 + audio, 2);
    EXPECT_NEAR(static_cast<double>(estimate.High()), row->high * pixels / 8 * 1.25 + audio, 2);
    const auto doubled = LMSizeEstimate::For(preset, 1200, hd);
    EXPECT_NEAR(static_cast<double>(doubled.High()), 2.0 * static_cast<double>(estimate.High()), 2);
    // A better quality level costs more.
    video->SetCurrentQuality(0); // High, CRF 20
    EXPECT_GT(LMSizeEstimate::For(preset, 600, hd).Low(), estimate.Low());
}

TEST(LMSizeEstimateTest, EveryQualityLevelOfTheRegistryWasMeasured) {
    for (const auto& format : {"mp4", "mov", "mkv", "avi", "3gp", "webm", "mxf", "mka", "m4a"}) {
        const auto preset = MakePreset(format, "");
        for (int v = -1; v < preset->VideoCodecCount(); ++v) {
            preset->SetCurrentVideoCodec(v);
            const auto video = preset->CurrentVideoCodec();
            if (video && video->IsAutoValue())
                continue;
            for (int q = 0; video && q < video->QualityCount(); ++q) {
                video->SetCurrentQuality(q);
                const auto estimate = LMSizeEstimate::For(preset, 1);
                EXPECT_TRUE(estimate.IsKnown() || (preset->CurrentAudioCodec() &&
                                                   preset->CurrentAudioCodec()->IsAutoValue()))
                    << format << " " << video->Encoder() << " " << video->QualityAt(q)->Value();
            }
        }
        for (int a = 0; a < preset->AudioCodecCount(); ++a) {
            preset->SetCurrentVideoCodec(-1);
            preset->SetCurrentAudioCodec(a);
            const auto audio = preset->CurrentAudioCodec();
            if (audio->IsAutoValue())
                continue;
            EXPECT_TRUE(LMSizeEstimate::For(preset, 1).IsKnown())
                << format << " " << audio->Encoder();
        }
    }
}

TEST(LMSizeEstimateTest, AnAutomaticCodecCannotBeSized) {
    const auto preset = MakePreset("mp4", "");
    preset->SetCurrentVideoCodec(3);
    ASSERT_TRUE(preset->CurrentVideoCodec()->IsAutoValue());
    const auto estimate = LMSizeEstimate::For(preset, 60);
    EXPECT_FALSE(estimate.IsKnown());
    EXPECT_EQ(estimate.Describe(), "unknown");
}

TEST(LMSizeEstimateTest, SizesReadWithTwoSignificantDigits) {
    EXPECT_EQ(LMSizeEstimate::FormatBytes(999), "999 B");
    EXPECT_EQ(LMSizeEstimate::FormatBytes(4500), "4.5 kB");
    EXPECT_EQ(LMSizeEstimate::FormatBytes(45e6), "45 MB");
    EXPECT_EQ(LMSizeEstimate::FormatBytes(1.25e9), "1.2 GB");
}

} // namespace
