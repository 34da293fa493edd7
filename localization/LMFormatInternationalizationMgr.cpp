#include "LMFormatInternationalizationMgr.h"

#include "ILMAppSettings.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMetaProperty>
#include <QTranslator>

#include <array>
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
const char kTableContext[] = "Localizable";
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

LMFormatInternationalizationMgr::LMFormatInternationalizationMgr(QObject* parent)
    : QObject(parent) {
    initLocalizationResources();
    setUpAllKey();
}

LMFormatInternationalizationMgr::~LMFormatInternationalizationMgr() = default;

LMFormatInternationalizationMgr* LMFormatInternationalizationMgr::sharedObject() {
    static LMFormatInternationalizationMgr instance;
    return &instance;
}

QString LMFormatInternationalizationMgr::userLanguageKey() {
    return QString::fromLatin1(kUserLanguageKey);
}

QString LMFormatInternationalizationMgr::systemLanguageContext() {
    return QString::fromLatin1(kSystemLanguageContext);
}

QString LMFormatInternationalizationMgr::tableContext() {
    return QString::fromLatin1(kTableContext);
}

QString LMFormatInternationalizationMgr::frameworkBundle() {
    return QStringLiteral(":/LMMediaFormatPopup");
}

void LMFormatInternationalizationMgr::setUpAllKey() {
    // The two audio format descriptions stand in the list twice on purpose: they
    // get two change notices each, and bindings rely on nothing else.
    m_allKey = QStringList{
        QStringLiteral("Video"),
        QStringLiteral("Audio"),
        QStringLiteral("Encoder"),
        QStringLiteral("Resolution"),
        QStringLiteral("FrameRate"),
        QStringLiteral("Quality"),
        QStringLiteral("Sample Rate"),
        QStringLiteral("Channel"),
        QStringLiteral("Save as New Preset"),
        QStringLiteral("Save"),
        QStringLiteral("preset name"),
        QStringLiteral("Recent"),
        QStringLiteral("Device"),
        QStringLiteral("Web Video"),
        QStringLiteral("Custom"),
        QStringLiteral("Search"),
        QStringLiteral("Same as source"),
        QStringLiteral("Auto"),
        QStringLiteral("High Quality"),
        QStringLiteral("Medium Quality"),
        QStringLiteral("Low Quality"),
        QStringLiteral("Settings"),
        QStringLiteral("customSave"),
        QStringLiteral("Reset"),
        QStringLiteral("Cancel"),
        QStringLiteral("High"),
        QStringLiteral("Medium"),
        QStringLiteral("Low"),
        QStringLiteral("Best"),
        QStringLiteral("MP4 file format"),
        QStringLiteral("MP4 file format with HEVC"),
        QStringLiteral("MOV file format with Apple ProRes"),
        QStringLiteral("MP4 file format for iTunes"),
        QStringLiteral("Matroska file format"),
        QStringLiteral("Matroska file format with HEVC"),
        QStringLiteral("Audiovisual Media file format"),
        QStringLiteral("AVI file format with XVID"),
        QStringLiteral("AVI file format with DIVX"),
        QStringLiteral("MXF file format with DNxHD"),
        QStringLiteral("MXF file format with Apple ProRes"),
        QStringLiteral("MPEG File format for VCD"),
        QStringLiteral("MPEG file format for SVCD"),
        QStringLiteral("MPEG file format for DVD - Video"),
        QStringLiteral("3GPP2 file format"),
        QStringLiteral("3GPP file format"),
        QStringLiteral("Waveform Audio File Format"),
        QStringLiteral("Audio Interchange File Format"),
        QStringLiteral("Simple Audio File Format"),
        QStringLiteral("Audio Interchange File Format"),
        QStringLiteral("Simple Audio File Format"),
        QStringLiteral("Matroska Audio File Format"),
    };
}

QStringList LMFormatInternationalizationMgr::allKey() const {
    return m_allKey;
}

void LMFormatInternationalizationMgr::allKeyChange() {
    // Copied first: a receiver may call setUpAllKey() while the notices go out.
    const QStringList keys = m_allKey;
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
    allKeyChange();
    Q_EMIT languageDidChange();
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
    const QTranslator* table = tableOfBundle(bundle);
    if (!table)
        return QString();
    const QString text = table->translate(kTableContext, key.toUtf8().constData());
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

const QTranslator* LMFormatInternationalizationMgr::tableOfBundle(const QString& bundle) const {
    if (bundle.isEmpty())
        return nullptr;
    const auto found = m_tables.find(bundle);
    if (found != m_tables.end())
        return found->second.get();
    auto table = std::make_unique<QTranslator>();
    // A folder without a readable table is treated like a missing folder: there
    // is nothing to look up in it.
    if (!QFileInfo(bundle).isDir() ||
        !table->load(bundle + QLatin1Char('/') + QLatin1String(kTableFile)))
        table.reset();
    const QTranslator* result = table.get();
    m_tables.emplace(bundle, std::move(table));
    return result;
}
