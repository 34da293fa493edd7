// SPDX-License-Identifier: MIT
#include "LMFormatInternationalizationMgr.h"

#include "ILMAppSettings.h"
#include "ILMFmtPresetRecentItem.h"
#include "LMFmtPresetDataSource.h"
#include "LMLocalizableStrings.h"
#include "LMTestEnvironment.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMetaProperty>
#include <QRegularExpression>
#include <QSet>
#include <QSignalSpy>
#include <QTranslator>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <ostream>
#include <set>
#include <string>
#include <vector>

using namespace Lumeran;

namespace {

const QStringList kLanguageCodes{
    QStringLiteral("en"), QStringLiteral("ja"), QStringLiteral("zh-Hans"), QStringLiteral("fr"),
    QStringLiteral("de"), QStringLiteral("it"), QStringLiteral("es"),      QStringLiteral("pt-BR")};

// A translator of the host application, installed into QCoreApplication for the
// lifetime of the object, as a host does at start.
class HostTranslator {
public:
    explicit HostTranslator(const QString& name) {
        const QString path = QStringLiteral(":/lmfp-test-host/") + name + QStringLiteral(".qm");
        m_loaded = m_translator.load(path);
        if (m_loaded)
            QCoreApplication::installTranslator(&m_translator);
    }
    ~HostTranslator() { QCoreApplication::removeTranslator(&m_translator); }
    HostTranslator(const HostTranslator&) = delete;
    HostTranslator& operator=(const HostTranslator&) = delete;

    bool loaded() const { return m_loaded; }

private:
    QTranslator m_translator;
    bool m_loaded = false;
};

void storeCode(const std::string& code) {
    auto settings = ILMAppSettings::Shared();
    settings->SetStringValue(code, "LMFormatUserLanguageKey");
    settings->Synchronize();
}

std::string storedCode() {
    return ILMAppSettings::Shared()->StringValue("LMFormatUserLanguageKey");
}

// The embedded, compiled table of one language folder.
std::unique_ptr<QTranslator> loadTable(const QString& code) {
    auto table = std::make_unique<QTranslator>();
    const QString path =
        QStringLiteral(":/LMMediaFormatPopup/") + code + QStringLiteral(".lproj/Localizable.qm");
    if (!table->load(path))
        return nullptr;
    return table;
}

// Sources and translations of one table as written in the source tree.
struct TsTable {
    bool readable = false;
    QStringList sources;
    QStringList contexts;
    int unfinished = 0;
    int empty = 0;
};

TsTable readTsTable(const QString& code) {
    TsTable result;
    QFile file(QString::fromStdString(
        TestSupport::SourcePath("resources/" + code.toStdString() + ".lproj/Localizable.ts")));
    if (!file.open(QIODevice::ReadOnly))
        return result;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("name")) {
            result.contexts << xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            result.sources << xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            if (xml.attributes().value(QLatin1String("type")) == QLatin1String("unfinished"))
                ++result.unfinished;
            if (xml.readElementText().isEmpty())
                ++result.empty;
        }
    }
    result.readable = !xml.hasError();
    return result;
}

// The keys every table must hold: those marked for lupdate.
QSet<QString> markedKeys() {
    const QStringList keys = LMLocalizableStrings::keyList();
    return QSet<QString>(keys.begin(), keys.end());
}

