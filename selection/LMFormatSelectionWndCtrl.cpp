#include "LMFormatSelectionWndCtrl.h"

#include "LMSharedSelectionWindow_p.h"

#include "ILMArtworkImageGroupAdapter.h"
#include "ILMArtworkImageMgr.h"
#include "ILMFmtPresetDataSource.h"
#include "LMFmtNodeViewCtrl.h"
#include "LMFmtRecentViewCtrl.h"
#include "LMFormatEditingWndCtrl.h"
#include "LMFormatInternationalizationMgr.h"
#include "LMProgressIndicator.h"
#include "LMTabHeaderView.h"
#include "ui_LMFormatSelectionWndCtrl.h"

#include <QApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QScreen>

#include <utility>

using Lumeran::ILMArtworkImageGroupAdapter;
using Lumeran::ILMArtworkImageMgr;
using Lumeran::ILMFmtPresetDataSource;
using Lumeran::ILMFormatNode;
using Lumeran::ILMFormatPreset;

namespace {

QIcon TabImage(int faceID) {
    return ILMArtworkImageGroupAdapter::imageFromArtworkImageGroup(
        ILMFmtPresetDataSource::Shared()->GetArtworkGroup(faceID));
}

// A magnifying glass for the search field, drawn rather than shipped so it
// follows the field's text colour and stays sharp at every scale factor.
QIcon SearchIcon(const QColor& colour) {
    QIcon icon;
    for (const qreal ratio : {1.0, 2.0}) {
        QPixmap pixmap(QSize(16, 16) * ratio);
        pixmap.setDevicePixelRatio(ratio);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(colour, 1.6, Qt::SolidLine, Qt::RoundCap));
        painter.drawEllipse(QRectF(2.5, 2.5, 8.0, 8.0));
        painter.drawLine(QPointF(9.6, 9.6), QPointF(13.5, 13.5));
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

// The visible frame used to place the popup: the screen under the host's
// rectangle, else the popup's own screen, else nothing (a zero rectangle, and
// the placement rules then run on that).
QRect VisibleFrameFor(const QWidget* window, const QRectF& anchor) {
    QScreen* screen = QGuiApplication::screenAt(anchor.center().toPoint());
    if (!screen)
        screen = window->screen();
    return screen ? screen->availableGeometry() : QRect();
}

} // namespace

namespace {

LMFormatSelectionWndCtrl*& SharedInstance() {
    static LMFormatSelectionWndCtrl* instance = nullptr;
    return instance;
}

} // namespace

LMFormatSelectionWndCtrl* LMFormatSelectionWndCtrl::shared() {
    LMFormatSelectionWndCtrl*& instance = SharedInstance();
    if (!instance) {
        instance = new LMFormatSelectionWndCtrl();
        instance->m_ui->tabHeaderView->setDelegate(instance);
    }
    return instance;
}

void Lumeran::LMSharedSelectionWindow::ResetForTesting() {
    delete std::exchange(SharedInstance(), nullptr);
}

LMFormatSelectionWndCtrl::LMFormatSelectionWndCtrl()
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      m_ui(std::make_unique<Ui::LMFormatSelectionWndCtrl>()) {
    m_ui->setupUi(this);
    setObjectName(QStringLiteral("LMFormatSelectionWndCtrl"));
    setAttribute(Qt::WA_QuitOnClose, false);
    resize(int(defWidth), int(defHeight));
    windowDidLoad();
}

LMFormatSelectionWndCtrl::~LMFormatSelectionWndCtrl() = default;

void LMFormatSelectionWndCtrl::windowDidLoad() {
    m_ui->loadPrgInd->startAnimation();
    LMFormatEditingWndCtrl::shared()->setDelegate(this);
    m_ui->contentView->installEventFilter(this);
    m_ui->contentView->setAutoFillBackground(false);

    QLineEdit* field = m_ui->searchField;
    field->addAction(SearchIcon(palette().color(QPalette::PlaceholderText)),
                     QLineEdit::LeadingPosition);
    field->setEnabled(m_enableSearch);
    // The field and searchText mirror each other: typing searches at once,
    // while a programmatic change (a tab switch clearing it) searches nothing.
    connect(field, &QLineEdit::textEdited, this, [this](const QString& text) {
        setSearchText(text);
        onSearchAction();
    });
    connect(this, &LMFormatSelectionWndCtrl::searchTextChanged, field,
            [field](const QString& text) {
                if (field->text() != text)
                    field->setText(text);
            });
    connect(this, &LMFormatSelectionWndCtrl::enableSearchChanged, field, &QWidget::setEnabled);
    connect(lizationMgr(), &LMFormatInternationalizationMgr::languageDidChange, this,
            &LMFormatSelectionWndCtrl::retranslate);
    retranslate();
}

void LMFormatSelectionWndCtrl::retranslate() {
    const QString search = lizationMgr()->stringForKey(QStringLiteral("Search"));
    m_ui->searchField->setPlaceholderText(search);
    m_ui->searchField->setAccessibleName(search);
    setWindowTitle(lizationMgr()->stringForKey(QStringLiteral("Choose a format")));
    setAccessibleName(windowTitle());
    if (m_ui->loadPrgInd)
        m_ui->loadPrgInd->setAccessibleName(
            lizationMgr()->stringForKey(QStringLiteral("Loading formats…")));
}

void LMFormatSelectionWndCtrl::popupSelection(const QRectF& rect, CompleteHandler handler) {
    m_completeHandler = std::move(handler);
    reloadCustomIfReplaced();
    m_finishedSelecting = false;
    setGeometry(frameFromRect(rect));
    popupAgain();
}

void LMFormatSelectionWndCtrl::popupAgain() {
    show();
    raise();
    activateWindow();
    // Clicks in the host's windows end the showing, as they would take the key
    // window away from a native popup.
    qApp->installEventFilter(this);
}

QRect LMFormatSelectionWndCtrl::frameFromRect(const QRectF& rect) const {
    return frameFromRect(rect, VisibleFrameFor(this, rect));
}

QRect LMFormatSelectionWndCtrl::frameFromRect(const QRectF& r, const QRect& visibleFrame) {
    // Screen coordinates grow downwards: "below" the anchor is a larger y.
    const QRectF v(visibleFrame);
    double x = r.x() + r.width() * 0.5 - defWidth / 2.0;
    double y = r.y() + r.height();
    if (y + defHeight > v.y() + v.height()) {
        if (r.y() - defHeight <= v.y())
            y = v.y() + v.height() - defHeight; // no room above either: sit on the bottom
        else
            y = r.y() - defHeight; // above the anchor, its bottom on the anchor's top
    }
    if (x + defWidth > v.x() + v.width())
        x = v.x() + v.width() - defWidth;
    else if (x < v.x())
        x = v.x();
    return QRectF(x, y, defWidth, defHeight).toRect();
}

void LMFormatSelectionWndCtrl::loadExternalDataInMainThread() {
    if (LMProgressIndicator* indicator = m_ui->loadPrgInd) {
        indicator->stopAnimation();
        indicator->hide();
        indicator->deleteLater();
        m_ui->loadPrgInd = nullptr;
    }
    LMTabHeaderView* strip = m_ui->tabHeaderView;
    strip->clearTab();
    setEnableSearch(true);

    auto source = ILMFmtPresetDataSource::Shared();
    strip->addTab(QStringLiteral("Recent"), TabImage(ILMArtworkImageMgr::CategoryFaceIDRecentList));
    recentFmtViewCtrl()->loadRecentList();
    strip->addTab(QStringLiteral("Custom"), TabImage(ILMArtworkImageMgr::CategoryFaceIDCustomize));
    customFmtViewCtrl()->loadFormatNode(source->GetCustomList());

    cleanDefFormats();
    setupDefaultFormats();

    setCurrentFormatNode(source->GetRecentList().empty() ? 1 : 0);
}

void LMFormatSelectionWndCtrl::setupDefaultFormats() {
    const std::shared_ptr<ILMFormatNode> root =
        ILMFmtPresetDataSource::Shared()->GetExternalFormatPresets();
    if (!root)
        return;
    for (int i = 0; i < root->ChildCount(); ++i) {
        const std::shared_ptr<const ILMFormatNode> child = std::as_const(*root).ChildAt(i);
        LMFmtNodeViewCtrl* ctrl = LMFmtNodeViewCtrl::fmtNodeViewCtrl(m_ui->contentView);
        ctrl->hide();
        ctrl->setRemovable(false);
        ctrl->loadFormatNode(child);
        ctrl->setDelegate(this);
        connect(ctrl, &LMFmtNodeViewCtrl::textTyped, this,
                &LMFormatSelectionWndCtrl::takeTypedText);
        m_defFmtViewCtrls.append(ctrl);
        // Each category goes just before the last tab, "Custom".
        const std::size_t index = m_ui->tabHeaderView->countOfTab() - 1;
        m_ui->tabHeaderView->insertTab(QString::fromStdString(child->Title()),
                                       TabImage(child->FaceID()), index);
    }
}

void LMFormatSelectionWndCtrl::cleanDefFormats() {
    for (LMFmtNodeViewCtrl* ctrl : std::as_const(m_defFmtViewCtrls)) {
        ctrl->hide();
        ctrl->deleteLater();
    }
    m_defFmtViewCtrls.clear();
}

QWidget* LMFormatSelectionWndCtrl::currentFormatNodeView() const {
    for (QObject* child : m_ui->contentView->children()) {
        auto* view = qobject_cast<QWidget*>(child);
        // Lists that are not current are hidden rather than taken out, so a
        // switch back costs no re-layout.
        if (view && view != m_ui->tabHeaderView && !view->isHidden())
            return view;
    }
    return nullptr;
}

QRect LMFormatSelectionWndCtrl::frameOfFormatNodeView() const {
    const QRect bounds = m_ui->contentView ? m_ui->contentView->rect() : QRect();
    const QRect header = m_ui->tabHeaderView ? m_ui->tabHeaderView->geometry() : QRect();
    // The list fills the content below the strip.
    return {bounds.x(), bounds.y() + header.height(), bounds.width(),
            bounds.height() - header.height()};
}

void LMFormatSelectionWndCtrl::setCurrentFormatNode(qsizetype index) {
    if (index < 0)
        index = 0;
    QWidget* old = currentFormatNodeView();
    QWidget* next = nullptr;
    const qsizetype categories = m_defFmtViewCtrls.size();
    if (index == 0)
        next = recentFmtViewCtrl()->view();
    else if (index - 1 < categories)
        next = m_defFmtViewCtrls.at(index - 1)->view();
    else if (index - 1 == categories)
        next = customFmtViewCtrl()->view();
    if (!next)
        return;

    setSearchText(QString());
    next->setGeometry(frameOfFormatNodeView());
    if (old && old != next)
        old->hide();
    next->show();
    m_ui->tabHeaderView->setIndexOfSelected(std::size_t(index));
}

void LMFormatSelectionWndCtrl::tabHeaderViewSelectionDidChanged(LMTabHeaderView* header) {
    setCurrentFormatNode(qsizetype(header->indexOfSelected()));
}

void LMFormatSelectionWndCtrl::onSearchAction() {
    const std::size_t selected = m_ui->tabHeaderView->indexOfSelected();
    const QString text = searchText();
    if (selected == 0)
        recentFmtViewCtrl()->searchRecentList(text);
    else if (selected <= std::size_t(m_defFmtViewCtrls.size()))
        m_defFmtViewCtrls.at(qsizetype(selected) - 1)->searchFormatNode(text);
    else
        customFmtViewCtrl()->searchFormatNode(text);
}

void LMFormatSelectionWndCtrl::viewControllerSelectFormat(
    QObject*, std::shared_ptr<const ILMFormatPreset> preset,
    std::shared_ptr<const ILMFormatNode> node) {
    // Set before hiding, so the loss of focus that follows reports nothing.
    m_finishedSelecting = true;
    hide();
    completeSelection(std::move(preset), std::move(node));
}

void LMFormatSelectionWndCtrl::viewControllerEditingFormat(QObject*,
                                                           std::shared_ptr<ILMFormatPreset> preset,
                                                           std::shared_ptr<ILMFormatNode> node) {
    m_finishedSelecting = true;
    qApp->removeEventFilter(this);
    hide();
    if (LMFormatEditingWndCtrl::shared()->startEditing(preset, node)) {
        completeSelection(preset, node);
        return;
    }
    popupAgain();
    m_finishedSelecting = false;
}

// A save that merged in what another copy of the host stored, or a restored
// backup, replaces the custom tree the tab was showing.
void LMFormatSelectionWndCtrl::reloadCustomIfReplaced() {
    if (m_ui->tabHeaderView->countOfTab() == 0)
        return; // the tabs are not built yet; they will be from the current tree
    const auto custom = std::as_const(*ILMFmtPresetDataSource::Shared()).GetCustomList();
    if (customFmtViewCtrl()->formatNode() != custom)
        customFmtViewCtrl()->loadFormatNode(custom);
}

void LMFormatSelectionWndCtrl::formatEditingWndCtrlDidCreateFormatPreset(LMFormatEditingWndCtrl*) {
    customFmtViewCtrl()->loadFormatNode(ILMFmtPresetDataSource::Shared()->GetCustomList());
}

void LMFormatSelectionWndCtrl::completeSelection(std::shared_ptr<const ILMFormatPreset> preset,
                                                 std::shared_ptr<const ILMFormatNode> node) {
    if (preset && node) {
        auto source = ILMFmtPresetDataSource::Shared();
        source->PushRecentItem(preset, node);
        source->SaveRecentList();
        recentFmtViewCtrl()->loadRecentList();
    }
    if (m_completeHandler)
        m_completeHandler(preset, node);
}

void LMFormatSelectionWndCtrl::windowDidResignKey() {
    qApp->removeEventFilter(this);
    hide();
    if (!m_finishedSelecting) {
        // A dismissal ends this showing too: a second loss of focus while hidden
        // must not report it again.
        m_finishedSelecting = true;
        completeSelection({}, {});
    }
}

void LMFormatSelectionWndCtrl::takeTypedText(const QString& text) {
    QLineEdit* field = m_ui->searchField;
    if (!field->isEnabled())
        return;
    field->setFocus(Qt::OtherFocusReason);
    field->insert(text);
    setSearchText(field->text());
    onSearchAction();
}

bool LMFormatSelectionWndCtrl::event(QEvent* event) {
    if (event->type() == QEvent::WindowDeactivate && isVisible())
        windowDidResignKey();
    return QWidget::event(event);
}

bool LMFormatSelectionWndCtrl::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_ui->contentView && event->type() == QEvent::Resize) {
        m_ui->tabHeaderView->resize(m_ui->contentView->width(), m_ui->tabHeaderView->height());
        if (LMProgressIndicator* indicator = m_ui->loadPrgInd) {
            // Until the data arrives the indicator is the content; it stays small
            // and in the middle of the list's place.
            QRect spot(QPoint(), indicator->sizeHint());
            spot.moveCenter(frameOfFormatNodeView().center());
            indicator->setGeometry(spot);
        } else if (QWidget* current = currentFormatNodeView()) {
            current->setGeometry(frameOfFormatNodeView());
        }
    } else if (event->type() == QEvent::MouseButtonPress && isVisible()) {
        const auto* widget = qobject_cast<QWidget*>(watched);
        const QWidget* window = widget ? widget->window() : nullptr;
        // Menus and tool tips of the popup's own controls are windows of their
        // own; a click in them is not a click outside.
        if (window && window != this && window->windowType() != Qt::Popup &&
            window->windowType() != Qt::ToolTip)
            windowDidResignKey();
    }
    return QWidget::eventFilter(watched, event);
}

