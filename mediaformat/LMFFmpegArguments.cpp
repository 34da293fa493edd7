// SPDX-License-Identifier: MIT
#include "LMFFmpegArguments.h"

#include <algorithm>

#include "LMFormatPreset.h"

namespace Lumeran {

namespace {

void Append(std::vector<std::string>& out, const std::vector<std::string>& more) {
    out.insert(out.end(), more.begin(), more.end());
}

void AppendQuality(std::vector<std::string>& out, const ILMCodecQualityPreset& quality,
                   bool audio) {
    const char* flag = nullptr;
    switch (quality.RateControl()) {
    case ILMCodecQualityPreset::Kind::Crf:
        flag = "-crf";
        break;
    case ILMCodecQualityPreset::Kind::Bitrate:
        flag = audio ? "-b:a" : "-b:v";
        break;
    case ILMCodecQualityPreset::Kind::QScale:
        flag = audio ? "-q:a" : "-q:v";
        break;
    case ILMCodecQualityPreset::Kind::Profile:
        flag = audio ? "-profile:a" : "-profile:v";
        break;
    }
    out.insert(out.end(), {flag, quality.Value()});
}

// The stream's encoder and its fixed arguments. False when nothing more is to
// be said of the stream: it is left out (-vn, -an) or FFmpeg picks the codec.
bool AppendEncoder(std::vector<std::string>& out, const ILMCodecPreset* codec, bool audio) {
    if (!codec) {
        out.emplace_back(audio ? "-an" : "-vn");
        return false;
    }
    if (codec->IsAutoValue())
        return false;
    out.insert(out.end(), {audio ? "-c:a" : "-c:v", codec->Encoder()});
    Append(out, codec->EncoderArguments());
    return true;
}

void AppendVideo(std::vector<std::string>& out, const LMFormatPreset& preset) {
    const auto codec = preset.CurrentVideoCodec();
    if (!AppendEncoder(out, codec.get(), false))
        return;
    const auto& codecArgs = preset.Container().codecArgs;
    if (const auto found = codecArgs.find(codec->Id()); found != codecArgs.end())
        Append(out, found->second);
    if (const auto size = codec->CurrentResolution(); size && !size->IsAutoValue())
        out.insert(out.end(),
                   {"-s", std::to_string(size->Width()) + "x" + std::to_string(size->Height())});
    if (const auto rate = codec->CurrentFramerate(); rate && !rate->IsAutoValue())
        out.insert(out.end(), {"-r", rate->Rate()});
    std::string pixelFormat = codec->PixelFormat();
    if (const auto quality = codec->CurrentQuality()) {
        AppendQuality(out, *quality, false);
        if (!quality->PixelFormat().empty())
            pixelFormat = quality->PixelFormat();
    }
    if (!pixelFormat.empty())
        out.insert(out.end(), {"-pix_fmt", pixelFormat});
}

void AppendAudio(std::vector<std::string>& out, const LMFormatPreset& preset) {
    const auto codec = preset.CurrentAudioCodec();
    if (!AppendEncoder(out, codec.get(), true))
        return;
    if (const auto rate = codec->CurrentSamplerate(); rate && !rate->IsAutoValue())
        out.insert(out.end(), {"-ar", std::to_string(rate->Hertz())});
    if (const auto layout = codec->CurrentChannelLayout(); layout && !layout->IsAutoValue())
        out.insert(out.end(), {"-ac", std::to_string(layout->Channels())});
    if (const auto quality = codec->CurrentQuality())
        AppendQuality(out, *quality, true);
}

} // namespace

std::vector<std::string>
LMFFmpegArguments::OutputOptions(const std::shared_ptr<const ILMFormatPreset>& preset) {
    const auto* format = dynamic_cast<const LMFormatPreset*>(preset.get());
    if (!format)
        return {};
    std::vector<std::string> out;
    AppendVideo(out, *format);
    AppendAudio(out, *format);
    Append(out, format->Container().args);
    out.insert(out.end(), {"-f", format->Container().muxer});
    return out;
}

std::vector<std::string>
LMFFmpegArguments::Command(const std::shared_ptr<const ILMFormatPreset>& preset,
                           const std::string& input, const std::string& output) {
    std::vector<std::string> out{"-y", "-i", input};
    Append(out, OutputOptions(preset));
    out.push_back(output);
    return out;
}

std::vector<std::string>
LMFFmpegArguments::RequiredEncoders(const std::shared_ptr<const ILMFormatPreset>& preset) {
    const auto options = OutputOptions(preset);
    std::vector<std::string> encoders;
    for (std::size_t i = 0; i + 1 < options.size(); ++i) {
        if (options[i] == "-c:v" || options[i] == "-c:a")
            encoders.push_back(options[i + 1]);
    }
    return encoders;
}

std::string LMFFmpegArguments::Muxer(const std::shared_ptr<const ILMFormatPreset>& preset) {
    const auto options = OutputOptions(preset);
    // The muxer is the last option pair; "-f" may appear earlier only as a value.
    if (options.size() >= 2 && options[options.size() - 2] == "-f")
        return options.back();
    return {};
}

std::string LMFFmpegArguments::FileExtension(const std::shared_ptr<const ILMFormatPreset>& preset) {
    const auto* format = dynamic_cast<const LMFormatPreset*>(preset.get());
    return format ? format->Container().extension : std::string();
}

std::string LMFFmpegArguments::Join(const std::vector<std::string>& arguments) {
    std::string line;
    for (const std::string& argument : arguments) {
        if (!line.empty())
            line += ' ';
        // Only characters no shell gives a meaning to stand bare; everything else
        // (white space and line breaks, quotes, expansions, globs, '=' that would
        // make a first word an assignment, bytes outside ASCII) is single-quoted.
        const bool plain =
            !argument.empty() && std::all_of(argument.begin(), argument.end(), [](char c) {
                return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                       c == '-' || c == '_' || c == '.' || c == '/' || c == ':' || c == ',' ||
                       c == '+' || c == '@' || c == '%';
            });
        if (plain) {
            line += argument;
            continue;
        }
        line += '\'';
        for (const char c : argument) {
            if (c == '\'')
                line += "'\\''";
            else
                line += c;
        }
        line += '\'';
    }
    return line;
}

} // namespace Lumeran
