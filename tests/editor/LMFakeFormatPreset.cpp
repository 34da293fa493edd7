// SPDX-License-Identifier: MIT
#include "LMFakeFormatPreset.h"

#include <utility>

namespace Lumeran::TestSupport {

namespace {

class FakeQuality final : public ILMCodecQualityPreset {
public:
    explicit FakeQuality(std::string name) : m_name(std::move(name)) {}
    std::string Name() const override { return m_name; }
    std::string Id() const override { return m_name; }
    Kind RateControl() const override { return Kind::Crf; }
    std::string Value() const override { return "23"; }
    std::string PixelFormat() const override { return {}; }

private:
    std::string m_name;
};

// A live view of its preset's quality choice, as the library's codec presets are.
class FakeCodec final : public ILMCodecPreset {
public:
    explicit FakeCodec(std::shared_ptr<LMFakeFormatPreset> preset) : m_preset(std::move(preset)) {}

    std::string Name() const override { return m_preset->CodecName(); }
    std::shared_ptr<const ILMResolutionPreset> ResolutionAt(int) const override { return {}; }
    int ResolutionCount() const override { return 0; }
    int CurrentResolutionIndex() const override { return -1; }
    void SetCurrentResolution(int) override {}
    std::shared_ptr<const ILMFrameratePreset> FramerateAt(int) const override { return {}; }
    int FramerateCount() const override { return 0; }
    int CurrentFramerateIndex() const override { return -1; }
    void SetCurrentFramerate(int) override {}
    std::shared_ptr<const ILMCodecQualityPreset> QualityAt(int index) const override {
        if (index < 0 || index >= QualityCount())
            return {};
        return std::make_shared<FakeQuality>("Level " + std::to_string(index + 1));
    }
    int QualityCount() const override { return m_preset->QualityCount(); }
    int CurrentQualityIndex() const override { return m_preset->CurrentQuality(); }
    void SetCurrentQuality(int index) override { m_preset->SetCurrentQuality(index); }
    std::shared_ptr<const ILMSampleratePreset> SamplerateAt(int) const override { return {}; }
    int SamplerateCount() const override { return 0; }
    int CurrentSamplerateIndex() const override { return -1; }
    void SetCurrentSamplerate(int) override {}
    std::shared_ptr<const ILMChannelLayoutPreset> ChannelLayoutAt(int) const override { return {}; }
    int ChannelLayoutCount() const override { return 0; }
    int CurrentChannelLayoutIndex() const override { return -1; }
    void SetCurrentChannelLayout(int) override {}
    std::string Id() const override { return "fake"; }
    std::string Encoder() const override { return "fake-encoder"; }
    std::vector<std::string> EncoderArguments() const override { return {}; }
    std::string StreamCodec() const override { return "fake"; }
    std::string PixelFormat() const override { return {}; }

private:
    std::shared_ptr<LMFakeFormatPreset> m_preset;
};

} // namespace

LMFakeFormatPreset::LMFakeFormatPreset(std::string codecName, int qualityCount)
    : m_codecName(std::move(codecName)), m_qualityCount(qualityCount) {}

std::shared_ptr<ILMFormatPreset> LMFakeFormatPreset::Clone() const {
    return std::make_shared<LMFakeFormatPreset>(*this);
}

void LMFakeFormatPreset::CopyFrom(std::shared_ptr<const ILMFormatPreset> other) {
    if (const auto* fake = dynamic_cast<const LMFakeFormatPreset*>(other.get()))
        *this = *fake;
}

std::shared_ptr<ILMCodecPreset> LMFakeFormatPreset::VideoCodecAt(int index) const {
    if (index != 0)
        return {};
    auto self = std::const_pointer_cast<LMFakeFormatPreset>(shared_from_this());
    return std::make_shared<FakeCodec>(std::move(self));
}

bool LMFakeFormatPreset::IsEqualTo(std::shared_ptr<const ILMFormatPreset> other) const {
    const auto* fake = dynamic_cast<const LMFakeFormatPreset*>(other.get());
    return fake && fake->m_codecName == m_codecName && fake->m_title == m_title &&
           fake->m_qualityCount == m_qualityCount && fake->m_currentQuality == m_currentQuality &&
           fake->m_currentVideo == m_currentVideo;
}

} // namespace Lumeran::TestSupport