void LMFormatSelectionWndCtrl::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        windowDidResignKey();
        return;
    }
    QWidget::keyPressEvent(event);
}

void LMFormatSelectionWndCtrl::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    painter.setPen(QColor(191, 191, 191));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

LMTabHeaderView* LMFormatSelectionWndCtrl::tabHeaderView() const {
    return m_ui->tabHeaderView;
}

LMFmtNodeViewCtrl* LMFormatSelectionWndCtrl::customFmtViewCtrl() {
    if (!m_customFmtViewCtrl) {
        m_customFmtViewCtrl = LMFmtNodeViewCtrl::fmtNodeViewCtrl(m_ui->contentView);
        m_customFmtViewCtrl->hide();
        m_customFmtViewCtrl->setDelegate(this);
        m_customFmtViewCtrl->setRemovable(true);
        connect(m_customFmtViewCtrl, &LMFmtNodeViewCtrl::textTyped, this,
                &LMFormatSelectionWndCtrl::takeTypedText);
    }
    return m_customFmtViewCtrl;
}

LMFmtRecentViewCtrl* LMFormatSelectionWndCtrl::recentFmtViewCtrl() {
    if (!m_recentFmtViewCtrl) {
        m_recentFmtViewCtrl = LMFmtRecentViewCtrl::fmtRecentViewCtrl(m_ui->contentView);
        m_recentFmtViewCtrl->hide();
        m_recentFmtViewCtrl->setDelegate(this);
        connect(m_recentFmtViewCtrl, &LMFmtRecentViewCtrl::textTyped, this,
                &LMFormatSelectionWndCtrl::takeTypedText);
    }
    return m_recentFmtViewCtrl;
}

