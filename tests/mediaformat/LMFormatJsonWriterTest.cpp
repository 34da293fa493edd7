// SPDX-License-Identifier: MIT
// The text writer against the writer it replaced (QJsonObject + QJsonDocument):
// byte for byte the same text, for the default catalogue, for random trees with
// every kind of text and fields of other versions, and after every kind of change
// to a tree whose texts it keeps.
#include "LMFormatJsonWriter.h"
#include "ILMCodecPreset.h"
#include "LMFormatNode.h"
#include "LMFormatPreset.h"
#include "LMFormatTreeFactory.h"
#include "LMQtFormatJsonWriter.h"

#include <QJsonArray>

#include <gtest/gtest.h>

#include <random>

using namespace Lumeran;
using namespace Lumeran::TestSupport;

namespace {

LMFormatNode& Mine(const std::shared_ptr<ILMFormatNode>& node) {
    return dynamic_cast<LMFormatNode&>(*node);
}

// Text with what a writer must escape or keep: controls, quotes, backslashes,
// slashes, DEL, characters of every UTF-8 length, line separators, byte order
// marks, and bytes that are no UTF-8 at all.
std::string RandomText(std::mt19937& random) {
    static const char* pieces[] = {"a",
                                   "Z",
                                   " ",
                                   "\"",
                                   "\\",
                                   "/",
                                   "\x7f",
                                   "\x01",
                                   "\n",
                                   "\t",
                                   "\r",
                                   "\b",
                                   "\f",
                                   "\x1f",
                                   "\xc3\xa9",
                                   "\xe2\x80\xa8",
                                   "\xef\xbb\xbf",
                                   "\xf0\x9f\x98\x80",
                                   "\xe6\x9c\x80",
                                   "\xff",
                                   "\x80",
                                   "\xed\xa0\x80",
                                   "\xc3",
                                   "%"};
    std::string text;
    const int length = std::uniform_int_distribution<int>(0, 12)(random);
    for (int i = 0; i < length; ++i)
        text +=
            pieces[std::uniform_int_distribution<std::size_t>(0, std::size(pieces) - 1)(random)];
    // The writer before this one dropped a byte order mark that starts a text;
    // texts are compared with it only where it wrote them whole.
    if (text.rfind("\xef\xbb\xbf", 0) == 0)
        text.insert(0, "a");
    return text;
}

QJsonValue RandomValue(std::mt19937& random, int depth) {
    switch (std::uniform_int_distribution<int>(0, depth > 1 ? 5 : 7)(random)) {
    case 0:
        return std::uniform_int_distribution<int>(-100000, 100000)(random);
    case 1:
        return std::uniform_real_distribution<double>(-1e300, 1e300)(random);
    case 2:
        return QJsonValue(std::uniform_int_distribution<int>(0, 1)(random) == 1);
    case 3:
        return QJsonValue(QJsonValue::Null);
    case 4:
    case 5:
        return QString::fromStdString(RandomText(random));
    case 6: {
        QJsonArray array;
        for (int i = std::uniform_int_distribution<int>(0, 3)(random); i > 0; --i)
            array.append(RandomValue(random, depth + 1));
        return array;
    }
    default: {
        QJsonObject object;
        for (int i = std::uniform_int_distribution<int>(0, 3)(random); i > 0; --i)
            object.insert(QString::fromStdString(RandomText(random)),
                          RandomValue(random, depth + 1));
        return object;
    }
    }
}

// Fields of another version: random keys, and now and then one named like a
// field this version writes.
QJsonObject RandomExtra(std::mt19937& random) {
    static const char* known[] = {"title",   "faceId", "description", "codec", "audio",
                                  "presets", "other",  "zz",          "Title", "a"};
    QJsonObject extra;
    for (int i = std::uniform_int_distribution<int>(0, 3)(random); i > 0; --i) {
        const bool named = std::uniform_int_distribution<int>(0, 2)(random) == 0;
        const QString key =
            named ? QString::fromLatin1(known[std::uniform_int_distribution<std::size_t>(
                        0, std::size(known) - 1)(random)])
                  : QString::fromStdString(RandomText(random));
        extra.insert(key, RandomValue(random, 0));
    }
    return extra;
}

void Decorate(const std::shared_ptr<ILMFormatNode>& node, std::mt19937& random) {
    LMFormatNode& mine = Mine(node);
    mine.SetTitle(RandomText(random));
    mine.SetDescription(RandomText(random));
    mine.SetFaceID(std::uniform_int_distribution<int>(0, 3)(random) == 0 ? 0 : 1000 + 7);
    if (std::uniform_int_distribution<int>(0, 2)(random) == 0)
        mine.SetExtraFields(RandomExtra(random));
    if (std::uniform_int_distribution<int>(0, 3)(random) == 0)
        mine.CarryPreset(RandomValue(random, 0));
    if (std::uniform_int_distribution<int>(0, 3)(random) == 0)
        mine.CarryChild(RandomValue(random, 0));
    for (int i = 0; i < node->FormatPresetCount(); ++i) {
        auto& preset = dynamic_cast<LMFormatPreset&>(*node->FormatPresetAt(i));
        preset.SetTitle(RandomText(random));
        preset.SetDescription(RandomText(random));
        if (std::uniform_int_distribution<int>(0, 2)(random) == 0)
            preset.SetExtraFields(RandomExtra(random));
        if (std::uniform_int_distribution<int>(0, 2)(random) == 0)
            preset.SetStreamExtraFields(std::uniform_int_distribution<int>(0, 1)(random) == 1,
                                        RandomExtra(random));
    }
    for (int i = 0; i < node->ChildCount(); ++i)
        Decorate(node->ChildAt(i), random);
}

void ExpectSameText(const std::shared_ptr<ILMFormatNode>& tree) {
    EXPECT_EQ(LMFormatJsonWriter::NodeText(Mine(tree)), LMQtFormatJsonWriter::NodeText(Mine(tree)));
}

} // namespace

