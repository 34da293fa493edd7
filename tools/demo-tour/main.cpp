// SPDX-License-Identifier: MIT
// The demo's scripted tour, which `make demo` runs on a machine without a
// display: it drives the demo host's window through the popup, the editor and a
// conversion as a user would and writes a screenshot of every step.
//     QT_QPA_PLATFORM=offscreen lmfp_demo_tour [--catalogue FILE.json]
//         [--without-conversion | --twelve-categories] DIR

#include "ILMAppSettings.h"
#include "LMDefaultCatalogue.h"
#include "LMDemoHostWindow.h"
#include "LMDemoTour.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTemporaryDir>

#include <cstdio>

using namespace Lumeran;

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    // The demo host's names, so the pictures show what a user sees.
    LMDemoHostWindow::nameApplication();

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Walks through the demo host and writes a screenshot of every step."));
    parser.addHelpOption();
    const QCommandLineOption catalogue(QStringLiteral("catalogue"),
                                       QStringLiteral("Format catalogue (JSON) to load."),
                                       QStringLiteral("file"));
    const QCommandLineOption noConversion(
        QStringLiteral("without-conversion"),
        QStringLiteral("Leave the conversion out (a second pass at another scale)."));
    const QCommandLineOption twelve(
        QStringLiteral("twelve-categories"),
        QStringLiteral("Instead of the tour, show the popup on twelve categories."));
    parser.addOption(catalogue);
    parser.addOption(noConversion);
    parser.addOption(twelve);
    parser.addPositionalArgument(QStringLiteral("dir"),
                                 QStringLiteral("Folder the screenshots are written to."));
    parser.process(app);
    if (parser.positionalArguments().size() != 1) {
        std::fprintf(stderr, "%s", qPrintable(parser.helpText()));
        return 2;
    }

    const std::string cataloguePath = parser.isSet(catalogue)
                                          ? parser.value(catalogue).toStdString()
                                          : LMDefaultCatalogue::Path();
    // The tour starts from nothing and leaves the user's settings alone.
    QTemporaryDir settingsDir;
    ILMAppSettings::UseSettingsFile(settingsDir.filePath(QStringLiteral("demo.ini")).toStdString());
    LMDemoTour tour(cataloguePath, parser.positionalArguments().constFirst(),
                    !parser.isSet(noConversion));
    const bool done = parser.isSet(twelve) ? tour.runTwelveCategories() : tour.run();
    return done ? 0 : 1;
}
