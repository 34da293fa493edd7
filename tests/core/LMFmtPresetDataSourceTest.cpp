// SPDX-License-Identifier: MIT
#include "LMFmtPresetDataSource.h"
#include "ILMAppSettings.h"
#include "ILMArtworkImageMgr.h"
#include "ILMBase64Codec.h"
#include "ILMJsonReader.h"
#include "ILMJsonWriter.h"
#include "ILMStringHelper.h"
#include "LMCoreTestSupport.h"
#include "LMDefaultCatalogue.h"
#include "LMTestEnvironment.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <future>
#include <random>
#include <thread>

using namespace Lumeran;
using namespace Lumeran::TestSupport;
using Clock = std::chrono::steady_clock;

namespace {

constexpr const char* kRecentKey = "recent_format_preset";
constexpr const char* kCustomKey = "custom_format_preset";

using Item = std::shared_ptr<const ILMFmtPresetRecentItem>;
using List = ILMFmtPresetDataSource::RecentList;

std::shared_ptr<ILMFormatNode> NodeFromSetting(const std::string& key) {
    const std::string stored = ILMAppSettings::Shared()->StringValue(key);
    return ILMFormatNode::MallocFormatNode(
        ILMJsonReader::ReadJsonString(ILMBase64Codec::Decode(stored), nullptr));
}

void StoreNode(const std::shared_ptr<const ILMFormatNode>& node, const std::string& key) {
    ILMAppSettings::Shared()->SetStringValue(
        ILMBase64Codec::Encode(ILMJsonWriter::WriteJsonString(node->ToJson())), key);
    ILMAppSettings::Shared()->Synchronize();
}

std::vector<std::string> Titles(const List& list) {
    std::vector<std::string> titles;
    for (const auto& item : list)
        titles.push_back(item->Title());
    return titles;
}

std::vector<std::string> ChildTitles(const std::shared_ptr<const ILMFormatNode>& node) {
    std::vector<std::string> titles;
    for (int i = 0; i < node->ChildCount(); ++i)
        titles.push_back(node->ChildAt(i)->Title());
    return titles;
}

std::vector<std::string> PresetTitles(const std::shared_ptr<const ILMFormatNode>& node) {
    std::vector<std::string> titles;
    for (int i = 0; i < node->FormatPresetCount(); ++i)
        titles.push_back(node->FormatPresetAt(i)->Title());
    return titles;
}

QByteArray DefaultCatalogueText() {
    QFile file(QString::fromStdString(LMDefaultCatalogue::Path()));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A format node "<name>" with one preset "<name> preset"; the entry's title is
// the preset title, which contains the node title.
Item Entry(const std::string& name, const std::string& description = "Format") {
    auto node = MakeNode(name, description, 100);
    auto preset = MakePreset("mp4", name + " preset");
    node->AddFormatPreset(preset);
    return ILMFmtPresetRecentItem::MallocFmtPresetRecentItem(preset, node);
}

// The completion's side of a load: when, where and how often it ran.
struct Completion {
    std::atomic<int> calls{0};
    std::promise<std::thread::id> thread;
    std::future<std::thread::id> ran = thread.get_future();

    std::function<void()> Callback() {
        return [this] {
            if (calls.fetch_add(1) == 0)
                thread.set_value(std::this_thread::get_id());
        };
    }
    bool WaitFor(std::chrono::seconds limit) {
        return ran.wait_for(limit) == std::future_status::ready;
    }
};

} // namespace

class LMFmtPresetDataSourceTest : public SettingsTest {
protected:
    std::shared_ptr<LMFmtPresetDataSource> MakeSource() {
        return std::make_shared<LMFmtPresetDataSource>();
    }
    // A new start of the host over the same settings file: the store is opened
    // again, so nothing cached in memory survives.
    std::shared_ptr<LMFmtPresetDataSource> Restart() {
        ILMAppSettings::UseSettingsFile(settings->FilePath());
        return MakeSource();
    }
};

// =================================================================================
// Construction, default preset, external data
// =================================================================================

TEST_F(LMFmtPresetDataSourceTest, FreshInstallationProposesTheDefaultMp4Entry) {
    const auto source = MakeSource();
    EXPECT_TRUE(source->GetRecentList().empty());
    const auto current = source->GetCurrentPreset();
    ASSERT_TRUE(current);
    EXPECT_EQ(current, source->GetDefaultPreset());
    ASSERT_TRUE(current->FormatNode());
    ASSERT_TRUE(current->FormatPreset());
    EXPECT_EQ(current->FormatNode()->Title(), "MP4");
    EXPECT_EQ(current->FormatNode()->Description(), "MP4 Format");
    EXPECT_EQ(current->FormatNode()->FaceID(), ILMArtworkImageMgr::FormatFaceIDMP4);
    EXPECT_EQ(current->FormatPreset()->Title(), LMFormatNameMP4);
    EXPECT_EQ(current->FormatPreset()->FormatName(), LMFormatNameMP4);
    EXPECT_EQ(current->FormatPreset()->FaceID(), ILMArtworkImageMgr::FormatFaceIDMP4);
    EXPECT_EQ(current->FaceID(), ILMArtworkImageMgr::FormatFaceIDMP4);
    EXPECT_EQ(current->Title(), "MP4");
    EXPECT_EQ(current->Description(), "MP4 Format");
    // The default node holds the default preset itself.
    EXPECT_EQ(ILMFormatNode::FirstFormatPreset(current->FormatNode()), current->FormatPreset());
}

TEST_F(LMFmtPresetDataSourceTest, ASourceDestroyedDuringALoadNeverCallsItsCompletion) {
    auto gate = std::make_unique<LoadGate>();
    ASSERT_TRUE(gate->IsValid());
    auto completion = std::make_shared<Completion>();
    {
        const auto source = MakeSource();
        source->AsyncLoadExternalDataSource(gate->Path(), completion->Callback());
    }
    // The load is still held at the gate when its source goes; once released it
    // finishes on its own and reports to nobody.
    ASSERT_TRUE(gate->Release(DefaultCatalogueText()));
    EXPECT_FALSE(completion->WaitFor(std::chrono::seconds(2)));
    EXPECT_EQ(completion->calls.load(), 0);
}

TEST_F(LMFmtPresetDataSourceTest, ASecondLoadStartedBeforeTheFirstEndsLetsBothComplete) {
    LoadGate first(QStringLiteral("first"));
    LoadGate second(QStringLiteral("second"));
    ASSERT_TRUE(first.IsValid() && second.IsValid());
    const auto source = MakeSource();
    Completion firstDone;
    Completion secondDone;
    source->AsyncLoadExternalDataSource(first.Path(), firstDone.Callback());
    source->AsyncLoadExternalDataSource(second.Path(), secondDone.Callback());
    ASSERT_TRUE(first.Release(DefaultCatalogueText()));
    ASSERT_TRUE(second.Release(DefaultCatalogueText()));
    EXPECT_TRUE(firstDone.WaitFor(std::chrono::seconds(30)));
    EXPECT_TRUE(secondDone.WaitFor(std::chrono::seconds(30)));
    source->WaitForLoadingComplete();
    EXPECT_TRUE(source->GetExternalFormatPresets());
}

TEST_F(LMFmtPresetDataSourceTest, ALoadAfterAnEarlierOneWasCollectedGivesItsOwnTree) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    // The default catalogue, and one with its first category alone.
    const QString whole = dir.filePath(QStringLiteral("whole.json"));
    const QString one = dir.filePath(QStringLiteral("one.json"));
    QJsonObject root = QJsonDocument::fromJson(DefaultCatalogueText()).object();
    ASSERT_GT(root.value(QStringLiteral("children")).toArray().size(), 1);
    QFile wholeFile(whole);
    ASSERT_TRUE(wholeFile.open(QIODevice::WriteOnly) &&
                wholeFile.write(DefaultCatalogueText()) > 0);
    wholeFile.close();
    root.insert(QStringLiteral("children"),
                QJsonArray{root.value(QStringLiteral("children")).toArray().first()});
    QFile oneFile(one);
    ASSERT_TRUE(oneFile.open(QIODevice::WriteOnly) &&
                oneFile.write(QJsonDocument(root).toJson()) > 0);
    oneFile.close();

