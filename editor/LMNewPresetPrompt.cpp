// SPDX-License-Identifier: MIT
#include "LMNewPresetPrompt.h"

#include "LMFormatInternationalizationMgr.h"
#include "LMNewPresetView.h"
#include "ui_LMNewPresetPrompt.h"

#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

struct LMNewPresetPrompt::Private {
    Ui::LMNewPresetPrompt ui;
    QPointer<LMNewPresetView> accessoryView;

    QPushButton* okButton() const { return ui.buttonBox->button(QDialogButtonBox::Ok); }
    QPushButton* cancelButton() const { return ui.buttonBox->button(QDialogButtonBox::Cancel); }
};

LMNewPresetPrompt::LMNewPresetPrompt(QWidget* parent)
    : QDialog(parent), d(std::make_unique<Private>()) {
    d->ui.setupUi(this);
    QPushButton* ok = d->okButton();
    QPushButton* cancel = d->cancelButton();
    ok->setObjectName(QStringLiteral("btnOK"));
    cancel->setObjectName(QStringLiteral("btnCancel"));
    // "OK" reads the same in every language the popup offers.
    ok->setText(QStringLiteral("OK"));
    // Enter in the name field answers "OK".
    ok->setDefault(true);
    connect(d->ui.buttonBox, &QDialogButtonBox::accepted, this,
            [this] { done(FirstButtonReturn); });
    connect(d->ui.buttonBox, &QDialogButtonBox::rejected, this,
            [this] { done(SecondButtonReturn); });
    connect(lizationMgr(), &LMFormatInternationalizationMgr::languageDidChange, this,
            &LMNewPresetPrompt::languageDidChanged);
    languageDidChanged();
}

LMNewPresetPrompt::~LMNewPresetPrompt() = default;

QString LMNewPresetPrompt::messageText() const {
    return d->ui.lblMessage->text();
}

void LMNewPresetPrompt::setMessageText(const QString& text) {
    // The title bar is the caller's (the editor puts the application's name
    // there); repeating the message in it would show the same words twice.
    d->ui.lblMessage->setText(text);
}

QString LMNewPresetPrompt::informativeText() const {
    return d->ui.lblInformative->text();
}

void LMNewPresetPrompt::setInformativeText(const QString& text) {
    d->ui.lblInformative->setText(text);
}

LMNewPresetView* LMNewPresetPrompt::accessoryView() const {
    return d->accessoryView;
}

void LMNewPresetPrompt::setAccessoryView(LMNewPresetView* view) {
    if (view == d->accessoryView)
        return;
    delete d->accessoryView;
    d->accessoryView = view;
    if (view)
        d->ui.accessoryLayout->addWidget(view);
}

void LMNewPresetPrompt::beginSheetModalForWindow(QWidget* window,
                                                 std::function<void(int)> completionHandler) {
    if (window && parentWidget() != window)
        setParent(window, windowFlags());
    connect(this, &QDialog::finished, this,
            [this, handler = std::move(completionHandler)](int response) {
                if (handler)
                    handler(response);
                deleteLater();
            });
    open();
    // The proposed name is selected, so typing replaces it and Enter keeps it.
    if (d->accessoryView) {
        d->accessoryView->textField()->setFocus(Qt::OtherFocusReason);
        d->accessoryView->textField()->selectAll();
    }
}

LMFormatInternationalizationMgr* LMNewPresetPrompt::lizationMgr() const {
    return LMFormatInternationalizationMgr::sharedObject();
}

void LMNewPresetPrompt::reject() {
    done(SecondButtonReturn);
}

void LMNewPresetPrompt::languageDidChanged() {
    d->cancelButton()->setText(lizationMgr()->stringForKey(QStringLiteral("Cancel")));
}
