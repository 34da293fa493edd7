// SPDX-License-Identifier: MIT
#include "LMDemoTour.h"

#include "ILMFmtPresetDataSource.h"
#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"
#include "ILMMediaFormatPopup.h"
#include "LMDarkDesktopPalette.h"
#include "LMDemoConverter.h"
#include "LMDemoHostWindow.h"
#include "LMDemoScreenshot.h"
#include "LMFFmpegAvailability.h"
#include "LMFmtNodeViewCtrl.h"
#include "LMFormatCollectionView.h"
#include "LMFormatDataView.h"
#include "LMFormatDataViewItem.h"
#include "LMFormatInternationalizationMgr.h"
#include "LMFormatSelectionWndCtrl.h"
#include "LMFormatSelectionWndCtrl_p.h"
#include "LMPresetManagerWndCtrl.h"
#include "LMTabHeaderView.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QStyleHints>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QTreeWidget>

#include <algorithm>
#include <cstdio>

using namespace Lumeran;

namespace {

// The popup's tab strip, lists and search field, which the tour drives as a
// user would.
LMFormatSelectionWndCtrlPrivate* Popup() {
    return LMFormatSelectionWndCtrlPrivate::get(LMFormatSelectionWndCtrl::shared());
}

} // namespace

LMDemoTour::LMDemoTour(std::string cataloguePath, QString outputDir, bool convert)
    : m_cataloguePath(std::move(cataloguePath)), m_outputDir(std::move(outputDir)),
      m_convert(convert) {}

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
    QTest::mouseClick(Popup()->tabHeaderView()->tabButtons().at(index), Qt::LeftButton);
    settle();
}

void LMDemoTour::clickRow(QAbstractItemView* view, int row) {
    const QRect rect = view->visualRect(view->model()->index(row, 0));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, rect.center() - QPoint(60, 0));
    settle();
    // A click that chose keeps the rest of its click sequence, a double-click's
    // time, from the host; a user's next click comes later than that.
    QTest::qWait(QGuiApplication::styleHints()->mouseDoubleClickInterval() + 100);
}

void LMDemoTour::hoverRow(QAbstractItemView* view, int row) {
    const QPoint point = view->visualRect(view->model()->index(row, 0)).center();
    QTest::mouseMove(view->viewport(), point);
    settle();
}

QAbstractItemView* LMDemoTour::categoryPresetList(int category) const {
    const auto& lists = Popup()->defFmtViewCtrls();
    return category < lists.size() ? lists.at(category)->fmtListView() : nullptr;
}

QAbstractItemView* LMDemoTour::customPresetList() const {
    return Popup()->customFmtViewCtrl()->fmtListView();
}

bool LMDemoTour::run() {
    if (!check(QDir().mkpath(m_outputDir), "cannot make the screenshot folder"))
        return false;
    std::printf("Screenshots:\n");
    seedCustomPresets();
    // Offscreen, the pointer goes to the first window that holds it, in the order
    // the windows were made, whatever is on top; making the popup's window first
    // lets the pointer reach the popup where it covers the host.
    LMFormatSelectionWndCtrl::shared()->winId();
    m_host = std::make_unique<LMDemoHostWindow>();
    m_host->move(60, 40);
    m_host->show();
    settle();

    if (!popupSteps() || !choiceSteps() || !editorSteps() || !managerSteps() || !darkSteps() ||
        !unavailableSteps() || (m_convert && !conversionSteps()))
        return false;
    std::printf("%d screenshots written.\n", m_shots);
    return true;
}

