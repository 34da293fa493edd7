// SPDX-License-Identifier: MIT
#include "LMFormatInternationalizationMgr.h"

#include "ILMAppSettings.h"
#include "ILMStringHelper.h"
#include "LMLocalizableStrings.h"
#include "LMShownText.h"
#include "LMSingleton.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMetaProperty>
#include <QTranslator>

#include <array>
#include <map>
#include <utility>

// The tables are compiled into this library as Qt resources. A shared library
// registers them when it is loaded; a static one needs the explicit call, which is
// harmless when the data is already registered. It has to be made outside any
// namespace.
static void initLocalizationResources() {
    Q_INIT_RESOURCE(lmfp_localization_tables);
}

namespace {

const char kSystemLanguageKey[] = "DB_C_SysLanguage";
const char kSystemLanguageContext[] = "LMMediaFormatPopup";
const char kUserLanguageKey[] = "LMFormatUserLanguageKey";
const char kEnglishCode[] = "en";
const char kTableFile[] = "Localizable.qm";

struct LanguageRow {
    const QString& name;
    const char* code;
};

// Both conversions walk this table from the top and take the first match.
const std::array<LanguageRow, 8>& languageTable() {
    static const std::array<LanguageRow, 8> table{{
        {LMFormatLanguageEnglish, "en"},
        {LMFormatLanguageJapanese, "ja"},
        {LMFormatLanguageChinese, "zh-Hans"},
        {LMFormatLanguageFrench, "fr"},
        {LMFormatLanguageGerman, "de"},
        {LMFormatLanguageItalian, "it"},
        {LMFormatLanguageSpanish, "es"},
        {LMFormatLanguagePortuguese, "pt-BR"},
    }};
    return table;
}

} // namespace

struct LMFormatInternationalizationMgr::Private {
    // The compiled table of a language folder, loaded on first use; null when the
    // folder is missing or holds no readable table.
    const QTranslator* tableOfBundle(const QString& bundle);

    QStringList allKey;
    // Loaded tables by folder. A folder's table never changes while the process
    // runs, so loading it once is enough; which folder is current is not kept.
    std::map<QString, std::unique_ptr<QTranslator>> tables;
};

const QTranslator* LMFormatInternationalizationMgr::Private::tableOfBundle(const QString& bundle) {
    if (bundle.isEmpty())
        return nullptr;
    const auto found = tables.find(bundle);
    if (found != tables.end())
        return found->second.get();
    auto table = std::make_unique<QTranslator>();
    // A folder without a readable table is treated like a missing folder: there
    // is nothing to look up in it.
    if (!QFileInfo(bundle).isDir() ||
        !table->load(bundle + QLatin1Char('/') + QLatin1String(kTableFile)))
        table.reset();
    const QTranslator* result = table.get();
    tables.emplace(bundle, std::move(table));
    return result;
}

LMFormatInternationalizationMgr::LMFormatInternationalizationMgr(QObject* parent)
    : QObject(parent), d(std::make_unique<Private>()) {
    initLocalizationResources();
    setUpAllKey();
    publishShownTexts();
}

LMFormatInternationalizationMgr::~LMFormatInternationalizationMgr() = default;

namespace {
// Kept across a test's reset: every window and list holds it by pointer, also
// the ones a test makes itself; the test fixture sets the language instead.
using ManagerSingleton = Lumeran::LMSingleton<LMFormatInternationalizationMgr>;
constinit ManagerSingleton s_manager{
    [] { return std::make_shared<LMFormatInternationalizationMgr>(); }, nullptr,
    ManagerSingleton::OnReset::Keep};
} // namespace

LMFormatInternationalizationMgr* LMFormatInternationalizationMgr::sharedObject() {
    return s_manager.Instance().get();
}

QString LMFormatInternationalizationMgr::userLanguageKey() {
    return QString::fromLatin1(kUserLanguageKey);
}

QString LMFormatInternationalizationMgr::systemLanguageContext() {
    return QString::fromLatin1(kSystemLanguageContext);
}

QString LMFormatInternationalizationMgr::tableContext() {
    return QString::fromLatin1(LMLocalizableStrings::context);
}

QString LMFormatInternationalizationMgr::frameworkBundle() {
    return QStringLiteral(":/LMMediaFormatPopup");
}

void LMFormatInternationalizationMgr::setUpAllKey() {
    d->allKey = LMLocalizableStrings::boundKeyList();
}

QStringList LMFormatInternationalizationMgr::allKey() const {
    return d->allKey;
}

