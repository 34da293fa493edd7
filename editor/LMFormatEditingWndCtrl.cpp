// SPDX-License-Identifier: MIT
#include "LMFormatEditingWndCtrl.h"

#include "LMFormatEditingWndCtrl_p.h"

#include "ILMFmtPresetDataSource.h"
#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"
#include "LMFormatEditingWndCtrlDelegate.h"
#include "LMFormatInternationalizationMgr.h"
#include "LMNewPresetPrompt.h"
#include "LMNewPresetView.h"
#include "LMSingleton.h"
#include "LMSizeEstimate.h"
#include "LMSizeText.h"
#include "ui_LMFormatEditingWndCtrl.h"

#include <QApplication>
#include <QComboBox>
#include <QCursor>
#include <QLabel>
#include <QLocale>
#include <QPointer>
#include <QPushButton>
#include <QScreen>

#include <algorithm>
#include <array>

using Lumeran::ILMCodecPreset;
using Lumeran::ILMFmtPresetDataSource;
using Lumeran::ILMFormatNode;
using Lumeran::ILMFormatPreset;

namespace {

template <typename T>
std::string nameOf(const std::shared_ptr<T>& item) {
    return item ? item->Name() : std::string();
}

// Every title the editor shows is the localized text of the library's name;
// names nobody translates (codec names, "1920x1080") come back as they are.
QString localized(const std::string& name) {
    return LMFormatInternationalizationMgr::classStringForKey(QString::fromStdString(name));
}

// Empties a box, including the text it showed in place of a current item.
void emptyBox(QComboBox* box) {
    box->clear();
    box->setPlaceholderText(QString());
}

// Appends count localized names to box and selects current; a negative current
// means the codec has no value of this kind, and the box is disabled.
void fillBox(QComboBox* box, int count, const std::function<std::string(int)>& nameAt,
             int current) {
    for (int i = 0; i < count; ++i)
        box->addItem(localized(nameAt(i)));
    // A box with nothing to offer is disabled as well (a quality list of one level).
    box->setEnabled(current >= 0 && box->count() > 0);
    // A negative current selects nothing, rather than the first item a box
    // selects by itself.
    box->setCurrentIndex(current);
}

// One of a codec's value lists (resolutions, frame rates, sample rates, channel
// layouts) in box, its current value selected.
template <typename Item>
void fillValueBox(QComboBox* box, const ILMCodecPreset* codec, int (ILMCodecPreset::*count)() const,
                  std::shared_ptr<const Item> (ILMCodecPreset::*at)(int) const,
                  int (ILMCodecPreset::*current)() const) {
    if (!codec)
        return;
    fillBox(
        box, (codec->*count)(), [codec, at](int i) { return nameOf((codec->*at)(i)); },
        (codec->*current)());
}

} // namespace

// ---- The editor ------------------------------------------------------------------

namespace {

constinit Lumeran::LMSingleton<LMFormatEditingWndCtrl> s_editor{
    &LMFormatEditingWndCtrlPrivate::make};

} // namespace

LMFormatEditingWndCtrl::LMFormatEditingWndCtrl(QWidget* parent)
    : QDialog(parent), d(std::make_unique<LMFormatEditingWndCtrlPrivate>(this)) {
    d->ui->setupUi(this);
    d->connectControls();
    d->languageDidChanged();
    d->SetupFormatSettings();
}

LMFormatEditingWndCtrl::~LMFormatEditingWndCtrl() = default;

LMFormatEditingWndCtrl* LMFormatEditingWndCtrl::shared() {
    return s_editor.Instance().get();
}

LMFormatInternationalizationMgr* LMFormatEditingWndCtrl::lizationMgr() const {
    return LMFormatInternationalizationMgr::sharedObject();
}

LMFormatEditingWndCtrlDelegate* LMFormatEditingWndCtrl::delegate() const {
    return d->delegate;
}

void LMFormatEditingWndCtrl::setDelegate(LMFormatEditingWndCtrlDelegate* delegate) {
    d->delegate = delegate;
}

bool LMFormatEditingWndCtrl::startEditing(std::shared_ptr<ILMFormatPreset> preset,
                                          std::shared_ptr<const ILMFormatNode> node) {
    // One window cannot run two modal loops; the running session keeps going.
    if (d->inSession)
        return false;
    d->setBtnSaved(false);
    d->originalFormat = std::move(preset);
    d->editingFormat = d->originalFormat ? d->originalFormat->Clone() : nullptr;
    d->fmtNode = std::move(node);
    setWindowTitle(d->getWindowTitle());
    d->SetupFormatSettings();
    d->placeOnScreen();
    d->inSession = true;
    exec();
    // hide() ends the loop without done(); the session must still end properly.
    d->endSession();
    return d->btnSaved;
}

