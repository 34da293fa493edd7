// SPDX-License-Identifier: MIT
// Preset data source figures: a search keystroke on a large category against a
// recursive QSortFilterProxyModel; choosing a preset until the recent list is
// saved (CPU, and elapsed against a bare durable write of the same bytes); making
// the data source at host start; the heap over many saves of a long list. Lists
// of 10 to 30,000 entries give the curves. Each figure is printed on one line
// beside its target.

#include "ILMAppSettings.h"
#include "ILMBase64Codec.h"
#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"
#include "ILMJsonWriter.h"
#include "LMFmtPresetDataSource.h"
#include "LMPresetBackupFolder.h"
#include "LMStoredList.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <malloc.h>
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
constexpr int kFormats = 1000;
constexpr int kPresetsPerFormat = 100;

// One category of 1,000 format nodes with 100 presets each: 100,000 presets.
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
BENCHMARK(BM_SearchKeystroke_DataSource)->Unit(benchmark::kMillisecond)->MinTime(1);

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
BENCHMARK(BM_SearchKeystroke_ProxyModel)->Unit(benchmark::kMillisecond)->MinTime(1);

// ---- Recent list -------------------------------------------------------------------

// The sizes of the curves; the figures with targets are read off them.
const std::vector<int> kSizes{10, 100, 1000, 10000, 30000};
constexpr int kCustomGroups = 10;
constexpr int kCustomPerGroup = 10;
constexpr const char* kRecentKey = "recent_format_preset";

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

// The settings file of a user with `entries` recent entries and 100 custom
// presets, made once per size. The recent list is stored as the data source
// stores it (Base64 of the JSON of its tree): pushing tens of thousands of
// entries one by one would take minutes, each push walking the whole list.
QString StoredLists(int entries) {
    const QString path = TempPath(QStringLiteral("stored-%1.ini").arg(entries));
    if (QFileInfo::exists(path))
        return path;
    ILMAppSettings::UseSettingsFile(path.toStdString());
    {
        LMFmtPresetDataSource source;
        for (int g = 0; g < kCustomGroups; ++g) {
            const auto node = Node("Group " + std::to_string(g), "Custom group", 100);
            for (int p = 0; p < kCustomPerGroup; ++p)
                source.AddCustomPreset(RecentEntryNode(g * kCustomPerGroup + p)->FormatPresetAt(0),
                                       node);
        }
        source.SaveCustomList();
    }
    // The root's own attributes come from the data source, whatever is stored.
    auto root = Node("Recent", "Recent Selection", 1);
    for (int i = 0; i < entries; ++i)
        root->AddChild(RecentEntryNode(i));
    const auto settings = ILMAppSettings::Shared();
    settings->SetStringValue(ILMBase64Codec::Encode(ILMJsonWriter::WriteJsonString(root->ToJson())),
                             kRecentKey);
    settings->SetStringValue(std::to_string(LMStoredList::Version), LMStoredList::VersionKey);
    settings->Synchronize();
    return path;
}

// A fresh copy of the stored lists of that size, as the settings file of the
// next data source.
QString UseCopyOfStoredLists(int entries, const QString& name) {
    const QString path = TempPath(name);
    QFile::remove(path);
    QFile::copy(StoredLists(entries), path);
    ILMAppSettings::UseSettingsFile(path.toStdString());
    return path;
}

std::map<int, qint64> g_settingsBytes; // the settings file after the saves, per size

