// SPDX-License-Identifier: MIT
#include "LMDefaultCatalogue.h"
#include "LMFormatTreeFactory.h"

#include <gtest/gtest.h>

#include <set>

using namespace Lumeran;
using namespace Lumeran::TestSupport;

TEST(LMDefaultCatalogueTest, HasTheFourCategories) {
    const auto root = LoadDefaultCatalogue();
    ASSERT_TRUE(root);
    ASSERT_EQ(root->ChildCount(), 4);
    EXPECT_EQ(root->ChildAt(0)->Title(), "Video");
    EXPECT_EQ(root->ChildAt(1)->Title(), "Audio");
    EXPECT_EQ(root->ChildAt(2)->Title(), "Device");
    EXPECT_EQ(root->ChildAt(3)->Title(), "Web Video");
}

TEST(LMDefaultCatalogueTest, FormatNodesCarryTheKnownFormatDescriptions) {
    const std::set<std::string> expected = {"MP4 file format",
                                            "MP4 file format with HEVC",
                                            "MOV file format with Apple ProRes",
                                            "MP4 file format for iTunes",
                                            "Matroska file format",
                                            "Matroska file format with HEVC",
                                            "Audiovisual Media file format",
                                            "AVI file format with XVID",
                                            "AVI file format with DIVX",
                                            "MXF file format with DNxHD",
                                            "MXF file format with Apple ProRes",
                                            "MPEG File format for VCD",
                                            "MPEG file format for SVCD",
                                            "MPEG file format for DVD - Video",
                                            "3GPP2 file format",
                                            "3GPP file format",
                                            "Waveform Audio File Format",
                                            "Audio Interchange File Format",
                                            "Simple Audio File Format",
                                            "Matroska Audio File Format"};
    std::set<std::string> found;
    const auto root = LoadDefaultCatalogue();
    for (int c = 0; c < root->ChildCount(); ++c) {
        for (int f = 0; f < root->ChildAt(c)->ChildCount(); ++f) {
            const auto format = root->ChildAt(c)->ChildAt(f);
            found.insert(format->Description());
            EXPECT_GT(format->FormatPresetCount(), 0) << format->Title();
            EXPECT_NE(format->FaceID(), 0) << format->Title();
        }
    }
    for (const auto& description : expected)
        EXPECT_TRUE(found.count(description)) << description;
}

TEST(LMDefaultCatalogueTest, PresetsShareTheirNodesFaceAndHaveUniqueTitles) {
    const auto root = LoadDefaultCatalogue();
    for (int c = 0; c < root->ChildCount(); ++c) {
        for (int f = 0; f < root->ChildAt(c)->ChildCount(); ++f) {
            const auto format = root->ChildAt(c)->ChildAt(f);
            std::set<std::string> titles;
            for (int p = 0; p < format->FormatPresetCount(); ++p) {
                EXPECT_EQ(format->FormatPresetAt(p)->FaceID(), format->FaceID());
                EXPECT_TRUE(titles.insert(format->FormatPresetAt(p)->Title()).second)
                    << format->Title() << "/" << format->FormatPresetAt(p)->Title();
            }
        }
    }
}
