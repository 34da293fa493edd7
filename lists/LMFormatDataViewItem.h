// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFmtPresetRecentItem.h"
#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"
#include "LMFormatDataViewDelegate.h"
#include "LMFormatEntry.h"

#include <QIcon>
#include <QObject>
#include <QString>

#include <memory>

class LMFormatDataView;
class LMFormatDataViewItemDelegate;
class LMFormatInternationalizationMgr;

// One cell of a list: a recent entry, a format node or a format preset, and what
// the cell shows of it. The item holds exactly one source; setting one empties
// the other two and bumps sourceDidChanged, which tells everything bound to the
// derived properties (image, title, description, description visibility) to read
// them again. It also decides when the edit and remove buttons show (only while
// the pointer is over the cell, and only if the list allows the action) and
// passes their clicks to its delegate.
//
// Items are made and reused by LMFormatCollectionView for the rows in view only;
// each owns its LMFormatDataView, the row's hover and button state. The list's
// delegate paints the row; nothing here is a widget.
class LMFormatDataViewItem : public QObject, public LMFormatDataViewDelegate {
    Q_OBJECT
    Q_PROPERTY(QIcon fmtImage READ fmtImage NOTIFY fmtImageChanged)
    Q_PROPERTY(QString fmtTitle READ fmtTitle NOTIFY fmtTitleChanged)
    Q_PROPERTY(QString fmtDescription READ fmtDescription NOTIFY fmtDescriptionChanged)
    Q_PROPERTY(bool visibleDescription READ visibleDescription NOTIFY visibleDescriptionChanged)
    Q_PROPERTY(bool showEditing READ showEditing NOTIFY showEditingChanged)
    Q_PROPERTY(bool showRemoving READ showRemoving NOTIFY showRemovingChanged)
    Q_PROPERTY(bool removable READ removable WRITE setRemovable NOTIFY removableChanged)
    Q_PROPERTY(bool editable READ editable WRITE setEditable NOTIFY editableChanged)
    Q_PROPERTY(bool showActionButton READ showActionButton WRITE setShowActionButton NOTIFY
                   showActionButtonChanged)
    Q_PROPERTY(qint64 sourceDidChanged READ sourceDidChanged WRITE setSourceDidChanged NOTIFY
                   sourceDidChangedChanged)
    Q_PROPERTY(bool selected READ isSelected WRITE setSelected NOTIFY selectedChanged)

public:
    explicit LMFormatDataViewItem(QObject* parent = nullptr);
    ~LMFormatDataViewItem() override;

    std::shared_ptr<const Lumeran::ILMFmtPresetRecentItem> recentItem() const;
    std::shared_ptr<const Lumeran::ILMFormatNode> fmtNode() const;
    std::shared_ptr<const Lumeran::ILMFormatPreset> fmtPreset() const;
    void setRecentItem(std::shared_ptr<const Lumeran::ILMFmtPresetRecentItem> recentItem);
    void setFmtNode(std::shared_ptr<const Lumeran::ILMFormatNode> node);
    void setFmtPreset(std::shared_ptr<const Lumeran::ILMFormatPreset> preset);
    // The source as one value; setting it goes through the setter of its kind.
    const LMFormatEntry& entry() const;
    void setEntry(const LMFormatEntry& entry);

    bool removable() const;
    void setRemovable(bool removable);
    bool editable() const;
    void setEditable(bool editable);
    bool showActionButton() const;
    void setShowActionButton(bool show);
    qint64 sourceDidChanged() const;
    void setSourceDidChanged(qint64 value);

    // Not owned; nullptr drops edit and remove requests.
    LMFormatDataViewItemDelegate* delegate() const;
    void setDelegate(LMFormatDataViewItemDelegate* delegate);

    QIcon fmtImage() const;
    QString fmtTitle() const;
    QString fmtDescription() const;
    bool visibleDescription() const;
    bool showEditing() const;
    bool showRemoving() const;

    bool isSelected() const;
    // Repaints the cell, whose background follows the selection.
    void setSelected(bool selected);

    LMFormatDataView* dataView() const;
    LMFormatInternationalizationMgr* lizationMgr() const;

    // Actions of the edit and remove buttons.
    void settingClicked();
    void removeClicked();
    // Hover is asked of the pointer's position rather than learned from entry
    // and exit, for when the list moved under a still pointer.
    void resetMouseState();

    void formatDataViewMouseEnter(LMFormatDataView* view) override;
    void formatDataViewMouseExited(LMFormatDataView* view) override;
    bool formatDataViewSelected(LMFormatDataView* view) override;

Q_SIGNALS:
    void fmtImageChanged();
    void fmtTitleChanged();
    void fmtDescriptionChanged();
    void visibleDescriptionChanged();
    void showEditingChanged();
    void showRemovingChanged();
    void removableChanged();
    void editableChanged();
    void showActionButtonChanged();
    void sourceDidChangedChanged();
    void selectedChanged();

private:
    void viewDidLoad();
    void bindDataView();
    void emitTextsChanged();

    LMFormatEntry m_entry;
    bool m_removable = false;
    bool m_editable = false;
    bool m_showActionButton = false;
    bool m_selected = false;
    qint64 m_sourceDidChanged = 0;
    LMFormatDataViewItemDelegate* m_delegate = nullptr;
    std::unique_ptr<LMFormatDataView> m_view;
};
