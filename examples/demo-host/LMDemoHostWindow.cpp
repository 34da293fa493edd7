// SPDX-License-Identifier: MIT
#include "LMDemoHostWindow.h"

#include "LMDemoConverter.h"

#include <LMMediaFormatPopup/ILMArtworkImageGroupAdapter.h>
#include <LMMediaFormatPopup/ILMFmtPresetDataSource.h>
#include <LMMediaFormatPopup/ILMMediaFormatPopup.h>
#include <LMMediaFormatPopup/LMFFmpegArguments.h>
#include <LMMediaFormatPopup/LMFormatInternationalizationMgr.h>

#include <QActionGroup>
#include <QApplication>
#include <QEvent>
#include <QFileDialog>
#include <QFontDatabase>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPalette>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Lumeran;

namespace {

QString Localized(const std::string& key) {
    return LMFormatInternationalizationMgr::sharedObject()->stringForKey(
        QString::fromStdString(key));
}

} // namespace

LMDemoHostWindow::LMDemoHostWindow(QWidget* parent)
    : QMainWindow(parent), m_source(new QLineEdit(this)), m_formatButton(new QPushButton(this)),
      m_editButton(new QPushButton(QStringLiteral("Edit…"), this)),
      m_manageButton(new QPushButton(QStringLiteral("Manage presets…"), this)),
      m_description(new QLabel(this)), m_arguments(new QPlainTextEdit(this)),
      m_convertButton(new QPushButton(QStringLiteral("Convert"), this)),
      m_cancelButton(new QPushButton(QStringLiteral("Cancel"), this)),
      m_progress(new QProgressBar(this)), m_status(new QLabel(this)),
      m_languages(new QActionGroup(this)), m_converter(new LMDemoConverter(this)) {
    // The window system adds the application's display name ("Format Demo").
    setWindowTitle(QStringLiteral("A small converter"));
    auto* central = new QWidget(this);
    auto* layout = new QVBoxLayout(central);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(12);
    layout->addLayout(buildForm());
    layout->addLayout(buildConvertRow());
    m_status->setWordWrap(true);
    m_status->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(m_status);
    layout->addStretch();
    setCentralWidget(central);
    resize(760, 420);
    connectConverter();
    connect(LMFormatInternationalizationMgr::sharedObject(),
            &LMFormatInternationalizationMgr::languageDidChange, this,
            &LMDemoHostWindow::refreshChoice);
    buildLanguageMenu();

    // Until the user chooses, the host shows what the framework considers current:
    // the newest recent entry, or the built-in MP4 preset.
    if (auto current = ILMFmtPresetDataSource::Shared()->GetCurrentPreset())
        showChoice(current->FormatPreset(), current->FormatNode());
    m_status->setText(QStringLiteral("Choose a source file and a format, then Convert."));
}

// Source, format (the button that pops the selector up), its description and
// the FFmpeg options it stands for.
QFormLayout* LMDemoHostWindow::buildForm() {
    auto* form = new QFormLayout();
    form->setHorizontalSpacing(14);
    form->setVerticalSpacing(12);

    auto* sourceRow = new QHBoxLayout();
    m_source->setReadOnly(true);
    m_source->setPlaceholderText(QStringLiteral("No file chosen"));
    auto* browse = new QPushButton(QStringLiteral("Choose…"), this);
    connect(browse, &QPushButton::clicked, this, &LMDemoHostWindow::chooseSource);
    sourceRow->addWidget(m_source, 1);
    sourceRow->addWidget(browse);
    form->addRow(QStringLiteral("Source:"), sourceRow);

    auto* formatRow = new QHBoxLayout();
    m_formatButton->setIconSize(QSize(32, 32));
    m_formatButton->setMinimumSize(300, 46);
    styleFormatButton();
    m_formatButton->setToolTip(QStringLiteral("Choose the output format"));
    connect(m_formatButton, &QPushButton::clicked, this, &LMDemoHostWindow::popupFormats);
    connect(m_editButton, &QPushButton::clicked, this, &LMDemoHostWindow::editFormat);
    formatRow->addWidget(m_formatButton);
    formatRow->addWidget(m_editButton);
    // Rename, order, back up and share the custom presets: the framework's own window.
    m_manageButton->setToolTip(QStringLiteral("Rename, order, import and export your presets"));
    connect(m_manageButton, &QPushButton::clicked, this,
            [] { ILMMediaFormatPopup::Shared()->PopupManager(); });
    formatRow->addWidget(m_manageButton);
    formatRow->addStretch();
    form->addRow(QStringLiteral("Format:"), formatRow);
    m_description->setWordWrap(true);
    form->addRow(QString(), m_description);

    m_arguments->setReadOnly(true);
    m_arguments->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_arguments->setFixedHeight(64);
    form->addRow(QStringLiteral("FFmpeg:"), m_arguments);
    return form;
}