// Keys the interface passes to stringForKey() as literals, in the sources of the
// folders that show texts.
QSet<QString> literalKeysOfTheInterface() {
    static const QRegularExpression lookup(
        QStringLiteral(R"re(stringForKey\(\s*QStringLiteral\("([^"]+)"\)\s*\))re"));
    QSet<QString> keys;
    for (const char* folder : {"lists", "editor", "selection"}) {
        QDirIterator files(QString::fromStdString(TestSupport::SourcePath(folder)),
                           {QStringLiteral("*.cpp")}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (!file.open(QIODevice::ReadOnly))
                continue;
            const QString text = QString::fromUtf8(file.readAll());
            for (const QRegularExpressionMatch& match : lookup.globalMatch(text))
                keys.insert(match.captured(1));
        }
    }
    return keys;
}

// Every title and description of a catalogue node, its presets and its children.
void collectCatalogueTexts(const QJsonObject& node, QStringList& texts) {
    for (const char* field : {"title", "description"}) {
        if (node.value(QLatin1String(field)).isString())
            texts << node.value(QLatin1String(field)).toString();
    }
    const QJsonArray presets = node.value(QLatin1String("presets")).toArray();
    for (const QJsonValue& preset : presets) {
        for (const char* field : {"title", "description"}) {
            if (preset.toObject().value(QLatin1String(field)).isString())
                texts << preset.toObject().value(QLatin1String(field)).toString();
        }
    }
    const QJsonArray children = node.value(QLatin1String("children")).toArray();
    for (const QJsonValue& child : children)
        collectCatalogueTexts(child.toObject(), texts);
}

// A catalogue text made only of format, codec and measurement names ("H.264 /
// AAC", "HD 1080p", "Xvid 854x480 / MP3") reads the same in every language and
// falls back to itself; any other text is a word or phrase that needs a table
// entry.
bool isTechnicalText(const QString& text) {
    static const QRegularExpression upperOrNumber(QStringLiteral("^[A-Z0-9.x-]+$"));
    static const QRegularExpression digit(QStringLiteral("[0-9]"));
    static const QStringList names{QStringLiteral("Opus"), QStringLiteral("Xvid"),
                                   QStringLiteral("DivX"), QStringLiteral("ProRes"),
                                   QStringLiteral("WebM"), QString::fromUtf8("μ-law"),
                                   QStringLiteral("kHz"),  QStringLiteral("/")};
    const QStringList tokens = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString& token : tokens) {
        if (!upperOrNumber.match(token).hasMatch() && !digit.match(token).hasMatch() &&
            !names.contains(token))
            return false;
    }
    return !tokens.isEmpty();
}

} // namespace

class LMFormatInternationalizationMgrTest : public TestSupport::SettingsTest {
protected:
    LMFormatInternationalizationMgr mgr;
};

// --- conversions and the offered languages

TEST_F(LMFormatInternationalizationMgrTest,
       CodeWithLanguageOfChineseIsZhHansYetChineseIsNotOffered) {
    EXPECT_EQ(mgr.codeWithLanguage(LMFormatLanguageChinese), QStringLiteral("zh-Hans"));
    EXPECT_EQ(mgr.codeWithLanguage(QStringLiteral("中文")), QStringLiteral("zh-Hans"));
    EXPECT_FALSE(mgr.supportLanguages().contains(QStringLiteral("中文")));
}

TEST_F(LMFormatInternationalizationMgrTest, CodeWithLanguageOfUnknownNameIsEn) {
    EXPECT_EQ(mgr.codeWithLanguage(QStringLiteral("Klingon")), QStringLiteral("en"));
    EXPECT_EQ(mgr.codeWithLanguage(QString()), QStringLiteral("en"));
    // Codes are not display names.
    EXPECT_EQ(mgr.codeWithLanguage(QStringLiteral("ja")), QStringLiteral("en"));
    EXPECT_EQ(mgr.codeWithLanguage(QStringLiteral("english")), QStringLiteral("en"));
}

TEST_F(LMFormatInternationalizationMgrTest, LanguageWithUnknownCodeReturnsTheSystemLanguageCode) {
    EXPECT_EQ(mgr.languageWithCode(QStringLiteral("xx")), QStringLiteral("en"));
    HostTranslator host(QStringLiteral("host_ja"));
    ASSERT_TRUE(host.loaded());
    EXPECT_EQ(mgr.languageWithCode(QStringLiteral("xx")), QStringLiteral("ja"));
    EXPECT_EQ(mgr.languageWithCode(QStringLiteral("xx")), mgr.systemLanguageCode());
}

TEST_F(LMFormatInternationalizationMgrTest, ConversionsFollowTheLanguageTable) {
    const QStringList names{LMFormatLanguageEnglish, LMFormatLanguageJapanese,
                            LMFormatLanguageChinese, LMFormatLanguageFrench,
                            LMFormatLanguageGerman,  LMFormatLanguageItalian,
                            LMFormatLanguageSpanish, LMFormatLanguagePortuguese};
    ASSERT_EQ(names.size(), kLanguageCodes.size());
    for (qsizetype i = 0; i < names.size(); ++i) {
        EXPECT_EQ(mgr.codeWithLanguage(names[i]), kLanguageCodes[i]);
        EXPECT_EQ(mgr.languageWithCode(kLanguageCodes[i]), names[i]);
    }
}

