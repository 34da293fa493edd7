// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"
#include "LMFormatCollectionViewDataSource.h"
#include "LMFormatCollectionViewDelegate.h"
#include "LMFormatDataViewItemDelegate.h"

#include <QString>
#include <QWidget>

#include <memory>

class LMFormatCollectionView;
class LMFormatDataDelegate;
class LMFormatInternationalizationMgr;

// One tab of the popup filled from a format tree (a category, or the custom
// presets): the tree's nodes in a list on the left, the presets of the selected
// node beside them. Clicking a node shows its presets; clicking a preset reports
// the choice to the delegate. In a removable tab (the custom presets) preset
// cells offer a remove button, and removal goes straight to the shared data
// source; otherwise they offer an edit button, which asks the delegate to edit.
// A search text narrows the tree to what matches.
class LMFmtNodeViewCtrl : public QWidget,
                          public LMFormatDataViewItemDelegate,
                          public LMFormatCollectionViewDataSource,
                          public LMFormatCollectionViewDelegate {
    Q_OBJECT

public:
    explicit LMFmtNodeViewCtrl(QWidget* parent = nullptr);
    ~LMFmtNodeViewCtrl() override;

    // A new controller with its layout loaded; parent owns it when given.
    static LMFmtNodeViewCtrl* fmtNodeViewCtrl(QWidget* parent = nullptr);
    QWidget* view();

    // Set before the tab is used: preset cells then remove instead of edit.
    bool removable() const;
    void setRemovable(bool removable);
    // Not owned; nullptr drops choices and edit requests.
    LMFormatDataDelegate* delegate() const;
    void setDelegate(LMFormatDataDelegate* delegate);

    // Shows a tree (ending any search), its first node selected.
    void loadFormatNode(std::shared_ptr<const Lumeran::ILMFormatNode> node);
    // The tree last loaded.
    std::shared_ptr<const Lumeran::ILMFormatNode> formatNode() const;
    // Narrows the tree to what matches text; an empty text ends the search.
    void searchFormatNode(const QString& text);
    void resetSearchResult();

    void setSelectedNode(std::shared_ptr<const Lumeran::ILMFormatNode> node);
    void setSelectedFormat(std::shared_ptr<const Lumeran::ILMFormatPreset> format);
    void loadSelectedNodeFormat();
    void loadChildrenNode();
    void updateNodeListViewSelectedItem();
    void updateFmtListViewSelectedItem();

    LMFormatCollectionView* nodeListView() const;
    LMFormatCollectionView* fmtListView() const;
    LMFormatInternationalizationMgr* lizationMgr() const;

    int collectionViewNumberOfItemsInSection(LMFormatCollectionView* view, int section) override;
    LMFormatEntry collectionViewRepresentedObjectAtIndexPath(LMFormatCollectionView* view,
                                                             int index) override;
    LMFormatDataViewItem*
    collectionViewItemForRepresentedObjectAtIndexPath(LMFormatCollectionView* view,
                                                      int index) override;
    void collectionViewDidSelectItemsAtIndexPaths(LMFormatCollectionView* view,
                                                  const QList<int>& indexPaths) override;
    void formatDataViewItemRequireEditing(LMFormatDataViewItem* item) override;
    void formatDataViewItemRequireRemove(LMFormatDataViewItem* item) override;

Q_SIGNALS:
    // Printable text typed while one of the lists has the focus, for the
    // window's search field.
    void textTyped(const QString& text);

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void viewDidLoad();
    void refresh();
    std::shared_ptr<const Lumeran::ILMFormatNode> currentListRoot() const;
    void scrollViewPortDidChanged(QObject* scroller);
    void resetCollectionViewMouseState(LMFormatCollectionView* view);
    void updateListTexts();

    struct Private;
    std::unique_ptr<Private> d;
};
