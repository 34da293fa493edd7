// SPDX-License-Identifier: MIT
#include "LMIniSettingsFile.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>
#include <vector>

using namespace Lumeran;

namespace {

void WriteAll(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

bool Write(LMIniSettingsFile& file, const LMIniSettingsFile::Values& values) {
    std::vector<std::string> keys;
    for (const auto& entry : values)
        keys.push_back(entry.first);
    std::string error;
    const bool written = file.Write(
        keys, [&](const LMIniSettingsFile::Values&) { return std::optional(values); }, &error);
    EXPECT_TRUE(error.empty()) << error;
    return written;
}

const std::vector<std::string> kKeys = {"recent",    "custom",       "plain",
                                        "Net/proxy", "Net/deep/key", "Other Section/x y",
                                        "dup",       "Net/dup",      "Qualité"};

std::string RandomValue(std::mt19937& random) {
    static const std::vector<std::string> pieces = {
        "QUJD", "Zm9v+/==", " ", ",", ";",    "\"", "\\", "\n", "\t", "@",
        "é",    "日本",     "=", "x", "\x01", "F",  "0",  "#",  "[",  "]"};
    std::string value;
    const int count = static_cast<int>(random() % 6);
    for (int i = 0; i < count; ++i)
        value += pieces[random() % pieces.size()];
    return value;
}

} // namespace

// Values are set in the lines that hold them without reading the file again;
// whatever was written must read back the same in a fresh reading and in
// QSettings, with the host's lines, duplicates and sections where they were.
TEST(LMIniSettingsFileTest, ValuesSetInPlaceReadBackAsAFreshReadingFindsThem) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("settings.ini"));
    std::mt19937 random(2024);
    for (int file = 0; file < 20; ++file) {
        const bool crlf = file % 3 == 0;
        QByteArray host =
            "; the host's comment\n[General]\ndup=first\nwindow=\"1, 2\"\ndup=second\n"
            "garbage line\n\n[Net]\nproxy=none\ndup=a\ndup=b\n[Empty]\n";
        if (crlf)
            host.replace("\n", "\r\n");
        WriteAll(path, host);
        LMIniSettingsFile writer(path.toStdString());
        std::map<std::string, std::string> expected;
        for (int round = 0; round < 15; ++round) {
            LMIniSettingsFile::Values values;
            const int count = 1 + static_cast<int>(random() % 3);
            for (int i = 0; i < count; ++i)
                values[kKeys[random() % kKeys.size()]] = RandomValue(random);
            ASSERT_TRUE(Write(writer, values));
            for (const auto& [key, value] : values)
                expected[key] = value;

            LMIniSettingsFile fresh(path.toStdString());
            QSettings qt(path, QSettings::IniFormat);
            for (const auto& [key, value] : expected) {
                ASSERT_EQ(writer.Value(key), value) << file << "/" << round << " [" << key << "]";
                ASSERT_EQ(fresh.Value(key), value) << file << "/" << round << " " << key;
                ASSERT_EQ(writer.ShadowedValues(key), fresh.ShadowedValues(key)) << key;
                ASSERT_TRUE(writer.ShadowedValues(key).empty()) << key;
                ASSERT_EQ(qt.value(QString::fromStdString(key)).toString().toStdString(), value)
                    << file << "/" << round << " " << key;
            }
            ASSERT_EQ(fresh.Value("window"), "1, 2");
            ASSERT_EQ(fresh.Value("Net/proxy").value_or("none"),
                      expected.count("Net/proxy") ? expected["Net/proxy"] : std::string("none"));
        }
        const QByteArray written = [&] {
            QFile read(path);
            return read.open(QIODevice::ReadOnly) ? read.readAll() : QByteArray();
        }();
        EXPECT_TRUE(written.startsWith(crlf ? "; the host's comment\r\n[General]\r\n"
                                            : "; the host's comment\n[General]\n"));
        EXPECT_TRUE(written.contains("garbage line"));
        EXPECT_EQ(written.contains("\r\n"), crlf);
    }
}

TEST(LMIniSettingsFileTest, AWriteSeesAChangeOfTheSameSizeMadeByAnotherWriter) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("settings.ini"));
    LMIniSettingsFile ours(path.toStdString());
    ASSERT_TRUE(Write(ours, {{"count", "1"}}));
    for (int i = 2; i < 7; ++i) {
        {
            QSettings other(path, QSettings::IniFormat);
            other.setValue(QStringLiteral("count"), QString::number(i));
        }
        std::string seen;
        std::string error;
        ASSERT_TRUE(ours.Write(
            {"count", "other"},
            [&](const LMIniSettingsFile::Values& current) {
                seen = current.count("count") ? current.at("count") : "";
                return std::optional(LMIniSettingsFile::Values{{"other", std::to_string(i)}});
            },
            &error));
        EXPECT_EQ(seen, std::to_string(i));
        QSettings reader(path, QSettings::IniFormat);
        EXPECT_EQ(reader.value(QStringLiteral("count")).toString(), QString::number(i));
        EXPECT_EQ(reader.value(QStringLiteral("other")).toString(), QString::number(i));
    }
}

TEST(LMIniSettingsFileTest, AWriteLeavesNoLockFileBehind) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("settings.ini"));
    LMIniSettingsFile ours(path.toStdString());
    ASSERT_TRUE(Write(ours, {{"key", "value"}}));
    EXPECT_TRUE(QFile::exists(path));
    EXPECT_FALSE(QFile::exists(path + QStringLiteral(".lock")));
}
