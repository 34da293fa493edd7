// SPDX-License-Identifier: MIT
#include "ILMAppSettings.h"

#include "ILMLogConfig.h"
#include "LMIniSettingsFile.h"

#include <QSettings>

#include <mutex>

namespace Lumeran {

namespace {

// The file QSettings of this application uses. On Linux and the other Unix
// desktops its native format is this INI form; elsewhere the INI file of the
// same scope stands in for the registry or property list.
std::string DefaultStorePath() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    return QSettings().fileName().toStdString();
#else
    return QSettings(QSettings::IniFormat, QSettings::UserScope,
                     QCoreApplication::organizationName(), QCoreApplication::applicationName())
        .fileName()
        .toStdString();
#endif
}

class LMAppSettings final : public ILMAppSettings {
public:
    void SetStringValue(const std::string& value, const std::string& key) override {
        const std::lock_guard lock(m_mutex);
        m_pending[key] = value;
    }

    std::string StringValue(const std::string& key) const override {
        const std::lock_guard lock(m_mutex);
        if (const auto pending = m_pending.find(key); pending != m_pending.end())
            return pending->second;
        return File().Value(key).value_or(std::string());
    }

    void Synchronize() override {
        Values pending;
        {
            const std::lock_guard lock(m_mutex);
            pending = m_pending;
        }
        if (pending.empty()) {
            m_lastSyncOk = true;
            return;
        }
        std::vector<std::string> keys;
        for (const auto& entry : pending)
            keys.push_back(entry.first);
        if (!Transact(keys, [&pending](const Values&) { return std::optional(pending); }))
            return;
        const std::lock_guard lock(m_mutex);
        for (const auto& [key, value] : pending) {
            if (const auto it = m_pending.find(key); it != m_pending.end() && it->second == value)
                m_pending.erase(it);
        }
    }

    bool LastSynchronizeSucceeded() const override { return m_lastSyncOk; }

    bool Transact(const std::vector<std::string>& keys,
                  const std::function<std::optional<Values>(const Values&)>& update) override {
        const std::lock_guard lock(m_mutex);
        std::string error;
        bool declined = false;
        const bool written = File().Write(
            keys,
            [&](const Values& current) {
                auto next = update(current);
                declined = !next;
                return next;
            },
            &error);
        if (declined)
            return false; // the caller said why; the store itself is fine
        m_lastSyncOk = written;
        if (written) {
            for (const std::string& key : keys)
                m_pending.erase(key);
        } else {
            ILMLogConfig::Printf("Failed to write settings to %s: %s", File().Path().c_str(),
                                 error.c_str());
        }
        return written;
    }

    std::string StorePath() const override {
        const std::lock_guard lock(m_mutex);
        return File().Path();
    }

    std::vector<std::string> ShadowedValues(const std::string& key) const override {
        const std::lock_guard lock(m_mutex);
        return File().ShadowedValues(key);
    }

    void Redirect(const std::string& iniPath) {
        const std::lock_guard lock(m_mutex);
        m_iniPath = iniPath;
        m_file.reset();
        m_pending.clear();
        m_lastSyncOk = true;
    }

private:
    LMIniSettingsFile& File() const {
        if (!m_file)
            m_file = std::make_unique<LMIniSettingsFile>(m_iniPath.empty() ? DefaultStorePath()
                                                                           : m_iniPath);
        return *m_file;
    }

    mutable std::recursive_mutex m_mutex;
    std::string m_iniPath;
    mutable std::unique_ptr<LMIniSettingsFile> m_file;
    Values m_pending;
    bool m_lastSyncOk = true;
};

std::shared_ptr<LMAppSettings>& Instance() {
    static std::shared_ptr<LMAppSettings> instance = std::make_shared<LMAppSettings>();
    return instance;
}

} // namespace

std::shared_ptr<ILMAppSettings> ILMAppSettings::Shared() {
    return Instance();
}

void ILMAppSettings::UseSettingsFile(const std::string& iniPath) {
    Instance()->Redirect(iniPath);
}

} // namespace Lumeran