TEST_F(LMFormatInternationalizationMgrTest, ExportedConstantsHaveTheirDisplayNames) {
    EXPECT_EQ(LMFormatLanguageEnglish, QStringLiteral("English"));
    EXPECT_EQ(LMFormatLanguageJapanese, QString::fromUtf8("日本語"));
    EXPECT_EQ(LMFormatLanguageChinese, QString::fromUtf8("中文"));
    EXPECT_EQ(LMFormatLanguageFrench, QString::fromUtf8("Français"));
    EXPECT_EQ(LMFormatLanguageGerman, QStringLiteral("Deutsch"));
    EXPECT_EQ(LMFormatLanguageItalian, QStringLiteral("Italiano"));
    EXPECT_EQ(LMFormatLanguageSpanish, QString::fromUtf8("Español"));
    EXPECT_EQ(LMFormatLanguagePortuguese, QString::fromUtf8("Português"));
    EXPECT_EQ(LMFormatLanguageDidChangeNotification,
              QStringLiteral("LMFormatLanguageDidChangeNotification"));
}

TEST_F(LMFormatInternationalizationMgrTest, SupportLanguagesAreTheSevenNamesInTheirOrder) {
    const QStringList expected{QStringLiteral("Deutsch"),  QStringLiteral("English"),
                               QStringLiteral("Español"),  QStringLiteral("Français"),
                               QStringLiteral("Italiano"), QStringLiteral("Português"),
                               QStringLiteral("日本語")};
    EXPECT_EQ(mgr.supportLanguages(), expected);
}

// --- the default language

TEST_F(LMFormatInternationalizationMgrTest,
       HostWithoutSysLanguageLocalizationAndNoStoredChoiceGivesEnglish) {
    ASSERT_EQ(storedCode(), "");
    EXPECT_EQ(mgr.systemLanguageCode(), QStringLiteral("en"));
    EXPECT_EQ(mgr.language(), QStringLiteral("English"));
    EXPECT_EQ(mgr.languageCode(), QStringLiteral("en"));
    EXPECT_EQ(mgr.stringForKey(QStringLiteral("FrameRate")), QStringLiteral("Frame Rate"));
}

TEST_F(LMFormatInternationalizationMgrTest, HostSysLanguageTranslationDecidesTheDefaultLanguage) {
    HostTranslator host(QStringLiteral("host_ja"));
    ASSERT_TRUE(host.loaded());
    EXPECT_EQ(mgr.systemLanguageCode(), QStringLiteral("ja"));
    EXPECT_EQ(mgr.language(), QString::fromUtf8("日本語"));
    EXPECT_EQ(mgr.languageCode(), QStringLiteral("ja"));
    EXPECT_EQ(mgr.stringForKey(QStringLiteral("Save")), QString::fromUtf8("保存"));
}

TEST_F(LMFormatInternationalizationMgrTest, StoredChoiceOutranksTheHostSysLanguage) {
    HostTranslator host(QStringLiteral("host_ja"));
    ASSERT_TRUE(host.loaded());
    storeCode("de");
    EXPECT_EQ(mgr.language(), QStringLiteral("Deutsch"));
    EXPECT_EQ(mgr.stringForKey(QStringLiteral("Save")), QStringLiteral("Speichern"));
}

TEST_F(LMFormatInternationalizationMgrTest,
       HostSysLanguageWithoutAFolderShowsTheCodeAndUsesEnglish) {
    HostTranslator host(QStringLiteral("host_pl"));
    ASSERT_TRUE(host.loaded());
    EXPECT_EQ(mgr.systemLanguageCode(), QStringLiteral("pl"));
    // languageWithCode() hands the code back for a code it does not know.
    EXPECT_EQ(mgr.language(), QStringLiteral("pl"));
    EXPECT_EQ(mgr.languageCode(), QStringLiteral("en"));
    EXPECT_EQ(mgr.stringForKey(QStringLiteral("customSave")),
              QStringLiteral("Enter a name for the new preset:"));
}

