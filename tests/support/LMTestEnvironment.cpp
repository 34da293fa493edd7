// SPDX-License-Identifier: MIT
#include "LMTestEnvironment.h"

#include "ILMAppSettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace Lumeran::TestSupport {

IsolatedSettings::IsolatedSettings() {
    m_path = m_dir.filePath(QStringLiteral("settings.ini")).toStdString();
    ILMAppSettings::UseSettingsFile(m_path);
}

// The store stays pointed at the (then removed) file: a late write after the test
// must never fall through to the real application settings.
IsolatedSettings::~IsolatedSettings() = default;

std::string IsolatedSettings::DirPath() const {
    return m_dir.path().toStdString();
}

std::string SourcePath(const std::string& relative) {
    return std::string(LMFP_SOURCE_DIR) + "/" + relative;
}

std::string WriteTestFile(const QTemporaryDir& dir, const QString& name, const QByteArray& data) {
    const QString path = dir.filePath(name);
    EXPECT_TRUE(QDir().mkpath(QFileInfo(path).absolutePath()));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(data), data.size());
    return path.toStdString();
}

} // namespace Lumeran::TestSupport
