#include "LMFormatDataViewItem.h"

#include "ILMArtworkImageGroupAdapter.h"
#include "ILMFmtPresetDataSource.h"
#include "LMFormatDataView.h"
#include "LMFormatDataViewItemDelegate.h"
#include "LMFormatInternationalizationMgr.h"

namespace {

const QString kSameAsSource = QStringLiteral("Same as source");

} // namespace

LMFormatDataViewItem::LMFormatDataViewItem(QObject* parent)
    : QObject(parent), m_view(new LMFormatDataView) {
    viewDidLoad();
    // Titles and descriptions are localized texts, so a new language changes them.
    connect(lizationMgr(), &LMFormatInternationalizationMgr::languageDidChange, this,
            &LMFormatDataViewItem::emitTextsChanged);
}

LMFormatDataViewItem::~LMFormatDataViewItem() {
    // The list may have adopted the view into its viewport, in which case the
    // viewport can have deleted it already; the guarded pointer then is null.
    delete m_view.data();
}

void LMFormatDataViewItem::viewDidLoad() {
    setShowActionButton(false);
    m_view->setDelegate(this);
    bindDataView();
}

// The cell's controls follow the derived properties, as bindings would.
void LMFormatDataViewItem::bindDataView() {
    LMFormatDataView* view = m_view.data();
    connect(this, &LMFormatDataViewItem::fmtImageChanged, view,
            [this, view] { view->setImage(fmtImage()); });
    connect(this, &LMFormatDataViewItem::fmtTitleChanged, view,
            [this, view] { view->setTitle(fmtTitle()); });
    connect(this, &LMFormatDataViewItem::fmtDescriptionChanged, view,
            [this, view] { view->setDescription(fmtDescription()); });
    connect(this, &LMFormatDataViewItem::visibleDescriptionChanged, view,
            [this, view] { view->setDescriptionVisible(visibleDescription()); });
    connect(this, &LMFormatDataViewItem::showEditingChanged, view,
            [this, view] { view->setEditVisible(showEditing()); });
    connect(this, &LMFormatDataViewItem::showRemovingChanged, view,
            [this, view] { view->setRemoveVisible(showRemoving()); });
    view->setImage(fmtImage());
    view->setTitle(fmtTitle());
    view->setDescription(fmtDescription());
    view->setDescriptionVisible(visibleDescription());
    view->setEditVisible(showEditing());
    view->setRemoveVisible(showRemoving());
}

void LMFormatDataViewItem::emitTextsChanged() {
    Q_EMIT fmtTitleChanged();
    Q_EMIT fmtDescriptionChanged();
}

std::shared_ptr<const Lumeran::ILMFmtPresetRecentItem> LMFormatDataViewItem::recentItem() const {
    return m_recentItem;
}

std::shared_ptr<const Lumeran::ILMFormatNode> LMFormatDataViewItem::fmtNode() const {
    return m_nodeItem;
}

std::shared_ptr<const Lumeran::ILMFormatPreset> LMFormatDataViewItem::fmtPreset() const {
    return m_fmtItem;
}

void LMFormatDataViewItem::setRecentItem(
    std::shared_ptr<const Lumeran::ILMFmtPresetRecentItem> recentItem) {
    m_recentItem = std::move(recentItem);
    m_nodeItem.reset();
    m_fmtItem.reset();
    setSourceDidChanged(sourceDidChanged() + 1);
}

void LMFormatDataViewItem::setFmtNode(std::shared_ptr<const Lumeran::ILMFormatNode> node) {
    m_nodeItem = std::move(node);
    m_recentItem.reset();
    m_fmtItem.reset();
    setSourceDidChanged(sourceDidChanged() + 1);
}

void LMFormatDataViewItem::setFmtPreset(std::shared_ptr<const Lumeran::ILMFormatPreset> preset) {
    m_fmtItem = std::move(preset);
    m_recentItem.reset();
    m_nodeItem.reset();
    setSourceDidChanged(sourceDidChanged() + 1);
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
    std::shared_ptr<Lumeran::ILMArtworkImageGroup> group;
    if (m_recentItem)
        group = m_recentItem->GetArtworkGroup();
    else if (m_nodeItem)
        group = Lumeran::ILMFmtPresetDataSource::Shared()->GetArtworkGroup(m_nodeItem->FaceID());
    else if (m_fmtItem)
        group = Lumeran::ILMFmtPresetDataSource::Shared()->GetArtworkGroup(m_fmtItem->FaceID());
    if (!group)
        return {};
    return Lumeran::ILMArtworkImageGroupAdapter::imageFromArtworkImageGroup(group);
}

QString LMFormatDataViewItem::fmtTitle() const {
    const LMFormatInternationalizationMgr* mgr = lizationMgr();
    QString text;
    if (m_recentItem) {
        // A recent title is composed from node and preset titles; only this
        // phrase inside it is a key of its own.
        text = QString::fromStdString(m_recentItem->Title());
        if (text.contains(kSameAsSource))
            text.replace(kSameAsSource, mgr->stringForKey(kSameAsSource));
    } else if (m_nodeItem) {
        text = mgr->stringForKey(QString::fromStdString(m_nodeItem->Title()));
    } else if (m_fmtItem) {
        text = mgr->stringForKey(QString::fromStdString(m_fmtItem->Title()));
    }
    // Looked up once more on purpose: a localized text that is itself a key maps
    // onward, and any other text comes back as it is.
    return mgr->stringForKey(text);
}

QString LMFormatDataViewItem::fmtDescription() const {
    const LMFormatInternationalizationMgr* mgr = lizationMgr();
    QString text;
    if (m_recentItem)
        text = mgr->stringForKey(QString::fromStdString(m_recentItem->Description()));
    else if (m_nodeItem)
        text = mgr->stringForKey(QString::fromStdString(m_nodeItem->Description()));
    else if (m_fmtItem)
        text = mgr->stringForKey(QString::fromStdString(m_fmtItem->Description()));
    return mgr->stringForKey(text);
}

bool LMFormatDataViewItem::visibleDescription() const {
    // Node cells show a title only.
    return !m_nodeItem;
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
    return m_view.data();
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
