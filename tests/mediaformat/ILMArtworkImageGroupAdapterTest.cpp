// SPDX-License-Identifier: MIT
#include "ILMArtworkImageGroupAdapter.h"
#include "ILMArtworkImageMgr.h"
#include "ILMFileProvider.h"
#include "LMDefaultCatalogue.h"

#include <QImage>
#include <QPixmap>

#include <gtest/gtest.h>

using namespace Lumeran;

namespace {

class Group final : public ILMArtworkImageGroup {
public:
    explicit Group(std::vector<std::string> paths) : m_paths(std::move(paths)) {}
    int FaceID() const override { return 1; }
    std::vector<std::string> ImagePaths() const override { return m_paths; }

private:
    std::vector<std::string> m_paths;
};

std::shared_ptr<ILMArtworkImageMgr> DefaultArtwork() {
    return ILMArtworkImageMgr::MallocArtworkImageMgr(
        ILMFileProvider::AppendPathExtension(
            ILMFileProvider::RemovePathExtension(LMDefaultCatalogue::Path()), "icfg"),
        nullptr);
}

// Whether anything at all was drawn.
bool HasContent(const QImage& image) {
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 0)
                return true;
        }
    }
    return false;
}

} // namespace

TEST(ILMArtworkImageGroupAdapterTest, EveryDefaultGroupGivesAnIcon) {
    const auto artwork = DefaultArtwork();
    ASSERT_TRUE(artwork);
    for (const int face : {1, 2, 10, 11, 12, 13, 100, 116, 200, 300, 400}) {
        const QIcon icon =
            ILMArtworkImageGroupAdapter::imageFromArtworkImageGroup(artwork->ArtworkGroup(face));
        ASSERT_FALSE(icon.isNull()) << face;
        EXPECT_TRUE(HasContent(icon.pixmap(32, 32).toImage())) << face;
    }
}

TEST(ILMArtworkImageGroupAdapterTest, SvgArtworkRendersAtTheRequestedDevicePixelRatio) {
    const QIcon icon = ILMArtworkImageGroupAdapter::imageFromArtworkImageGroup(
        DefaultArtwork()->ArtworkGroup(100));
    const QPixmap one = icon.pixmap(QSize(32, 32), 1.0);
    const QPixmap two = icon.pixmap(QSize(32, 32), 2.0);
    EXPECT_EQ(one.size(), QSize(32, 32));
    EXPECT_EQ(two.size(), QSize(64, 64)) << "drawn at 2x, not scaled up";
    EXPECT_DOUBLE_EQ(two.devicePixelRatio(), 2.0);
}

TEST(ILMArtworkImageGroupAdapterTest, MissingOrUnreadableArtworkGivesANullIcon) {
    EXPECT_TRUE(ILMArtworkImageGroupAdapter::imageFromArtworkImageGroup(nullptr).isNull());
    const auto missing = std::make_shared<Group>(std::vector<std::string>{"/nonexistent/a.svg"});
    EXPECT_TRUE(ILMArtworkImageGroupAdapter::imageFromArtworkImageGroup(missing).isNull());
    const auto notAnImage =
        std::make_shared<Group>(std::vector<std::string>{LMDefaultCatalogue::Path()});
    EXPECT_TRUE(ILMArtworkImageGroupAdapter::imageFromArtworkImageGroup(notAnImage).isNull());
}