bool LMFormatEditingWndCtrl::btnSaved() const {
    return d->btnSaved;
}

void LMFormatEditingWndCtrl::reject() {
    d->CancelAction();
}

void LMFormatEditingWndCtrl::done(int result) {
    Q_UNUSED(result);
    d->endSession();
    // The session's outcome is what Save decided, whichever way the window closes.
    QDialog::done(d->btnSaved ? QDialog::Accepted : QDialog::Rejected);
}

void LMFormatEditingWndCtrl::windowWillClose() {
    // A question left open would outlive its editor; it answers "Cancel".
    if (d->prompt)
        d->prompt->reject();
}

// ---- Its insides -------------------------------------------------------------------

LMFormatEditingWndCtrlPrivate::LMFormatEditingWndCtrlPrivate(LMFormatEditingWndCtrl* owner)
    : q(owner), ui(std::make_unique<Ui::LMFormatEditingWndCtrl>()) {}

LMFormatEditingWndCtrlPrivate::~LMFormatEditingWndCtrlPrivate() = default;

LMFormatEditingWndCtrlPrivate* LMFormatEditingWndCtrlPrivate::get(LMFormatEditingWndCtrl* editor) {
    return editor ? editor->d.get() : nullptr;
}

std::shared_ptr<LMFormatEditingWndCtrl> LMFormatEditingWndCtrlPrivate::make() {
    return std::make_shared<LMFormatEditingWndCtrl>();
}

LMFormatEditingWndCtrlPrivate::StreamBoxes LMFormatEditingWndCtrlPrivate::boxes(bool audio) const {
    if (audio)
        return {ui->cmbAEncoder, ui->cmbSampleRate, ui->cmbChannel, ui->cmbAQuality};
    return {ui->cmbVEncoder, ui->cmbResolution, ui->cmbFrameRate, ui->cmbVQuality};
}

std::array<QPushButton*, 3> LMFormatEditingWndCtrlPrivate::buttons() const {
    return {ui->btnDefault, ui->btnSave, ui->btnSaveNewPreset};
}

void LMFormatEditingWndCtrlPrivate::connectControls() {
    // activated() comes from the user only, so filling a box never acts on the preset.
    const auto onPick = [this](QComboBox* box, void (LMFormatEditingWndCtrlPrivate::*action)(int)) {
        QObject::connect(box, &QComboBox::activated, q, [this, action](int index) {
            (this->*action)(index);
            updateSizeEstimate();
        });
    };
    onPick(ui->cmbVEncoder, &LMFormatEditingWndCtrlPrivate::VideoEncoderChangeAction);
    onPick(ui->cmbResolution, &LMFormatEditingWndCtrlPrivate::VideoResolutionChangeAction);
    onPick(ui->cmbFrameRate, &LMFormatEditingWndCtrlPrivate::VideoFrameRateChangeAction);
    onPick(ui->cmbVQuality, &LMFormatEditingWndCtrlPrivate::VideoQualityChangeAction);
    onPick(ui->cmbAEncoder, &LMFormatEditingWndCtrlPrivate::AudioEncoderChangeAction);
    onPick(ui->cmbChannel, &LMFormatEditingWndCtrlPrivate::AudioChannelChangeAction);
    onPick(ui->cmbSampleRate, &LMFormatEditingWndCtrlPrivate::AudioAampleRateChangeAction);
    onPick(ui->cmbAQuality, &LMFormatEditingWndCtrlPrivate::AudioQualityChangeAction);
    QObject::connect(ui->btnDefault, &QPushButton::clicked, q, [this] { ResetAction(); });
    // Cancel stays enabled without a preset: it is the way out the keyboard and
    // the eye find first, besides Escape and the window's close control.
    QObject::connect(ui->btnCancel, &QPushButton::clicked, q, [this] { CancelAction(); });
    QObject::connect(ui->btnSave, &QPushButton::clicked, q, [this] { SaveAction(); });
    QObject::connect(ui->btnSaveNewPreset, &QPushButton::clicked, q,
                     [this] { SaveAsNewPresetAction(); });
    QObject::connect(q->lizationMgr(), &LMFormatInternationalizationMgr::languageDidChange, q,
                     [this] { languageDidChanged(); });
}

