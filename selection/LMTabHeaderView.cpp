// SPDX-License-Identifier: MIT
#include "LMTabHeaderView.h"

#include "LMFormatInternationalizationMgr.h"
#include "LMKeyText.h"
#include "LMTabAccessible.h"
#include "LMTabButton.h"
#include "LMTabHeaderViewDelegate.h"
#include "LMThemeColors.h"

#include <QIcon>
#include <QKeyEvent>
#include <QKeySequence>
#include <QPainter>
#include <QPen>
#include <QPushButton>
#include <QStringList>
#include <QToolButton>
#include <QWheelEvent>

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace {

// Extra width of the sixth tab in French, whose titles run longer than the
// other languages' in that place.
constexpr double kWideTabExtra = 15.0;
constexpr std::size_t kWideTabIndex = 5;
// Width of each of the two scroll arrows.
constexpr int kArrowWidth = 18;
// One notch of a mouse wheel, in the eighths of a degree QWheelEvent counts.
constexpr int kWheelNotch = 120;

QToolButton* makeArrow(Qt::ArrowType direction, QWidget* parent) {
    auto* arrow = new QToolButton(parent);
    arrow->setArrowType(direction);
    arrow->setAutoRaise(true);
    // Held down, an arrow keeps scrolling, as a scroll bar's does.
    arrow->setAutoRepeat(true);
    // The keyboard reaches every tab with Ctrl+Tab and the arrow keys, which
    // scroll the selected tab into view; the arrows are for the mouse.
    arrow->setFocusPolicy(Qt::NoFocus);
    arrow->hide();
    return arrow;
}

LMTabButton* asTab(QPushButton* button) {
    return static_cast<LMTabButton*>(button);
}

// Under the title, the keys that switch tabs from anywhere in the popup, and
// those of a focused tab.
QString shortcutTips(const LMFormatInternationalizationMgr& mgr) {
    const auto tip = [&mgr](const char* key, std::initializer_list<QKeyCombination> keys) {
        return mgr.stringForKey(QString::fromUtf8(key)).arg(LMKeyText::names(keys));
    };
    return QStringList{
        tip("Next tab (%1)", {Qt::CTRL | Qt::Key_Tab, Qt::CTRL | Qt::Key_PageDown}),
        tip("Previous tab (%1)", {Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, Qt::CTRL | Qt::Key_PageUp}),
        tip("Move between tabs (%1)",
            {QKeyCombination(Qt::Key_Left), QKeyCombination(Qt::Key_Right)})}
        .join(QLatin1Char('\n'));
}

// Title and the name assistive tools read out are the translation of the tab's
// key; the tool tip is the title over the keys.
void showTitle(LMTabButton& tab, const QString& title, const LMFormatInternationalizationMgr& mgr) {
    tab.setText(title);
    // Titles are data (category names), not labels with keyboard mnemonics.
    tab.setShortcut(QKeySequence());
    tab.setToolTip(title + QLatin1Char('\n') + shortcutTips(mgr));
    tab.setAccessibleName(title);
}

} // namespace

struct LMTabHeaderView::Private {
    // Every entry is an LMTabButton made by createButton().
    QList<QPushButton*> tabButtons;
    std::size_t indexOfSelected = 0;
    LMTabHeaderViewDelegate* delegate = nullptr;
    // The tabs' parent: it clips them to the visible area, so a scrolled tab
    // never shows under the arrows or the search field. It stands at the
    // strip's origin, so its coordinates are the strip's.
    QWidget* viewport = nullptr;
    QToolButton* scrollLeft = nullptr;
    QToolButton* scrollRight = nullptr;
    int scrollOffset = 0;
    int trailingReserve = 0;
};

LMTabHeaderView::LMTabHeaderView(QWidget* parent)
    : QWidget(parent), d(std::make_unique<Private>()) {
    // Screen readers see page tabs in a list of page tabs.
    LMTabAccessible::installFactory();
    d->viewport = new QWidget(this);
    // A wheel turned over a tab scrolls the strip: the tabs themselves take no
    // wheel events, and events that Qt did not get from the window system are
    // not passed on to the parent, so the strip watches for them.
    d->viewport->installEventFilter(this);
    d->scrollLeft = makeArrow(Qt::LeftArrow, this);
    d->scrollRight = makeArrow(Qt::RightArrow, this);
    connect(d->scrollLeft, &QToolButton::clicked, this,
            [this] { scrollTo(d->scrollOffset - static_cast<int>(defWidth)); });
    connect(d->scrollRight, &QToolButton::clicked, this,
            [this] { scrollTo(d->scrollOffset + static_cast<int>(defWidth)); });
    updateScrolling();
    connect(lizationMgr(), &LMFormatInternationalizationMgr::languageDidChange, this,
            &LMTabHeaderView::languageDidChange);
}