    const auto source = MakeSource();
    source->AsyncLoadExternalDataSource(whole.toStdString(), {});
    source->WaitForLoadingComplete();
    const auto first = source->GetExternalFormatPresets();
    ASSERT_TRUE(first);
    EXPECT_GT(first->ChildCount(), 1);

    source->AsyncLoadExternalDataSource(one.toStdString(), {});
    source->WaitForLoadingComplete();
    const auto second = source->GetExternalFormatPresets();
    ASSERT_TRUE(second);
    EXPECT_EQ(second->ChildCount(), 1);
}

TEST_F(LMFmtPresetDataSourceTest, GetCurrentPresetIsTheNewestRecentEntryOnceThereIsOne) {
    const auto source = MakeSource();
    source->PushRecentItem(Entry("MKV"));
    source->PushRecentItem(Entry("WebM"));
    EXPECT_EQ(source->GetCurrentPreset(), source->GetRecentList().front());
    EXPECT_EQ(source->GetCurrentPreset()->Title(), "WebM preset");
    EXPECT_EQ(source->GetDefaultPreset()->Title(), "MP4");
}

TEST_F(LMFmtPresetDataSourceTest, ExternalPresetsAreEmptyWhileLoadingAndTheTreeAfterCompletion) {
    LoadGate gate;
    ASSERT_TRUE(gate.IsValid());
    const auto source = MakeSource();
    Completion completion;
    source->AsyncLoadExternalDataSource(gate.Path(), completion.Callback());

    // The load is held at the gate until released below: a call that waited for
    // it would never return.
    EXPECT_FALSE(source->GetExternalFormatPresets());
    EXPECT_EQ(completion.calls.load(), 0);

    ASSERT_TRUE(gate.Release(DefaultCatalogueText()));
    ASSERT_TRUE(completion.WaitFor(std::chrono::seconds(30)));
    source->WaitForLoadingComplete();
    const auto tree = source->GetExternalFormatPresets();
    ASSERT_TRUE(tree);
    EXPECT_EQ(tree->Title(), "Formats");
    EXPECT_EQ(ChildTitles(tree),
              (std::vector<std::string>{"Video", "Audio", "Device", "Web Video"}));
    // Collected once and kept.
    EXPECT_EQ(source->GetExternalFormatPresets(), tree);
    EXPECT_EQ(completion.calls.load(), 1);
}

namespace {

struct FailedLoadRow {
    const char* name;
    // Makes the catalogue path inside dir.
    std::function<std::string(const QDir& dir)> make;
    bool logsTheLoadFailure;
};

// Rows print as their name in test listings.
void PrintTo(const FailedLoadRow& row, std::ostream* out) {
    *out << row.name;
}

class LMFmtPresetDataSourceFailedLoadTest : public SettingsTest,
                                            public ::testing::WithParamInterface<FailedLoadRow> {};

} // namespace

TEST_P(LMFmtPresetDataSourceFailedLoadTest,
       FailedLoadStillCallsTheCompletionAndLeavesTheExternalTreeEmptyForEver) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const std::string path = GetParam().make(QDir(dir.path()));
    LogCapture log;
    const auto source = std::make_shared<LMFmtPresetDataSource>();
    Completion completion;
    source->AsyncLoadExternalDataSource(path, completion.Callback());
    ASSERT_TRUE(completion.WaitFor(std::chrono::seconds(30)));
    source->WaitForLoadingComplete();

    EXPECT_EQ(completion.calls.load(), 1);
    for (int i = 0; i < 5; ++i)
        EXPECT_FALSE(source->GetExternalFormatPresets());
    const QString line =
        QStringLiteral("Failed load external format ") + QString::fromStdString(path);
    EXPECT_EQ(log.Lines().contains(line), GetParam().logsTheLoadFailure)
        << log.Lines().join(u'\n').toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    LMFmtPresetDataSourceTest, LMFmtPresetDataSourceFailedLoadTest,
    ::testing::Values(
        FailedLoadRow{
            "MissingFile",
            [](const QDir& dir) { return dir.filePath(QStringLiteral("none.json")).toStdString(); },
            true},
        FailedLoadRow{"Directory",
                      [](const QDir& dir) {
                          dir.mkdir(QStringLiteral("folder.json"));
                          return dir.filePath(QStringLiteral("folder.json")).toStdString();
                      },
                      true},
        FailedLoadRow{"NotJson",
                      [](const QDir& dir) {
                          QFile file(dir.filePath(QStringLiteral("text.json")));
                          file.open(QIODevice::WriteOnly);
                          file.write("this is { not json");
                          return file.fileName().toStdString();
                      },
                      true},
        // Readable JSON that is no format tree: the model rejects it (and says
        // so in its own words); the load still ends empty.
        FailedLoadRow{"JsonOfTheWrongShape",
                      [](const QDir& dir) {
                          QFile file(dir.filePath(QStringLiteral("shape.json")));
                          file.open(QIODevice::WriteOnly);
                          file.write(R"({"title": 5, "children": "none"})");
                          return file.fileName().toStdString();
                      },
                      false}),
    [](const ::testing::TestParamInfo<FailedLoadRow>& info) {
        return std::string(info.param.name);
    });

TEST_F(LMFmtPresetDataSourceTest,
       WaitForLoadingCompleteReturnsAtOnceWhenCalledTwiceOrWithoutALoad) {
    const auto source = MakeSource();
    // Without a load there is nothing to wait for: these return (a wait on
    // nothing would never end, and the test with it).
    source->WaitForLoadingComplete();
    source->WaitForLoadingComplete();

    Completion completion;
    source->AsyncLoadExternalDataSource(LMDefaultCatalogue::Path(), completion.Callback());
    source->WaitForLoadingComplete();
    // Joined: the completion has run by now.
    EXPECT_EQ(completion.calls.load(), 1);
    source->WaitForLoadingComplete();
    EXPECT_EQ(completion.calls.load(), 1);
    EXPECT_TRUE(source->GetExternalFormatPresets());
}

