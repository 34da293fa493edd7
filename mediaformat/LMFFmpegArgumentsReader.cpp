// SPDX-License-Identifier: MIT
#include "LMFFmpegArgumentsReader.h"

#include "LMFFmpegArguments.h"
#include "LMFormatRegistry.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>
#include <optional>
#include <set>

namespace Lumeran {

namespace {

// One option as FFmpeg reads it: a flag and, for most flags, the value after it.
struct Unit {
    std::string flag;
    std::string value;
    bool operator==(const Unit&) const = default;
    std::string Text() const { return value.empty() ? flag : flag + " " + value; }
};

// Spellings FFmpeg takes for the same option, in the form LMFFmpegArguments writes.
std::string Canonical(const std::string& flag) {
    static const std::map<std::string, std::string> aliases{
        {"-vcodec", "-c:v"},
        {"-codec:v", "-c:v"},
        {"-acodec", "-c:a"},
        {"-codec:a", "-c:a"},
        {"-b", "-b:v"},
        {"-ab", "-b:a"},
        {"-qscale:v", "-q:v"},
        {"-qscale:a", "-q:a"},
        {"-aq", "-q:a"},
        {"-s:v", "-s"},
        {"-r:v", "-r"},
        {"-ar:a", "-ar"},
        {"-ac:a", "-ac"},
        {"-pix_fmt:v", "-pix_fmt"},
        {"-profile", "-profile:v"},
        {"-crf:v", "-crf"},
    };
    const auto found = aliases.find(flag);
    return found == aliases.end() ? flag : found->second;
}

bool TakesNoValue(const std::string& flag) {
    static const std::set<std::string> flags{"-vn", "-an", "-sn", "-dn", "-y", "-n"};
    return flags.count(flag) > 0;
}

struct Parsed {
    std::vector<Unit> units;
    // Words that are no option's value: the output file, as a rule.
    std::vector<std::string> bare;
};

Parsed Parse(const std::vector<std::string>& arguments) {
    Parsed parsed;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& word = arguments[i];
        if (word.size() < 2 || word[0] != '-') {
            parsed.bare.push_back(word);
            continue;
        }
        Unit unit{Canonical(word), {}};
        if (!TakesNoValue(unit.flag) && i + 1 < arguments.size())
            unit.value = arguments[++i];
        parsed.units.push_back(std::move(unit));
    }
    return parsed;
}

// The options that shape the output, without those about the run or the input.
std::vector<Unit> OutputUnits(const std::vector<Unit>& units) {
    std::vector<Unit> out;
    std::copy_if(units.begin(), units.end(), std::back_inserter(out), [](const Unit& unit) {
        return unit.flag != "-y" && unit.flag != "-n" && unit.flag != "-i";
    });
    return out;
}

// A value as a number to measure nearness by: "128k" and "2M" in units,
// "30000/1001" as the fraction, "1280x720" as its pixels; nullopt for others.
std::optional<double> NumberOf(const std::string& value) {
    const auto size = value.find('x');
    if (size != std::string::npos) {
        const auto width = NumberOf(value.substr(0, size));
        const auto height = NumberOf(value.substr(size + 1));
        return width && height ? std::optional<double>(*width * *height) : std::nullopt;
    }
    const auto slash = value.find('/');
    if (slash != std::string::npos) {
        const auto top = NumberOf(value.substr(0, slash));
        const auto bottom = NumberOf(value.substr(slash + 1));
        return top && bottom && *bottom != 0 ? std::optional<double>(*top / *bottom) : std::nullopt;
    }
    char* end = nullptr;
    const double number = std::strtod(value.c_str(), &end);
    if (end == value.c_str())
        return std::nullopt;
    const std::string suffix(end);
    if (suffix.empty())
        return number;
    if (suffix == "k" || suffix == "K")
        return number * 1e3;
    if (suffix == "M")
        return number * 1e6;
    return std::nullopt;
}

struct Score {
    int mapped = -1;
    // Asked options the preset gives with another value, and how far those
    // values are apart (relative to the larger; 0 for values that are not
    // numbers): an option given near what was asked beats one left out.
    int near = 0;
    double distance = 0;
    int extra = 0;
    bool operator>(const Score& other) const {
        if (mapped != other.mapped)
            return mapped > other.mapped;
        if (near != other.near)
            return near > other.near;
        if (extra != other.extra)
            return extra < other.extra;
        return distance < other.distance;
    }
};

double Distance(const Unit& asked, const Unit& given) {
    const auto wanted = NumberOf(asked.value);
    const auto value = NumberOf(given.value);
    if (!wanted || !value)
        return 0;
    const double scale = std::max({std::abs(*wanted), std::abs(*value), 1.0});
    return std::abs(*wanted - *value) / scale;
}

Score ScoreOf(const std::shared_ptr<const ILMFormatPreset>& preset,
              const std::vector<Unit>& asked) {
    std::vector<Unit> given = Parse(LMFFmpegArguments::OutputOptions(preset)).units;
    Score score{0, 0, 0, 0};
    std::vector<const Unit*> missed;
    for (const Unit& unit : asked) {
        const auto found = std::find(given.begin(), given.end(), unit);
        if (found != given.end()) {
            ++score.mapped;
            given.erase(found);
        } else {
            missed.push_back(&unit);
        }
    }
    // Each option asked for and not given exactly takes the nearest option of
    // its flag the preset gives, if any.
    for (const Unit* unit : missed) {
        auto nearest = given.end();
        for (auto it = given.begin(); it != given.end(); ++it) {
            if (it->flag == unit->flag &&
                (nearest == given.end() || Distance(*unit, *it) < Distance(*unit, *nearest)))
                nearest = it;
        }
        if (nearest == given.end())
            continue;
        ++score.near;
        score.distance += Distance(*unit, *nearest);
        given.erase(nearest);
    }
    score.extra = static_cast<int>(given.size());
    return score;
}

// The option lists of a codec, each as its count and its setter.
struct OptionList {
    int (ILMCodecPreset::*count)() const;
    void (ILMCodecPreset::*set)(int);
};

constexpr OptionList kLists[] = {
    {&ILMCodecPreset::ResolutionCount, &ILMCodecPreset::SetCurrentResolution},
    {&ILMCodecPreset::FramerateCount, &ILMCodecPreset::SetCurrentFramerate},
    {&ILMCodecPreset::QualityCount, &ILMCodecPreset::SetCurrentQuality},
    {&ILMCodecPreset::SamplerateCount, &ILMCodecPreset::SetCurrentSamplerate},
    {&ILMCodecPreset::ChannelLayoutCount, &ILMCodecPreset::SetCurrentChannelLayout},
};

std::shared_ptr<ILMCodecPreset> CurrentCodec(const ILMFormatPreset& preset, bool audio) {
    return audio ? preset.CurrentAudioCodec() : preset.CurrentVideoCodec();
}

// Picks, list by list, the option of the stream's codec that gives the most of
// what was asked. Each list writes its own arguments, so one pass over the lists
// finds the best of all their combinations.
Score FitOptions(const std::shared_ptr<ILMFormatPreset>& preset, bool audio,
                 const std::vector<Unit>& asked) {
    Score best = ScoreOf(preset, asked);
    const auto codec = CurrentCodec(*preset, audio);
    if (!codec)
        return best;
    for (const OptionList& list : kLists) {
        const int count = ((*codec).*list.count)();
        for (int index = 0; index < count; ++index) {
            const auto trial = preset->Clone();
            ((*CurrentCodec(*trial, audio)).*list.set)(index);
            const Score score = ScoreOf(trial, asked);
            if (score > best) {
                best = score;
                preset->CopyFrom(trial);
            }
        }
    }
    return best;
}

// The codec indices worth trying for one stream: none for -vn/-an, the codecs of
// the encoder asked for when the container has it, else all of them.
std::vector<int> CodecChoices(const ILMFormatPreset& preset, bool audio,
                              const std::vector<Unit>& asked) {
    const std::string off = audio ? "-an" : "-vn";
    const std::string codecFlag = audio ? "-c:a" : "-c:v";
    const int count = audio ? preset.AudioCodecCount() : preset.VideoCodecCount();
    std::vector<int> all;
    std::vector<int> encoder;
    const auto asks = [&](const std::string& flag, const std::string& value) {
        return std::find(asked.begin(), asked.end(), Unit{flag, value}) != asked.end();
    };
    for (int i = 0; i < count; ++i) {
        const auto codec = audio ? preset.AudioCodecAt(i) : preset.VideoCodecAt(i);
        all.push_back(i);
        if (codec && !codec->Encoder().empty() && asks(codecFlag, codec->Encoder()))
            encoder.push_back(i);
    }
    if (asks(off, {}))
        return {-1};
    return encoder.empty() ? all : encoder;
}

// The containers worth trying: those of the muxer asked for, else those of the
// output file's extension, else all.
std::vector<const LMContainerInfo*> ContainerChoices(const Parsed& parsed) {
    const auto& containers = LMFormatRegistry::Instance().Containers();
    std::vector<const LMContainerInfo*> muxer;
    std::vector<const LMContainerInfo*> extension;
    std::vector<const LMContainerInfo*> all;
    std::string outputExtension;
    if (!parsed.bare.empty()) {
        const std::string& output = parsed.bare.back();
        const auto dot = output.find_last_of('.');
        if (dot != std::string::npos)
            outputExtension = output.substr(dot + 1);
    }
    for (const auto& container : containers) {
        all.push_back(container.get());
        if (std::find(parsed.units.begin(), parsed.units.end(), Unit{"-f", container->muxer}) !=
            parsed.units.end())
            muxer.push_back(container.get());
        if (!outputExtension.empty() && container->extension == outputExtension)
            extension.push_back(container.get());
    }
    if (!muxer.empty())
        return muxer;
    return extension.empty() ? all : extension;
}

} // namespace

