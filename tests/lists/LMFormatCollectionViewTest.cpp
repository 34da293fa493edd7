// SPDX-License-Identifier: MIT
#include "LMFormatCollectionView.h"

#include "LMFormatCollectionModel.h"
#include "LMFormatCollectionViewDataSource.h"
#include "LMFormatCollectionViewDelegate.h"
#include "LMFormatDataViewItem.h"
#include "LMListsTestSupport.h"
#include "LMUiTestSupport.h"

#include <QAbstractItemModelTester>
#include <QIcon>
#include <QSignalSpy>
#include <QTest>

using namespace Lumeran;
using namespace Lumeran::TestSupport;

namespace {

// A controller over a plain vector of presets that remembers what it was told.
class PresetSource : public LMFormatCollectionViewDataSource,
                     public LMFormatCollectionViewDelegate {
public:
    int collectionViewNumberOfItemsInSection(LMFormatCollectionView* view, int section) override {
        (void)view;
        (void)section;
        return static_cast<int>(presets.size());
    }
    LMFormatEntry collectionViewRepresentedObjectAtIndexPath(LMFormatCollectionView* view,
                                                             int index) override {
        (void)view;
        ++entryRequests;
        return LMFormatEntry::fromPreset(presets.at(static_cast<std::size_t>(index)));
    }
    LMFormatDataViewItem*
    collectionViewItemForRepresentedObjectAtIndexPath(LMFormatCollectionView* view,
                                                      int index) override {
        ++requests;
        LMFormatDataViewItem* item = view->makeItem(index);
        item->setFmtPreset(presets.at(static_cast<std::size_t>(index)));
        return item;
    }
    void collectionViewDidSelectItemsAtIndexPaths(LMFormatCollectionView* view,
                                                  const QList<int>& indexPaths) override {
        (void)view;
        selections.push_back(indexPaths);
    }

    void Fill(int count) {
        presets.clear();
        for (int i = 0; i < count; ++i)
            presets.push_back(
                MakePreset("Preset " + std::to_string(i), "Description " + std::to_string(i)));
    }

    std::vector<std::shared_ptr<const ILMFormatPreset>> presets;
    std::vector<QList<int>> selections;
    int requests = 0;
    int entryRequests = 0;
};

class LMFormatCollectionViewTest : public UiTest {
protected:
    void SetUp() override {
        UiTest::SetUp();
        view = std::make_unique<LMFormatCollectionView>();
        view->setDataSource(&source);
        view->setDelegate(&source);
    }
    void TearDown() override {
        view.reset();
        UiTest::TearDown();
    }

    PresetSource source;
    std::unique_ptr<LMFormatCollectionView> view;
};

} // namespace

TEST_F(LMFormatCollectionViewTest, TheModelStaysConsistentThroughReloadsAndDeletions) {
    QAbstractItemModelTester tester(view->model(),
                                    QAbstractItemModelTester::FailureReportingMode::Fatal);
    source.Fill(5);
    view->reloadData();
    ASSERT_TRUE(ShowAndWait(view.get()));
    EXPECT_EQ(view->numberOfItems(), 5);

    // The source drops its entry first, then tells the list, as controllers do.
    source.presets.erase(source.presets.begin() + 2);
    view->deleteItemsAtIndexPaths({2});
    EXPECT_EQ(view->numberOfItems(), 4);
    EXPECT_EQ(Titles(view.get()),
              (QStringList{QStringLiteral("Preset 0"), QStringLiteral("Preset 1"),
                           QStringLiteral("Preset 3"), QStringLiteral("Preset 4")}));

    source.presets.clear();
    view->reloadData();
    EXPECT_EQ(view->numberOfItems(), 0);
    source.Fill(3);
    view->reloadData();
    EXPECT_EQ(view->numberOfItems(), 3);
    view->selectItemsAtIndexPaths({1});
    EXPECT_EQ(view->selectionIndexPaths(), QList<int>{1});
}

TEST_F(LMFormatCollectionViewTest, RowsAnswerTheirTextsWithoutHavingACell) {
    source.Fill(3);
    view->reloadData();
    const QModelIndex row = view->model()->index(2, 0);
    EXPECT_EQ(row.data(Qt::DisplayRole).toString(), QStringLiteral("Preset 2"));
    EXPECT_EQ(row.data(Qt::ToolTipRole).toString(), QStringLiteral("Description 2"));
    EXPECT_EQ(row.data(Qt::AccessibleTextRole).toString(),
              QStringLiteral("Preset 2, Description 2"));
    EXPECT_EQ(row.data(Qt::AccessibleDescriptionRole).toString(), QStringLiteral("Description 2"));
    EXPECT_TRUE(row.data(Qt::DecorationRole).canConvert<QIcon>());
    EXPECT_FALSE(row.data(Qt::EditRole).isValid());
    EXPECT_EQ(source.requests, 0);
}