TEST_F(LMFmtPresetDataSourceTest, CompletionRunsOnAThreadOtherThanTheCallers) {
    const auto source = MakeSource();
    Completion completion;
    source->AsyncLoadExternalDataSource(LMDefaultCatalogue::Path(), completion.Callback());
    ASSERT_TRUE(completion.WaitFor(std::chrono::seconds(30)));
    EXPECT_NE(completion.ran.get(), std::this_thread::get_id());
    source->WaitForLoadingComplete();
}

TEST_F(LMFmtPresetDataSourceTest, CompletionCanCollectTheTreeItself) {
    // The completion does not receive the tree; it asks for it. Here it does so
    // on its own thread while the caller only waits.
    const auto source = MakeSource();
    std::shared_ptr<ILMFormatNode> collected;
    source->AsyncLoadExternalDataSource(LMDefaultCatalogue::Path(),
                                        [&] { collected = source->GetExternalFormatPresets(); });
    source->WaitForLoadingComplete();
    ASSERT_TRUE(collected);
    EXPECT_EQ(source->GetExternalFormatPresets(), collected);
}

TEST_F(LMFmtPresetDataSourceTest,
       GetExternalFormatPresetsNeverBlocksTheCallerWhileALargeCatalogueLoads) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("large.json"));
    const qint64 size = WriteLargeCatalogue(path, 40, 400);
    ASSERT_GT(size, 4 * 1024 * 1024);

    const auto source = MakeSource();
    std::atomic<bool> done{false};
    source->AsyncLoadExternalDataSource(path.toStdString(), [&] { done = true; });

    // Calls keep returning, without the tree, while the load runs; how long
    // each takes is measured in bench/, not asserted here.
    int callsWhileLoading = 0;
    std::shared_ptr<ILMFormatNode> tree;
    const auto giveUp = Clock::now() + std::chrono::seconds(120);
    while (!tree && Clock::now() < giveUp) {
        tree = source->GetExternalFormatPresets();
        // Only calls that found the load unfinished, and after which the
        // completion still had not run, were certainly made during the load.
        if (!tree && !done)
            ++callsWhileLoading;
    }
    source->WaitForLoadingComplete();
    ASSERT_TRUE(tree);
    EXPECT_EQ(tree->ChildAt(0)->ChildCount(), 40);
    EXPECT_GE(callsWhileLoading, 1);
}

TEST_F(LMFmtPresetDataSourceTest, ArtworkManagerIsMadeAtOnceFromTheIcfgBesideTheCatalogue) {
    LoadGate gate(QStringLiteral("catalogue"));
    ASSERT_TRUE(gate.IsValid());
    const QDir dir(gate.DirPath());
    ASSERT_TRUE(QFile::copy(QStringLiteral(":/LMMediaFormat/catalogue/artwork/mp4.svg"),
                            dir.filePath(QStringLiteral("mp4.svg"))));
    QFile icfg(dir.filePath(QStringLiteral("catalogue.icfg")));
    ASSERT_TRUE(icfg.open(QIODevice::WriteOnly));
    icfg.write(R"({"version": 1, "artwork": [{"faceId": 100, "images": ["mp4.svg"]}]})");
    icfg.close();

    const auto source = MakeSource();
    EXPECT_FALSE(source->GetArtworkGroup(100));
    source->AsyncLoadExternalDataSource(gate.Path(), [] {});
    // The load is still held at its start, yet the artwork is there.
    const auto group = source->GetArtworkGroup(100);
    ASSERT_TRUE(group);
    EXPECT_EQ(group->FaceID(), 100);
    ASSERT_EQ(group->ImagePaths().size(), 1u);
    EXPECT_EQ(QFileInfo(QString::fromStdString(group->ImagePaths().front())).fileName(),
              QStringLiteral("mp4.svg"));
    EXPECT_FALSE(source->GetArtworkGroup(101));
    EXPECT_FALSE(source->GetExternalFormatPresets());
    gate.Release(DefaultCatalogueText());
    source->WaitForLoadingComplete();
    EXPECT_TRUE(source->GetExternalFormatPresets());
}

TEST_F(LMFmtPresetDataSourceTest, GetArtworkGroupIsEmptyBeforeAnyLoad) {
    const auto source = MakeSource();
    EXPECT_FALSE(source->GetArtworkGroup(ILMArtworkImageMgr::FormatFaceIDMP4));
    EXPECT_FALSE(source->GetArtworkGroup(ILMArtworkImageMgr::CategoryFaceIDRecentList));
}

TEST_F(LMFmtPresetDataSourceTest, CatalogueWithoutArtworkConfigurationLoadsWithoutArtwork) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("formats.json"));
    ASSERT_TRUE(QFile::copy(QString::fromStdString(LMDefaultCatalogue::Path()), path));
    const auto source = MakeSource();
    source->AsyncLoadExternalDataSource(path.toStdString(), [] {});
    source->WaitForLoadingComplete();
    EXPECT_TRUE(source->GetExternalFormatPresets());
    EXPECT_FALSE(source->GetArtworkGroup(ILMArtworkImageMgr::FormatFaceIDMP4));
}

TEST_F(LMFmtPresetDataSourceTest, LoadOfTheDefaultCatalogueGivesItsTreeAndArtwork) {
    const auto source = MakeSource();
    source->AsyncLoadExternalDataSource(LMDefaultCatalogue::Path(), [] {});
    source->WaitForLoadingComplete();
    const auto tree = source->GetExternalFormatPresets();
    ASSERT_TRUE(tree);
    const auto mp4 = tree->FindChild("Video")->FindChild("MP4");
    ASSERT_TRUE(mp4);
    EXPECT_TRUE(mp4->FindFormatPreset("HD 1080p"));
    for (const int face :
         {ILMArtworkImageMgr::FormatFaceIDMP4, ILMArtworkImageMgr::CategoryFaceIDRecentList,
          ILMArtworkImageMgr::CategoryFaceIDCustomize})
        EXPECT_TRUE(source->GetArtworkGroup(face)) << face;
}

// =================================================================================
// Reading and writing the settings
// =================================================================================

TEST_F(LMFmtPresetDataSourceTest, WithNoSettingStoredTheRecentListIsEmptyAndTheRecentRootIsRecent) {
    const auto source = MakeSource();
    EXPECT_TRUE(source->GetRecentList().empty());
    const auto recent = source->GetRecentRoot();
    ASSERT_TRUE(recent);
    EXPECT_EQ(recent->Title(), "Recent");
    EXPECT_EQ(recent->Description(), "Recent Selection");
    EXPECT_EQ(recent->FaceID(), ILMArtworkImageMgr::CategoryFaceIDRecentList);
    EXPECT_EQ(recent->ChildCount(), 0);
    const auto custom = source->GetCustomList();
    ASSERT_TRUE(custom);
    EXPECT_EQ(custom->Title(), "Custom");
    EXPECT_EQ(custom->Description(), "Custom Preset");
    EXPECT_EQ(custom->FaceID(), ILMArtworkImageMgr::CategoryFaceIDCustomize);
    EXPECT_EQ(custom->ChildCount(), 0);
}

