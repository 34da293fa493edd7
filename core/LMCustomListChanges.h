// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFmtPresetDataSource.h"

#include <memory>
#include <string>
#include <vector>

namespace Lumeran {

// The changes a user makes to the custom tree as a whole (through files) or to
// one of its presets (name, copy, place), worked on the tree the data source
// holds. Kept apart from the data source, which only hands its tree over.
class LMCustomListChanges {
public:
    using Clash = ILMFmtPresetDataSource::ImportClash;
    using Direction = ILMFmtPresetDataSource::MoveDirection;

    static LMPresetFileResult Export(const std::shared_ptr<const ILMFormatNode>& root,
                                     const std::string& path,
                                     const std::vector<LMCustomPresetRef>& presets);
    static LMPresetFileResult Import(const std::shared_ptr<ILMFormatNode>& root,
                                     const std::string& path, Clash clash);
    static bool Rename(const std::shared_ptr<ILMFormatNode>& root, const LMCustomPresetRef& preset,
                       const std::string& newTitle, std::string* error);
    static std::string Duplicate(const std::shared_ptr<ILMFormatNode>& root,
                                 const LMCustomPresetRef& preset);
    static bool Move(const std::shared_ptr<ILMFormatNode>& root, const LMCustomPresetRef& preset,
                     Direction direction);
    // Makes a preset from FFmpeg arguments and files it under the node of
    // catalogue (which may be empty) that holds presets of its container.
    static LMPresetArgumentsResult
    FromArguments(const std::shared_ptr<ILMFormatNode>& root,
                  const std::shared_ptr<const ILMFormatNode>& catalogue, const std::string& name,
                  const std::vector<std::string>& arguments);
    // Files a copy of preset under the group of group's title, making the group
    // from a copy of group's attributes when there is none.
    static void File(const std::shared_ptr<ILMFormatNode>& root,
                     const std::shared_ptr<const ILMFormatNode>& group,
                     const std::shared_ptr<const ILMFormatPreset>& preset);
};

} // namespace Lumeran
