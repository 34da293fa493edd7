// SPDX-License-Identifier: MIT
#include "LMFormatSelectionWndCtrl.h"

#include "LMFormatSelectionWndCtrl_p.h"

#include "ILMArtworkImageGroupAdapter.h"
#include "ILMArtworkImageMgr.h"
#include "ILMFmtPresetDataSource.h"
#include "LMClickSequenceGuard.h"
#include "LMFmtNodeViewCtrl.h"
#include "LMFmtRecentViewCtrl.h"
#include "LMFormatCollectionView.h"
#include "LMFormatEditingWndCtrl.h"
#include "LMFormatInternationalizationMgr.h"
#include "LMKeyText.h"
#include "LMProgressIndicator.h"
#include "LMSingleton.h"
#include "LMTabHeaderView.h"
#include "LMThemeColors.h"
#include "ui_LMFormatSelectionWndCtrl.h"

#include <QAccessibleWidget>
#include <QAction>
#include <QApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QScreen>
#include <QToolButton>

#include <mutex>
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

// A screen reader announces the popup as a dialog with its title; Qt would
// show a frameless tool window as a nameless filler.
QAccessibleInterface* MakeWindowInterface(const QString& className, QObject* object) {
    (void)className;
    if (auto* window = qobject_cast<LMFormatSelectionWndCtrl*>(object))
        return new QAccessibleWidget(window, QAccessible::Dialog);
    return nullptr;
}

} // namespace

namespace {

constinit Lumeran::LMSingleton<LMFormatSelectionWndCtrl> s_window{
    &LMFormatSelectionWndCtrlPrivate::make};

} // namespace

// ---- The window --------------------------------------------------------------------

LMFormatSelectionWndCtrl* LMFormatSelectionWndCtrl::shared() {
    return s_window.Instance().get();
}

LMFormatSelectionWndCtrl::LMFormatSelectionWndCtrl()
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      d(std::make_unique<LMFormatSelectionWndCtrlPrivate>(this)) {
    static std::once_flag accessible;
    std::call_once(accessible, [] { QAccessible::installFactory(MakeWindowInterface); });
    d->ui->setupUi(this);
    setObjectName(QStringLiteral("LMFormatSelectionWndCtrl"));
    setAttribute(Qt::WA_QuitOnClose, false);
    resize(int(defWidth), int(defHeight));
    d->windowDidLoad();
}

LMFormatSelectionWndCtrl::~LMFormatSelectionWndCtrl() = default;

void LMFormatSelectionWndCtrl::popupSelection(const QRectF& rect, CompleteHandler handler) {
    d->completePendingShowing();
    // A click the user makes from now on is aimed at this showing.
    d->clickGuard->stop();
    d->completeHandler = std::move(handler);
    d->reloadCustomIfReplaced();
    d->finishedSelecting = false;
    setGeometry(frameFromRect(rect));
    d->focusSearchField();
    d->popupAgain();
}

void LMFormatSelectionWndCtrl::loadExternalDataInMainThread() {
    if (LMProgressIndicator* indicator = d->ui->loadPrgInd) {
        indicator->stopAnimation();
        indicator->hide();
        indicator->deleteLater();
        d->ui->loadPrgInd = nullptr;
    }
    LMTabHeaderView* strip = d->ui->tabHeaderView;
    strip->clearTab();
    setEnableSearch(true);

    auto source = ILMFmtPresetDataSource::Shared();
    strip->addTab(QStringLiteral("Recent"), TabImage(ILMArtworkImageMgr::CategoryFaceIDRecentList));
    d->recentFmtViewCtrl()->loadRecentList();
    strip->addTab(QStringLiteral("Custom"), TabImage(ILMArtworkImageMgr::CategoryFaceIDCustomize));
    d->showCustomList(source->GetCustomList());

    d->cleanDefFormats();
    d->setupDefaultFormats();

    d->setCurrentFormatNode(source->GetRecentList().empty() ? 1 : 0);
}

QRect LMFormatSelectionWndCtrl::frameFromRect(const QRectF& rect) const {
    return LMFormatSelectionWndCtrlPrivate::frameFromRect(rect, VisibleFrameFor(this, rect));
}

