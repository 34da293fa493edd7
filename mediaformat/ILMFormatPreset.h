// SPDX-License-Identifier: MIT
#pragma once

#include "ILMCodecPreset.h"
#include "LMMediaFormatExport.h"

#include <memory>
#include <string>

namespace Lumeran {

// Name of the MP4 container, the format of the built-in default preset.
inline const std::string LMFormatNameMP4 = "MP4";

// One output format preset: a container with its video and audio codec choices.
// The container's codec lists come from the embedded registry; the preset keeps
// which codec is current and the options chosen for each codec.
class LMMEDIAFORMAT_EXPORT ILMFormatPreset {
public:
    virtual ~ILMFormatPreset() = default;

    virtual int FaceID() const = 0;
    virtual void SetFaceID(int faceID) = 0;
    virtual std::string Title() const = 0;
    virtual void SetTitle(const std::string& title) = 0;
    virtual std::string Description() const = 0;
    // A deep copy: changing the copy's codecs leaves this preset alone.
    virtual std::shared_ptr<ILMFormatPreset> Clone() const = 0;
    // Takes over every attribute and codec choice of other (same container or not).
    virtual void CopyFrom(std::shared_ptr<const ILMFormatPreset> other) = 0;
    virtual std::shared_ptr<ILMCodecPreset> AudioCodecAt(int index) const = 0;
    virtual std::shared_ptr<ILMCodecPreset> VideoCodecAt(int index) const = 0;
    virtual int VideoCodecCount() const = 0;
    virtual int AudioCodecCount() const = 0;
    // Negative when the preset has no such stream.
    virtual int CurrentAudioCodecIndex() const = 0;
    virtual int CurrentVideoCodecIndex() const = 0;
    // An index out of range (a negative one included) removes the stream.
    virtual void SetCurrentAudioCodec(int index) = 0;
    virtual void SetCurrentVideoCodec(int index) = 0;
    // All settings equal: title, description, face id, container, current codecs
    // and the options of every codec.
    virtual bool IsEqualTo(std::shared_ptr<const ILMFormatPreset> other) const = 0;

    virtual void SetDescription(const std::string& description) = 0;
    // The container's display name ("MP4") and registry id ("mp4").
    virtual std::string FormatName() const = 0;
    virtual std::string FormatId() const = 0;

    // A preset of the named container (display name or registry id) with the
    // container's default codecs and options; an empty title takes the
    // container's name. Unknown containers give an empty pointer.
    static std::shared_ptr<ILMFormatPreset> MallocFormatPreset(const std::string& formatName,
                                                               const std::string& title);

    std::shared_ptr<ILMCodecPreset> CurrentVideoCodec() const {
        return VideoCodecAt(CurrentVideoCodecIndex());
    }
    std::shared_ptr<ILMCodecPreset> CurrentAudioCodec() const {
        return AudioCodecAt(CurrentAudioCodecIndex());
    }

    // What the preset's settings make, as its description says it: the video
    // codec with its frame size when it sets one, and the audio codec,
    // "HEVC 1280x720 / AAC"; one of them alone when the other stream is off. The
    // container is left out: the preset's format node names it.
    static std::string DescribeSettings(const ILMFormatPreset& preset);
    // Whether two presets encode alike (container, codecs and every option),
    // whatever their titles, descriptions and faces.
    static bool HaveSameSettings(const ILMFormatPreset& a, const ILMFormatPreset& b);
    // Makes codec index the current one of its stream, keeping the frame size
    // and rate (video) or sample rate and channels (audio) the previous codec had
    // wherever the new one offers the same.
    static void ChangeCodecKeepingChoices(ILMFormatPreset& preset, bool audio, int index);
};

} // namespace Lumeran