TEST_F(LMFormatInternationalizationMgrTest, UnknownStoredCodeFallsBackToEnglish) {
    storeCode("xx");
    EXPECT_EQ(mgr.language(), QStringLiteral("en"));
    EXPECT_EQ(mgr.languageCode(), QStringLiteral("en"));
    EXPECT_EQ(mgr.languageBundle(), QStringLiteral(":/LMMediaFormatPopup/en.lproj"));
    EXPECT_EQ(mgr.stringForKey(QStringLiteral("FrameRate")), QStringLiteral("Frame Rate"));
    EXPECT_EQ(mgr.stringForKey(QStringLiteral("preset name")), QStringLiteral("Preset name"));
}

TEST_F(LMFormatInternationalizationMgrTest,
       StoredCodeChangedDirectlyInSettingsTakesEffectAtNextLookup) {
    mgr.setLanguage(LMFormatLanguageFrench);
    EXPECT_EQ(mgr.stringForKey(QStringLiteral("Save")), QStringLiteral("Enregistrer"));
    storeCode("it");
    EXPECT_EQ(mgr.language(), QStringLiteral("Italiano"));
    EXPECT_EQ(mgr.stringForKey(QStringLiteral("Save")), QStringLiteral("Salva"));
    storeCode("");
    EXPECT_EQ(mgr.stringForKey(QStringLiteral("Save")), QStringLiteral("Save"));
}

// --- setting the language

TEST_F(LMFormatInternationalizationMgrTest, SetLanguageStoresTheCodeUnderTheUserLanguageKey) {
    mgr.setLanguage(LMFormatLanguagePortuguese);
    EXPECT_EQ(storedCode(), "pt-BR");
    EXPECT_EQ(LMFormatInternationalizationMgr::userLanguageKey(),
              QStringLiteral("LMFormatUserLanguageKey"));
    mgr.setLanguage(LMFormatLanguageChinese);
    EXPECT_EQ(storedCode(), "zh-Hans");
    EXPECT_EQ(mgr.language(), QString::fromUtf8("中文"));
    EXPECT_EQ(mgr.stringForKey(QStringLiteral("Cancel")), QString::fromUtf8("取消"));
    mgr.setLanguage(QStringLiteral("Klingon"));
    EXPECT_EQ(storedCode(), "en");
    EXPECT_TRUE(ILMAppSettings::Shared()->LastSynchronizeSucceeded());
}

TEST_F(LMFormatInternationalizationMgrTest,
       SetLanguageWithTheCurrentLanguageStillAnnouncesAndNoticesAll51Entries) {
    mgr.setLanguage(LMFormatLanguageGerman);
    QSignalSpy notices(&mgr, &LMFormatInternationalizationMgr::valueChanged);
    QSignalSpy announcements(&mgr, &LMFormatInternationalizationMgr::languageDidChange);
    ASSERT_EQ(mgr.language(), LMFormatLanguageGerman);
    mgr.setLanguage(LMFormatLanguageGerman);
    EXPECT_EQ(announcements.count(), 1);
    ASSERT_EQ(notices.count(), 51);
    for (int i = 0; i < notices.count(); ++i)
        EXPECT_EQ(notices.at(i).at(0).toString(), mgr.allKey().at(i));
}

TEST_F(LMFormatInternationalizationMgrTest,
       SetLanguageSendsExactly51KeyNoticesThenOneAnnouncement) {
    QStringList events;
    QObject::connect(&mgr, &LMFormatInternationalizationMgr::valueChanged, &mgr,
                     [&events](const QString& key) { events << QStringLiteral("key:") + key; });
    QObject::connect(&mgr, &LMFormatInternationalizationMgr::languageDidChange, &mgr,
                     [&events, this] {
                         // Receivers of the announcement already see the new language.
                         events << QStringLiteral("announce:") + mgr.languageCode();
                     });
    mgr.setLanguage(LMFormatLanguageSpanish);
    ASSERT_EQ(events.size(), 52);
    for (qsizetype i = 0; i < 51; ++i)
        EXPECT_EQ(events[i], QStringLiteral("key:") + mgr.allKey()[i]);
    EXPECT_EQ(events.last(), QStringLiteral("announce:es"));
}

TEST_F(LMFormatInternationalizationMgrTest, DuplicatedKeysReceiveTwoNoticesEach) {
    std::map<QString, int> counts;
    QObject::connect(&mgr, &LMFormatInternationalizationMgr::valueChanged, &mgr,
                     [&counts](const QString& key) { ++counts[key]; });
    mgr.allKeyChange();
    EXPECT_EQ(counts[QStringLiteral("Audio Interchange File Format")], 2);
    EXPECT_EQ(counts[QStringLiteral("Simple Audio File Format")], 2);
    EXPECT_EQ(counts.size(), 49u);
    for (const auto& [key, count] : counts) {
        if (key != QStringLiteral("Audio Interchange File Format") &&
            key != QStringLiteral("Simple Audio File Format")) {
            EXPECT_EQ(count, 1) << key.toStdString();
        }
    }
}

