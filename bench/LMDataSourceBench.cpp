// SPDX-License-Identifier: MIT
// Preset data source figures: a search keystroke on a large category against a
// recursive QSortFilterProxyModel, pushing and saving a long recent list against
// a bare durable write of the same bytes, and making the data source at host
// start over long stored lists. Each figure is printed beside its target.

#include "ILMAppSettings.h"
#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"
#include "LMFmtPresetDataSource.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <vector>

using namespace Lumeran;

namespace {

QTemporaryDir* g_dir = nullptr;

QString TempPath(const QString& name) {
    return g_dir->filePath(name);
}

std::shared_ptr<ILMFormatNode> Node(const std::string& title, const std::string& description,
                                    int faceID) {
    return ILMFormatNode::MallocFormatNode(title, description, faceID);
}

// ---- Search ------------------------------------------------------------------------

struct PresetKind {
    const char* format;
    const char* title;
    const char* description;
};

const PresetKind kKinds[] = {{"mp4", "High Quality", "H.264 / AAC"},
                             {"mp4", "HD 1080p", "H.264 1920x1080 / AAC"},
                             {"mp4", "HD 720p", "H.264 1280x720 / AAC"},
                             {"mkv", "SD 480p", "H.264 854x480 / Opus"},
                             {"mkv", "Low Quality", "HEVC / Opus"},
                             {"wav", "Lossless", "PCM 16-bit"},
                             {"mp4", "4K 2160p", "HEVC 3840x2160 / AAC"},
                             {"mkv", "Archive", "FFV1 / FLAC"},
                             {"mp4", "Vertical Video", "H.264 1080x1920 / AAC"},
                             {"wav", "Voice", "PCM 8 kHz mono"}};
constexpr int kFormats = 100;
constexpr int kPresetsPerFormat = 100;

// One category of 100 format nodes with 100 presets each: 10,000 presets.
std::shared_ptr<ILMFormatNode> MakeCategory() {
    auto category = Node("Generated", "Generated category", 10);
    for (int f = 0; f < kFormats; ++f) {
        auto format = Node("Format " + std::to_string(f), "Container " + std::to_string(f), 100);
        for (int p = 0; p < kPresetsPerFormat; ++p) {
            const PresetKind& kind = kKinds[(f + p) % std::size(kKinds)];
            auto preset = ILMFormatPreset::MallocFormatPreset(
                kind.format, std::string(kind.title) + " " + std::to_string(p));
            preset->SetDescription(kind.description);
            format->AddFormatPreset(preset);
        }
        category->AddChild(format);
    }
    return category;
}

// The same tree as rows of title and description.
void FillModel(QStandardItemModel& model, const std::shared_ptr<const ILMFormatNode>& category) {
    model.setColumnCount(2);
    for (int f = 0; f < category->ChildCount(); ++f) {
        const auto format = category->ChildAt(f);
        QList<QStandardItem*> row{new QStandardItem(QString::fromStdString(format->Title())),
                                  new QStandardItem(QString::fromStdString(format->Description()))};
        for (int p = 0; p < format->FormatPresetCount(); ++p) {
            const auto preset = format->FormatPresetAt(p);
            row.first()->appendRow(
                {new QStandardItem(QString::fromStdString(preset->Title())),
                 new QStandardItem(QString::fromStdString(preset->Description()))});
        }
        model.appendRow(row);
    }
}

// Typing "hd 720p" into the search field, one keystroke per iteration; the
// first letters match nearly everything, the last ones a tenth.
const std::vector<std::string> kKeystrokes{"h", "hd", "hd ", "hd 7", "hd 72", "hd 720", "hd 720p"};

int CountNodes(const std::shared_ptr<const ILMFormatNode>& node) {
    int count = node->FormatPresetCount();
    for (int i = 0; i < node->ChildCount(); ++i)
        count += 1 + CountNodes(node->ChildAt(i));
    return count;
}

int CountRows(const QAbstractItemModel& model, const QModelIndex& parent) {
    const int rows = model.rowCount(parent);
    int count = rows;
    for (int r = 0; r < rows; ++r)
        count += CountRows(model, model.index(r, 0, parent));
    return count;
}

std::map<std::string, int> g_visible; // rows shown after the last keystroke, per method

void BM_SearchKeystroke_DataSource(benchmark::State& state) {
    const auto category = MakeCategory();
    LMFmtPresetDataSource source;
    std::size_t key = 0;
    // What the list shows: the previous result stays until the next one replaces
    // it, as in the popup.
    std::shared_ptr<ILMFormatNode> shown;
    for (auto _ : state) {
        auto found = source.SearchFormatPresets(category, kKeystrokes[key], nullptr);
        benchmark::DoNotOptimize(found ? CountNodes(found) : 0);
        shown = std::move(found);
        key = (key + 1) % kKeystrokes.size();
    }
    const auto last = source.SearchFormatPresets(category, kKeystrokes.back(), nullptr);
    g_visible["data source"] = last ? CountNodes(last) : 0;
    state.counters["presets"] = kFormats * kPresetsPerFormat;
}
BENCHMARK(BM_SearchKeystroke_DataSource)->Unit(benchmark::kMillisecond)->MinTime(2);

void BM_SearchKeystroke_ProxyModel(benchmark::State& state) {
    QStandardItemModel model;
    FillModel(model, MakeCategory());
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(&model);
    proxy.setRecursiveFilteringEnabled(true);
    // A matching format shows all of its presets, as the data source's search does.
    proxy.setAutoAcceptChildRows(true);
    proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    proxy.setFilterKeyColumn(-1);
    std::size_t key = 0;
    for (auto _ : state) {
        proxy.setFilterFixedString(QString::fromStdString(kKeystrokes[key]));
        benchmark::DoNotOptimize(CountRows(proxy, QModelIndex()));
        key = (key + 1) % kKeystrokes.size();
    }
    proxy.setFilterFixedString(QString::fromStdString(kKeystrokes.back()));
    g_visible["proxy model"] = CountRows(proxy, QModelIndex());
    state.counters["presets"] = kFormats * kPresetsPerFormat;
}
BENCHMARK(BM_SearchKeystroke_ProxyModel)->Unit(benchmark::kMillisecond)->MinTime(2);

// ---- Recent list -------------------------------------------------------------------

constexpr int kRecentEntries = 1000;
constexpr int kCustomGroups = 10;
constexpr int kCustomPerGroup = 10;

std::shared_ptr<ILMFormatNode> RecentEntryNode(int i) {
    const PresetKind& kind = kKinds[static_cast<std::size_t>(i) % std::size(kKinds)];
    auto node = Node("Format " + std::to_string(i), "Container " + std::to_string(i), 100);
    auto preset =
        ILMFormatPreset::MallocFormatPreset(kind.format, kind.title + (" " + std::to_string(i)));
    preset->SetDescription(kind.description);
    preset->SetFaceID(100);
    node->AddFormatPreset(preset);
    return node;
}

// A data source over a fresh INI file holding 1,000 recent entries and 100
// custom presets.
void StoreLongLists(const QString& path) {
    QFile::remove(path);
    ILMAppSettings::UseSettingsFile(path.toStdString());
    LMFmtPresetDataSource source;
    for (int i = 0; i < kRecentEntries; ++i) {
        const auto node = RecentEntryNode(i);
        source.PushRecentItem(ILMFormatNode::FirstFormatPreset(node), node);
    }
    for (int g = 0; g < kCustomGroups; ++g) {
        const auto node = Node("Group " + std::to_string(g), "Custom group", 100);
        for (int p = 0; p < kCustomPerGroup; ++p)
            source.AddCustomPreset(RecentEntryNode(g * kCustomPerGroup + p)->FormatPresetAt(0),
                                   node);
    }
    source.SaveRecentList();
    source.SaveCustomList();
}

qint64 g_settingsBytes = 0;

void BM_PushAndSaveRecent1000(benchmark::State& state) {
    const QString path = TempPath(QStringLiteral("push.ini"));
    StoreLongLists(path);
    ILMAppSettings::UseSettingsFile(path.toStdString());
    LMFmtPresetDataSource source;
    if (source.GetRecentList().size() != kRecentEntries)
        state.SkipWithError("the stored list did not come back");
    for (auto _ : state) {
        // The oldest entry chosen again: the whole list is walked, the entry
        // moves to the front and the list keeps its length.
        source.PushRecentItem(source.GetRecentList().back());
        source.SaveRecentList();
    }
    if (!ILMAppSettings::Shared()->LastSynchronizeSucceeded())
        state.SkipWithError("the settings were not written");
    g_settingsBytes = QFileInfo(path).size();
    state.counters["entries"] = static_cast<double>(source.GetRecentList().size());
    state.counters["file_bytes"] = static_cast<double>(g_settingsBytes);
}
BENCHMARK(BM_PushAndSaveRecent1000)->Unit(benchmark::kMillisecond)->MinTime(2);

// What any durable save of that file costs at least: write the bytes to a new
// file, flush them to the disk and put the file in place.
void BM_SaveFileFsyncSameBytes(benchmark::State& state) {
    const QByteArray bytes(g_settingsBytes > 0 ? g_settingsBytes : 1, 'x');
    const QString path = TempPath(QStringLiteral("plain.ini"));
    for (auto _ : state) {
        QSaveFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() ||
            !file.flush() || ::fsync(file.handle()) != 0 || !file.commit()) {
            state.SkipWithError("write failed");
            break;
        }
    }
    state.counters["file_bytes"] = static_cast<double>(bytes.size());
}
BENCHMARK(BM_SaveFileFsyncSameBytes)->Unit(benchmark::kMillisecond)->MinTime(2);

