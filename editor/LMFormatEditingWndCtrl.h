#pragma once

#include "LMMediaFormatPopupExport.h"

#include <QDialog>
#include <QString>

#include <functional>
#include <memory>
#include <string>

class LMFormatEditingWndCtrlDelegate;
class LMFormatInternationalizationMgr;
class QComboBox;

namespace Lumeran {
class ILMCodecPreset;
class ILMFormatNode;
class ILMFormatPreset;
} // namespace Lumeran

// The modal editor of one format preset's video settings (encoder, resolution,
// frame rate, quality) and audio settings (encoder, channel layout, sample rate,
// quality).
//
// Every control acts on a private copy of the caller's preset. "Save" records
// the copy in the recent list and copies it back into the caller's preset;
// "Save as New Preset" files a renamed copy under "Custom" and keeps the editor
// open; "Reset" starts again from the caller's preset; any other way out
// (Escape, the window's close control, reject()) leaves the caller's preset as
// it was.
//
// Each box lists the values of the preset's current codec, titled with the
// localized text of the format library's names. A box is disabled when its
// stream is missing, when the codec is the automatic one (the muxer decides) or
// when the codec has no current value for it. The quality box never offers a
// codec's last level, its archival "Best" setting.
class LMMEDIAFORMATPOPUP_EXPORT LMFormatEditingWndCtrl : public QDialog {
    Q_OBJECT
    Q_PROPERTY(bool btnSaved READ btnSaved NOTIFY btnSavedChanged)

public:
    explicit LMFormatEditingWndCtrl(QWidget* parent = nullptr);
    ~LMFormatEditingWndCtrl() override;

    // The editor of the process, made on first use and deleted with the
    // application object.
    static LMFormatEditingWndCtrl* shared();

    LMFormatInternationalizationMgr* lizationMgr() const;

    // Told when a new custom preset has been stored. Not owned.
    LMFormatEditingWndCtrlDelegate* delegate() const;
    void setDelegate(LMFormatEditingWndCtrlDelegate* delegate);

    // Runs one modal editing session on a copy of preset, which belongs to node
    // (may be empty), and returns btnSaved() once the editor has closed. The
    // editor opens centred on the screen of the host's active window. Called
    // while a session is already running, it returns false at once.
    bool startEditing(std::shared_ptr<Lumeran::ILMFormatPreset> preset,
                      std::shared_ptr<const Lumeran::ILMFormatNode> node);
    // Whether the last session ended with Save.
    bool btnSaved() const;

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

    void reject() override;
    void done(int result) override;

Q_SIGNALS:
    void btnSavedChanged(bool btnSaved);

protected:
    // Every way out of a session (Save, Cancel, Escape, the window's close
    // control, reject()) passes through here exactly once, just before the
    // editor hides and startEditing() returns. An open name prompt is cancelled.
    virtual void windowWillClose();

private:
    void languageDidChanged();
    void setBtnSaved(bool saved);
    void placeOnScreen();
    void endSession();
    // The video and audio halves of the fill operations and actions, which
    // differ only in their boxes and in the codec list they read.
    void setupStream(bool audio);
    void setupCodec(bool audio, int index);
    void changeEncoder(bool audio, int index);
    std::shared_ptr<Lumeran::ILMCodecPreset> currentCodec(bool audio) const;

    struct Private;
    std::unique_ptr<Private> d;
};
