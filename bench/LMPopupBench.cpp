// SPDX-License-Identifier: MIT
// Popup figures, offscreen: the popup shown the first time in a process (window
// made, tabs built, first frame painted) and shown again; a tab of 10,000
// presets brought up; a search keystroke typed into the field of a category of
// 10,000 presets, until the lists have repainted. Each figure is printed beside
// its target.

#include "ILMAppSettings.h"
#include "ILMFmtPresetDataSource.h"
#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"
#include "ILMJsonValue.h"
#include "LMFmtNodeViewCtrl.h"
#include "LMFormatCollectionView.h"
#include "LMFormatSelectionWndCtrl.h"
#include "LMFormatSelectionWndCtrl_p.h"
#include "LMTabHeaderView.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <memory>
#include <string>

using namespace Lumeran;

namespace {

constexpr int kPresets = 10000;

// Counts the paint events a widget receives, so a figure ends when the screen
// has really been redrawn rather than when the calls returned.
class PaintCounter : public QObject {
public:
    int count = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            ++count;
        return false;
    }
};

// Processes events until the widget has painted once more than `before`.
void WaitForPaint(const PaintCounter& counter, int before) {
    QElapsedTimer timer;
    timer.start();
    while (counter.count <= before && timer.elapsed() < 2000)
        QApplication::processEvents();
}

std::shared_ptr<ILMFormatPreset> Preset(const std::string& title, const std::string& description) {
    auto preset = ILMFormatPreset::MallocFormatPreset("MP4", title);
    preset->SetDescription(description);
    preset->SetFaceID(100);
    return preset;
}

// Two categories: "Long" (one format of 10,000 presets: a list of 10,000 cells)
// and "Wide" (100 formats of 100 presets: 10,000 presets to search).
bool WriteCatalogue(const QString& path) {
    auto root = ILMFormatNode::MallocFormatNode("Formats", "", 0);
    auto longCategory = ILMFormatNode::MallocFormatNode("Long", "", 10);
    auto single = ILMFormatNode::MallocFormatNode("MP4", "MP4 file format", 100);
    for (int p = 0; p < kPresets; ++p)
        single->AddFormatPreset(
            Preset("Preset " + std::to_string(p), "H.264 / AAC, number " + std::to_string(p)));
    longCategory->AddChild(single);
    auto wide = ILMFormatNode::MallocFormatNode("Wide", "", 10);
    for (int f = 0; f < 100; ++f) {
        auto format = ILMFormatNode::MallocFormatNode("Format " + std::to_string(f), "", 100);
        for (int p = 0; p < kPresets / 100; ++p)
            format->AddFormatPreset(
                Preset("Preset " + std::to_string(p) + " of " + std::to_string(f),
                       "H.264 1280x720 / AAC"));
        wide->AddChild(format);
    }
    root->AddChild(longCategory);
    root->AddChild(wide);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(QJsonDocument(root->ToJson()->Value().toObject()).toJson(QJsonDocument::Compact));
    return true;
}

// Artwork from the embedded default catalogue, so icons cost what they cost.
bool WriteArtwork(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(R"({"version": 1, "artwork": [
        {"faceId": 1, "images": [":/LMMediaFormat/catalogue/artwork/recent.svg"]},
        {"faceId": 2, "images": [":/LMMediaFormat/catalogue/artwork/custom.svg"]},
        {"faceId": 10, "images": [":/LMMediaFormat/catalogue/artwork/video.svg"]},
        {"faceId": 100, "images": [":/LMMediaFormat/catalogue/artwork/mp4.svg"]}]})");
    return true;
}

LMFormatSelectionWndCtrl* g_ctrl = nullptr;
double g_coldMs = 0.0;

void Report(const char* what, double ms, double target) {
    std::printf("%-58s %9.2f ms   (target <= %.0f ms: %s)\n", what, ms, target,
                ms <= target ? "met" : "MISSED");
}

void ShowPopup() {
    PaintCounter counter;
    g_ctrl->installEventFilter(&counter);
    g_ctrl->popupSelection(QRectF(200, 100, 100, 30), {});
    WaitForPaint(counter, 0);
    g_ctrl->removeEventFilter(&counter);
}

void BM_PopupShownWarm(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        g_ctrl->windowDidResignKey();
        QApplication::processEvents();
        state.ResumeTiming();
        ShowPopup();
    }
}

QAbstractButton* Tab(int index) {
    return LMFormatSelectionWndCtrlPrivate::get(g_ctrl)->tabHeaderView()->tabButtons().at(index);
}

void BM_TabOf10000PresetsShown(benchmark::State& state) {
    ShowPopup();
    QAbstractItemView* list =
        LMFormatSelectionWndCtrlPrivate::get(g_ctrl)->defFmtViewCtrls().at(0)->fmtListView();
    PaintCounter counter;
    list->viewport()->installEventFilter(&counter);
    for (auto _ : state) {
        state.PauseTiming();
        QTest::mouseClick(Tab(2), Qt::LeftButton); // away, to "Wide"
        QApplication::processEvents();
        const int before = counter.count;
        state.ResumeTiming();
        QTest::mouseClick(Tab(1), Qt::LeftButton); // back to "Long"
        WaitForPaint(counter, before);
    }
    list->viewport()->removeEventFilter(&counter);
    if (list->model()->rowCount() != kPresets)
        state.SkipWithError("the long tab does not show 10,000 presets");
}

