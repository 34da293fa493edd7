// SPDX-License-Identifier: MIT
#include "LMStoredListMerge.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

using namespace Lumeran;

namespace {

QJsonObject Entry(const char* title) {
    return QJsonObject{{QStringLiteral("title"), QLatin1StringView(title)}};
}

QJsonObject Recent(std::initializer_list<const char*> titles) {
    QJsonArray children;
    for (const char* title : titles)
        children.append(Entry(title));
    QJsonObject root{{QStringLiteral("title"), QStringLiteral("Recent")}};
    if (!children.isEmpty())
        root.insert(QStringLiteral("children"), children);
    return root;
}

QJsonObject Group(const char* title, std::initializer_list<const char*> presets) {
    QJsonArray list;
    for (const char* preset : presets)
        list.append(Entry(preset));
    return QJsonObject{{QStringLiteral("title"), QLatin1StringView(title)},
                       {QStringLiteral("presets"), list}};
}

QJsonObject Custom(std::initializer_list<QJsonObject> groups) {
    QJsonArray children;
    for (const QJsonObject& group : groups)
        children.append(group);
    QJsonObject root{{QStringLiteral("title"), QStringLiteral("Custom")}};
    if (!children.isEmpty())
        root.insert(QStringLiteral("children"), children);
    return root;
}

std::string Text(const QJsonObject& object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
}

} // namespace

TEST(LMStoredListMergeTest, RecentSelectionsOfBothSidesAreKeptWithOursNewest) {
    const auto merged = LMStoredListMerge::MergeRecent(Recent({"a", "b"}), Recent({"a", "b", "t"}),
                                                       Recent({"a", "b", "o"}));
    EXPECT_EQ(Text(merged), Text(Recent({"a", "b", "t", "o"})));
}

TEST(LMStoredListMergeTest, ARecentEntrySelectedAgainHereMovesToTheNewestPlace) {
    const auto merged = LMStoredListMerge::MergeRecent(
        Recent({"a", "b", "c"}), Recent({"a", "b", "c", "t"}), Recent({"b", "c", "a"}));
    EXPECT_EQ(Text(merged), Text(Recent({"b", "c", "t", "a"})));
}

TEST(LMStoredListMergeTest, RecentRemovalsOfBothSidesAreHonoured) {
    const auto merged = LMStoredListMerge::MergeRecent(Recent({"a", "b", "c"}), Recent({"a", "c"}),
                                                       Recent({"b", "c"}));
    EXPECT_EQ(Text(merged), Text(Recent({"c"})));
}

TEST(LMStoredListMergeTest, CustomPresetsAddedOnBothSidesJoinTheirGroups) {
    const auto base = Custom({Group("MP4", {"x"})});
    const auto theirs = Custom({Group("MP4", {"x", "t"})});
    const auto ours = Custom({Group("MP4", {"x", "o"}), Group("MKV", {"k"})});
    EXPECT_EQ(Text(LMStoredListMerge::MergeCustom(base, theirs, ours)),
              Text(Custom({Group("MP4", {"x", "t", "o"}), Group("MKV", {"k"})})));
}

TEST(LMStoredListMergeTest, ACustomGroupEmptiedByOurRemovalDisappears) {
    const auto base = Custom({Group("MP4", {"x"}), Group("MKV", {"k"})});
    const auto theirs = Custom({Group("MP4", {"x"}), Group("MKV", {"k", "t"})});
    const auto ours = Custom({Group("MKV", {"k"})});
    EXPECT_EQ(Text(LMStoredListMerge::MergeCustom(base, theirs, ours)),
              Text(Custom({Group("MKV", {"k", "t"})})));
}

TEST(LMStoredListMergeTest, AChildThatIsNoGroupIsKeptWhole) {
    QJsonObject theirs = Custom({Group("MP4", {"x"})});
    theirs.insert(QStringLiteral("children"),
                  QJsonArray{42, theirs.value(QStringLiteral("children")).toArray().at(0)});
    const auto base = Custom({Group("MP4", {"x"})});
    const auto merged = LMStoredListMerge::MergeCustom(base, theirs, base);
    EXPECT_EQ(Text(merged), Text(theirs));
}
