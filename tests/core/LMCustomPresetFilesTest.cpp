// SPDX-License-Identifier: MIT
#include "ILMAppSettings.h"
#include "ILMJsonReader.h"
#include "ILMJsonWriter.h"
#include "LMCoreTestSupport.h"
#include "LMDefaultCatalogue.h"
#include "LMFFmpegArguments.h"
#include "LMFmtPresetDataSource.h"
#include "LMPresetFile.h"
#include "LMStoredListTestSupport.h"
#include "LMTestEnvironment.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Lumeran;
using namespace Qt::StringLiterals;
using namespace Lumeran::TestSupport;
using Clash = ILMFmtPresetDataSource::ImportClash;
using Direction = ILMFmtPresetDataSource::MoveDirection;

namespace {

std::shared_ptr<ILMFormatNode> DefaultCatalogue() {
    QFile file(QString::fromStdString(LMDefaultCatalogue::Path()));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return ILMFormatNode::MallocFormatNode(
        ILMJsonReader::ReadJsonString(file.readAll().toStdString(), nullptr));
}

// "Category/Format" of the catalogue.
std::shared_ptr<const ILMFormatNode> FormatNode(const std::shared_ptr<ILMFormatNode>& catalogue,
                                                const std::string& category,
                                                const std::string& format) {
    const auto node = catalogue->FindChild(category);
    return node ? node->FindChild(format) : nullptr;
}

// The FFmpeg output options of every custom preset, in list order.
std::vector<std::string> Arguments(const ILMFmtPresetDataSource& source) {
    std::vector<std::string> lines;
    const auto root = source.GetCustomList();
    for (int i = 0; i < root->ChildCount(); ++i) {
        const auto group = root->ChildAt(i);
        for (int j = 0; j < group->FormatPresetCount(); ++j)
            lines.push_back(LMFFmpegArguments::Join(
                LMFFmpegArguments::OutputOptions(group->FormatPresetAt(j))));
    }
    return lines;
}

std::string StoredText(const ILMFmtPresetDataSource& source) {
    return ILMJsonWriter::WriteJsonString(source.GetCustomList()->ToJson());
}

QByteArray ReadAll(const std::string& path) {
    return ReadFile(QString::fromStdString(path));
}

void Write(const std::string& path, const QByteArray& text) {
    WriteFile(QString::fromStdString(path), text);
}

// One entry of a preset file: an MP4 preset of that title in group "MP4".
QJsonObject Mp4Entry(const QString& title) {
    return QJsonObject{{u"title"_s, title},
                       {u"format"_s, u"mp4"_s},
                       {u"group"_s, QJsonObject{{u"title"_s, u"MP4"_s}, {u"faceId"_s, 100}}}};
}

// An MKV preset of that title, filed in a file under the group "MP4".
QJsonObject MkvUnderMp4(const QString& title) {
    return QJsonObject{{u"title"_s, title},
                       {u"format"_s, u"mkv"_s},
                       {u"group"_s, QJsonObject{{u"title"_s, u"MP4"_s}}}};
}

QByteArray FileOf(const QJsonArray& presets, int version = 1) {
    return QJsonDocument(QJsonObject{{u"format"_s, u"lmformat-presets"_s},
                                     {u"version"_s, version},
                                     {u"presets"_s, presets}})
        .toJson();
}

} // namespace

class LMCustomPresetFilesTest : public SettingsTest {
protected:
    void SetUp() override {
        catalogue = DefaultCatalogue();
        ASSERT_TRUE(catalogue);
        source = std::make_shared<LMFmtPresetDataSource>();
    }

    std::string PathOf(const char* name) const {
        return dir.filePath(QString::fromUtf8(name)).toStdString();
    }

    // Files the catalogue preset Category/Format/Preset as a custom preset named title.
    void AddFromCatalogue(const std::string& category, const std::string& format,
                          const std::string& preset, const std::string& title) {
        const auto node = FormatNode(catalogue, category, format);
        ASSERT_TRUE(node) << category << "/" << format;
        const auto found = node->FindFormatPreset(preset);
        ASSERT_TRUE(found) << preset;
        auto copy = found->Clone();
        copy->SetTitle(title);
        source->AddCustomPreset(copy, node);
    }

    void AddMp4(const std::string& title) { AddFromCatalogue("Video", "MP4", "HD 720p", title); }

    QTemporaryDir dir;
    std::shared_ptr<ILMFormatNode> catalogue;
    std::shared_ptr<LMFmtPresetDataSource> source;
};

// =================================================================================
// Export and import between two settings stores
// =================================================================================

