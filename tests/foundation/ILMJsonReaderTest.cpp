// SPDX-License-Identifier: MIT
#include "ILMJsonReader.h"
#include "ILMJsonWriter.h"
#include "LMTestEnvironment.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace Lumeran;
using namespace Lumeran::TestSupport;

TEST(ILMJsonReaderTest, ReadsAnObject) {
    auto json = ILMJsonReader::ReadJsonString(R"({"title":"MP4","n":3})", nullptr);
    ASSERT_TRUE(json);
    EXPECT_EQ(json->Value().toObject().value(QStringLiteral("title")).toString(),
              QStringLiteral("MP4"));
}

TEST(ILMJsonReaderTest, ReadsAFile) {
    QTemporaryDir dir;
    const auto path = WriteTestFile(dir, QStringLiteral("a.json"), R"([1,2,3])");
    auto json = ILMJsonReader::ReadJsonFile(path, nullptr);
    ASSERT_TRUE(json);
    EXPECT_EQ(json->Value().toArray().size(), 3);
}

TEST(ILMJsonReaderTest, InvalidTextGivesEmptyPointerAndError) {
    std::shared_ptr<const ILMError> error;
    EXPECT_FALSE(ILMJsonReader::ReadJsonString(R"({"title":)", &error));
    ASSERT_TRUE(error);
    EXPECT_EQ(error->ErrorCode(), ILMError::ParseError);
    EXPECT_FALSE(ILMJsonReader::ReadJsonString("", nullptr));
    EXPECT_FALSE(ILMJsonReader::ReadJsonString("42", nullptr));
    EXPECT_FALSE(ILMJsonReader::ReadJsonString("\"just a string\"", nullptr));
}

TEST(ILMJsonReaderTest, InvalidUtf8GivesEmptyPointer) {
    EXPECT_FALSE(ILMJsonReader::ReadJsonString("{\"title\":\"\xff\xfe\"}", nullptr));
}

TEST(ILMJsonReaderTest, DeepNestingGivesEmptyPointer) {
    const std::string deep = std::string(10000, '[') + std::string(10000, ']');
    EXPECT_FALSE(ILMJsonReader::ReadJsonString(deep, nullptr));
}

TEST(ILMJsonReaderTest, MissingFileEmptyFileAndDirectoryGiveEmptyPointer) {
    QTemporaryDir dir;
    std::shared_ptr<const ILMError> error;
    EXPECT_FALSE(ILMJsonReader::ReadJsonFile(
        dir.filePath(QStringLiteral("none.json")).toStdString(), &error));
    ASSERT_TRUE(error);
    EXPECT_EQ(error->ErrorCode(), ILMError::FileError);
    EXPECT_FALSE(ILMJsonReader::ReadJsonFile(dir.path().toStdString(), nullptr));
    EXPECT_FALSE(
        ILMJsonReader::ReadJsonFile(WriteTestFile(dir, QStringLiteral("empty.json"), {}), nullptr));
    const auto truncated =
        WriteTestFile(dir, QStringLiteral("t.json"), R"({"children":[{"title":"A")");
    EXPECT_FALSE(ILMJsonReader::ReadJsonFile(truncated, nullptr));
}

TEST(ILMJsonReaderTest, LargeStringIsReadWithoutCrashing) {
    std::string text = "{\"title\":\"";
    text.append(50 * 1024 * 1024, 'x');
    text += "\"}";
    auto json = ILMJsonReader::ReadJsonString(text, nullptr);
    ASSERT_TRUE(json);
    EXPECT_EQ(json->Value().toObject().value(QStringLiteral("title")).toString().size(),
              50 * 1024 * 1024);
}

