// SPDX-License-Identifier: MIT
// Every text of the popup and the editor, painted under a light and a dark
// palette, read from the pixels: the strongest text pixel against the colour
// that fills most of the text's rectangle must reach a contrast of 4.5:1.
#include "LMFormatSelectionWndCtrl.h"

#include "LMFormatSelectionWndCtrl_p.h"

#include "ILMFmtPresetDataSource.h"
#include "LMDarkDesktopPalette.h"
#include "LMFmtNodeViewCtrl.h"
#include "LMFormatCellLayout.h"
#include "LMFormatCollectionItemDelegate.h"
#include "LMFormatCollectionModel.h"
#include "LMFormatCollectionView.h"
#include "LMFormatDataView.h"
#include "LMFormatDataViewItem.h"
#include "LMFormatEditingWndCtrl.h"
#include "LMTabHeaderView.h"
#include "LMThemeColors.h"
#include "LMUiTestSupport.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionGroupBox>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace Lumeran;
using Lumeran::TestSupport::UiTest;

namespace {

constexpr double kMinimumContrast = 4.5;

struct Reading {
    QColor background;
    QColor text;
    double contrast = 1.0;
};

// The colour covering most of rect is what the text is painted on; the text's
// own colour is the pixel that differs most from it (antialiased edges are
// lighter, a stem's core has the full colour).
Reading Read(const QImage& image, const QRect& logical) {
    const qreal ratio = image.devicePixelRatio();
    const QRect rect =
        QRect((QRectF(logical).topLeft() * ratio).toPoint(), logical.size() * ratio) & image.rect();
    Reading reading;
    if (rect.isEmpty())
        return reading;
    QHash<QRgb, int> counts;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x)
            ++counts[image.pixel(x, y) | 0xff000000u];
    }
    QRgb most = 0;
    int best = -1;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        if (it.value() > best) {
            best = it.value();
            most = it.key();
        }
    }
    reading.background = QColor::fromRgb(most);
    reading.text = reading.background;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        const double contrast =
            LMThemeColors::contrastRatio(QColor::fromRgb(it.key()), reading.background);
        if (contrast > reading.contrast) {
            reading.contrast = contrast;
            reading.text = QColor::fromRgb(it.key());
        }
    }
    return reading;
}

std::string Describe(const Reading& reading) {
    return QString(reading.text.name() + QStringLiteral(" on ") + reading.background.name() +
                   QStringLiteral(": ") + QString::number(reading.contrast, 'f', 2))
        .toStdString();
}

class LMPaletteContrastTest : public UiTest, public ::testing::WithParamInterface<bool> {
protected:
    void SetUp() override {
        UiTest::SetUp();
        original = QApplication::palette();
        QApplication::setPalette(GetParam() ? LMDarkDesktopPalette::make()
                                            : QApplication::style()->standardPalette());
        ctrl = LMFormatSelectionWndCtrl::shared();
        d = LMFormatSelectionWndCtrlPrivate::get(ctrl);
        TestSupport::LoadDefaultCatalogueIntoSharedDataSource();
        ctrl->loadExternalDataInMainThread();
    }

    void TearDown() override {
        ctrl->hide();
        QApplication::setPalette(original);
        UiTest::TearDown();
    }

    void Popup() {
        ctrl->popupSelection(QRectF(100, 100, 120, 30), [](auto, auto) {});
        ASSERT_TRUE(QTest::qWaitForWindowExposed(ctrl));
        QApplication::processEvents();
    }

    // Each tab's title, the tab drawn without its image so that only the title
    // stands on the fill.
    void ExpectLegibleTabs() {
        const QList<QPushButton*> tabs = d->tabHeaderView()->tabButtons();
        ASSERT_FALSE(tabs.isEmpty());
        for (QPushButton* tab : tabs) {
            const QIcon icon = tab->icon();
            tab->setIcon(QIcon());
            const QImage image = tab->grab().toImage();
            tab->setIcon(icon);
            const Reading reading = Read(image, tab->rect().adjusted(3, 3, -3, -3));
            EXPECT_GE(reading.contrast, kMinimumContrast)
                << "tab " << tab->text().toStdString() << (tab->isChecked() ? " (selected) " : " ")
                << Describe(reading);
        }
    }