const QList<LMFmtNodeViewCtrl*>& LMFormatSelectionWndCtrl::defFmtViewCtrls() const {
    return m_defFmtViewCtrls;
}

LMProgressIndicator* LMFormatSelectionWndCtrl::loadPrgInd() const {
    return m_ui->loadPrgInd;
}

QLineEdit* LMFormatSelectionWndCtrl::searchField() const {
    return m_ui->searchField;
}

QWidget* LMFormatSelectionWndCtrl::contentView() const {
    return m_ui->contentView;
}

bool LMFormatSelectionWndCtrl::finishedSelecting() const {
    return m_finishedSelecting;
}

QString LMFormatSelectionWndCtrl::searchText() const {
    return m_searchText;
}

void LMFormatSelectionWndCtrl::setSearchText(const QString& text) {
    if (m_searchText == text)
        return;
    m_searchText = text;
    Q_EMIT searchTextChanged(m_searchText);
}

bool LMFormatSelectionWndCtrl::enableSearch() const {
    return m_enableSearch;
}

void LMFormatSelectionWndCtrl::setEnableSearch(bool enable) {
    if (m_enableSearch == enable)
        return;
    m_enableSearch = enable;
    Q_EMIT enableSearchChanged(m_enableSearch);
}

LMFormatInternationalizationMgr* LMFormatSelectionWndCtrl::lizationMgr() const {
    return LMFormatInternationalizationMgr::sharedObject();
}
