// SPDX-License-Identifier: MIT
#include "ILMFmtPresetDataSource.h"
#include "ILMAppSettings.h"
#include "ILMBase64Codec.h"
#include "ILMJsonWriter.h"
#include "LMCoreTestSupport.h"
#include "LMFmtPresetDataSource.h"
#include "LMSingleton_p.h"
#include "LMTestEnvironment.h"

#include <gtest/gtest.h>

using namespace Lumeran;
using namespace Lumeran::TestSupport;

class ILMFmtPresetDataSourceTest : public SettingsTest {};

TEST_F(ILMFmtPresetDataSourceTest, SharedIsMadeOnFirstUseFromTheStoredLists) {
    // As in a new process: no instance yet.
    LMSingletons::ResetForTesting();
    auto recent = MakeNode("Recent", "Recent Selection", 1);
    recent->AddChild(MakeFormat("MKV", "Matroska", 104, "mkv", {QStringLiteral("Archive")}));
    ILMAppSettings::Shared()->SetStringValue(
        ILMBase64Codec::Encode(ILMJsonWriter::WriteJsonString(recent->ToJson())),
        "recent_format_preset");

    const auto shared = ILMFmtPresetDataSource::Shared();
    ASSERT_TRUE(shared);
    EXPECT_TRUE(std::dynamic_pointer_cast<LMFmtPresetDataSource>(shared));
    const auto list = shared->GetRecentList();
    ASSERT_EQ(list.size(), 1u);
    EXPECT_EQ(list.front()->Title(), "MKV Archive");
    EXPECT_EQ(shared->GetCurrentPreset(), list.front());
}

TEST_F(ILMFmtPresetDataSourceTest, SharedReturnsTheSameInstanceOnEveryCall) {
    const auto first = ILMFmtPresetDataSource::Shared();
    const auto second = ILMFmtPresetDataSource::Shared();
    ASSERT_TRUE(first);
    EXPECT_EQ(first, second);
    // Changes through one handle are seen through every other.
    const auto before = first->GetRecentList().size();
    first->PushRecentItem(MakePreset("wav", "Voice"), MakeNode("WAV"));
    EXPECT_EQ(ILMFmtPresetDataSource::Shared()->GetRecentList().size(), before + 1);
    EXPECT_EQ(ILMFmtPresetDataSource::Shared()->GetDefaultPreset()->Title(), "MP4");
}