namespace {

struct BadValueRow {
    const char* name;
    std::string stored;
};

// Rows print as their name in test listings.
void PrintTo(const BadValueRow& row, std::ostream* out) {
    *out << row.name;
}

class LMFmtPresetDataSourceBadValueTest : public SettingsTest,
                                          public ::testing::WithParamInterface<BadValueRow> {};

} // namespace

TEST_P(LMFmtPresetDataSourceBadValueTest, UnreadableStoredListsFallBackToTheDefaultRoots) {
    ILMAppSettings::Shared()->SetStringValue(GetParam().stored, kRecentKey);
    ILMAppSettings::Shared()->SetStringValue(GetParam().stored, kCustomKey);
    const auto source = std::make_shared<LMFmtPresetDataSource>();
    EXPECT_TRUE(source->GetRecentList().empty());
    EXPECT_EQ(source->GetRecentRoot()->Title(), "Recent");
    EXPECT_EQ(source->GetRecentRoot()->ChildCount(), 0);
    EXPECT_EQ(source->GetCustomList()->Title(), "Custom");
    EXPECT_EQ(source->GetCustomList()->ChildCount(), 0);
    EXPECT_EQ(source->GetCurrentPreset(), source->GetDefaultPreset());
    // And the store works on as usual.
    EXPECT_TRUE(source->PushRecentItem(Entry("MKV")));
    source->SaveRecentList();
    ASSERT_TRUE(source->LastSaveSucceeded());
    // What could not be read is carried along, never shown.
    const LMFmtPresetDataSource reread;
    EXPECT_EQ(reread.GetRecentList().size(), 1u);
}

INSTANTIATE_TEST_SUITE_P(
    LMFmtPresetDataSourceTest, LMFmtPresetDataSourceBadValueTest,
    ::testing::Values(BadValueRow{"EmptyValue", ""},
                      BadValueRow{"NotBase64", "%%% this is not base64 %%%"},
                      BadValueRow{"Base64OfNothing", "===="},
                      BadValueRow{"Base64OfTextThatIsNotJson",
                                  ILMBase64Codec::Encode("title: Recent, children: none")},
                      BadValueRow{"Base64OfJsonOfTheWrongShape",
                                  ILMBase64Codec::Encode(R"({"title": 7, "children": {}})")},
                      BadValueRow{"Base64OfAJsonArray", ILMBase64Codec::Encode("[1, 2, 3]")},
                      BadValueRow{"Base64OfATreeWithAnUnknownContainer",
                                  ILMBase64Codec::Encode(
                                      R"({"title": "Recent", "children": [{"title": "X",
                                          "presets": [{"title": "P", "format": "nope"}]}]})")}),
    [](const ::testing::TestParamInfo<BadValueRow>& info) { return std::string(info.param.name); });

TEST_F(LMFmtPresetDataSourceTest, ConstructionReadsTheStoredRecentAndCustomTrees) {
    auto recent =
        MakeNode("Recent", "Recent Selection", ILMArtworkImageMgr::CategoryFaceIDRecentList);
    recent->AddChild(MakeFormat("Oldest", "", 100, "mp4", {QStringLiteral("First")}));
    recent->AddChild(MakeFormat("Newest", "", 101, "mkv", {QStringLiteral("Second")}));
    StoreNode(recent, kRecentKey);
    auto custom = MakeNode("Custom", "Custom Preset", ILMArtworkImageMgr::CategoryFaceIDCustomize);
    custom->AddChild(MakeFormat("WAV", "Waveform", 200, "wav",
                                {QStringLiteral("Mine"), QStringLiteral("Also mine")}));
    StoreNode(custom, kCustomKey);

    const auto source = Restart();
    EXPECT_EQ(Titles(source->GetRecentList()),
              (std::vector<std::string>{"Newest Second", "Oldest First"}));
    EXPECT_TRUE(source->GetRecentRoot()->IsEqualTo(recent));
    EXPECT_TRUE(source->GetCustomList()->IsEqualTo(custom));
    EXPECT_EQ(source->GetCurrentPreset()->Title(), "Newest Second");
}

TEST_F(LMFmtPresetDataSourceTest, SavedListsAreBase64OfTheJsonTextAndReachTheFileAtOnce) {
    const auto source = MakeSource();
    source->PushRecentItem(Entry("MKV"));
    source->AddCustomPreset(MakePreset("wav", "Mine"), MakeNode("WAV", "Waveform", 200));
    source->SaveRecentList();
    source->SaveCustomList();

    // Read with a store of its own, straight from the file.
    QSettings file(QString::fromStdString(settings->FilePath()), QSettings::IniFormat);
    for (const auto& [key, expected] :
         {std::pair{kRecentKey, source->GetRecentRoot()},
          std::pair{kCustomKey, std::shared_ptr<const ILMFormatNode>(source->GetCustomList())}}) {
        const std::string stored = file.value(QLatin1StringView(key)).toString().toStdString();
        ASSERT_FALSE(stored.empty()) << key;
        const std::string json = ILMBase64Codec::Decode(stored);
        EXPECT_EQ(json, ILMJsonWriter::WriteJsonString(expected->ToJson())) << key;
        const auto node =
            ILMFormatNode::MallocFormatNode(ILMJsonReader::ReadJsonString(json, nullptr));
        ASSERT_TRUE(node) << key;
        EXPECT_TRUE(node->IsEqualTo(expected)) << key;
    }
}

TEST_F(LMFmtPresetDataSourceTest, ChangesReachTheSettingsOnlyWhenSaved) {
    const auto source = MakeSource();
    source->PushRecentItem(Entry("MKV"));
    source->AddCustomPreset(MakePreset("wav", "Mine"), MakeNode("WAV"));
    EXPECT_EQ(ILMAppSettings::Shared()->StringValue(kRecentKey), "");
    EXPECT_EQ(ILMAppSettings::Shared()->StringValue(kCustomKey), "");
    source->SaveRecentList();
    EXPECT_NE(ILMAppSettings::Shared()->StringValue(kRecentKey), "");
    EXPECT_EQ(ILMAppSettings::Shared()->StringValue(kCustomKey), "");
    source->SaveCustomList();
    EXPECT_NE(ILMAppSettings::Shared()->StringValue(kCustomKey), "");
}

// =================================================================================
// Recent list
// =================================================================================

