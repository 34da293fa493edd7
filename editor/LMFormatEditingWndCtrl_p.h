// SPDX-License-Identifier: MIT
#pragma once

// Not part of the framework's interface: the editor's insides, for the editor
// itself and for tests that look into it.

#include "LMFormatEditingWndCtrl.h"

#include <QPointer>
#include <QString>

#include <array>
#include <functional>
#include <memory>
#include <string>

class LMNewPresetPrompt;
class QComboBox;
class QPushButton;
class QWidget;
namespace Lumeran {
class ILMCodecPreset;
}
namespace Ui {
class LMFormatEditingWndCtrl;
}

// The editor's state and the operations behind its controls: filling the boxes
// from the editing copy, the boxes' and buttons' actions, and naming a new
// preset.
class LMFormatEditingWndCtrlPrivate {
public:
    explicit LMFormatEditingWndCtrlPrivate(LMFormatEditingWndCtrl* owner);
    ~LMFormatEditingWndCtrlPrivate();

    static LMFormatEditingWndCtrlPrivate* get(LMFormatEditingWndCtrl* editor);
    // Makes the editor of LMFormatEditingWndCtrl::shared().
    static std::shared_ptr<LMFormatEditingWndCtrl> make();

    // The copy the controls act on, as the boxes show it; empty without a preset.
    std::shared_ptr<const Lumeran::ILMFormatPreset> editingPreset() const { return editingFormat; }

    // "Settings - <node> <preset>", without the node title when the preset
    // title already holds it, and "Settings" alone without a preset.
    QString getWindowTitle() const;

    // Fill every box from the editing copy; without one, empty and disable all.
    void SetupFormatSettings();
    void SetupFormatVideoSettings();
    void SetupFormatAudioSettings();
    // Rebuild the three boxes that depend on the codec at index.
    void SetupFormatVCodecSettings(int index);
    void SetupFormatACodecSettings(int index);
    void SetupFormatResolutions(std::shared_ptr<Lumeran::ILMCodecPreset> codec);
    void SetupFormatFramerates(std::shared_ptr<Lumeran::ILMCodecPreset> codec);
    void SetupFormatSamplerates(std::shared_ptr<Lumeran::ILMCodecPreset> codec);
    void SetupFormatChannel(std::shared_ptr<Lumeran::ILMCodecPreset> codec);
    void SetupFormatQuality(std::shared_ptr<Lumeran::ILMCodecPreset> codec, QComboBox* box);

    // What the boxes do when the user picks the item at index.
    void VideoEncoderChangeAction(int index);
    void AudioEncoderChangeAction(int index);
    void VideoResolutionChangeAction(int index);
    void VideoFrameRateChangeAction(int index);
    void VideoQualityChangeAction(int index);
    void AudioChannelChangeAction(int index);
    void AudioAampleRateChangeAction(int index);
    void AudioQualityChangeAction(int index);

    // The buttons, and Escape for CancelAction().
    void ResetAction();
    void CancelAction();
    void SaveAction();
    void SaveAsNewPresetAction();

    // The node title plus "-custom<n>" (the preset title instead when it holds
    // the node title) with the first n from 0 that no custom preset uses yet.
    QString GetDefaultCustomFormatName() const;
    // Whether a group of the custom list holds a preset of exactly this title.
    bool HasDefind(const std::string& name) const;
    // Asks for a name over window: message, informative label and an initial
    // value. completeHandler receives the name, or a null string when the user
    // cancelled or left the field empty. Returns at once.
    void getNewPresetName(const QString& message, const QString& label, const QString& value,
                          QWidget* window, std::function<void(const QString&)> completeHandler);
    // The host application's display name (its plain name when it has none).
    static QString getAppName();

private:
    friend class LMFormatEditingWndCtrl;

    // One stream's boxes: the encoder, the two value boxes and the quality box.
    using StreamBoxes = std::array<QComboBox*, 4>;

    void connectControls();
    void languageDidChanged();
    void setBtnSaved(bool saved);
    void placeOnScreen();
    void endSession();
    // The video and audio halves of the fill operations and actions, which
    // differ only in their boxes and in the codec list they read.
    void setupStream(bool audio);
    void setupCodec(bool audio, int index);
    void changeEncoder(bool audio, int index);
    void describeChangedSettings(Lumeran::ILMFormatPreset& preset) const;
    // The line under the settings: how big ten minutes of output get with the
    // editing copy's settings, as they are now.
    void updateSizeEstimate();
    std::shared_ptr<Lumeran::ILMCodecPreset> currentCodec(bool audio) const;
    StreamBoxes boxes(bool audio) const;
    std::array<QPushButton*, 3> buttons() const;

    LMFormatEditingWndCtrl* const q;
    std::unique_ptr<Ui::LMFormatEditingWndCtrl> ui;
    // The caller's preset, changed by Save only, and the copy every control acts on.
    std::shared_ptr<Lumeran::ILMFormatPreset> originalFormat;
    std::shared_ptr<Lumeran::ILMFormatPreset> editingFormat;
    std::shared_ptr<const Lumeran::ILMFormatNode> fmtNode;
    LMFormatEditingWndCtrlDelegate* delegate = nullptr;
    QPointer<LMNewPresetPrompt> prompt;
    bool btnSaved = false;
    bool inSession = false;
};
