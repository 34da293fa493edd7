// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"
#include "LMMediaFormatExport.h"

#include <memory>
#include <string>

namespace Lumeran {

// Whether an FFmpeg can run a preset, and if not, what it lacks and which preset
// of the catalogue it can run instead.
struct LMMEDIAFORMAT_EXPORT LMPresetAvailability {
    enum class Status {
        // The FFmpeg's abilities are not known (still loading, missing or broken
        // binary): nothing is claimed either way.
        Unknown,
        Available,
        Missing,
    };
    Status status = Status::Unknown;
    // "encoder" or "muxer", and FFmpeg's name of it ("libx265").
    std::string missingKind;
    std::string missingName;
    // An available preset of the catalogue to pick instead, with the format node
    // that holds it; empty when none was found or none was asked for.
    std::shared_ptr<const ILMFormatNode> alternativeNode;
    std::shared_ptr<const ILMFormatPreset> alternative;

    bool IsMissing() const { return status == Status::Missing; }
    // "MP4 High Quality": the node's title and the preset's, as the popup lists them.
    std::string AlternativeTitle() const;
    // "This FFmpeg has no libx265 encoder — try MP4 High Quality" (English; the
    // popup shows its own localized form); empty unless something is missing.
    std::string Reason() const;
};

} // namespace Lumeran
