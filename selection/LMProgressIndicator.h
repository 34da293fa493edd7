// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QVariantAnimation;

// The small spinning wheel the popup shows until its formats have arrived:
// twelve spokes whose brightness runs round the circle, like the platform's own
// indeterminate indicator.
class LMProgressIndicator : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool animating READ isAnimating NOTIFY animatingChanged)

public:
    explicit LMProgressIndicator(QWidget* parent = nullptr);

    void startAnimation();
    void stopAnimation();
    bool isAnimating() const;
    QSize sizeHint() const override;

Q_SIGNALS:
    void animatingChanged(bool animating);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QVariantAnimation* m_animation;
    int m_step = 0;
};
