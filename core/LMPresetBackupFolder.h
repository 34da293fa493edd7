// SPDX-License-Identifier: MIT
#pragma once

#include "LMPresetBackup.h"

#include <QString>

#include <string>
#include <vector>

namespace Lumeran {

// The files beside the host's settings that keep earlier values of one stored
// list: the last few values that saves replaced (rolling, oldest dropped first)
// and values that could not be read in full (never dropped). Each file holds the
// value exactly as it was stored, so putting one back is a plain copy.
class LMPresetBackupFolder {
public:
    static constexpr int DefaultKeep = 5;

    // An empty folder path makes every operation fail: there is nowhere to keep
    // copies (a store that is not a file and no application data folder).
    explicit LMPresetBackupFolder(std::string folder, int keep = DefaultKeep);

    const std::string& Folder() const { return m_folder; }

    // Keeps value as the newest of the rolling backups; a value already kept only
    // becomes the newest again, so the backups stay distinct. True when kept.
    bool KeepReplaced(const std::string& value) const;
    // Puts aside a value that could not be read in full. identity names what in
    // it could not be read (the value itself when empty): when a value with the
    // same identity was put aside before, that file is returned and nothing is
    // written, so a list that carries the same unknown entries through many
    // saves is kept once. Returns the file, or empty when it could not be written.
    std::string KeepUnreadable(const std::string& value, const std::string& identity = {}) const;
    // Every kept value, newest first; entryCount is left for the caller to fill.
    std::vector<LMPresetBackup> List() const;

    static bool ReadValue(const std::string& path, std::string* value);

private:
    // *rollingAfter (when given) receives how many rolling backups the folder
    // holds once this one is written.
    std::string Write(const QString& prefix, const std::string& value, const std::string& identity,
                      int* rollingAfter) const;
    void Prune() const;

    std::string m_folder;
    int m_keep;
};

} // namespace Lumeran
