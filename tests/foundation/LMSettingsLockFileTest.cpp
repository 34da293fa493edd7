// SPDX-License-Identifier: MIT
#include "LMSettingsLockFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QProcess>
#include <QSysInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Lumeran;

namespace {

QByteArray ReadAll(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

TEST(LMSettingsLockFileTest, HoldsTheSameLinesQLockFileWrites) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("settings.ini.lock"));
    QByteArray qtLines;
    {
        QLockFile qt(path);
        ASSERT_TRUE(qt.tryLock(0));
        qtLines = ReadAll(path);
    }
    LMSettingsLockFile ours(path.toStdString());
    ASSERT_TRUE(ours.Lock(0, 5000));
    EXPECT_EQ(ReadAll(path), qtLines);
}

TEST(LMSettingsLockFileTest, QLockFileSeesTheLockHeldByThisProcessAndCannotRemoveIt) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("settings.ini.lock"));
    LMSettingsLockFile ours(path.toStdString());
    ASSERT_TRUE(ours.Lock(0, 5000));
    QLockFile other(path);
    other.setStaleLockTime(1); // even one that takes every lock for stale
    EXPECT_FALSE(other.tryLock(50));
    qint64 pid = 0;
    QString host;
    QString application;
    ASSERT_TRUE(other.getLockInfo(&pid, &host, &application));
    EXPECT_EQ(pid, QCoreApplication::applicationPid());
    EXPECT_EQ(host, QSysInfo::machineHostName());
    EXPECT_EQ(application, QFileInfo(QCoreApplication::applicationFilePath()).fileName());
    EXPECT_FALSE(other.removeStaleLockFile());
    EXPECT_TRUE(QFile::exists(path));
    ours.Unlock();
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_TRUE(other.tryLock(0));
}

TEST(LMSettingsLockFileTest, ALockHeldByQLockFileIsWaitedFor) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("settings.ini.lock"));
    auto qt = std::make_unique<QLockFile>(path);
    ASSERT_TRUE(qt->tryLock(0));
    LMSettingsLockFile ours(path.toStdString());
    EXPECT_FALSE(ours.Lock(50, 60000));
    qt.reset();
    EXPECT_TRUE(ours.Lock(0, 60000));
    ours.Unlock();
    EXPECT_FALSE(QFile::exists(path));
}

TEST(LMSettingsLockFileTest, ALockLeftByAProcessThatIsGoneIsTakenOver) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("settings.ini.lock"));
    // A lock file naming a process of this machine that has ended.
    QProcess ended;
    ended.start(QStringLiteral("true"), {});
    ASSERT_TRUE(ended.waitForStarted());
    const qint64 gone = ended.processId();
    ASSERT_TRUE(ended.waitForFinished());
    {
        QFile leftover(path);
        ASSERT_TRUE(leftover.open(QIODevice::WriteOnly));
        leftover.write(QByteArray::number(gone) + "\ntrue\n" +
                       QSysInfo::machineHostName().toUtf8() + "\n" + QSysInfo::machineUniqueId() +
                       "\n" + QSysInfo::bootUniqueId() + "\n");
    }
    LMSettingsLockFile ours(path.toStdString());
    EXPECT_TRUE(ours.Lock(5000, 60000));
}