bool LMDemoTour::runTwelveCategories() {
    if (!check(QDir().mkpath(m_outputDir), "cannot make the screenshot folder"))
        return false;
    std::printf("Screenshots:\n");
    LMFormatSelectionWndCtrl::shared()->winId();
    m_host = std::make_unique<LMDemoHostWindow>();
    m_host->move(60, 40);
    m_host->show();
    settle();
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("twelve-categories.json"));
    if (!check(dir.isValid() && writeTwelveCategories(path), "cannot write the catalogue"))
        return false;
    auto popup = ILMMediaFormatPopup::Shared();
    popup->SetupExternalFormatData(path.toStdString());
    popup->WaitForFormatDataLoadingComplete();
    settle();
    QTest::mouseClick(m_host->formatButton(), Qt::LeftButton);
    settle();
    auto* ctrl = LMFormatSelectionWndCtrl::shared();
    LMTabHeaderView* strip = Popup()->tabHeaderView();
    if (!check(ctrl->isVisible() && strip->countOfTab() == 14,
               "the popup did not open on twelve categories"))
        return false;
    QCursor::setPos(ctrl->mapToGlobal(QPoint(790, 440)));
    // 12. The tabs that do not fit beside the search field scroll: first as the
    //     popup opens, then at the end, after clicks on the right arrow, and
    //     with Custom chosen by Ctrl+Page Up from the first tab.
    if (!shoot(QStringLiteral("12-twelve-categories")))
        return false;
    for (int i = 0; i < 20 && strip->scrollRightButton()->isEnabled(); ++i)
        QTest::mouseClick(strip->scrollRightButton(), Qt::LeftButton);
    if (!shoot(QStringLiteral("12-twelve-categories-scrolled")))
        return false;
    clickTab(0);
    QTest::keyClick(ctrl->windowHandle(), Qt::Key_PageUp, Qt::ControlModifier);
    if (!check(strip->indexOfSelected() == 13, "Ctrl+Page Up did not reach Custom") ||
        !shoot(QStringLiteral("12-twelve-categories-custom")))
        return false;
    for (int i = 0; i < 4; ++i)
        QTest::keyClick(ctrl->windowHandle(), Qt::Key_Tab, Qt::ControlModifier);
    if (!shoot(QStringLiteral("12-twelve-categories-ctrl-tab")))
        return false;
    std::printf("%d screenshots written.\n", m_shots);
    return true;
}

bool LMDemoTour::writeTwelveCategories(const QString& path) const {
    // The default catalogue's categories and eight more made of its first
    // category's formats, as a catalogue of a larger application would be.
    QFile source(QString::fromStdString(m_cataloguePath));
    if (!source.open(QIODevice::ReadOnly))
        return false;
    QJsonObject root = QJsonDocument::fromJson(source.readAll()).object();
    QJsonArray categories = root.value(QStringLiteral("children")).toArray();
    if (categories.isEmpty())
        return false;
    const QJsonObject model = categories.first().toObject();
    for (const char* title :
         {"Archive", "Broadcast", "Camera", "Editing", "Phones", "Social", "Stage", "Studio"}) {
        if (categories.size() >= 12)
            break;
        QJsonObject category = model;
        category.insert(QStringLiteral("title"), QString::fromLatin1(title));
        categories.append(category);
    }
    root.insert(QStringLiteral("children"), categories);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(root).toJson()) <= 0)
        return false;
    // The artwork goes beside it, as a catalogue's does: images are read only
    // from the folder of their configuration.
    const QFileInfo catalogue(QString::fromStdString(m_cataloguePath));
    const QDir from(catalogue.dir().filePath(QStringLiteral("artwork")));
    const QDir to(QFileInfo(path).dir().filePath(QStringLiteral("artwork")));
    if (!QDir().mkpath(to.path()) ||
        !QFile::copy(
            catalogue.dir().filePath(catalogue.completeBaseName() + QStringLiteral(".icfg")),
            QFileInfo(path).dir().filePath(QFileInfo(path).completeBaseName() +
                                           QStringLiteral(".icfg"))))
        return false;
    const QStringList images = from.entryList(QDir::Files);
    return std::ranges::all_of(images, [&](const QString& image) {
        return QFile::copy(from.filePath(image), to.filePath(image));
    });
}

void LMDemoTour::seedCustomPresets() {
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
}

