// SPDX-License-Identifier: MIT
#include "LMFormatDataViewItem.h"

#include "LMFormatDataView.h"
#include "LMFormatDataViewItemDelegate.h"
#include "LMFormatInternationalizationMgr.h"

LMFormatDataViewItem::LMFormatDataViewItem(QObject* parent)
    : QObject(parent), m_view(new LMFormatDataView) {
    viewDidLoad();
    // Titles and descriptions are localized texts, so a new language changes them.
    connect(lizationMgr(), &LMFormatInternationalizationMgr::languageDidChange, this,
            &LMFormatDataViewItem::emitTextsChanged);
}

LMFormatDataViewItem::~LMFormatDataViewItem() = default;

void LMFormatDataViewItem::viewDidLoad() {
    setShowActionButton(false);
    m_view->setDelegate(this);
    bindDataView();
}

// The row's buttons follow the derived properties, as bindings would; the
// texts and image are read by the list's delegate when it paints.
void LMFormatDataViewItem::bindDataView() {
    LMFormatDataView* view = m_view.get();
    connect(this, &LMFormatDataViewItem::showEditingChanged, this,
            [this, view] { view->setEditVisible(showEditing()); });
    connect(this, &LMFormatDataViewItem::showRemovingChanged, this,
            [this, view] { view->setRemoveVisible(showRemoving()); });
    view->setEditVisible(showEditing());
    view->setRemoveVisible(showRemoving());
}

void LMFormatDataViewItem::emitTextsChanged() {
    Q_EMIT fmtTitleChanged();
    Q_EMIT fmtDescriptionChanged();
}

std::shared_ptr<const Lumeran::ILMFmtPresetRecentItem> LMFormatDataViewItem::recentItem() const {
    return m_entry.recentItem();
}

std::shared_ptr<const Lumeran::ILMFormatNode> LMFormatDataViewItem::fmtNode() const {
    return m_entry.node();
}

std::shared_ptr<const Lumeran::ILMFormatPreset> LMFormatDataViewItem::fmtPreset() const {
    return m_entry.preset();
}

void LMFormatDataViewItem::setRecentItem(
    std::shared_ptr<const Lumeran::ILMFmtPresetRecentItem> recentItem) {
    m_entry = LMFormatEntry::fromRecentItem(std::move(recentItem));
    setSourceDidChanged(sourceDidChanged() + 1);
}

void LMFormatDataViewItem::setFmtNode(std::shared_ptr<const Lumeran::ILMFormatNode> node) {
    m_entry = LMFormatEntry::fromNode(std::move(node));
    setSourceDidChanged(sourceDidChanged() + 1);
}

void LMFormatDataViewItem::setFmtPreset(std::shared_ptr<const Lumeran::ILMFormatPreset> preset) {
    m_entry = LMFormatEntry::fromPreset(std::move(preset));
    setSourceDidChanged(sourceDidChanged() + 1);
}

const LMFormatEntry& LMFormatDataViewItem::entry() const {
    return m_entry;
}

void LMFormatDataViewItem::setEntry(const LMFormatEntry& entry) {
    if (entry.recentItem())
        setRecentItem(entry.recentItem());
    else if (entry.node())
        setFmtNode(entry.node());
    else
        setFmtPreset(entry.preset());
}

bool LMFormatDataViewItem::removable() const {
    return m_removable;
}

void LMFormatDataViewItem::setRemovable(bool removable) {
    if (m_removable == removable)
        return;
    m_removable = removable;
    Q_EMIT removableChanged();
    Q_EMIT showRemovingChanged();
}

bool LMFormatDataViewItem::editable() const {
    return m_editable;
}

void LMFormatDataViewItem::setEditable(bool editable) {
    if (m_editable == editable)
        return;
    m_editable = editable;
    Q_EMIT editableChanged();
    Q_EMIT showEditingChanged();
}

bool LMFormatDataViewItem::showActionButton() const {
    return m_showActionButton;
}

void LMFormatDataViewItem::setShowActionButton(bool show) {
    if (m_showActionButton == show)
        return;
    m_showActionButton = show;
    Q_EMIT showActionButtonChanged();
    Q_EMIT showEditingChanged();
    Q_EMIT showRemovingChanged();
}

qint64 LMFormatDataViewItem::sourceDidChanged() const {
    return m_sourceDidChanged;
}

// Every derived property depends on the source, so each is announced here.
void LMFormatDataViewItem::setSourceDidChanged(qint64 value) {
    m_sourceDidChanged = value;
    Q_EMIT sourceDidChangedChanged();
    Q_EMIT fmtImageChanged();
    Q_EMIT fmtTitleChanged();
    Q_EMIT fmtDescriptionChanged();
    Q_EMIT visibleDescriptionChanged();
}

LMFormatDataViewItemDelegate* LMFormatDataViewItem::delegate() const {
    return m_delegate;
}

void LMFormatDataViewItem::setDelegate(LMFormatDataViewItemDelegate* delegate) {
    m_delegate = delegate;
}

QIcon LMFormatDataViewItem::fmtImage() const {
    return m_entry.image();
}

QString LMFormatDataViewItem::fmtTitle() const {
    return m_entry.title();
}

QString LMFormatDataViewItem::fmtDescription() const {
    return m_entry.description();
}

bool LMFormatDataViewItem::visibleDescription() const {
    return m_entry.visibleDescription();
}

bool LMFormatDataViewItem::showEditing() const {
    return m_editable && m_showActionButton;
}

bool LMFormatDataViewItem::showRemoving() const {
    return m_removable && m_showActionButton;
}

bool LMFormatDataViewItem::isSelected() const {
    return m_selected;
}

void LMFormatDataViewItem::setSelected(bool selected) {
    if (m_selected != selected) {
        m_selected = selected;
        Q_EMIT selectedChanged();
    }
    if (m_view)
        m_view->setNeedsDisplay();
}

LMFormatDataView* LMFormatDataViewItem::dataView() const {
    return m_view.get();
}

LMFormatInternationalizationMgr* LMFormatDataViewItem::lizationMgr() const {
    return LMFormatInternationalizationMgr::sharedObject();
}

void LMFormatDataViewItem::settingClicked() {
    if (m_delegate)
        m_delegate->formatDataViewItemRequireEditing(this);
}

void LMFormatDataViewItem::removeClicked() {
    if (m_delegate)
        m_delegate->formatDataViewItemRequireRemove(this);
}

void LMFormatDataViewItem::resetMouseState() {
    if (m_view)
        setShowActionButton(m_view->resetMouseState());
}

void LMFormatDataViewItem::formatDataViewMouseEnter(LMFormatDataView* view) {
    (void)view;
    setShowActionButton(true);
}

void LMFormatDataViewItem::formatDataViewMouseExited(LMFormatDataView* view) {
    (void)view;
    setShowActionButton(false);
}

bool LMFormatDataViewItem::formatDataViewSelected(LMFormatDataView* view) {
    (void)view;
    return isSelected();
}