TEST(ILMJsonReaderTest, SalvagingKeepsTheWholeListElementsBeforeTheDamage) {
    const std::string text =
        R"({"title":"R","children":[{"title":"a"},{"title":"b"},{"title":"c"}]})";
    bool complete = false;
    const auto whole = ILMJsonReader::ReadJsonStringSalvaging(text, &complete);
    ASSERT_TRUE(whole);
    EXPECT_TRUE(complete);

    const auto cut = ILMJsonReader::ReadJsonStringSalvaging(text.substr(0, 58), &complete);
    ASSERT_TRUE(cut);
    EXPECT_FALSE(complete);
    const QJsonArray children = cut->Value().toObject().value(QStringLiteral("children")).toArray();
    ASSERT_EQ(children.size(), 2);
    EXPECT_EQ(children[1].toObject().value(QStringLiteral("title")).toString(),
              QStringLiteral("b"));

    std::string damaged = text;
    damaged[52] = '\x01';
    const auto salvaged = ILMJsonReader::ReadJsonStringSalvaging(damaged, &complete);
    ASSERT_TRUE(salvaged);
    EXPECT_FALSE(complete);
    EXPECT_EQ(salvaged->Value().toObject().value(QStringLiteral("children")).toArray().size(), 2);
    EXPECT_FALSE(ILMJsonReader::ReadJsonStringSalvaging("nothing", &complete));
}

TEST(ILMJsonReaderTest, ANamedPipeIsRefusedWithoutWaitingForAWriter) {
    QTemporaryDir dir;
    const std::string path = dir.filePath(QStringLiteral("pipe.json")).toStdString();
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    std::shared_ptr<const ILMError> error;
    EXPECT_FALSE(ILMJsonReader::ReadJsonFile(path, &error));
    EXPECT_TRUE(error);
}

// Text Qt's own parser accepts or refuses is accepted or refused alike, and an
// accepted text gives the same value; except that what JSON itself forbids and
// Qt lets through (raw control characters in strings, unknown escapes, a number
// ending in a point) is refused.
TEST(ILMJsonReaderTest, AcceptsWhatQtsParserAcceptsAndRefusesWhatJsonForbids) {
    const char* texts[] = {"[1] [2]",
                           "[1]  \n",
                           "{} 1",
                           R"({"a":[1,2,{"b":nul}]})",
                           "[18446744073709551616]",
                           "[1,]",
                           R"({"a" 1})",
                           "[tru]",
                           "[01]",
                           R"(["\u00e9"])",
                           R"({"ti\u0074le":"x\ty\"z"})",
                           "[-0.5e3,true,false,null]",
                           "\xEF\xBB\xBF[1]",
                           "[1e400]",
                           R"({"a":1,"a":2})",
                           "  {\"a\" : [ ] }  ",
                           "{",
                           "[\"unterminated]",
                           R"({"a":{}})"};
    for (const char* text : texts) {
        QJsonParseError error;
        const QJsonDocument qt = QJsonDocument::fromJson(QByteArray(text), &error);
        const auto ours = ILMJsonReader::ReadJsonString(text, nullptr);
        const bool qtAccepts = error.error == QJsonParseError::NoError;
        EXPECT_EQ(bool(ours), qtAccepts) << text;
        if (ours && qtAccepts) {
            EXPECT_EQ(ours->Value(),
                      qt.isObject() ? QJsonValue(qt.object()) : QJsonValue(qt.array()))
                << text;
        }
    }
    for (const char* forbidden : {R"(["\q"])", R"({"\q":1})", "[1.]", "[\"a\x01\"]"})
        EXPECT_FALSE(ILMJsonReader::ReadJsonString(forbidden, nullptr)) << forbidden;
}

TEST(ILMJsonReaderTest, AValueReadFromTextKeepsItAndWritesAsQtWould) {
    const std::string text = " { \"b\" : 1, \"a\" : \"x\\u0041\" } ";
    const auto json = ILMJsonReader::ReadJsonString(text, nullptr);
    ASSERT_TRUE(json);
    EXPECT_EQ(json->Text(), text);
    EXPECT_FALSE(json->TextIsWritten());
    EXPECT_EQ(ILMJsonWriter::WriteJsonString(json), R"({"a":"xA","b":1})");
}
