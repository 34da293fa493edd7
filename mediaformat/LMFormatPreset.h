// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFormatPreset.h"
#include "LMFormatLimits.h"
#include "LMFormatRegistry.h"
#include "LMFormatRevision.h"

#include <QJsonObject>

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Lumeran {

// A format preset kept small: the container is a pointer into the registry and
// only the options that differ from a codec's defaults are stored, so a large
// catalogue costs little more in memory than its file. Codec presets handed out
// are views that read and write this state.
class LMFormatPreset final : public ILMFormatPreset,
                             public std::enable_shared_from_this<LMFormatPreset> {
public:
    explicit LMFormatPreset(const LMContainerInfo* container);

    int FaceID() const override { return m_faceID; }
    void SetFaceID(int faceID) override {
        m_faceID = LMFormatLimits::FaceID(faceID);
        m_revision.Touch();
    }
    std::string Title() const override { return m_title; }
    void SetTitle(const std::string& title) override {
        m_title = LMFormatLimits::Text(title);
        m_revision.Touch();
    }
    std::string Description() const override { return m_description; }
    std::shared_ptr<ILMFormatPreset> Clone() const override;
    void CopyFrom(std::shared_ptr<const ILMFormatPreset> other) override;
    std::shared_ptr<ILMCodecPreset> AudioCodecAt(int index) const override;
    std::shared_ptr<ILMCodecPreset> VideoCodecAt(int index) const override;
    int VideoCodecCount() const override { return static_cast<int>(m_container->video.size()); }
    int AudioCodecCount() const override { return static_cast<int>(m_container->audio.size()); }
    int CurrentAudioCodecIndex() const override { return m_currentAudio; }
    int CurrentVideoCodecIndex() const override { return m_currentVideo; }
    void SetCurrentAudioCodec(int index) override;
    void SetCurrentVideoCodec(int index) override;
    bool IsEqualTo(std::shared_ptr<const ILMFormatPreset> other) const override;
    void SetDescription(const std::string& description) override {
        m_description = LMFormatLimits::Text(description);
        m_revision.Touch();
    }
    std::string FormatName() const override { return m_container->name; }
    std::string FormatId() const override { return m_container->id; }

    const LMContainerInfo& Container() const { return *m_container; }
    const LMCodecInfo* Codec(bool audio, int index) const;
    // The effective option index of a codec's list: the stored choice or the default.
    int Option(bool audio, int codec, LMOptionList list) const;
    // Stores a choice; an index outside the list is ignored.
    void SetOption(bool audio, int codec, LMOptionList list, int index);
    // Fields of the preset's JSON this version does not know, written back as read.
    const QJsonObject& ExtraFields() const { return m_extra; }
    void SetExtraFields(QJsonObject extra) {
        m_extra = std::move(extra);
        m_revision.Touch();
    }
    // The same for the object of the current video or audio stream.
    const QJsonObject& StreamExtraFields(bool audio) const { return m_streamExtra[audio ? 1 : 0]; }
    void SetStreamExtraFields(bool audio, QJsonObject extra) {
        m_streamExtra[audio ? 1 : 0] = std::move(extra);
        m_revision.Touch();
    }
    // Changes whenever what the preset writes as JSON may have changed.
    std::uint64_t Revision() const { return m_revision.Value(); }

private:
    struct Choice {
        bool audio = false;
        std::uint8_t codec = 0;
        std::array<std::int8_t, LMOptionListCount> options{};
    };

    const Choice* FindChoice(bool audio, int codec) const;

    const LMContainerInfo* m_container;
    std::string m_title;
    std::string m_description;
    int m_faceID = 0;
    std::int16_t m_currentVideo = -1;
    std::int16_t m_currentAudio = -1;
    std::vector<Choice> m_choices;
    QJsonObject m_extra;
    std::array<QJsonObject, 2> m_streamExtra;
    LMFormatRevision m_revision;
};

} // namespace Lumeran
