#include "LMFormatEditingWndCtrl.h"

#include "LMSharedEditingWindow_p.h"

#include "ILMFmtPresetDataSource.h"
#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"
#include "LMFormatEditingWndCtrlDelegate.h"
#include "LMFormatInternationalizationMgr.h"
#include "LMNewPresetPrompt.h"
#include "LMNewPresetView.h"
#include "ui_LMFormatEditingWndCtrl.h"

#include <QApplication>
#include <QComboBox>
#include <QCursor>
#include <QLabel>
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

// One stream's boxes: the encoder, the two value boxes and the quality box.
using StreamBoxes = std::array<QComboBox*, 4>;

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

struct LMFormatEditingWndCtrl::Private {
    Ui::LMFormatEditingWndCtrl ui;
    // The caller's preset, changed by Save only, and the copy every control acts on.
    std::shared_ptr<ILMFormatPreset> originalFormat;
    std::shared_ptr<ILMFormatPreset> editingFormat;
    std::shared_ptr<const ILMFormatNode> fmtNode;
    LMFormatEditingWndCtrlDelegate* delegate = nullptr;
    QPointer<LMNewPresetPrompt> prompt;
    bool btnSaved = false;
    bool inSession = false;

    StreamBoxes boxes(bool audio) const {
        if (audio)
            return {ui.cmbAEncoder, ui.cmbSampleRate, ui.cmbChannel, ui.cmbAQuality};
        return {ui.cmbVEncoder, ui.cmbResolution, ui.cmbFrameRate, ui.cmbVQuality};
    }
    std::array<QPushButton*, 3> buttons() const {
        return {ui.btnDefault, ui.btnSave, ui.btnSaveNewPreset};
    }
};

LMFormatEditingWndCtrl::LMFormatEditingWndCtrl(QWidget* parent)
    : QDialog(parent), d(std::make_unique<Private>()) {
    d->ui.setupUi(this);
    const Ui::LMFormatEditingWndCtrl& ui = d->ui;
    // activated() comes from the user only, so filling a box never acts on the preset.
    connect(ui.cmbVEncoder, &QComboBox::activated, this,
            &LMFormatEditingWndCtrl::VideoEncoderChangeAction);
    connect(ui.cmbResolution, &QComboBox::activated, this,
            &LMFormatEditingWndCtrl::VideoResolutionChangeAction);
    connect(ui.cmbFrameRate, &QComboBox::activated, this,
            &LMFormatEditingWndCtrl::VideoFrameRateChangeAction);
    connect(ui.cmbVQuality, &QComboBox::activated, this,
            &LMFormatEditingWndCtrl::VideoQualityChangeAction);
    connect(ui.cmbAEncoder, &QComboBox::activated, this,
            &LMFormatEditingWndCtrl::AudioEncoderChangeAction);
    connect(ui.cmbChannel, &QComboBox::activated, this,
            &LMFormatEditingWndCtrl::AudioChannelChangeAction);
    connect(ui.cmbSampleRate, &QComboBox::activated, this,
            &LMFormatEditingWndCtrl::AudioAampleRateChangeAction);
    connect(ui.cmbAQuality, &QComboBox::activated, this,
            &LMFormatEditingWndCtrl::AudioQualityChangeAction);
    connect(ui.btnDefault, &QPushButton::clicked, this, &LMFormatEditingWndCtrl::ResetAction);
    connect(ui.btnSave, &QPushButton::clicked, this, &LMFormatEditingWndCtrl::SaveAction);
    connect(ui.btnSaveNewPreset, &QPushButton::clicked, this,
            &LMFormatEditingWndCtrl::SaveAsNewPresetAction);
    connect(lizationMgr(), &LMFormatInternationalizationMgr::languageDidChange, this,
            &LMFormatEditingWndCtrl::languageDidChanged);
    languageDidChanged();
    SetupFormatSettings();
}

LMFormatEditingWndCtrl::~LMFormatEditingWndCtrl() = default;

namespace {

QPointer<LMFormatEditingWndCtrl>& SharedInstance() {
    static QPointer<LMFormatEditingWndCtrl> instance;
    return instance;
}

} // namespace

LMFormatEditingWndCtrl* LMFormatEditingWndCtrl::shared() {
    QPointer<LMFormatEditingWndCtrl>& instance = SharedInstance();
    if (!instance) {
        instance = new LMFormatEditingWndCtrl;
        // A widget must go before the application object does; post routines
        // run at the start of the application object's destructor.
        static const bool routineAdded = [] {
            qAddPostRoutine([] { delete SharedInstance().data(); });
            return true;
        }();
        (void)routineAdded;
    }
    return instance;
}

