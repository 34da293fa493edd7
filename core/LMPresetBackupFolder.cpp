// SPDX-License-Identifier: MIT
#include "LMPresetBackupFolder.h"

#include "ILMFileProvider.h"
#include "LMStableHash.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSaveFile>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace Lumeran {

namespace {

constexpr auto kUnreadablePrefix = "unreadable-";
// Backup values are copies of stored values, which the reader refuses past this
// size anyway; a bigger file in the folder is not ours.
constexpr std::int64_t kMaxValueBytes = std::int64_t(512) * 1024 * 1024;

// The identity in a replaced value's name: a rolling backup is written at every
// save that changes the value, so its hash has to cost little next to the save.
QString ReplacedHash(const std::string& value) {
    return QStringLiteral("%1").arg(LMStableHash::Of(value), 16, 16, QLatin1Char('0'));
}

// The identity of a value put aside as unreadable. These are rare and never
// pruned, and the ones already on disk are named by this digest: keeping it lets
// a value put aside before be recognised instead of kept a second time.
QString UnreadableHash(const std::string& identity) {
    const QByteArray digest = QCryptographicHash::hash(
        QByteArrayView(identity.data(), static_cast<qsizetype>(identity.size())),
        QCryptographicHash::Sha256);
    return QString::fromLatin1(digest.toHex().left(16));
}

bool WriteAll(int fd, const std::string& value) {
    std::size_t written = 0;
    while (written < value.size()) {
        const ssize_t n = ::write(fd, value.data() + written, value.size() - written);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        written += static_cast<std::size_t>(n);
    }
    return true;
}

// A rolling backup is a copy of what the settings file held, and that file is
// the durable one: written whole under a temporary name and renamed into place,
// so the folder never shows half a value, but not flushed to the disk, which
// would double the cost of every save. A name that does not end in ".b64" is
// never listed, so a leftover of a crash is never taken for a backup.
bool WriteCopy(const QString& target, const std::string& value, const QString& reuse) {
    const std::string path = target.toStdString();
    const std::string temporary = path + ".part-" + std::to_string(::getpid());
    // A file to write over is first moved to the temporary name: until the copy
    // is whole, neither name shows half a value.
    if (!reuse.isEmpty())
        ::rename(reuse.toStdString().c_str(), temporary.c_str());
    const int fd = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (fd < 0)
        return false;
    const bool written = WriteAll(fd, value);
    const bool closed = ::close(fd) == 0;
    if (written && closed && ::rename(temporary.c_str(), path.c_str()) == 0)
        return true;
    ::unlink(temporary.c_str());
    return false;
}

// A value that could not be read is kept nowhere else: flushed to the disk
// before it is in place.
bool WriteDurably(const QString& target, const std::string& value) {
    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(value.data(), static_cast<qint64>(value.size()));
    return file.commit();
}

// "<prefix><milliseconds>-<hash>.b64"
QString FileName(const QString& prefix, qint64 ms, const QString& hash) {
    return prefix + QStringLiteral("%1-%2.b64").arg(ms, 13, 10, QLatin1Char('0')).arg(hash);
}

struct Parsed {
    bool unreadable = false;
    qint64 ms = 0;
    QString hash;
};

bool Parse(QString name, Parsed* out) {
    if (!name.endsWith(QLatin1StringView(".b64")))
        return false;
    name.chop(4);
    out->unreadable = name.startsWith(QLatin1StringView(kUnreadablePrefix));
    if (out->unreadable)
        name.remove(0, int(qstrlen(kUnreadablePrefix)));
    const qsizetype dash = name.indexOf(QLatin1Char('-'));
    if (dash <= 0)
        return false;
    bool ok = false;
    out->ms = name.left(dash).toLongLong(&ok);
    out->hash = name.mid(dash + 1);
    return ok && !out->hash.isEmpty();
}

} // namespace

LMPresetBackupFolder::LMPresetBackupFolder(std::string folder, int keep)
    : m_folder(std::move(folder)), m_keep(std::max(1, keep)) {}

bool LMPresetBackupFolder::KeepReplaced(const std::string& value) const {
    int rolling = 0;
    if (Write(QString(), value, value, &rolling).empty())
        return false;
    // A full folder had its oldest backup written over: nothing to prune then.
    if (rolling > m_keep)
        Prune();
    return true;
}

