// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

#include <memory>

class LMFormatInternationalizationMgr;
class QLineEdit;

// The one-field view in which the user names a new custom preset. strValue
// carries the proposed name in and the typed name out: setting it shows it in
// the field, and every edit of the field updates it.
class LMNewPresetView : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString strValue READ strValue WRITE setStrValue NOTIFY strValueChanged)

public:
    explicit LMNewPresetView(QWidget* parent = nullptr);
    ~LMNewPresetView() override;

    // A new view from its layout file; the caller (or parent) owns it.
    static LMNewPresetView* creatNewPresetView(QWidget* parent = nullptr);

    // The name as the field holds it; no trimming, no checks. Null until set.
    QString strValue() const;
    void setStrValue(const QString& strValue);

    // The field the name is typed into.
    QLineEdit* textField() const;

    LMFormatInternationalizationMgr* lizationMgr() const;

Q_SIGNALS:
    void strValueChanged(const QString& strValue);

private:
    void textDidChange(const QString& text);
    void languageDidChanged();

    struct Private;
    std::unique_ptr<Private> d;
};
