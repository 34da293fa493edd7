// SPDX-License-Identifier: MIT
#include "ILMFormatPreset.h"

#include "ILMChannelLayoutPreset.h"
#include "ILMCodecPreset.h"
#include "ILMFrameratePreset.h"
#include "ILMResolutionPreset.h"
#include "ILMSampleratePreset.h"

namespace Lumeran {

namespace {

// The index of the entry with id among count entries, or -1.
template <typename At>
int IndexOfId(int count, const std::string& id, const At& at) {
    for (int i = 0; i < count; ++i) {
        const auto item = at(i);
        if (item && item->Id() == id)
            return i;
    }
    return -1;
}

// The id of a codec's current entry of one option list, or empty.
template <typename Item>
std::string CurrentId(const std::shared_ptr<const Item>& item) {
    return item ? item->Id() : std::string();
}

} // namespace

std::string ILMFormatPreset::DescribeSettings(const ILMFormatPreset& preset) {
    std::string video;
    if (const auto codec = preset.CurrentVideoCodec()) {
        video = codec->Name();
        const auto size = codec->ResolutionAt(codec->CurrentResolutionIndex());
        if (size && !size->IsAutoValue() && size->Width() > 0 && size->Height() > 0)
            video += " " + std::to_string(size->Width()) + "x" + std::to_string(size->Height());
    }
    const auto audioCodec = preset.CurrentAudioCodec();
    const std::string audio = audioCodec ? audioCodec->Name() : std::string();
    if (video.empty() || audio.empty())
        return video + audio;
    return video + " / " + audio;
}

bool ILMFormatPreset::HaveSameSettings(const ILMFormatPreset& a, const ILMFormatPreset& b) {
    const auto copy = b.Clone();
    if (!copy)
        return false;
    copy->SetTitle(a.Title());
    copy->SetDescription(a.Description());
    copy->SetFaceID(a.FaceID());
    return a.IsEqualTo(copy);
}

void ILMFormatPreset::ChangeCodecKeepingChoices(ILMFormatPreset& preset, bool audio, int index) {
    const auto before = audio ? preset.CurrentAudioCodec() : preset.CurrentVideoCodec();
    audio ? preset.SetCurrentAudioCodec(index) : preset.SetCurrentVideoCodec(index);
    const auto after = audio ? preset.CurrentAudioCodec() : preset.CurrentVideoCodec();
    if (!before || !after || before->Id() == after->Id())
        return;
    // Each choice the new codec offers too is carried over.
    const auto carry = [](const std::string& id, int count, const auto& at, const auto& set) {
        if (const int found = IndexOfId(count, id, at); found >= 0 && !id.empty())
            set(found);
    };
    ILMCodecPreset& to = *after;
    if (audio) {
        carry(
            CurrentId(before->SamplerateAt(before->CurrentSamplerateIndex())), to.SamplerateCount(),
            [&](int i) { return to.SamplerateAt(i); }, [&](int i) { to.SetCurrentSamplerate(i); });
        carry(
            CurrentId(before->ChannelLayoutAt(before->CurrentChannelLayoutIndex())),
            to.ChannelLayoutCount(), [&](int i) { return to.ChannelLayoutAt(i); },
            [&](int i) { to.SetCurrentChannelLayout(i); });
    } else {
        carry(
            CurrentId(before->ResolutionAt(before->CurrentResolutionIndex())), to.ResolutionCount(),
            [&](int i) { return to.ResolutionAt(i); }, [&](int i) { to.SetCurrentResolution(i); });
        carry(
            CurrentId(before->FramerateAt(before->CurrentFramerateIndex())), to.FramerateCount(),
            [&](int i) { return to.FramerateAt(i); }, [&](int i) { to.SetCurrentFramerate(i); });
    }
}

} // namespace Lumeran
