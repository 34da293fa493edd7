// SPDX-License-Identifier: MIT
#include "LMSizeEstimate.h"

#include "LMSizeCalibration.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace Lumeran {

namespace {

// The reference clips span smooth synthetic motion to heavy grain; real
// footage strays past both ends, so the measured range is widened by this
// much on each side before it is shown.
constexpr double kLowMargin = 0.8;
constexpr double kHighMargin = 1.25;

struct Bits {
    double low = 0;
    double high = 0;
    bool known = true;
    bool assumed = false;

    void AddExact(double bits) {
        low += bits;
        high += bits;
    }
};

// "1150k", "220M" or "96000": bits per second; 0 when unreadable.
double BitsPerSecond(const std::string& value) {
    char* end = nullptr;
    const double number = std::strtod(value.c_str(), &end);
    if (end == value.c_str() || number <= 0)
        return 0;
    switch (*end) {
    case 'k':
    case 'K':
        return number * 1e3;
    case 'M':
        return number * 1e6;
    case 'G':
        return number * 1e9;
    default:
        return number;
    }
}

// Bits of one PCM sample of one channel, from the encoder's name
// ("pcm_s24le"); 0 for anything else.
int PcmBits(const std::string& encoder) {
    if (encoder.rfind("pcm_", 0) != 0)
        return 0;
    if (encoder == "pcm_mulaw" || encoder == "pcm_alaw")
        return 8;
    if (encoder.size() > 5)
        return std::atoi(encoder.c_str() + 5);
    return 0;
}

const char* KindName(ILMCodecQualityPreset::Kind kind) {
    switch (kind) {
    case ILMCodecQualityPreset::Kind::Crf:
        return "crf";
    case ILMCodecQualityPreset::Kind::QScale:
        return "qscale";
    case ILMCodecQualityPreset::Kind::Profile:
        return "profile";
    case ILMCodecQualityPreset::Kind::Bitrate:
        return "bitrate";
    }
    return "";
}

void AddCalibrated(Bits& bits, const std::optional<LMSizeCalibration::Row>& row, double units) {
    if (!row) {
        bits.known = false;
        return;
    }
    bits.low += row->low * units * kLowMargin;
    bits.high += row->high * units * kHighMargin;
}

int FrameWidth(const ILMCodecPreset& codec, const LMSizeEstimate::Source& source, Bits& bits,
               int* height) {
    if (const auto size = codec.CurrentResolution(); size && !size->IsAutoValue()) {
        *height = size->Height();
        return size->Width();
    }
    if (source.width > 0 && source.height > 0) {
        *height = source.height;
        return source.width;
    }
    bits.assumed = true;
    *height = LMSizeEstimate::kAssumedHeight;
    return LMSizeEstimate::kAssumedWidth;
}

double FramesPerSecond(const ILMCodecPreset& codec, const LMSizeEstimate::Source& source,
                       Bits& bits) {
    if (const auto rate = codec.CurrentFramerate(); rate && !rate->IsAutoValue())
        return rate->FramesPerSecond();
    if (source.framesPerSecond > 0)
        return source.framesPerSecond;
    bits.assumed = true;
    return LMSizeEstimate::kAssumedFramesPerSecond;
}

// A target bitrate: the rate over the duration, plus what the encoder spends
// at the start; or, for an intra codec whose setting picks a fixed frame size,
// that size for every frame.
void AddVideoBitrate(Bits& bits, const ILMCodecPreset& codec, const std::string& value,
                     double seconds, const LMSizeEstimate::Source& source) {
    using Stream = LMSizeCalibration::Stream;
    int height = 0;
    const int width = FrameWidth(codec, source, bits, &height);
    const std::string size = std::to_string(width) + "x" + std::to_string(height);
    if (const auto frame =
            LMSizeCalibration::Find(Stream::Video, codec.Encoder(), "frame", value, size)) {
        bits.AddExact(frame->low * 8 * FramesPerSecond(codec, source, bits) * seconds);
        return;
    }
    const double rate = BitsPerSecond(value);
    if (rate <= 0)
        bits.known = false;
    bits.AddExact(rate * seconds);
    if (const auto startup =
            LMSizeCalibration::Find(Stream::Video, codec.Encoder(), "startup", value, ""))
        bits.AddExact(startup->low * 8);
}

void AddVideo(Bits& bits, const ILMCodecPreset& codec, double seconds,
              const LMSizeEstimate::Source& source) {
    const auto quality = codec.CurrentQuality();
    if (codec.IsAutoValue() || !quality) {
        bits.known = false;
        return;
    }
    if (quality->RateControl() == ILMCodecQualityPreset::Kind::Bitrate) {
        AddVideoBitrate(bits, codec, quality->Value(), seconds, source);
        return;
    }
    int height = 0;
    const int width = FrameWidth(codec, source, bits, &height);
    const double fps = FramesPerSecond(codec, source, bits);
    AddCalibrated(bits,
                  LMSizeCalibration::Find(LMSizeCalibration::Stream::Video, codec.Encoder(),
                                          KindName(quality->RateControl()), quality->Value(),
                                          quality->PixelFormat()),
                  static_cast<double>(width) * height * fps * seconds);
}

void AddAudio(Bits& bits, const ILMCodecPreset& codec, double seconds,
              const LMSizeEstimate::Source& source) {
    if (codec.IsAutoValue()) {
        bits.known = false;
        return;
    }
    const auto quality = codec.CurrentQuality();
    if (quality && quality->RateControl() == ILMCodecQualityPreset::Kind::Bitrate) {
        const double rate = BitsPerSecond(quality->Value());
        if (rate <= 0)
            bits.known = false;
        bits.AddExact(rate * seconds);
        return;
    }
    int hertz = 0;
    if (const auto rate = codec.CurrentSamplerate(); rate && !rate->IsAutoValue())
        hertz = rate->Hertz();
    else if (source.hertz > 0)
        hertz = source.hertz;
    else {
        hertz = LMSizeEstimate::kAssumedHertz;
        bits.assumed = true;
    }
    int channels = 0;
    if (const auto layout = codec.CurrentChannelLayout(); layout && !layout->IsAutoValue())
        channels = layout->Channels();
    else if (source.channels > 0)
        channels = source.channels;
    else {
        channels = LMSizeEstimate::kAssumedChannels;
        bits.assumed = true;
    }
    const double samples = static_cast<double>(hertz) * channels * seconds;
    if (const int pcm = PcmBits(codec.Encoder()); pcm > 0 && !quality) {
        bits.AddExact(pcm * samples);
        return;
    }
    AddCalibrated(bits,
                  quality
                      ? LMSizeCalibration::Find(LMSizeCalibration::Stream::Audio, codec.Encoder(),
                                                KindName(quality->RateControl()), quality->Value(),
                                                quality->PixelFormat())
                      : LMSizeCalibration::Find(LMSizeCalibration::Stream::Audio, codec.Encoder(),
                                                "lossless", "", ""),
                  samples);
}

} // namespace

