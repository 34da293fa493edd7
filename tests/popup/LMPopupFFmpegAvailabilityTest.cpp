// SPDX-License-Identifier: MIT
// The host names its FFmpeg through the facade: the lists mark the presets that
// binary cannot run (dimmed, a warning mark, the reason in the tool tip and the
// accessible description), and the host can ask the same of any preset. A
// stand-in FFmpeg without libx265 plays the host's binary; its lists are cached
// in a temporary folder of each test.

#include "ILMFmtPresetDataSource.h"
#include "ILMMediaFormatPopup.h"
#include "LMFFmpegAvailability.h"
#include "LMFmtNodeViewCtrl.h"
#include "LMFormatCollectionModel.h"
#include "LMFormatCollectionView.h"
#include "LMFormatInternationalizationMgr.h"
#include "LMUiTestSupport.h"

#include <QImage>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace Lumeran;
using namespace Lumeran::TestSupport;

namespace {

const QString kHevcReason =
    QStringLiteral("This FFmpeg has no libx265 encoder — try MP4 High Quality");

class LMPopupFFmpegAvailabilityTest : public UiTest {
protected:
    void SetUp() override {
        UiTest::SetUp();
        LoadDefaultCatalogueIntoSharedDataSource();
        catalogue = ILMFmtPresetDataSource::Shared()->GetExternalFormatPresets();
        ASSERT_TRUE(catalogue);
        ctrl.reset(LMFmtNodeViewCtrl::fmtNodeViewCtrl());
        ctrl->resize(800, 400);
        ctrl->loadFormatNode(catalogue->FindChild("Video"));
    }
    void TearDown() override {
        LMFFmpegAvailability::shared()->clear();
        ctrl.reset();
        UiTest::TearDown();
    }

    // Shows the presets of the named format node of the Video tab.
    void ShowFormat(const std::string& title) {
        ctrl->setSelectedNode(catalogue->FindChild("Video")->FindChild(title));
        ctrl->loadSelectedNodeFormat();
    }
    // Names the FFmpeg as a host does and waits until the lists heard its answer.
    void UseFFmpeg(const std::string& path) {
        QSignalSpy answered(LMFFmpegAvailability::shared(),
                            &LMFFmpegAvailability::availabilityChanged);
        ILMMediaFormatPopup::Shared()->SetFFmpegPath(path, cache.path().toStdString());
        ASSERT_TRUE(LMFFmpegAvailability::shared()->waitForReady(60000));
        // One notice for the new binary, one when its answer is in.
        ASSERT_TRUE(answered.size() >= 2 || answered.wait(10000));
    }
    QAbstractItemModel* formats() const { return ctrl->fmtListView()->model(); }
    QString Role(int row, int role) const {
        return formats()->data(formats()->index(row, 0), role).toString();
    }
    // Pixels of a row, drawn as the list draws it.
    QImage RowImage(int row) const {
        auto* view = ctrl->fmtListView();
        return view->viewport()->grab(view->visualRect(formats()->index(row, 0))).toImage();
    }

    QTemporaryDir cache;
    std::shared_ptr<ILMFormatNode> catalogue;
    std::unique_ptr<LMFmtNodeViewCtrl> ctrl;
};

std::string FakeWithoutX265() {
    return SourcePath("tests/support/fake-ffmpeg-without-x265.sh");
}

// The warning mark's amber: strong red, middling green, little blue.
int AmberPixels(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            if (c.red() > 170 && c.green() > 90 && c.green() < 200 && c.blue() < 90)
                ++count;
        }
    return count;
}

// How dark the darkest pixel is: the title's ink.
int DarkestValue(const QImage& image) {
    int darkest = 255;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            darkest = std::min(darkest, image.pixelColor(x, y).value());
    return darkest;
}

TEST_F(LMPopupFFmpegAvailabilityTest, WithoutAnFFmpegNothingIsMarked) {
    ShowFormat("HEVC MP4");
    ASSERT_GT(formats()->rowCount(), 0);
    for (int row = 0; row < formats()->rowCount(); ++row) {
        EXPECT_TRUE(Role(row, LMFormatCollectionModel::UnavailableRole).isEmpty());
        EXPECT_EQ(Role(row, Qt::ToolTipRole), Role(row, LMFormatCollectionModel::DescriptionRole));
        EXPECT_EQ(Role(row, Qt::AccessibleDescriptionRole),
                  Role(row, LMFormatCollectionModel::DescriptionRole));
    }
    const auto preset = catalogue->FindChild("Video")->FindChild("HEVC MP4")->FormatPresetAt(0);
    EXPECT_EQ(ILMMediaFormatPopup::Shared()->PresetAvailability(preset).status,
              LMPresetAvailability::Status::Unknown);
}