LMFFmpegArgumentsReader::Result
LMFFmpegArgumentsReader::PresetFromArguments(const std::vector<std::string>& arguments) {
    const Parsed parsed = Parse(arguments);
    const std::vector<Unit> asked = OutputUnits(parsed.units);
    Result result;
    Score best;
    for (const LMContainerInfo* container : ContainerChoices(parsed)) {
        const auto base = ILMFormatPreset::MallocFormatPreset(container->id, "");
        if (!base)
            continue;
        for (const int video : CodecChoices(*base, false, asked)) {
            for (const int audio : CodecChoices(*base, true, asked)) {
                auto preset = base->Clone();
                preset->SetCurrentVideoCodec(video);
                preset->SetCurrentAudioCodec(audio);
                FitOptions(preset, false, asked);
                const Score score = FitOptions(preset, true, asked);
                if (score > best) {
                    best = score;
                    result.preset = std::move(preset);
                }
            }
        }
    }
    if (!result.preset)
        return result;
    std::vector<Unit> given = Parse(LMFFmpegArguments::OutputOptions(result.preset)).units;
    for (const Unit& unit : asked) {
        const auto found = std::find(given.begin(), given.end(), unit);
        if (found == given.end())
            result.notMapped.push_back(unit.Text());
        else
            given.erase(found);
    }
    return result;
}

} // namespace Lumeran