void LMFormatSelectionWndCtrl::windowDidResignKey() {
    qApp->removeEventFilter(this);
    hide();
    if (!d->finishedSelecting) {
        // A dismissal ends this showing too: a second loss of focus while hidden
        // must not report it again.
        d->finishedSelecting = true;
        d->completeSelection({}, {});
    }
}

void LMFormatSelectionWndCtrl::onSearchAction() {
    const std::size_t selected = d->ui->tabHeaderView->indexOfSelected();
    const QString text = searchText();
    if (selected == 0)
        d->recentFmtViewCtrl()->searchRecentList(text);
    else if (selected <= std::size_t(d->m_defFmtViewCtrls.size()))
        d->m_defFmtViewCtrls.at(qsizetype(selected) - 1)->searchFormatNode(text);
    else
        d->customFmtViewCtrl()->searchFormatNode(text);
}

bool LMFormatSelectionWndCtrl::finishedSelecting() const {
    return d->finishedSelecting;
}

QString LMFormatSelectionWndCtrl::searchText() const {
    return d->searchText;
}

void LMFormatSelectionWndCtrl::setSearchText(const QString& text) {
    if (d->searchText == text)
        return;
    d->searchText = text;
    Q_EMIT searchTextChanged(d->searchText);
}

bool LMFormatSelectionWndCtrl::enableSearch() const {
    return d->enableSearch;
}

void LMFormatSelectionWndCtrl::setEnableSearch(bool enable) {
    if (d->enableSearch == enable)
        return;
    d->enableSearch = enable;
    Q_EMIT enableSearchChanged(d->enableSearch);
}

LMFormatInternationalizationMgr* LMFormatSelectionWndCtrl::lizationMgr() const {
    return LMFormatInternationalizationMgr::sharedObject();
}

bool LMFormatSelectionWndCtrl::event(QEvent* event) {
    if (event->type() == QEvent::WindowDeactivate && isVisible()) {
        // With a window manager the click that takes the focus to a host window
        // deactivates the popup before that click's press is delivered: the
        // press, aimed at closing the popup, must not reach the host either.
        // A popup on its way out (hide() deactivates it before it stops being
        // visible) was closed by a key or by the popup itself, not by a click.
        if (!isHidden())
            d->clickGuard->swallowRestOfClick(QGuiApplication::mouseButtons() != Qt::NoButton);
        windowDidResignKey();
    }
    return QWidget::event(event);
}

