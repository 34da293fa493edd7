// SPDX-License-Identifier: MIT
#pragma once

#include "ILMCodecPreset.h"
#include "LMFormatPreset.h"

#include <memory>

namespace Lumeran {

// A live view of one codec of a format preset: the lists come from the
// registry, the current indexes from (and into) the preset.
class LMCodecPreset final : public ILMCodecPreset {
public:
    LMCodecPreset(std::shared_ptr<LMFormatPreset> preset, bool audio, int index);

    std::string Name() const override { return m_info->name; }

    std::shared_ptr<const ILMResolutionPreset> ResolutionAt(int index) const override;
    int ResolutionCount() const override { return m_info->Count(LMOptionList::Resolution); }
    int CurrentResolutionIndex() const override { return Current(LMOptionList::Resolution); }
    void SetCurrentResolution(int index) override { Set(LMOptionList::Resolution, index); }

    std::shared_ptr<const ILMFrameratePreset> FramerateAt(int index) const override;
    int FramerateCount() const override { return m_info->Count(LMOptionList::Framerate); }
    int CurrentFramerateIndex() const override { return Current(LMOptionList::Framerate); }
    void SetCurrentFramerate(int index) override { Set(LMOptionList::Framerate, index); }

    std::shared_ptr<const ILMCodecQualityPreset> QualityAt(int index) const override;
    int QualityCount() const override { return m_info->Count(LMOptionList::Quality); }
    int CurrentQualityIndex() const override { return Current(LMOptionList::Quality); }
    void SetCurrentQuality(int index) override { Set(LMOptionList::Quality, index); }

    std::shared_ptr<const ILMSampleratePreset> SamplerateAt(int index) const override;
    int SamplerateCount() const override { return m_info->Count(LMOptionList::Samplerate); }
    int CurrentSamplerateIndex() const override { return Current(LMOptionList::Samplerate); }
    void SetCurrentSamplerate(int index) override { Set(LMOptionList::Samplerate, index); }

    std::shared_ptr<const ILMChannelLayoutPreset> ChannelLayoutAt(int index) const override;
    int ChannelLayoutCount() const override { return m_info->Count(LMOptionList::ChannelLayout); }
    int CurrentChannelLayoutIndex() const override { return Current(LMOptionList::ChannelLayout); }
    void SetCurrentChannelLayout(int index) override { Set(LMOptionList::ChannelLayout, index); }

    std::string Id() const override { return m_info->id; }
    std::string Encoder() const override { return m_info->encoder; }
    std::vector<std::string> EncoderArguments() const override { return m_info->args; }
    std::string StreamCodec() const override { return m_info->streamCodec; }
    std::string PixelFormat() const override { return m_info->pixelFormat; }

private:
    int Current(LMOptionList list) const { return m_preset->Option(m_audio, m_index, list); }
    void Set(LMOptionList list, int index) { m_preset->SetOption(m_audio, m_index, list, index); }

    std::shared_ptr<LMFormatPreset> m_preset;
    const LMCodecInfo* m_info;
    bool m_audio;
    int m_index;
};

} // namespace Lumeran
