// SPDX-License-Identifier: MIT
#include "LMFFmpegArgumentsReader.h"
#include "LMFFmpegArguments.h"
#include "LMFormatTreeFactory.h"

#include <gtest/gtest.h>

#include <functional>

using namespace Lumeran;
using namespace Lumeran::TestSupport;

namespace {

using Words = std::vector<std::string>;

Words Options(const std::shared_ptr<const ILMFormatPreset>& preset) {
    return LMFFmpegArguments::OutputOptions(preset);
}

// Each option of asked (with its value) is among given, as often as asked.
bool GivesAll(const Words& asked, Words given) {
    for (std::size_t i = 0; i < asked.size(); i += 2) {
        bool found = false;
        for (std::size_t j = 0; j + 1 < given.size(); j += 2) {
            if (given[j] == asked[i] && given[j + 1] == asked[i + 1]) {
                given.erase(given.begin() + static_cast<std::ptrdiff_t>(j),
                            given.begin() + static_cast<std::ptrdiff_t>(j) + 2);
                found = true;
                break;
            }
        }
        if (!found)
            return false;
    }
    return true;
}

void ForEachPreset(
    const std::shared_ptr<const ILMFormatNode>& node,
    const std::function<void(const std::shared_ptr<const ILMFormatPreset>&)>& visit) {
    for (int i = 0; i < node->FormatPresetCount(); ++i)
        visit(node->FormatPresetAt(i));
    for (int i = 0; i < node->ChildCount(); ++i)
        ForEachPreset(node->ChildAt(i), visit);
}

} // namespace

TEST(LMFFmpegArgumentsReaderTest, APastedHevcLineMapsWholeAndComesBackWithItsOptions) {
    const Words asked{"-c:v", "libx265", "-crf", "28", "-c:a", "aac", "-b:a", "128k", "-f", "mp4"};
    const auto result = LMFFmpegArgumentsReader::PresetFromArguments(asked);
    ASSERT_TRUE(result.preset);
    EXPECT_TRUE(result.notMapped.empty());
    EXPECT_EQ(result.preset->FormatId(), "mp4");
    EXPECT_EQ(result.preset->CurrentVideoCodec()->Encoder(), "libx265");
    EXPECT_EQ(result.preset->CurrentAudioCodec()->Encoder(), "aac");
    EXPECT_TRUE(GivesAll(asked, Options(result.preset)))
        << LMFFmpegArguments::Join(Options(result.preset));
}

TEST(LMFFmpegArgumentsReaderTest, EveryCataloguePresetReadsBackFromItsOwnArguments) {
    const auto catalogue = LoadDefaultCatalogue();
    ASSERT_TRUE(catalogue);
    int presets = 0;
    ForEachPreset(catalogue, [&](const std::shared_ptr<const ILMFormatPreset>& preset) {
        ++presets;
        const Words line = Options(preset);
        const auto result = LMFFmpegArgumentsReader::PresetFromArguments(line);
        EXPECT_TRUE(result.notMapped.empty()) << preset->Title() << ": " << result.notMapped[0];
        EXPECT_EQ(LMFFmpegArguments::Join(Options(result.preset)), LMFFmpegArguments::Join(line))
            << preset->FormatName() << " " << preset->Title();
    });
    EXPECT_GT(presets, 50);
}

TEST(LMFFmpegArgumentsReaderTest, OptionsNoPresetGivesAreReportedWithTheirValues) {
    const auto result = LMFFmpegArgumentsReader::PresetFromArguments(
        {"-c:v", "libx264", "-preset", "slow", "-crf", "23", "-tune", "film", "-f", "mp4"});
    EXPECT_EQ(result.notMapped, (Words{"-preset slow", "-tune film"}));
    EXPECT_EQ(result.preset->CurrentVideoCodec()->Encoder(), "libx264");
    EXPECT_EQ(result.preset->CurrentVideoCodec()->CurrentQuality()->Value(), "23");
}

TEST(LMFFmpegArgumentsReaderTest, AValueTheRegistryDoesNotOfferIsReported) {
    const auto result = LMFFmpegArgumentsReader::PresetFromArguments(
        {"-c:v", "libx264", "-crf", "27", "-s", "1280x720", "-f", "mp4"});
    EXPECT_EQ(result.notMapped, Words{"-crf 27"});
    EXPECT_EQ(result.preset->CurrentVideoCodec()->CurrentResolution()->Width(), 1280);
    // The nearest the registry offers (20, 23, 28 and 16).
    EXPECT_EQ(result.preset->CurrentVideoCodec()->CurrentQuality()->Value(), "28");
}

TEST(LMFFmpegArgumentsReaderTest, AnUnofferedBitrateOrSizeTakesTheNearestOffered) {
    const auto result = LMFFmpegArgumentsReader::PresetFromArguments(
        {"-c:v", "libx264", "-s", "1900x1000", "-c:a", "aac", "-b:a", "150k", "-f", "mp4"});
    EXPECT_EQ(result.notMapped, (Words{"-s 1900x1000", "-b:a 150k"}));
    EXPECT_EQ(result.preset->CurrentAudioCodec()->CurrentQuality()->Value(), "128k");
    EXPECT_EQ(result.preset->CurrentVideoCodec()->CurrentResolution()->Width(), 1920);
}

TEST(LMFFmpegArgumentsReaderTest, TheOutputFileNamesTheContainerAndTheInputIsPassedOver) {
    const auto result = LMFFmpegArgumentsReader::PresetFromArguments(
        {"-y", "-i", "in.mov", "-c:v", "libvpx-vp9", "-c:a", "libopus", "out.webm"});
    EXPECT_EQ(result.preset->FormatId(), "webm");
    EXPECT_TRUE(result.notMapped.empty()) << result.notMapped[0];
}

TEST(LMFFmpegArgumentsReaderTest, NoVideoMapsToAnAudioOnlyPreset) {
    const auto result = LMFFmpegArgumentsReader::PresetFromArguments(
        {"-vn", "-acodec", "libmp3lame", "-ab", "320k", "-f", "mp3"});
    EXPECT_TRUE(result.notMapped.empty()) << result.notMapped[0];
    EXPECT_EQ(result.preset->FormatId(), "mp3");
    EXPECT_FALSE(result.preset->CurrentVideoCodec());
    EXPECT_EQ(result.preset->CurrentAudioCodec()->CurrentQuality()->Value(), "320k");
}