TEST_F(LMCustomPresetFilesTest, PresetsExportedFromOneStoreImportIntoAFreshOneAlike) {
    AddFromCatalogue("Video", "MP4", "HD 1080p", "Big screen");
    AddFromCatalogue("Audio", "FLAC", "Lossless", "Archive");
    AddFromCatalogue("Video", "MP4", "Low Quality", "Phone");
    AddFromCatalogue("Video", "HEVC MP4", "4K 2160p", "Cinema");
    // A preset the user changed: another audio codec than its catalogue entry.
    const auto mp4 = source->GetCustomList()->FindChild("MP4");
    const auto phone = mp4->FindFormatPreset("Phone");
    ILMFormatPreset::ChangeCodecKeepingChoices(*phone, true, phone->AudioCodecCount() - 1);
    const auto names = CustomEntries(*source);
    const auto arguments = Arguments(*source);

    const auto exported = source->ExportCustomPresets(PathOf("mine.json"), {});
    ASSERT_TRUE(exported.ok) << exported.message;
    EXPECT_EQ(exported.written, 4);

    const IsolatedSettings otherMachine;
    auto fresh = std::make_shared<LMFmtPresetDataSource>();
    ASSERT_TRUE(CustomEntries(*fresh).empty());
    const auto imported = fresh->ImportCustomPresets(PathOf("mine.json"), Clash::Rename);
    ASSERT_TRUE(imported.ok) << imported.message;
    EXPECT_EQ(imported.added, 4);
    EXPECT_EQ(CustomEntries(*fresh), names);
    EXPECT_EQ(Arguments(*fresh), arguments);
    EXPECT_EQ(StoredText(*fresh), StoredText(*source));

    // Saved and read back by a new start, the list is still the same.
    fresh->SaveCustomList();
    ASSERT_TRUE(fresh->LastSaveSucceeded());
    ILMAppSettings::UseSettingsFile(otherMachine.FilePath());
    const auto restarted = std::make_shared<LMFmtPresetDataSource>();
    EXPECT_EQ(CustomEntries(*restarted), names);
    EXPECT_EQ(Arguments(*restarted), arguments);
}

TEST_F(LMCustomPresetFilesTest, ExportOfNamedPresetsWritesThoseInTheOrderGiven) {
    AddMp4("One");
    AddMp4("Two");
    AddFromCatalogue("Audio", "FLAC", "Lossless", "Three");
    const auto result =
        source->ExportCustomPresets(PathOf("some.json"), {{"FLAC", "Three"}, {"MP4", "One"}});
    ASSERT_TRUE(result.ok) << result.message;
    EXPECT_EQ(result.written, 2);
    LMPresetFile file;
    std::string error;
    ASSERT_TRUE(file.Read(PathOf("some.json"), &error)) << error;
    ASSERT_EQ(file.Entries().size(), 2u);
    EXPECT_EQ(file.Entries()[0].group->Title(), "FLAC");
    EXPECT_EQ(file.Entries()[0].preset->Title(), "Three");
    EXPECT_EQ(file.Entries()[1].preset->Title(), "One");
}

TEST_F(LMCustomPresetFilesTest, ExportNamingAnUnlistedPresetWritesNoFile) {
    AddMp4("One");
    const auto result =
        source->ExportCustomPresets(PathOf("none.json"), {{"MP4", "One"}, {"MP4", "Missing"}});
    EXPECT_FALSE(result.ok);
    EXPECT_NE(result.message.find("MP4/Missing"), std::string::npos) << result.message;
    EXPECT_FALSE(QFileInfo::exists(QString::fromStdString(PathOf("none.json"))));
}

// =================================================================================
// Clashes
// =================================================================================

TEST_F(LMCustomPresetFilesTest, ImportClashRenameFilesTheNextFreeNumber) {
    AddMp4("Mine");
    AddMp4("Mine (2)");
    Write(PathOf("in.json"), FileOf({Mp4Entry(u"Mine"_s), Mp4Entry(u"Other"_s)}));
    const auto result = source->ImportCustomPresets(PathOf("in.json"), Clash::Rename);
    ASSERT_TRUE(result.ok) << result.message;
    EXPECT_EQ(result.added, 1);
    EXPECT_EQ(result.renamed, 1);
    EXPECT_EQ(CustomEntries(*source),
              (std::vector<std::string>{"MP4/Mine", "MP4/Mine (2)", "MP4/Mine (3)", "MP4/Other"}));
}

