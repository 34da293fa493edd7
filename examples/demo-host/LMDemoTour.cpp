#include "LMDemoTour.h"

#include "ILMFmtPresetDataSource.h"
#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"
#include "ILMMediaFormatPopup.h"
#include "LMDemoHostWindow.h"
#include "LMDemoScreenshot.h"
#include "LMFmtNodeViewCtrl.h"
#include "LMFormatCollectionView.h"
#include "LMFormatDataView.h"
#include "LMFormatDataViewItem.h"
#include "LMFormatInternationalizationMgr.h"
#include "LMFormatSelectionWndCtrl.h"
#include "LMTabHeaderView.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <cstdio>

using namespace Lumeran;

LMDemoTour::LMDemoTour(std::string cataloguePath, QString outputDir)
    : m_cataloguePath(std::move(cataloguePath)), m_outputDir(std::move(outputDir)) {}

LMDemoTour::~LMDemoTour() = default;

bool LMDemoTour::check(bool condition, const char* what) {
    if (!condition)
        std::fprintf(stderr, "tour: %s\n", what);
    return condition;
}

void LMDemoTour::settle() {
    // Lets queued calls, layouts and paints run, as a second of a real session would.
    for (int i = 0; i < 5; ++i) {
        QApplication::processEvents();
        QTest::qWait(20);
    }
}

bool LMDemoTour::shoot(const QString& name) {
    settle();
    const QString path = QDir(m_outputDir).filePath(name + QStringLiteral(".png"));
    if (!check(LMDemoScreenshot::save(path), "cannot write a screenshot"))
        return false;
    ++m_shots;
    std::printf("  %s\n", qPrintable(QDir::toNativeSeparators(path)));
    return true;
}

void LMDemoTour::clickTab(int index) {
    auto* ctrl = LMFormatSelectionWndCtrl::shared();
    QTest::mouseClick(ctrl->tabHeaderView()->tabButtons().at(index), Qt::LeftButton);
    settle();
}

void LMDemoTour::clickRow(QAbstractItemView* view, int row) {
    const QRect rect = view->visualRect(view->model()->index(row, 0));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, rect.center() - QPoint(60, 0));
    settle();
}

void LMDemoTour::hoverRow(QAbstractItemView* view, int row) {
    const QPoint point = view->visualRect(view->model()->index(row, 0)).center();
    QTest::mouseMove(view->viewport(), point);
    settle();
}

QAbstractItemView* LMDemoTour::categoryPresetList(int category) const {
    const auto& lists = LMFormatSelectionWndCtrl::shared()->defFmtViewCtrls();
    return category < lists.size() ? lists.at(category)->fmtListView() : nullptr;
}

QAbstractItemView* LMDemoTour::customPresetList() const {
    return LMFormatSelectionWndCtrl::shared()->customFmtViewCtrl()->fmtListView();
}

bool LMDemoTour::run() {
    if (!check(QDir().mkpath(m_outputDir), "cannot make the screenshot folder"))
        return false;
    std::printf("Screenshots:\n");
    auto popup = ILMMediaFormatPopup::Shared();
    auto source = ILMFmtPresetDataSource::Shared();

    // Two presets the user saved in an earlier session.
    auto mp4 = ILMFormatNode::MallocFormatNode("MP4", "MP4 file format", 100);
    auto phone = ILMFormatPreset::MallocFormatPreset("MP4", "MP4-custom0");
    phone->SetDescription("H.264 1280x720 / AAC, for my phone");
    phone->SetFaceID(100);
    source->AddCustomPreset(phone, mp4);
    auto archive = ILMFormatPreset::MallocFormatPreset("MP4", "MP4-custom1");
    archive->SetDescription("H.264 / AAC, kept as the source");
    archive->SetFaceID(100);
    source->AddCustomPreset(archive, mp4);
    source->SaveCustomList();

    // Offscreen, the pointer goes to the first window that holds it, in the order
    // the windows were made, whatever is on top; making the popup's window first
    // lets the pointer reach the popup where it covers the host.
    LMFormatSelectionWndCtrl::shared()->winId();
    m_host = std::make_unique<LMDemoHostWindow>();
    m_host->move(60, 40);
    m_host->show();
    settle();

    // 1. The popup before the catalogue has arrived: the spinner.
    QTest::mouseClick(m_host->formatButton(), Qt::LeftButton);
    auto* ctrl = LMFormatSelectionWndCtrl::shared();
    if (!check(ctrl->isVisible(), "the popup did not open") || !shoot(QStringLiteral("01-loading")))
        return false;

    // 2. The catalogue arrives; the popup opens on the first category. The
    //    pointer rests over a preset: the cell lights up and offers its edit button.
    popup->SetupExternalFormatData(m_cataloguePath);
    popup->WaitForFormatDataLoadingComplete();
    settle();
    QAbstractItemView* video = categoryPresetList(0);
    if (!check(video && video->model()->rowCount() > 2, "the first category has no presets"))
        return false;
    hoverRow(video, 2);
    auto* hovered = static_cast<LMFormatCollectionView*>(video)->itemAtIndex(2);
    if (!check(hovered && hovered->showEditing(), "the cell under the pointer is not lit"))
        return false;
    if (!shoot(QStringLiteral("02-category-hover")))
        return false;

    // 3. A search in progress.
    QTest::keyClicks(ctrl->searchField(), QStringLiteral("1080"));
    if (!shoot(QStringLiteral("03-search")))
        return false;
    QTest::keyClick(ctrl->searchField(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(ctrl->searchField(), Qt::Key_Backspace);
    settle();

    // 4. Two choices, then Recent lists them, newest first.
    clickRow(video, 1);
    if (!check(!ctrl->isVisible() && m_host->currentPreset(), "choosing did not close the popup"))
        return false;
    QTest::mouseClick(m_host->formatButton(), Qt::LeftButton);
    settle();
    clickTab(2);
    clickRow(categoryPresetList(1), 0);
    QTest::mouseClick(m_host->formatButton(), Qt::LeftButton);
    settle();
    clickTab(0);
    QCursor::setPos(ctrl->mapToGlobal(QPoint(790, 440)));
    if (!shoot(QStringLiteral("04-recent")))
        return false;

    // 5. The presets the user saved.
    clickTab(int(ctrl->tabHeaderView()->countOfTab()) - 1);
    hoverRow(customPresetList(), 0);
    if (!shoot(QStringLiteral("05-custom")))
        return false;

    // 6. The same popup in French, on the first category.
    LMFormatInternationalizationMgr::sharedObject()->setLanguage(LMFormatLanguageFrench);
    clickTab(1);
    QCursor::setPos(ctrl->mapToGlobal(QPoint(790, 440)));
    if (!shoot(QStringLiteral("06-french")))
        return false;
    LMFormatInternationalizationMgr::sharedObject()->setLanguage(LMFormatLanguageEnglish);

    // 7. Escape dismisses the popup; the host keeps its last choice.
    QTest::keyClick(ctrl->searchField(), Qt::Key_Escape);
    settle();
    if (!check(!ctrl->isVisible(), "Escape did not dismiss the popup") ||
        !shoot(QStringLiteral("07-host-with-choice")))
        return false;

    std::printf("%d screenshots written.\n", m_shots);
    return true;
}