// Choosing a preset: the popup pushes it onto the recent list and saves the list
// before the host hears of the choice.
void ChooseToSaved(benchmark::State& state) {
    const int entries = static_cast<int>(state.range(0));
    const QString path = UseCopyOfStoredLists(entries, QStringLiteral("choose.ini"));
    LMFmtPresetDataSource source;
    if (source.GetRecentList().size() != static_cast<std::size_t>(entries))
        state.SkipWithError("the stored list did not come back");
    for (auto _ : state) {
        // The oldest entry chosen again: the whole list is walked, the entry
        // moves to the front and the list keeps its length.
        source.PushRecentItem(source.GetRecentList().back());
        source.SaveRecentList();
    }
    if (!source.LastSaveSucceeded())
        state.SkipWithError("the settings were not written");
    g_settingsBytes[entries] = QFileInfo(path).size();
    state.counters["entries"] = static_cast<double>(source.GetRecentList().size());
    state.counters["file_bytes"] = static_cast<double>(g_settingsBytes[entries]);
}

BENCHMARK(ChooseToSaved)
    ->Name("BM_ChooseToSaved")
    ->Unit(benchmark::kMillisecond)
    ->Arg(10)
    ->Arg(100)
    ->Arg(1000)
    ->MinTime(1);
BENCHMARK(ChooseToSaved)
    ->Name("BM_ChooseToSaved")
    ->Unit(benchmark::kMillisecond)
    ->Arg(10000)
    ->Arg(30000)
    ->MinTime(0.3);

// The part of a save that is not JSON: Base64 of the text, the settings write
// under the lock (flush included) and the backup of the replaced value, with the
// JSON text of the list made beforehand. Two texts alternate, as a save replaces
// the value it finds.
void BM_SaveOutsideJson(benchmark::State& state) {
    const int entries = static_cast<int>(state.range(0));
    UseCopyOfStoredLists(entries, QStringLiteral("outside-json.ini"));
    const auto settings = ILMAppSettings::Shared();
    const std::string stored = settings->StringValue(kRecentKey);
    std::string texts[2] = {ILMBase64Codec::Decode(stored), ILMBase64Codec::Decode(stored)};
    texts[1].back() = ' '; // the closing brace: the same length, another value
    const LMPresetBackupFolder backups(
        TempPath(QStringLiteral("outside-json-backups")).toStdString());
    std::string current = stored;
    int next = 0;
    for (auto _ : state) {
        std::string value = ILMBase64Codec::Encode(texts[next]);
        next = 1 - next;
        const bool written = settings->Transact(
            {kRecentKey, LMStoredList::VersionKey}, [&](const ILMAppSettings::Values& now) {
                const auto found = now.find(kRecentKey);
                if (found != now.end() && found->second != value)
                    backups.KeepReplaced(found->second);
                return std::optional(ILMAppSettings::Values{
                    {kRecentKey, value},
                    {LMStoredList::VersionKey, std::to_string(LMStoredList::Version)}});
            });
        if (!written) {
            state.SkipWithError("the settings were not written");
            break;
        }
        current = std::move(value);
    }
    state.counters["value_bytes"] = static_cast<double>(current.size());
}
BENCHMARK(BM_SaveOutsideJson)->Unit(benchmark::kMillisecond)->Arg(1000)->Arg(10000)->MinTime(0.5);