void Lumeran::LMSharedEditingWindow::ResetForTesting() {
    delete SharedInstance().data();
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

// ---- Session ---------------------------------------------------------------------

bool LMFormatEditingWndCtrl::startEditing(std::shared_ptr<ILMFormatPreset> preset,
                                          std::shared_ptr<const ILMFormatNode> node) {
    // One window cannot run two modal loops; the running session keeps going.
    if (d->inSession)
        return false;
    setBtnSaved(false);
    d->originalFormat = std::move(preset);
    d->editingFormat = d->originalFormat ? d->originalFormat->Clone() : nullptr;
    d->fmtNode = std::move(node);
    setWindowTitle(getWindowTitle());
    SetupFormatSettings();
    placeOnScreen();
    d->inSession = true;
    exec();
    // hide() ends the loop without done(); the session must still end properly.
    endSession();
    return d->btnSaved;
}

bool LMFormatEditingWndCtrl::btnSaved() const {
    return d->btnSaved;
}

void LMFormatEditingWndCtrl::setBtnSaved(bool saved) {
    if (d->btnSaved == saved)
        return;
    d->btnSaved = saved;
    Q_EMIT btnSavedChanged(saved);
}

void LMFormatEditingWndCtrl::placeOnScreen() {
    // Centred on the screen the user works on: the host's active window's, else
    // the one under the pointer, else the primary one.
    QScreen* screen = nullptr;
    if (const QWidget* host = QApplication::activeWindow(); host && host != this)
        screen = host->screen();
    if (!screen)
        screen = QGuiApplication::screenAt(QCursor::pos());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (!screen)
        return;
    // The layout may need more room than the layout file's size in some languages.
    resize(size().expandedTo(minimumSizeHint()));
    // The native window knows the title bar's size, where the platform tells it.
    create();
    QRect frame(QPoint(), frameGeometry().size());
    frame.moveCenter(screen->availableGeometry().center());
    move(frame.topLeft());
}

QString LMFormatEditingWndCtrl::getWindowTitle() const {
    const QString settings = lizationMgr()->stringForKey(QStringLiteral("Settings"));
    if (!d->editingFormat)
        return settings;
    const QString prefix = settings + QStringLiteral(" - ");
    const std::string title = d->editingFormat->Title();
    if (d->fmtNode && title.find(d->fmtNode->Title()) == std::string::npos)
        return prefix + QString::fromStdString(d->fmtNode->Title()) + QLatin1Char(' ') +
               QString::fromStdString(title);
    return prefix + QString::fromStdString(title);
}

void LMFormatEditingWndCtrl::languageDidChanged() {
    const Ui::LMFormatEditingWndCtrl& ui = d->ui;
    const auto text = [this](const QString& key) { return lizationMgr()->stringForKey(key); };
    ui.grpVideo->setTitle(text(QStringLiteral("Video")));
    ui.grpAudio->setTitle(text(QStringLiteral("Audio")));
    ui.lblVEncoder->setText(text(QStringLiteral("Encoder")));
    ui.lblAEncoder->setText(text(QStringLiteral("Encoder")));
    ui.lblResolution->setText(text(QStringLiteral("Resolution")));
    ui.lblFrameRate->setText(text(QStringLiteral("FrameRate")));
    ui.lblVQuality->setText(text(QStringLiteral("Quality")));
    ui.lblAQuality->setText(text(QStringLiteral("Quality")));
    ui.lblChannel->setText(text(QStringLiteral("Channel")));
    ui.lblSampleRate->setText(text(QStringLiteral("Sample Rate")));
    ui.btnDefault->setText(text(QStringLiteral("Reset")));
    ui.btnSave->setText(text(QStringLiteral("Save")));
    ui.btnSaveNewPreset->setText(text(QStringLiteral("Save as New Preset")));
    // One label width for both sections, so that their boxes line up.
    const std::array labels{ui.lblVEncoder, ui.lblResolution, ui.lblFrameRate,  ui.lblVQuality,
                            ui.lblAEncoder, ui.lblChannel,    ui.lblSampleRate, ui.lblAQuality};
    int labelWidth = 0;
    for (QLabel* label : labels) {
        label->setMinimumWidth(0);
        labelWidth = std::max(labelWidth, label->sizeHint().width());
    }
    for (QLabel* label : labels)
        label->setMinimumWidth(labelWidth);
    setWindowTitle(getWindowTitle());
    // The option titles are localized too; the editing copy holds every choice
    // made so far, so filling again from it loses nothing.
    if (d->editingFormat)
        SetupFormatSettings();
}

// ---- Filling the boxes -----------------------------------------------------------

void LMFormatEditingWndCtrl::SetupFormatSettings() {
    const bool hasPreset = d->editingFormat != nullptr;
    for (QPushButton* button : d->buttons())
        button->setEnabled(hasPreset);
    if (hasPreset) {
        SetupFormatVideoSettings();
        SetupFormatAudioSettings();
        return;
    }
    for (const bool audio : {false, true}) {
        for (QComboBox* box : d->boxes(audio)) {
            box->setEnabled(false);
            emptyBox(box);
        }
    }
}

void LMFormatEditingWndCtrl::SetupFormatVideoSettings() {
    setupStream(false);
}

void LMFormatEditingWndCtrl::SetupFormatAudioSettings() {
    setupStream(true);
}

void LMFormatEditingWndCtrl::setupStream(bool audio) {
    const StreamBoxes boxes = d->boxes(audio);
    QComboBox* encoder = boxes[0];
    emptyBox(encoder);
    const ILMFormatPreset* preset = d->editingFormat.get();
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

void LMFormatEditingWndCtrl::SetupFormatVCodecSettings(int index) {
    setupCodec(false, index);
}

void LMFormatEditingWndCtrl::SetupFormatACodecSettings(int index) {
    setupCodec(true, index);
}

void LMFormatEditingWndCtrl::setupCodec(bool audio, int index) {
    const StreamBoxes boxes = d->boxes(audio);
    const auto dependents = {boxes[1], boxes[2], boxes[3]};
    for (QComboBox* box : dependents)
        emptyBox(box);
    std::shared_ptr<ILMCodecPreset> codec;
    if (d->editingFormat)
        codec =
            audio ? d->editingFormat->AudioCodecAt(index) : d->editingFormat->VideoCodecAt(index);
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

void LMFormatEditingWndCtrl::SetupFormatResolutions(std::shared_ptr<ILMCodecPreset> codec) {
    fillValueBox(d->ui.cmbResolution, codec.get(), &ILMCodecPreset::ResolutionCount,
                 &ILMCodecPreset::ResolutionAt, &ILMCodecPreset::CurrentResolutionIndex);
}

void LMFormatEditingWndCtrl::SetupFormatFramerates(std::shared_ptr<ILMCodecPreset> codec) {
    fillValueBox(d->ui.cmbFrameRate, codec.get(), &ILMCodecPreset::FramerateCount,
                 &ILMCodecPreset::FramerateAt, &ILMCodecPreset::CurrentFramerateIndex);
}

void LMFormatEditingWndCtrl::SetupFormatSamplerates(std::shared_ptr<ILMCodecPreset> codec) {
    fillValueBox(d->ui.cmbSampleRate, codec.get(), &ILMCodecPreset::SamplerateCount,
                 &ILMCodecPreset::SamplerateAt, &ILMCodecPreset::CurrentSamplerateIndex);
}

void LMFormatEditingWndCtrl::SetupFormatChannel(std::shared_ptr<ILMCodecPreset> codec) {
    fillValueBox(d->ui.cmbChannel, codec.get(), &ILMCodecPreset::ChannelLayoutCount,
                 &ILMCodecPreset::ChannelLayoutAt, &ILMCodecPreset::CurrentChannelLayoutIndex);
}

void LMFormatEditingWndCtrl::SetupFormatQuality(std::shared_ptr<ILMCodecPreset> codec,
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

std::shared_ptr<ILMCodecPreset> LMFormatEditingWndCtrl::currentCodec(bool audio) const {
    if (!d->editingFormat)
        return {};
    return audio ? d->editingFormat->CurrentAudioCodec() : d->editingFormat->CurrentVideoCodec();
}

void LMFormatEditingWndCtrl::changeEncoder(bool audio, int index) {
    if (!d->editingFormat)
        return;
    if (audio)
        d->editingFormat->SetCurrentAudioCodec(index);
    else
        d->editingFormat->SetCurrentVideoCodec(index);
    setupCodec(audio, index);
}

void LMFormatEditingWndCtrl::VideoEncoderChangeAction(int index) {
    changeEncoder(false, index);
}

void LMFormatEditingWndCtrl::AudioEncoderChangeAction(int index) {
    changeEncoder(true, index);
}

void LMFormatEditingWndCtrl::VideoResolutionChangeAction(int index) {
    if (auto codec = currentCodec(false))
        codec->SetCurrentResolution(index);
}

void LMFormatEditingWndCtrl::VideoFrameRateChangeAction(int index) {
    if (auto codec = currentCodec(false))
        codec->SetCurrentFramerate(index);
}

void LMFormatEditingWndCtrl::VideoQualityChangeAction(int index) {
    if (auto codec = currentCodec(false))
        codec->SetCurrentQuality(index);
}

void LMFormatEditingWndCtrl::AudioChannelChangeAction(int index) {
    if (auto codec = currentCodec(true))
        codec->SetCurrentChannelLayout(index);
}

void LMFormatEditingWndCtrl::AudioAampleRateChangeAction(int index) {
    if (auto codec = currentCodec(true))
        codec->SetCurrentSamplerate(index);
}

void LMFormatEditingWndCtrl::AudioQualityChangeAction(int index) {
    if (auto codec = currentCodec(true))
        codec->SetCurrentQuality(index);
}

void LMFormatEditingWndCtrl::ResetAction() {
    d->editingFormat = d->originalFormat ? d->originalFormat->Clone() : nullptr;
    SetupFormatSettings();
}

void LMFormatEditingWndCtrl::CancelAction() {
    setBtnSaved(false);
    QDialog::reject();
}

void LMFormatEditingWndCtrl::SaveAction() {
    if (!d->editingFormat || !d->originalFormat)
        return;
    auto source = ILMFmtPresetDataSource::Shared();
    source->PushRecentItem(d->editingFormat, d->fmtNode);
    source->SaveRecentList();
    d->originalFormat->CopyFrom(d->editingFormat);
    setBtnSaved(true);
    accept();
}

void LMFormatEditingWndCtrl::SaveAsNewPresetAction() {
    // One question at a time: the prompt blocks the editor until it is answered.
    if (!d->editingFormat || (d->prompt && d->prompt->isVisible()))
        return;
    getNewPresetName(getAppName(), lizationMgr()->stringForKey(QStringLiteral("customSave")),
                     GetDefaultCustomFormatName(), this, [this](const QString& name) {
                         if (name.isEmpty() || !d->editingFormat)
                             return;
                         auto copy = d->editingFormat->Clone();
                         copy->SetTitle(name.toStdString());
                         auto source = ILMFmtPresetDataSource::Shared();
                         source->AddCustomPreset(copy, d->fmtNode);
                         source->SaveCustomList();
                         if (d->delegate)
                             d->delegate->formatEditingWndCtrlDidCreateFormatPreset(this);
                     });
}

// ---- Naming a new preset ---------------------------------------------------------

QString LMFormatEditingWndCtrl::GetDefaultCustomFormatName() const {
    const std::string nodeTitle = d->fmtNode ? d->fmtNode->Title() : std::string();
    const std::string presetTitle = d->editingFormat ? d->editingFormat->Title() : std::string();
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

bool LMFormatEditingWndCtrl::HasDefind(const std::string& name) const {
    const auto root = ILMFmtPresetDataSource::Shared()->GetCustomList();
    for (int i = 0; root && i < root->ChildCount(); ++i) {
        const auto child = root->ChildAt(i);
        if (child && child->FindFormatPreset(name))
            return true;
    }
    return false;
}

void LMFormatEditingWndCtrl::getNewPresetName(const QString& message, const QString& label,
                                              const QString& value, QWidget* window,
                                              std::function<void(const QString&)> completeHandler) {
    auto* prompt = new LMNewPresetPrompt(window);
    prompt->setMessageText(message);
    prompt->setInformativeText(label);
    LMNewPresetView* view = LMNewPresetView::creatNewPresetView();
    view->setStrValue(value);
    prompt->setAccessoryView(view);
    d->prompt = prompt;
    prompt->beginSheetModalForWindow(window, [view = QPointer<LMNewPresetView>(view),
                                              handler = std::move(completeHandler)](int response) {
        if (!handler)
            return;
        const QString name = view ? view->strValue() : QString();
        const bool named = response == LMNewPresetPrompt::FirstButtonReturn && !name.isEmpty();
        handler(named ? name : QString());
    });
}

QString LMFormatEditingWndCtrl::getAppName() {
    const QString displayName = QGuiApplication::applicationDisplayName();
    return displayName.isEmpty() ? QCoreApplication::applicationName() : displayName;
}

// ---- Closing ---------------------------------------------------------------------

void LMFormatEditingWndCtrl::reject() {
    CancelAction();
}

void LMFormatEditingWndCtrl::done(int result) {
    Q_UNUSED(result);
    endSession();
    // The session's outcome is what Save decided, whichever way the window closes.
    QDialog::done(d->btnSaved ? QDialog::Accepted : QDialog::Rejected);
}

void LMFormatEditingWndCtrl::endSession() {
    if (!d->inSession)
        return;
    d->inSession = false;
    windowWillClose();
}

void LMFormatEditingWndCtrl::windowWillClose() {
    // A question left open would outlive its editor; it answers "Cancel".
    if (d->prompt)
        d->prompt->reject();
}
