// SPDX-License-Identifier: MIT
// What an FFmpeg can run, asked of fake binaries (scripts printing chosen lists,
// crashing or missing) and of the real one, with the cache kept in a temporary
// folder of each test.

#include "LMFFmpegCapabilities.h"
#include "ILMFormatNode.h"
#include "ILMJsonReader.h"
#include "LMDefaultCatalogue.h"
#include "LMTestEnvironment.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <atomic>
#include <memory>

using namespace Lumeran;
using Status = LMPresetAvailability::Status;

namespace {

std::shared_ptr<ILMFormatNode> Catalogue() {
    return ILMFormatNode::MallocFormatNode(
        ILMJsonReader::ReadJsonFile(LMDefaultCatalogue::Path(), nullptr));
}

std::shared_ptr<const ILMFormatPreset> PresetAt(const std::shared_ptr<ILMFormatNode>& root,
                                                const std::string& category,
                                                const std::string& format,
                                                const std::string& title) {
    const auto node = root->FindChild(category)->FindChild(format);
    return node ? node->FindFormatPreset(title) : nullptr;
}

std::string FakeWithoutX265() {
    return TestSupport::SourcePath("tests/support/fake-ffmpeg-without-x265.sh");
}

// A shell script named ffmpeg in dir with the given body; its path.
std::string WriteScript(const QTemporaryDir& dir, const QByteArray& body) {
    const std::string path =
        TestSupport::WriteTestFile(dir, QStringLiteral("bin/ffmpeg"), "#!/bin/sh\n" + body);
    QFile::setPermissions(QString::fromStdString(path),
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    return path;
}

template <typename Visit>
void ForEachPreset(const std::shared_ptr<const ILMFormatNode>& node, const Visit& visit) {
    for (int i = 0; i < node->FormatPresetCount(); ++i)
        visit(node, node->FormatPresetAt(i));
    for (int i = 0; i < node->ChildCount(); ++i)
        ForEachPreset(node->ChildAt(i), visit);
}

class LMFFmpegCapabilitiesTest : public ::testing::Test {
protected:
    QTemporaryDir cache;
    QTemporaryDir bin;
    std::string CacheDir() const { return cache.path().toStdString(); }
};

TEST_F(LMFFmpegCapabilitiesTest, ReadsNamesAfterTheRuleOfAListing) {
    const std::string encoders = "Encoders:\n V..... = Video\n ------\n"
                                 " V....D libx264              libx264 H.264\n"
                                 " A....D aac                  AAC (Advanced Audio Coding)\n";
    EXPECT_EQ(LMFFmpegCapabilities::ParseEncoders(encoders),
              (std::set<std::string>{"libx264", "aac"}));
    const std::string muxers = "File formats:\n D. = Demuxing supported\n --\n"
                               "  E 3g2             3GP2 (3GPP2 file format)\n"
                               " DE matroska,webm   Matroska / WebM\n";
    EXPECT_EQ(LMFFmpegCapabilities::ParseMuxers(muxers),
              (std::set<std::string>{"3g2", "matroska", "webm"}));
    EXPECT_TRUE(LMFFmpegCapabilities::ParseEncoders("no listing here\n libx264 x\n").empty());
}

TEST_F(LMFFmpegCapabilitiesTest, FFmpegWithoutX265LacksItForHevcPresetsAndOffersH264) {
    LMFFmpegCapabilities capabilities(FakeWithoutX265(), CacheDir());
    ASSERT_TRUE(capabilities.WaitForReady());
    ASSERT_EQ(capabilities.CurrentState(), LMFFmpegCapabilities::State::Ready)
        << capabilities.Problem();
    EXPECT_TRUE(capabilities.HasEncoder("libx264"));
    EXPECT_FALSE(capabilities.HasEncoder("libx265"));
    EXPECT_TRUE(capabilities.HasMuxer("mp4"));

    const auto root = Catalogue();
    const auto hevc = PresetAt(root, "Video", "HEVC MP4", "High Quality");
    ASSERT_TRUE(hevc);
    const auto availability = capabilities.Availability(hevc, root);
    EXPECT_EQ(availability.status, Status::Missing);
    EXPECT_EQ(availability.missingKind, "encoder");
    EXPECT_EQ(availability.missingName, "libx265");
    EXPECT_EQ(availability.AlternativeTitle(), "MP4 High Quality");
    EXPECT_EQ(availability.Reason(),
              "This FFmpeg has no libx265 encoder \u2014 try MP4 High Quality");

    int hevcPresets = 0;
    ForEachPreset(root, [&](const auto&, const auto& preset) {
        const auto found = capabilities.Availability(preset, root);
        const auto video = preset->CurrentVideoCodec();
        if (video && video->Encoder() == "libx265") {
            ++hevcPresets;
            EXPECT_EQ(found.status, Status::Missing) << preset->Title();
            EXPECT_EQ(found.missingName, "libx265");
            ASSERT_TRUE(found.alternative) << preset->Title();
            EXPECT_EQ(found.alternative->CurrentVideoCodec()->Encoder(), "libx264");
            EXPECT_EQ(found.alternative->FormatId(), preset->FormatId()) << preset->Title();
        } else {
            EXPECT_EQ(found.status, Status::Available) << preset->Title();
        }
    });
    EXPECT_GT(hevcPresets, 0);
}

TEST_F(LMFFmpegCapabilitiesTest, RealFFmpegRunsEveryCataloguePreset) {
    LMFFmpegCapabilities capabilities({}, CacheDir());
    ASSERT_TRUE(capabilities.WaitForReady());
    ASSERT_EQ(capabilities.CurrentState(), LMFFmpegCapabilities::State::Ready)
        << capabilities.Problem();
    const auto root = Catalogue();
    int presets = 0;
    ForEachPreset(root, [&](const auto&, const auto& preset) {
        ++presets;
        const auto found = capabilities.Availability(preset, root);
        EXPECT_EQ(found.status, Status::Available) << preset->Title() << ": " << found.Reason();
    });
    EXPECT_GT(presets, 50);
}

TEST_F(LMFFmpegCapabilitiesTest, AMissingMuxerIsNamedToo) {
    const std::string fake = WriteScript(
        bin, "case \"$*\" in *-encoders*) printf ' ------\\n V....D libx264 x\\n A....D aac x\\n';;"
             " *) printf ' --\\n  E matroska x\\n';; esac\n");
    LMFFmpegCapabilities capabilities(fake, CacheDir());
    ASSERT_TRUE(capabilities.WaitForReady());
    const auto root = Catalogue();
    const auto mp4 = PresetAt(root, "Video", "MP4", "High Quality");
    const auto found = capabilities.Availability(mp4, root);
    EXPECT_EQ(found.status, Status::Missing);
    EXPECT_EQ(found.missingKind, "muxer");
    EXPECT_EQ(found.missingName, "mp4");
    ASSERT_TRUE(found.alternative);
    EXPECT_EQ(found.AlternativeTitle(), "MKV High Quality");
}

TEST_F(LMFFmpegCapabilitiesTest, AnUnchangedBinaryIsReadFromTheCacheAChangedOneIsAskedAgain) {
    const QByteArray body = "echo run >> \"$(dirname \"$0\")/runs\"\n"
                            "case \"$*\" in *-encoders*) printf ' ------\\n V....D libx264 x\\n';;"
                            " *) printf ' --\\n  E mp4 x\\n';; esac\n";
    const std::string fake = WriteScript(bin, body);
    const QString runs = bin.filePath(QStringLiteral("bin/runs"));
    {
        LMFFmpegCapabilities first(fake, CacheDir());
        ASSERT_TRUE(first.WaitForReady());
        EXPECT_FALSE(first.CameFromCache());
    }
    QFile log(runs);
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    EXPECT_EQ(log.readAll().count("run"), 2); // -encoders and -muxers
    log.close();
    EXPECT_EQ(QDir(cache.path()).entryList(QDir::Files).size(), 1);

    {
        LMFFmpegCapabilities second(fake, CacheDir());
        ASSERT_TRUE(second.WaitForReady());
        EXPECT_TRUE(second.CameFromCache());
        EXPECT_TRUE(second.HasEncoder("libx264"));
        EXPECT_TRUE(second.HasMuxer("mp4"));
    }
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    EXPECT_EQ(log.readAll().count("run"), 2);
    log.close();

    // A new build of the binary (another size) is asked again.
    WriteScript(bin, body + "# rebuilt\n");
    LMFFmpegCapabilities third(fake, CacheDir());
    ASSERT_TRUE(third.WaitForReady());
    EXPECT_FALSE(third.CameFromCache());
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    EXPECT_EQ(log.readAll().count("run"), 4);
}

// A binary that cannot answer leaves every preset's availability unknown.
void ExpectUnknown(LMFFmpegCapabilities& capabilities) {
    ASSERT_TRUE(capabilities.WaitForReady());
    EXPECT_EQ(capabilities.CurrentState(), LMFFmpegCapabilities::State::Unknown);
    EXPECT_FALSE(capabilities.Problem().empty());
    const auto root = Catalogue();
    ForEachPreset(root, [&](const auto&, const auto& preset) {
        EXPECT_EQ(capabilities.Availability(preset, root).status, Status::Unknown);
    });
}

TEST_F(LMFFmpegCapabilitiesTest, MissingBinaryIsUnknown) {
    LMFFmpegCapabilities capabilities(bin.filePath(QStringLiteral("nothing/ffmpeg")).toStdString(),
                                      CacheDir());
    ExpectUnknown(capabilities);
}

TEST_F(LMFFmpegCapabilitiesTest, CrashingBinaryIsUnknown) {
    LMFFmpegCapabilities capabilities(WriteScript(bin, "kill -SEGV $$\n"), CacheDir());
    ExpectUnknown(capabilities);
}

TEST_F(LMFFmpegCapabilitiesTest, FailingBinaryIsUnknown) {
    LMFFmpegCapabilities capabilities(WriteScript(bin, "echo broken >&2\nexit 3\n"), CacheDir());
    ExpectUnknown(capabilities);
    EXPECT_NE(capabilities.Problem().find("exited with 3"), std::string::npos)
        << capabilities.Problem();
}

TEST_F(LMFFmpegCapabilitiesTest, BinaryPrintingNoListingIsUnknown) {
    LMFFmpegCapabilities capabilities(WriteScript(bin, "echo hello\n"), CacheDir());
    ExpectUnknown(capabilities);
}

TEST_F(LMFFmpegCapabilitiesTest, UnreadableBinaryIsUnknown) {
    const std::string path = WriteScript(bin, "exit 0\n");
    QFile::setPermissions(QString::fromStdString(path), QFileDevice::WriteOwner);
    LMFFmpegCapabilities capabilities(path, CacheDir());
    ExpectUnknown(capabilities);
}

TEST_F(LMFFmpegCapabilitiesTest, LoadCallsBackOnceSettled) {
    std::atomic<int> calls{0};
    auto capabilities = std::make_unique<LMFFmpegCapabilities>(FakeWithoutX265(), CacheDir());
    capabilities->Load([&calls] { ++calls; });
    capabilities->Load([&calls] { calls += 100; }); // a second load does nothing
    ASSERT_TRUE(capabilities->WaitForReady());
    capabilities.reset(); // joins the loading thread, so the call is over
    EXPECT_EQ(calls.load(), 1);
}

} // namespace
