// SPDX-License-Identifier: MIT
#pragma once

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace Lumeran::TestSupport {

// Points the application settings at a fresh INI file in a temporary folder for
// the lifetime of the object, so no test reads or writes the user's real settings.
class IsolatedSettings {
public:
    IsolatedSettings();
    ~IsolatedSettings();
    IsolatedSettings(const IsolatedSettings&) = delete;
    IsolatedSettings& operator=(const IsolatedSettings&) = delete;

    std::string FilePath() const { return m_path; }
    std::string DirPath() const;

private:
    QTemporaryDir m_dir;
    std::string m_path;
};

// A test fixture whose every test gets its own settings file.
class SettingsTest : public ::testing::Test {
protected:
    std::unique_ptr<IsolatedSettings> settings = std::make_unique<IsolatedSettings>();
};

// Path of a file in the source tree.
std::string SourcePath(const std::string& relative);

// Writes data as the file name (folders made as needed) in dir; its path.
std::string WriteTestFile(const QTemporaryDir& dir, const QString& name, const QByteArray& data);

} // namespace Lumeran::TestSupport