TEST_F(LMCustomPresetFilesTest, ImportClashSkipLeavesTheListedPresetAlone) {
    AddMp4("Mine");
    const std::string before = StoredText(*source);
    Write(PathOf("in.json"), FileOf({MkvUnderMp4(u"Mine"_s)}));
    const auto result = source->ImportCustomPresets(PathOf("in.json"), Clash::Skip);
    ASSERT_TRUE(result.ok) << result.message;
    EXPECT_EQ(result.skipped, 1);
    EXPECT_EQ(result.added + result.renamed + result.replaced, 0);
    EXPECT_EQ(StoredText(*source), before);
}

TEST_F(LMCustomPresetFilesTest, ImportClashReplaceGivesTheListedPresetTheSettingsInItsPlace) {
    AddMp4("First");
    AddMp4("Mine");
    AddMp4("Last");
    Write(PathOf("in.json"), FileOf({MkvUnderMp4(u"Mine"_s)}));
    const auto result = source->ImportCustomPresets(PathOf("in.json"), Clash::Replace);
    ASSERT_TRUE(result.ok) << result.message;
    EXPECT_EQ(result.replaced, 1);
    EXPECT_EQ(CustomEntries(*source),
              (std::vector<std::string>{"MP4/First", "MP4/Mine", "MP4/Last"}));
    EXPECT_EQ(source->GetCustomList()->FindChild("MP4")->FindFormatPreset("Mine")->FormatId(),
              "mkv");
}

TEST_F(LMCustomPresetFilesTest, ImportFilesPresetsOfAnUnlistedGroupUnderANewGroup) {
    Write(PathOf("in.json"),
          FileOf({QJsonObject{{u"title"_s, u"Talk"_s},
                              {u"format"_s, u"mp3"_s},
                              {u"group"_s, QJsonObject{{u"title"_s, u"MP3"_s},
                                                       {u"description"_s, u"MP3 file format"_s},
                                                       {u"faceId"_s, 7}}}}}));
    const auto result = source->ImportCustomPresets(PathOf("in.json"), Clash::Rename);
    ASSERT_TRUE(result.ok) << result.message;
    const auto group = source->GetCustomList()->FindChild("MP3");
    ASSERT_TRUE(group);
    EXPECT_EQ(group->Description(), "MP3 file format");
    EXPECT_EQ(group->FaceID(), 7);
    EXPECT_EQ(group->Parent(), source->GetCustomList());
}

// =================================================================================
// Rename, duplicate, move
// =================================================================================

TEST_F(LMCustomPresetFilesTest, RenameRefusesANameAnotherPresetOfTheGroupHas) {
    AddMp4("One");
    AddMp4("Two");
    const std::string before = StoredText(*source);
    std::string error;
    EXPECT_FALSE(source->RenameCustomPreset("MP4", "One", "Two", &error));
    EXPECT_NE(error.find("already has a preset named \"Two\""), std::string::npos) << error;
    EXPECT_FALSE(source->RenameCustomPreset("MP4", "One", "", &error));
    EXPECT_FALSE(source->RenameCustomPreset("MP4", "Missing", "Three", &error));
    EXPECT_FALSE(source->RenameCustomPreset("MP4", "One", std::string(5000, 'x'), nullptr));
    EXPECT_EQ(StoredText(*source), before);
}

TEST_F(LMCustomPresetFilesTest, RenameGivesTheNewTitleAndKeepsThePlace) {
    AddMp4("One");
    AddMp4("Two");
    AddFromCatalogue("Audio", "FLAC", "Lossless", "Three");
    std::string error;
    ASSERT_TRUE(source->RenameCustomPreset("MP4", "One", "Three", &error)) << error;
    EXPECT_EQ(CustomEntries(*source),
              (std::vector<std::string>{"MP4/Three", "MP4/Two", "FLAC/Three"}));
}

TEST_F(LMCustomPresetFilesTest, DuplicateFilesANumberedCopyRightAfterTheOriginal) {
    AddMp4("One");
    AddMp4("Two");
    EXPECT_EQ(source->DuplicateCustomPreset("MP4", "One"), "One (2)");
    EXPECT_EQ(source->DuplicateCustomPreset("MP4", "One"), "One (3)");
    EXPECT_EQ(CustomEntries(*source),
              (std::vector<std::string>{"MP4/One", "MP4/One (3)", "MP4/One (2)", "MP4/Two"}));
    const auto group = source->GetCustomList()->FindChild("MP4");
    EXPECT_TRUE(ILMFormatPreset::HaveSameSettings(*group->FindFormatPreset("One"),
                                                  *group->FindFormatPreset("One (2)")));
    EXPECT_EQ(source->DuplicateCustomPreset("MP4", "Missing"), "");
}