    // Every visible row's title and description, where the delegate lays them
    // out; returns the readings of row's title and description.
    std::pair<Reading, Reading> ExpectLegibleRows(LMFormatCollectionView* list, int row) {
        const QImage image = list->viewport()->grab().toImage();
        std::pair<Reading, Reading> wanted;
        const QFont font = list->font();
        const QFont small = LMFormatCollectionItemDelegate::descriptionFont(font);
        for (int r = 0; r < list->model()->rowCount(); ++r) {
            const QModelIndex index = list->model()->index(r, 0);
            const QRect rect = list->visualRect(index);
            if (!list->viewport()->rect().contains(rect))
                continue;
            const LMFormatDataViewItem* item = list->itemAtIndex(r);
            const LMFormatDataView* cell = item ? item->dataView() : nullptr;
            const bool described =
                index.data(LMFormatCollectionModel::VisibleDescriptionRole).toBool();
            const LMFormatCellLayout layout = LMFormatCellLayout::of(
                rect, QFontMetrics(font).height(), QFontMetrics(small).height(), described,
                cell && cell->isEditVisible(), cell && cell->isRemoveVisible());
            const Reading title = Read(image, layout.title);
            EXPECT_GE(title.contrast, kMinimumContrast)
                << "title of row " << r << " " << Describe(title);
            Reading description;
            if (described) {
                description = Read(image, layout.description);
                EXPECT_GE(description.contrast, kMinimumContrast)
                    << "description of row " << r << " " << Describe(description);
            }
            if (r == row)
                wanted = {title, description};
        }
        return wanted;
    }

    QPalette original;
    LMFormatSelectionWndCtrl* ctrl = nullptr;
    LMFormatSelectionWndCtrlPrivate* d = nullptr;
};

TEST_P(LMPaletteContrastTest, TabsAndHoveredSelectedAndPlainRowsReadAtLeastFourAndAHalfToOne) {
    Popup();
    ASSERT_FALSE(d->defFmtViewCtrls().isEmpty());
    // The first category's tab, whose lists are measured below.
    d->tabHeaderView()->selectTabByUser(1);
    QApplication::processEvents();
    ExpectLegibleTabs();

    LMFmtNodeViewCtrl* category = d->defFmtViewCtrls().first();
    for (LMFormatCollectionView* list : {category->nodeListView(), category->fmtListView()}) {
        ASSERT_GE(list->model()->rowCount(), 3);
        list->selectItemsAtIndexPaths({1}, QAbstractItemView::EnsureVisible);
        list->scrollToTop();
        QApplication::processEvents();
        LMFormatDataViewItem* hovered = list->itemAtIndex(0);
        ASSERT_NE(hovered, nullptr);
        hovered->dataView()->mouseEntered();
        ASSERT_TRUE(hovered->dataView()->highlighted());
        ASSERT_TRUE(list->itemAtIndex(1)->dataView()->highlighted());
        const Reading hoveredTitle = ExpectLegibleRows(list, 0).first;
        const Reading plainTitle = ExpectLegibleRows(list, 2).first;
        // The hovered row stands on its highlight, not on the list.
        EXPECT_NE(hoveredTitle.background, plainTitle.background);
        hovered->dataView()->mouseExited();
    }
}

// Greyed, so the title leads, yet still readable.
TEST_P(LMPaletteContrastTest, ARowsDescriptionIsGreyerThanItsTitle) {
    Popup();
    LMFormatCollectionView* list = d->defFmtViewCtrls().first()->fmtListView();
    int described = -1;
    for (int r = 0; r < list->model()->rowCount() && described < 0; ++r) {
        if (list->model()
                ->index(r, 0)
                .data(LMFormatCollectionModel::VisibleDescriptionRole)
                .toBool())
            described = r;
    }
    ASSERT_GE(described, 0) << "no row shows a description";
    for (const bool hover : {false, true}) {
        LMFormatDataView* cell = list->itemAtIndex(described)->dataView();
        if (hover)
            cell->mouseEntered();
        const auto [title, description] = ExpectLegibleRows(list, described);
        EXPECT_EQ(title.background, description.background);
        EXPECT_LT(description.contrast, title.contrast - 1.0)
            << "title " << Describe(title) << ", description " << Describe(description);
        EXPECT_GE(description.contrast, kMinimumContrast) << Describe(description);
        if (hover)
            cell->mouseExited();
    }
}

