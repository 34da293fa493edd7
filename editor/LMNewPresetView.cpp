// SPDX-License-Identifier: MIT
#include "LMNewPresetView.h"

#include "ILMFormatNode.h"
#include "LMFormatInternationalizationMgr.h"
#include "ui_LMNewPresetView.h"

#include <QLineEdit>

struct LMNewPresetView::Private {
    Ui::LMNewPresetView ui;
    QString strValue;
};

LMNewPresetView::LMNewPresetView(QWidget* parent)
    : QWidget(parent), d(std::make_unique<Private>()) {
    d->ui.setupUi(this);
    // A name the stored lists could not read back is never typed in the first
    // place; the hint below the field says why typing stops.
    d->ui.textField->setMaxLength(Lumeran::ILMFormatNode::MaxTextLength);
    // The view's own field only: what is typed elsewhere is never taken for the name.
    connect(d->ui.textField, &QLineEdit::textChanged, this, &LMNewPresetView::textDidChange);
    connect(lizationMgr(), &LMFormatInternationalizationMgr::languageDidChange, this,
            &LMNewPresetView::languageDidChanged);
    languageDidChanged();
}

LMNewPresetView::~LMNewPresetView() = default;

LMNewPresetView* LMNewPresetView::creatNewPresetView(QWidget* parent) {
    return new LMNewPresetView(parent);
}

QString LMNewPresetView::strValue() const {
    return d->strValue;
}

void LMNewPresetView::setStrValue(const QString& strValue) {
    const bool changed = d->strValue != strValue;
    d->strValue = strValue;
    // The field shows the value; its own change notice then finds nothing new.
    if (d->ui.textField->text() != strValue)
        d->ui.textField->setText(strValue);
    if (changed)
        Q_EMIT strValueChanged(strValue);
}

QLineEdit* LMNewPresetView::textField() const {
    return d->ui.textField;
}

LMFormatInternationalizationMgr* LMNewPresetView::lizationMgr() const {
    return LMFormatInternationalizationMgr::sharedObject();
}

void LMNewPresetView::textDidChange(const QString& text) {
    d->ui.lblLimit->setVisible(text.size() >= d->ui.textField->maxLength());
    if (text == d->strValue)
        return;
    d->strValue = text;
    Q_EMIT strValueChanged(text);
}

void LMNewPresetView::languageDidChanged() {
    d->ui.lblName->setText(lizationMgr()->stringForKey(QStringLiteral("preset name")));
    d->ui.lblLimit->setText(
        lizationMgr()
            ->stringForKey(QStringLiteral("Names are limited to %1 characters."))
            .arg(d->ui.textField->maxLength()));
}