TEST_F(LMFormatInternationalizationMgrTest, AllKeyHolds51EntriesOf49KeysInListOrder) {
    const QStringList keys = mgr.allKey();
    ASSERT_EQ(keys.size(), 51);
    EXPECT_EQ(QSet<QString>(keys.begin(), keys.end()).size(), 49);
    EXPECT_EQ(keys.first(), QStringLiteral("Video"));
    EXPECT_EQ(keys[4], QStringLiteral("FrameRate"));
    EXPECT_EQ(keys[22], QStringLiteral("customSave"));
    EXPECT_EQ(keys[40], QStringLiteral("MPEG File format for VCD"));
    EXPECT_EQ(keys[46], QStringLiteral("Audio Interchange File Format"));
    EXPECT_EQ(keys[48], QStringLiteral("Audio Interchange File Format"));
    EXPECT_EQ(keys[47], QStringLiteral("Simple Audio File Format"));
    EXPECT_EQ(keys[49], QStringLiteral("Simple Audio File Format"));
    EXPECT_EQ(keys.last(), QStringLiteral("Matroska Audio File Format"));
    mgr.setUpAllKey();
    EXPECT_EQ(mgr.allKey(), keys);
}

// --- lookups

struct LanguageFolderRow {
    const char* code;
    const char* save;
};

void PrintTo(const LanguageFolderRow& row, std::ostream* out) {
    *out << row.code;
}

class LMFormatLanguageFolderTest : public TestSupport::SettingsTest,
                                   public ::testing::WithParamInterface<LanguageFolderRow> {};

TEST_P(LMFormatLanguageFolderTest, FolderExistsAndTranslatesSaveToItsOwnLanguage) {
    const QString code = QString::fromUtf8(GetParam().code);
    const QString folder =
        QStringLiteral(":/LMMediaFormatPopup/") + code + QStringLiteral(".lproj");
    LMFormatInternationalizationMgr mgr;
    EXPECT_EQ(mgr.subBundleWithBundle(LMFormatInternationalizationMgr::frameworkBundle(), code),
              folder);
    mgr.setLanguage(mgr.languageWithCode(code));
    EXPECT_EQ(mgr.languageCode(), code);
    EXPECT_EQ(mgr.languageBundle(), folder);
    EXPECT_EQ(mgr.stringForKey(QStringLiteral("Save")), QString::fromUtf8(GetParam().save));
}

INSTANTIATE_TEST_SUITE_P(
    EightLanguages, LMFormatLanguageFolderTest,
    ::testing::Values(LanguageFolderRow{"en", "Save"}, LanguageFolderRow{"ja", "保存"},
                      LanguageFolderRow{"zh-Hans", "保存"}, LanguageFolderRow{"fr", "Enregistrer"},
                      LanguageFolderRow{"de", "Speichern"}, LanguageFolderRow{"it", "Salva"},
                      LanguageFolderRow{"es", "Guardar"}, LanguageFolderRow{"pt-BR", "Salvar"}),
    [](const auto& info) {
        std::string name = info.param.code;
        std::erase(name, '-');
        return name;
    });

TEST_F(LMFormatInternationalizationMgrTest, KeyMissingFromTheTableReturnsTheKey) {
    mgr.setLanguage(LMFormatLanguageJapanese);
    EXPECT_EQ(mgr.stringForKey(QStringLiteral("No such key in any table")),
              QStringLiteral("No such key in any table"));
    EXPECT_EQ(mgr.stringForKey(QStringLiteral("H.264 / AAC")), QStringLiteral("H.264 / AAC"));
    EXPECT_EQ(mgr.stringForKey(QStringLiteral("Video")), QString::fromUtf8("ビデオ"));
}

