// SPDX-License-Identifier: MIT
#pragma once

#include "LMMediaFormatPopupExport.h"

#include <QDialog>
#include <QString>

#include <memory>

class LMFormatEditingWndCtrlDelegate;
class LMFormatEditingWndCtrlPrivate;
class LMFormatInternationalizationMgr;

namespace Lumeran {
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

    // The editor of the process, made on first use; it lasts as long as the
    // process.
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

    // Cancels the session, as the Escape key does.
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
    friend class LMFormatEditingWndCtrlPrivate;
    std::unique_ptr<LMFormatEditingWndCtrlPrivate> d;
};
