// SPDX-License-Identifier: MIT
// The verifier's judgement of a probe, and of an FFmpeg that lacks an encoder.

#include "LMPresetVerifier.h"
#include "LMFFmpegCapabilities.h"
#include "LMFormatTreeFactory.h"
#include "LMTestEnvironment.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Lumeran;
using namespace Lumeran::TestSupport;

namespace {

// ffprobe's JSON of an MP4 file with one video and one audio stream.
std::string Probe(const std::string& container, const std::string& video, int width, int height,
                  const std::string& rate, const std::string& audio, int hertz, int channels) {
    return R"({"format":{"format_name":")" + container + R"("},"streams":[)" +
           R"({"codec_type":"video","codec_name":")" + video + R"(","width":)" +
           std::to_string(width) + R"(,"height":)" + std::to_string(height) +
           R"(,"r_frame_rate":")" + rate + R"("},)" + R"({"codec_type":"audio","codec_name":")" +
           audio + R"(","sample_rate":")" + std::to_string(hertz) + R"(","channels":)" +
           std::to_string(channels) + "}]}";
}

const std::string kIsoBmff = "mov,mp4,m4a,3gp,3g2,mj2";

TEST(LMPresetVerifierTest, AProbeOfWhatThePresetSaysHasNoDifferences) {
    const auto preset = MakePreset("mp4", "");
    EXPECT_TRUE(LMPresetVerifier::Compare(
                    *preset, Probe(kIsoBmff, "h264", 320, 240, "25/1", "aac", 48000, 2))
                    .empty());
}

TEST(LMPresetVerifierTest, EveryDifferenceIsNamed) {
    const auto preset = MakePreset("mp4", "");
    const auto problems = LMPresetVerifier::Compare(
        *preset, Probe("matroska,webm", "hevc", 640, 360, "30000/1001", "mp3", 44100, 1));
    EXPECT_EQ(problems,
              (std::vector<std::string>{
                  "container: matroska,webm, expected mov,mp4,m4a,3gp,3g2,mj2",
                  "video codec: hevc, expected h264", "frame size: 640x360, expected 320x240",
                  "frame rate: 29.97, expected 25", "audio codec: mp3, expected aac",
                  "sample rate: 44100, expected 48000", "channels: 1, expected 2"}));
}

TEST(LMPresetVerifierTest, AMissingOrExtraStreamIsNamed) {
    const auto preset = MakePreset("wav", "");
    EXPECT_EQ(
        LMPresetVerifier::Compare(*preset, R"({"format":{"format_name":"wav"},"streams":[]})"),
        (std::vector<std::string>{"no audio stream"}));
    const auto noAudio = MakePreset("mp4", "");
    noAudio->SetCurrentAudioCodec(-1);
    EXPECT_EQ(LMPresetVerifier::Compare(*noAudio,
                                        Probe(kIsoBmff, "h264", 320, 240, "25/1", "aac", 48000, 2)),
              (std::vector<std::string>{"an audio stream the preset leaves out"}));
}

TEST(LMPresetVerifierTest, FFmpegWithoutX265FailsHevcNamingTheEncoder) {
    QTemporaryDir work;
    const std::string fake = SourcePath("tests/support/fake-ffmpeg-without-x265.sh");
    LMPresetVerifier verifier(fake, work.path().toStdString());
    ASSERT_TRUE(verifier.MakeSource()) << verifier.Problem();
    const auto hevc = MakePreset("mkv", "");
    hevc->SetCurrentVideoCodec(1);
    ASSERT_EQ(hevc->CurrentVideoCodec()->Encoder(), "libx265");
    // Without capabilities the encode itself fails, and FFmpeg's complaint names it.
    const auto encoded = verifier.Verify(hevc);
    EXPECT_FALSE(encoded.ok);
    EXPECT_EQ(encoded.problems, (std::vector<std::string>{"FFmpeg has no libx265 encoder"}));
    // With them, nothing is encoded.
    QTemporaryDir cache;
    LMFFmpegCapabilities capabilities(fake, cache.path().toStdString());
    ASSERT_TRUE(capabilities.WaitForReady());
    verifier.UseCapabilities(&capabilities);
    const auto checked = verifier.Verify(hevc);
    EXPECT_FALSE(checked.ok);
    EXPECT_TRUE(checked.command.empty());
    EXPECT_EQ(checked.problems, (std::vector<std::string>{"FFmpeg has no libx265 encoder"}));
}

TEST(LMPresetVerifierTest, RealFFmpegMakesWhatAPresetSays) {
    QTemporaryDir work;
    LMPresetVerifier verifier({}, work.path().toStdString());
    ASSERT_TRUE(verifier.MakeSource()) << verifier.Problem();
    const auto result = verifier.Verify(MakePreset("wav", ""));
    EXPECT_TRUE(result.ok) << (result.problems.empty() ? "" : result.problems.front());
    EXPECT_NE(result.command.find("pcm_s16le"), std::string::npos);
}

} // namespace
