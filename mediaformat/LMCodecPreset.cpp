// SPDX-License-Identifier: MIT
#include "LMCodecPreset.h"

namespace Lumeran {

namespace {

template <typename T, typename List>
std::shared_ptr<const T> At(const List& list, int index) {
    if (index < 0 || index >= static_cast<int>(list.size()))
        return {};
    return list[static_cast<std::size_t>(index)];
}

} // namespace

LMCodecPreset::LMCodecPreset(std::shared_ptr<LMFormatPreset> preset, bool audio, int index)
    : m_preset(std::move(preset)), m_info(m_preset->Codec(audio, index)), m_audio(audio),
      m_index(index) {}

std::shared_ptr<const ILMResolutionPreset> LMCodecPreset::ResolutionAt(int index) const {
    return At<ILMResolutionPreset>(m_info->resolutions, index);
}

std::shared_ptr<const ILMFrameratePreset> LMCodecPreset::FramerateAt(int index) const {
    return At<ILMFrameratePreset>(m_info->framerates, index);
}

std::shared_ptr<const ILMCodecQualityPreset> LMCodecPreset::QualityAt(int index) const {
    return At<ILMCodecQualityPreset>(m_info->qualities, index);
}

std::shared_ptr<const ILMSampleratePreset> LMCodecPreset::SamplerateAt(int index) const {
    return At<ILMSampleratePreset>(m_info->samplerates, index);
}

std::shared_ptr<const ILMChannelLayoutPreset> LMCodecPreset::ChannelLayoutAt(int index) const {
    return At<ILMChannelLayoutPreset>(m_info->channelLayouts, index);
}

} // namespace Lumeran
