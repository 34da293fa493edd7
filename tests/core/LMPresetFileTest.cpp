// SPDX-License-Identifier: MIT
#include "LMPresetFile.h"
#include "LMCoreTestSupport.h"
#include "LMPresetNames.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace Lumeran;
using namespace Qt::StringLiterals;
using namespace Lumeran::TestSupport;

namespace {

QJsonObject Parsed(const QByteArray& text) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
    return document.object();
}

} // namespace

TEST(LMPresetFileTest, ANewFileNamesItsFormatAndVersionFirstAndHoldsOneEntryPerLine) {
    LMPresetFile file;
    const auto group = MakeNode("MP4", "MP4 file format", 100);
    file.Add(group, MakePreset("mp4", "One"));
    file.Add(group, MakePreset("mp4", "Two"));
    const QByteArray text = file.Text();
    EXPECT_TRUE(text.startsWith("{\n  \"format\": \"lmformat-presets\",\n  \"version\": 1,"))
        << text.toStdString();
    EXPECT_EQ(text.count('\n'), 8) << text.toStdString();
    const QJsonObject root = Parsed(text);
    const QJsonArray presets = root.value(u"presets"_s).toArray();
    ASSERT_EQ(presets.size(), 2);
    const QJsonObject first = presets.at(0).toObject();
    EXPECT_EQ(first.value(u"title"_s).toString(), u"One"_s);
    EXPECT_EQ(first.value(u"format"_s).toString(), u"mp4"_s);
    EXPECT_EQ(first.value(u"group"_s).toObject(),
              (QJsonObject{{u"title"_s, u"MP4"_s},
                           {u"description"_s, u"MP4 file format"_s},
                           {u"faceId"_s, 100}}));
}

TEST(LMPresetFileTest, WhatIsWrittenReadsBackAsTheSameGroupsAndPresets) {
    LMPresetFile file;
    const auto mp4 = MakeNode("MP4", "MP4 file format", 100);
    const auto flac = MakeNode("FLAC", "", 3);
    auto changed = MakePreset("mp4", "Changed", "A description");
    ILMFormatPreset::ChangeCodecKeepingChoices(*changed, false, changed->VideoCodecCount() - 1);
    changed->SetCurrentAudioCodec(-1);
    file.Add(mp4, changed);
    file.Add(flac, MakePreset("flac", "Plain"));
    LMPresetFile read;
    std::string error;
    ASSERT_TRUE(read.ReadText(file.Text(), &error)) << error;
    ASSERT_EQ(read.Entries().size(), 2u);
    EXPECT_TRUE(read.Entries()[0].preset->IsEqualTo(changed));
    EXPECT_EQ(read.Entries()[0].group->Title(), "MP4");
    EXPECT_EQ(read.Entries()[0].group->FaceID(), 100);
    EXPECT_EQ(read.Entries()[0].group->FormatPresetCount(), 0);
    EXPECT_EQ(read.Entries()[1].group->Title(), "FLAC");
    EXPECT_EQ(read.Entries()[1].preset->FormatId(), "flac");
    EXPECT_EQ(read.Text(), file.Text());
}

TEST(LMPresetFileTest, TopLevelFieldsOfANewerVersionAreWrittenBackUnchanged) {
    const QJsonObject extra{{u"origin"_s, QJsonObject{{u"app"_s, u"other"_s}, {u"build"_s, 42}}},
                            {u"tags"_s, QJsonArray{u"a"_s, u"b"_s}}};
    QJsonObject root = extra;
    root.insert(u"format"_s, u"lmformat-presets"_s);
    root.insert(u"version"_s, 2);
    root.insert(u"presets"_s,
                QJsonArray{QJsonObject{{u"title"_s, u"X"_s},
                                       {u"format"_s, u"mkv"_s},
                                       {u"group"_s, QJsonObject{{u"title"_s, u"MKV"_s}}}}});
    LMPresetFile file;
    std::string error;
    ASSERT_TRUE(file.ReadText(QJsonDocument(root).toJson(), &error)) << error;
    EXPECT_EQ(file.Version(), 2);
    EXPECT_EQ(file.ExtraFields(), extra);
    const QJsonObject written = Parsed(file.Text());
    EXPECT_EQ(written.value(u"origin"_s), extra.value(u"origin"_s));
    EXPECT_EQ(written.value(u"tags"_s), extra.value(u"tags"_s));
}

