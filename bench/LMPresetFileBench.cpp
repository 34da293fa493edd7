// SPDX-License-Identifier: MIT
// Preset file figures: exporting and importing custom lists of 10 to 5,000
// presets, refusing a 100 MB file, and mapping a pasted FFmpeg command line to
// a preset. Each import runs on a data source over a settings file of its own.

#include "ILMAppSettings.h"
#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"
#include "LMFFmpegArgumentsReader.h"
#include "LMFmtPresetDataSource.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

using namespace Lumeran;

namespace {

QTemporaryDir* g_dir = nullptr;

std::string PathOf(const std::string& name) {
    return g_dir->filePath(QString::fromStdString(name)).toStdString();
}

// A data source over an empty settings file of its own.
std::shared_ptr<LMFmtPresetDataSource> FreshSource(const std::string& name) {
    QFile::remove(QString::fromStdString(PathOf(name)));
    ILMAppSettings::UseSettingsFile(PathOf(name));
    return std::make_shared<LMFmtPresetDataSource>();
}

// count custom presets in ten groups of three containers, a codec changed on every
// other one so that not all are defaults.
std::shared_ptr<LMFmtPresetDataSource> SourceWith(int count) {
    auto source = FreshSource("filled-" + std::to_string(count) + ".ini");
    const char* formats[] = {"mp4", "mkv", "webm"};
    for (int i = 0; i < count; ++i) {
        const int group = i % 10;
        auto preset =
            ILMFormatPreset::MallocFormatPreset(formats[group % 3], "Preset " + std::to_string(i));
        if (i % 2 == 1)
            ILMFormatPreset::ChangeCodecKeepingChoices(*preset, false, 0);
        source->AddCustomPreset(preset, ILMFormatNode::MallocFormatNode(
                                            "Group " + std::to_string(group), "Generated", 100));
    }
    return source;
}

void BM_Export(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    const auto source = SourceWith(count);
    const std::string path = PathOf("export-" + std::to_string(count) + ".json");
    for (auto _ : state) {
        const auto result = source->ExportCustomPresets(path, {});
        if (!result.ok || result.written != count)
            state.SkipWithError(result.message.c_str());
    }
    state.counters["bytes"] = static_cast<double>(QFile(QString::fromStdString(path)).size());
}

void BM_ImportIntoAFreshStore(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    const std::string path = PathOf("import-" + std::to_string(count) + ".json");
    if (!SourceWith(count)->ExportCustomPresets(path, {}).ok) {
        state.SkipWithError("no file to import");
        return;
    }
    for (auto _ : state) {
        state.PauseTiming();
        const auto source = FreshSource("fresh.ini");
        state.ResumeTiming();
        const auto result =
            source->ImportCustomPresets(path, ILMFmtPresetDataSource::ImportClash::Rename);
        if (!result.ok || result.added != count)
            state.SkipWithError(result.message.c_str());
    }
}

void BM_RefuseA100MBFile(benchmark::State& state) {
    const std::string path = PathOf("huge.json");
    {
        QFile huge(QString::fromStdString(path));
        if (!huge.open(QIODevice::WriteOnly) || !huge.resize(qint64(100) * 1024 * 1024)) {
            state.SkipWithError("cannot make the sparse file");
            return;
        }
    }
    const auto source = FreshSource("huge.ini");
    for (auto _ : state) {
        const auto result =
            source->ImportCustomPresets(path, ILMFmtPresetDataSource::ImportClash::Rename);
        if (result.ok)
            state.SkipWithError("the file was read");
    }
}

void BM_PresetFromPastedArguments(benchmark::State& state) {
    const std::vector<std::string> line{"-c:v", "libx265", "-crf", "28", "-c:a",
                                        "aac",  "-b:a",    "128k", "-f", "mp4"};
    for (auto _ : state) {
        const auto result = LMFFmpegArgumentsReader::PresetFromArguments(line);
        benchmark::DoNotOptimize(result.preset);
    }
}

} // namespace

BENCHMARK(BM_Export)->Arg(10)->Arg(100)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ImportIntoAFreshStore)
    ->Arg(10)
    ->Arg(100)
    ->Arg(1000)
    ->Arg(5000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_RefuseA100MBFile)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_PresetFromPastedArguments)->Unit(benchmark::kMicrosecond);

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QTemporaryDir dir;
    g_dir = &dir;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
