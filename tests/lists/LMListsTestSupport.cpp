// SPDX-License-Identifier: MIT
#include "LMListsTestSupport.h"

#include "ILMFmtPresetDataSource.h"
#include "LMFormatCollectionModel.h"
#include "LMFormatCollectionView.h"
#include "LMFormatDataViewItem.h"
#include "LMUiTestSupport.h"

#include <QAbstractItemView>
#include <QCursor>
#include <QGuiApplication>
#include <QPainter>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace Lumeran::TestSupport {

std::shared_ptr<ILMFormatPreset> MakePreset(const std::string& title,
                                            const std::string& description) {
    auto preset = ILMFormatPreset::MallocFormatPreset("MP4", title);
    EXPECT_TRUE(preset);
    if (preset && !description.empty())
        preset->SetDescription(description);
    return preset;
}

std::shared_ptr<ILMFormatNode> MakeFormat(const std::string& title,
                                          const std::vector<std::string>& presetTitles,
                                          const std::string& description) {
    auto node = ILMFormatNode::MallocFormatNode(title, description, 0);
    for (const auto& presetTitle : presetTitles)
        node->AddFormatPreset(MakePreset(presetTitle, presetTitle + " description"));
    return node;
}

std::shared_ptr<ILMFormatNode> MakeCategory() {
    auto root = ILMFormatNode::MallocFormatNode("Video", "Video formats", 10);
    root->AddChild(MakeFormat("MP4", {"MP4 HD 1080p", "MP4 HD 720p", "MP4 Phone"}, "MP4 Format"));
    root->AddChild(MakeFormat("MOV", {"MOV ProRes", "MOV HD 720p"}, "QuickTime Movie"));
    root->AddChild(MakeFormat("MKV", {"MKV Archive"}, "Matroska Video"));
    return root;
}

std::shared_ptr<ILMFormatNode> FillCustomList() {
    auto source = ILMFmtPresetDataSource::Shared();
    const auto category = MakeCategory();
    for (int i = 0; i < category->ChildCount(); ++i) {
        const auto node = category->ChildAt(i);
        for (int j = 0; j < node->FormatPresetCount(); ++j)
            source->AddCustomPreset(node->FormatPresetAt(j), node);
    }
    source->SaveCustomList();
    return source->GetCustomList();
}

void RecordingDataDelegate::viewControllerSelectFormat(
    QObject* ctrl, std::shared_ptr<const ILMFormatPreset> preset,
    std::shared_ptr<const ILMFormatNode> node) {
    selections.push_back({ctrl, std::move(preset), std::move(node)});
}

void RecordingDataDelegate::viewControllerEditingFormat(QObject* ctrl,
                                                        std::shared_ptr<ILMFormatPreset> preset,
                                                        std::shared_ptr<ILMFormatNode> node) {
    edits.push_back({ctrl, std::move(preset), std::move(node)});
}

void CountingViewDelegate::formatDataViewMouseEnter(LMFormatDataView* view) {
    ++enters;
    m_target->formatDataViewMouseEnter(view);
}

void CountingViewDelegate::formatDataViewMouseExited(LMFormatDataView* view) {
    ++exits;
    m_target->formatDataViewMouseExited(view);
}

bool CountingViewDelegate::formatDataViewSelected(LMFormatDataView* view) {
    return m_target->formatDataViewSelected(view);
}

void ParkCursor() {
    QCursor::setPos(QPoint(5000, 5000));
    QCoreApplication::processEvents();
}

bool ShowAndWait(QWidget* widget, int width, int height) {
    ParkCursor();
    widget->resize(width, height);
    widget->show();
    // Without a window manager nothing activates a new window by itself.
    widget->activateWindow();
    return QTest::qWaitForWindowExposed(widget);
}

QPoint RowCenter(const LMFormatCollectionView* view, int row) {
    return view->visualRect(view->model()->index(row, 0)).center();
}

QPoint ButtonCenter(const LMFormatCollectionView* view, int row,
                    LMFormatDataView::ActionButton button) {
    const LMFormatDataViewItem* item = view->itemAtIndex(row);
    if (!item || !item->dataView())
        return {};
    const QRect geometry = item->dataView()->actionButtonGeometry(button);
    if (geometry.isEmpty())
        return {};
    return view->visualRect(view->model()->index(row, 0)).topLeft() + geometry.center();
}

void HoverRow(LMFormatCollectionView* view, int row) {
    const QPoint centre = RowCenter(view, row);
    QTest::mouseMove(view->viewport(), centre);
    if (QGuiApplication::platformName() == QLatin1StringView("offscreen"))
        return; // the list has heard of the move already
    // On a real display the pointer is warped, and the list hears of it as a
    // window-system event a moment later. A warp from outside the window is an
    // entry, not a motion, and rows hover on motion: the pointer moves on by a
    // pixel and back, as a hand coming to rest does.
    for (const QPoint step : {QPoint(1, 0), QPoint(0, 0)}) {
        QTest::qWait(50);
        QTest::mouseMove(view->viewport(), centre + step);
    }
    QTest::qWait(100);
}

bool ShowActive(QWidget* widget) {
    if (!ShowAndWait(widget))
        return false;
    widget->activateWindow();
    return QTest::qWaitForWindowActive(widget);
}

void ClickRow(LMFormatCollectionView* view, int row) {
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, RowCenter(view, row));
}

QStringList Titles(const LMFormatCollectionView* view) {
    QStringList titles;
    const QAbstractItemModel* model = view->model();
    for (int row = 0; row < model->rowCount(); ++row)
        titles.append(model->index(row, 0).data(Qt::DisplayRole).toString());
    return titles;
}

int LiveItemCount(const LMFormatCollectionView* view) {
    int count = 0;
    for (int row = 0; row < view->numberOfItems(); ++row)
        count += view->itemAtIndex(row) ? 1 : 0;
    return count;
}

QImage RenderCell(LMFormatDataView* view) {
    QImage image(view->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const auto* list = view->host()
                           ? qobject_cast<const QAbstractItemView*>(view->host()->parentWidget())
                           : nullptr;
    if (!list)
        return image;
    // The row painted by the list's own delegate, as the list paints it.
    QStyleOptionViewItem option;
    option.rect = view->geometry();
    option.font = list->font();
    option.palette = list->palette();
    option.widget = list;
    option.state = QStyle::State_Enabled;
    QPainter painter(&image);
    painter.translate(-view->geometry().topLeft());
    list->itemDelegate()->paint(&painter, option, list->indexAt(view->geometry().center()));
    painter.end();
    return image;
}

QColor Highlight() {
    return QColor::fromRgb(221, 220, 221);
}

} // namespace Lumeran::TestSupport
