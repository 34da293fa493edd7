#include "LMFormatDataView.h"

#include "LMFormatDataViewDelegate.h"
#include "LMFormatInternationalizationMgr.h"

#include "ui_LMFormatDataViewItem.h"

#include <QCursor>
#include <QFontMetrics>
#include <QLayout>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <functional>

namespace {

constexpr int kImageSize = 32;
constexpr int kGlyphSize = 16;
constexpr qreal kHighlightInset = 4.0;
constexpr qreal kHighlightRadius = 6.0;

// The button glyphs are drawn rather than shipped, at each common scale factor,
// so they stay sharp on every screen.
QIcon glyphIcon(const std::function<void(QPainter&)>& draw) {
    QIcon icon;
    for (const qreal ratio : {1.0, 2.0, 3.0}) {
        QPixmap pixmap(QSize(kGlyphSize, kGlyphSize) * ratio);
        pixmap.setDevicePixelRatio(ratio);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor(96, 96, 96), 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        draw(painter);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

QIcon pencilIcon() {
    return glyphIcon([](QPainter& painter) {
        painter.translate(kGlyphSize / 2.0, kGlyphSize / 2.0);
        painter.rotate(-45.0);
        QPainterPath body;
        body.moveTo(-7.0, 0.0);
        body.lineTo(-4.2, -2.0);
        body.lineTo(5.5, -2.0);
        body.lineTo(5.5, 2.0);
        body.lineTo(-4.2, 2.0);
        body.closeSubpath();
        painter.drawPath(body);
        painter.drawLine(QPointF(-4.2, -2.0), QPointF(-4.2, 2.0));
        painter.drawLine(QPointF(3.5, -2.0), QPointF(3.5, 2.0));
    });
}

QIcon crossIcon() {
    return glyphIcon([](QPainter& painter) {
        painter.setPen(QPen(QColor(96, 96, 96), 1.6, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(4.5, 4.5), QPointF(11.5, 11.5));
        painter.drawLine(QPointF(11.5, 4.5), QPointF(4.5, 11.5));
    });
}

} // namespace

struct LMFormatDataView::Private {
    Ui::LMFormatDataViewItem ui;
    LMFormatDataViewDelegate* delegate = nullptr;
    bool mouseIn = false;
    QIcon image;
    QString title;
    QString description;
    mutable QPixmap snapshot;

    QAbstractButton* button(ActionButton which) const {
        switch (which) {
        case ActionButton::Edit:
            return ui.editButton;
        case ActionButton::Remove:
            return ui.removeButton;
        case ActionButton::None:
            break;
        }
        return nullptr;
    }
};

LMFormatDataView::LMFormatDataView(QWidget* parent) : QWidget(parent), d(new Private) {
    d->ui.setupUi(this);
    d->ui.editButton->setIcon(pencilIcon());
    d->ui.removeButton->setIcon(crossIcon());
    d->ui.editButton->setVisible(false);
    d->ui.removeButton->setVisible(false);

    // The description is secondary: a little smaller and muted.
    QFont descriptionFont = d->ui.descriptionLabel->font();
    descriptionFont.setPointSizeF(descriptionFont.pointSizeF() * 0.9);
    d->ui.descriptionLabel->setFont(descriptionFont);
    QPalette descriptionPalette = d->ui.descriptionLabel->palette();
    const QColor text = descriptionPalette.color(QPalette::WindowText);
    const QColor window = descriptionPalette.color(QPalette::Window);
    const auto mix = [](int a, int b) { return (a * 55 + b * 45) / 100; };
    descriptionPalette.setColor(QPalette::WindowText, QColor(mix(text.red(), window.red()),
                                                             mix(text.green(), window.green()),
                                                             mix(text.blue(), window.blue())));
    d->ui.descriptionLabel->setPalette(descriptionPalette);

    const auto translate = [this] {
        const QString edit = lizationMgr()->stringForKey(QStringLiteral("Edit"));
        const QString remove = lizationMgr()->stringForKey(QStringLiteral("Remove"));
        d->ui.editButton->setToolTip(edit);
        d->ui.editButton->setAccessibleName(edit);
        d->ui.removeButton->setToolTip(remove);
        d->ui.removeButton->setAccessibleName(remove);
    };
    translate();
    connect(lizationMgr(), &LMFormatInternationalizationMgr::languageDidChange, this, translate);
}

LMFormatDataView::~LMFormatDataView() = default;

LMFormatDataViewDelegate* LMFormatDataView::delegate() const {
    return d->delegate;
}

void LMFormatDataView::setDelegate(LMFormatDataViewDelegate* delegate) {
    d->delegate = delegate;
}

QColor LMFormatDataView::borderColor() {
    static const QColor color = QColor::fromRgb(191, 191, 191);
    return color;
}

QColor LMFormatDataView::highlightColor() {
    return QColor::fromRgb(221, 220, 221);
}

bool LMFormatDataView::selected() const {
    return d->delegate && d->delegate->formatDataViewSelected(const_cast<LMFormatDataView*>(this));
}

bool LMFormatDataView::mouseIn() const {
    return d->mouseIn;
}

void LMFormatDataView::mouseEntered() {
    d->mouseIn = true;
    setNeedsDisplay();
    if (d->delegate)
        d->delegate->formatDataViewMouseEnter(this);
}

void LMFormatDataView::mouseExited() {
    d->mouseIn = false;
    setNeedsDisplay();
    if (d->delegate)
        d->delegate->formatDataViewMouseExited(this);
}

bool LMFormatDataView::resetMouseState() {
    const QPoint local = mapFromGlobal(QCursor::pos());
    bool inside = rect().contains(local);
    // Part of a cell can lie outside the list's visible area while it scrolls,
    // and a list that is not on screen has nothing under the pointer.
    if (const QWidget* host = parentWidget())
        inside = inside && host->isVisible() && host->rect().contains(mapToParent(local));
    if (inside != d->mouseIn) {
        d->mouseIn = inside;
        setNeedsDisplay();
    }
    return d->mouseIn;
}

void LMFormatDataView::setImage(const QIcon& image) {
    d->image = image;
    d->ui.imageLabel->setPixmap(
        image.isNull() ? QPixmap()
                       : image.pixmap(QSize(kImageSize, kImageSize), devicePixelRatioF()));
    setNeedsDisplay();
}

void LMFormatDataView::setTitle(const QString& title) {
    d->title = title;
    contentsChanged();
}

void LMFormatDataView::setDescription(const QString& description) {
    d->description = description;
    contentsChanged();
}

void LMFormatDataView::setDescriptionVisible(bool visible) {
    d->ui.descriptionLabel->setVisible(visible);
    contentsChanged();
}

void LMFormatDataView::setEditVisible(bool visible) {
    d->ui.editButton->setVisible(visible);
    contentsChanged();
}

void LMFormatDataView::setRemoveVisible(bool visible) {
    d->ui.removeButton->setVisible(visible);
    contentsChanged();
}

// Texts are elided to the room left beside the buttons, so any change of the
// contents lays the cell out again.
void LMFormatDataView::contentsChanged() {
    placeAt(geometry());
    setNeedsDisplay();
}

bool LMFormatDataView::isEditVisible() const {
    return !d->ui.editButton->isHidden();
}

bool LMFormatDataView::isRemoveVisible() const {
    return !d->ui.removeButton->isHidden();
}

void LMFormatDataView::placeAt(const QRect& rect) {
    setGeometry(rect);
    // A cell that is never shown gets its resize event only when painted; lay
    // it out now so that buttons can be hit-tested where they will be drawn.
    if (QLayout* cellLayout = layout()) {
        cellLayout->invalidate();
        cellLayout->setGeometry(QRect(QPoint(), rect.size()));
    }
    const auto elide = [](QLabel* label, const QString& text) {
        const int width = label->width();
        label->setText(width > 0 ? label->fontMetrics().elidedText(text, Qt::ElideRight, width)
                                 : text);
    };
    elide(d->ui.titleLabel, d->title);
    elide(d->ui.descriptionLabel, d->description);
}

LMFormatDataView::ActionButton LMFormatDataView::actionButtonAt(const QPoint& pos) const {
    for (const ActionButton which : {ActionButton::Edit, ActionButton::Remove}) {
        if (actionButtonGeometry(which).contains(pos))
            return which;
    }
    return ActionButton::None;
}

QRect LMFormatDataView::actionButtonGeometry(ActionButton button) const {
    const QAbstractButton* target = d->button(button);
    return target && !target->isHidden() ? target->geometry() : QRect();
}

void LMFormatDataView::setActionButtonDown(ActionButton button) {
    d->ui.editButton->setDown(button == ActionButton::Edit);
    d->ui.removeButton->setDown(button == ActionButton::Remove);
    setNeedsDisplay();
}

QString LMFormatDataView::actionButtonToolTip(ActionButton button) const {
    const QAbstractButton* target = d->button(button);
    return target ? target->toolTip() : QString();
}

void LMFormatDataView::setNeedsDisplay() {
    d->snapshot = QPixmap();
    update();
    if (QWidget* host = parentWidget())
        host->update(geometry());
}

QPixmap LMFormatDataView::snapshot(qreal devicePixelRatio) const {
    const QSize pixels = size() * devicePixelRatio;
    if (d->snapshot.size() != pixels || d->snapshot.devicePixelRatio() != devicePixelRatio) {
        // Drawn apart from the list's own painting, so that the list's clipping
        // and offsets never mix with the cell's.
        d->snapshot = QPixmap(pixels);
        d->snapshot.setDevicePixelRatio(devicePixelRatio);
        d->snapshot.fill(Qt::transparent);
        const_cast<LMFormatDataView*>(this)->render(&d->snapshot, QPoint(), QRegion(),
                                                    QWidget::DrawChildren);
    }
    return d->snapshot;
}

LMFormatInternationalizationMgr* LMFormatDataView::lizationMgr() const {
    return LMFormatInternationalizationMgr::sharedObject();
}

void LMFormatDataView::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    if (!d->mouseIn && !selected())
        return;
    // Hover and selection look the same.
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath background;
    background.addRoundedRect(QRectF(rect()).adjusted(kHighlightInset, kHighlightInset,
                                                      -kHighlightInset, -kHighlightInset),
                              kHighlightRadius, kHighlightRadius);
    painter.fillPath(background, highlightColor());
}

void LMFormatDataView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    placeAt(geometry());
}

void LMFormatDataView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
        contentsChanged();
        break;
    default:
        break;
    }
}