// What any durable save of that file costs at least: write the bytes to a new
// file, flush them to the disk and put the file in place.
void SaveFileFsyncSameBytes(benchmark::State& state) {
    const int entries = static_cast<int>(state.range(0));
    if (g_settingsBytes.count(entries) == 0) // the save of that size was not run
        g_settingsBytes[entries] = QFileInfo(StoredLists(entries)).size();
    const QByteArray bytes(g_settingsBytes[entries], 'x');
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

BENCHMARK(SaveFileFsyncSameBytes)
    ->Name("BM_SaveFileFsyncSameBytes")
    ->Unit(benchmark::kMillisecond)
    ->Arg(1000)
    ->MinTime(1);

// What the user waits for after a click on a short list, elapsed time with the
// flush to the disk, against a bare durable write of the same bytes. The disk of
// a shared machine flushes in anything from a fraction of a millisecond to ten:
// the two are timed in turns, in the same iterations, so both meet the same disk.
struct ElapsedFigures {
    double oursMs = 0;
    double plainMs = 0;
} g_elapsed;

void BM_SaveElapsedSideBySide(benchmark::State& state) {
    using Clock = std::chrono::steady_clock;
    const int entries = static_cast<int>(state.range(0));
    const QString path = UseCopyOfStoredLists(entries, QStringLiteral("elapsed.ini"));
    LMFmtPresetDataSource source;
    source.PushRecentItem(source.GetRecentList().back());
    source.SaveRecentList();
    const QByteArray bytes(QFileInfo(path).size(), 'x');
    const QString plainPath = TempPath(QStringLiteral("elapsed-plain.ini"));
    Clock::duration ours{};
    Clock::duration plain{};
    std::int64_t turns = 0;
    for (auto _ : state) {
        const auto start = Clock::now();
        source.PushRecentItem(source.GetRecentList().back());
        source.SaveRecentList();
        const auto saved = Clock::now();
        QSaveFile file(plainPath);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() ||
            !file.flush() || ::fsync(file.handle()) != 0 || !file.commit()) {
            state.SkipWithError("write failed");
            break;
        }
        ours += saved - start;
        plain += Clock::now() - saved;
        ++turns;
    }
    if (!source.LastSaveSucceeded())
        state.SkipWithError("the settings were not written");
    const auto ms = [turns](Clock::duration total) {
        return std::chrono::duration<double, std::milli>(total).count() /
               static_cast<double>(std::max<std::int64_t>(turns, 1));
    };
    g_elapsed = {ms(ours), ms(plain)};
    g_settingsBytes[entries] = bytes.size();
    state.counters["ours_ms"] = g_elapsed.oursMs;
    state.counters["plain_ms"] = g_elapsed.plainMs;
    state.counters["file_bytes"] = static_cast<double>(bytes.size());
}
BENCHMARK(BM_SaveElapsedSideBySide)
    ->Unit(benchmark::kMillisecond)
    ->Arg(10)
    ->MinTime(2)
    ->UseRealTime();

// ---- Host start --------------------------------------------------------------------

void BM_HostStart(benchmark::State& state) {
    const int entries = static_cast<int>(state.range(0));
    StoredLists(entries);
    std::size_t recent = 0;
    int custom = 0;
    int serial = 0;
    for (auto _ : state) {
        // A settings file this process has never opened, as at a host start:
        // nothing of it is cached in memory yet.
        state.PauseTiming();
        UseCopyOfStoredLists(entries, QStringLiteral("start-%1.ini").arg(++serial));
        state.ResumeTiming();

        auto source = std::make_unique<LMFmtPresetDataSource>();

        state.PauseTiming();
        recent = source->GetRecentList().size();
        custom = 0;
        for (int g = 0; g < source->GetCustomList()->ChildCount(); ++g)
            custom += source->GetCustomList()->ChildAt(g)->FormatPresetCount();
        source.reset();
        QFile::remove(TempPath(QStringLiteral("start-%1.ini").arg(serial)));
        state.ResumeTiming();
    }
    if (recent != static_cast<std::size_t>(entries) || custom != kCustomGroups * kCustomPerGroup)
        state.SkipWithError("the stored lists did not come back");
    state.counters["recent"] = static_cast<double>(recent);
    state.counters["custom"] = custom;
}
BENCHMARK(BM_HostStart)->Unit(benchmark::kMillisecond)->Arg(10)->Arg(100)->Arg(1000)->MinTime(1);
BENCHMARK(BM_HostStart)->Unit(benchmark::kMillisecond)->Arg(10000)->Arg(30000)->MinTime(0.3);

// ---- Heap over many saves ------------------------------------------------------------

constexpr int kHeapEntries = 30000;
struct HeapFigures {
    double inUseAfter5 = 0; // bytes allocated (mallinfo2 uordblks + hblkhd)
    double inUseAfter50 = 0;
    double heldAfter5 = 0; // bytes the allocator holds (arena + hblkhd)
    double heldAfter50 = 0;
} g_heap;

