// SPDX-License-Identifier: MIT
// Format model figures: loading a large catalogue against a bare JSON parse,
// the memory the loaded tree holds against the file size, and the cost of
// storing a long recent list. Each figure is printed beside its target.

#include "ILMBase64Codec.h"
#include "ILMFormatNode.h"
#include "ILMJsonReader.h"
#include "ILMJsonWriter.h"

#include <QByteArray>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>

using namespace Lumeran;

namespace {

QTemporaryDir g_dir;
std::string g_cataloguePath;
qint64 g_catalogueBytes = 0;

// A catalogue of about 20 MB shaped like a real one: categories of format
// nodes, each with presets of several containers and option choices.
void WriteLargeCatalogue() {
    static const char* presets[] = {
        R"({"title":"High Quality %d","description":"H.264 1920x1080 / AAC","faceId":100,"format":"mp4","video":{"codec":"h264","resolution":"1920x1080","quality":"high"},"audio":{"codec":"aac","quality":"high"}})",
        R"({"title":"HD 720p %d","description":"HEVC 1280x720 / AAC","faceId":101,"format":"mkv","video":{"codec":"hevc","resolution":"1280x720","framerate":"29.97"},"audio":{"codec":"opus","channels":"stereo"}})",
        R"({"title":"Lossless %d","description":"PCM 24-bit","faceId":200,"format":"wav","audio":{"codec":"pcm_s24le","samplerate":"96000","channels":"stereo"}})",
        R"({"title":"Low Quality %d","description":"Xvid / MP3","faceId":107,"format":"avi","video":{"codec":"xvid","quality":"low"},"audio":{"codec":"mp3","quality":"low"}})"};
    QByteArray json = R"({"title":"Formats","children":[)";
    char buffer[512];
    int serial = 0;
    for (int c = 0; json.size() < 20 * 1024 * 1024; ++c) {
        json += c ? "," : "";
        json += R"({"title":"Category )" + QByteArray::number(c) + R"(","faceId":10,"children":[)";
        for (int f = 0; f < 100; ++f) {
            json += f ? "," : "";
            json += R"({"title":"Format )" + QByteArray::number(f) +
                    R"(","description":"MP4 file format","faceId":100,"presets":[)";
            for (int p = 0; p < 100; ++p) {
                std::snprintf(buffer, sizeof buffer, presets[(c + f + p) % 4], ++serial);
                json += p ? "," : "";
                json += buffer;
            }
            json += "]}";
        }
        json += "]}";
    }
    json += "]}";
    QFile file(g_dir.filePath(QStringLiteral("large.json")));
    if (!file.open(QIODevice::WriteOnly))
        std::abort();
    file.write(json);
    g_cataloguePath = file.fileName().toStdString();
    g_catalogueBytes = json.size();
}

void BM_LoadCatalogue(benchmark::State& state) {
    for (auto _ : state) {
        auto root =
            ILMFormatNode::MallocFormatNode(ILMJsonReader::ReadJsonFile(g_cataloguePath, nullptr));
        if (!root)
            state.SkipWithError("catalogue rejected");
        benchmark::DoNotOptimize(root);
    }
    state.SetBytesProcessed(state.iterations() * g_catalogueBytes);
}
BENCHMARK(BM_LoadCatalogue)->Unit(benchmark::kMillisecond)->MinTime(3);

void BM_ParseJsonOnly(benchmark::State& state) {
    for (auto _ : state) {
        QFile file(QString::fromStdString(g_cataloguePath));
        file.open(QIODevice::ReadOnly);
        auto document = QJsonDocument::fromJson(file.readAll());
        benchmark::DoNotOptimize(document);
    }
    state.SetBytesProcessed(state.iterations() * g_catalogueBytes);
}
BENCHMARK(BM_ParseJsonOnly)->Unit(benchmark::kMillisecond)->MinTime(3);

std::shared_ptr<ILMFormatNode> RecentRoot(int entries) {
    auto root = ILMFormatNode::MallocFormatNode(std::shared_ptr<ILMFormatNode>());
    root->SetTitle("Recent");
    root->SetDescription("Recent Selection");
    root->SetFaceID(1);
    for (int i = 0; i < entries; ++i) {
        auto node = ILMFormatNode::MallocFormatNode(root);
        node->SetTitle("MP4");
        node->SetDescription("MP4 file format");
        node->SetFaceID(100);
        auto preset = ILMFormatPreset::MallocFormatPreset("mp4", "HD 1080p " + std::to_string(i));
        preset->SetFaceID(100);
        preset->CurrentVideoCodec()->SetCurrentResolution(3);
        node->AddFormatPreset(preset);
        root->AddChild(node);
    }
    return root;
}

std::size_t g_storedRecentBytes = 0;

