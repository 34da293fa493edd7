// SPDX-License-Identifier: MIT
#include "LMFormatRegistry.h"

#include <gtest/gtest.h>

using namespace Lumeran;

TEST(LMFormatRegistryTest, EmbeddedTableLoads) {
    const auto& registry = LMFormatRegistry::Instance();
    ASSERT_TRUE(registry.IsValid());
    EXPECT_TRUE(registry.FindContainer(u"mp4"));
    EXPECT_EQ(registry.FindContainer(u"MP4"), registry.FindContainer(u"mp4"));
    EXPECT_FALSE(registry.FindContainer(u"nope"));
}

TEST(LMFormatRegistryTest, EveryContainerHasAMuxerAndAtLeastOneStream) {
    for (const auto& container : LMFormatRegistry::Instance().Containers()) {
        EXPECT_FALSE(container->muxer.empty()) << container->id;
        EXPECT_FALSE(container->extension.empty()) << container->id;
        EXPECT_FALSE(container->audio.empty() && container->video.empty()) << container->id;
    }
}

TEST(LMFormatRegistryTest, CodecDefaultsPointIntoTheirLists) {
    for (const auto& container : LMFormatRegistry::Instance().Containers()) {
        for (const bool audio : {false, true}) {
            for (const LMCodecInfo* codec : container->Codecs(audio)) {
                for (int list = 0; list < LMOptionListCount; ++list) {
                    const int count = codec->Count(static_cast<LMOptionList>(list));
                    const int def = codec->defaults[static_cast<std::size_t>(list)];
                    EXPECT_EQ(count == 0, def == -1) << codec->id;
                    EXPECT_LT(def, count) << codec->id;
                }
            }
        }
    }
}

TEST(LMFormatRegistryTest, InvalidTablesAreRejectedWithAReason) {
    std::string error;
    EXPECT_FALSE(LMFormatRegistry::FromJson("{", &error)->IsValid());
    EXPECT_FALSE(error.empty());
    error.clear();
    EXPECT_FALSE(LMFormatRegistry::FromJson(
                     R"({"containers":[{"id":"x","name":"X","muxer":"x","extension":"x",
        "video":["missing"]}]})",
                     &error)
                     ->IsValid());
    EXPECT_NE(error.find("missing"), std::string::npos);
    EXPECT_FALSE(LMFormatRegistry::FromJson(
                     R"({"videoCodecs":[{"id":"v","name":"V","encoder":"e","stream":"s",
        "resolutions":["nope"]}]})",
                     nullptr)
                     ->IsValid());
}