QHBoxLayout* LMDemoHostWindow::buildConvertRow() {
    auto* convertRow = new QHBoxLayout();
    m_convertButton->setDefault(true);
    m_convertButton->setEnabled(false);
    connect(m_convertButton, &QPushButton::clicked, this, &LMDemoHostWindow::convert);
    m_cancelButton->setEnabled(false);
    connect(m_cancelButton, &QPushButton::clicked, m_converter, &LMDemoConverter::cancel);
    m_progress->setRange(0, 1000);
    m_progress->setValue(0);
    m_progress->setTextVisible(false);
    convertRow->addWidget(m_convertButton);
    convertRow->addWidget(m_progress, 1);
    convertRow->addWidget(m_cancelButton);
    return convertRow;
}

void LMDemoHostWindow::connectConverter() {
    connect(m_converter, &LMDemoConverter::progress, this, [this](double fraction) {
        if (fraction < 0)
            m_progress->setRange(0, 0); // busy until the source's length is known
        else {
            m_progress->setRange(0, 1000);
            m_progress->setValue(int(fraction * 1000));
        }
    });
    connect(m_converter, &LMDemoConverter::finished, this, &LMDemoHostWindow::conversionFinished);
}

LMDemoHostWindow::~LMDemoHostWindow() = default;

void LMDemoHostWindow::buildLanguageMenu() {
    QMenu* menu = menuBar()->addMenu(QStringLiteral("&Language"));
    auto* mgr = LMFormatInternationalizationMgr::sharedObject();
    for (const QString& language : mgr->supportLanguages()) {
        QAction* action = menu->addAction(language);
        action->setCheckable(true);
        action->setChecked(language == mgr->language());
        m_languages->addAction(action);
        // The popup and the editor follow at once, open or not.
        connect(action, &QAction::triggered, mgr, [mgr, language] { mgr->setLanguage(language); });
    }
    connect(mgr, &LMFormatInternationalizationMgr::languageDidChange, this, [this, mgr] {
        for (QAction* action : m_languages->actions())
            action->setChecked(action->text() == mgr->language());
    });
}

void LMDemoHostWindow::chooseSource() {
    const QString path = QFileDialog::getOpenFileName(
        this, QStringLiteral("Choose a source file"), m_source->text(),
        QStringLiteral("Media files (*.mp4 *.mov *.mkv *.avi *.webm *.wav *.mp3 *.m4a *.flac);;"
                       "All files (*)"));
    if (!path.isEmpty())
        setSource(path);
}

void LMDemoHostWindow::setSource(const QString& path) {
    m_source->setText(path);
    m_convertButton->setEnabled(!path.isEmpty() && m_preset && !m_converter->isRunning());
}

void LMDemoHostWindow::popupFormats() {
    // The popup hangs under the button: its rectangle in screen coordinates.
    const QRect button(m_formatButton->mapToGlobal(QPoint(0, 0)), m_formatButton->size());
    ILMMediaFormatPopup::Shared()->PopupSelection(
        ILMMediaFormatPopup::Rect{float(button.x()), float(button.y()), float(button.width()),
                                  float(button.height())},
        [this](std::shared_ptr<const ILMFormatPreset> preset,
               std::shared_ptr<const ILMFormatNode> node) { showChoice(preset, node); });
}

