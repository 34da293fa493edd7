// SPDX-License-Identifier: MIT
// The demo host. Run it to try the popup:
//     lmfp-demo-host [--catalogue FILE.json]
// On a machine without a display, `make demo` runs tools/demo-tour instead,
// which walks through this window and writes screenshots.

#include "LMDemoHostWindow.h"

#include <LMMediaFormatPopup/ILMMediaFormatPopup.h>
#include <LMMediaFormatPopup/LMDefaultCatalogue.h>

#include <QApplication>
#include <QCommandLineParser>

using namespace Lumeran;

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    LMDemoHostWindow::nameApplication();

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Chooses an output format with the popup."));
    parser.addHelpOption();
    const QCommandLineOption catalogue(QStringLiteral("catalogue"),
                                       QStringLiteral("Format catalogue (JSON) to load."),
                                       QStringLiteral("file"));
    parser.addOption(catalogue);
    parser.process(app);

    // The framework loads the catalogue off the GUI thread; the popup shows a
    // spinner until it arrives.
    auto popup = ILMMediaFormatPopup::Shared();
    popup->SetupExternalFormatData(parser.isSet(catalogue) ? parser.value(catalogue).toStdString()
                                                           : LMDefaultCatalogue::Path());
    LMDemoHostWindow window;
    window.show();
    const int status = QApplication::exec();
    popup->WaitForFormatDataLoadingComplete();
    return status;
}