TEST_F(LMFmtPresetDataSourceTest, PushingTheSamePairTwiceLeavesOneEntryAtTheFrontAndOneChild) {
    const auto source = MakeSource();
    // A format node as the catalogue has it: several presets, one of them chosen.
    const auto node =
        MakeFormat("MKV", "Matroska", 104, "mkv",
                   {QStringLiteral("Archive"), QStringLiteral("Small"), QStringLiteral("Web")});
    const auto preset = node->FindFormatPreset("Small");
    ASSERT_TRUE(source->PushRecentItem(preset, node));
    const auto firstChild = source->GetRecentRoot()->ChildAt(0);
    ASSERT_TRUE(source->PushRecentItem(preset, node));

    ASSERT_EQ(source->GetRecentList().size(), 1u);
    EXPECT_EQ(source->GetRecentList().front()->Title(), "MKV Small");
    ASSERT_EQ(source->GetRecentRoot()->ChildCount(), 1);
    // The old child went and a new copy came.
    EXPECT_NE(source->GetRecentRoot()->ChildAt(0), firstChild);
    EXPECT_EQ(source->GetRecentRoot()->ChildAt(0), source->GetRecentList().front()->FormatNode());

    // With another entry between, the re-selection comes back to the front; so
    // does a choice made from the recent list itself.
    source->PushRecentItem(Entry("WebM"));
    source->PushRecentItem(preset, node);
    EXPECT_EQ(Titles(source->GetRecentList()),
              (std::vector<std::string>{"MKV Small", "WebM preset"}));
    EXPECT_EQ(ChildTitles(source->GetRecentRoot()), (std::vector<std::string>{"WebM", "MKV"}));
    source->PushRecentItem(source->GetRecentList().back());
    EXPECT_EQ(Titles(source->GetRecentList()),
              (std::vector<std::string>{"WebM preset", "MKV Small"}));
    EXPECT_EQ(source->GetRecentRoot()->ChildCount(), 2);

    // Another preset of the same node is an entry of its own.
    source->PushRecentItem(node->FindFormatPreset("Web"), node);
    EXPECT_EQ(source->GetRecentList().size(), 3u);
}

TEST_F(LMFmtPresetDataSourceTest, ReselectionAfterANewStartMovesTheStoredEntry) {
    const auto node = MakeFormat("MKV", "Matroska", 104, "mkv",
                                 {QStringLiteral("Archive"), QStringLiteral("Small")});
    const auto first = MakeSource();
    first->PushRecentItem(node->FindFormatPreset("Archive"), node);
    first->PushRecentItem(Entry("WebM"));
    first->SaveRecentList();

    const auto second = Restart();
    second->PushRecentItem(node->FindFormatPreset("Archive"), node);
    EXPECT_EQ(Titles(second->GetRecentList()),
              (std::vector<std::string>{"MKV Archive", "WebM preset"}));
}

TEST_F(LMFmtPresetDataSourceTest, PushingAnItemEqualToTheThirdEntryMovesItToTheFront) {
    const auto source = MakeSource();
    for (const char* name : {"A", "B", "C", "D"})
        source->PushRecentItem(Entry(name));
    ASSERT_EQ(Titles(source->GetRecentList()),
              (std::vector<std::string>{"D preset", "C preset", "B preset", "A preset"}));

    // An equal entry made afresh, not the listed object.
    EXPECT_TRUE(source->PushRecentItem(Entry("B")));
    EXPECT_EQ(Titles(source->GetRecentList()),
              (std::vector<std::string>{"B preset", "D preset", "C preset", "A preset"}));
    EXPECT_EQ(ChildTitles(source->GetRecentRoot()), (std::vector<std::string>{"A", "C", "D", "B"}));
}

TEST_F(LMFmtPresetDataSourceTest, PushStoresCopiesNotTheCallersObjects) {
    const auto source = MakeSource();
    auto node = MakeNode("MKV", "Matroska", 104);
    auto preset = MakePreset("mkv", "Archive");
    node->AddFormatPreset(preset);
    node->AddFormatPreset(MakePreset("mkv", "Other"));
    node->AddChild(MakeNode("Child"));
    const auto item = ILMFmtPresetRecentItem::MallocFmtPresetRecentItem(preset, node);
    source->PushRecentItem(item);

    const auto stored = source->GetRecentList().front();
    EXPECT_NE(stored, item);
    EXPECT_NE(stored->FormatNode(), node);
    EXPECT_NE(stored->FormatPreset(), preset);
    EXPECT_TRUE(stored->FormatPreset()->IsEqualTo(preset));
    // The node is copied alone: only the pushed preset, no children.
    EXPECT_EQ(PresetTitles(stored->FormatNode()), (std::vector<std::string>{"Archive"}));
    EXPECT_EQ(stored->FormatNode()->ChildCount(), 0);
    EXPECT_EQ(stored->FormatNode()->Parent(), source->GetRecentRoot());

    preset->SetTitle("Renamed later");
    node->SetTitle("Renamed too");
    EXPECT_EQ(source->GetRecentList().front()->Title(), "MKV Archive");
}

TEST_F(LMFmtPresetDataSourceTest, PushingAnEntryWithoutPresetOrNodeIsRefused) {
    const auto source = MakeSource();
    EXPECT_FALSE(source->PushRecentItem(Item()));
    EXPECT_FALSE(source->PushRecentItem(nullptr, MakeNode("MKV")));
    EXPECT_FALSE(source->PushRecentItem(MakePreset("mkv", "Archive"), nullptr));
    EXPECT_TRUE(source->GetRecentList().empty());
    EXPECT_EQ(source->GetRecentRoot()->ChildCount(), 0);
}

TEST_F(LMFmtPresetDataSourceTest, RecentListHasNoUpperLimit) {
    const auto source = MakeSource();
    for (int i = 0; i < 1200; ++i)
        source->PushRecentItem(Entry("Format " + std::to_string(i)));
    EXPECT_EQ(source->GetRecentList().size(), 1200u);
    source->SaveRecentList();
    const auto again = Restart();
    ASSERT_EQ(again->GetRecentList().size(), 1200u);
    EXPECT_EQ(again->GetRecentList().front()->Title(), "Format 1199 preset");
    EXPECT_EQ(again->GetRecentList().back()->Title(), "Format 0 preset");
}

TEST_F(LMFmtPresetDataSourceTest, RemoveRecentItemWithACloneOfAListedEntryReturnsFalse) {
    const auto source = MakeSource();
    source->PushRecentItem(Entry("A"));
    source->PushRecentItem(Entry("B"));
    const auto listed = source->GetRecentList().at(1);

    EXPECT_FALSE(source->RemoveRecentItem(listed->Clone()));
    EXPECT_FALSE(source->RemoveRecentItem(Entry("A")));
    EXPECT_FALSE(source->RemoveRecentItem(Item()));
    EXPECT_EQ(source->GetRecentList().size(), 2u);
    EXPECT_EQ(source->GetRecentRoot()->ChildCount(), 2);

    EXPECT_TRUE(source->RemoveRecentItem(listed));
    EXPECT_EQ(Titles(source->GetRecentList()), (std::vector<std::string>{"B preset"}));
}