bool LMFormatSelectionWndCtrl::eventFilter(QObject* watched, QEvent* event) {
    if (watched == d->ui->contentView && event->type() == QEvent::Resize) {
        d->layOutContent();
    } else if (event->type() == QEvent::MouseButtonPress && isVisible()) {
        const auto* widget = qobject_cast<QWidget*>(watched);
        const QWidget* window = widget ? widget->window() : nullptr;
        // Menus and tool tips of the popup's own controls are windows of their
        // own; a click in them is not a click outside.
        if (window && window != this && window->windowType() != Qt::Popup &&
            window->windowType() != Qt::ToolTip) {
            // The press only closes the popup, as a click outside a menu does:
            // on the host's own format button it must not open the popup
            // again, and anywhere else its release alone would reach a widget
            // that never saw the press. The rest of its click goes nowhere.
            d->clickGuard->swallowRestOfClick(true);
            windowDidResignKey();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

// Keys the focused widget leaves alone arrive here from wherever the focus is.
void LMFormatSelectionWndCtrl::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        windowDidResignKey();
        return;
    }
    if (d->switchTabByKey(event) || d->enterListByKey(event) || d->typeAnywhereByKey(event)) {
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
}

void LMFormatSelectionWndCtrl::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    painter.setPen(LMThemeColors(palette()).border());
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

// ---- Its insides -------------------------------------------------------------------

LMFormatSelectionWndCtrlPrivate::LMFormatSelectionWndCtrlPrivate(LMFormatSelectionWndCtrl* owner)
    : q(owner), ui(std::make_unique<Ui::LMFormatSelectionWndCtrl>()),
      clickGuard(new LMClickSequenceGuard(owner)) {}

LMFormatSelectionWndCtrlPrivate::~LMFormatSelectionWndCtrlPrivate() = default;

LMFormatSelectionWndCtrlPrivate*
LMFormatSelectionWndCtrlPrivate::get(LMFormatSelectionWndCtrl* ctrl) {
    return ctrl ? ctrl->d.get() : nullptr;
}

std::shared_ptr<LMFormatSelectionWndCtrl> LMFormatSelectionWndCtrlPrivate::make() {
    std::shared_ptr<LMFormatSelectionWndCtrl> window(new LMFormatSelectionWndCtrl());
    window->d->ui->tabHeaderView->setDelegate(window->d.get());
    return window;
}

void LMFormatSelectionWndCtrlPrivate::windowDidLoad() {
    ui->loadPrgInd->startAnimation();
    LMFormatEditingWndCtrl::shared()->setDelegate(this);
    ui->contentView->installEventFilter(q);
    ui->contentView->setAutoFillBackground(false);

    QLineEdit* field = ui->searchField;
    field->addAction(SearchIcon(q->palette().color(QPalette::PlaceholderText)),
                     QLineEdit::LeadingPosition);
    field->setEnabled(enableSearch);
    // The field and searchText mirror each other: typing searches at once,
    // while a programmatic change (a tab switch clearing it) searches nothing.
    QObject::connect(field, &QLineEdit::textEdited, q, [this](const QString& text) {
        q->setSearchText(text);
        q->onSearchAction();
    });
    QObject::connect(q, &LMFormatSelectionWndCtrl::searchTextChanged, field,
                     [field](const QString& text) {
                         if (field->text() != text)
                             field->setText(text);
                     });
    QObject::connect(q, &LMFormatSelectionWndCtrl::enableSearchChanged, field,
                     &QWidget::setEnabled);
    QObject::connect(field, &QLineEdit::returnPressed, q, [this] { chooseFirstMatch(); });
    QObject::connect(q->lizationMgr(), &LMFormatInternationalizationMgr::languageDidChange, q,
                     [this] { retranslate(); });
    retranslate();
}

void LMFormatSelectionWndCtrlPrivate::retranslate() {
    LMFormatInternationalizationMgr* mgr = q->lizationMgr();
    const QString search = mgr->stringForKey(QStringLiteral("Search"));
    ui->searchField->setPlaceholderText(search);
    ui->searchField->setAccessibleName(search);
    ui->searchField->setToolTip(
        QStringList{mgr->stringForKey(QStringLiteral("Type anywhere to search")),
                    mgr->stringForKey(QStringLiteral("Move to the list (%1)"))
                        .arg(LMKeyText::names({QKeyCombination(Qt::Key_Down)})),
                    mgr->stringForKey(QStringLiteral("Choose the first match (%1)"))
                        .arg(LMKeyText::names({QKeyCombination(Qt::Key_Return)}))}
            .join(QLatin1Char('\n')));
    // The field's own buttons: the search mark before the text, and the clear
    // button, which Qt leaves without a name.
    for (QToolButton* button : ui->searchField->findChildren<QToolButton*>()) {
        QAction* action = button->defaultAction();
        const bool clears =
            action && action->objectName() == QLatin1String("_q_qlineeditclearaction");
        const QString name = clears ? mgr->stringForKey(QStringLiteral("Clear search")) : search;
        button->setAccessibleName(name);
        button->setAccessibleDescription(
            clears ? mgr->stringForKey(QStringLiteral("Show all presets again")) : QString());
        if (clears)
            button->setToolTip(name);
    }
    q->setWindowTitle(mgr->stringForKey(QStringLiteral("Choose a format")));
    q->setAccessibleName(q->windowTitle());
    if (ui->loadPrgInd)
        ui->loadPrgInd->setAccessibleName(mgr->stringForKey(QStringLiteral("Loading formats…")));
}

void LMFormatSelectionWndCtrlPrivate::popupAgain() {
    q->show();
    q->raise();
    q->activateWindow();
    // Clicks in the host's windows end the showing, as they would take the key
    // window away from a native popup.
    qApp->installEventFilter(q);
}

QRect LMFormatSelectionWndCtrlPrivate::frameFromRect(const QRectF& r, const QRect& visibleFrame) {
    constexpr double defWidth = LMFormatSelectionWndCtrl::defWidth;
    constexpr double defHeight = LMFormatSelectionWndCtrl::defHeight;
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

void LMFormatSelectionWndCtrlPrivate::setupDefaultFormats() {
    const std::shared_ptr<ILMFormatNode> root =
        ILMFmtPresetDataSource::Shared()->GetExternalFormatPresets();
    if (!root)
        return;
    for (int i = 0; i < root->ChildCount(); ++i) {
        const std::shared_ptr<const ILMFormatNode> child = std::as_const(*root).ChildAt(i);
        LMFmtNodeViewCtrl* ctrl = LMFmtNodeViewCtrl::fmtNodeViewCtrl(ui->contentView);
        ctrl->hide();
        ctrl->setRemovable(false);
        ctrl->loadFormatNode(child);
        ctrl->setDelegate(this);
        listenTo(ctrl);
        m_defFmtViewCtrls.append(ctrl);
        // Each category goes just before the last tab, "Custom".
        const std::size_t index = ui->tabHeaderView->countOfTab() - 1;
        ui->tabHeaderView->insertTab(QString::fromStdString(child->Title()),
                                     TabImage(child->FaceID()), index);
    }
}

void LMFormatSelectionWndCtrlPrivate::cleanDefFormats() {
    for (LMFmtNodeViewCtrl* ctrl : std::as_const(m_defFmtViewCtrls)) {
        ctrl->hide();
        ctrl->deleteLater();
    }
    m_defFmtViewCtrls.clear();
}

QWidget* LMFormatSelectionWndCtrlPrivate::currentFormatNodeView() const {
    for (QObject* child : ui->contentView->children()) {
        auto* view = qobject_cast<QWidget*>(child);
        // Lists that are not current are hidden rather than taken out, so a
        // switch back costs no re-layout.
        if (view && view != ui->tabHeaderView && !view->isHidden())
            return view;
    }
    return nullptr;
}

QRect LMFormatSelectionWndCtrlPrivate::frameOfFormatNodeView() const {
    const QRect bounds = ui->contentView ? ui->contentView->rect() : QRect();
    const QRect header = ui->tabHeaderView ? ui->tabHeaderView->geometry() : QRect();
    // The list fills the content below the strip.
    return {bounds.x(), bounds.y() + header.height(), bounds.width(),
            bounds.height() - header.height()};
}

void LMFormatSelectionWndCtrlPrivate::layOutContent() {
    ui->tabHeaderView->resize(ui->contentView->width(), ui->tabHeaderView->height());
    // The search field stands at the strip's right end; the tabs stop a little
    // before it, and scroll when there are more of them than that leaves room for.
    constexpr int searchFieldGap = 8;
    ui->tabHeaderView->setTrailingReserve(ui->tabHeaderView->width() -
                                          ui->searchField->geometry().left() + searchFieldGap);
    if (LMProgressIndicator* indicator = ui->loadPrgInd) {
        // Until the data arrives the indicator is the content; it stays small
        // and in the middle of the list's place.
        QRect spot(QPoint(), indicator->sizeHint());
        spot.moveCenter(frameOfFormatNodeView().center());
        indicator->setGeometry(spot);
    } else if (QWidget* current = currentFormatNodeView()) {
        current->setGeometry(frameOfFormatNodeView());
    }
}

void LMFormatSelectionWndCtrlPrivate::setCurrentFormatNode(qsizetype index) {
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

    q->setSearchText(QString());
    next->setGeometry(frameOfFormatNodeView());
    if (old && old != next)
        old->hide();
    next->show();
    ui->tabHeaderView->setIndexOfSelected(std::size_t(index));
    // The list that had the focus may just have been hidden; typing goes on in
    // the search field, which the switch emptied.
    focusSearchField();
}

void LMFormatSelectionWndCtrlPrivate::tabHeaderViewSelectionDidChanged(LMTabHeaderView* header) {
    setCurrentFormatNode(qsizetype(header->indexOfSelected()));
}

void LMFormatSelectionWndCtrlPrivate::viewControllerSelectFormat(
    QObject*, std::shared_ptr<const ILMFormatPreset> preset,
    std::shared_ptr<const ILMFormatNode> node) {
    // Set before hiding, so the loss of focus that follows reports nothing.
    finishedSelecting = true;
    // Chosen by a press: its release and a double-click's second click would
    // land on the host under the pointer once the popup is gone.
    if (QGuiApplication::mouseButtons() != Qt::NoButton)
        clickGuard->swallowRestOfClick(true);
    q->hide();
    completeSelection(std::move(preset), std::move(node));
}

void LMFormatSelectionWndCtrlPrivate::viewControllerEditingFormat(
    QObject*, std::shared_ptr<ILMFormatPreset> preset, std::shared_ptr<ILMFormatNode> node) {
    finishedSelecting = true;
    qApp->removeEventFilter(q);
    q->hide();
    if (LMFormatEditingWndCtrl::shared()->startEditing(preset, node)) {
        completeSelection(preset, node);
        return;
    }
    popupAgain();
    finishedSelecting = false;
}

// A save that merged in what another copy of the host stored, or a restored
// backup, replaces the custom tree the tab was showing; the preset manager
// changes it where it is.
void LMFormatSelectionWndCtrlPrivate::reloadCustomIfReplaced() {
    if (ui->tabHeaderView->countOfTab() == 0)
        return; // the tabs are not built yet; they will be from the current tree
    const auto custom = std::as_const(*ILMFmtPresetDataSource::Shared()).GetCustomList();
    if (customFmtViewCtrl()->formatNode() != custom ||
        custom->ToJson()->Text() != m_customShownText)
        showCustomList(custom);
}

void LMFormatSelectionWndCtrlPrivate::showCustomList(std::shared_ptr<const ILMFormatNode> custom) {
    m_customShownText = custom ? std::string(custom->ToJson()->Text()) : std::string();
    customFmtViewCtrl()->loadFormatNode(std::move(custom));
}

void LMFormatSelectionWndCtrlPrivate::formatEditingWndCtrlDidCreateFormatPreset(
    LMFormatEditingWndCtrl*) {
    showCustomList(ILMFmtPresetDataSource::Shared()->GetCustomList());
}

void LMFormatSelectionWndCtrlPrivate::completePendingShowing() {
    if (finishedSelecting || !completeHandler)
        return;
    // Every showing completes once: one replaced while still open ends as a
    // dismissal. The handler is taken first, so a handler that pops the
    // selection up again does not see itself called twice.
    finishedSelecting = true;
    const LMFormatSelectionWndCtrl::CompleteHandler pending = std::exchange(completeHandler, {});
    pending({}, {});
}

void LMFormatSelectionWndCtrlPrivate::completeSelection(
    std::shared_ptr<const ILMFormatPreset> preset, std::shared_ptr<const ILMFormatNode> node) {
    if (preset && node) {
        auto source = ILMFmtPresetDataSource::Shared();
        source->PushRecentItem(preset, node);
        source->SaveRecentList();
        recentFmtViewCtrl()->loadRecentList();
    }
    if (completeHandler)
        completeHandler(preset, node);
}

void LMFormatSelectionWndCtrlPrivate::takeTypedText(const QString& text) {
    QLineEdit* field = ui->searchField;
    // A search does not start with a space: Space typed in a list or on the
    // window goes to the field only once it holds something.
    if (!field->isEnabled() || (field->text().isEmpty() && text.trimmed().isEmpty()))
        return;
    field->setFocus(Qt::OtherFocusReason);
    field->insert(text);
    q->setSearchText(field->text());
    q->onSearchAction();
}

void LMFormatSelectionWndCtrlPrivate::focusSearchField() {
    if (ui->searchField->isEnabled())
        ui->searchField->setFocus(Qt::OtherFocusReason);
    else
        q->setFocus(Qt::OtherFocusReason);
}

bool LMFormatSelectionWndCtrlPrivate::switchTabByKey(const QKeyEvent* event) {
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if (!(modifiers & Qt::ControlModifier) || (modifiers & (Qt::AltModifier | Qt::MetaModifier)))
        return false;
    const bool shift = modifiers & Qt::ShiftModifier;
    const int key = event->key();
    // Ctrl+Shift+Tab arrives as Backtab from the window system.
    const bool forward = (key == Qt::Key_Tab || key == Qt::Key_PageDown) && !shift;
    const bool backward = (key == Qt::Key_Tab && shift) || key == Qt::Key_Backtab ||
                          (key == Qt::Key_PageUp && !shift);
    if (!forward && !backward)
        return false;
    const int step = forward ? 1 : -1;
    LMTabHeaderView* strip = ui->tabHeaderView;
    const auto count = qsizetype(strip->countOfTab());
    if (count > 0) {
        // Round the strip in both directions.
        const qsizetype next = (qsizetype(strip->indexOfSelected()) + step + count) % count;
        strip->selectTabByUser(std::size_t(next));
    }
    return true;
}

bool LMFormatSelectionWndCtrlPrivate::enterListByKey(const QKeyEvent* event) {
    if (event->key() != Qt::Key_Down || !ui->searchField->hasFocus())
        return false;
    if (LMFormatCollectionView* list = currentChoiceList())
        list->focusItemAtIndexPath(0);
    return true;
}

bool LMFormatSelectionWndCtrlPrivate::typeAnywhereByKey(const QKeyEvent* event) {
    const QString text = LMKeyText::typedText(*event);
    if (text.isEmpty())
        return false;
    takeTypedText(text);
    return true;
}

void LMFormatSelectionWndCtrlPrivate::chooseFirstMatch() {
    LMFormatCollectionView* list = currentChoiceList();
    if (list && list->numberOfItems() > 0)
        list->chooseItemAtIndexPath(0);
}

LMFormatCollectionView* LMFormatSelectionWndCtrlPrivate::currentChoiceList() const {
    const std::size_t selected = ui->tabHeaderView->indexOfSelected();
    if (ui->tabHeaderView->countOfTab() == 0)
        return nullptr;
    if (selected == 0)
        return m_recentFmtViewCtrl ? m_recentFmtViewCtrl->recentListView() : nullptr;
    if (selected <= std::size_t(m_defFmtViewCtrls.size()))
        return m_defFmtViewCtrls.at(qsizetype(selected) - 1)->fmtListView();
    return m_customFmtViewCtrl ? m_customFmtViewCtrl->fmtListView() : nullptr;
}

void LMFormatSelectionWndCtrlPrivate::listenTo(LMFmtNodeViewCtrl* ctrl) {
    QObject::connect(ctrl, &LMFmtNodeViewCtrl::textTyped, q,
                     [this](const QString& text) { takeTypedText(text); });
    QObject::connect(ctrl->fmtListView(), &LMFormatCollectionView::focusReleased, q,
                     [this] { focusSearchField(); });
}

LMTabHeaderView* LMFormatSelectionWndCtrlPrivate::tabHeaderView() const {
    return ui->tabHeaderView;
}

LMFmtNodeViewCtrl* LMFormatSelectionWndCtrlPrivate::customFmtViewCtrl() {
    if (!m_customFmtViewCtrl) {
        m_customFmtViewCtrl = LMFmtNodeViewCtrl::fmtNodeViewCtrl(ui->contentView);
        m_customFmtViewCtrl->hide();
        m_customFmtViewCtrl->setDelegate(this);
        m_customFmtViewCtrl->setRemovable(true);
        listenTo(m_customFmtViewCtrl);
    }
    return m_customFmtViewCtrl;
}

LMFmtRecentViewCtrl* LMFormatSelectionWndCtrlPrivate::recentFmtViewCtrl() {
    if (!m_recentFmtViewCtrl) {
        m_recentFmtViewCtrl = LMFmtRecentViewCtrl::fmtRecentViewCtrl(ui->contentView);
        m_recentFmtViewCtrl->hide();
        m_recentFmtViewCtrl->setDelegate(this);
        QObject::connect(m_recentFmtViewCtrl, &LMFmtRecentViewCtrl::textTyped, q,
                         [this](const QString& text) { takeTypedText(text); });
        QObject::connect(m_recentFmtViewCtrl->recentListView(),
                         &LMFormatCollectionView::focusReleased, q, [this] { focusSearchField(); });
    }
    return m_recentFmtViewCtrl;
}

const QList<LMFmtNodeViewCtrl*>& LMFormatSelectionWndCtrlPrivate::defFmtViewCtrls() const {
    return m_defFmtViewCtrls;
}

LMProgressIndicator* LMFormatSelectionWndCtrlPrivate::loadPrgInd() const {
    return ui->loadPrgInd;
}

QLineEdit* LMFormatSelectionWndCtrlPrivate::searchField() const {
    return ui->searchField;
}

QWidget* LMFormatSelectionWndCtrlPrivate::contentView() const {
    return ui->contentView;
}
