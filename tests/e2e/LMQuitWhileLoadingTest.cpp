// SPDX-License-Identifier: MIT
// Quitting a host at random moments of a large catalogue load: the process always
// ends normally, whether the load was over, half way or not yet started.

#include "LMCoreTestSupport.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <random>

using namespace Lumeran::TestSupport;

namespace {

constexpr int kQuits = 50;

} // namespace

TEST(LMQuitWhileLoadingTest, QuittingAtAnyMomentOfALargeLoadNeverCrashes) {
    QTemporaryDir dir;
    const QString catalogue = dir.filePath(QStringLiteral("large.json"));
    ASSERT_GT(WriteLargeCatalogue(catalogue, 400, 100), 10 * 1024 * 1024);
    // How long a whole load takes here, so the quits land before, during and after.
    QElapsedTimer clock;
    clock.start();
    QProcess probe;
    probe.start(QStringLiteral(LMFP_QUIT_HOST),
                {dir.filePath(QStringLiteral("probe.ini")), catalogue, QStringLiteral("0")});
    ASSERT_TRUE(probe.waitForFinished(120000));
    const int span = std::max(50, static_cast<int>(clock.elapsed()) * 2);

    std::mt19937 random(1122);
    std::uniform_int_distribution<int> moment(0, span);
    int crashes = 0;
    for (int attempt = 0; attempt < kQuits; ++attempt) {
        QProcess host;
        host.start(QStringLiteral(LMFP_QUIT_HOST),
                   {dir.filePath(QStringLiteral("s%1.ini").arg(attempt)), catalogue,
                    QString::number(moment(random))});
        ASSERT_TRUE(host.waitForFinished(120000));
        if (host.exitStatus() != QProcess::NormalExit || host.exitCode() != 0) {
            ++crashes;
            ADD_FAILURE() << "quit " << attempt << ": exit " << host.exitCode() << "\n"
                          << host.readAllStandardError().toStdString();
        }
    }
    std::printf("quits while loading: %d crashes in %d quits (moments 0-%d ms)\n", crashes, kQuits,
                span);
    EXPECT_EQ(crashes, 0);
}