LMTabHeaderView::~LMTabHeaderView() = default;

QColor LMTabHeaderView::borderColor() {
    return QColor(191, 191, 191);
}

LMFormatInternationalizationMgr* LMTabHeaderView::lizationMgr() const {
    return LMFormatInternationalizationMgr::sharedObject();
}

LMTabHeaderViewDelegate* LMTabHeaderView::delegate() const {
    return d->delegate;
}

void LMTabHeaderView::setDelegate(LMTabHeaderViewDelegate* delegate) {
    d->delegate = delegate;
}

void LMTabHeaderView::addTab(const QString& titleKey, const QIcon& image) {
    LMTabButton* button = createButton(titleKey, image);
    d->tabButtons.append(button);
    button->setGeometry(frameOfTabButton(countOfTab() - 1));
    button->show();
    arrangeTabButtons();
    updateScrolling();
}

void LMTabHeaderView::insertTab(const QString& titleKey, const QIcon& image, std::size_t index) {
    if (index >= countOfTab()) {
        addTab(titleKey, image);
        return;
    }
    LMTabButton* button = createButton(titleKey, image);
    d->tabButtons.insert(static_cast<qsizetype>(index), button);
    button->show();
    arrangeTabButtons();
    updateScrolling();
}

void LMTabHeaderView::removeTabAtIndex(std::size_t index) {
    if (index >= countOfTab())
        return;
    QPushButton* button = d->tabButtons.takeAt(static_cast<qsizetype>(index));
    // The tab may be the one whose click is being handled right now (a
    // delegate that rebuilds the strip), so it goes once that click is over.
    button->hide();
    button->deleteLater();
    updateScrolling();
}

void LMTabHeaderView::clearTab() {
    for (QPushButton* button : std::as_const(d->tabButtons)) {
        button->hide();
        button->deleteLater();
    }
    d->tabButtons.clear();
    updateScrolling();
}

std::size_t LMTabHeaderView::countOfTab() const {
    return static_cast<std::size_t>(d->tabButtons.size());
}

std::size_t LMTabHeaderView::indexOfSelected() const {
    return d->indexOfSelected;
}

void LMTabHeaderView::setIndexOfSelected(std::size_t index) {
    if (index >= countOfTab())
        return;
    d->indexOfSelected = index;
    for (qsizetype i = 0; i < d->tabButtons.size(); ++i)
        d->tabButtons[i]->setChecked(static_cast<std::size_t>(i) == index);
    // However it was chosen (a click, Ctrl+Tab, the arrow keys, the host), the
    // selected tab is the one the user must see.
    ensureTabVisible(index);
}

QWidget* LMTabHeaderView::tabArea() const {
    return d->viewport;
}

QRect LMTabHeaderView::frameOfTabButton(std::size_t index) const {
    int width = static_cast<int>(defWidth);
    // The sixth tab is widened for French only: its titles are the longest
    // there, and no other place or language needs the room.
    if (index == kWideTabIndex && lizationMgr()->language() == LMFormatLanguageFrench)
        width = static_cast<int>(defWidth + kWideTabExtra);
    // The pitch stays the same after a widened tab, which therefore overlaps
    // its right-hand neighbour.
    const int x = rect().x() + static_cast<int>(offsetX + static_cast<double>(index) * defWidth) -
                  d->scrollOffset;
    // Tabs stand on the bottom edge, over the rule.
    const int height = static_cast<int>(defHeight);
    const int y = rect().y() + rect().height() - height;
    return QRect(x, y, width, height);
}

