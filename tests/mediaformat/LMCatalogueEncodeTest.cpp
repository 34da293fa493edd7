// SPDX-License-Identifier: MIT
// Encodes a half-second synthetic clip with every preset of the default
// catalogue and checks with ffprobe that the file is what the preset says:
// container, codecs, frame size, frame rate, sample rate and channel count.
// LMPresetVerifier does the work, as it does for `lmformat verify`.

#include "ILMFormatNode.h"
#include "ILMJsonReader.h"
#include "LMDefaultCatalogue.h"
#include "LMPresetVerifier.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <ostream>

using namespace Lumeran;

namespace {

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

class LMCatalogueEncodeTest : public ::testing::TestWithParam<PresetCase> {
protected:
    static void SetUpTestSuite() {
        s_dir = new QTemporaryDir();
        s_verifier = new LMPresetVerifier({}, s_dir->path().toStdString());
        ASSERT_TRUE(s_verifier->MakeSource()) << s_verifier->Problem();
    }
    static void TearDownTestSuite() {
        delete s_verifier;
        s_verifier = nullptr;
        delete s_dir;
        s_dir = nullptr;
    }
    static QTemporaryDir* s_dir;
    static LMPresetVerifier* s_verifier;
};

QTemporaryDir* LMCatalogueEncodeTest::s_dir = nullptr;
LMPresetVerifier* LMCatalogueEncodeTest::s_verifier = nullptr;

TEST_P(LMCatalogueEncodeTest, EncodesAndProbesAsThePresetSays) {
    const PresetCase& c = GetParam();
    const auto result = s_verifier->Verify(c.preset);
    std::string problems;
    for (const auto& problem : result.problems)
        problems += "\n  " + problem;
    EXPECT_TRUE(result.ok) << c.path << ": " << result.command << problems;
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
