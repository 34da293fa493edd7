// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"
#include "LMFmtNodeViewCtrl.h"
#include "LMFormatDataDelegate.h"
#include "LMFormatDataView.h"
#include "LMFormatDataViewDelegate.h"
#include "LMUiTestSupport.h"

#include <QImage>
#include <QPoint>
#include <QStringList>

#include <memory>
#include <string>
#include <vector>

class LMFormatCollectionView;
class LMFormatDataViewItem;
class QWidget;

namespace Lumeran::TestSupport {

// An MP4 preset with a title and, optionally, a description.
std::shared_ptr<ILMFormatPreset> MakePreset(const std::string& title,
                                            const std::string& description = {});
// A format node holding one MP4 preset per title.
std::shared_ptr<ILMFormatNode> MakeFormat(const std::string& title,
                                          const std::vector<std::string>& presetTitles,
                                          const std::string& description = {});
// A category "Video": "MP4" (3 presets: "MP4 HD 1080p", "MP4 HD 720p", "MP4 Phone"),
// "MOV" (2: "MOV ProRes", "MOV HD 720p"), "MKV" (1: "MKV Archive").
std::shared_ptr<ILMFormatNode> MakeCategory();
// Files every preset of MakeCategory() under the shared data source's custom
// list, saves it and returns that list.
std::shared_ptr<ILMFormatNode> FillCustomList();

// What a list told the window.
class RecordingDataDelegate : public LMFormatDataDelegate {
public:
    struct Selection {
        QObject* ctrl = nullptr;
        std::shared_ptr<const ILMFormatPreset> preset;
        std::shared_ptr<const ILMFormatNode> node;
    };
    struct Edit {
        QObject* ctrl = nullptr;
        std::shared_ptr<ILMFormatPreset> preset;
        std::shared_ptr<ILMFormatNode> node;
    };

    void viewControllerSelectFormat(QObject* ctrl, std::shared_ptr<const ILMFormatPreset> preset,
                                    std::shared_ptr<const ILMFormatNode> node) override;
    void viewControllerEditingFormat(QObject* ctrl, std::shared_ptr<ILMFormatPreset> preset,
                                     std::shared_ptr<ILMFormatNode> node) override;

    std::vector<Selection> selections;
    std::vector<Edit> edits;
};

// Stands between a cell's view and its item, counting the pointer messages and
// passing everything on.
class CountingViewDelegate : public LMFormatDataViewDelegate {
public:
    explicit CountingViewDelegate(LMFormatDataViewDelegate* target) : m_target(target) {}

    void formatDataViewMouseEnter(LMFormatDataView* view) override;
    void formatDataViewMouseExited(LMFormatDataView* view) override;
    bool formatDataViewSelected(LMFormatDataView* view) override;

    int enters = 0;
    int exits = 0;

private:
    LMFormatDataViewDelegate* m_target;
};

// Moves the pointer far away from every window.
void ParkCursor();
// Shows a top-level widget at 800 x 400 and waits until it is on screen.
bool ShowAndWait(QWidget* widget, int width = 800, int height = 400);

QPoint RowCenter(const LMFormatCollectionView* view, int row);
// Centre of a cell's action button in the list's viewport; null when hidden.
QPoint ButtonCenter(const LMFormatCollectionView* view, int row,
                    LMFormatDataView::ActionButton button);
void HoverRow(LMFormatCollectionView* view, int row);
void ClickRow(LMFormatCollectionView* view, int row);
// The widget shown and its window active, so that the focus it is given is real.
bool ShowActive(QWidget* widget);
// The titles the list's model gives for every row.
QStringList Titles(const LMFormatCollectionView* view);
// The cells that rows have now.
int LiveItemCount(const LMFormatCollectionView* view);
// A cell drawn on a transparent image.
QImage RenderCell(LMFormatDataView* view);
// The colour of the hover and selection background.
QColor Highlight();

// A category's two lists (its format nodes, the presets of the selected one)
// in a window of their own, telling a recording delegate.
class NodeViewCtrlTest : public UiTest {
protected:
    void SetUp() override {
        UiTest::SetUp();
        ctrl.reset(LMFmtNodeViewCtrl::fmtNodeViewCtrl());
        ctrl->setDelegate(&delegate);
    }
    void TearDown() override {
        ctrl.reset();
        UiTest::TearDown();
    }

    LMFormatCollectionView* nodes() const { return ctrl->nodeListView(); }
    LMFormatCollectionView* formats() const { return ctrl->fmtListView(); }

    RecordingDataDelegate delegate;
    std::unique_ptr<LMFmtNodeViewCtrl> ctrl;
};

} // namespace Lumeran::TestSupport