TEST_F(LMCustomPresetFilesTest, MoveChangesTheOrderWithinTheGroupAndStopsAtItsEnds) {
    AddMp4("A");
    AddMp4("B");
    AddMp4("C");
    EXPECT_FALSE(source->MoveCustomPreset("MP4", "A", Direction::Up));
    EXPECT_FALSE(source->MoveCustomPreset("MP4", "C", Direction::Down));
    EXPECT_FALSE(source->MoveCustomPreset("MP4", "Missing", Direction::Down));
    EXPECT_TRUE(source->MoveCustomPreset("MP4", "A", Direction::Down));
    EXPECT_EQ(CustomEntries(*source), (std::vector<std::string>{"MP4/B", "MP4/A", "MP4/C"}));
    EXPECT_TRUE(source->MoveCustomPreset("MP4", "C", Direction::Up));
    EXPECT_EQ(CustomEntries(*source), (std::vector<std::string>{"MP4/B", "MP4/C", "MP4/A"}));

    // The order is what is saved.
    source->SaveCustomList();
    const auto restarted = std::make_shared<LMFmtPresetDataSource>();
    EXPECT_EQ(CustomEntries(*restarted), (std::vector<std::string>{"MP4/B", "MP4/C", "MP4/A"}));
}

// =================================================================================
// Other versions and bad files
// =================================================================================

TEST_F(LMCustomPresetFilesTest, ANewerFileImportsWhatItUnderstandsAndExportsItsUnknownFieldsBack) {
    QJsonObject known = Mp4Entry(u"Known"_s);
    known.insert(u"rating"_s, 5);
    known.insert(u"group"_s, QJsonObject{{u"title"_s, u"MP4"_s}, {u"colour"_s, u"teal"_s}});
    QJsonObject video{{u"codec"_s, u"h264"_s}, {u"tuning"_s, u"film"_s}};
    known.insert(u"video"_s, video);
    const QJsonObject unknownCodec{{u"title"_s, u"Future"_s},
                                   {u"format"_s, u"mp4"_s},
                                   {u"video"_s, QJsonObject{{u"codec"_s, u"h999"_s}}},
                                   {u"group"_s, QJsonObject{{u"title"_s, u"MP4"_s}}}};
    QJsonObject root{{u"format"_s, u"lmformat-presets"_s},
                     {u"version"_s, 3},
                     {u"presets"_s, QJsonArray{known, unknownCodec}},
                     {u"author"_s, u"someone"_s}};
    Write(PathOf("v3.json"), QJsonDocument(root).toJson());

    const auto result = source->ImportCustomPresets(PathOf("v3.json"), Clash::Rename);
    ASSERT_TRUE(result.ok) << result.message;
    EXPECT_EQ(result.added, 1);
    EXPECT_EQ(result.unreadable, 1);
    EXPECT_EQ(CustomEntries(*source), std::vector<std::string>{"MP4/Known"});

    // Kept through a save and a new start, the unknown fields of the entry, its
    // group and its stream come back out in the next export as they were.
    source->SaveCustomList();
    const auto restarted = std::make_shared<LMFmtPresetDataSource>();
    ASSERT_TRUE(restarted->ExportCustomPresets(PathOf("out.json"), {}).ok);
    const QJsonObject out = QJsonDocument::fromJson(ReadAll(PathOf("out.json"))).object();
    EXPECT_EQ(out.value(u"format"_s).toString(), u"lmformat-presets"_s);
    EXPECT_EQ(out.value(u"version"_s).toInt(), 1);
    const QJsonArray presets = out.value(u"presets"_s).toArray();
    ASSERT_EQ(presets.size(), 1);
    const QJsonObject entry = presets.at(0).toObject();
    EXPECT_EQ(entry.value(u"rating"_s), QJsonValue(5));
    EXPECT_EQ(entry.value(u"group"_s).toObject().value(u"colour"_s), QJsonValue(u"teal"_s));
    EXPECT_EQ(entry.value(u"video"_s).toObject().value(u"tuning"_s), QJsonValue(u"film"_s));
}