TEST(LMFormatJsonWriterTest, TheDefaultCatalogueIsWrittenAsQJsonDocumentWroteIt) {
    const auto catalogue = LoadDefaultCatalogue();
    ASSERT_TRUE(catalogue);
    ExpectSameText(catalogue);
}

TEST(LMFormatJsonWriterTest, RandomTreesAreWrittenAsQJsonDocumentWroteThem) {
    std::mt19937 random(20261124);
    for (int i = 0; i < 300; ++i) {
        const auto tree = MakeRandomTree(random, 3);
        Decorate(tree, random);
        ExpectSameText(tree);
        if (HasFailure())
            FAIL() << "tree " << i;
    }
}

TEST(LMFormatJsonWriterTest, EveryStringEscapeIsTheOneQJsonDocumentWrites) {
    std::string all;
    for (int c = 1; c < 0x100; ++c)
        all.push_back(static_cast<char>(c));
    all.push_back('\0');
    auto node = MakeNode("x");
    node->SetTitle(all);
    node->SetDescription(std::string("\0\x01 nul", 6));
    ExpectSameText(node);
}

TEST(LMFormatJsonWriterTest, AKeptTextIsWrittenAgainAfterAnyChangeBelowIt) {
    std::mt19937 random(7);
    auto root = MakeNode("Recent");
    for (int i = 0; i < 20; ++i) {
        auto entry = MakeNode("Entry " + std::to_string(i));
        entry->AddFormatPreset(MakePreset(i % 2 ? "mp4" : "mkv", "Preset " + std::to_string(i)));
        auto group = MakeNode("Group");
        group->AddFormatPreset(MakePreset("mp3", "Song"));
        entry->AddChild(group);
        root->AddChild(entry);
    }
    ExpectSameText(root);
    const std::vector<std::function<void()>> changes = {
        [&] { root->ChildAt(3)->SetTitle("Renamed"); },
        [&] { root->ChildAt(4)->FormatPresetAt(0)->SetTitle("Preset renamed"); },
        [&] { root->ChildAt(5)->FormatPresetAt(0)->SetDescription("Described"); },
        [&] { root->ChildAt(6)->FormatPresetAt(0)->SetFaceID(12); },
        [&] { root->ChildAt(7)->FormatPresetAt(0)->CurrentVideoCodec()->SetCurrentResolution(2); },
        [&] { root->ChildAt(8)->FormatPresetAt(0)->SetCurrentAudioCodec(-1); },
        [&] { root->ChildAt(9)->ChildAt(0)->FormatPresetAt(0)->SetTitle("Deep"); },
        [&] { root->ChildAt(10)->ChildAt(0)->AddFormatPreset(MakePreset("wav", "Added")); },
        [&] { root->ChildAt(11)->RemoveFormatPreset("Preset 11"); },
        [&] { root->ChildAt(12)->RemoveChildAt(0); },
        [&] { root->RemoveChildAt(0); },
        [&] { root->ChildAt(2)->FormatPresetAt(0)->CopyFrom(MakePreset("avi", "Copied")); },
        [&] { Mine(root->ChildAt(13)).SetExtraFields(RandomExtra(random)); },
        [&] { Mine(root->ChildAt(14)).CarryPreset(QJsonValue(42)); },
        [&] {
            dynamic_cast<LMFormatPreset&>(*root->ChildAt(15)->FormatPresetAt(0))
                .SetStreamExtraFields(false, QJsonObject{{QStringLiteral("x"), 1}});
        },
        [&] { ILMFormatNode::SetChildAside(root->ChildAt(16), "Group"); },
    };
    for (std::size_t i = 0; i < changes.size(); ++i) {
        changes[i]();
        ExpectSameText(root);
        if (HasFailure())
            FAIL() << "change " << i;
    }
}

TEST(LMFormatJsonWriterTest, ATextThatStartsWithAByteOrderMarkIsWrittenAndReadBackWhole) {
    auto node = MakeNode("\xEF\xBB\xBF");
    node->SetDescription("\xEF\xBB\xBF"
                         "described");
    const auto again = ILMFormatNode::MallocFormatNode(node->ToJson());
    ASSERT_TRUE(again);
    EXPECT_EQ(again->Title(), "\xEF\xBB\xBF");
    EXPECT_EQ(again->Description(), "\xEF\xBB\xBF"
                                    "described");
}
