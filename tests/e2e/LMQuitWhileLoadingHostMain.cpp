// SPDX-License-Identifier: MIT
// A host that quits while the catalogue is still loading, the way a user closes
// an application right after starting it: it names the catalogue, shows the popup
// and quits after the given number of milliseconds.
//
//   lmfp_quit_host <settings.ini> <catalogue.json> <milliseconds>

#include "ILMAppSettings.h"
#include "ILMMediaFormatPopup.h"

#include <QApplication>
#include <QStandardPaths>
#include <QTimer>

#include <cstdio>

using namespace Lumeran;

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    QApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() != 4) {
        std::fprintf(stderr, "usage: lmfp_quit_host <settings.ini> <catalogue.json> <ms>\n");
        return 2;
    }
    ILMAppSettings::UseSettingsFile(args.at(1).toStdString());
    auto popup = ILMMediaFormatPopup::Shared();
    popup->SetupExternalFormatData(args.at(2).toStdString());
    popup->PopupSelection(ILMMediaFormatPopup::Rect{100.0f, 50.0f, 100.0f, 20.0f}, {});
    QTimer::singleShot(args.at(3).toInt(), &app, &QCoreApplication::quit);
    return app.exec();
}