TEST_F(LMPopupFFmpegAvailabilityTest, PresetsTheFFmpegLacksAnEncoderForSayWhyAndWhatInstead) {
    ShowFormat("HEVC MP4");
    UseFFmpeg(FakeWithoutX265());
    ASSERT_EQ(formats()->rowCount(), 6);
    for (int row = 0; row < formats()->rowCount(); ++row) {
        const QString reason = Role(row, LMFormatCollectionModel::UnavailableRole);
        EXPECT_TRUE(reason.startsWith(QStringLiteral("This FFmpeg has no libx265 encoder — try ")))
            << reason.toStdString();
        EXPECT_EQ(Role(row, Qt::ToolTipRole), reason);
        EXPECT_EQ(Role(row, Qt::AccessibleDescriptionRole), reason);
    }
    EXPECT_EQ(Role(0, Qt::ToolTipRole), kHevcReason); // High Quality
    // The row is still there to be chosen.
    EXPECT_TRUE(formats()->flags(formats()->index(0, 0)) & Qt::ItemIsSelectable);

    ShowFormat("MP4");
    for (int row = 0; row < formats()->rowCount(); ++row) {
        EXPECT_TRUE(Role(row, LMFormatCollectionModel::UnavailableRole).isEmpty());
        EXPECT_EQ(Role(row, Qt::ToolTipRole), Role(row, LMFormatCollectionModel::DescriptionRole));
    }
}

TEST_F(LMPopupFFmpegAvailabilityTest, AnUnavailablePresetIsDrawnFaintWithAWarningMark) {
    ShowFormat("HEVC MP4");
    ctrl->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(ctrl.get()));
    const QImage before = RowImage(1);
    UseFFmpeg(FakeWithoutX265());
    QApplication::processEvents();
    const QImage after = RowImage(1);
    ASSERT_FALSE(before.isNull());
    EXPECT_EQ(AmberPixels(before), 0);
    EXPECT_GT(AmberPixels(after), 20);
    // The title's ink is lighter once dimmed.
    EXPECT_GT(DarkestValue(after.copy(0, 0, after.width() / 2, after.height())),
              DarkestValue(before.copy(0, 0, before.width() / 2, before.height())) + 40);
}

TEST_F(LMPopupFFmpegAvailabilityTest, TheHostCanAskWhatItReceived) {
    UseFFmpeg(FakeWithoutX265());
    const auto video = catalogue->FindChild("Video");
    const auto hevc = video->FindChild("HEVC MP4")->FindFormatPreset("High Quality");
    const auto found = ILMMediaFormatPopup::Shared()->PresetAvailability(hevc);
    EXPECT_EQ(found.status, LMPresetAvailability::Status::Missing);
    EXPECT_EQ(found.missingName, "libx265");
    EXPECT_EQ(found.Reason(), kHevcReason.toStdString());
    const auto h264 = video->FindChild("MP4")->FindFormatPreset("High Quality");
    EXPECT_EQ(ILMMediaFormatPopup::Shared()->PresetAvailability(h264).status,
              LMPresetAvailability::Status::Available);
}

TEST_F(LMPopupFFmpegAvailabilityTest, TheReasonIsInThePopupsLanguage) {
    ShowFormat("HEVC MP4");
    UseFFmpeg(FakeWithoutX265());
    for (const QString& language : EveryLanguage()) {
        LMFormatInternationalizationMgr::sharedObject()->setLanguage(language);
        QApplication::processEvents();
        const QString reason = Role(0, Qt::ToolTipRole);
        EXPECT_TRUE(reason.contains(QStringLiteral("libx265"))) << language.toStdString();
        EXPECT_TRUE(reason.contains(QStringLiteral("MP4"))) << language.toStdString();
        if (language != LMFormatLanguageEnglish) {
            EXPECT_NE(reason, kHevcReason) << language.toStdString();
        }
    }
}

TEST_F(LMPopupFFmpegAvailabilityTest, WithTheRealFFmpegEveryPresetIsAvailable) {
    UseFFmpeg({});
    for (const auto* format : {"MP4", "HEVC MP4", "HEVC MKV", "ProRes MOV", "WMV"}) {
        ShowFormat(format);
        for (int row = 0; row < formats()->rowCount(); ++row)
            EXPECT_TRUE(Role(row, LMFormatCollectionModel::UnavailableRole).isEmpty()) << format;
    }
}

} // namespace