void BM_StoreRecentRoot1000(benchmark::State& state) {
    const auto root = RecentRoot(1000);
    for (auto _ : state) {
        const std::string stored =
            ILMBase64Codec::Encode(ILMJsonWriter::WriteJsonString(root->ToJson()));
        g_storedRecentBytes = stored.size();
        benchmark::DoNotOptimize(stored);
    }
    state.counters["stored_bytes"] = static_cast<double>(g_storedRecentBytes);
}
BENCHMARK(BM_StoreRecentRoot1000)->Unit(benchmark::kMillisecond);

// Bytes the loaded tree keeps on the heap, the JSON document already parsed.
double TreeBytes() {
    const auto json = ILMJsonReader::ReadJsonFile(g_cataloguePath, nullptr);
    malloc_trim(0);
    const auto before = mallinfo2().uordblks;
    auto root = ILMFormatNode::MallocFormatNode(json);
    const auto after = mallinfo2().uordblks;
    benchmark::DoNotOptimize(root);
    return static_cast<double>(after - before);
}

// Kilobytes of a /proc/self/status line ("VmRSS:", "VmHWM:").
long StatusKb(const char* field) {
    std::FILE* status = std::fopen("/proc/self/status", "r");
    if (!status)
        return -1;
    char line[256];
    long kb = -1;
    while (std::fgets(line, sizeof line, status)) {
        if (std::strncmp(line, field, std::strlen(field)) == 0)
            kb = std::strtol(line + std::strlen(field), nullptr, 10);
    }
    std::fclose(status);
    return kb;
}

// In the child process: the memory the process holds before the load, then its
// peak during the load (the high-water mark is reset to the current size first).
int MeasurePeakInChild(const char* path) {
    // The registry is read once per process; it is not part of a catalogue's load.
    ILMFormatNode::MallocFormatNode(ILMJsonReader::ReadJsonString("{\"title\":\"x\"}", nullptr));
    malloc_trim(0);
    if (std::FILE* clear = std::fopen("/proc/self/clear_refs", "w")) {
        std::fputs("5", clear);
        std::fclose(clear);
    }
    const long before = StatusKb("VmRSS:");
    auto root = ILMFormatNode::MallocFormatNode(ILMJsonReader::ReadJsonFile(path, nullptr));
    const long peak = StatusKb("VmHWM:");
    std::printf("%ld %ld %d\n", before, peak, root ? 1 : 0);
    return 0;
}

// The peak of a load of the large catalogue in a process of its own, less what
// that process held before: {bytes, ok}.
std::pair<double, bool> PeakLoadBytes(const char* self) {
    const std::string command = std::string(self) + " --peak-child '" + g_cataloguePath + "'";
    std::FILE* child = popen(command.c_str(), "r");
    long before = 0;
    long peak = 0;
    int loaded = 0;
    const bool read = child && std::fscanf(child, "%ld %ld %d", &before, &peak, &loaded) == 3;
    if (child)
        pclose(child);
    return {static_cast<double>(peak - before) * 1024.0, read && loaded == 1 && before > 0};
}

class CapturingReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            times[run.benchmark_name()] = run.GetAdjustedCPUTime();
        ConsoleReporter::ReportRuns(runs);
    }
    std::map<std::string, double> times;
};

} // namespace

const char* Verdict(bool met) {
    return met ? "met" : "MISSED";
}

int main(int argc, char** argv) {
    if (argc == 3 && std::strcmp(argv[1], "--peak-child") == 0)
        return MeasurePeakInChild(argv[2]);
    WriteLargeCatalogue();
    benchmark::Initialize(&argc, argv);
    CapturingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    const double load = reporter.times["BM_LoadCatalogue/min_time:3.000"];
    const double parse = reporter.times["BM_ParseJsonOnly/min_time:3.000"];
    const double treeBytes = TreeBytes();
    const auto [peakBytes, peakOk] = PeakLoadBytes(argv[0]);
    const double fileBytes = static_cast<double>(g_catalogueBytes);
    std::printf("\ncatalogue file: %.1f MB\n", fileBytes / 1e6);
    std::printf("catalogue load, parse + tree (CPU): %.2fx a bare QJsonDocument parse "
                "(%.0f ms / %.0f ms) ... target <= 1.00x: %s\n",
                load / parse, load, parse, Verdict(load > 0 && parse > 0 && load <= parse));
    std::printf("peak memory during that load: %.2fx the file size (%.1f MB above the %s) "
                "... target <= 3.00x: %s\n",
                peakBytes / fileBytes, peakBytes / 1e6, "child process's size before it",
                Verdict(peakOk && peakBytes <= 3 * fileBytes));
    std::printf("memory held by the loaded tree: %.2fx the file size (%.1f MB) ... target <= "
                "1.50x: %s\n",
                treeBytes / fileBytes, treeBytes / 1e6, Verdict(treeBytes <= 1.5 * fileBytes));
    std::printf("stored 1,000-entry recent list: %zu bytes (%.0f bytes per entry)\n",
                g_storedRecentBytes, static_cast<double>(g_storedRecentBytes) / 1000.0);
    return 0;
}