TEST_F(LMFormatInternationalizationMgrTest, MissingLanguageFolderGivesNoBundleAndNullStrings) {
    const QString base = LMFormatInternationalizationMgr::frameworkBundle();
    EXPECT_TRUE(mgr.subBundleWithBundle(base, QStringLiteral("xx")).isNull());
    EXPECT_TRUE(mgr.subBundleWithBundle(base, QString()).isNull());
    EXPECT_TRUE(
        mgr.subBundleWithBundle(QStringLiteral(":/no-such-bundle"), QStringLiteral("en")).isNull());
    EXPECT_TRUE(mgr.stringForKeyInBundle(QStringLiteral("Save"), QString()).isNull());
    EXPECT_TRUE(mgr.stringForKeyInBundle(QStringLiteral("Save"),
                                         mgr.subBundleWithBundle(base, QStringLiteral("xx")))
                    .isNull());
    EXPECT_EQ(mgr.stringForKeyInBundle(QStringLiteral("Save"),
                                       mgr.subBundleWithBundle(base, QStringLiteral("it"))),
              QStringLiteral("Salva"));
}

TEST_F(LMFormatInternationalizationMgrTest,
       ValueForKeyGivesPropertiesByNameAndLocalizedTextOtherwise) {
    mgr.setLanguage(LMFormatLanguageFrench);
    EXPECT_EQ(mgr.valueForKey(QStringLiteral("language")).toString(),
              QString::fromUtf8("Français"));
    EXPECT_EQ(mgr.valueForKey(QStringLiteral("languageCode")).toString(), QStringLiteral("fr"));
    EXPECT_EQ(mgr.valueForKey(QStringLiteral("allKey")).toStringList(), mgr.allKey());
    EXPECT_EQ(mgr.valueForKey(QStringLiteral("supportLanguages")).toStringList(),
              mgr.supportLanguages());
    EXPECT_EQ(mgr.valueForKey(QStringLiteral("languageBundle")).toString(),
              QStringLiteral(":/LMMediaFormatPopup/fr.lproj"));
    EXPECT_EQ(mgr.valueForKey(QStringLiteral("Save")).toString(), QStringLiteral("Enregistrer"));
    EXPECT_EQ(mgr.valueForKey(QStringLiteral("Sample Rate")).toString(),
              QString::fromUtf8("Fréquence d’échantillonnage"));
    EXPECT_EQ(mgr.valueForKey(QStringLiteral("not a key")).toString(), QStringLiteral("not a key"));
}

TEST_F(LMFormatInternationalizationMgrTest, LanguagePropertiesNotifyOnTheAnnouncement) {
    const QMetaObject* meta = mgr.metaObject();
    const QMetaMethod announcement =
        QMetaMethod::fromSignal(&LMFormatInternationalizationMgr::languageDidChange);
    for (const char* name : {"language", "languageCode", "languageBundle"}) {
        const QMetaProperty property = meta->property(meta->indexOfProperty(name));
        ASSERT_TRUE(property.isValid()) << name;
        EXPECT_EQ(property.notifySignal(), announcement) << name;
    }
    EXPECT_TRUE(meta->property(meta->indexOfProperty("allKey")).isConstant());
}

TEST_F(LMFormatInternationalizationMgrTest, SharedObjectIsOneInstanceAndTheClassLookupUsesIt) {
    LMFormatInternationalizationMgr* shared = LMFormatInternationalizationMgr::sharedObject();
    ASSERT_NE(shared, nullptr);
    EXPECT_EQ(LMFormatInternationalizationMgr::sharedObject(), shared);
    EXPECT_EQ(shared->allKey().size(), 51);
    storeCode("es");
    EXPECT_EQ(LMFormatInternationalizationMgr::classStringForKey(QStringLiteral("Cancel")),
              QStringLiteral("Cancelar"));
    storeCode("ja");
    EXPECT_EQ(LMFormatInternationalizationMgr::classStringForKey(QStringLiteral("Cancel")),
              QString::fromUtf8("キャンセル"));
}

