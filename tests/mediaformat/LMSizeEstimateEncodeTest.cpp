// SPDX-License-Identifier: MIT
// The size estimate against real encodes: every preset of the default catalogue
// encodes ten seconds of a generated clip (moving test pattern with grain, tones
// over pink noise), and the file's size must lie within 10% of an exact
// estimate (bitrate and PCM settings) or inside the estimated range
// (quality-based settings). Presets with a frame size of their own are encoded
// at the smallest one their codec offers, so the test takes seconds per preset;
// presets that then encode alike are encoded once.

#include "ILMFormatNode.h"
#include "ILMJsonReader.h"
#include "LMDefaultCatalogue.h"
#include "LMFFmpegArguments.h"
#include "LMSizeEstimate.h"

#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <ostream>
#include <set>

using namespace Lumeran;

namespace {

constexpr double kSeconds = 10;
const LMSizeEstimate::Source kSource{640, 360, 25, 48000, 2};

struct EstimateCase {
    std::string path; // "Category/Format/Preset"
    std::shared_ptr<const ILMFormatPreset> preset;
};

void PrintTo(const EstimateCase& estimateCase, std::ostream* out) {
    *out << estimateCase.path;
}

// The preset at its codec's smallest frame size ("Same as source" counts as the
// source's), the other settings kept.
std::shared_ptr<const ILMFormatPreset> AtSmallestFrame(const ILMFormatPreset& preset) {
    auto copy = preset.Clone();
    const auto video = copy->CurrentVideoCodec();
    if (!video || video->ResolutionCount() == 0)
        return copy;
    int smallest = video->CurrentResolutionIndex();
    long long fewest = -1;
    for (int i = 0; i < video->ResolutionCount(); ++i) {
        const auto size = video->ResolutionAt(i);
        const long long pixels = size->IsAutoValue()
                                     ? static_cast<long long>(kSource.width) * kSource.height
                                     : static_cast<long long>(size->Width()) * size->Height();
        if (fewest < 0 || pixels < fewest) {
            fewest = pixels;
            smallest = i;
        }
    }
    video->SetCurrentResolution(smallest);
    return copy;
}

void Collect(const std::shared_ptr<const ILMFormatNode>& node, const std::string& path,
             std::set<std::string>& seen, std::vector<EstimateCase>& out) {
    for (int i = 0; i < node->FormatPresetCount(); ++i) {
        const auto original = node->FormatPresetAt(i);
        const bool exact = LMSizeEstimate::For(original, kSeconds, kSource).IsExact();
        const auto preset = exact ? original : AtSmallestFrame(*original);
        const std::string options =
            LMFFmpegArguments::Join(LMFFmpegArguments::OutputOptions(preset));
        if (seen.insert(options).second)
            out.push_back({path + original->Title(), preset});
    }
    for (int i = 0; i < node->ChildCount(); ++i)
        Collect(node->ChildAt(i), path + node->ChildAt(i)->Title() + "/", seen, out);
}

std::vector<EstimateCase> Cases() {
    std::vector<EstimateCase> cases;
    const auto root = ILMFormatNode::MallocFormatNode(
        ILMJsonReader::ReadJsonFile(LMDefaultCatalogue::Path(), nullptr));
    std::set<std::string> seen;
    if (root)
        Collect(root, {}, seen, cases);
    return cases;
}

int RunFFmpeg(const QStringList& arguments, QString* errors) {
    QProcess process;
    process.start(
        QStringLiteral("ffmpeg"),
        QStringList{QStringLiteral("-nostdin"), QStringLiteral("-v"), QStringLiteral("error")} +
            arguments);
    process.waitForFinished(600000);
    *errors = QString::fromUtf8(process.readAllStandardError());
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

class LMSizeEstimateEncodeTest : public ::testing::TestWithParam<EstimateCase> {
protected:
    static void SetUpTestSuite() {
        s_dir = new QTemporaryDir();
        QString errors;
        const int code =
            RunFFmpeg({QStringLiteral("-y"), QStringLiteral("-f"), QStringLiteral("lavfi"),
                       QStringLiteral("-i"),
                       QStringLiteral("testsrc2=size=%1x%2:rate=%3,noise=alls=12:allf=t+u")
                           .arg(kSource.width)
                           .arg(kSource.height)
                           .arg(kSource.framesPerSecond),
                       QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                       QStringLiteral("aevalsrc=0.4*sin(440*2*PI*t)|0.4*sin(550*2*PI*t):s=48000[t];"
                                      "anoisesrc=c=pink:a=0.1:s=48000:seed=7[a];"
                                      "anoisesrc=c=pink:a=0.1:s=48000:seed=8[b];"
                                      "[a][b]amerge=inputs=2[n];[t][n]amix=inputs=2:normalize=0"),
                       QStringLiteral("-t"), QString::number(kSeconds), QStringLiteral("-c:v"),
                       QStringLiteral("ffv1"), QStringLiteral("-c:a"), QStringLiteral("pcm_s16le"),
                       s_dir->filePath(QStringLiteral("source.mkv"))},
                      &errors);
        ASSERT_EQ(code, 0) << errors.toStdString();
    }
    static void TearDownTestSuite() {
        delete s_dir;
        s_dir = nullptr;
    }
    static QTemporaryDir* s_dir;
};

QTemporaryDir* LMSizeEstimateEncodeTest::s_dir = nullptr;

TEST_P(LMSizeEstimateEncodeTest, RealSizeLiesWithinTheEstimate) {
    const EstimateCase& c = GetParam();
    const auto estimate = LMSizeEstimate::For(c.preset, kSeconds, kSource);
    ASSERT_TRUE(estimate.IsKnown()) << c.path;
    EXPECT_FALSE(estimate.UsesAssumedSource()) << c.path;
    const QString output =
        s_dir->filePath(QStringLiteral("out.") +
                        QString::fromStdString(LMFFmpegArguments::FileExtension(c.preset)));
    QStringList arguments;
    for (const auto& argument : LMFFmpegArguments::Command(
             c.preset, s_dir->filePath(QStringLiteral("source.mkv")).toStdString(),
             output.toStdString()))
        arguments << QString::fromStdString(argument);
    QString errors;
    ASSERT_EQ(RunFFmpeg(arguments, &errors), 0) << c.path << ": " << errors.toStdString();
    const double size = static_cast<double>(QFileInfo(output).size());
    QFile::remove(output);
    const std::string said =
        c.path + ": " + LMSizeEstimate::FormatBytes(size) + " for " + estimate.Describe();
    if (estimate.IsExact()) {
        EXPECT_GE(size, 0.9 * static_cast<double>(estimate.Low())) << said;
        EXPECT_LE(size, 1.1 * static_cast<double>(estimate.High())) << said;
    } else {
        EXPECT_GE(size, static_cast<double>(estimate.Low())) << said;
        EXPECT_LE(size, static_cast<double>(estimate.High())) << said;
    }
}

std::string CaseName(const ::testing::TestParamInfo<EstimateCase>& info) {
    std::string name;
    for (const char ch : info.param.path)
        name += std::isalnum(static_cast<unsigned char>(ch)) ? ch : '_';
    return name;
}

INSTANTIATE_TEST_SUITE_P(DefaultCatalogue, LMSizeEstimateEncodeTest, ::testing::ValuesIn(Cases()),
                         CaseName);

TEST(LMSizeEstimateEncodeSetupTest, CatalogueHasExactAndRangedPresetsToEncode) {
    int exact = 0, ranged = 0;
    for (const auto& c : Cases())
        (LMSizeEstimate::For(c.preset, kSeconds, kSource).IsExact() ? exact : ranged)++;
    EXPECT_GT(exact, 10);
    EXPECT_GT(ranged, 10);
}

} // namespace
