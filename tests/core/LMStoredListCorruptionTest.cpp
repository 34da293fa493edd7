// SPDX-License-Identifier: MIT
// A sweep over the ways a stored list gets damaged: by hand edits, other tools,
// other versions, truncated writes of other programs, bad bytes. Whatever the
// damage, no entry that can still be read is lost, and a value that could not be
// read in full is kept, byte for byte, beside the settings before it is saved over.

#include "ILMAppSettings.h"
#include "ILMBase64Codec.h"
#include "LMFmtPresetDataSource.h"
#include "LMStoredListTestSupport.h"
#include "LMTestEnvironment.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

using namespace Lumeran;
using namespace Lumeran::TestSupport;

namespace {

constexpr int kRecent = 6;
constexpr int kGroups = 3;
constexpr int kPerGroup = 3;
constexpr int kCustom = kGroups * kPerGroup;

// What one kind of damage did, for the checks that follow it.
struct Damage {
    QByteArray file;    // the settings file's text
    std::string recent; // the stored values
    std::string custom;
    bool recentDamaged = false; // a value that can no longer be read in full
    bool customDamaged = false;
    int minRecent = kRecent; // entries that must still be read
    int minCustom = kCustom;
    QString marker; // text another version wrote that must survive a save
};

struct Kind {
    const char* name;
    std::function<void(Damage&)> apply;
};

void PrintTo(const Kind& kind, std::ostream* out) {
    *out << kind.name;
}

QByteArray Json(const std::string& value) {
    return QByteArray::fromStdString(ILMBase64Codec::Decode(value));
}

QJsonObject Object(const std::string& value) {
    return QJsonDocument::fromJson(Json(value)).object();
}

std::string Encode(const QByteArray& json) {
    return ILMBase64Codec::Encode(json.toStdString());
}

// The custom presets whose whole text ends before byte offset of the stored JSON:
// what a reader can still get when the text is damaged at offset.
int CustomPresetsBefore(const std::string& value, qsizetype offset) {
    const QByteArray json = Json(value);
    int count = 0;
    for (const QJsonValue& group : Object(value).value(QStringLiteral("children")).toArray()) {
        for (const QJsonValue& preset :
             group.toObject().value(QStringLiteral("presets")).toArray()) {
            const QByteArray text = QJsonDocument(preset.toObject()).toJson(QJsonDocument::Compact);
            const qsizetype at = json.indexOf(text);
            if (at >= 0 && at + text.size() < offset)
                ++count;
        }
    }
    return count;
}

// Replaces the value of key in the file's text.
void SetValue(Damage& d, const char* key, const std::string& value) {
    std::string& slot = std::string(key) == RecentKey ? d.recent : d.custom;
    d.file.replace(QByteArray(QByteArray(key) + "=" + QByteArray::fromStdString(slot)),
                   QByteArray(QByteArray(key) + "=" + QByteArray::fromStdString(value)));
    slot = value;
}

void SetCustomJson(Damage& d, const QJsonObject& json) {
    SetValue(d, CustomKey, Encode(QJsonDocument(json).toJson(QJsonDocument::Compact)));
}

// Applies edit to preset p of group g of the custom tree.
void EditCustomPreset(Damage& d, int g, int p, const std::function<void(QJsonValue&)>& edit) {
    QJsonObject root = Object(d.custom);
    QJsonArray groups = root.value(QStringLiteral("children")).toArray();
    QJsonObject group = groups.at(g).toObject();
    QJsonArray presets = group.value(QStringLiteral("presets")).toArray();
    QJsonValue preset = presets.at(p);
    edit(preset);
    presets.replace(p, preset);
    group.insert(QStringLiteral("presets"), presets);
    groups.replace(g, group);
    root.insert(QStringLiteral("children"), groups);
    SetCustomJson(d, root);
}

void EditCustomGroup(Damage& d, int g, const std::function<void(QJsonValue&)>& edit) {
    QJsonObject root = Object(d.custom);
    QJsonArray groups = root.value(QStringLiteral("children")).toArray();
    QJsonValue group = groups.at(g);
    edit(group);
    groups.replace(g, group);
    root.insert(QStringLiteral("children"), groups);
    SetCustomJson(d, root);
}

std::function<void(Damage&)> OnePreset(std::function<void(QJsonObject&)> edit, bool lost) {
    return [edit = std::move(edit), lost](Damage& d) {
        EditCustomPreset(d, 1, 1, [&](QJsonValue& value) {
            QJsonObject object = value.toObject();
            edit(object);
            value = object;
        });
        d.customDamaged = true;
        d.minCustom = lost ? kCustom - 1 : kCustom;
    };
}

std::function<void(Damage&)> AddedField(std::function<void(QJsonObject&)> edit) {
    return [edit = std::move(edit)](Damage& d) {
        QJsonObject root = Object(d.custom);
        edit(root);
        SetCustomJson(d, root);
        d.marker = QStringLiteral("from-a-later-version");
    };
}

// Damage to the Base64 text of the custom value, late in it.
std::function<void(Damage&)> LateBase64(std::function<void(std::string&, std::size_t)> edit) {
    return [edit = std::move(edit)](Damage& d) {
        std::string value = d.custom;
        const std::size_t at = value.size() * 85 / 100;
        const std::string original = d.custom;
        edit(value, at);
        SetValue(d, CustomKey, value);
        d.customDamaged = true;
        // Text that is no valid Base64 reads as no list at all (and is put aside);
        // text that still decodes gives every entry before the damage. A Base64
        // group of four characters carries three bytes; one more group of slack
        // for where the damage lands in it.
        d.minCustom = ILMBase64Codec::Decode(value).empty()
                          ? 0
                          : CustomPresetsBefore(original, static_cast<qsizetype>(at / 4 * 3) - 6);
    };
}

// Damage to the JSON text of the custom value, late in it.
std::function<void(Damage&)> LateJson(std::function<void(QByteArray&, qsizetype)> edit) {
    return [edit = std::move(edit)](Damage& d) {
        const std::string original = d.custom;
        QByteArray json = Json(d.custom);
        const qsizetype at = json.size() * 85 / 100;
        edit(json, at);
        SetValue(d, CustomKey, Encode(json));
        d.customDamaged = true;
        d.minCustom = CustomPresetsBefore(original, at);
    };
}

std::function<void(Damage&)> WholeCustom(std::string value) {
    return [value = std::move(value)](Damage& d) {
        SetValue(d, CustomKey, value);
        d.customDamaged = true;
        d.minCustom = 0;
    };
}

std::function<void(Damage&)> OnFile(std::function<void(QByteArray&)> edit) {
    return [edit = std::move(edit)](Damage& d) { edit(d.file); };
}

const QString kUnknown = QStringLiteral("from-a-later-version");

const Kind kKinds[] = {
    // The settings file around the values.
    {"ByteOrderMark", OnFile([](QByteArray& f) { f.prepend("\xEF\xBB\xBF"); })},
    {"WindowsLineEnds", OnFile([](QByteArray& f) { f.replace("\n", "\r\n"); })},
    {"BinaryJunkLineAtTheTop", OnFile([](QByteArray& f) { f.prepend("\x01\x02\xFF\xFEjunk\n"); })},
    {"JunkPrefixOnTheSectionLine", OnFile([](QByteArray& f) { f.prepend("\x7F\x01garbage"); })},
    {"StrayQuoteAbove",
     OnFile([](QByteArray& f) { f.replace("[General]\n", "[General]\nnote=\"open quote\n"); })},
    {"NulBytesOnAnotherLine",
     OnFile([](QByteArray& f) { f.append(QByteArray("other=a\0b\0c\n", 12)); })},
    {"AMegabyteLongJunkLine",
     OnFile([](QByteArray& f) { f.prepend(QByteArray(1 << 20, 'j') + "\n"); })},
    {"NoSectionHeader", OnFile([](QByteArray& f) { f.replace("[General]\n", ""); })},
    {"OtherSectionsAround", OnFile([](QByteArray& f) {
         f.prepend("[Before]\nrecent_format_preset=not ours\n");
         f.append("\n[After]\ncustom_format_preset=not ours either\n");
     })},
    {"CommentLines", OnFile([](QByteArray& f) {
         f.replace("[General]\n", "; a comment\n[General]\n# another comment\n");
     })},
    {"SpacesAroundTheEqualsSign", OnFile([](QByteArray& f) {
         f.replace("custom_format_preset=", "custom_format_preset = ");
         f.replace("recent_format_preset=", "recent_format_preset =  ");
     })},
    {"TrailingSpacesAfterTheValues", OnFile([](QByteArray& f) { f.replace("\n", "   \n"); })},
    {"QuotedValue", [](Damage& d) {
         d.file.replace(QByteArray("custom_format_preset=" + QByteArray::fromStdString(d.custom)),
                        QByteArray("custom_format_preset=\"" +
                                   QByteArray::fromStdString(d.custom) + "\""));
     }},
    {"NoNewlineAtTheEnd", OnFile([](QByteArray& f) {
         while (f.endsWith('\n'))
             f.chop(1);
     })},
    {"OlderDuplicateKeyAbove", OnFile([](QByteArray& f) {
         f.replace("[General]\n",
                   QByteArray("[General]\ncustom_format_preset=" +
                              QByteArray::fromStdString(
                                  ILMBase64Codec::Encode("{\"title\":\"Custom\"}")) +
                              "\n"));
     })},
    // The Base64 text of a value.
    {"MimeLineWrapped", [](Damage& d) {
         std::string wrapped;
         for (std::size_t i = 0; i < d.custom.size(); i += 76)
             wrapped += d.custom.substr(i, 76) + "\\n";
         SetValue(d, CustomKey, wrapped);
     }},
    {"SpacesInsideTheBase64", [](Damage& d) {
         std::string spaced;
         for (std::size_t i = 0; i < d.custom.size(); i += 40)
             spaced += d.custom.substr(i, 40) + " ";
         SetValue(d, CustomKey, spaced);
     }},
    {"PaddingRemoved", [](Damage& d) {
         std::string bare = d.custom;
         while (!bare.empty() && bare.back() == '=')
             bare.pop_back();
         SetValue(d, CustomKey, bare);
         d.customDamaged = bare != d.custom && ILMBase64Codec::Decode(bare).empty();
     }},
    {"ACharacterReplacedLate", LateBase64([](std::string& v, std::size_t at) { v[at] = '!'; })},
    {"ACharacterInsertedLate", LateBase64([](std::string& v, std::size_t at) { v.insert(at, "*"); })},
    {"TruncatedLate", LateBase64([](std::string& v, std::size_t at) { v.resize(at); })},
    {"TruncatedByOneCharacter", LateBase64([](std::string& v, std::size_t) { v.pop_back(); })},
    {"NonAsciiBytesInside", LateBase64([](std::string& v, std::size_t at) { v.insert(at, "\xC3\xA9"); })},
    {"AControlCharacterInside", LateBase64([](std::string& v, std::size_t at) { v.insert(at, "\x01"); })},
    {"UrlSafeAlphabet", [](Damage& d) {
         std::string v = d.custom;
         std::replace(v.begin(), v.end(), '+', '-');
         std::replace(v.begin(), v.end(), '/', '_');
         SetValue(d, CustomKey, v);
         d.customDamaged = v != d.custom;
         d.minCustom = 0;
     }},
    {"NotBase64AtAll", WholeCustom("this is not a stored list")},
    {"Base64OfSomethingElse", WholeCustom(ILMBase64Codec::Encode("<xml>not json</xml>"))},
    {"Base64OfAnEmptyObject", WholeCustom(ILMBase64Codec::Encode("{}"))},
    // The JSON text of a value.
    {"JsonTruncatedLate", LateJson([](QByteArray& j, qsizetype at) { j.truncate(at); })},
    {"JsonWithTrailingGarbage", [](Damage& d) {
         SetValue(d, CustomKey, Encode(Json(d.custom) + "}}garbage"));
         d.customDamaged = true;
     }},
    {"JsonMissingACommaLate", LateJson([](QByteArray& j, qsizetype at) {
         const qsizetype comma = j.indexOf(',', at);
         if (comma >= 0)
             j.remove(comma, 1);
     })},
    {"InvalidUtf8Late", LateJson([](QByteArray& j, qsizetype at) {
         const qsizetype quote = j.indexOf("\"title\":\"", at);
         if (quote >= 0)
             j.insert(quote + 9, "\xC0\xFF\xFE");
     })},
    {"RootIsAList", WholeCustom(ILMBase64Codec::Encode("[{\"title\":\"Custom\"}]"))},
    {"RootWithoutATitle", WholeCustom(ILMBase64Codec::Encode("{\"children\":[]}"))},
    {"DuplicateKeysInAPreset", [](Damage& d) {
         QByteArray json = Json(d.custom);
         const qsizetype at = json.indexOf("\"title\":\"Preset 1.1\"");
         json.insert(at, "\"title\":\"Shadowed\",");
         SetValue(d, CustomKey, Encode(json));
         d.customDamaged = true;
     }},
    {"NestingBeyondTheLimitInOneGroup", [](Damage& d) {
         EditCustomGroup(d, 2, [](QJsonValue& group) {
             QJsonObject nested{{QStringLiteral("title"), QStringLiteral("deepest")}};
             for (int i = 0; i < 80; ++i)
                 nested = QJsonObject{{QStringLiteral("title"), QStringLiteral("level")},
                                      {QStringLiteral("children"), QJsonArray{nested}}};
             QJsonObject object = group.toObject();
             object.insert(QStringLiteral("children"), QJsonArray{nested});
             group = object;
         });
         d.customDamaged = true;
     }},
    // One entry written by another version, or out of range.
    {"UnknownCodec", OnePreset([](QJsonObject& p) {
         p.insert(QStringLiteral("video"),
                  QJsonObject{{QStringLiteral("codec"), QStringLiteral("h266")}});
     }, true)},
    {"UnknownContainer", OnePreset([](QJsonObject& p) {
         p.insert(QStringLiteral("format"), QStringLiteral("mp5"));
     }, true)},
    {"UnknownOptionValue", OnePreset([](QJsonObject& p) {
         QJsonObject video = p.value(QStringLiteral("video")).toObject();
         if (video.isEmpty())
             video.insert(QStringLiteral("codec"), QStringLiteral("h264"));
         video.insert(QStringLiteral("resolution"), QStringLiteral("16384x16384"));
         p.insert(QStringLiteral("video"), video);
     }, true)},
    {"TitleOverTheLimit", OnePreset([](QJsonObject& p) {
         p.insert(QStringLiteral("title"), QString(4097, QLatin1Char('t')));
     }, true)},
    {"TitleNotText", OnePreset([](QJsonObject& p) { p.insert(QStringLiteral("title"), 12); }, true)},
    {"OtherChoiceWithoutAStream", OnePreset([](QJsonObject& p) {
         p.insert(QStringLiteral("other"),
                  QJsonArray{QJsonObject{{QStringLiteral("codec"), QStringLiteral("h264")}}});
     }, true)},
    {"FaceIdOverABillion", OnePreset([](QJsonObject& p) {
         p.insert(QStringLiteral("faceId"), 5e9);
     }, false)},
    {"FaceIdNegative", OnePreset([](QJsonObject& p) { p.insert(QStringLiteral("faceId"), -3); }, false)},
    {"FaceIdFractional", OnePreset([](QJsonObject& p) { p.insert(QStringLiteral("faceId"), 2.5); }, false)},
    {"DescriptionOverTheLimit", OnePreset([](QJsonObject& p) {
         p.insert(QStringLiteral("description"), QString(5000, QLatin1Char('d')));
     }, false)},
    {"APresetThatIsNotAnObject", [](Damage& d) {
         EditCustomPreset(d, 1, 1, [](QJsonValue& p) { p = 42; });
         d.customDamaged = true;
         d.minCustom = kCustom - 1;
     }},
    {"AGroupThatIsNotAnObject", [](Damage& d) {
         EditCustomGroup(d, 1, [](QJsonValue& g) { g = QStringLiteral("group"); });
         d.customDamaged = true;
         d.minCustom = kCustom - kPerGroup;
     }},
    {"PresetsThatAreNotAList", [](Damage& d) {
         EditCustomGroup(d, 0, [](QJsonValue& g) {
             QJsonObject object = g.toObject();
             object.insert(QStringLiteral("presets"), QJsonObject());
             g = object;
         });
         d.customDamaged = true;
         d.minCustom = kCustom - kPerGroup;
     }},
    {"ARecentEntryWithUnknownCodec", [](Damage& d) {
         const QJsonObject root = WithPresetField(
             Object(d.recent), 2, 0, QStringLiteral("audio"),
             QJsonObject{{QStringLiteral("codec"), QStringLiteral("opus-next")}});
         SetValue(d, RecentKey, Encode(QJsonDocument(root).toJson(QJsonDocument::Compact)));
         d.recentDamaged = true;
         d.minRecent = kRecent - 1;
     }},
    // Fields added by a later version: read in full, written back as they were.
    {"UnknownFieldOnAPreset", AddedField([](QJsonObject& root) {
         QJsonArray groups = root.value(QStringLiteral("children")).toArray();
         QJsonObject group = groups.at(0).toObject();
         QJsonArray presets = group.value(QStringLiteral("presets")).toArray();
         QJsonObject preset = presets.at(0).toObject();
         preset.insert(QStringLiteral("hdr"), kUnknown);
         presets.replace(0, preset);
         group.insert(QStringLiteral("presets"), presets);
         groups.replace(0, group);
         root.insert(QStringLiteral("children"), groups);
     })},
    {"UnknownFieldOnTheRoot", AddedField([](QJsonObject& root) {
         root.insert(QStringLiteral("sortOrder"), kUnknown);
     })},
    {"UnknownFieldOnAGroup", AddedField([](QJsonObject& root) {
         QJsonArray groups = root.value(QStringLiteral("children")).toArray();
         QJsonObject group = groups.at(2).toObject();
         group.insert(QStringLiteral("colour"), kUnknown);
         groups.replace(2, group);
         root.insert(QStringLiteral("children"), groups);
     })},
    {"UnknownFieldInAStream", AddedField([](QJsonObject& root) {
         QJsonArray groups = root.value(QStringLiteral("children")).toArray();
         QJsonObject group = groups.at(1).toObject();
         QJsonArray presets = group.value(QStringLiteral("presets")).toArray();
         QJsonObject preset = presets.at(0).toObject();
         preset.insert(QStringLiteral("video"),
                       QJsonObject{{QStringLiteral("codec"), QStringLiteral("h264")},
                                   {QStringLiteral("tune"), kUnknown}});
         presets.replace(0, preset);
         group.insert(QStringLiteral("presets"), presets);
         groups.replace(1, group);
         root.insert(QStringLiteral("children"), groups);
     })},
};

// Counts how many of want's entries have is, as multisets.
bool Contains(std::vector<std::string> all, const std::vector<std::string>& some) {
    for (const std::string& entry : some) {
        const auto found = std::find(all.begin(), all.end(), entry);
        if (found == all.end())
            return false;
        all.erase(found);
    }
    return true;
}

class LMStoredListCorruptionTest : public SettingsTest,
                                   public ::testing::WithParamInterface<Kind> {};

} // namespace

