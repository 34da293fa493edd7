// SPDX-License-Identifier: MIT
#include "LMDemoConverter.h"

#include "ILMFormatPreset.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Lumeran;

namespace {

// A one-second clip with picture and sound, made by FFmpeg itself.
bool MakeClip(const QString& path) {
    QProcess ffmpeg;
    ffmpeg.start(QStringLiteral("ffmpeg"),
                 {QStringLiteral("-hide_banner"), QStringLiteral("-loglevel"),
                  QStringLiteral("error"), QStringLiteral("-y"), QStringLiteral("-f"),
                  QStringLiteral("lavfi"), QStringLiteral("-i"),
                  QStringLiteral("testsrc2=duration=1:size=160x120:rate=10"), QStringLiteral("-f"),
                  QStringLiteral("lavfi"), QStringLiteral("-i"), QStringLiteral("sine=duration=1"),
                  QStringLiteral("-shortest"), path});
    return ffmpeg.waitForFinished(60000) && ffmpeg.exitCode() == 0;
}

class LMDemoConverterTest : public ::testing::Test {
protected:
    QTemporaryDir dir;
};

} // namespace

TEST_F(LMDemoConverterTest, TheOutputGoesBesideTheSourceWithTheContainersExtension) {
    auto wav = ILMFormatPreset::MallocFormatPreset("WAV", "High Quality");
    EXPECT_EQ(LMDemoConverter::outputPathFor(QStringLiteral("/media/clip.mp4"), wav),
              QStringLiteral("/media/clip-converted.wav"));
}

TEST_F(LMDemoConverterTest, AConversionReportsProgressAndEndsWithTheOutputPath) {
    const QString clip = dir.filePath(QStringLiteral("clip.mp4"));
    ASSERT_TRUE(MakeClip(clip));
    LMDemoConverter converter;
    QSignalSpy progress(&converter, &LMDemoConverter::progress);
    QSignalSpy finished(&converter, &LMDemoConverter::finished);
    ASSERT_TRUE(converter.start(clip, ILMFormatPreset::MallocFormatPreset("WAV", "High Quality")));
    ASSERT_TRUE(finished.wait(60000));
    ASSERT_TRUE(finished.first().at(0).toBool()) << finished.first().at(1).toString().toStdString();
    const QString output = finished.first().at(1).toString();
    EXPECT_EQ(output, dir.filePath(QStringLiteral("clip-converted.wav")));
    EXPECT_GT(QFileInfo(output).size(), 1000);
    ASSERT_FALSE(progress.isEmpty());
    EXPECT_DOUBLE_EQ(progress.last().at(0).toDouble(), 1.0);
}

TEST_F(LMDemoConverterTest, AFailedEncodeIsReportedWithFfmpegsMessage) {
    const QString broken = dir.filePath(QStringLiteral("not-media.mp4"));
    QFile file(broken);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("this is not a media file\n");
    file.close();
    LMDemoConverter converter;
    QSignalSpy finished(&converter, &LMDemoConverter::finished);
    ASSERT_TRUE(
        converter.start(broken, ILMFormatPreset::MallocFormatPreset("WAV", "High Quality")));
    ASSERT_TRUE(finished.wait(60000));
    EXPECT_FALSE(finished.first().at(0).toBool());
    const QString message = finished.first().at(1).toString();
    EXPECT_TRUE(message.contains(QStringLiteral("not-media.mp4")) ||
                message.contains(QStringLiteral("Invalid data")))
        << message.toStdString();
}

TEST_F(LMDemoConverterTest, NothingStartsWithoutASourceOrAPreset) {
    LMDemoConverter converter;
    EXPECT_FALSE(converter.start(QString(), ILMFormatPreset::MallocFormatPreset("WAV", "High")));
    EXPECT_FALSE(converter.start(dir.filePath(QStringLiteral("a.mp4")), nullptr));
    EXPECT_FALSE(converter.isRunning());
}

TEST_F(LMDemoConverterTest, ASourceNamedLikeTheOutputIsNeverOverwritten) {
    auto wav = ILMFormatPreset::MallocFormatPreset("WAV", "High Quality");
    const QString source = dir.filePath(QStringLiteral("clip-converted.wav"));
    const QString output = LMDemoConverter::outputPathFor(source, wav);
    EXPECT_NE(output, source);
    EXPECT_EQ(output, dir.filePath(QStringLiteral("clip-converted-converted.wav")));
}

TEST_F(LMDemoConverterTest, ARunningConversionCanBeCancelledAndLeavesNoOutput) {
    const QString clip = dir.filePath(QStringLiteral("clip.mp4"));
    ASSERT_TRUE(MakeClip(clip));
    LMDemoConverter converter;
    QSignalSpy finished(&converter, &LMDemoConverter::finished);
    ASSERT_TRUE(converter.start(clip, ILMFormatPreset::MallocFormatPreset("WAV", "High Quality")));
    ASSERT_TRUE(converter.isRunning());
    converter.cancel();
    EXPECT_FALSE(converter.isRunning());
    ASSERT_EQ(finished.size(), 1);
    EXPECT_FALSE(finished.first().at(0).toBool());
    EXPECT_EQ(finished.first().at(1).toString(), QStringLiteral("Cancelled"));
    EXPECT_FALSE(QFileInfo::exists(dir.filePath(QStringLiteral("clip-converted.wav"))));
    // The next encode runs as usual.
    ASSERT_TRUE(converter.start(clip, ILMFormatPreset::MallocFormatPreset("WAV", "High Quality")));
    ASSERT_TRUE(finished.wait(60000));
    EXPECT_TRUE(finished.last().at(0).toBool());
}
