#include "LMDemoHostWindow.h"

#include "ILMArtworkImageGroupAdapter.h"
#include "ILMFmtPresetDataSource.h"
#include "ILMMediaFormatPopup.h"
#include "LMFFmpegArguments.h"
#include "LMFormatInternationalizationMgr.h"

#include <QFontDatabase>
#include <QFormLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Lumeran;

LMDemoHostWindow::LMDemoHostWindow(QWidget* parent)
    : QMainWindow(parent), m_formatButton(new QPushButton(this)), m_titleLabel(new QLabel(this)),
      m_descriptionLabel(new QLabel(this)), m_arguments(new QPlainTextEdit(this)),
      m_status(new QLabel(this)) {
    setWindowTitle(QStringLiteral("LMMediaFormatPopup demo"));
    auto* central = new QWidget(this);
    auto* layout = new QVBoxLayout(central);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(12);

    auto* heading = new QLabel(QStringLiteral("Output format"), central);
    QFont headingFont = heading->font();
    headingFont.setBold(true);
    headingFont.setPointSizeF(headingFont.pointSizeF() * 1.2);
    heading->setFont(headingFont);
    layout->addWidget(heading);

    m_formatButton->setIconSize(QSize(32, 32));
    m_formatButton->setMinimumHeight(48);
    m_formatButton->setMinimumWidth(280);
    m_formatButton->setStyleSheet(QStringLiteral("text-align: left; padding: 6px 12px;"));
    connect(m_formatButton, &QPushButton::clicked, this, &LMDemoHostWindow::popupFormats);
    auto* buttonRow = new QHBoxLayout();
    buttonRow->addWidget(m_formatButton);
    buttonRow->addStretch();
    layout->addLayout(buttonRow);

    auto* form = new QFormLayout();
    form->addRow(QStringLiteral("Preset:"), m_titleLabel);
    form->addRow(QStringLiteral("Description:"), m_descriptionLabel);
    layout->addLayout(form);

    layout->addWidget(new QLabel(QStringLiteral("FFmpeg output options:"), central));
    m_arguments->setReadOnly(true);
    m_arguments->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_arguments->setMaximumHeight(80);
    layout->addWidget(m_arguments);
    m_status->setStyleSheet(QStringLiteral("color: palette(mid);"));
    layout->addWidget(m_status);
    layout->addStretch();
    setCentralWidget(central);
    resize(720, 400);

    // Until the user chooses, the host shows what the framework considers current:
    // the newest recent entry, or the built-in MP4 preset.
    if (auto current = ILMFmtPresetDataSource::Shared()->GetCurrentPreset())
        showChoice(current->FormatPreset(), current->FormatNode());
    m_status->setText(QStringLiteral("Click the button to choose a format."));
    m_completions = 0;
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

void LMDemoHostWindow::showChoice(std::shared_ptr<const ILMFormatPreset> preset,
                                  std::shared_ptr<const ILMFormatNode> node) {
    ++m_completions;
    if (!preset || !node) {
        m_status->setText(QStringLiteral("The popup was dismissed; the format stays as it was."));
        return;
    }
    m_preset = preset;
    m_node = node;
    auto* mgr = LMFormatInternationalizationMgr::sharedObject();
    const QString nodeTitle = mgr->stringForKey(QString::fromStdString(node->Title()));
    const QString presetTitle = mgr->stringForKey(QString::fromStdString(preset->Title()));
    m_formatButton->setText(nodeTitle + QStringLiteral(" — ") + presetTitle);
    m_formatButton->setIcon(ILMArtworkImageGroupAdapter::imageFromArtworkImageGroup(
        ILMFmtPresetDataSource::Shared()->GetArtworkGroup(node->FaceID())));
    m_titleLabel->setText(nodeTitle + QLatin1Char(' ') + presetTitle);
    m_descriptionLabel->setText(mgr->stringForKey(QString::fromStdString(preset->Description())));
    m_arguments->setPlainText(
        QString::fromStdString(LMFFmpegArguments::Join(LMFFmpegArguments::OutputOptions(preset))));
    m_status->setText(QStringLiteral("Chosen."));
}
