// SPDX-License-Identifier: MIT
#include "LMFormatTreeFactory.h"

#include "ILMJsonReader.h"
#include "LMDefaultCatalogue.h"
#include "LMFormatRegistry.h"

namespace Lumeran::TestSupport {

std::shared_ptr<ILMFormatPreset> MakePreset(const std::string& format, const std::string& title) {
    return ILMFormatPreset::MallocFormatPreset(format, title);
}

std::shared_ptr<ILMFormatNode> MakeNode(const std::string& title, const std::string& description,
                                        int faceID) {
    return ILMFormatNode::MallocFormatNode(title, description, faceID);
}

namespace {

int Pick(std::mt19937& random, int count) {
    return count <= 0 ? -1 : std::uniform_int_distribution<int>(0, count - 1)(random);
}

std::string RandomTitle(std::mt19937& random) {
    static const char* words[] = {"High",  "Qualité", "低",     "Übergröße", "HD",
                                  "1080p", "Mobile",  "日本語", "x"};
    std::string title;
    const int length = 1 + Pick(random, 3);
    for (int i = 0; i < length; ++i)
        title += std::string(i ? " " : "") + words[Pick(random, 9)];
    return title;
}

void RandomCodec(std::mt19937& random, ILMCodecPreset& codec) {
    codec.SetCurrentResolution(Pick(random, codec.ResolutionCount()));
    codec.SetCurrentFramerate(Pick(random, codec.FramerateCount()));
    codec.SetCurrentQuality(Pick(random, codec.QualityCount()));
    codec.SetCurrentSamplerate(Pick(random, codec.SamplerateCount()));
    codec.SetCurrentChannelLayout(Pick(random, codec.ChannelLayoutCount()));
}

} // namespace

std::shared_ptr<ILMFormatNode> MakeRandomTree(std::mt19937& random, int depth) {
    const auto& containers = LMFormatRegistry::Instance().Containers();
    auto node = MakeNode(RandomTitle(random), Pick(random, 2) ? RandomTitle(random) : "",
                         Pick(random, 500));
    const int presets = Pick(random, 4);
    for (int i = 0; i < presets; ++i) {
        const auto& container =
            containers[static_cast<std::size_t>(Pick(random, static_cast<int>(containers.size())))];
        auto preset = MakePreset(container->id, RandomTitle(random));
        preset->SetDescription(Pick(random, 2) ? RandomTitle(random) : "");
        preset->SetFaceID(Pick(random, 500));
        for (int v = 0; v < preset->VideoCodecCount(); ++v)
            RandomCodec(random, *preset->VideoCodecAt(v));
        for (int a = 0; a < preset->AudioCodecCount(); ++a)
            RandomCodec(random, *preset->AudioCodecAt(a));
        preset->SetCurrentVideoCodec(Pick(random, preset->VideoCodecCount() + 1) - 1);
        preset->SetCurrentAudioCodec(Pick(random, preset->AudioCodecCount() + 1) - 1);
        node->AddFormatPreset(preset);
    }
    if (depth > 0) {
        const int children = Pick(random, 4);
        for (int i = 0; i < children; ++i) {
            auto child = MakeRandomTree(random, depth - 1);
            child->SetParent(node);
            node->AddChild(child);
        }
    }
    return node;
}

std::shared_ptr<ILMFormatNode> LoadDefaultCatalogue() {
    return ILMFormatNode::MallocFormatNode(
        ILMJsonReader::ReadJsonFile(LMDefaultCatalogue::Path(), nullptr));
}

} // namespace Lumeran::TestSupport
