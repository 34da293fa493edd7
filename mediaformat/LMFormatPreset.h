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
    std::string Description() const override {
        return m_description ? *m_description : std::string();
    }
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
        ShareDescription(description.empty() ? nullptr
                                             : std::make_shared<const std::string>(
                                                   LMFormatLimits::Text(description)));
    }
    // Sets a description that other presets may hold too: a catalogue repeats the
    // same few descriptions over thousands of presets, and the reader keeps one copy.
    void ShareDescription(std::shared_ptr<const std::string> description) {
        m_description = std::move(description);
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
    const QJsonObject& ExtraFields() const;
    void SetExtraFields(QJsonObject extra);
    // The same for the object of the current video or audio stream.
    const QJsonObject& StreamExtraFields(bool audio) const;
    void SetStreamExtraFields(bool audio, QJsonObject extra);
    // Changes whenever what the preset writes as JSON may have changed.
    std::uint64_t Revision() const { return m_revision.Value(); }

private:
    struct Choice {
        bool audio = false;
        std::uint8_t codec = 0;
        std::array<std::int8_t, LMOptionListCount> options{};
    };

    // What few presets have, kept apart so that the others do not pay for it:
    // choices for more than two codecs, and fields of other versions.
    struct Rare {
        std::vector<Choice> moreChoices;
        QJsonObject extra;
        std::array<QJsonObject, 2> streamExtra;
    };
    // Rare, copied with the preset.
    class RareBox {
    public:
        RareBox() = default;
        RareBox(const RareBox& other)
            : m_rare(other.m_rare ? std::make_unique<Rare>(*other.m_rare) : nullptr) {}
        RareBox& operator=(const RareBox& other) {
            if (this != &other)
                m_rare = other.m_rare ? std::make_unique<Rare>(*other.m_rare) : nullptr;
            return *this;
        }
        ~RareBox() = default;
        const Rare* Get() const { return m_rare.get(); }
        Rare& Make() {
            if (!m_rare)
                m_rare = std::make_unique<Rare>();
            return *m_rare;
        }

    private:
        std::unique_ptr<Rare> m_rare;
    };

    const Choice* FindChoice(bool audio, int codec) const;

    const LMContainerInfo* m_container;
    std::string m_title;
    std::shared_ptr<const std::string> m_description;
    int m_faceID = 0;
    std::int16_t m_currentVideo = -1;
    std::int16_t m_currentAudio = -1;
    // Choices for the codecs whose options differ from their defaults: a preset
    // rarely has more than its video and audio codec's, which are kept in place;
    // more go to m_rare.
    std::array<Choice, 2> m_choices{};
    std::uint8_t m_choiceCount = 0;
    RareBox m_rare;
    LMFormatRevision m_revision;
};

} // namespace Lumeran