TEST_P(LMPaletteContrastTest, TheStripAndItsSelectedTabFollowThePalettesLightness) {
    Popup();
    const QList<QPushButton*> tabs = d->tabHeaderView()->tabButtons();
    ASSERT_GE(tabs.size(), 2);
    d->tabHeaderView()->selectTabByUser(1);
    QApplication::processEvents();
    ASSERT_TRUE(tabs.at(1)->isChecked());
    ASSERT_FALSE(tabs.at(0)->isChecked());
    const QColor selected = tabs.at(1)->grab().toImage().pixelColor(4, 4);
    const QColor other = tabs.at(0)->grab().toImage().pixelColor(4, 4);
    const QColor list = QApplication::palette().color(QPalette::Base);
    if (GetParam()) {
        EXPECT_LT(selected.lightnessF(), 0.5) << selected.name().toStdString();
        EXPECT_LT(other.lightnessF(), 0.5) << other.name().toStdString();
        EXPECT_EQ(selected, list);
    } else {
        EXPECT_EQ(selected, QColor(255, 255, 255));
        EXPECT_EQ(other, QColor(241, 235, 243));
    }
}

TEST_P(LMPaletteContrastTest, EveryTextOfTheEditorReadsAtLeastFourAndAHalfToOne) {
    const auto root = ILMFmtPresetDataSource::Shared()->GetExternalFormatPresets();
    const auto group = root ? root->FindChild("Video") : nullptr;
    const auto mp4 = group ? group->FindChild("MP4") : nullptr;
    ASSERT_TRUE(mp4 && mp4->FormatPresetCount() > 0);
    LMFormatEditingWndCtrl* editor = LMFormatEditingWndCtrl::shared();
    int measured = 0;
    QTimer::singleShot(0, editor, [editor, &measured] {
        EXPECT_TRUE(QTest::qWaitForWindowExposed(editor));
        const QImage image = editor->grab().toImage();
        const auto check = [&](const QWidget* widget, const QRect& local, const QString& what) {
            const QRect rect(widget->mapTo(editor, local.topLeft()), local.size());
            const Reading reading = Read(image, rect);
            EXPECT_GE(reading.contrast, kMinimumContrast)
                << what.toStdString() << " " << Describe(reading);
            ++measured;
        };
        for (const QLabel* label : editor->findChildren<QLabel*>()) {
            if (label->isVisibleTo(editor) && label->isEnabled() && !label->text().isEmpty())
                check(label, label->contentsRect(), label->text());
        }
        for (const QPushButton* button : editor->findChildren<QPushButton*>()) {
            if (!button->isVisibleTo(editor) || !button->isEnabled() || button->text().isEmpty())
                continue;
            QStyleOptionButton option;
            option.initFrom(button);
            option.text = button->text();
            const QRect contents =
                button->style()->subElementRect(QStyle::SE_PushButtonContents, &option, button);
            check(button, contents.adjusted(1, 1, -1, -1), button->text());
        }
        for (const QComboBox* box : editor->findChildren<QComboBox*>()) {
            if (!box->isVisibleTo(editor) || !box->isEnabled() || box->currentText().isEmpty())
                continue;
            QStyleOptionComboBox option;
            option.initFrom(box);
            option.editable = box->isEditable();
            const QRect field = box->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                             QStyle::SC_ComboBoxEditField, box);
            check(box, field, box->currentText());
        }
        for (const QGroupBox* group : editor->findChildren<QGroupBox*>()) {
            if (!group->isVisibleTo(editor) || !group->isEnabled() || group->title().isEmpty())
                continue;
            QStyleOptionGroupBox option;
            option.initFrom(group);
            option.text = group->title();
            option.subControls = QStyle::SC_GroupBoxLabel;
            const QRect label = group->style()->subControlRect(QStyle::CC_GroupBox, &option,
                                                               QStyle::SC_GroupBoxLabel, group);
            check(group, label, group->title());
        }
        editor->reject();
    });
    editor->startEditing(mp4->FormatPresetAt(0)->Clone(), mp4);
    EXPECT_GT(measured, 5) << "the editor showed hardly any text";
}

INSTANTIATE_TEST_SUITE_P(LightAndDark, LMPaletteContrastTest, ::testing::Values(false, true),
                         [](const ::testing::TestParamInfo<bool>& info) {
                             return std::string(info.param ? "DarkPalette" : "LightPalette");
                         });

} // namespace
