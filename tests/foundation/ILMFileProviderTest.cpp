#include "ILMFileProvider.h"

#include <gtest/gtest.h>

using namespace Lumeran;

TEST(ILMFileProviderTest, RemovePathExtensionDropsOnlyTheLastExtension) {
    EXPECT_EQ(ILMFileProvider::RemovePathExtension("/a/b/formats.json"), "/a/b/formats");
    EXPECT_EQ(ILMFileProvider::RemovePathExtension("/a/b/formats.tar.gz"), "/a/b/formats.tar");
    EXPECT_EQ(ILMFileProvider::RemovePathExtension("formats"), "formats");
}

TEST(ILMFileProviderTest, RemovePathExtensionIgnoresDotsOutsideTheFileName) {
    EXPECT_EQ(ILMFileProvider::RemovePathExtension("/a.d/formats"), "/a.d/formats");
    EXPECT_EQ(ILMFileProvider::RemovePathExtension("/a/.hidden"), "/a/.hidden");
    EXPECT_EQ(ILMFileProvider::RemovePathExtension(""), "");
}

TEST(ILMFileProviderTest, AppendPathExtensionAddsADot) {
    EXPECT_EQ(ILMFileProvider::AppendPathExtension("/a/formats", "icfg"), "/a/formats.icfg");
    EXPECT_EQ(ILMFileProvider::AppendPathExtension("/a/formats", ""), "/a/formats");
}

TEST(ILMFileProviderTest, ReplacingTheExtensionGivesTheArtworkPath) {
    EXPECT_EQ(
        ILMFileProvider::AppendPathExtension(
            ILMFileProvider::RemovePathExtension(":/LMMediaFormat/catalogue/formats.json"), "icfg"),
        ":/LMMediaFormat/catalogue/formats.icfg");
}
