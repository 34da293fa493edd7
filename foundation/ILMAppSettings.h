#pragma once

#include "LMFoundationExport.h"

#include <memory>
#include <string>

namespace Lumeran {

// The host application's persistent key/value store. By default it is the
// QSettings of the running application (organisation and application name of
// QCoreApplication, native format). A host or a tool may redirect it to an INI
// file, and tests do so to keep away from the user's real settings.
class LMFOUNDATION_EXPORT ILMAppSettings {
public:
    virtual ~ILMAppSettings() = default;

    static std::shared_ptr<ILMAppSettings> Shared();

    // Redirects Shared() to the INI file at path; an empty path returns to the
    // application's default store. Takes effect for the next operation.
    static void UseSettingsFile(const std::string& iniPath);

    virtual void SetStringValue(const std::string& value, const std::string& key) = 0;
    // Empty when the key is absent.
    virtual std::string StringValue(const std::string& key) const = 0;
    // Writes pending changes now; a failed write is logged.
    virtual void Synchronize() = 0;
    // Whether the last Synchronize() reached the store.
    virtual bool LastSynchronizeSucceeded() const = 0;
};

} // namespace Lumeran