// The same tab filled anew from its tree (what happens when the data arrives or
// a list is reloaded), until it has painted.
void BM_TabOf10000PresetsLoaded(benchmark::State& state) {
    ShowPopup();
    QTest::mouseClick(Tab(1), Qt::LeftButton);
    QApplication::processEvents();
    LMFmtNodeViewCtrl* ctrl = LMFormatSelectionWndCtrlPrivate::get(g_ctrl)->defFmtViewCtrls().at(0);
    const std::shared_ptr<const ILMFormatNode> tree =
        std::as_const(*ILMFmtPresetDataSource::Shared()->GetExternalFormatPresets()).ChildAt(0);
    PaintCounter counter;
    ctrl->fmtListView()->viewport()->installEventFilter(&counter);
    for (auto _ : state) {
        const int before = counter.count;
        ctrl->loadFormatNode(tree);
        WaitForPaint(counter, before);
    }
    ctrl->fmtListView()->viewport()->removeEventFilter(&counter);
}

void BM_SearchKeystrokeOn10000Presets(benchmark::State& state) {
    ShowPopup();
    QTest::mouseClick(Tab(2), Qt::LeftButton);
    QApplication::processEvents();
    QLineEdit* field = LMFormatSelectionWndCtrlPrivate::get(g_ctrl)->searchField();
    field->setFocus();
    QAbstractItemView* list =
        LMFormatSelectionWndCtrlPrivate::get(g_ctrl)->defFmtViewCtrls().at(1)->fmtListView();
    PaintCounter counter;
    list->viewport()->installEventFilter(&counter);
    bool typed = false;
    for (auto _ : state) {
        const int before = counter.count;
        // One keystroke each time: a digit that narrows the search, then the
        // backspace that widens it again.
        if (typed)
            QTest::keyClick(field, Qt::Key_Backspace);
        else
            QTest::keyClick(field, Qt::Key_7);
        typed = !typed;
        WaitForPaint(counter, before);
    }
    list->viewport()->removeEventFilter(&counter);
}

} // namespace

BENCHMARK(BM_PopupShownWarm)->Unit(benchmark::kMillisecond)->MinTime(1.0);
BENCHMARK(BM_TabOf10000PresetsShown)->Unit(benchmark::kMillisecond)->MinTime(1.0);
BENCHMARK(BM_TabOf10000PresetsLoaded)->Unit(benchmark::kMillisecond)->MinTime(1.0);
BENCHMARK(BM_SearchKeystrokeOn10000Presets)->Unit(benchmark::kMillisecond)->MinTime(1.0);

namespace {

// Prints the mean of each benchmark beside its target after Google Benchmark's
// own table.
class TargetReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            const double ms = run.GetAdjustedRealTime();
            const std::string name = run.benchmark_name();
            if (name.find("Warm") != std::string::npos)
                m_lines.push_back({"Popup shown, warm", ms, 16});
            else if (name.find("TabOf10000PresetsShown") != std::string::npos)
                m_lines.push_back({"Tab of 10,000 presets shown (switched to)", ms, 50});
            else if (name.find("TabOf10000PresetsLoaded") != std::string::npos)
                m_lines.push_back(
                    {"Tab of 10,000 presets loaded from its tree and painted", ms, 50});
            else if (name.find("Search") != std::string::npos)
                m_lines.push_back({"Search keystroke on a 10,000-preset category", ms, 16});
        }
    }
    void Finalize() override {
        ConsoleReporter::Finalize();
        std::printf("\n");
        Report("Popup shown, cold (window made, tabs built, painted)", g_coldMs, 100);
        for (const Line& line : m_lines)
            Report(line.what, line.ms, line.target);
    }

private:
    struct Line {
        const char* what;
        double ms;
        double target;
    };
    std::vector<Line> m_lines;
};

} // namespace

// The offscreen platform warns on every showing that it cannot raise a window;
// the figures would drown in it.
QtMessageHandler g_previousHandler = nullptr;

void QuietOffscreenWarnings(QtMsgType type, const QMessageLogContext& context,
                            const QString& message) {
    if (message.contains(QStringLiteral("does not support")))
        return;
    if (g_previousHandler)
        g_previousHandler(type, context, message);
    else
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
}

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    g_previousHandler = qInstallMessageHandler(QuietOffscreenWarnings);
    QApplication app(argc, argv);
    QTemporaryDir dir;
    ILMAppSettings::UseSettingsFile(dir.filePath(QStringLiteral("bench.ini")).toStdString());
    const QString catalogue = dir.filePath(QStringLiteral("bench.json"));
    if (!WriteCatalogue(catalogue) || !WriteArtwork(dir.filePath(QStringLiteral("bench.icfg")))) {
        std::fprintf(stderr, "cannot write the benchmark catalogue\n");
        return 1;
    }
    auto source = ILMFmtPresetDataSource::Shared();
    source->AsyncLoadExternalDataSource(catalogue.toStdString(), {});
    source->WaitForLoadingComplete();

    // Cold: the first showing of the process, with the catalogue already loaded
    // (the load runs off the GUI thread at host start).
    QElapsedTimer timer;
    timer.start();
    g_ctrl = LMFormatSelectionWndCtrl::shared();
    g_ctrl->loadExternalDataInMainThread();
    ShowPopup();
    g_coldMs = double(timer.nsecsElapsed()) / 1e6;

    benchmark::Initialize(&argc, argv);
    TargetReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    source->WaitForLoadingComplete();
    return 0;
}
