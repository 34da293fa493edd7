// SPDX-License-Identifier: MIT
#include "LMFormatDataViewItem.h"

#include "ILMFmtPresetDataSource.h"
#include "ILMFmtPresetRecentItem.h"
#include "LMFormatDataView.h"
#include "LMFormatDataViewItemDelegate.h"
#include "LMFormatInternationalizationMgr.h"
#include "LMListsTestSupport.h"
#include "LMUiTestSupport.h"

#include <QSignalSpy>

using namespace Lumeran;
using namespace Lumeran::TestSupport;

namespace {

class LMFormatDataViewItemTest : public UiTest {};

class RecordingItemDelegate : public LMFormatDataViewItemDelegate {
public:
    void formatDataViewItemRequireEditing(LMFormatDataViewItem* item) override {
        edited.push_back(item);
    }
    void formatDataViewItemRequireRemove(LMFormatDataViewItem* item) override {
        removed.push_back(item);
    }
    std::vector<LMFormatDataViewItem*> edited;
    std::vector<LMFormatDataViewItem*> removed;
};

std::shared_ptr<const ILMFmtPresetRecentItem> MakeRecent(const std::string& presetTitle,
                                                         const std::string& nodeTitle) {
    return ILMFmtPresetRecentItem::MallocFmtPresetRecentItem(
        MakePreset(presetTitle), ILMFormatNode::MallocFormatNode(nodeTitle, "MP4 Format", 100));
}

} // namespace

TEST_F(LMFormatDataViewItemTest, SettingANodeAfterAPresetEmptiesThePreset) {
    LMFormatDataViewItem item;
    const auto preset = MakePreset("MP4 HD 1080p", "H.264 1920x1080");
    item.setFmtPreset(preset);
    EXPECT_EQ(item.fmtPreset(), preset);
    EXPECT_TRUE(item.visibleDescription());
    EXPECT_EQ(item.fmtDescription(), QStringLiteral("H.264 1920x1080"));

    QSignalSpy visibility(&item, &LMFormatDataViewItem::visibleDescriptionChanged);
    const auto node = MakeFormat("MOV", {"MOV ProRes"}, "QuickTime Movie");
    item.setFmtNode(node);

    EXPECT_EQ(item.fmtPreset(), nullptr);
    EXPECT_EQ(item.recentItem(), nullptr);
    EXPECT_EQ(item.fmtNode(), node);
    EXPECT_FALSE(item.visibleDescription());
    EXPECT_EQ(visibility.count(), 1);
    EXPECT_EQ(item.fmtTitle(), QStringLiteral("MOV"));

    item.setRecentItem(MakeRecent("MP4 Phone", "MP4"));
    EXPECT_EQ(item.fmtNode(), nullptr);
    EXPECT_TRUE(item.visibleDescription());
}

TEST_F(LMFormatDataViewItemTest, EachSourceAssignmentIncreasesSourceDidChangedByExactlyOne) {
    LMFormatDataViewItem item;
    QSignalSpy changes(&item, &LMFormatDataViewItem::sourceDidChangedChanged);
    QSignalSpy titles(&item, &LMFormatDataViewItem::fmtTitleChanged);
    EXPECT_EQ(item.sourceDidChanged(), 0);

    const auto preset = MakePreset("MP4 HD 720p");
    item.setFmtPreset(preset);
    EXPECT_EQ(item.sourceDidChanged(), 1);
    item.setFmtPreset(preset);
    EXPECT_EQ(item.sourceDidChanged(), 2);
    item.setFmtNode(MakeFormat("MP4", {}));
    EXPECT_EQ(item.sourceDidChanged(), 3);
    item.setRecentItem(nullptr);
    EXPECT_EQ(item.sourceDidChanged(), 4);

    EXPECT_EQ(changes.count(), 4);
    EXPECT_EQ(titles.count(), 4);
}

TEST_F(LMFormatDataViewItemTest, RecentTitleLocalizesOnlyTheSameAsSourcePhraseThenTheWhole) {
    LMFormatInternationalizationMgr::sharedObject()->setLanguage(LMFormatLanguageFrench);
    LMFormatDataViewItem item;

    // "MP4 Same as source": only the phrase is a key inside the composed title.
    item.setRecentItem(MakeRecent("Same as source", "MP4"));
    EXPECT_EQ(item.fmtTitle(), QStringLiteral("MP4 Identique à la source"));

    // Without the phrase nothing is replaced; the whole text is looked up once,
    // so a composed title stays as it is and a title that is a key translates.
    item.setRecentItem(MakeRecent("MP4 HD 1080p", "MP4"));
    EXPECT_EQ(item.fmtTitle(), QStringLiteral("MP4 HD 1080p"));
    item.setRecentItem(MakeRecent("Video", "Video"));
    EXPECT_EQ(item.fmtTitle(), QStringLiteral("Vidéo"));

    // The entry's description is the node's, looked up without substitution.
    EXPECT_EQ(item.fmtDescription(), QStringLiteral("Format MP4"));
}

