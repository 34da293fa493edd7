// SPDX-License-Identifier: MIT
#include "LMProgressIndicator.h"

#include <QPainter>
#include <QVariantAnimation>

namespace {
constexpr int kSpokes = 12;
constexpr int kTurnMilliseconds = 1000;
} // namespace

LMProgressIndicator::LMProgressIndicator(QWidget* parent)
    : QWidget(parent), m_animation(new QVariantAnimation(this)) {
    m_animation->setStartValue(0);
    m_animation->setEndValue(kSpokes);
    m_animation->setDuration(kTurnMilliseconds);
    m_animation->setLoopCount(-1);
    connect(m_animation, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        const int step = value.toInt() % kSpokes;
        if (step != m_step) {
            m_step = step;
            update();
        }
    });
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAccessibleName(QStringLiteral("progress"));
}

void LMProgressIndicator::startAnimation() {
    if (isAnimating())
        return;
    m_animation->start();
    Q_EMIT animatingChanged(true);
}

void LMProgressIndicator::stopAnimation() {
    if (!isAnimating())
        return;
    m_animation->stop();
    Q_EMIT animatingChanged(false);
}

bool LMProgressIndicator::isAnimating() const {
    return m_animation->state() == QAbstractAnimation::Running;
}

QSize LMProgressIndicator::sizeHint() const {
    return {32, 32};
}

void LMProgressIndicator::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal side = qMin(width(), height());
    painter.translate(width() / 2.0, height() / 2.0);
    const qreal outer = side / 2.0 - 1.0;
    const qreal inner = outer * 0.5;
    const qreal thickness = qMax(2.0, side / 12.0);
    for (int i = 0; i < kSpokes; ++i) {
        // The spoke at the current step is darkest; the ones behind it fade out.
        const int age = (m_step - i + kSpokes) % kSpokes;
        QColor colour(90, 90, 96);
        colour.setAlphaF(1.0 - 0.75 * age / (kSpokes - 1));
        painter.setPen(QPen(colour, thickness, Qt::SolidLine, Qt::RoundCap));
        painter.save();
        painter.rotate(360.0 * i / kSpokes);
        painter.drawLine(QPointF(0, -inner), QPointF(0, -outer));
        painter.restore();
    }
}