// ---- Host start --------------------------------------------------------------------

void BM_MakeDataSourceAtStart(benchmark::State& state) {
    const QString master = TempPath(QStringLiteral("start-master.ini"));
    StoreLongLists(master);
    std::size_t recent = 0;
    int custom = 0;
    int serial = 0;
    for (auto _ : state) {
        // A settings file this process has never opened, as at a host start:
        // nothing of it is cached in memory yet.
        state.PauseTiming();
        const QString path = TempPath(QStringLiteral("start-%1.ini").arg(++serial));
        QFile::copy(master, path);
        ILMAppSettings::UseSettingsFile(path.toStdString());
        state.ResumeTiming();

        auto source = std::make_unique<LMFmtPresetDataSource>();

        state.PauseTiming();
        recent = source->GetRecentList().size();
        custom = 0;
        for (int g = 0; g < source->GetCustomList()->ChildCount(); ++g)
            custom += source->GetCustomList()->ChildAt(g)->FormatPresetCount();
        source.reset();
        QFile::remove(path);
        state.ResumeTiming();
    }
    if (recent != kRecentEntries || custom != kCustomGroups * kCustomPerGroup)
        state.SkipWithError("the stored lists did not come back");
    state.counters["recent"] = static_cast<double>(recent);
    state.counters["custom"] = custom;
}
BENCHMARK(BM_MakeDataSourceAtStart)->Unit(benchmark::kMillisecond)->MinTime(2);

class CapturingReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            times[run.run_name.function_name] = run.GetAdjustedRealTime();
        ConsoleReporter::ReportRuns(runs);
    }
    double Ms(const std::string& name) const {
        const auto found = times.find(name);
        return found == times.end() ? 0.0 : found->second;
    }
    std::map<std::string, double> times;
};

const char* Verdict(bool met) {
    return met ? "met" : "MISSED";
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QTemporaryDir dir;
    g_dir = &dir;
    benchmark::Initialize(&argc, argv);
    CapturingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    std::printf("\n");
    const double ours = reporter.Ms("BM_SearchKeystroke_DataSource");
    const double proxy = reporter.Ms("BM_SearchKeystroke_ProxyModel");
    if (ours > 0 && proxy > 0)
        std::printf("search keystroke, %d presets: data source %.2f ms, QSortFilterProxyModel "
                    "%.2f ms: %.1fx faster   target >= 10x and < 16 ms: %s (rows after \"%s\": "
                    "%d and %d)\n",
                    kFormats * kPresetsPerFormat, ours, proxy, proxy / ours,
                    Verdict(proxy / ours >= 10 && ours < 16), kKeystrokes.back().c_str(),
                    g_visible["data source"], g_visible["proxy model"]);
    const double save = reporter.Ms("BM_PushAndSaveRecent1000");
    const double plain = reporter.Ms("BM_SaveFileFsyncSameBytes");
    if (save > 0 && plain > 0)
        std::printf("push + save, %d recent entries: %.2f ms; QSaveFile + fsync of the same %lld "
                    "bytes: %.2f ms: %.2fx   target <= 3x: %s\n",
                    kRecentEntries, save, static_cast<long long>(g_settingsBytes), plain,
                    save / plain, Verdict(save / plain <= 3));
    const double start = reporter.Ms("BM_MakeDataSourceAtStart");
    if (start > 0)
        std::printf("data source at host start, %d recent entries and %d custom presets stored: "
                    "%.2f ms   target < 10 ms: %s\n",
                    kRecentEntries, kCustomGroups * kCustomPerGroup, start, Verdict(start < 10));
    return 0;
}
