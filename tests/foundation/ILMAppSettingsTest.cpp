#include "ILMAppSettings.h"
#include "LMTestEnvironment.h"

#include <QFile>
#include <QSettings>

using namespace Lumeran;

class ILMAppSettingsTest : public TestSupport::SettingsTest {};

TEST_F(ILMAppSettingsTest, AbsentKeyGivesEmptyString) {
    EXPECT_EQ(ILMAppSettings::Shared()->StringValue("no_such_key"), "");
}

TEST_F(ILMAppSettingsTest, StoredValueReadsBack) {
    auto store = ILMAppSettings::Shared();
    store->SetStringValue("value one", "key");
    EXPECT_EQ(store->StringValue("key"), "value one");
    store->SetStringValue("Qualité ÄÖÜ 日本語", "key");
    EXPECT_EQ(store->StringValue("key"), "Qualité ÄÖÜ 日本語");
}

TEST_F(ILMAppSettingsTest, SynchronizeWritesTheFileAtOnce) {
    auto store = ILMAppSettings::Shared();
    store->SetStringValue("persisted", "recent_format_preset");
    store->Synchronize();
    EXPECT_TRUE(store->LastSynchronizeSucceeded());
    ASSERT_TRUE(QFile::exists(QString::fromStdString(settings->FilePath())));
    QSettings reader(QString::fromStdString(settings->FilePath()), QSettings::IniFormat);
    EXPECT_EQ(reader.value(QStringLiteral("recent_format_preset")).toString(),
              QStringLiteral("persisted"));
}

TEST_F(ILMAppSettingsTest, RedirectingToAnotherFileSeparatesStores) {
    ILMAppSettings::Shared()->SetStringValue("first", "key");
    ILMAppSettings::Shared()->Synchronize();
    TestSupport::IsolatedSettings other;
    EXPECT_EQ(ILMAppSettings::Shared()->StringValue("key"), "");
}

TEST_F(ILMAppSettingsTest, UnwritableLocationReportsFailedSynchronize) {
    ILMAppSettings::UseSettingsFile("/proc/lmfp-no-such-dir/settings.ini");
    auto store = ILMAppSettings::Shared();
    store->SetStringValue("x", "key");
    store->Synchronize();
    EXPECT_FALSE(store->LastSynchronizeSucceeded());
}