TEST_F(LMFmtPresetDataSourceTest, RemoveRecentItemByTitleRemovesTheFirstEntryOfThatTitle) {
    const auto source = MakeSource();
    source->PushRecentItem(Entry("A", "first"));
    source->PushRecentItem(Entry("A", "second"));
    source->PushRecentItem(Entry("B"));
    ASSERT_EQ(source->GetRecentList().size(), 3u);

    EXPECT_FALSE(source->RemoveRecentItem(std::string("No such title")));
    EXPECT_EQ(source->GetRecentList().size(), 3u);
    EXPECT_EQ(source->GetRecentRoot()->ChildCount(), 3);

    EXPECT_TRUE(source->RemoveRecentItem(std::string("A preset")));
    const auto list = source->GetRecentList();
    ASSERT_EQ(list.size(), 2u);
    EXPECT_EQ(list[0]->Title(), "B preset");
    EXPECT_EQ(list[1]->Description(), "first");
}

TEST_F(LMFmtPresetDataSourceTest, RemovalPassesTheNewestFirstPositionUnchangedToTheRecentRoot) {
    const auto source = MakeSource();
    for (const char* name : {"A", "B", "C"})
        source->PushRecentItem(Entry(name));
    // List C, B, A; the root holds A, B, C. Removing C (list position 0) takes
    // the root's child 0, which is A's.
    ASSERT_TRUE(source->RemoveRecentItem(std::string("C preset")));
    EXPECT_EQ(Titles(source->GetRecentList()), (std::vector<std::string>{"B preset", "A preset"}));
    EXPECT_EQ(ChildTitles(source->GetRecentRoot()), (std::vector<std::string>{"B", "C"}));

    // What is saved is the root, so the next start shows C, B.
    source->SaveRecentList();
    EXPECT_EQ(Titles(Restart()->GetRecentList()),
              (std::vector<std::string>{"C preset", "B preset"}));

    // The middle position is the same counted from either end.
    const auto other = Restart();
    other->PushRecentItem(Entry("D"));
    ASSERT_TRUE(other->RemoveRecentItem(other->GetRecentList().at(1)));
    EXPECT_EQ(ChildTitles(other->GetRecentRoot()), (std::vector<std::string>{"B", "D"}));
}

TEST_F(LMFmtPresetDataSourceTest, AfterSaveAndANewStartTheRecentListComesBackInTheSameOrder) {
    const auto first = MakeSource();
    for (const char* name : {"MP4", "MKV", "WebM", "WAV", "FLAC"})
        first->PushRecentItem(Entry(name));
    first->PushRecentItem(Entry("MKV")); // moves to the front
    first->SaveRecentList();

    const auto second = Restart();
    EXPECT_EQ(Titles(second->GetRecentList()), Titles(first->GetRecentList()));
    ASSERT_EQ(second->GetRecentList().size(), first->GetRecentList().size());
    for (std::size_t i = 0; i < first->GetRecentList().size(); ++i)
        EXPECT_TRUE(second->GetRecentList()[i]->IsEqualTo(first->GetRecentList()[i])) << i;
    EXPECT_TRUE(second->GetRecentRoot()->IsEqualTo(first->GetRecentRoot()));
}

TEST_F(LMFmtPresetDataSourceTest, AStoredChildWithoutAPresetMakesNoEntryButStaysInTheRoot) {
    auto recent =
        MakeNode("Recent", "Recent Selection", ILMArtworkImageMgr::CategoryFaceIDRecentList);
    recent->AddChild(MakeFormat("A", "", 100, "mp4", {QStringLiteral("A preset")}));
    recent->AddChild(MakeNode("Hollow"));
    recent->AddChild(MakeFormat("B", "", 100, "mp4", {QStringLiteral("B preset")}));
    StoreNode(recent, kRecentKey);

    const auto source = Restart();
    EXPECT_EQ(Titles(source->GetRecentList()), (std::vector<std::string>{"B preset", "A preset"}));
    EXPECT_EQ(source->GetRecentRoot()->ChildCount(), 3);
    source->SaveRecentList();
    EXPECT_EQ(ChildTitles(NodeFromSetting(kRecentKey)),
              (std::vector<std::string>{"A", "Hollow", "B"}));
}

// =================================================================================
// Custom list
// =================================================================================

TEST_F(LMFmtPresetDataSourceTest, AddCustomPresetFilesACopyUnderACopyOfTheNodeAlone) {
    const auto source = MakeSource();
    auto node = MakeFormat("MKV", "Matroska", 104, "mkv",
                           {QStringLiteral("Catalogue one"), QStringLiteral("Catalogue two")});
    node->AddChild(MakeNode("Nested"));
    const auto preset = MakePreset("mkv", "Mine");
    source->AddCustomPreset(preset, node);

    const auto custom = source->GetCustomList();
    ASSERT_EQ(custom->ChildCount(), 1);
    const auto group = custom->ChildAt(0);
    EXPECT_NE(group, node);
    EXPECT_EQ(group->Title(), "MKV");
    EXPECT_EQ(group->Description(), "Matroska");
    EXPECT_EQ(group->FaceID(), 104);
    EXPECT_EQ(group->ChildCount(), 0);
    EXPECT_EQ(group->Parent(), custom);
    ASSERT_EQ(PresetTitles(group), (std::vector<std::string>{"Mine"}));
    EXPECT_NE(group->FormatPresetAt(0), preset);
    EXPECT_TRUE(group->FormatPresetAt(0)->IsEqualTo(preset));

    // A node of the same title, even another object, files into the same group.
    source->AddCustomPreset(MakePreset("mkv", "Mine too"), MakeNode("MKV", "Different text", 1));
    ASSERT_EQ(custom->ChildCount(), 1);
    EXPECT_EQ(PresetTitles(group), (std::vector<std::string>{"Mine", "Mine too"}));
    source->AddCustomPreset(MakePreset("wav", "Voice"), MakeNode("WAV"));
    EXPECT_EQ(ChildTitles(custom), (std::vector<std::string>{"MKV", "WAV"}));
}

TEST_F(LMFmtPresetDataSourceTest, AddingTheSameCustomPresetTwiceGivesTwoEntries) {
    const auto source = MakeSource();
    const auto node = MakeNode("MKV");
    const auto preset = MakePreset("mkv", "Mine");
    source->AddCustomPreset(preset, node);
    source->AddCustomPreset(preset, node);
    ASSERT_EQ(source->GetCustomList()->ChildCount(), 1);
    EXPECT_EQ(PresetTitles(source->GetCustomList()->ChildAt(0)),
              (std::vector<std::string>{"Mine", "Mine"}));
}

TEST_F(LMFmtPresetDataSourceTest, RemovingTheLastCustomPresetOfAGroupRemovesTheGroup) {
    const auto source = MakeSource();
    const auto mkv = MakeNode("MKV");
    const auto wav = MakeNode("WAV");
    const auto mine = MakePreset("mkv", "Mine");
    source->AddCustomPreset(mine, mkv);
    source->AddCustomPreset(MakePreset("wav", "Voice"), wav);

    EXPECT_TRUE(source->RemoveCustomPreset(mine, mkv));
    EXPECT_EQ(ChildTitles(source->GetCustomList()), (std::vector<std::string>{"WAV"}));
    EXPECT_FALSE(source->GetCustomList()->FindChild("MKV"));
}

