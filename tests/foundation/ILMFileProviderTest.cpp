// SPDX-License-Identifier: MIT
#include "ILMFileProvider.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

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

namespace {

std::string WriteTemp(const QTemporaryDir& dir, const char* name, const std::string& bytes) {
    const QString path = dir.filePath(QString::fromLatin1(name));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes.data(), static_cast<qint64>(bytes.size()));
    return path.toStdString();
}

} // namespace

TEST(ILMFileProviderTest, ReadRegularFileReadsAWholeFile) {
    QTemporaryDir dir;
    const std::string path = WriteTemp(dir, "a.json", std::string("{\"a\":1}\0x", 9));
    std::string contents;
    ASSERT_TRUE(ILMFileProvider::ReadRegularFile(path, 100, &contents, nullptr));
    EXPECT_EQ(contents, std::string("{\"a\":1}\0x", 9));
}

TEST(ILMFileProviderTest, ReadRegularFileRefusesANamedPipeWithoutWaitingForAWriter) {
    QTemporaryDir dir;
    const std::string path = dir.filePath(QStringLiteral("pipe")).toStdString();
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    std::string contents = "old";
    std::string error;
    EXPECT_FALSE(ILMFileProvider::ReadRegularFile(path, 100, &contents, &error));
    EXPECT_TRUE(contents.empty());
    EXPECT_NE(error.find("not a regular file"), std::string::npos) << error;
}

TEST(ILMFileProviderTest, ReadRegularFileRefusesDevicesAndFolders) {
    QTemporaryDir dir;
    std::string contents;
    EXPECT_FALSE(ILMFileProvider::ReadRegularFile("/dev/zero", 100, &contents, nullptr));
    EXPECT_FALSE(
        ILMFileProvider::ReadRegularFile(dir.path().toStdString(), 100, &contents, nullptr));
    EXPECT_FALSE(ILMFileProvider::ReadRegularFile(
        dir.filePath(QStringLiteral("none")).toStdString(), 100, &contents, nullptr));
}

TEST(ILMFileProviderTest, ReadRegularFileRefusesAFileOverTheLimitBeforeReadingIt) {
    QTemporaryDir dir;
    const std::string path = WriteTemp(dir, "big", std::string(101, 'x'));
    std::string contents;
    std::string error;
    EXPECT_FALSE(ILMFileProvider::ReadRegularFile(path, 100, &contents, &error));
    EXPECT_NE(error.find("too large"), std::string::npos) << error;
    EXPECT_TRUE(ILMFileProvider::ReadRegularFile(path, 101, &contents, nullptr));
}