// ---- Session ---------------------------------------------------------------------

void LMFormatEditingWndCtrlPrivate::setBtnSaved(bool saved) {
    if (btnSaved == saved)
        return;
    btnSaved = saved;
    Q_EMIT q->btnSavedChanged(saved);
}

void LMFormatEditingWndCtrlPrivate::placeOnScreen() {
    // Centred on the screen the user works on: the host's active window's, else
    // the one under the pointer, else the primary one.
    QScreen* screen = nullptr;
    if (const QWidget* host = QApplication::activeWindow(); host && host != q)
        screen = host->screen();
    if (!screen)
        screen = QGuiApplication::screenAt(QCursor::pos());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (!screen)
        return;
    // The layout may need more room than the layout file's size in some languages.
    q->resize(q->size().expandedTo(q->minimumSizeHint()));
    // The native window knows the title bar's size, where the platform tells it.
    q->create();
    QRect frame(QPoint(), q->frameGeometry().size());
    frame.moveCenter(screen->availableGeometry().center());
    q->move(frame.topLeft());
}

QString LMFormatEditingWndCtrlPrivate::getWindowTitle() const {
    const QString settings = q->lizationMgr()->stringForKey(QStringLiteral("Settings"));
    if (!editingFormat)
        return settings;
    const QString prefix = settings + QStringLiteral(" - ");
    const std::string title = editingFormat->Title();
    if (fmtNode && title.find(fmtNode->Title()) == std::string::npos)
        return prefix + QString::fromStdString(fmtNode->Title()) + QLatin1Char(' ') +
               QString::fromStdString(title);
    return prefix + QString::fromStdString(title);
}

void LMFormatEditingWndCtrlPrivate::languageDidChanged() {
    const Ui::LMFormatEditingWndCtrl& form = *ui;
    const auto text = [this](const QString& key) { return q->lizationMgr()->stringForKey(key); };
    form.grpVideo->setTitle(text(QStringLiteral("Video")));
    form.grpAudio->setTitle(text(QStringLiteral("Audio")));
    form.lblVEncoder->setText(text(QStringLiteral("Encoder")));
    form.lblAEncoder->setText(text(QStringLiteral("Encoder")));
    form.lblResolution->setText(text(QStringLiteral("Resolution")));
    form.lblFrameRate->setText(text(QStringLiteral("FrameRate")));
    form.lblVQuality->setText(text(QStringLiteral("Quality")));
    form.lblAQuality->setText(text(QStringLiteral("Quality")));
    form.lblChannel->setText(text(QStringLiteral("Channel")));
    form.lblSampleRate->setText(text(QStringLiteral("Sample Rate")));
    form.btnDefault->setText(text(QStringLiteral("Reset")));
    form.btnCancel->setText(text(QStringLiteral("Cancel")));
    form.btnSave->setText(text(QStringLiteral("Save")));
    form.btnSaveNewPreset->setText(text(QStringLiteral("Save as New Preset")));
    // One label width for both sections, so that their boxes line up.
    const std::array labels{form.lblVEncoder,   form.lblResolution, form.lblFrameRate,
                            form.lblVQuality,   form.lblAEncoder,   form.lblChannel,
                            form.lblSampleRate, form.lblAQuality};
    int labelWidth = 0;
    for (QLabel* label : labels) {
        label->setMinimumWidth(0);
        labelWidth = std::max(labelWidth, label->sizeHint().width());
    }
    for (QLabel* label : labels)
        label->setMinimumWidth(labelWidth);
    q->setWindowTitle(getWindowTitle());
    // The option titles are localized too; the editing copy holds every choice
    // made so far, so filling again from it loses nothing.
    if (editingFormat)
        SetupFormatSettings();
}

// ---- Filling the boxes -----------------------------------------------------------

void LMFormatEditingWndCtrlPrivate::SetupFormatSettings() {
    const bool hasPreset = editingFormat != nullptr;
    for (QPushButton* button : buttons())
        button->setEnabled(hasPreset);
    updateSizeEstimate();
    if (hasPreset) {
        SetupFormatVideoSettings();
        SetupFormatAudioSettings();
        return;
    }
    for (const bool audio : {false, true}) {
        for (QComboBox* box : boxes(audio)) {
            box->setEnabled(false);
            emptyBox(box);
        }
    }
}