void LMFormatInternationalizationMgr::allKeyChange() {
    // Copied first: a receiver may call setUpAllKey() while the notices go out.
    const QStringList keys = d->allKey;
    for (const QString& key : keys)
        Q_EMIT valueChanged(key);
}

QString LMFormatInternationalizationMgr::language() const {
    QString code =
        QString::fromStdString(Lumeran::ILMAppSettings::Shared()->StringValue(kUserLanguageKey));
    if (code.isEmpty())
        code = systemLanguageCode();
    return languageWithCode(code);
}

void LMFormatInternationalizationMgr::setLanguage(const QString& language) {
    const QString code = codeWithLanguage(language);
    const auto settings = Lumeran::ILMAppSettings::Shared();
    settings->SetStringValue(code.toStdString(), kUserLanguageKey);
    settings->Synchronize();
    publishShownTexts();
    allKeyChange();
    Q_EMIT languageDidChange();
}

// Search matches what the user reads: the data source gets every text of the
// tables as the current language shows it, lower-cased as search lower-cases.
void LMFormatInternationalizationMgr::publishShownTexts() const {
    const QString bundle = languageBundle();
    Lumeran::LMShownText::Table table;
    for (const QString& key : LMLocalizableStrings::keyList()) {
        const QString shown = stringForKeyInBundle(key, bundle);
        if (shown.isEmpty() || shown == key)
            continue;
        table.emplace(key.toStdString(), Lumeran::ILMStringHelper::ToLower(shown.toStdString()));
    }
    Lumeran::LMShownText::SetLowerCaseTable(std::move(table));
}

QString LMFormatInternationalizationMgr::systemLanguageCode() const {
    // Asked through QCoreApplication so that the host's own installed translators
    // answer; the framework's tables are never installed there.
    const QString code = QCoreApplication::translate(kSystemLanguageContext, kSystemLanguageKey);
    if (code == QLatin1String(kSystemLanguageKey))
        return QString::fromLatin1(kEnglishCode);
    return code;
}

QString LMFormatInternationalizationMgr::languageCode() const {
    return codeWithLanguage(language());
}

QString LMFormatInternationalizationMgr::codeWithLanguage(const QString& language) const {
    for (const LanguageRow& row : languageTable()) {
        if (row.name == language)
            return QString::fromLatin1(row.code);
    }
    return QString::fromLatin1(kEnglishCode);
}

QString LMFormatInternationalizationMgr::languageWithCode(const QString& code) const {
    for (const LanguageRow& row : languageTable()) {
        if (code == QLatin1String(row.code))
            return row.name;
    }
    // A code, not a display name: callers that convert it back get "en" unless it
    // happens to be a display name. Kept so; hosts may rely on seeing the code.
    return systemLanguageCode();
}

QStringList LMFormatInternationalizationMgr::supportLanguages() const {
    return QStringList{LMFormatLanguageGerman,  LMFormatLanguageEnglish, LMFormatLanguageSpanish,
                       LMFormatLanguageFrench,  LMFormatLanguageItalian, LMFormatLanguagePortuguese,
                       LMFormatLanguageJapanese};
}

QString LMFormatInternationalizationMgr::languageBundle() const {
    return subBundleWithBundle(frameworkBundle(), languageCode());
}

QString LMFormatInternationalizationMgr::subBundleWithBundle(const QString& bundle,
                                                             const QString& languageCode) const {
    if (bundle.isEmpty() || languageCode.isEmpty())
        return QString();
    const QString path = bundle + QLatin1Char('/') + languageCode + QStringLiteral(".lproj");
    if (!QFileInfo(path).isDir())
        return QString();
    return path;
}

QString LMFormatInternationalizationMgr::stringForKey(const QString& key) const {
    return stringForKeyInBundle(key, languageBundle());
}

QString LMFormatInternationalizationMgr::classStringForKey(const QString& key) {
    return sharedObject()->stringForKey(key);
}

QString LMFormatInternationalizationMgr::stringForKeyInBundle(const QString& key,
                                                              const QString& bundle) const {
    const QTranslator* table = d->tableOfBundle(bundle);
    if (!table)
        return QString();
    const QString text = table->translate(LMLocalizableStrings::context, key.toUtf8().constData());
    if (text.isNull())
        return key;
    return text;
}

QVariant LMFormatInternationalizationMgr::valueForKey(const QString& key) const {
    const QMetaObject* meta = metaObject();
    const int index = meta->indexOfProperty(key.toUtf8().constData());
    if (index >= 0)
        return meta->property(index).read(this);
    return valueForUndefinedKey(key);
}

QVariant LMFormatInternationalizationMgr::valueForUndefinedKey(const QString& key) const {
    return stringForKey(key);
}