void LMTabHeaderView::arrangeTabButtons() {
    for (qsizetype i = 0; i < d->tabButtons.size(); ++i) {
        LMTabButton* button = asTab(d->tabButtons[i]);
        button->setGeometry(frameOfTabButton(static_cast<std::size_t>(i)));
        button->setTag(static_cast<std::size_t>(i));
    }
    // The tab area's children in the tabs' order: assistive technology counts
    // the tabs as its children ("tab 2 of 6"), and a tab inserted before others
    // was made after them.
    QList<QPushButton*> stacked;
    for (QObject* child : d->viewport->children()) {
        if (auto* tab = qobject_cast<LMTabButton*>(child))
            stacked.append(tab);
    }
    if (stacked != d->tabButtons) {
        for (QPushButton* button : std::as_const(d->tabButtons))
            button->raise();
    }
}

const QList<QPushButton*>& LMTabHeaderView::tabButtons() const {
    return d->tabButtons;
}

int LMTabHeaderView::trailingReserve() const {
    return d->trailingReserve;
}

void LMTabHeaderView::setTrailingReserve(int width) {
    d->trailingReserve = std::max(0, width);
    updateScrolling();
}

QRect LMTabHeaderView::visibleTabArea() const {
    return d->viewport->geometry();
}

int LMTabHeaderView::scrollOffset() const {
    return d->scrollOffset;
}

QAbstractButton* LMTabHeaderView::scrollLeftButton() const {
    return d->scrollLeft;
}

QAbstractButton* LMTabHeaderView::scrollRightButton() const {
    return d->scrollRight;
}

void LMTabHeaderView::ensureTabVisible(std::size_t index) {
    if (index >= countOfTab())
        return;
    const QRect frame = frameOfTabButton(index);
    const QRect area = visibleTabArea();
    if (frame.left() < area.left())
        // Scrolled back, the tab keeps the strip's left inset when it can.
        scrollTo(d->scrollOffset - (area.left() - frame.left()) - static_cast<int>(offsetX));
    else if (frame.right() > area.right())
        scrollTo(d->scrollOffset + (frame.right() - area.right()));
}

int LMTabHeaderView::contentRight() const {
    // The tabs' right end unscrolled; a French sixth tab at the end reaches
    // past the pitch.
    int right = 0;
    for (std::size_t i = 0; i < countOfTab(); ++i)
        right = std::max(right, frameOfTabButton(i).right() + 1 + d->scrollOffset);
    return right;
}

void LMTabHeaderView::updateScrolling() {
    const int available = std::max(0, width() - d->trailingReserve);
    const int content = contentRight();
    const bool overflow = content > available;
    // The arrows stand at the end of the tabs' area, next to what the reserve
    // keeps free, and take their room from the tabs.
    const int areaWidth = std::max(0, overflow ? available - 2 * kArrowWidth : available);
    d->viewport->setGeometry(0, 0, areaWidth, height());
    const int arrowTop = height() - static_cast<int>(defHeight);
    d->scrollLeft->setGeometry(areaWidth, arrowTop, kArrowWidth, static_cast<int>(defHeight));
    d->scrollRight->setGeometry(areaWidth + kArrowWidth, arrowTop, kArrowWidth,
                                static_cast<int>(defHeight));
    d->scrollLeft->setVisible(overflow);
    d->scrollRight->setVisible(overflow);
    const QString left = lizationMgr()->stringForKey(QStringLiteral("Scroll tabs left"));
    const QString right = lizationMgr()->stringForKey(QStringLiteral("Scroll tabs right"));
    d->scrollLeft->setToolTip(left);
    d->scrollLeft->setAccessibleName(left);
    d->scrollRight->setToolTip(right);
    d->scrollRight->setAccessibleName(right);
    d->viewport->setAccessibleName(lizationMgr()->stringForKey(QStringLiteral("Categories")));
    // A change of size or of the tabs may leave the offset past the end.
    scrollTo(d->scrollOffset);
}

void LMTabHeaderView::scrollTo(int offset) {
    const int maxOffset = std::max(0, contentRight() - visibleTabArea().width());
    const int clamped = std::clamp(offset, 0, maxOffset);
    const int delta = clamped - d->scrollOffset;
    d->scrollOffset = clamped;
    // Every tab moves by the same amount, so a gap left by a removal stays.
    if (delta != 0) {
        for (QPushButton* button : std::as_const(d->tabButtons))
            button->move(button->pos() - QPoint(delta, 0));
    }
    d->scrollLeft->setEnabled(clamped > 0);
    d->scrollRight->setEnabled(clamped < maxOffset);
}