void LMFormatEditingWndCtrlPrivate::updateSizeEstimate() {
    QLabel* label = ui->lblSizeEstimate;
    if (!editingFormat) {
        label->clear();
        return;
    }
    // Ten minutes: long enough that the figures read as megabytes for most
    // settings, short enough to scale to a clip in one's head.
    constexpr double kSeconds = 600;
    const auto estimate = Lumeran::LMSizeEstimate::For(editingFormat, kSeconds);
    const auto text = [this](const QString& key) { return q->lizationMgr()->stringForKey(key); };
    if (!estimate.IsKnown()) {
        label->setText(text(QStringLiteral("Size not known for an automatic codec")));
        return;
    }
    const QString size = LMSizeText::size(estimate, q->lizationMgr());
    label->setText(estimate.IsExact() ? text(QStringLiteral("%1 per 10 minutes")).arg(size)
                                      : text(QStringLiteral("≈ %1 per 10 minutes")).arg(size));
    // A preset that keeps the source's frame size or rate is sized for a source
    // nobody described; the line says which, on hover and to screen readers.
    const QLocale locale(q->lizationMgr()->languageCode());
    const QString assumed =
        estimate.UsesAssumedSource()
            ? text(QStringLiteral("Sized for a source of %1 at %2 fps with %3 kHz stereo sound "
                                  "where the preset keeps the source's settings."))
                  .arg(QStringLiteral("%1x%2")
                           .arg(Lumeran::LMSizeEstimate::kAssumedWidth)
                           .arg(Lumeran::LMSizeEstimate::kAssumedHeight),
                       locale.toString(Lumeran::LMSizeEstimate::kAssumedFramesPerSecond),
                       locale.toString(Lumeran::LMSizeEstimate::kAssumedHertz / 1000))
            : QString();
    label->setToolTip(assumed);
    label->setAccessibleDescription(assumed);
}

void LMFormatEditingWndCtrlPrivate::SetupFormatVideoSettings() {
    setupStream(false);
}

void LMFormatEditingWndCtrlPrivate::SetupFormatAudioSettings() {
    setupStream(true);
}

void LMFormatEditingWndCtrlPrivate::setupStream(bool audio) {
    const StreamBoxes boxes = this->boxes(audio);
    QComboBox* encoder = boxes[0];
    emptyBox(encoder);
    const ILMFormatPreset* preset = editingFormat.get();
    if (!preset)
        return;
    const int count = audio ? preset->AudioCodecCount() : preset->VideoCodecCount();
    const int current = audio ? preset->CurrentAudioCodecIndex() : preset->CurrentVideoCodecIndex();
    fillBox(
        encoder, count,
        [preset, audio](int i) {
            return nameOf(audio ? preset->AudioCodecAt(i) : preset->VideoCodecAt(i));
        },
        current);
    if (current >= 0) {
        setupCodec(audio, current);
        return;
    }
    // No such stream. The value boxes are emptied as well, so that nothing of
    // an earlier session's preset lingers in them.
    for (QComboBox* box : boxes) {
        box->setEnabled(false);
        if (box != encoder)
            emptyBox(box);
    }
}

void LMFormatEditingWndCtrlPrivate::SetupFormatVCodecSettings(int index) {
    setupCodec(false, index);
}

void LMFormatEditingWndCtrlPrivate::SetupFormatACodecSettings(int index) {
    setupCodec(true, index);
}

void LMFormatEditingWndCtrlPrivate::setupCodec(bool audio, int index) {
    const StreamBoxes boxes = this->boxes(audio);
    const auto dependents = {boxes[1], boxes[2], boxes[3]};
    for (QComboBox* box : dependents)
        emptyBox(box);
    std::shared_ptr<ILMCodecPreset> codec;
    if (editingFormat)
        codec = audio ? editingFormat->AudioCodecAt(index) : editingFormat->VideoCodecAt(index);
    // The automatic codec leaves every detail to the muxer: nothing to choose.
    if (!codec || codec->IsAutoValue()) {
        for (QComboBox* box : dependents)
            box->setEnabled(false);
        return;
    }
    if (audio) {
        SetupFormatSamplerates(codec);
        SetupFormatChannel(codec);
    } else {
        SetupFormatResolutions(codec);
        SetupFormatFramerates(codec);
    }
    SetupFormatQuality(codec, boxes[3]);
}