// The popup while the catalogue loads, once it has, and during a search.
bool LMDemoTour::popupSteps() {
    auto popup = ILMMediaFormatPopup::Shared();
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

    // 3. A search in progress, then Down from the field: the first match is
    //    the keyboard's current row and wears the focus ring.
    QTest::keyClicks(Popup()->searchField(), QStringLiteral("1080"));
    if (!shoot(QStringLiteral("03-search")))
        return false;
    QTest::keyClick(ctrl->windowHandle(), Qt::Key_Down);
    if (!check(video->hasFocus(), "Down in the search field did not reach the list") ||
        !shoot(QStringLiteral("03-search-keyboard")))
        return false;
    Popup()->searchField()->setFocus(Qt::OtherFocusReason);
    QTest::keyClick(Popup()->searchField(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(Popup()->searchField(), Qt::Key_Backspace);
    settle();
    return true;
}

// Choices, Recent, Custom, French, and a dismissal.
bool LMDemoTour::choiceSteps() {
    auto* ctrl = LMFormatSelectionWndCtrl::shared();
    QAbstractItemView* video = categoryPresetList(0);
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
    clickTab(int(Popup()->tabHeaderView()->countOfTab()) - 1);
    hoverRow(customPresetList(), 0);
    if (!shoot(QStringLiteral("05-custom")))
        return false;

    // 6. The same popup in French, on the first category, then the tab strip
    //    in every language, each title whole.
    LMFormatInternationalizationMgr* mgr = LMFormatInternationalizationMgr::sharedObject();
    mgr->setLanguage(LMFormatLanguageFrench);
    clickTab(1);
    QCursor::setPos(ctrl->mapToGlobal(QPoint(790, 440)));
    if (!shoot(QStringLiteral("06-french")))
        return false;
    for (const QString& language :
         {LMFormatLanguageEnglish, LMFormatLanguageJapanese, LMFormatLanguageChinese,
          LMFormatLanguageFrench, LMFormatLanguageGerman, LMFormatLanguageItalian,
          LMFormatLanguageSpanish, LMFormatLanguagePortuguese}) {
        mgr->setLanguage(language);
        if (!shoot(QStringLiteral("06-tabs-") + mgr->codeWithLanguage(language)))
            return false;
    }
    mgr->setLanguage(LMFormatLanguageEnglish);

    // 7. Escape dismisses the popup; the host keeps its last choice.
    QTest::keyClick(Popup()->searchField(), Qt::Key_Escape);
    settle();
    return check(!ctrl->isVisible(), "Escape did not dismiss the popup") &&
           shoot(QStringLiteral("07-host-with-choice"));
}

bool LMDemoTour::shootEditor(std::shared_ptr<ILMFormatPreset> preset,
                             std::shared_ptr<const ILMFormatNode> node, const QString& name) {
    // The editor is modal: the picture is taken from inside its loop, which the
    // same queued call then ends with Escape (a cancel).
    bool shot = false;
    QTimer::singleShot(0, this, [&] {
        QWidget* editor = QApplication::activeModalWidget();
        shot = editor && shoot(name);
        if (editor)
            QTest::keyClick(editor, Qt::Key_Escape);
    });
    ILMMediaFormatPopup::Shared()->PopupEditing(std::move(preset), std::move(node));
    settle();
    return check(shot, "the editor did not open");
}

bool LMDemoTour::editorSteps() {
    auto catalogue = ILMFmtPresetDataSource::Shared()->GetExternalFormatPresets();
    if (!check(catalogue && catalogue->ChildCount() >= 2, "the catalogue has no categories"))
        return false;
    const std::shared_ptr<const ILMFormatNode> mp4 =
        std::as_const(*catalogue->ChildAt(0)).ChildAt(0);
    const std::shared_ptr<const ILMFormatNode> wav =
        std::as_const(*catalogue->ChildAt(1)).ChildAt(0);

    // 8. The editor on the host's current choice, opened with "Edit…": a video
    //    preset ("HD 1080p" of the first format), so both sections are filled.
    QTest::mouseClick(m_host->formatButton(), Qt::LeftButton);
    settle();
    clickTab(1);
    clickRow(categoryPresetList(0), 3);
    if (!check(m_host->currentPreset() && m_host->currentPreset()->VideoCodecCount() > 0,
               "no video preset was chosen for the editor"))
        return false;
    bool shot = false;
    QTimer::singleShot(0, this, [&] {
        QWidget* editor = QApplication::activeModalWidget();
        shot = editor && shoot(QStringLiteral("08-editor"));
        if (!editor)
            return;
        // 9. "Save as New Preset" asks for a name over the editor.
        auto* saveAsNew = editor->findChild<QAbstractButton*>(QStringLiteral("btnSaveNewPreset"));
        if (saveAsNew) {
            QTest::mouseClick(saveAsNew, Qt::LeftButton);
            settle();
            shot = shoot(QStringLiteral("09-name-prompt")) && shot;
            if (QWidget* prompt = QApplication::activeModalWidget(); prompt && prompt != editor)
                QTest::keyClick(prompt, Qt::Key_Escape);
            settle();
        }
        QTest::keyClick(editor, Qt::Key_Escape);
    });
    QTest::mouseClick(m_host->editButton(), Qt::LeftButton);
    settle();
    if (!check(shot, "the editor or its name prompt did not open"))
        return false;

    // 10. A preset whose video codec is the automatic one: nothing to choose
    //     beyond the encoder.
    auto automatic = mp4->FormatPresetAt(0)->Clone();
    for (int i = 0; i < automatic->VideoCodecCount(); ++i) {
        if (automatic->VideoCodecAt(i)->IsAutoValue())
            automatic->SetCurrentVideoCodec(i);
    }
    if (!shootEditor(automatic, mp4, QStringLiteral("10-editor-automatic-codec")))
        return false;

    // 11. A preset without a video stream: the video section is disabled.
    return shootEditor(wav->FormatPresetAt(0)->Clone(), wav,
                       QStringLiteral("11-editor-audio-only"));
}

// The window of the user's own presets, opened with "Manage presets…".
bool LMDemoTour::managerSteps() {
    // One more preset, made from a pasted FFmpeg command line, under a second format.
    const auto pasted = ILMFmtPresetDataSource::Shared()->AddCustomPresetFromArguments(
        "Small HEVC",
        {"-c:v", "libx265", "-crf", "28", "-c:a", "aac", "-b:a", "128k", "-f", "matroska"});
    if (!check(pasted.ok && pasted.notMapped.empty(), "the pasted command line did not map"))
        return false;
    ILMFmtPresetDataSource::Shared()->SaveCustomList();
    QTest::mouseClick(m_host->manageButton(), Qt::LeftButton);
    settle();
    LMPresetManagerWndCtrl* manager = LMPresetManagerWndCtrl::shared();
    auto* tree = manager->findChild<QTreeWidget*>(QStringLiteral("treePresets"));
    if (!check(manager->isVisible() && tree && tree->topLevelItemCount() == 2,
               "the preset manager did not open on two formats"))
        return false;
    manager->move(m_host->geometry().topRight() + QPoint(-200, 120));
    // 16. The presets by format, the second one selected by the keyboard.
    tree->setFocus();
    QTest::keyClick(tree, Qt::Key_Down);
    if (!shoot(QStringLiteral("16-preset-manager")))
        return false;
    // 17. The same window in Japanese, after a duplicate.
    QTest::mouseClick(manager->findChild<QPushButton*>(QStringLiteral("btnDuplicate")),
                      Qt::LeftButton);
    LMFormatInternationalizationMgr* mgr = LMFormatInternationalizationMgr::sharedObject();
    mgr->setLanguage(LMFormatLanguageJapanese);
    const bool shot = shoot(QStringLiteral("17-preset-manager-japanese"));
    mgr->setLanguage(LMFormatLanguageEnglish);
    manager->close();
    settle();
    return shot;
}

// The popup and the editor once more, on a desktop with a dark theme. Taken
// before the conversion, which may fail on a machine without FFmpeg's encoders,
// and numbered after it so that the light pictures keep their names.
bool LMDemoTour::darkSteps() {
    const QPalette light = QApplication::palette();
    QApplication::setPalette(LMDarkDesktopPalette::make());
    settle();
    // 14. The first category, one preset chosen and the pointer over another.
    QTest::mouseClick(m_host->formatButton(), Qt::LeftButton);
    settle();
    clickTab(1);
    auto* video = static_cast<LMFormatCollectionView*>(categoryPresetList(0));
    bool shot = check(video && video->model()->rowCount() > 3, "the first category has no presets");
    if (shot) {
        video->selectItemsAtIndexPaths({1}, QAbstractItemView::EnsureVisible);
        hoverRow(video, 3);
        shot = shoot(QStringLiteral("14-dark-popup"));
    }
    QTest::keyClick(Popup()->searchField(), Qt::Key_Escape);
    settle();
    // 15. The editor on a video preset.
    const auto catalogue = ILMFmtPresetDataSource::Shared()->GetExternalFormatPresets();
    const std::shared_ptr<const ILMFormatNode> mp4 =
        std::as_const(*catalogue->ChildAt(0)).ChildAt(0);
    shot =
        shot && shootEditor(mp4->FormatPresetAt(0)->Clone(), mp4, QStringLiteral("15-dark-editor"));
    QApplication::setPalette(light);
    settle();
    return shot;
}

// The host names an FFmpeg that lacks libx265 (the real one, its encoder list
// filtered by a script): the HEVC presets are drawn faint with a warning mark,
// and the pointer resting on one shows what to pick instead.
bool LMDemoTour::unavailableSteps() {
    QTemporaryDir bin;
    const QString fake = bin.filePath(QStringLiteral("ffmpeg"));
    QFile script(fake);
    if (!check(bin.isValid() && script.open(QIODevice::WriteOnly), "cannot write the FFmpeg"))
        return false;
    script.write("#!/bin/sh\n"
                 "case \"$*\" in *-encoders*) ffmpeg \"$@\" | grep -v ' libx265 '; exit 0;; esac\n"
                 "exec ffmpeg \"$@\"\n");
    script.close();
    script.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    ILMMediaFormatPopup::Shared()->SetFFmpegPath(
        fake.toStdString(), bin.filePath(QStringLiteral("cache")).toStdString());
    const bool answered = LMFFmpegAvailability::shared()->waitForReady(60000);
    settle();
    // 16. The HEVC MP4 presets of the first category, the pointer on the first.
    QTest::mouseClick(m_host->formatButton(), Qt::LeftButton);
    settle();
    clickTab(1);
    auto* nodes = Popup()->defFmtViewCtrls().at(0)->nodeListView();
    clickRow(nodes, 1);
    QAbstractItemView* presets = categoryPresetList(0);
    const QModelIndex first = presets ? presets->model()->index(0, 0) : QModelIndex();
    const QString reason = first.data(Qt::ToolTipRole).toString();
    bool shot = check(answered && reason.contains(QStringLiteral("libx265")),
                      "the FFmpeg without libx265 marked no preset");
    if (shot) {
        hoverRow(presets, 0);
        const QRect row = presets->visualRect(first);
        QToolTip::showText(presets->viewport()->mapToGlobal(row.center() + QPoint(0, 14)), reason,
                           presets->viewport());
        settle();
        LMDemoScreenshot::setShowsToolTips(true);
        shot = shoot(QStringLiteral("18-unavailable-preset"));
        LMDemoScreenshot::setShowsToolTips(false);
        QToolTip::hideText();
    }
    QTest::keyClick(Popup()->searchField(), Qt::Key_Escape);
    LMFFmpegAvailability::shared()->clear();
    settle();
    return shot;
}

bool LMDemoTour::conversionSteps() {
    // 12. A real conversion of a generated clip: ten seconds of test picture and tone.
    const QDir media(QDir(m_outputDir).filePath(QStringLiteral("media")));
    if (!check(media.mkpath(QStringLiteral(".")), "cannot make the media folder"))
        return false;
    const QString clip = media.filePath(QStringLiteral("tour-clip.mp4"));
    QProcess ffmpeg;
    ffmpeg.start(QStringLiteral("ffmpeg"),
                 {QStringLiteral("-hide_banner"),
                  QStringLiteral("-loglevel"),
                  QStringLiteral("error"),
                  QStringLiteral("-y"),
                  QStringLiteral("-f"),
                  QStringLiteral("lavfi"),
                  QStringLiteral("-i"),
                  QStringLiteral("testsrc2=duration=10:size=640x360:rate=25"),
                  QStringLiteral("-f"),
                  QStringLiteral("lavfi"),
                  QStringLiteral("-i"),
                  QStringLiteral("sine=frequency=440:duration=10"),
                  QStringLiteral("-c:v"),
                  QStringLiteral("libx264"),
                  QStringLiteral("-preset"),
                  QStringLiteral("ultrafast"),
                  QStringLiteral("-c:a"),
                  QStringLiteral("aac"),
                  QStringLiteral("-shortest"),
                  clip});
    if (!check(ffmpeg.waitForFinished(120000) && ffmpeg.exitCode() == 0,
               "ffmpeg could not make the tour's clip"))
        return false;
    m_host->setSource(clip);

    // Choose "HD 720p" of the first format.
    QTest::mouseClick(m_host->formatButton(), Qt::LeftButton);
    settle();
    clickTab(1);
    QAbstractItemView* list = categoryPresetList(0);
    int row = 0;
    for (int r = 0; r < list->model()->rowCount(); ++r) {
        if (list->model()->index(r, 0).data().toString().contains(QStringLiteral("720p")))
            row = r;
    }
    clickRow(list, row);

    QSignalSpy finished(m_host->converter(), &LMDemoConverter::finished);
    QSignalSpy progress(m_host->converter(), &LMDemoConverter::progress);
    QTest::mouseClick(m_host->convertButton(), Qt::LeftButton);
    // Halfway through, the progress bar is worth a picture.
    QElapsedTimer timer;
    timer.start();
    bool halfway = false;
    while (finished.isEmpty() && timer.elapsed() < 180000) {
        QTest::qWait(50);
        if (!halfway && !progress.isEmpty() && progress.last().at(0).toDouble() >= 0.3) {
            halfway = shoot(QStringLiteral("12-converting"));
        }
    }
    if (!check(!finished.isEmpty(), "the conversion did not finish"))
        return false;
    if (!check(finished.first().at(0).toBool(), qPrintable(finished.first().at(1).toString())))
        return false;
    if (!halfway && !shoot(QStringLiteral("12-converting")))
        return false;
    std::printf("  converted: %s\n", qPrintable(finished.first().at(1).toString()));
    return shoot(QStringLiteral("13-converted"));
}
