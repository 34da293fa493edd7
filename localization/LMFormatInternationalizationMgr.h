// SPDX-License-Identifier: MIT
#pragma once

#include "LMCoreExport.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

// Display names of the languages the popup can be shown in. A host passes one of
// them to LMFormatInternationalizationMgr::setLanguage().
inline const QString LMFormatLanguageEnglish = QStringLiteral("English");
inline const QString LMFormatLanguageJapanese = QStringLiteral("日本語");
inline const QString LMFormatLanguageChinese = QStringLiteral("中文");
inline const QString LMFormatLanguageFrench = QStringLiteral("Français");
inline const QString LMFormatLanguageGerman = QStringLiteral("Deutsch");
inline const QString LMFormatLanguageItalian = QStringLiteral("Italiano");
inline const QString LMFormatLanguageSpanish = QStringLiteral("Español");
inline const QString LMFormatLanguagePortuguese = QStringLiteral("Português");

// Name of the language-change announcement. The announcement itself is the
// languageDidChange() signal; the name stays exported so a host that routes
// announcements by name can keep doing so.
inline const QString LMFormatLanguageDidChangeNotification =
    QStringLiteral("LMFormatLanguageDidChangeNotification");

// Chooses the popup's interface language independently of the host's own
// language, finds the localized text of an English key in the framework's own
// tables and announces a change of language.
//
// Bundles. A "bundle" is the path of a folder of the framework's Qt resources.
// The framework bundle is frameworkBundle() (":/LMMediaFormatPopup"); each
// language has a folder "<code>.lproj" inside it holding the compiled table
// "Localizable.qm" (context "Localizable", source text = the English key), e.g.
// ":/LMMediaFormatPopup/zh-Hans.lproj/Localizable.qm". A missing folder is a null
// QString, and every lookup in it gives a null QString.
//
// The current language is never cached: each lookup reads the code stored under
// "LMFormatUserLanguageKey" in ILMAppSettings::Shared() again, so a code changed
// behind the manager's back counts from the next lookup on. Only the loaded table
// of each folder is kept, since it never changes while the process runs.
//
// The host's default language comes from the host's own translators: the
// translation of "DB_C_SysLanguage" in the context systemLanguageContext()
// ("LMMediaFormatPopup"). The manager never installs translators of its own into
// QCoreApplication, so it cannot change what the host's lookups return.
//
// Main thread only, like the views bound to it; sharedObject() itself may be
// called from any thread.
class LMCORE_EXPORT LMFormatInternationalizationMgr : public QObject {
    Q_OBJECT
    Q_PROPERTY(QStringList allKey READ allKey CONSTANT)
    Q_PROPERTY(QString language READ language NOTIFY languageDidChange)
    Q_PROPERTY(QString languageCode READ languageCode NOTIFY languageDidChange)
    Q_PROPERTY(QString languageBundle READ languageBundle NOTIFY languageDidChange)
    Q_PROPERTY(QStringList supportLanguages READ supportLanguages CONSTANT)

public:
    explicit LMFormatInternationalizationMgr(QObject* parent = nullptr);
    ~LMFormatInternationalizationMgr() override;

    // The one instance of the process, made on first use.
    static LMFormatInternationalizationMgr* sharedObject();

    // Settings key of the user's choice; its value is a language code.
    static QString userLanguageKey();
    // Context in which the host's translators are asked for "DB_C_SysLanguage".
    static QString systemLanguageContext();
    // Context of the framework's own tables.
    static QString tableContext();
    // The folder of the framework's resources that holds the language folders.
    static QString frameworkBundle();

    // Fills allKey with the keys whose bound values follow a language change.
    void setUpAllKey();
    QStringList allKey() const;
    // Sends valueChanged(key) for every entry of allKey, in order; a key that
    // stands in the list twice is announced twice.
    void allKeyChange();

    // Display name of the current language.
    QString language() const;
    // Stores the code of the named language, announces a change of every key
    // and then of the language. Every call announces, even when nothing changed.
    void setLanguage(const QString& language);
    // The host's "DB_C_SysLanguage" translation, or "en" when it has none.
    QString systemLanguageCode() const;
    QString languageCode() const;
    // Code of the display name; "en" for a name it does not know.
    QString codeWithLanguage(const QString& language) const;
    // Display name of the code; for a code it does not know, systemLanguageCode()
    // (a code, not a display name, which codeWithLanguage() turns into "en").
    QString languageWithCode(const QString& code) const;
    // The display names offered to the user. "中文" is not among them although
    // both conversions know it.
    QStringList supportLanguages() const;

    // Folder of the current language, or a null QString when there is none.
    QString languageBundle() const;
    // Folder "<code>.lproj" inside bundle, or a null QString when there is none.
    QString subBundleWithBundle(const QString& bundle, const QString& languageCode) const;

    // Localized text of key in the current language. A key missing from the
    // table gives the key itself; a missing language folder gives a null QString.
    QString stringForKey(const QString& key) const;
    // stringForKey() of the shared instance.
    static QString classStringForKey(const QString& key);
    // Text of key in the table of the given folder, with the same fallbacks as
    // stringForKey().
    QString stringForKeyInBundle(const QString& key, const QString& bundle) const;

    // Key-value access for bindings: a key that names a property of the manager
    // ("language", "languageCode", "allKey", ...) gives that property; any other
    // key gives its localized text.
    QVariant valueForKey(const QString& key) const;

Q_SIGNALS:
    // The value bound to key may have changed; re-read valueForKey(key).
    void valueChanged(const QString& key);
    // The language was set (LMFormatLanguageDidChangeNotification).
    void languageDidChange();

private:
    QVariant valueForUndefinedKey(const QString& key) const;
    void publishShownTexts() const;

    struct Private;
    std::unique_ptr<Private> d;
};