bool LMTabHeaderView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Wheel) {
        wheelEvent(static_cast<QWheelEvent*>(event));
        if (event->isAccepted())
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

void LMTabHeaderView::wheelEvent(QWheelEvent* event) {
    const QPoint delta = event->angleDelta();
    // A tilt or a horizontal swipe scrolls as it points; a plain wheel down
    // moves on to the tabs on the right.
    const int steps = std::abs(delta.x()) > std::abs(delta.y()) ? -delta.x() : -delta.y();
    if (steps == 0 || !d->scrollLeft->isVisible()) {
        event->ignore();
        return;
    }
    scrollTo(d->scrollOffset + steps * static_cast<int>(defWidth) / kWheelNotch);
    event->accept();
}

void LMTabHeaderView::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, true);
    const LMThemeColors colors(palette());
    painter.setPen(QPen(colors.dark() ? colors.border() : borderColor(), 1.0));
    // Half a point above the bottom edge, the one-point line fills the strip's
    // bottom row exactly.
    const QRectF bounds(rect());
    const qreal y = bounds.bottom() - 0.5;
    painter.drawLine(QPointF(bounds.left(), y), QPointF(bounds.right(), y));
}

void LMTabHeaderView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    // Tabs keep standing on the bottom edge; their places along the strip, a
    // gap left by a removal included, stay as they are.
    for (QPushButton* button : std::as_const(d->tabButtons)) {
        QRect frame = button->geometry();
        frame.moveBottom(rect().bottom());
        button->setGeometry(frame);
    }
    updateScrolling();
}

LMTabButton* LMTabHeaderView::createButton(const QString& titleKey, const QIcon& image) {
    auto* button = new LMTabButton(titleKey, d->viewport);
    button->installEventFilter(this);
    button->setGeometry(frameOfTabButton(0));
    button->setIcon(image);
    showTitle(*button, lizationMgr()->stringForKey(titleKey), *lizationMgr());
    connect(button, &QPushButton::clicked, this, [this, button] { tabButtonClicked(button); });
    return button;
}

void LMTabHeaderView::tabButtonClicked(LMTabButton* sender) {
    const std::size_t tag = sender->tag();
    if (tag == d->indexOfSelected) {
        sender->setChecked(true);
        return;
    }
    selectTabByUser(tag);
}

void LMTabHeaderView::selectTabByUser(std::size_t index) {
    if (index == d->indexOfSelected || index >= countOfTab())
        return;
    if (d->delegate)
        d->delegate->tabHeaderView(this, index);
    setIndexOfSelected(index);
    if (d->delegate)
        d->delegate->tabHeaderViewSelectionDidChanged(this);
}

void LMTabHeaderView::keyPressEvent(QKeyEvent* event) {
    const auto focused = std::find_if(d->tabButtons.cbegin(), d->tabButtons.cend(),
                                      [](const QPushButton* tab) { return tab->hasFocus(); });
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const int step = event->key() == Qt::Key_Left ? -1 : event->key() == Qt::Key_Right ? 1 : 0;
    if (focused == d->tabButtons.cend() || !plain || step == 0) {
        QWidget::keyPressEvent(event);
        return;
    }
    // The arrows stop at the ends, as in a tab bar; Ctrl+Tab is the way round.
    const qsizetype target = (focused - d->tabButtons.cbegin()) + step;
    if (target >= 0 && target < d->tabButtons.size()) {
        QPushButton* button = d->tabButtons.at(target);
        selectTabByUser(static_cast<std::size_t>(target));
        // The delegate may have put the focus elsewhere (the search field); the
        // arrows keep it on the tabs, so that the next arrow goes on from here.
        button->setFocus(Qt::TabFocusReason);
    }
    event->accept();
}

void LMTabHeaderView::languageDidChange() {
    for (QPushButton* button : std::as_const(d->tabButtons)) {
        LMTabButton* tab = asTab(button);
        showTitle(*tab, lizationMgr()->stringForKey(tab->titleKey()), *lizationMgr());
        // A change to or from French widens or narrows the sixth place; each
        // tab keeps its own place, so a gap left by a removal stays.
        tab->setGeometry(frameOfTabButton(tab->tag()));
    }
    updateScrolling();
    ensureTabVisible(d->indexOfSelected);
}
