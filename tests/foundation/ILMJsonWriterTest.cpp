// SPDX-License-Identifier: MIT
#include "ILMJsonWriter.h"
#include "ILMJsonReader.h"

#include <QJsonArray>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace Lumeran;

TEST(ILMJsonWriterTest, WritesCompactText) {
    QJsonObject object{{QStringLiteral("title"), QStringLiteral("MP4")},
                       {QStringLiteral("faceId"), 100}};
    EXPECT_EQ(ILMJsonWriter::WriteJsonString(ILMJsonValue::MallocJsonValue(object)),
              R"({"faceId":100,"title":"MP4"})");
}

TEST(ILMJsonWriterTest, EmptyPointerAndScalarsGiveEmptyText) {
    EXPECT_EQ(ILMJsonWriter::WriteJsonString(nullptr), "");
    EXPECT_EQ(ILMJsonWriter::WriteJsonString(ILMJsonValue::MallocJsonValue(QJsonValue(3))), "");
}

TEST(ILMJsonWriterTest, WrittenTextReadsBackEqual) {
    QJsonObject object{{QStringLiteral("title"), QStringLiteral("Qualité 高画質")},
                       {QStringLiteral("list"), QJsonArray{1, 2, QStringLiteral("three")}}};
    const auto text = ILMJsonWriter::WriteJsonString(ILMJsonValue::MallocJsonValue(object));
    auto back = ILMJsonReader::ReadJsonString(text, nullptr);
    ASSERT_TRUE(back);
    EXPECT_EQ(back->Value().toObject(), object);
}
