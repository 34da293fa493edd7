#include "LMTestEnvironment.h"

#include "ILMAppSettings.h"

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

} // namespace Lumeran::TestSupport
