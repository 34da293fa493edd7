// SPDX-License-Identifier: MIT
#pragma once

#include "LMFoundationExport.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Lumeran {

// The host application's persistent key/value store: an INI file in the form
// QSettings writes. By default it is the file of the running application's
// QSettings (organisation and application name of QCoreApplication); a host or
// a tool may redirect it to another INI file, and tests do so to keep away from
// the user's real settings. The file is shared with the host's own QSettings and
// with other processes: every write takes QSettings' lock and replaces the file
// atomically, and lines this store does not write are kept as they stand.
class LMFOUNDATION_EXPORT ILMAppSettings {
public:
    using Values = std::map<std::string, std::string>;

    virtual ~ILMAppSettings() = default;

    static std::shared_ptr<ILMAppSettings> Shared();

    // Redirects Shared() to the INI file at path; an empty path returns to the
    // application's default store. Takes effect for the next operation.
    static void UseSettingsFile(const std::string& iniPath);

    // Remembers a value; Synchronize() writes it.
    virtual void SetStringValue(const std::string& value, const std::string& key) = 0;
    // Empty when the key is absent. A value set and not yet written reads back as set.
    virtual std::string StringValue(const std::string& key) const = 0;
    // Writes the values set since the last write now; a failed write is logged
    // and its values stay pending for the next one.
    virtual void Synchronize() = 0;
    // Whether the last write (Synchronize or Transact) reached the store.
    virtual bool LastSynchronizeSucceeded() const = 0;

    // Reads and writes keys as one step no other process can come between: under
    // the store's lock, update gets the stored values of keys (absent keys left
    // out) and returns the values to write, or nothing to write nothing. True when
    // written; false when update declined or the store could not be written.
    virtual bool Transact(const std::vector<std::string>& keys,
                          const std::function<std::optional<Values>(const Values&)>& update) = 0;
    // The file behind the store.
    virtual std::string StorePath() const = 0;
    // Values of key on earlier lines of the file that a later line overrides.
    virtual std::vector<std::string> ShadowedValues(const std::string& key) const = 0;
};

} // namespace Lumeran