void BM_HeapAfterSaves(benchmark::State& state) {
    UseCopyOfStoredLists(kHeapEntries, QStringLiteral("heap.ini"));
    LMFmtPresetDataSource source;
    const auto save = [&source] {
        source.PushRecentItem(source.GetRecentList().back());
        source.SaveRecentList();
    };
    for (auto _ : state) {
        for (int i = 0; i < 5; ++i)
            save();
        struct mallinfo2 info = mallinfo2();
        g_heap.inUseAfter5 = static_cast<double>(info.uordblks + info.hblkhd);
        g_heap.heldAfter5 = static_cast<double>(info.arena + info.hblkhd);
        for (int i = 5; i < 50; ++i)
            save();
        info = mallinfo2();
        g_heap.inUseAfter50 = static_cast<double>(info.uordblks + info.hblkhd);
        g_heap.heldAfter50 = static_cast<double>(info.arena + info.hblkhd);
    }
    if (!source.LastSaveSucceeded())
        state.SkipWithError("the settings were not written");
    state.counters["held_5_MB"] = g_heap.heldAfter5 / 1e6;
    state.counters["held_50_MB"] = g_heap.heldAfter50 / 1e6;
    state.counters["in_use_5_MB"] = g_heap.inUseAfter5 / 1e6;
    state.counters["in_use_50_MB"] = g_heap.inUseAfter50 / 1e6;
}
BENCHMARK(BM_HeapAfterSaves)->Unit(benchmark::kMillisecond)->Iterations(1);

class CapturingReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            // "BM_Name/argument", whatever the run's minimum time.
            const std::string name =
                run.run_name.function_name +
                (run.run_name.args.empty() ? std::string() : "/" + run.run_name.args);
            cpu[name] = run.GetAdjustedCPUTime();
            real[name] = run.GetAdjustedRealTime();
        }
        ConsoleReporter::ReportRuns(runs);
    }
    // Milliseconds of CPU (or elapsed) time; 0 when the benchmark did not run.
    double Cpu(const std::string& name) const { return Find(cpu, name); }
    double Real(const std::string& name) const { return Find(real, name); }

private:
    static double Find(const std::map<std::string, double>& times, const std::string& name) {
        const auto found = times.find(name);
        return found == times.end() ? 0.0 : found->second;
    }
    std::map<std::string, double> cpu;
    std::map<std::string, double> real;
};

const char* Verdict(bool met) {
    return met ? "met" : "MISSED";
}

std::string Curve(const CapturingReporter& reporter, const std::string& name) {
    std::string line;
    for (const int size : kSizes) {
        const double ms = reporter.Cpu(name + "/" + std::to_string(size));
        if (ms <= 0)
            continue;
        char figure[64];
        std::snprintf(figure, sizeof figure, "%s%d: %.2f ms", line.empty() ? "" : ", ", size, ms);
        line += figure;
    }
    return line;
}