void LMDemoHostWindow::editFormat() {
    if (!m_preset)
        return;
    if (ILMMediaFormatPopup::Shared()->PopupEditing(m_preset, m_node)) {
        refreshChoice();
        m_status->setText(QStringLiteral("Settings saved."));
    }
}

void LMDemoHostWindow::showChoice(std::shared_ptr<const ILMFormatPreset> preset,
                                  std::shared_ptr<const ILMFormatNode> node) {
    if (!preset || !node) {
        m_status->setText(QStringLiteral("The popup was dismissed; the format stays as it was."));
        return;
    }
    m_preset = preset->Clone();
    m_node = node;
    refreshChoice();
    setSource(m_source->text());
    m_status->setText(QStringLiteral("Format chosen."));
}

void LMDemoHostWindow::refreshChoice() {
    if (!m_preset || !m_node)
        return;
    const QString nodeTitle = Localized(m_node->Title());
    const QString presetTitle = Localized(m_preset->Title());
    m_formatButton->setText(nodeTitle + QStringLiteral(" — ") + presetTitle);
    m_formatButton->setIcon(ILMArtworkImageGroupAdapter::imageFromArtworkImageGroup(
        ILMFmtPresetDataSource::Shared()->GetArtworkGroup(m_node->FaceID())));
    m_description->setText(Localized(m_preset->Description()));
    m_arguments->setPlainText(QString::fromStdString(
        LMFFmpegArguments::Join(LMFFmpegArguments::OutputOptions(m_preset))));
}

void LMDemoHostWindow::convert() {
    if (!m_converter->start(m_source->text(), m_preset)) {
        m_status->setText(QStringLiteral("Nothing to convert: choose a source file and a format."));
        return;
    }
    m_convertButton->setEnabled(false);
    m_cancelButton->setEnabled(true);
    m_status->setText(QStringLiteral("Converting to ") +
                      LMDemoConverter::outputPathFor(m_source->text(), m_preset) +
                      QStringLiteral(" …"));
}

void LMDemoHostWindow::conversionFinished(bool ok, const QString& outputOrError) {
    m_convertButton->setEnabled(true);
    m_cancelButton->setEnabled(false);
    m_progress->setRange(0, 1000);
    if (!ok && outputOrError == QStringLiteral("Cancelled")) {
        m_progress->setValue(0);
        m_status->setText(QStringLiteral("Cancelled: nothing was written."));
    } else if (ok) {
        m_progress->setValue(1000);
        m_status->setText(QStringLiteral("Done: ") + outputOrError);
    } else {
        m_progress->setValue(0);
        m_status->setText(QStringLiteral("The encode failed:\n") + outputOrError);
    }
}

void LMDemoHostWindow::nameApplication() {
    QApplication::setOrganizationName(QStringLiteral("Lumeran"));
    QApplication::setApplicationName(QStringLiteral("LMMediaFormatPopup Demo"));
    QApplication::setApplicationDisplayName(QStringLiteral("Format Demo"));
}

void LMDemoHostWindow::styleFormatButton() {
    // A style sheet that sets the padding also draws the button's panel, which
    // would otherwise stay light under a dark palette: it takes the palette's
    // colours, read again whenever the palette changes.
    const QPalette& colours = palette();
    m_formatButton->setStyleSheet(
        QStringLiteral("QPushButton { text-align: left; padding: 4px 10px; color: %1;"
                       " background-color: %2; border: 1px solid %3; border-radius: 3px; }"
                       " QPushButton:hover { background-color: %4; }"
                       " QPushButton:pressed { background-color: %3; }")
            .arg(colours.color(QPalette::ButtonText).name(), colours.color(QPalette::Button).name(),
                 colours.color(QPalette::Mid).name(), colours.color(QPalette::Midlight).name()));
}

void LMDemoHostWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_formatButton)
        styleFormatButton();
}