TEST_F(LMFormatDataViewItemTest, TitleAndDescriptionAreReadAgainWhenTheLanguageChanges) {
    LMFormatDataViewItem item;
    item.setFmtNode(ILMFormatNode::MallocFormatNode("Video", "MP4 Format", 10));
    QSignalSpy titles(&item, &LMFormatDataViewItem::fmtTitleChanged);
    QSignalSpy descriptions(&item, &LMFormatDataViewItem::fmtDescriptionChanged);
    EXPECT_EQ(item.fmtTitle(), QStringLiteral("Video"));

    LMFormatInternationalizationMgr::sharedObject()->setLanguage(LMFormatLanguageFrench);

    EXPECT_EQ(titles.count(), 1);
    EXPECT_EQ(descriptions.count(), 1);
    EXPECT_EQ(item.fmtTitle(), QStringLiteral("Vidéo"));
    EXPECT_EQ(item.fmtDescription(), QStringLiteral("Format MP4"));
}

TEST_F(LMFormatDataViewItemTest, WithoutASourceTheTextsAreEmptyAndThereIsNoImage) {
    LMFormatDataViewItem item;
    EXPECT_TRUE(item.fmtTitle().isEmpty());
    EXPECT_TRUE(item.fmtDescription().isEmpty());
    EXPECT_TRUE(item.fmtImage().isNull());
    EXPECT_TRUE(item.visibleDescription());
}

TEST_F(LMFormatDataViewItemTest, ImageComesFromTheArtworkOfTheSourcesFaceId) {
    LoadDefaultCatalogueIntoSharedDataSource();
    LMFormatDataViewItem item;
    item.setFmtNode(ILMFormatNode::MallocFormatNode("Video", "", 10));
    EXPECT_FALSE(item.fmtImage().isNull());
    item.setFmtNode(ILMFormatNode::MallocFormatNode("Nothing", "", 987654));
    EXPECT_TRUE(item.fmtImage().isNull());
    // A recent entry shows its node's artwork.
    item.setRecentItem(MakeRecent("MP4 HD 1080p", "MP4"));
    EXPECT_FALSE(item.fmtImage().isNull());
}

TEST_F(LMFormatDataViewItemTest, ActionButtonsShowOnlyWhenAllowedAndHovered) {
    LMFormatDataViewItem item;
    item.setFmtPreset(MakePreset("MP4 HD 720p"));
    item.setEditable(true);
    EXPECT_FALSE(item.showEditing());
    EXPECT_FALSE(item.dataView()->isEditVisible());

    item.dataView()->mouseEntered();
    EXPECT_TRUE(item.showActionButton());
    EXPECT_TRUE(item.showEditing());
    EXPECT_FALSE(item.showRemoving());
    EXPECT_TRUE(item.dataView()->isEditVisible());
    EXPECT_FALSE(item.dataView()->isRemoveVisible());

    item.setEditable(false);
    item.setRemovable(true);
    EXPECT_FALSE(item.dataView()->isEditVisible());
    EXPECT_TRUE(item.dataView()->isRemoveVisible());

    item.dataView()->mouseExited();
    EXPECT_FALSE(item.showRemoving());
    EXPECT_FALSE(item.dataView()->isRemoveVisible());
}

TEST_F(LMFormatDataViewItemTest, ButtonClicksGoToTheDelegateAndAreDroppedWithoutOne) {
    LMFormatDataViewItem item;
    item.settingClicked();
    item.removeClicked();

    RecordingItemDelegate delegate;
    item.setDelegate(&delegate);
    item.settingClicked();
    item.removeClicked();
    item.removeClicked();
    EXPECT_EQ(delegate.edited, std::vector<LMFormatDataViewItem*>{&item});
    EXPECT_EQ(delegate.removed, (std::vector<LMFormatDataViewItem*>{&item, &item}));
}

TEST_F(LMFormatDataViewItemTest, SelectionIsAnsweredToTheView) {
    LMFormatDataViewItem item;
    EXPECT_EQ(item.dataView()->delegate(), &item);
    EXPECT_FALSE(item.dataView()->selected());
    item.setSelected(true);
    EXPECT_TRUE(item.dataView()->selected());
}
