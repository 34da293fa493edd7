// SPDX-License-Identifier: MIT
#include "ILMLogConfig.h"

#include <gtest/gtest.h>

#include <QString>
#include <QStringList>

using namespace Lumeran;

namespace {

QStringList g_lines;
QString g_category;

void Capture(QtMsgType, const QMessageLogContext& context, const QString& message) {
    g_category = QString::fromUtf8(context.category);
    g_lines << message;
}

} // namespace

TEST(ILMLogConfigTest, PrintfWritesOneFormattedLineThroughTheLumeranCategory) {
    g_lines.clear();
    const auto previous = qInstallMessageHandler(Capture);
    ILMLogConfig::Printf("Failed load external format %s", "/tmp/x.json");
    qInstallMessageHandler(previous);
    ASSERT_EQ(g_lines.size(), 1);
    EXPECT_EQ(g_lines.first(), QStringLiteral("Failed load external format /tmp/x.json"));
    EXPECT_EQ(g_category, QStringLiteral("lumeran"));
}

TEST(ILMLogConfigTest, LongLinesAreNotCut) {
    g_lines.clear();
    const std::string longText(5000, 'a');
    const auto previous = qInstallMessageHandler(Capture);
    ILMLogConfig::Printf("%s|%d", longText.c_str(), 42);
    qInstallMessageHandler(previous);
    ASSERT_EQ(g_lines.size(), 1);
    EXPECT_EQ(g_lines.first().size(), 5003);
}
