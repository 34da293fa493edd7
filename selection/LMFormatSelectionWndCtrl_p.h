// SPDX-License-Identifier: MIT
#pragma once

// Not part of the framework's interface: the popup window's insides, for the
// window itself and for tests and tools that look into it.

#include "LMFormatDataDelegate.h"
#include "LMFormatEditingWndCtrlDelegate.h"
#include "LMFormatSelectionWndCtrl.h"
#include "LMTabHeaderViewDelegate.h"

#include <QList>
#include <QRect>

#include <memory>
#include <string>

class LMClickSequenceGuard;
class LMFmtNodeViewCtrl;
class LMFormatCollectionView;
class LMFmtRecentViewCtrl;
class LMProgressIndicator;
class LMTabHeaderView;
class QKeyEvent;
class QLineEdit;
namespace Ui {
class LMFormatSelectionWndCtrl;
}

// The popup's state and the work behind its public calls. It is the delegate of
// the tab strip, of every list and of the editor, so that those messages stay
// out of the window's interface.
class LMFormatSelectionWndCtrlPrivate final : public LMTabHeaderViewDelegate,
                                              public LMFormatDataDelegate,
                                              public LMFormatEditingWndCtrlDelegate {
public:
    explicit LMFormatSelectionWndCtrlPrivate(LMFormatSelectionWndCtrl* owner);
    ~LMFormatSelectionWndCtrlPrivate() override;

    static LMFormatSelectionWndCtrlPrivate* get(LMFormatSelectionWndCtrl* ctrl);
    // Makes the window of LMFormatSelectionWndCtrl::shared().
    static std::shared_ptr<LMFormatSelectionWndCtrl> make();

    // LMFormatSelectionWndCtrl::frameFromRect() within visibleFrame.
    static QRect frameFromRect(const QRectF& rect, const QRect& visibleFrame);

    // Tab index: 0 is "Recent", 1 to n the categories, n + 1 "Custom".
    void setCurrentFormatNode(qsizetype index);
    QWidget* currentFormatNodeView() const;
    QRect frameOfFormatNodeView() const;
    void setupDefaultFormats();
    void cleanDefFormats();
    // Records a choice in the recent list and tells the showing's handler.
    void completeSelection(std::shared_ptr<const Lumeran::ILMFormatPreset> preset,
                           std::shared_ptr<const Lumeran::ILMFormatNode> node);
    // A showing still open when the next one starts reports a dismissal.
    void completePendingShowing();

    void tabHeaderViewSelectionDidChanged(LMTabHeaderView* header) override;
    void viewControllerSelectFormat(QObject* ctrl,
                                    std::shared_ptr<const Lumeran::ILMFormatPreset> preset,
                                    std::shared_ptr<const Lumeran::ILMFormatNode> node) override;
    // An edit request: the popup steps aside for the modal editor; a saved edit
    // completes the showing with the edited preset, anything else brings the
    // popup back as it was.
    void viewControllerEditingFormat(QObject* ctrl,
                                     std::shared_ptr<Lumeran::ILMFormatPreset> preset,
                                     std::shared_ptr<Lumeran::ILMFormatNode> node) override;
    void formatEditingWndCtrlDidCreateFormatPreset(LMFormatEditingWndCtrl* ctrl) override;

    LMTabHeaderView* tabHeaderView() const;
    // The lists, made on first use.
    LMFmtNodeViewCtrl* customFmtViewCtrl();
    LMFmtRecentViewCtrl* recentFmtViewCtrl();
    const QList<LMFmtNodeViewCtrl*>& defFmtViewCtrls() const;
    // The spinner shown until the data arrives; null afterwards.
    LMProgressIndicator* loadPrgInd() const;
    QLineEdit* searchField() const;
    QWidget* contentView() const;
    // The list whose rows Enter chooses in the selected tab: the recent list,
    // or the presets of a category or of "Custom"; null before the tabs exist.
    LMFormatCollectionView* currentChoiceList() const;

private:
    friend class LMFormatSelectionWndCtrl;

    void windowDidLoad();
    // Shows the window where it is and takes the focus.
    void popupAgain();
    void reloadCustomIfReplaced();
    // Loads the custom tree into its tab and notes what it held then.
    void showCustomList(std::shared_ptr<const Lumeran::ILMFormatNode> custom);
    void takeTypedText(const QString& text);
    // The keyboard focus goes to the search field, or to the window itself
    // while the field is disabled (Escape must still reach the window).
    void focusSearchField();
    // The window's keys, wherever the focus is; each says whether it handled
    // the event.
    bool switchTabByKey(const QKeyEvent* event);
    bool enterListByKey(const QKeyEvent* event);
    bool typeAnywhereByKey(const QKeyEvent* event);
    // Enter in the search field: the first row of the selected tab's list.
    void chooseFirstMatch();
    void retranslate();
    void listenTo(LMFmtNodeViewCtrl* ctrl);
    void layOutContent();

    LMFormatSelectionWndCtrl* const q;
    std::unique_ptr<Ui::LMFormatSelectionWndCtrl> ui;
    LMFormatSelectionWndCtrl::CompleteHandler completeHandler;
    // Owned by the window; keeps the end of a click off the host once the
    // popup has gone from under the pointer.
    LMClickSequenceGuard* const clickGuard;
    LMFmtNodeViewCtrl* m_customFmtViewCtrl = nullptr;
    // The JSON text of the custom tree when its tab was loaded: the tree changes
    // in place too (the preset manager renames, copies, orders and imports).
    std::string m_customShownText;
    LMFmtRecentViewCtrl* m_recentFmtViewCtrl = nullptr;
    QList<LMFmtNodeViewCtrl*> m_defFmtViewCtrls;
    bool finishedSelecting = false;
    bool enableSearch = false;
    QString searchText;
};