TEST_F(LMFmtPresetDataSourceTest, RemovingOneOfTwoCustomPresetsLeavesTheGroup) {
    const auto source = MakeSource();
    const auto mkv = MakeNode("MKV");
    source->AddCustomPreset(MakePreset("mkv", "One"), mkv);
    source->AddCustomPreset(MakePreset("mkv", "Two"), mkv);

    // Found by title: the caller's preset is usually the listed copy, not the original.
    EXPECT_TRUE(source->RemoveCustomPreset(MakePreset("mkv", "One"), MakeNode("MKV")));
    ASSERT_EQ(source->GetCustomList()->ChildCount(), 1);
    EXPECT_EQ(PresetTitles(source->GetCustomList()->ChildAt(0)), (std::vector<std::string>{"Two"}));
}

TEST_F(LMFmtPresetDataSourceTest, RemovingAnUnknownCustomPresetReturnsFalseAndChangesNothing) {
    const auto source = MakeSource();
    source->AddCustomPreset(MakePreset("mkv", "One"), MakeNode("MKV"));
    const auto before = source->GetCustomList()->Clone(ILMFormatNode::CloneAll);

    EXPECT_FALSE(source->RemoveCustomPreset(MakePreset("mkv", "One"), MakeNode("WAV")));
    EXPECT_FALSE(source->RemoveCustomPreset(MakePreset("mkv", "Two"), MakeNode("MKV")));
    EXPECT_FALSE(source->RemoveCustomPreset(nullptr, MakeNode("MKV")));
    EXPECT_FALSE(source->RemoveCustomPreset(MakePreset("mkv", "One"), nullptr));
    EXPECT_TRUE(source->GetCustomList()->IsEqualTo(before));
}

TEST_F(LMFmtPresetDataSourceTest, ConstAndMutableCustomListAreTheSameRoot) {
    const auto source = MakeSource();
    const std::shared_ptr<const LMFmtPresetDataSource> readOnly = source;
    EXPECT_EQ(readOnly->GetCustomList(), source->GetCustomList());
}

TEST_F(LMFmtPresetDataSourceTest, CustomListSavedByOneInstanceComesBackInTheSameOrder) {
    const auto first = MakeSource();
    first->AddCustomPreset(MakePreset("wav", "Voice"), MakeNode("WAV", "Waveform", 200));
    first->AddCustomPreset(MakePreset("mkv", "Archive"), MakeNode("MKV", "Matroska", 104));
    first->AddCustomPreset(MakePreset("wav", "Music"), MakeNode("WAV"));
    first->AddCustomPreset(MakePreset("mp4", "Phone"), MakeNode("MP4"));
    first->SaveCustomList();

    const auto second = Restart();
    const auto custom = second->GetCustomList();
    EXPECT_EQ(ChildTitles(custom), (std::vector<std::string>{"WAV", "MKV", "MP4"}));
    EXPECT_EQ(PresetTitles(custom->FindChild("WAV")), (std::vector<std::string>{"Voice", "Music"}));
    EXPECT_TRUE(custom->IsEqualTo(first->GetCustomList()));
}

// =================================================================================
// Search
// =================================================================================

namespace {

// Video > MP4 (High Quality, HD 720p), HEVC MP4 (4K UHD), Phones > iPhone-like (Small)
std::shared_ptr<ILMFormatNode> SearchTree() {
    auto video = MakeNode("Video", "Video formats", 10);
    auto mp4 = MakeNode("MP4", "MP4 file format", 100);
    mp4->AddFormatPreset(MakePreset("mp4", "High Quality", "H.264 / AAC"));
    mp4->AddFormatPreset(MakePreset("mp4", "HD 720p", "H.264 1280x720 / AAC"));
    auto hevc = MakeNode("HEVC MP4", "MP4 with HEVC", 101);
    hevc->AddFormatPreset(MakePreset("mp4", "4K UHD", "HEVC 3840x2160 / AAC"));
    auto phones = MakeNode("Phones", "Devices", 12);
    auto handset = MakeNode("Handset", "A phone", 120);
    handset->AddFormatPreset(MakePreset("mp4", "Small", "H.264 640x360 / AAC"));
    phones->AddChild(handset);
    video->AddFormatPreset(MakePreset("mkv", "Loose Quality", "Matroska"));
    video->AddChild(mp4);
    video->AddChild(hevc);
    video->AddChild(phones);
    return video;
}

} // namespace

TEST_F(LMFmtPresetDataSourceTest, EmptyKeyGivesNoTreeAndTheWholeListUnchanged) {
    const auto source = MakeSource();
    EXPECT_FALSE(source->SearchFormatPresets(SearchTree(), "", nullptr));
    source->PushRecentItem(Entry("A"));
    source->PushRecentItem(Entry("B"));
    const auto list = source->GetRecentList();
    EXPECT_EQ(source->SearchFormatPresets(list, ""), list);
    EXPECT_FALSE(
        source->SearchFormatPresets(std::shared_ptr<const ILMFormatNode>(), "mp4", nullptr));
}

TEST_F(LMFmtPresetDataSourceTest, LowerCaseKeyMatchesUpperCaseTitleAndAMatchingChildIsCopiedWhole) {
    const auto source = MakeSource();
    const auto tree = SearchTree();

    const auto hd = source->SearchFormatPresets(tree, "hd 720", nullptr);
    ASSERT_TRUE(hd);
    EXPECT_EQ(ChildTitles(hd), (std::vector<std::string>{"MP4"}));
    EXPECT_EQ(PresetTitles(hd->ChildAt(0)), (std::vector<std::string>{"HD 720p"}));

    // "hevc" names the child "HEVC MP4": it comes whole, with every preset.
    const auto hevc = source->SearchFormatPresets(tree, "hevc", nullptr);
    ASSERT_TRUE(hevc);
    ASSERT_EQ(ChildTitles(hevc), (std::vector<std::string>{"HEVC MP4"}));
    EXPECT_TRUE(hevc->ChildAt(0)->IsEqualTo(tree->FindChild("HEVC MP4")));
    EXPECT_NE(hevc->ChildAt(0), tree->FindChild("HEVC MP4"));

    // "phone": the child "Phones" matches by title and comes with its subtree.
    const auto phones = source->SearchFormatPresets(tree, "PHONE", nullptr);
    ASSERT_TRUE(phones);
    ASSERT_EQ(ChildTitles(phones), (std::vector<std::string>{"Phones"}));
    EXPECT_TRUE(phones->ChildAt(0)->IsEqualTo(tree->FindChild("Phones")));
}

TEST_F(LMFmtPresetDataSourceTest, CategoryWithNoMatchYieldsATopNodeWithoutPresetsOrChildren) {
    const auto source = MakeSource();
    const auto tree = SearchTree();
    // The top node is never matched by its own title.
    for (const char* key : {"nothing like this", "video"}) {
        const auto result = source->SearchFormatPresets(tree, key, nullptr);
        ASSERT_TRUE(result) << key;
        EXPECT_EQ(result->Title(), "Video");
        EXPECT_EQ(result->Description(), "Video formats");
        EXPECT_EQ(result->FaceID(), 10);
        EXPECT_EQ(result->FormatPresetCount(), 0) << key;
        EXPECT_EQ(result->ChildCount(), 0) << key;
    }
}