void LMFormatEditingWndCtrlPrivate::SetupFormatResolutions(std::shared_ptr<ILMCodecPreset> codec) {
    fillValueBox(ui->cmbResolution, codec.get(), &ILMCodecPreset::ResolutionCount,
                 &ILMCodecPreset::ResolutionAt, &ILMCodecPreset::CurrentResolutionIndex);
}

void LMFormatEditingWndCtrlPrivate::SetupFormatFramerates(std::shared_ptr<ILMCodecPreset> codec) {
    fillValueBox(ui->cmbFrameRate, codec.get(), &ILMCodecPreset::FramerateCount,
                 &ILMCodecPreset::FramerateAt, &ILMCodecPreset::CurrentFramerateIndex);
}

void LMFormatEditingWndCtrlPrivate::SetupFormatSamplerates(std::shared_ptr<ILMCodecPreset> codec) {
    fillValueBox(ui->cmbSampleRate, codec.get(), &ILMCodecPreset::SamplerateCount,
                 &ILMCodecPreset::SamplerateAt, &ILMCodecPreset::CurrentSamplerateIndex);
}

void LMFormatEditingWndCtrlPrivate::SetupFormatChannel(std::shared_ptr<ILMCodecPreset> codec) {
    fillValueBox(ui->cmbChannel, codec.get(), &ILMCodecPreset::ChannelLayoutCount,
                 &ILMCodecPreset::ChannelLayoutAt, &ILMCodecPreset::CurrentChannelLayoutIndex);
}

void LMFormatEditingWndCtrlPrivate::SetupFormatQuality(std::shared_ptr<ILMCodecPreset> codec,
                                                       QComboBox* box) {
    if (!codec || !box)
        return;
    // The last level is the codec's archival setting, never offered here; box
    // indexes stay those of the codec's list.
    const int offered = std::max(codec->QualityCount() - 1, 0);
    const int current = codec->CurrentQualityIndex();
    fillBox(
        box, offered, [&codec](int i) { return nameOf(codec->QualityAt(i)); }, current);
    // A preset that pins that last level shows its name in place of a selection.
    if (current >= offered)
        box->setPlaceholderText(localized(nameOf(codec->QualityAt(current))));
}

// ---- Actions ---------------------------------------------------------------------

std::shared_ptr<ILMCodecPreset> LMFormatEditingWndCtrlPrivate::currentCodec(bool audio) const {
    if (!editingFormat)
        return {};
    return audio ? editingFormat->CurrentAudioCodec() : editingFormat->CurrentVideoCodec();
}

void LMFormatEditingWndCtrlPrivate::changeEncoder(bool audio, int index) {
    if (!editingFormat)
        return;
    ILMFormatPreset::ChangeCodecKeepingChoices(*editingFormat, audio, index);
    setupCodec(audio, index);
}

void LMFormatEditingWndCtrlPrivate::VideoEncoderChangeAction(int index) {
    changeEncoder(false, index);
}

void LMFormatEditingWndCtrlPrivate::AudioEncoderChangeAction(int index) {
    changeEncoder(true, index);
}

void LMFormatEditingWndCtrlPrivate::VideoResolutionChangeAction(int index) {
    if (auto codec = currentCodec(false))
        codec->SetCurrentResolution(index);
}

void LMFormatEditingWndCtrlPrivate::VideoFrameRateChangeAction(int index) {
    if (auto codec = currentCodec(false))
        codec->SetCurrentFramerate(index);
}

void LMFormatEditingWndCtrlPrivate::VideoQualityChangeAction(int index) {
    if (auto codec = currentCodec(false))
        codec->SetCurrentQuality(index);
}

void LMFormatEditingWndCtrlPrivate::AudioChannelChangeAction(int index) {
    if (auto codec = currentCodec(true))
        codec->SetCurrentChannelLayout(index);
}

void LMFormatEditingWndCtrlPrivate::AudioAampleRateChangeAction(int index) {
    if (auto codec = currentCodec(true))
        codec->SetCurrentSamplerate(index);
}

void LMFormatEditingWndCtrlPrivate::AudioQualityChangeAction(int index) {
    if (auto codec = currentCodec(true))
        codec->SetCurrentQuality(index);
}

void LMFormatEditingWndCtrlPrivate::ResetAction() {
    editingFormat = originalFormat ? originalFormat->Clone() : nullptr;
    SetupFormatSettings();
}

void LMFormatEditingWndCtrlPrivate::CancelAction() {
    setBtnSaved(false);
    q->QDialog::reject();
}