TEST_F(LMFormatCollectionViewTest, ARowThatComesBackIntoViewReadsItsEntryAfresh) {
    source.Fill(200);
    view->setItemHeight(50);
    view->reloadData();
    ASSERT_TRUE(ShowAndWait(view.get(), 400, 300));
    auto first = std::const_pointer_cast<ILMFormatPreset>(source.presets.at(0));
    first->SetTitle("Renamed");
    EXPECT_EQ(view->model()->index(0, 0).data().toString(), QStringLiteral("Preset 0"));

    view->scrollToBottom();
    QCoreApplication::processEvents();
    ASSERT_EQ(view->itemAtIndex(0), nullptr);
    view->scrollToTop();
    QCoreApplication::processEvents();
    EXPECT_EQ(view->model()->index(0, 0).data().toString(), QStringLiteral("Renamed"));
}

TEST_F(LMFormatCollectionViewTest, EachRowIsAskedOfTheDataSourceOnceUntilTheNextReload) {
    source.Fill(3);
    view->reloadData();
    const QModelIndex row = view->model()->index(1, 0);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(row.data(Qt::DisplayRole).toString(), QStringLiteral("Preset 1"));
        EXPECT_EQ(row.data(Qt::ToolTipRole).toString(), QStringLiteral("Description 1"));
    }
    EXPECT_EQ(source.entryRequests, 1);

    // A deletion keeps what the other rows read, under their new numbers.
    source.presets.erase(source.presets.begin());
    view->deleteItemsAtIndexPaths({0});
    EXPECT_EQ(view->model()->index(0, 0).data().toString(), QStringLiteral("Preset 1"));
    EXPECT_EQ(source.entryRequests, 1);

    source.presets.at(0) = MakePreset("Renamed", "Now");
    view->reloadData();
    EXPECT_EQ(view->model()->index(0, 0).data().toString(), QStringLiteral("Renamed"));
    EXPECT_EQ(source.entryRequests, 2);
}

TEST_F(LMFormatCollectionViewTest, OnlyTheUsersSelectionsAreReported) {
    source.Fill(4);
    view->reloadData();
    ASSERT_TRUE(ShowAndWait(view.get()));

    view->selectItemsAtIndexPaths({1});
    EXPECT_TRUE(source.selections.empty());
    ASSERT_NE(view->itemAtIndex(1), nullptr);
    EXPECT_TRUE(view->itemAtIndex(1)->isSelected());

    ClickRow(view.get(), 2);
    ASSERT_EQ(source.selections.size(), 1u);
    EXPECT_EQ(source.selections[0], QList<int>{2});
    EXPECT_FALSE(view->itemAtIndex(1)->isSelected());
    EXPECT_TRUE(view->itemAtIndex(2)->isSelected());

    // The selected cell clicked again changes nothing, so nothing is reported.
    ClickRow(view.get(), 2);
    EXPECT_EQ(source.selections.size(), 1u);

    view->deselectAll();
    EXPECT_FALSE(view->itemAtIndex(2)->isSelected());
    EXPECT_EQ(source.selections.size(), 1u);
}

TEST_F(LMFormatCollectionViewTest, ADeletionTheDataSourceDidNotMakeReloadsTheList) {
    source.Fill(3);
    view->reloadData();
    ASSERT_TRUE(ShowAndWait(view.get()));
    QSignalSpy resets(view->model(), &QAbstractItemModel::modelReset);
    view->deleteItemsAtIndexPaths({0});
    EXPECT_EQ(resets.count(), 1);
    EXPECT_EQ(view->numberOfItems(), 3);
}

TEST_F(LMFormatCollectionViewTest, CellsAreAskedForOnlyForVisibleRows) {
    source.Fill(200);
    view->setItemHeight(50);
    view->reloadData();
    ASSERT_TRUE(ShowAndWait(view.get(), 400, 300));
    EXPECT_LE(source.requests, 8);
    EXPECT_EQ(LiveItemCount(view.get()), 6);
    EXPECT_EQ(view->indexPathForItem(view->itemAtIndex(3)), 3);
    EXPECT_EQ(view->itemAtIndex(100), nullptr);
    LMFormatDataViewItem stranger;
    EXPECT_EQ(view->indexPathForItem(&stranger), -1);
}