TEST(LMPresetFileTest, AFailedReadLeavesWhatWasReadBefore) {
    LMPresetFile file;
    std::string error;
    const QByteArray good = R"({"format": "lmformat-presets", "version": 1, "presets": [
        {"title": "Kept", "format": "mp4", "group": {"title": "MP4"}}]})";
    ASSERT_TRUE(file.ReadText(good, &error)) << error;
    EXPECT_FALSE(
        file.ReadText(R"({"format": "lmformat-presets", "version": 1, "presets": {}})", &error));
    EXPECT_NE(error.find("no \"presets\" list"), std::string::npos) << error;
    EXPECT_FALSE(file.ReadText(R"([1, 2])", &error));
    EXPECT_NE(error.find("no JSON object"), std::string::npos) << error;
    EXPECT_FALSE(
        file.ReadText(R"({"format": "lmformat-presets", "version": 1.5, "presets": []})", &error));
    ASSERT_EQ(file.Entries().size(), 1u);
    EXPECT_EQ(file.Entries()[0].preset->Title(), "Kept");
}

TEST(LMPresetFileTest, AnEntryWithoutAGroupTitleIsDamage) {
    LMPresetFile file;
    std::string error;
    EXPECT_FALSE(file.ReadText(R"({"format": "lmformat-presets", "version": 1, "presets": [
        {"title": "Lost", "format": "mp4", "group": {"description": "no title"}}]})",
                               &error));
    EXPECT_NE(error.find("entry 1 (\"Lost\")"), std::string::npos) << error;
    // In a newer version the same entry is only left out.
    ASSERT_TRUE(file.ReadText(R"({"format": "lmformat-presets", "version": 2, "presets": [
        {"title": "Lost", "format": "mp4", "group": {"description": "no title"}}]})",
                              &error))
        << error;
    EXPECT_EQ(file.UnreadableCount(), 1);
    EXPECT_TRUE(file.Entries().empty());
}

TEST(LMPresetNamesTest, AFreeTitleIsNumberedFromTwoAndFitsTheLimit) {
    const auto group = MakeNode("MP4");
    EXPECT_EQ(LMPresetNames::FreeTitle(group, "Mine"), "Mine");
    group->AddFormatPreset(MakePreset("mp4", "Mine"));
    group->AddFormatPreset(MakePreset("mp4", "Mine (2)"));
    EXPECT_EQ(LMPresetNames::FreeTitle(group, "Mine"), "Mine (3)");
    // A title at the limit is cut to make room for the number, never within a
    // character, and the name given is what a preset keeps.
    // "a" and then characters of two UTF-16 units each: the cut falls inside one.
    std::string longest = "a";
    for (int i = 0; i < ILMFormatNode::MaxTextLength / 2 - 1; ++i)
        longest += "\xF0\x9F\x8E\xAC";
    ASSERT_TRUE(ILMFormatNode::IsAcceptableText(longest));
    group->AddFormatPreset(MakePreset("mp4", longest));
    const std::string free = LMPresetNames::FreeTitle(group, longest);
    EXPECT_TRUE(ILMFormatNode::IsAcceptableText(free));
    EXPECT_EQ(free.substr(free.size() - 4), " (2)");
    EXPECT_EQ(free.substr(0, free.size() - 4), longest.substr(0, free.size() - 4));
    EXPECT_EQ(QString::fromStdString(free).size(), ILMFormatNode::MaxTextLength - 1);
    auto copy = MakePreset("mp4", "x");
    copy->SetTitle(free);
    EXPECT_EQ(copy->Title(), free);
}