void LMFormatEditingWndCtrlPrivate::SaveAction() {
    if (!editingFormat || !originalFormat)
        return;
    describeChangedSettings(*editingFormat);
    auto source = ILMFmtPresetDataSource::Shared();
    source->PushRecentItem(editingFormat, fmtNode);
    source->SaveRecentList();
    originalFormat->CopyFrom(editingFormat);
    setBtnSaved(true);
    q->accept();
}

void LMFormatEditingWndCtrlPrivate::SaveAsNewPresetAction() {
    // One question at a time: the prompt blocks the editor until it is answered.
    if (!editingFormat || (prompt && prompt->isVisible()))
        return;
    // The prompt's title bar names the application; its message says what is
    // being asked, so the application's name is not repeated in it.
    getNewPresetName(q->lizationMgr()->stringForKey(QStringLiteral("Save as New Preset")),
                     q->lizationMgr()->stringForKey(QStringLiteral("customSave")),
                     GetDefaultCustomFormatName(), q, [this](const QString& name) {
                         if (name.isEmpty() || !editingFormat)
                             return;
                         auto copy = editingFormat->Clone();
                         copy->SetTitle(name.toStdString());
                         describeChangedSettings(*copy);
                         auto source = ILMFmtPresetDataSource::Shared();
                         source->AddCustomPreset(copy, fmtNode);
                         source->SaveCustomList();
                         if (delegate)
                             delegate->formatEditingWndCtrlDidCreateFormatPreset(q);
                     });
}

// A catalogue preset keeps its own wording while its settings stand; once they
// change, the description says what they are now.
void LMFormatEditingWndCtrlPrivate::describeChangedSettings(ILMFormatPreset& preset) const {
    if (originalFormat && !ILMFormatPreset::HaveSameSettings(preset, *originalFormat))
        preset.SetDescription(ILMFormatPreset::DescribeSettings(preset));
}

// ---- Naming a new preset ---------------------------------------------------------

QString LMFormatEditingWndCtrlPrivate::GetDefaultCustomFormatName() const {
    const std::string nodeTitle = fmtNode ? fmtNode->Title() : std::string();
    const std::string presetTitle = editingFormat ? editingFormat->Title() : std::string();
    // "MP4 High Quality" under "MP4" names itself; "High Quality" needs its node's name.
    const std::string base =
        !presetTitle.empty() && presetTitle.find(nodeTitle) != std::string::npos ? presetTitle
                                                                                 : nodeTitle;
    for (int n = 0;; ++n) {
        const std::string candidate = base + "-custom" + std::to_string(n);
        if (!HasDefind(candidate))
            return QString::fromStdString(candidate);
    }
}

bool LMFormatEditingWndCtrlPrivate::HasDefind(const std::string& name) const {
    const auto root = ILMFmtPresetDataSource::Shared()->GetCustomList();
    for (int i = 0; root && i < root->ChildCount(); ++i) {
        const auto child = root->ChildAt(i);
        if (child && child->FindFormatPreset(name))
            return true;
    }
    return false;
}

void LMFormatEditingWndCtrlPrivate::getNewPresetName(
    const QString& message, const QString& label, const QString& value, QWidget* window,
    std::function<void(const QString&)> completeHandler) {
    auto* question = new LMNewPresetPrompt(window);
    question->setWindowTitle(getAppName());
    question->setMessageText(message);
    question->setInformativeText(label);
    LMNewPresetView* view = LMNewPresetView::creatNewPresetView();
    view->setStrValue(value);
    question->setAccessoryView(view);
    prompt = question;
    question->beginSheetModalForWindow(
        window, [view = QPointer<LMNewPresetView>(view),
                 handler = std::move(completeHandler)](int response) {
            if (!handler)
                return;
            const QString name = view ? view->strValue() : QString();
            const bool named = response == LMNewPresetPrompt::FirstButtonReturn && !name.isEmpty();
            handler(named ? name : QString());
        });
}

QString LMFormatEditingWndCtrlPrivate::getAppName() {
    const QString displayName = QGuiApplication::applicationDisplayName();
    return displayName.isEmpty() ? QCoreApplication::applicationName() : displayName;
}

// ---- Closing ---------------------------------------------------------------------

void LMFormatEditingWndCtrlPrivate::endSession() {
    if (!inSession)
        return;
    inSession = false;
    q->windowWillClose();
}
