// SPDX-License-Identifier: MIT
#include "LMFormatPreset.h"

#include "LMCodecPreset.h"

#include <QString>

namespace Lumeran {

LMFormatPreset::LMFormatPreset(const LMContainerInfo* container)
    : m_container(container), m_title(container->name),
      m_currentVideo(container->video.empty() ? -1 : 0),
      m_currentAudio(container->audio.empty() ? -1 : 0) {}

std::shared_ptr<ILMFormatPreset> ILMFormatPreset::MallocFormatPreset(const std::string& formatName,
                                                                     const std::string& title) {
    const LMContainerInfo* container =
        LMFormatRegistry::Instance().FindContainer(QString::fromStdString(formatName));
    if (!container)
        return {};
    auto preset = std::make_shared<LMFormatPreset>(container);
    if (!title.empty())
        preset->SetTitle(title);
    return preset;
}

std::shared_ptr<ILMFormatPreset> LMFormatPreset::Clone() const {
    return std::make_shared<LMFormatPreset>(*this);
}

void LMFormatPreset::CopyFrom(std::shared_ptr<const ILMFormatPreset> other) {
    if (!other || other.get() == this)
        return;
    if (const auto* source = dynamic_cast<const LMFormatPreset*>(other.get())) {
        m_container = source->m_container;
        m_title = source->m_title;
        m_description = source->m_description;
        m_faceID = source->m_faceID;
        m_currentVideo = source->m_currentVideo;
        m_currentAudio = source->m_currentAudio;
        m_choices = source->m_choices;
        m_choiceCount = source->m_choiceCount;
        m_rare = source->m_rare;
        m_revision.Touch();
        return;
    }
    // Another implementation of the interface: take over what it exposes.
    SetTitle(other->Title());
    SetDescription(other->Description());
    SetFaceID(other->FaceID());
    SetCurrentVideoCodec(other->CurrentVideoCodecIndex());
    SetCurrentAudioCodec(other->CurrentAudioCodecIndex());
}

const LMCodecInfo* LMFormatPreset::Codec(bool audio, int index) const {
    const auto& codecs = m_container->Codecs(audio);
    if (index < 0 || index >= static_cast<int>(codecs.size()))
        return nullptr;
    return codecs[static_cast<std::size_t>(index)];
}

std::shared_ptr<ILMCodecPreset> LMFormatPreset::AudioCodecAt(int index) const {
    if (!Codec(true, index))
        return {};
    auto self = std::const_pointer_cast<LMFormatPreset>(shared_from_this());
    return std::make_shared<LMCodecPreset>(std::move(self), true, index);
}

std::shared_ptr<ILMCodecPreset> LMFormatPreset::VideoCodecAt(int index) const {
    if (!Codec(false, index))
        return {};
    auto self = std::const_pointer_cast<LMFormatPreset>(shared_from_this());
    return std::make_shared<LMCodecPreset>(std::move(self), false, index);
}

void LMFormatPreset::SetCurrentAudioCodec(int index) {
    m_currentAudio = static_cast<std::int16_t>(Codec(true, index) ? index : -1);
    m_revision.Touch();
}

void LMFormatPreset::SetCurrentVideoCodec(int index) {
    m_currentVideo = static_cast<std::int16_t>(Codec(false, index) ? index : -1);
    m_revision.Touch();
}

const LMFormatPreset::Choice* LMFormatPreset::FindChoice(bool audio, int codec) const {
    for (std::size_t i = 0; i < m_choiceCount; ++i) {
        if (m_choices[i].audio == audio && m_choices[i].codec == codec)
            return &m_choices[i];
    }
    if (!m_rare.Get())
        return nullptr;
    for (const Choice& choice : m_rare.Get()->moreChoices) {
        if (choice.audio == audio && choice.codec == codec)
            return &choice;
    }
    return nullptr;
}

int LMFormatPreset::Option(bool audio, int codec, LMOptionList list) const {
    const LMCodecInfo* info = Codec(audio, codec);
    if (!info)
        return -1;
    const auto slot = static_cast<std::size_t>(list);
    if (const Choice* choice = FindChoice(audio, codec))
        return choice->options[slot];
    return info->defaults[slot];
}

void LMFormatPreset::SetOption(bool audio, int codec, LMOptionList list, int index) {
    const LMCodecInfo* info = Codec(audio, codec);
    if (!info || index < 0 || index >= info->Count(list))
        return;
    auto* choice = const_cast<Choice*>(FindChoice(audio, codec));
    if (!choice) {
        Choice fresh;
        fresh.audio = audio;
        fresh.codec = static_cast<std::uint8_t>(codec);
        for (std::size_t slot = 0; slot < fresh.options.size(); ++slot)
            fresh.options[slot] = static_cast<std::int8_t>(info->defaults[slot]);
        if (m_choiceCount < m_choices.size()) {
            m_choices[m_choiceCount] = fresh;
            choice = &m_choices[m_choiceCount++];
        } else {
            std::vector<Choice>& more = m_rare.Make().moreChoices;
            more.push_back(fresh);
            choice = &more.back();
        }
    }
    choice->options[static_cast<std::size_t>(list)] = static_cast<std::int8_t>(index);
    m_revision.Touch();
}

const QJsonObject& LMFormatPreset::ExtraFields() const {
    static const QJsonObject none;
    return m_rare.Get() ? m_rare.Get()->extra : none;
}

const QJsonObject& LMFormatPreset::StreamExtraFields(bool audio) const {
    static const QJsonObject none;
    return m_rare.Get() ? m_rare.Get()->streamExtra[audio ? 1 : 0] : none;
}

void LMFormatPreset::SetExtraFields(QJsonObject extra) {
    if (!extra.isEmpty() || m_rare.Get())
        m_rare.Make().extra = std::move(extra);
    m_revision.Touch();
}

void LMFormatPreset::SetStreamExtraFields(bool audio, QJsonObject extra) {
    if (!extra.isEmpty() || m_rare.Get())
        m_rare.Make().streamExtra[audio ? 1 : 0] = std::move(extra);
    m_revision.Touch();
}

namespace {

// Descriptions are shared between presets, and absent when empty.
bool SameText(const std::shared_ptr<const std::string>& a,
              const std::shared_ptr<const std::string>& b) {
    if (a == b)
        return true;
    return a && b && *a == *b;
}

} // namespace

bool LMFormatPreset::IsEqualTo(std::shared_ptr<const ILMFormatPreset> other) const {
    if (!other)
        return false;
    if (other.get() == this)
        return true;
    const auto* that = dynamic_cast<const LMFormatPreset*>(other.get());
    if (!that || m_container != that->m_container || m_title != that->m_title ||
        !SameText(m_description, that->m_description) || m_faceID != that->m_faceID ||
        m_currentVideo != that->m_currentVideo || m_currentAudio != that->m_currentAudio)
        return false;
    for (const bool audio : {false, true}) {
        const int count = static_cast<int>(m_container->Codecs(audio).size());
        for (int codec = 0; codec < count; ++codec) {
            for (int list = 0; list < LMOptionListCount; ++list) {
                const auto which = static_cast<LMOptionList>(list);
                if (Option(audio, codec, which) != that->Option(audio, codec, which))
                    return false;
            }
        }
    }
    return true;
}

} // namespace Lumeran