LMSizeEstimate LMSizeEstimate::For(const std::shared_ptr<const ILMFormatPreset>& preset,
                                   double seconds, const Source& source) {
    LMSizeEstimate estimate;
    if (!preset || !(seconds >= 0))
        return estimate;
    Bits bits;
    if (const auto video = preset->CurrentVideoCodec())
        AddVideo(bits, *video, seconds, source);
    if (const auto audio = preset->CurrentAudioCodec())
        AddAudio(bits, *audio, seconds, source);
    if (!bits.known || (!preset->CurrentVideoCodec() && !preset->CurrentAudioCodec()))
        return estimate;
    estimate.m_known = true;
    estimate.m_assumed = bits.assumed;
    estimate.m_low = std::llround(bits.low / 8);
    estimate.m_high = std::llround(bits.high / 8);
    return estimate;
}

LMSizeEstimate LMSizeEstimate::For(const std::shared_ptr<const ILMFormatPreset>& preset,
                                   double seconds) {
    return For(preset, seconds, Source{});
}

LMSizeEstimate::Scaled LMSizeEstimate::Scale(double bytes) {
    Scaled scaled{bytes, 0, 0};
    while (scaled.value >= 1000 && scaled.unit < 4) {
        scaled.value /= 1000;
        ++scaled.unit;
    }
    scaled.decimals = scaled.value < 10 && scaled.unit > 0 ? 1 : 0;
    return scaled;
}

namespace {

// A figure in English units with a decimal point, as lmformat prints it.
std::string English(const LMSizeEstimate::Scaled& scaled, bool withUnit) {
    static const char* const units[] = {"B", "kB", "MB", "GB", "TB"};
    char text[32];
    if (withUnit)
        std::snprintf(text, sizeof text, "%.*f %s", scaled.decimals, scaled.value,
                      units[scaled.unit]);
    else
        std::snprintf(text, sizeof text, "%.*f", scaled.decimals, scaled.value);
    return text;
}

} // namespace

std::string LMSizeEstimate::FormatBytes(double bytes) {
    return English(Scale(bytes), true);
}

std::string LMSizeEstimate::Size() const {
    return Size(English);
}

std::string
LMSizeEstimate::Size(const std::function<std::string(const Scaled&, bool withUnit)>& write) const {
    if (!m_known)
        return {};
    const Scaled high = Scale(static_cast<double>(m_high));
    if (IsExact())
        return write(high, true);
    const Scaled low = Scale(static_cast<double>(m_low));
    return write(low, low.unit != high.unit) + "\u2013" + write(high, true);
}

std::string LMSizeEstimate::Describe() const {
    if (!m_known)
        return "unknown";
    return IsExact() ? Size() : "\u2248 " + Size();
}

} // namespace Lumeran