std::string LMPresetBackupFolder::KeepUnreadable(const std::string& value,
                                                 const std::string& identity) const {
    return Write(QString::fromLatin1(kUnreadablePrefix), value, identity.empty() ? value : identity,
                 nullptr);
}

std::string LMPresetBackupFolder::Write(const QString& prefix, const std::string& value,
                                        const std::string& identity, int* rollingAfter) const {
    if (m_folder.empty())
        return {};
    const QDir dir(QString::fromStdString(m_folder));
    // One look when the folder is there, as it is at every save but the first.
    if (!dir.exists() && !dir.mkpath(QStringLiteral(".")))
        return {};
    const bool unreadable = !prefix.isEmpty();
    const QString hash = unreadable ? UnreadableHash(identity) : ReplacedHash(identity);
    // A name's time orders the backups, so each one kept takes a time after every
    // one there: saves come faster than a millisecond apart.
    qint64 now = QDateTime::currentMSecsSinceEpoch();
    int rolling = 0;
    QString oldest; // of the rolling backups
    qint64 oldestMs = 0;
    QString same; // the same value, kept before
    for (const QString& name : dir.entryList(QDir::Files)) {
        Parsed parsed;
        if (!Parse(name, &parsed))
            continue;
        now = std::max(now, parsed.ms + 1);
        if (parsed.unreadable != unreadable)
            continue;
        if (parsed.hash == hash && same.isEmpty()) {
            same = name;
            continue;
        }
        ++rolling;
        if (oldest.isEmpty() || parsed.ms < oldestMs || (parsed.ms == oldestMs && name < oldest)) {
            oldest = name;
            oldestMs = parsed.ms;
        }
    }
    const QString target = dir.filePath(FileName(prefix, now, hash));
    // The same value kept before: an unreadable one stays where it is; a replaced
    // one moves to the front by taking the time in its name.
    if (!same.isEmpty()) {
        if (unreadable)
            return dir.filePath(same).toStdString();
        if (rollingAfter)
            *rollingAfter = rolling + 1;
        if (QFile::rename(dir.filePath(same), target))
            return target.toStdString();
        ++rolling;
    }
    if (unreadable)
        return WriteDurably(target, value) ? target.toStdString() : std::string();
    // With the folder full, the oldest backup would be pruned right after: its
    // file is written over instead, which spares the file system a new one.
    const QString reuse = rolling >= m_keep && !oldest.isEmpty() ? dir.filePath(oldest) : QString();
    if (rollingAfter)
        *rollingAfter = rolling + (reuse.isEmpty() ? 1 : 0);
    return WriteCopy(target, value, reuse) ? target.toStdString() : std::string();
}

void LMPresetBackupFolder::Prune() const {
    std::vector<LMPresetBackup> rolling;
    for (const LMPresetBackup& backup : List()) {
        if (!backup.unreadable)
            rolling.push_back(backup);
    }
    for (std::size_t i = static_cast<std::size_t>(m_keep); i < rolling.size(); ++i)
        QFile::remove(QString::fromStdString(rolling[i].path));
}

std::vector<LMPresetBackup> LMPresetBackupFolder::List() const {
    std::vector<LMPresetBackup> result;
    if (m_folder.empty())
        return result;
    const QDir dir(QString::fromStdString(m_folder));
    for (const QString& name : dir.entryList(QDir::Files)) {
        Parsed parsed;
        if (!Parse(name, &parsed))
            continue;
        LMPresetBackup backup;
        backup.path = dir.filePath(name).toStdString();
        backup.savedAtMs = parsed.ms;
        backup.unreadable = parsed.unreadable;
        result.push_back(std::move(backup));
    }
    std::sort(result.begin(), result.end(), [](const auto& a, const auto& b) {
        return a.savedAtMs != b.savedAtMs ? a.savedAtMs > b.savedAtMs : a.path > b.path;
    });
    return result;
}

bool LMPresetBackupFolder::ReadValue(const std::string& path, std::string* value) {
    return ILMFileProvider::ReadRegularFile(path, kMaxValueBytes, value, nullptr);
}

} // namespace Lumeran
