// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"
#include "LMMediaFormatPopupExport.h"

#include <QRect>
#include <QRectF>
#include <QString>
#include <QWidget>

#include <functional>
#include <memory>

class LMFormatInternationalizationMgr;
class LMFormatSelectionWndCtrlPrivate;

// The format selection popup: a frameless, always-on-top window of 800 x 450
// with the tab strip ("Recent", one tab per category, "Custom"), the search field
// and the list of the selected tab. It is shown under a rectangle of the host,
// reports a choice (or a dismissal) through the handler of that showing, and
// records every choice in the recent list.
//
// One instance per process, made on first use; everything runs on the GUI thread.
class LMMEDIAFORMATPOPUP_EXPORT LMFormatSelectionWndCtrl : public QWidget {
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

    // Where the popup goes for the host rectangle rect on the screen under it:
    // centred under it, above it when there is no room below, on the visible
    // bottom when there is room neither way, and kept inside the visible frame
    // horizontally.
    QRect frameFromRect(const QRectF& rect) const;

    // The popup lost focus: it hides, and a showing that ended without a choice
    // reports a dismissal (two empty handles).
    void windowDidResignKey();
    // The search field's action: filters the list of the selected tab.
    void onSearchAction();

    // Whether the current showing ended with a choice or an accepted edit.
    bool finishedSelecting() const;
    // The search field's text.
    QString searchText() const;
    void setSearchText(const QString& text);
    // Whether the search field takes input; it does once the tabs are built.
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

    friend class LMFormatSelectionWndCtrlPrivate;
    std::unique_ptr<LMFormatSelectionWndCtrlPrivate> d;
};
