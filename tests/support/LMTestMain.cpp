// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#ifdef LMFP_TEST_GUI
#include <QApplication>
#endif
#include <QStandardPaths>

#include <gtest/gtest.h>

// Test programs run with an application object (settings, translators and
// queued calls need one) and with Qt's test paths, never the user's own.
int main(int argc, char** argv) {
    // Widgets are driven offscreen, whatever display the machine has.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("LumeranTests"));
    QCoreApplication::setApplicationName(QStringLiteral("lmfp-tests"));
#ifdef LMFP_TEST_GUI
    QApplication app(argc, argv);
#else
    QCoreApplication app(argc, argv);
#endif
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
