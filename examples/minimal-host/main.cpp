// SPDX-License-Identifier: MIT
// A host application in one file: a window with a "Format..." button that pops the
// format popup up under itself and shows the chosen preset with its FFmpeg options.
//
//     lmfp-minimal-host [CATALOGUE.json]      (default: the catalogue built into the library)
#include <LMMediaFormatPopup/ILMMediaFormatPopup.h>
#include <LMMediaFormatPopup/LMDefaultCatalogue.h>
#include <LMMediaFormatPopup/LMFFmpegArguments.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWidget>

#include <memory>
#include <string>

using Lumeran::ILMFormatNode;
using Lumeran::ILMFormatPreset;
using Lumeran::ILMMediaFormatPopup;
using Lumeran::LMFFmpegArguments;

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    // The popup keeps the user's recent and custom presets in these settings.
    QCoreApplication::setOrganizationName(QStringLiteral("Example"));
    QCoreApplication::setApplicationName(QStringLiteral("minimal-host"));

    // Once, at start: name the catalogue. It loads on a worker thread while the
    // host goes on; the popup shows a spinner until the load is done.
    std::shared_ptr<ILMMediaFormatPopup> popup = ILMMediaFormatPopup::Shared();
    popup->SetupExternalFormatData(argc > 1 ? std::string(argv[1])
                                            : Lumeran::LMDefaultCatalogue::Path());

    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* button = new QPushButton(QStringLiteral("Format..."), &window);
    auto* choice = new QLabel(QStringLiteral("No format chosen"), &window);
    layout->addWidget(button);
    layout->addWidget(choice);

    // On every click: pop the selection up under the button. The call returns at
    // once; the completion runs later on this thread, once per showing.
    QObject::connect(button, &QPushButton::clicked, &window, [popup, button, choice] {
        const QRect area(button->mapToGlobal(QPoint(0, 0)), button->size());
        const ILMMediaFormatPopup::Rect under{float(area.x()), float(area.y()), float(area.width()),
                                              float(area.height())};
        popup->PopupSelection(under, [choice](std::shared_ptr<const ILMFormatPreset> preset,
                                              std::shared_ptr<const ILMFormatNode> node) {
            if (!preset || !node)
                return; // dismissed without a choice
            // What the host's converter runs for this choice.
            const std::string output = "output." + LMFFmpegArguments::FileExtension(preset);
            const std::string command =
                LMFFmpegArguments::Join(LMFFmpegArguments::Command(preset, "input.mov", output));
            choice->setText(QString::fromStdString(node->Title() + " / " + preset->Title() +
                                                   "\nffmpeg " + command));
        });
    });

    window.show();
    const int status = app.exec();
    // A load still running when the user quits finishes before the libraries unload.
    popup->WaitForFormatDataLoadingComplete();
    return status;
}
