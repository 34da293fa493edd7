// SPDX-License-Identifier: MIT
// Encodes a half-second synthetic clip with every preset of the default
// catalogue and checks with ffprobe that the file is what the preset says:
// container, codecs, frame size, frame rate, sample rate and channel count.

#include "ILMFormatNode.h"
#include "ILMJsonReader.h"
#include "LMDefaultCatalogue.h"
#include "LMFFmpegArguments.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>
#include <ostream>

using namespace Lumeran;

namespace {

// The source clip: what "Same as source" and "Auto" must give back.
constexpr int kSourceWidth = 320;
constexpr int kSourceHeight = 240;
constexpr int kSourceRate = 25;
constexpr int kSourceHertz = 48000;
constexpr int kSourceChannels = 2;

struct PresetCase {
    std::string path; // "Category/Format/Preset"
    std::shared_ptr<const ILMFormatPreset> preset;
};

// Test names and failure messages show the preset's path, not its bytes.
void PrintTo(const PresetCase& presetCase, std::ostream* out) {
    *out << presetCase.path;
}

std::vector<PresetCase> CataloguePresets() {
    std::vector<PresetCase> cases;
    const auto root = ILMFormatNode::MallocFormatNode(
        ILMJsonReader::ReadJsonFile(LMDefaultCatalogue::Path(), nullptr));
    if (!root)
        return cases;
    for (int c = 0; c < root->ChildCount(); ++c) {
        const auto category = root->ChildAt(c);
        for (int f = 0; f < category->ChildCount(); ++f) {
            const auto format = category->ChildAt(f);
            for (int p = 0; p < format->FormatPresetCount(); ++p)
                cases.push_back({category->Title() + "/" + format->Title() + "/" +
                                     format->FormatPresetAt(p)->Title(),
                                 format->FormatPresetAt(p)});
        }
    }
    return cases;
}

// What ffprobe calls each container's demuxer.
const std::map<std::string, QString>& ProbeNames() {
    static const std::map<std::string, QString> names = {
        {"mp4", QStringLiteral("mov,mp4,m4a,3gp,3g2,mj2")},
        {"mov", QStringLiteral("mov,mp4,m4a,3gp,3g2,mj2")},
        {"m4v", QStringLiteral("mov,mp4,m4a,3gp,3g2,mj2")},
        {"m4a", QStringLiteral("mov,mp4,m4a,3gp,3g2,mj2")},
        {"3gp", QStringLiteral("mov,mp4,m4a,3gp,3g2,mj2")},
        {"3g2", QStringLiteral("mov,mp4,m4a,3gp,3g2,mj2")},
        {"mkv", QStringLiteral("matroska,webm")},
        {"mka", QStringLiteral("matroska,webm")},
        {"webm", QStringLiteral("matroska,webm")},
        {"wmv", QStringLiteral("asf")},
        {"avi", QStringLiteral("avi")},
        {"mxf", QStringLiteral("mxf")},
        {"vcd", QStringLiteral("mpeg")},
        {"svcd", QStringLiteral("mpeg")},
        {"dvd", QStringLiteral("mpeg")},
        {"wav", QStringLiteral("wav")},
        {"aiff", QStringLiteral("aiff")},
        {"au", QStringLiteral("au")},
        {"mp3", QStringLiteral("mp3")},
        {"flac", QStringLiteral("flac")}};
    return names;
}

double Rational(const QString& text) {
    const QStringList parts = text.split(QLatin1Char('/'));
    if (parts.size() == 2 && parts.at(1).toDouble() != 0)
        return parts.at(0).toDouble() / parts.at(1).toDouble();
    return text.toDouble();
}

QString RunProgram(const QString& program, const QStringList& arguments, int* exitCode) {
    QProcess process;
    process.setProcessChannelMode(QProcess::SeparateChannels);
    process.start(program, arguments);
    process.waitForFinished(300000);
    *exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    return QString::fromUtf8(process.readAllStandardOutput() + process.readAllStandardError());
}

QStringList ToQt(const std::vector<std::string>& arguments) {
    QStringList list;
    for (const auto& argument : arguments)
        list << QString::fromStdString(argument);
    return list;
}

class LMCatalogueEncodeTest : public ::testing::TestWithParam<PresetCase> {
protected:
    static void SetUpTestSuite() {
        s_dir = new QTemporaryDir();
        int code = 0;
        const QString log =
            RunProgram(QStringLiteral("ffmpeg"),
                       {QStringLiteral("-nostdin"), QStringLiteral("-v"), QStringLiteral("error"),
                        QStringLiteral("-y"), QStringLiteral("-f"), QStringLiteral("lavfi"),
                        QStringLiteral("-i"),
                        QStringLiteral("testsrc2=size=%1x%2:rate=%3:duration=0.5")
                            .arg(kSourceWidth)
                            .arg(kSourceHeight)
                            .arg(kSourceRate),
                        QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                        QStringLiteral("aevalsrc=sin(440*2*PI*t)|sin(550*2*PI*t):s=%1:d=0.5")
                            .arg(kSourceHertz),
                        QStringLiteral("-c:v"), QStringLiteral("ffv1"), QStringLiteral("-c:a"),
                        QStringLiteral("pcm_s16le"), s_dir->filePath(QStringLiteral("source.mkv"))},
                       &code);
        ASSERT_EQ(code, 0) << log.toStdString();
    }
    static void TearDownTestSuite() {
        delete s_dir;
        s_dir = nullptr;
    }
    static QTemporaryDir* s_dir;
};

QTemporaryDir* LMCatalogueEncodeTest::s_dir = nullptr;

TEST_P(LMCatalogueEncodeTest, EncodesAndProbesAsThePresetSays) {
    const PresetCase& c = GetParam();
    const auto& preset = c.preset;
    const QString output = s_dir->filePath(
        QStringLiteral("out.") + QString::fromStdString(LMFFmpegArguments::FileExtension(preset)));
    int code = 0;
    const auto command = LMFFmpegArguments::Command(
        preset, s_dir->filePath(QStringLiteral("source.mkv")).toStdString(), output.toStdString());
    const QString log = RunProgram(
        QStringLiteral("ffmpeg"),
        QStringList{QStringLiteral("-nostdin"), QStringLiteral("-v"), QStringLiteral("error")} +
            ToQt(command),
        &code);
    ASSERT_EQ(code, 0) << c.path << ": " << LMFFmpegArguments::Join(command) << "\n"
                       << log.toStdString();

    const QString probe =
        RunProgram(QStringLiteral("ffprobe"),
                   {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-show_entries"),
                    QStringLiteral("format=format_name:stream=codec_type,codec_name,width,height,r_"
                                   "frame_rate,sample_rate,channels"),
                    QStringLiteral("-of"), QStringLiteral("json"), output},
                   &code);
    ASSERT_EQ(code, 0) << probe.toStdString();
    const QJsonObject info = QJsonDocument::fromJson(probe.toUtf8()).object();
    EXPECT_EQ(info.value(QStringLiteral("format"))
                  .toObject()
                  .value(QStringLiteral("format_name"))
                  .toString(),
              ProbeNames().at(preset->FormatId()))
        << c.path;

    QJsonObject video, audio;
    for (const QJsonValue& stream : info.value(QStringLiteral("streams")).toArray()) {
        const QJsonObject s = stream.toObject();
        (s.value(QStringLiteral("codec_type")).toString() == QStringLiteral("video") ? video
                                                                                     : audio) = s;
    }

    if (const auto codec = preset->CurrentVideoCodec()) {
        ASSERT_FALSE(video.isEmpty()) << c.path << ": no video stream";
        if (!codec->IsAutoValue()) {
            EXPECT_EQ(video.value(QStringLiteral("codec_name")).toString().toStdString(),
                      codec->StreamCodec())
                << c.path;
        }
        const auto size = codec->CurrentResolution();
        const bool sourceSize = !size || size->IsAutoValue();
        EXPECT_EQ(video.value(QStringLiteral("width")).toInt(),
                  sourceSize ? kSourceWidth : size->Width())
            << c.path;
        EXPECT_EQ(video.value(QStringLiteral("height")).toInt(),
                  sourceSize ? kSourceHeight : size->Height())
            << c.path;
        const auto rate = codec->CurrentFramerate();
        const double expected =
            !rate || rate->IsAutoValue() ? kSourceRate : rate->FramesPerSecond();
        EXPECT_NEAR(Rational(video.value(QStringLiteral("r_frame_rate")).toString()), expected,
                    0.01)
            << c.path;
    } else {
        EXPECT_TRUE(video.isEmpty()) << c.path << ": unexpected video stream";
    }

    if (const auto codec = preset->CurrentAudioCodec()) {
        ASSERT_FALSE(audio.isEmpty()) << c.path << ": no audio stream";
        if (!codec->IsAutoValue()) {
            EXPECT_EQ(audio.value(QStringLiteral("codec_name")).toString().toStdString(),
                      codec->StreamCodec())
                << c.path;
        }
        const auto hertz = codec->CurrentSamplerate();
        EXPECT_EQ(audio.value(QStringLiteral("sample_rate")).toString().toInt(),
                  !hertz || hertz->IsAutoValue() ? kSourceHertz : hertz->Hertz())
            << c.path;
        const auto layout = codec->CurrentChannelLayout();
        EXPECT_EQ(audio.value(QStringLiteral("channels")).toInt(),
                  !layout || layout->IsAutoValue() ? kSourceChannels : layout->Channels())
            << c.path;
    } else {
        EXPECT_TRUE(audio.isEmpty()) << c.path << ": unexpected audio stream";
    }
}

std::string CaseName(const ::testing::TestParamInfo<PresetCase>& info) {
    std::string name;
    for (const char ch : info.param.path)
        name += std::isalnum(static_cast<unsigned char>(ch)) ? ch : '_';
    return name;
}

INSTANTIATE_TEST_SUITE_P(DefaultCatalogue, LMCatalogueEncodeTest,
                         ::testing::ValuesIn(CataloguePresets()), CaseName);

TEST(LMCatalogueEncodeSetupTest, DefaultCatalogueHasPresetsToEncode) {
    EXPECT_GT(CataloguePresets().size(), 50u);
}

} // namespace
