#pragma once

#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"
#include "LMFormatDataDelegate.h"
#include "LMFormatEditingWndCtrlDelegate.h"
#include "LMMediaFormatPopupExport.h"
#include "LMTabHeaderViewDelegate.h"

#include <QList>
#include <QRectF>
#include <QWidget>

#include <functional>
#include <memory>

class LMFmtNodeViewCtrl;
class LMFmtRecentViewCtrl;
class LMFormatInternationalizationMgr;
class LMProgressIndicator;
class LMTabHeaderView;
class QLineEdit;
namespace Ui {
class LMFormatSelectionWndCtrl;
}

// The format selection popup: a frameless, always-on-top window of 800 x 450
// with the tab strip ("Recent", one tab per category, "Custom"), the search field
// and the list of the selected tab. It is shown under a rectangle of the host,
// reports a choice (or a dismissal) through the handler of that showing, and
// records every choice in the recent list.
//
// One instance per process, made on first use; everything runs on the GUI thread.
class LMMEDIAFORMATPOPUP_EXPORT LMFormatSelectionWndCtrl : public QWidget,
                                                           public LMTabHeaderViewDelegate,
                                                           public LMFormatDataDelegate,
                                                           public LMFormatEditingWndCtrlDelegate {
    Q_OBJECT
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(bool enableSearch READ enableSearch WRITE setEnableSearch NOTIFY enableSearchChanged)
    Q_PROPERTY(bool finishedSelecting READ finishedSelecting)

public:
    using CompleteHandler = std::function<void(std::shared_ptr<const Lumeran::ILMFormatPreset>,
                                               std::shared_ptr<const Lumeran::ILMFormatNode>)>;

    static constexpr double defWidth = 800.0;
    static constexpr double defHeight = 450.0;

    static LMFormatSelectionWndCtrl* shared();
    ~LMFormatSelectionWndCtrl() override;

    // Shows the popup beside rect (screen coordinates of the host) and keeps
    // handler for this showing. Neither reloads nor changes the selected tab.
    void popupSelection(const QRectF& rect, CompleteHandler handler);
    // Rebuilds every tab from the data source once its external data is loaded.
    void loadExternalDataInMainThread();

    // Where the popup goes for the host rectangle rect: centred under it, above
    // it when there is no room below, on the visible bottom when there is room
    // neither way, and kept inside the visible frame horizontally.
    QRect frameFromRect(const QRectF& rect) const;
    static QRect frameFromRect(const QRectF& rect, const QRect& visibleFrame);

    void setCurrentFormatNode(qsizetype index);
    QWidget* currentFormatNodeView() const;
    QRect frameOfFormatNodeView() const;

    // The popup lost focus: it hides, and a showing that ended without a choice
    // reports a dismissal (two empty handles).
    void windowDidResignKey();
    // The search field's action: filters the list of the selected tab.
    void onSearchAction();

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
    LMFmtNodeViewCtrl* customFmtViewCtrl();
    LMFmtRecentViewCtrl* recentFmtViewCtrl();
    const QList<LMFmtNodeViewCtrl*>& defFmtViewCtrls() const;
    LMProgressIndicator* loadPrgInd() const;
    QLineEdit* searchField() const;
    QWidget* contentView() const;
    bool finishedSelecting() const;
    QString searchText() const;
    void setSearchText(const QString& text);
    bool enableSearch() const;
    void setEnableSearch(bool enable);
    LMFormatInternationalizationMgr* lizationMgr() const;

Q_SIGNALS:
    void searchTextChanged(const QString& text);
    void enableSearchChanged(bool enable);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    LMFormatSelectionWndCtrl();
    void windowDidLoad();
    // Shows the window where it is and takes the focus.
    void popupAgain();
    void reloadCustomIfReplaced();
    void setupDefaultFormats();
    void cleanDefFormats();
    void completeSelection(std::shared_ptr<const Lumeran::ILMFormatPreset> preset,
                           std::shared_ptr<const Lumeran::ILMFormatNode> node);
    void takeTypedText(const QString& text);
    void retranslate();

    std::unique_ptr<Ui::LMFormatSelectionWndCtrl> m_ui;
    CompleteHandler m_completeHandler;
    LMFmtNodeViewCtrl* m_customFmtViewCtrl = nullptr;
    LMFmtRecentViewCtrl* m_recentFmtViewCtrl = nullptr;
    QList<LMFmtNodeViewCtrl*> m_defFmtViewCtrls;
    bool m_finishedSelecting = false;
    bool m_enableSearch = false;
    QString m_searchText;
};
