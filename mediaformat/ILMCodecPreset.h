// SPDX-License-Identifier: MIT
#pragma once

#include "ILMChannelLayoutPreset.h"
#include "ILMCodecQualityPreset.h"
#include "ILMFrameratePreset.h"
#include "ILMResolutionPreset.h"
#include "ILMSampleratePreset.h"
#include "LMMediaFormatExport.h"

#include <memory>
#include <string>
#include <vector>

namespace Lumeran {

// One codec of a format preset with its option lists. Each list has a current
// index; it is negative when the list is empty (a video codec has no sample
// rates). A codec preset is a live view of its format preset: setting a current
// index changes that preset.
//
// Quality lists end with one level, "Best", that the preset editor never
// offers: it is the codec's archival setting (lossless-like CRF, the highest
// bitrate or profile), there for catalogue presets that pin it.
class LMMEDIAFORMAT_EXPORT ILMCodecPreset {
public:
    virtual ~ILMCodecPreset() = default;

    virtual std::string Name() const = 0;

    virtual std::shared_ptr<const ILMResolutionPreset> ResolutionAt(int index) const = 0;
    virtual int ResolutionCount() const = 0;
    virtual int CurrentResolutionIndex() const = 0;
    virtual void SetCurrentResolution(int index) = 0;

    virtual std::shared_ptr<const ILMFrameratePreset> FramerateAt(int index) const = 0;
    virtual int FramerateCount() const = 0;
    virtual int CurrentFramerateIndex() const = 0;
    virtual void SetCurrentFramerate(int index) = 0;

    virtual std::shared_ptr<const ILMCodecQualityPreset> QualityAt(int index) const = 0;
    virtual int QualityCount() const = 0;
    virtual int CurrentQualityIndex() const = 0;
    virtual void SetCurrentQuality(int index) = 0;

    virtual std::shared_ptr<const ILMSampleratePreset> SamplerateAt(int index) const = 0;
    virtual int SamplerateCount() const = 0;
    virtual int CurrentSamplerateIndex() const = 0;
    virtual void SetCurrentSamplerate(int index) = 0;

    virtual std::shared_ptr<const ILMChannelLayoutPreset> ChannelLayoutAt(int index) const = 0;
    virtual int ChannelLayoutCount() const = 0;
    virtual int CurrentChannelLayoutIndex() const = 0;
    virtual void SetCurrentChannelLayout(int index) = 0;

    // Registry id ("h264") and the encoder that produces it ("libx264"); the
    // automatic codec has no encoder of its own and leaves the choice to the muxer.
    virtual std::string Id() const = 0;
    virtual std::string Encoder() const = 0;
    // Encoder arguments the codec always needs ("-vtag XVID"), space-free tokens.
    virtual std::vector<std::string> EncoderArguments() const = 0;
    // The codec name a media probe reports for the stream ("h264").
    virtual std::string StreamCodec() const = 0;
    virtual std::string PixelFormat() const = 0;

    bool IsAutoValue() const { return Encoder().empty(); }

    std::shared_ptr<const ILMResolutionPreset> CurrentResolution() const {
        return ResolutionAt(CurrentResolutionIndex());
    }
    std::shared_ptr<const ILMFrameratePreset> CurrentFramerate() const {
        return FramerateAt(CurrentFramerateIndex());
    }
    std::shared_ptr<const ILMCodecQualityPreset> CurrentQuality() const {
        return QualityAt(CurrentQualityIndex());
    }
    std::shared_ptr<const ILMSampleratePreset> CurrentSamplerate() const {
        return SamplerateAt(CurrentSamplerateIndex());
    }
    std::shared_ptr<const ILMChannelLayoutPreset> CurrentChannelLayout() const {
        return ChannelLayoutAt(CurrentChannelLayoutIndex());
    }
};

} // namespace Lumeran
