// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFormatPreset.h"

#include <memory>
#include <string>

namespace Lumeran::TestSupport {

// A preset of one video stream with one codec whose name and number of quality
// levels a test chooses, for shapes the embedded registry does not have (a
// single quality level, a name no table knows). It has no other options and no
// audio stream.
class LMFakeFormatPreset final : public ILMFormatPreset,
                                 public std::enable_shared_from_this<LMFakeFormatPreset> {
public:
    LMFakeFormatPreset(std::string codecName, int qualityCount);

    int FaceID() const override { return 0; }
    void SetFaceID(int) override {}
    std::string Title() const override { return m_title; }
    void SetTitle(const std::string& title) override { m_title = title; }
    std::string Description() const override { return {}; }
    void SetDescription(const std::string&) override {}
    std::shared_ptr<ILMFormatPreset> Clone() const override;
    void CopyFrom(std::shared_ptr<const ILMFormatPreset> other) override;
    std::shared_ptr<ILMCodecPreset> AudioCodecAt(int) const override { return {}; }
    std::shared_ptr<ILMCodecPreset> VideoCodecAt(int index) const override;
    int VideoCodecCount() const override { return 1; }
    int AudioCodecCount() const override { return 0; }
    int CurrentAudioCodecIndex() const override { return -1; }
    int CurrentVideoCodecIndex() const override { return m_currentVideo; }
    void SetCurrentAudioCodec(int) override {}
    void SetCurrentVideoCodec(int index) override { m_currentVideo = index == 0 ? 0 : -1; }
    bool IsEqualTo(std::shared_ptr<const ILMFormatPreset> other) const override;
    std::string FormatName() const override { return "Fake"; }
    std::string FormatId() const override { return "fake"; }

    const std::string& CodecName() const { return m_codecName; }
    int QualityCount() const { return m_qualityCount; }
    int CurrentQuality() const { return m_currentQuality; }
    void SetCurrentQuality(int index) { m_currentQuality = index; }

private:
    std::string m_codecName;
    std::string m_title = "Fake";
    int m_qualityCount = 0;
    int m_currentQuality = 0;
    int m_currentVideo = 0;
};

} // namespace Lumeran::TestSupport
