// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

class QLockFile;

namespace Lumeran {

// The lock file QSettings takes around every write of a settings file
// ("<file>.lock"), taken the way QLockFile takes it: created exclusively, held
// with flock() and holding the same lines (process id, application, host, machine
// and boot ids), so QSettings and QLockFile in any process see it as held by this
// one, and removed when released.
//
// QLockFile also flushes the lock file to the disk, which costs as much as
// flushing the settings file itself and buys nothing: a lock file only matters
// while its process lives, and a leftover one is recognised as stale by the
// process it names or by its age. Taking a free lock therefore skips that flush;
// a lock that is held already is waited for through QLockFile itself, which
// knows how to tell a stale one.
class LMSettingsLockFile {
public:
    explicit LMSettingsLockFile(std::string lockPath);
    ~LMSettingsLockFile();
    LMSettingsLockFile(const LMSettingsLockFile&) = delete;
    LMSettingsLockFile& operator=(const LMSettingsLockFile&) = delete;

    // False when the lock stays held by another process for waitMs; a lock file
    // older than staleMs, or naming a process that is gone, is taken over.
    bool Lock(int waitMs, int staleMs);
    void Unlock();

private:
    bool LockFree();

    std::string m_path;
    int m_fd = -1;
    std::unique_ptr<QLockFile> m_waited;
};

} // namespace Lumeran