void PrintFigures(const CapturingReporter& reporter) {
    std::printf("\n");
    const double ours = reporter.Cpu("BM_SearchKeystroke_DataSource");
    const double proxy = reporter.Cpu("BM_SearchKeystroke_ProxyModel");
    if (ours > 0 && proxy > 0)
        std::printf(
            "search keystroke, data source, %d presets (CPU): %.2f ms   target <= 8 ms: %s\n",
            kFormats * kPresetsPerFormat, ours, Verdict(ours <= 8));
    if (ours > 0 && proxy > 0)
        std::printf("search keystroke lead over QSortFilterProxyModel, %d presets (CPU): %.1fx "
                    "(%.2f ms against %.2f ms; rows after \"%s\": %d and %d)   target >= 10x: %s\n",
                    kFormats * kPresetsPerFormat, proxy / ours, ours, proxy,
                    kKeystrokes.back().c_str(), g_visible["data source"], g_visible["proxy model"],
                    Verdict(proxy / ours >= 10));

    const double save1000 = reporter.Cpu("BM_ChooseToSaved/1000");
    const double plain1000 = reporter.Cpu("BM_SaveFileFsyncSameBytes/1000");
    if (save1000 > 0 && plain1000 > 0)
        std::printf("choose -> saved, 1000 recent entries (CPU): %.2f ms; QSaveFile + fsync of the "
                    "same %lld bytes: %.2f ms: %.2fx   target <= 2 ms and <= 3x: %s\n",
                    save1000, static_cast<long long>(g_settingsBytes[1000]), plain1000,
                    save1000 / plain1000, Verdict(save1000 <= 2 && save1000 / plain1000 <= 3));
    const double save10000 = reporter.Cpu("BM_ChooseToSaved/10000");
    if (save10000 > 0)
        std::printf("choose -> saved, 10000 recent entries (CPU): %.2f ms   target <= 10 ms: %s\n",
                    save10000, Verdict(save10000 <= 10));
    if (g_elapsed.plainMs > 0)
        std::printf(
            "choose -> saved, elapsed, 10 recent entries: %.2f ms; QSaveFile + fsync of the "
            "same %lld bytes, timed in turns with it: %.2f ms: %.2fx   target <= 1.5x: %s\n",
            g_elapsed.oursMs, static_cast<long long>(g_settingsBytes[10]), g_elapsed.plainMs,
            g_elapsed.oursMs / g_elapsed.plainMs,
            Verdict(g_elapsed.oursMs / g_elapsed.plainMs <= 1.5));
    for (const int size : {1000, 10000}) {
        const double outside = reporter.Cpu("BM_SaveOutsideJson/" + std::to_string(size));
        if (outside > 0 && plain1000 > 0 && size == 1000)
            std::printf("choose -> saved outside JSON (Base64, settings write, backup), %d entries "
                        "(CPU): %.2f ms, %.2fx QSaveFile + fsync of the same bytes   no target: "
                        "the share of the figure above that is not JSON\n",
                        size, outside, outside / plain1000);
        else if (outside > 0)
            std::printf("choose -> saved outside JSON (Base64, settings write, backup), %d entries "
                        "(CPU): %.2f ms   no target: the share of the figure above that is not "
                        "JSON\n",
                        size, outside);
    }
    const double start10000 = reporter.Cpu("BM_HostStart/10000");
    if (start10000 > 0)
        std::printf(
            "host start, 10000 recent entries and %d custom presets stored (CPU): %.2f ms   "
            "target <= 25 ms: %s\n",
            kCustomGroups * kCustomPerGroup, start10000, Verdict(start10000 <= 25));
    if (g_heap.heldAfter5 > 0) {
        const double held = g_heap.heldAfter50 / g_heap.heldAfter5;
        const double inUse = g_heap.inUseAfter50 / g_heap.inUseAfter5;
        std::printf("heap after 50 saves at %d entries: held %.1f MB (%.2fx the %.1f MB after 5), "
                    "in use %.1f MB (%.2fx the %.1f MB after 5)   target within 10%%: %s\n",
                    kHeapEntries, g_heap.heldAfter50 / 1e6, held, g_heap.heldAfter5 / 1e6,
                    g_heap.inUseAfter50 / 1e6, inUse, g_heap.inUseAfter5 / 1e6,
                    Verdict(held <= 1.1 && inUse <= 1.1));
    }
    if (const std::string curve = Curve(reporter, "BM_ChooseToSaved"); !curve.empty())
        std::printf("choose -> saved curve (CPU, recent entries): %s\n", curve.c_str());
    if (const std::string curve = Curve(reporter, "BM_HostStart"); !curve.empty())
        std::printf("host start curve (CPU, recent entries, %d custom presets): %s\n",
                    kCustomGroups * kCustomPerGroup, curve.c_str());
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QTemporaryDir dir;
    g_dir = &dir;
    benchmark::Initialize(&argc, argv);
    CapturingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    PrintFigures(reporter);
    return 0;
}