TEST_F(LMFormatInternationalizationMgrTest, FrameworkTablesStayOutOfTheHostsTranslators) {
    mgr.setLanguage(LMFormatLanguageGerman);
    ASSERT_EQ(mgr.stringForKey(QStringLiteral("Save")), QStringLiteral("Speichern"));
    // The framework's lookups went through its own tables only.
    EXPECT_EQ(QCoreApplication::translate("Localizable", "Save"), QStringLiteral("Save"));
    // And a host table of the same context does not leak into the framework.
    HostTranslator host(QStringLiteral("host_localizable"));
    ASSERT_TRUE(host.loaded());
    ASSERT_EQ(QCoreApplication::translate("Localizable", "Save"),
              QStringLiteral("Save (host table)"));
    EXPECT_EQ(mgr.stringForKey(QStringLiteral("Save")), QStringLiteral("Speichern"));
    mgr.setLanguage(LMFormatLanguageEnglish);
    EXPECT_EQ(mgr.stringForKey(QStringLiteral("Save")), QStringLiteral("Save"));
}

// --- the tables themselves

TEST(LMFormatLocalizationTables, EveryKeyOfAllKeyHasAnEntryInEveryTable) {
    TestSupport::IsolatedSettings settings;
    const LMFormatInternationalizationMgr mgr;
    for (const QString& code : kLanguageCodes) {
        const auto table = loadTable(code);
        ASSERT_NE(table, nullptr) << code.toStdString();
        for (const QString& key : mgr.allKey()) {
            const QString text = table->translate("Localizable", key.toUtf8().constData());
            EXPECT_FALSE(text.isEmpty()) << code.toStdString() << ": " << key.toStdString();
        }
    }
}

TEST(LMFormatLocalizationTables, EveryMarkedKeyHasAnEntryInEveryTable) {
    const QStringList keys = LMLocalizableStrings::keyList();
    ASSERT_GE(keys.size(), 49);
    for (const QString& code : kLanguageCodes) {
        const auto table = loadTable(code);
        ASSERT_NE(table, nullptr) << code.toStdString();
        for (const QString& key : keys) {
            EXPECT_FALSE(
                table->translate(LMLocalizableStrings::context, key.toUtf8().constData()).isEmpty())
                << code.toStdString() << ": " << key.toStdString();
        }
    }
}

TEST(LMFormatLocalizationTables, TablesHoldExactlyTheMarkedKeys) {
    const QSet<QString> marked = markedKeys();
    for (const QString& code : kLanguageCodes) {
        const TsTable table = readTsTable(code);
        ASSERT_TRUE(table.readable) << code.toStdString();
        const QSet<QString> sources(table.sources.begin(), table.sources.end());
        for (const QString& key : marked - sources)
            ADD_FAILURE() << code.toStdString() << " lacks the marked key \"" << key.toStdString()
                          << "\": run the update_translations target and translate it";
        for (const QString& source : sources - marked)
            ADD_FAILURE() << code.toStdString() << " holds \"" << source.toStdString()
                          << "\", which is no longer a marked key: run update_translations";
    }
}

TEST(LMFormatLocalizationTables, EveryKeyTheInterfaceLooksUpByNameIsMarked) {
    const QSet<QString> literal = literalKeysOfTheInterface();
    // The popup's search field, its title and the editor's name prompt at least.
    ASSERT_TRUE(literal.contains(QStringLiteral("Search")));
    ASSERT_TRUE(literal.contains(QStringLiteral("Choose a format")));
    ASSERT_TRUE(literal.contains(QStringLiteral("preset name")));
    const QSet<QString> marked = markedKeys();
    for (const QString& key : literal) {
        EXPECT_TRUE(marked.contains(key))
            << "\"" << key.toStdString()
            << "\" is looked up but not marked in localization/LMLocalizableStrings.h";
    }
}

TEST(LMFormatLocalizationTables, AllTablesHoldTheSameFinishedEntries) {
    const TsTable english = readTsTable(QStringLiteral("en"));
    ASSERT_TRUE(english.readable);
    ASSERT_GE(english.sources.size(), 49);
    EXPECT_EQ(QSet<QString>(english.sources.begin(), english.sources.end()).size(),
              english.sources.size())
        << "a source text stands twice in the English table";
    for (const QString& code : kLanguageCodes) {
        const TsTable table = readTsTable(code);
        ASSERT_TRUE(table.readable) << code.toStdString();
        EXPECT_EQ(table.contexts, QStringList{QStringLiteral("Localizable")}) << code.toStdString();
        EXPECT_EQ(table.sources, english.sources) << code.toStdString();
        EXPECT_EQ(table.unfinished, 0) << code.toStdString();
        EXPECT_EQ(table.empty, 0) << code.toStdString();
    }
}

