// SPDX-License-Identifier: MIT
#include "LMSettingsLockFile.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QString>
#include <QSysInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace Lumeran {

namespace {

// The name QLockFile checks a running process by: its executable's file name.
QByteArray ProcessName() {
    QByteArray target = QFile::encodeName(QFile::symLinkTarget(QStringLiteral("/proc/self/exe")));
    if (target.endsWith(" (deleted)"))
        target.chop(10);
    return QFileInfo(QFile::decodeName(target)).fileName().toUtf8();
}

// What QLockFile writes into a lock file, and reads back to tell whether the
// process holding it still runs. The lines after the process id do not change
// while the process runs, and some are read from files: made once.
QByteArray Contents() {
    static const QByteArray rest = ProcessName() + '\n' + QSysInfo::machineHostName().toUtf8() +
                                   '\n' + QSysInfo::machineUniqueId() + '\n' +
                                   QSysInfo::bootUniqueId() + '\n';
    return QByteArray::number(QCoreApplication::applicationPid()) + '\n' + rest;
}

bool WriteAll(int fd, const QByteArray& bytes) {
    qsizetype written = 0;
    while (written < bytes.size()) {
        const ssize_t n = ::write(fd, bytes.constData() + written,
                                  static_cast<std::size_t>(bytes.size() - written));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        written += n;
    }
    return true;
}

} // namespace

LMSettingsLockFile::LMSettingsLockFile(std::string lockPath) : m_path(std::move(lockPath)) {}

LMSettingsLockFile::~LMSettingsLockFile() {
    Unlock();
}

bool LMSettingsLockFile::Lock(int waitMs, int staleMs) {
    Unlock();
    if (LockFree())
        return true;
    m_waited = std::make_unique<QLockFile>(QString::fromStdString(m_path));
    m_waited->setStaleLockTime(staleMs);
    if (m_waited->tryLock(waitMs))
        return true;
    m_waited.reset();
    return false;
}

bool LMSettingsLockFile::LockFree() {
    const int fd = ::open(m_path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd < 0)
        return false; // held, or not creatable: QLockFile waits or says why
    // As QLockFile: the flock() is what keeps another process from removing the
    // file as stale while it is held; it cannot fail on a file just created
    // except where flock() is not supported, and there QLockFile goes on too.
    ::flock(fd, LOCK_EX | LOCK_NB);
    if (!WriteAll(fd, Contents())) {
        ::close(fd);
        ::unlink(m_path.c_str());
        return false;
    }
    m_fd = fd;
    return true;
}

void LMSettingsLockFile::Unlock() {
    if (m_fd >= 0) {
        // Removed while still held: a process that took the file for stale could
        // otherwise remove it between the two, after another one took it anew.
        ::unlink(m_path.c_str());
        ::close(m_fd);
        m_fd = -1;
    }
    m_waited.reset(); // QLockFile's destructor releases it
}

} // namespace Lumeran
