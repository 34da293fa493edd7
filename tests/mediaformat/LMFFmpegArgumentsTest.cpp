// SPDX-License-Identifier: MIT
#include "LMFFmpegArguments.h"
#include "LMFormatTreeFactory.h"

#include <QProcess>

#include <gtest/gtest.h>

using namespace Lumeran;
using namespace Lumeran::TestSupport;

namespace {

std::string Line(const std::shared_ptr<const ILMFormatPreset>& preset) {
    return LMFFmpegArguments::Join(LMFFmpegArguments::OutputOptions(preset));
}

} // namespace

TEST(LMFFmpegArgumentsTest, DefaultMp4LeavesSizeAndRateToTheSource) {
    EXPECT_EQ(
        Line(MakePreset("mp4", "")),
        "-c:v libx264 -crf 23 -pix_fmt yuv420p -c:a aac -b:a 192k -movflags +faststart -f mp4");
}

TEST(LMFFmpegArgumentsTest, ChosenOptionsBecomeEncoderArguments) {
    const auto preset = MakePreset("mp4", "");
    const auto video = preset->CurrentVideoCodec();
    video->SetCurrentResolution(3); // 1920x1080
    video->SetCurrentFramerate(4);  // 29.97
    video->SetCurrentQuality(0);    // High
    const auto audio = preset->CurrentAudioCodec();
    audio->SetCurrentSamplerate(4); // 48000
    audio->SetCurrentChannelLayout(2);
    audio->SetCurrentQuality(0); // High
    EXPECT_EQ(Line(preset),
              "-c:v libx264 -s 1920x1080 -r 30000/1001 -crf 20 -pix_fmt yuv420p -c:a aac -ar 48000 "
              "-ac 2 -b:a 256k -movflags +faststart -f mp4");
}

TEST(LMFFmpegArgumentsTest, MissingStreamsAreDropped) {
    EXPECT_EQ(Line(MakePreset("wav", "")), "-vn -c:a pcm_s16le -f wav");
    const auto preset = MakePreset("mp4", "");
    preset->SetCurrentAudioCodec(-1);
    EXPECT_NE(Line(preset).find("-an"), std::string::npos);
}

TEST(LMFFmpegArgumentsTest, AutomaticCodecLeavesTheChoiceToTheMuxer) {
    const auto preset = MakePreset("mp4", "");
    preset->SetCurrentVideoCodec(3);
    ASSERT_TRUE(preset->CurrentVideoCodec()->IsAutoValue());
    EXPECT_EQ(Line(preset).find("-c:v"), std::string::npos);
}

TEST(LMFFmpegArgumentsTest, RequirementsAreTheEncodersAndMuxerTheOptionsName) {
    const auto preset = MakePreset("mkv", "");
    EXPECT_EQ(LMFFmpegArguments::RequiredEncoders(preset),
              (std::vector<std::string>{"libx264", "aac"}));
    EXPECT_EQ(LMFFmpegArguments::Muxer(preset), "matroska");
    preset->SetCurrentVideoCodec(1); // HEVC
    EXPECT_EQ(LMFFmpegArguments::RequiredEncoders(preset).front(), "libx265");
    preset->SetCurrentVideoCodec(-1);
    EXPECT_EQ(LMFFmpegArguments::RequiredEncoders(preset), (std::vector<std::string>{"aac"}));
    EXPECT_TRUE(LMFFmpegArguments::RequiredEncoders(nullptr).empty());
    EXPECT_EQ(LMFFmpegArguments::Muxer(nullptr), "");
}

TEST(LMFFmpegArgumentsTest, CommandWrapsInputAndOutput) {
    const auto args = LMFFmpegArguments::Command(MakePreset("wav", ""), "in put.mov", "out.wav");
    ASSERT_GE(args.size(), 4u);
    EXPECT_EQ(args[0], "-y");
    EXPECT_EQ(args[2], "in put.mov");
    EXPECT_EQ(args.back(), "out.wav");
    EXPECT_EQ(LMFFmpegArguments::FileExtension(MakePreset("vcd", "")), "mpg");
    EXPECT_TRUE(LMFFmpegArguments::OutputOptions(nullptr).empty());
}

TEST(LMFFmpegArgumentsTest, JoinQuotesWhatAShellWouldSplit) {
    EXPECT_EQ(LMFFmpegArguments::Join({"-i", "my file.mov", "it's", ""}),
              "-i 'my file.mov' 'it'\\''s' ''");
}

// Whatever an argument holds, a POSIX shell given the joined line hands the
// program exactly the arguments that were joined.
TEST(LMFFmpegArgumentsTest, JoinedArgumentsReachAProgramUnchangedThroughARealShell) {
    const std::vector<std::string> arguments = {
        "-i",    "my file.mov", "it's",     "",           "line\nbreak", "tab\there",
        "$HOME", "`id`",        "$(id)",    "a;b",        "a&b|c",       "*.mov",
        "~",     "X=1",         "back\\sl", "\"quoted\"", "#hash",       "日本語.mp4",
        "{a,b}", "[ab]",        "!event",   "a>b<c",      "-c:v",        "scale=1280:720"};
    QProcess shell;
    shell.start(QStringLiteral("/bin/sh"),
                {QStringLiteral("-c"),
                 QString::fromStdString("printf '%s\\0' " + LMFFmpegArguments::Join(arguments))});
    ASSERT_TRUE(shell.waitForFinished(30000));
    const QList<QByteArray> received = shell.readAllStandardOutput().split('\0');
    ASSERT_EQ(received.size(), static_cast<qsizetype>(arguments.size()) + 1);
    for (std::size_t i = 0; i < arguments.size(); ++i)
        EXPECT_EQ(received[static_cast<qsizetype>(i)].toStdString(), arguments[i]) << i;
}