TEST(LMFormatLocalizationTables, TranslatedTablesDifferFromEnglishWhereTheLanguageDoes) {
    // A table copied from English by mistake would still pass the completeness
    // checks; the common words must really be in the folder's language.
    const auto english = loadTable(QStringLiteral("en"));
    ASSERT_NE(english, nullptr);
    const char* words[] = {"Save", "Cancel", "Resolution", "Quality", "Search", "Settings"};
    for (const QString& code : kLanguageCodes) {
        if (code == QStringLiteral("en"))
            continue;
        const auto table = loadTable(code);
        ASSERT_NE(table, nullptr);
        for (const char* word : words)
            EXPECT_NE(table->translate("Localizable", word),
                      english->translate("Localizable", word))
                << code.toStdString() << ": " << word;
    }
}

TEST(LMFormatLocalizationTables, EveryWordOrPhraseOfTheDefaultCatalogueHasAnEntryInEveryTable) {
    QFile file(
        QString::fromStdString(TestSupport::SourcePath("mediaformat/catalogue/formats.json")));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QJsonDocument catalogue = QJsonDocument::fromJson(file.readAll());
    ASSERT_TRUE(catalogue.isObject());
    QStringList texts;
    collectCatalogueTexts(catalogue.object(), texts);
    texts.removeDuplicates();
    ASSERT_GT(texts.size(), 20);
    for (const QString& code : kLanguageCodes) {
        const auto table = loadTable(code);
        ASSERT_NE(table, nullptr) << code.toStdString();
        for (const QString& text : texts) {
            if (isTechnicalText(text))
                continue;
            EXPECT_FALSE(table->translate("Localizable", text.toUtf8().constData()).isEmpty())
                << code.toStdString() << " lacks the catalogue text \"" << text.toStdString()
                << "\": mark it in localization/LMLocalizableStrings.h and run "
                   "update_translations";
        }
    }
}

TEST(LMFormatLocalizationTables, TechnicalCatalogueTextsAreToldApartFromWords) {
    for (const char* text :
         {"H.264 / AAC", "HEVC 3840x2160 / AAC", "Xvid 854x480 / MP3", "HD 1080p 29.97",
          "PCM 16-bit", "HD 96 kHz", "MP4", "3G2", "μ-law", "ProRes MXF"})
        EXPECT_TRUE(isTechnicalText(QString::fromUtf8(text))) << text;
    for (const char* text : {"Smartphone", "Square 1080p", "Game Console", "Formats",
                             "MP4 file format", "HD Ready", ""})
        EXPECT_FALSE(isTechnicalText(QString::fromUtf8(text))) << text;
}

// --- search in the language on screen

TEST_F(LMFormatInternationalizationMgrTest, SearchFindsPresetsByTheWordsShownInTheLanguageSet) {
    LMFmtPresetDataSource source;
    auto node = ILMFormatNode::MallocFormatNode("MP4", "MP4 file format", 100);
    node->AddFormatPreset(ILMFormatPreset::MallocFormatPreset("mp4", "High Quality"));
    node->AddFormatPreset(ILMFormatPreset::MallocFormatPreset("mp4", "Low Quality"));
    const auto titles = [&](const std::string& key) {
        std::vector<std::string> found;
        const auto result = source.SearchFormatPresets(node, key, nullptr);
        for (int i = 0; result && i < result->FormatPresetCount(); ++i)
            found.push_back(result->FormatPresetAt(i)->Title());
        return found;
    };
    mgr.setLanguage(LMFormatLanguageFrench);
    EXPECT_EQ(titles("haute"), std::vector<std::string>{"High Quality"});
    EXPECT_EQ(titles("HAUTE QUAL"), std::vector<std::string>{"High Quality"});
    // What the English texts match still matches.
    EXPECT_EQ(titles("high"), std::vector<std::string>{"High Quality"});
    // A recent entry shows its format's description: found by its French words.
    const ILMFmtPresetDataSource::RecentList recent{
        ILMFmtPresetRecentItem::MallocFmtPresetRecentItem(node->FormatPresetAt(1), node)};
    EXPECT_EQ(source.SearchFormatPresets(recent, "fichier").size(), 1u);
    mgr.setLanguage(LMFormatLanguageEnglish);
    EXPECT_TRUE(titles("haute").empty());
    EXPECT_TRUE(source.SearchFormatPresets(recent, "fichier").empty());
}