TEST_F(LMFmtPresetDataSourceTest, TreeSearchMatchesTitlesAndDescriptionsAndKeepsTheTreeOrder) {
    const auto source = MakeSource();
    const auto tree = SearchTree();
    // "quality" is in two preset titles at two levels.
    const auto quality = source->SearchFormatPresets(tree, "Quality", nullptr);
    EXPECT_EQ(PresetTitles(quality), (std::vector<std::string>{"Loose Quality"}));
    ASSERT_EQ(ChildTitles(quality), (std::vector<std::string>{"MP4"}));
    EXPECT_EQ(PresetTitles(quality->ChildAt(0)), (std::vector<std::string>{"High Quality"}));

    // "aac" is only in descriptions, down to the grandchild; children without a
    // match are dropped, those with one keep their place.
    const auto aac = source->SearchFormatPresets(tree, "aac", nullptr);
    EXPECT_EQ(aac->FormatPresetCount(), 0);
    ASSERT_EQ(ChildTitles(aac), (std::vector<std::string>{"MP4", "HEVC MP4", "Phones"}));
    EXPECT_EQ(PresetTitles(aac->ChildAt(0)), (std::vector<std::string>{"High Quality", "HD 720p"}));
    ASSERT_EQ(ChildTitles(aac->ChildAt(2)), (std::vector<std::string>{"Handset"}));
    EXPECT_EQ(PresetTitles(aac->ChildAt(2)->ChildAt(0)), (std::vector<std::string>{"Small"}));

    const auto matroska = source->SearchFormatPresets(tree, "matroska", nullptr);
    EXPECT_EQ(PresetTitles(matroska), (std::vector<std::string>{"Loose Quality"}));
    EXPECT_EQ(matroska->ChildCount(), 0);
}

TEST_F(LMFmtPresetDataSourceTest, TreeSearchResultIsMadeOfCopiesHungUnderTheGivenParent) {
    const auto source = MakeSource();
    const auto tree = SearchTree();
    const auto parent = MakeNode("Holder");
    const auto result = source->SearchFormatPresets(tree, "720", parent);
    ASSERT_TRUE(result);
    EXPECT_NE(result, tree);
    EXPECT_EQ(result->Parent(), parent);
    const auto mp4 = result->ChildAt(0);
    ASSERT_TRUE(mp4);
    EXPECT_EQ(mp4->Parent(), result);
    const auto found = mp4->FormatPresetAt(0);
    const auto original = tree->FindChild("MP4")->FindFormatPreset("HD 720p");
    EXPECT_NE(found, original);
    EXPECT_TRUE(found->IsEqualTo(original));

    std::const_pointer_cast<ILMFormatPreset>(found)->SetTitle("Changed");
    EXPECT_EQ(original->Title(), "HD 720p");
    EXPECT_EQ(parent->ChildCount(), 0); // the caller hangs it, if it wants
}

TEST_F(LMFmtPresetDataSourceTest, SearchFoldsCaseBeyondAscii) {
    const auto source = MakeSource();
    auto node = MakeNode("Audio");
    node->AddFormatPreset(MakePreset("wav", "QUALITÉ SUPÉRIEURE"));
    node->AddFormatPreset(MakePreset("wav", "Qualite simple"));
    const auto result = source->SearchFormatPresets(node, "qualité", nullptr);
    EXPECT_EQ(PresetTitles(result), (std::vector<std::string>{"QUALITÉ SUPÉRIEURE"}));
}

TEST_F(LMFmtPresetDataSourceTest, SearchFindsExactlyWhatLowerCasedSubstringSearchFinds) {
    // Random short texts over a small alphabet (so that keys often hit), some
    // with non-ASCII letters; every key is checked against the plain rule.
    const auto source = MakeSource();
    std::mt19937 random(20240611);
    const std::vector<std::string> letters{"a", "B", "b", "A", " ", "7", "@",
                                           "`", "[", "{", "é", "É", "ß"};
    const auto text = [&](int maxLength) {
        std::string result;
        const int length = std::uniform_int_distribution<int>(0, maxLength)(random);
        for (int i = 0; i < length; ++i)
            result +=
                letters[std::uniform_int_distribution<std::size_t>(0, letters.size() - 1)(random)];
        return result;
    };
    List list;
    for (int i = 0; i < 300; ++i) {
        auto node = MakeNode(text(6), text(8));
        auto preset = MakePreset("mp4", text(8));
        node->AddFormatPreset(preset);
        list.push_back(ILMFmtPresetRecentItem::MallocFmtPresetRecentItem(preset, node));
    }
    const auto matches = [](const std::string& haystack, const std::string& key) {
        return ILMStringHelper::ToLower(haystack).find(ILMStringHelper::ToLower(key)) !=
               std::string::npos;
    };
    for (int k = 0; k < 200; ++k) {
        std::string key = text(3);
        if (key.empty())
            key = "b";
        List expected;
        for (const auto& entry : list) {
            if (matches(entry->Title(), key) || matches(entry->Description(), key))
                expected.push_back(entry);
        }
        EXPECT_EQ(source->SearchFormatPresets(list, key), expected) << key;
    }
}

TEST_F(LMFmtPresetDataSourceTest, ListSearchMatchesTitleOrDescriptionAndReturnsTheSameEntries) {
    const auto source = MakeSource();
    source->PushRecentItem(Entry("MKV", "Matroska"));
    source->PushRecentItem(Entry("WAV", "Waveform audio"));
    source->PushRecentItem(Entry("MP4", "MPEG-4 file format"));
    const auto list = source->GetRecentList();

    const auto byTitle = source->SearchFormatPresets(list, "mkv");
    ASSERT_EQ(byTitle.size(), 1u);
    EXPECT_EQ(byTitle[0], list[2]);
    const auto byDescription = source->SearchFormatPresets(list, "AUDIO");
    ASSERT_EQ(byDescription.size(), 1u);
    EXPECT_EQ(byDescription[0], list[1]);
    EXPECT_TRUE(source->SearchFormatPresets(list, "flac").empty());
    // No trimming or splitting: the blank is part of the key.
    EXPECT_TRUE(source->SearchFormatPresets(list, " mkv").empty());
}

TEST_F(LMFmtPresetDataSourceTest, ListSearchKeepsDuplicateTitlesAsSeparateResultsInListOrder) {
    const auto source = MakeSource();
    const List list{Entry("MKV", "first"), Entry("WAV"), Entry("MKV", "second"),
                    Entry("MKV", "third")};
    const auto result = source->SearchFormatPresets(list, "mkv preset");
    ASSERT_EQ(result.size(), 3u);
    EXPECT_EQ(result[0], list[0]);
    EXPECT_EQ(result[1], list[2]);
    EXPECT_EQ(result[2], list[3]);
}