TEST_F(LMCustomPresetFilesTest, BadFilesSayWhyAndChangeNothing) {
    AddMp4("Mine");
    const std::string before = StoredText(*source);
    const QByteArray good = FileOf({Mp4Entry(u"New"_s)});
    Write(PathOf("not-json.json"), "this is not JSON at all");
    Write(PathOf("wrong-format.json"),
          QJsonDocument(QJsonObject{{u"format"_s, u"something-else"_s},
                                    {u"version"_s, 1},
                                    {u"presets"_s, QJsonArray{Mp4Entry(u"New"_s)}}})
              .toJson());
    Write(PathOf("truncated.json"), good.left(good.size() - 20));
    Write(PathOf("deep.json"), R"({"format": "lmformat-presets", "version": 1, "x": )" +
                                   QByteArray(100000, '[') + QByteArray(100000, ']') +
                                   R"(, "presets": []})");
    Write(PathOf("no-version.json"),
          QJsonDocument(QJsonObject{{u"format"_s, u"lmformat-presets"_s},
                                    {u"presets"_s, QJsonArray{Mp4Entry(u"New"_s)}}})
              .toJson());
    Write(PathOf("damaged-entry.json"),
          FileOf(
              {Mp4Entry(u"New"_s), QJsonObject{{u"title"_s, u"Bad"_s}, {u"format"_s, u"nope"_s}}}));
    {
        // Sparse: 100 MB that take no room and no time to make.
        QFile huge(QString::fromStdString(PathOf("huge.json")));
        ASSERT_TRUE(huge.open(QIODevice::WriteOnly));
        ASSERT_EQ(huge.write(good), good.size());
        ASSERT_TRUE(huge.resize(qint64(100) * 1024 * 1024));
    }
    const std::pair<const char*, const char*> cases[] = {
        {"not-json.json", "not valid JSON"},
        {"wrong-format.json", "\"something-else\", not \"lmformat-presets\""},
        {"truncated.json", "it may be cut short"},
        {"deep.json", "too deeply nested"},
        {"no-version.json", "\"version\""},
        {"damaged-entry.json", "entry 2 (\"Bad\")"},
        {"huge.json", "100 MB"},
        {"missing.json", "there is no file"},
    };
    for (const auto& [name, reason] : cases) {
        for (const Clash clash : {Clash::Rename, Clash::Skip, Clash::Replace}) {
            const auto result = source->ImportCustomPresets(PathOf(name), clash);
            EXPECT_FALSE(result.ok) << name;
            EXPECT_NE(result.message.find(reason), std::string::npos)
                << name << ": " << result.message;
            EXPECT_EQ(result.added + result.renamed + result.replaced, 0) << name;
            EXPECT_EQ(StoredText(*source), before) << name;
        }
    }
}

TEST_F(LMCustomPresetFilesTest, AFileWithNoPresetsImportsNothing) {
    Write(PathOf("empty.json"), FileOf({}));
    const auto result = source->ImportCustomPresets(PathOf("empty.json"), Clash::Rename);
    EXPECT_TRUE(result.ok) << result.message;
    EXPECT_TRUE(CustomEntries(*source).empty());
}

// =================================================================================
// A pasted FFmpeg command line
// =================================================================================

TEST_F(LMCustomPresetFilesTest, FromArgumentsFilesThePresetUnderTheFormatNodeOfItsContainer) {
    const std::vector<std::string> asked{"-c:v", "libx265", "-crf", "28", "-c:a",
                                         "aac",  "-b:a",    "128k", "-f", "mp4"};
    const auto result = source->AddCustomPresetFromArguments("Small HEVC", asked);
    ASSERT_TRUE(result.ok) << result.message;
    EXPECT_TRUE(result.notMapped.empty());
    EXPECT_EQ(result.group, "MP4");
    EXPECT_EQ(result.title, "Small HEVC");
    ASSERT_EQ(CustomEntries(*source), std::vector<std::string>{"MP4/Small HEVC"});
    const auto group = source->GetCustomList()->FindChild("MP4");
    EXPECT_EQ(group->Description(), FormatNode(catalogue, "Video", "MP4")->Description());
    const std::string line = Arguments(*source).at(0);
    for (const char* part : {"-c:v libx265 ", "-crf 28 ", "-c:a aac ", "-b:a 128k ", "-f mp4"})
        EXPECT_NE(line.find(part), std::string::npos) << part << " in " << line;
}

TEST_F(LMCustomPresetFilesTest, FromArgumentsReportsWhatDidNotMapAndRefusesATakenName) {
    auto result = source->AddCustomPresetFromArguments(
        "Slow", {"-c:v", "libx264", "-preset", "slow", "-f", "matroska"});
    ASSERT_TRUE(result.ok) << result.message;
    EXPECT_EQ(result.group, "MKV");
    EXPECT_EQ(result.notMapped, std::vector<std::string>{"-preset slow"});
    const std::string before = StoredText(*source);
    result = source->AddCustomPresetFromArguments("Slow", {"-c:v", "libx264", "-f", "matroska"});
    EXPECT_FALSE(result.ok);
    EXPECT_NE(result.message.find("already has a preset named \"Slow\""), std::string::npos)
        << result.message;
    EXPECT_EQ(StoredText(*source), before);
}
