// SPDX-License-Identifier: MIT
#pragma once

#include "LMOptionPreset.h"
#include "LMQualityPreset.h"

#include <QStringView>

#include <array>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Lumeran {

// The option lists a codec has, in the order the codec preset interface lists them.
enum class LMOptionList { Resolution = 0, Framerate, Quality, Samplerate, ChannelLayout };
constexpr int LMOptionListCount = 5;

struct LMCodecInfo {
    std::string id;
    std::string name;
    std::string encoder; // empty for the automatic codec
    std::string streamCodec;
    std::string pixelFormat;
    std::vector<std::string> args;
    bool video = true;
    std::vector<std::shared_ptr<const LMOptionPreset>> resolutions;
    std::vector<std::shared_ptr<const LMOptionPreset>> framerates;
    std::vector<std::shared_ptr<const LMQualityPreset>> qualities;
    std::vector<std::shared_ptr<const LMOptionPreset>> samplerates;
    std::vector<std::shared_ptr<const LMOptionPreset>> channelLayouts;
    // Default index per option list; -1 where the list is empty.
    std::array<int, LMOptionListCount> defaults{-1, -1, -1, -1, -1};

    int Count(LMOptionList list) const;
    // Index of the entry with that id in the list, or -1.
    int Find(LMOptionList list, QStringView id) const;
    int Find(LMOptionList list, std::string_view id) const;
    const std::string& IdAt(LMOptionList list, int index) const;
};

struct LMContainerInfo {
    std::string id;
    std::string name;
    std::string muxer;
    std::string extension;
    std::vector<const LMCodecInfo*> video;
    std::vector<const LMCodecInfo*> audio;
    std::vector<std::string> args;
    std::map<std::string, std::vector<std::string>> codecArgs;

    const std::vector<const LMCodecInfo*>& Codecs(bool audioStream) const {
        return audioStream ? audio : video;
    }
    // Index of the codec with that id in the stream's list, or -1.
    int FindCodec(bool audioStream, QStringView id) const;
    int FindCodec(bool audioStream, std::string_view id) const;
};

// The embedded table of containers and codecs every preset refers to. It is
// read once from the library's resources, on first use from whichever thread
// comes first, and never changes afterwards.
class LMFormatRegistry {
public:
    static const LMFormatRegistry& Instance();

    // By registry id ("mp4") or display name ("MP4"); null when unknown.
    const LMContainerInfo* FindContainer(QStringView idOrName) const;
    // The same for UTF-8 text, as the JSON reader has it.
    const LMContainerInfo* FindContainer(std::string_view idOrName) const;
    const std::vector<std::unique_ptr<LMContainerInfo>>& Containers() const { return m_containers; }
    bool IsValid() const { return !m_containers.empty(); }

    // Builds a registry from JSON text; an invalid table gives an empty registry
    // and the reason in *error. Exposed so the table's own checks can be tested.
    static std::unique_ptr<LMFormatRegistry> FromJson(const QByteArray& json, std::string* error);

private:
    std::vector<std::unique_ptr<LMCodecInfo>> m_codecs;
    std::vector<std::unique_ptr<LMContainerInfo>> m_containers;
    friend class LMFormatRegistryLoader;
};

} // namespace Lumeran
