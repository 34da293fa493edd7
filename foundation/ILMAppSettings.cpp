#include "ILMAppSettings.h"

#include "ILMLogConfig.h"

#include <QSettings>

namespace Lumeran {

namespace {

// Keeps one QSettings object for the current store and rebuilds it only when the
// store is redirected, so reads stay cheap. Main thread only, as the callers are.
class LMAppSettings final : public ILMAppSettings {
public:
    void SetStringValue(const std::string& value, const std::string& key) override {
        Store().setValue(QString::fromStdString(key), QString::fromStdString(value));
    }

    std::string StringValue(const std::string& key) const override {
        const QVariant value = Store().value(QString::fromStdString(key));
        return value.toString().toStdString();
    }

    void Synchronize() override {
        QSettings& store = Store();
        store.sync();
        m_lastSyncOk = store.status() == QSettings::NoError;
        if (!m_lastSyncOk)
            ILMLogConfig::Printf("Failed to write settings to %s",
                                 qUtf8Printable(store.fileName()));
    }

    bool LastSynchronizeSucceeded() const override { return m_lastSyncOk; }

    void Redirect(const std::string& iniPath) {
        m_iniPath = iniPath;
        m_store.reset();
    }

private:
    QSettings& Store() const {
        if (!m_store) {
            if (m_iniPath.empty())
                m_store = std::make_unique<QSettings>();
            else
                m_store = std::make_unique<QSettings>(QString::fromStdString(m_iniPath),
                                                      QSettings::IniFormat);
        }
        return *m_store;
    }

    std::string m_iniPath;
    mutable std::unique_ptr<QSettings> m_store;
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
