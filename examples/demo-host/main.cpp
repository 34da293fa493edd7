// The demo host. Run it to try the popup:
//     lmfp-demo-host [--catalogue FILE.json]
// or, on a machine without a display, let it walk through the popup and write
// screenshots:
//     QT_QPA_PLATFORM=offscreen lmfp-demo-host --tour build/screenshots

#include "ILMAppSettings.h"
#include "ILMMediaFormatPopup.h"
#include "LMDefaultCatalogue.h"
#include "LMDemoHostWindow.h"
#include "LMDemoTour.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QTemporaryDir>

using namespace Lumeran;

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Lumeran"));
    QApplication::setApplicationName(QStringLiteral("LMMediaFormatPopup Demo"));
    QApplication::setApplicationDisplayName(QStringLiteral("Format Demo"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Chooses an output format with the popup."));
    parser.addHelpOption();
    const QCommandLineOption catalogue(QStringLiteral("catalogue"),
                                       QStringLiteral("Format catalogue (JSON) to load."),
                                       QStringLiteral("file"));
    const QCommandLineOption tour(
        QStringLiteral("tour"),
        QStringLiteral("Walk through the popup and write a screenshot of every step to dir."),
        QStringLiteral("dir"));
    const QCommandLineOption noConversion(
        QStringLiteral("tour-without-conversion"),
        QStringLiteral("Leave the conversion out of the tour (a second pass at another scale)."));
    parser.addOption(catalogue);
    parser.addOption(tour);
    parser.addOption(noConversion);
    parser.process(app);

    const std::string cataloguePath = parser.isSet(catalogue)
                                          ? parser.value(catalogue).toStdString()
                                          : LMDefaultCatalogue::Path();

    if (parser.isSet(tour)) {
        // The tour starts from nothing and leaves the user's settings alone.
        QTemporaryDir settingsDir;
        ILMAppSettings::UseSettingsFile(
            settingsDir.filePath(QStringLiteral("demo.ini")).toStdString());
        LMDemoTour demoTour(cataloguePath, parser.value(tour), !parser.isSet(noConversion));
        return demoTour.run() ? 0 : 1;
    }

    auto popup = ILMMediaFormatPopup::Shared();
    popup->SetupExternalFormatData(cataloguePath);
    LMDemoHostWindow window;
    window.show();
    const int status = QApplication::exec();
    popup->WaitForFormatDataLoadingComplete();
    return status;
}