TEST(LMStoredListCorruptionSweep, CoversAtLeastFortyFiveKindsOfDamage) {
    EXPECT_GE(std::size(kKinds), 45u);
}

TEST_P(LMStoredListCorruptionTest, DamagedStoredListsLoseNoReadableEntryAndKeepWhatTheyCannotRead) {
    SeedStore(kRecent, kGroups, kPerGroup);
    const QString path = QString::fromStdString(settings->FilePath());
    Damage damage;
    damage.file = ReadFile(path);
    damage.recent = ILMAppSettings::Shared()->StringValue(RecentKey);
    damage.custom = ILMAppSettings::Shared()->StringValue(CustomKey);
    ASSERT_TRUE(damage.file.contains(QByteArray::fromStdString(damage.custom)));
    GetParam().apply(damage);
    WriteFile(path, damage.file);

    std::vector<std::string> recent;
    std::vector<std::string> custom;
    {
        LMFmtPresetDataSource source;
        recent = RecentEntries(source);
        custom = CustomEntries(source);
        EXPECT_GE(static_cast<int>(recent.size()), damage.minRecent);
        EXPECT_GE(static_cast<int>(custom.size()), damage.minCustom);
        source.SaveRecentList();
        source.SaveCustomList();
        ASSERT_TRUE(source.LastSaveSucceeded());
    }
    LMFmtPresetDataSource reread;
    EXPECT_TRUE(Contains(RecentEntries(reread), recent));
    EXPECT_TRUE(Contains(CustomEntries(reread), custom));
    if (damage.recentDamaged) {
        EXPECT_TRUE(BackupHoldsValue(damage.recent));
    }
    if (damage.customDamaged) {
        EXPECT_TRUE(BackupHoldsValue(damage.custom));
    }
    if (!damage.marker.isEmpty()) {
        const QString saved = QString::fromUtf8(QJsonDocument(StoredJson(CustomKey)).toJson());
        EXPECT_TRUE(saved.contains(damage.marker));
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, LMStoredListCorruptionTest, ::testing::ValuesIn(kKinds),
                         [](const ::testing::TestParamInfo<Kind>& info) {
                             return std::string(info.param.name);
                         });
