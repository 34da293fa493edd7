// SPDX-License-Identifier: MIT
#include "ILMArtworkImageMgr.h"
#include "ILMFileProvider.h"
#include "LMDefaultCatalogue.h"

#include "LMTestEnvironment.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace Lumeran;
using namespace Lumeran::TestSupport;

namespace {

std::string DefaultIcfg() {
    return ILMFileProvider::AppendPathExtension(
        ILMFileProvider::RemovePathExtension(LMDefaultCatalogue::Path()), "icfg");
}

} // namespace

TEST(ILMArtworkImageMgrTest, DefaultConfigurationHasTabCategoryAndFormatArtwork) {
    const auto manager = ILMArtworkImageMgr::MallocArtworkImageMgr(DefaultIcfg(), nullptr);
    ASSERT_TRUE(manager);
    for (const int face :
         {ILMArtworkImageMgr::CategoryFaceIDRecentList, ILMArtworkImageMgr::CategoryFaceIDCustomize,
          ILMArtworkImageMgr::FormatFaceIDMP4, 10, 11, 12, 13}) {
        const auto group = manager->ArtworkGroup(face);
        ASSERT_TRUE(group) << face;
        EXPECT_EQ(group->FaceID(), face);
        ASSERT_FALSE(group->ImagePaths().empty());
        EXPECT_TRUE(QFileInfo::exists(QString::fromStdString(group->ImagePaths().front())));
    }
    EXPECT_FALSE(manager->ArtworkGroup(99999));
}

TEST(ILMArtworkImageMgrTest, MissingOrBrokenConfigurationGivesNoManager) {
    QTemporaryDir dir;
    std::shared_ptr<const ILMError> error;
    EXPECT_FALSE(ILMArtworkImageMgr::MallocArtworkImageMgr(
        dir.filePath(QStringLiteral("x.icfg")).toStdString(), &error));
    EXPECT_TRUE(error);
    EXPECT_FALSE(ILMArtworkImageMgr::MallocArtworkImageMgr(
        WriteTestFile(dir, QStringLiteral("b.icfg"), "{oops"), nullptr));
    EXPECT_FALSE(ILMArtworkImageMgr::MallocArtworkImageMgr(
        WriteTestFile(dir, QStringLiteral("c.icfg"), R"({"x":1})"), nullptr));
}

TEST(ILMArtworkImageMgrTest, EntriesWithMissingImagesAreLeftOut) {
    QTemporaryDir dir;
    WriteTestFile(dir, QStringLiteral("here.svg"), "<svg xmlns='http://www.w3.org/2000/svg'/>");
    const auto path = WriteTestFile(dir, QStringLiteral("a.icfg"), R"({"artwork":[
        {"faceId":5,"images":["here.svg"]},
        {"faceId":6,"images":["gone.svg"]},
        {"faceId":"7","images":["here.svg"]}]})");
    const auto manager = ILMArtworkImageMgr::MallocArtworkImageMgr(path, nullptr);
    ASSERT_TRUE(manager);
    EXPECT_EQ(manager->GroupCount(), 1);
    ASSERT_TRUE(manager->ArtworkGroup(5));
    EXPECT_EQ(manager->ArtworkGroup(5)->ImagePaths().front(),
              dir.filePath(QStringLiteral("here.svg")).toStdString());
    EXPECT_FALSE(manager->ArtworkGroup(6));
}

TEST(ILMArtworkImageMgrTest, ImagesOutsideTheConfigurationFolderAreLeftOut) {
    QTemporaryDir dir;
    ASSERT_TRUE(QDir(dir.path()).mkpath(QStringLiteral("conf/art")));
    WriteTestFile(dir, QStringLiteral("outside.svg"), "<svg xmlns='http://www.w3.org/2000/svg'/>");
    WriteTestFile(dir, QStringLiteral("conf/art/in.svg"),
                  "<svg xmlns='http://www.w3.org/2000/svg'/>");
    ASSERT_TRUE(QFile::link(dir.filePath(QStringLiteral("outside.svg")),
                            dir.filePath(QStringLiteral("conf/art/link.svg"))));
    const std::string outside = dir.filePath(QStringLiteral("outside.svg")).toStdString();
    const auto path = WriteTestFile(dir, QStringLiteral("conf/a.icfg"), QByteArray(R"({"artwork":[
        {"faceId":1,"images":["../outside.svg"]},
        {"faceId":2,"images":["art/../../outside.svg"]},
        {"faceId":3,"images":[")") + QByteArray::fromStdString(outside) + R"("]},
        {"faceId":4,"images":["art/link.svg"]},
        {"faceId":5,"images":["art/in.svg"]}]})");
    const auto manager = ILMArtworkImageMgr::MallocArtworkImageMgr(path, nullptr);
    ASSERT_TRUE(manager);
    EXPECT_EQ(manager->GroupCount(), 1);
    EXPECT_TRUE(manager->ArtworkGroup(5));
}

TEST(ILMArtworkImageMgrTest, AConfigurationThatIsANamedPipeIsRefusedWithoutWaiting) {
    QTemporaryDir dir;
    const std::string path = dir.filePath(QStringLiteral("pipe.icfg")).toStdString();
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    std::shared_ptr<const ILMError> error;
    EXPECT_FALSE(ILMArtworkImageMgr::MallocArtworkImageMgr(path, &error));
    EXPECT_TRUE(error);
}
