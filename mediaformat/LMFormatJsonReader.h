// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string_view>

namespace Lumeran {

class ILMFormatNode;
class ILMJsonValue;
struct LMFormatReadOptions;

// The JSON form of nodes and presets, shared by catalogue files and stored
// lists. A node is {"title", "description", "faceId", "presets", "children"};
// a preset is {"title", "description", "faceId", "format", "video", "audio",
// "other"}, where "video"/"audio" name the current codec and the options that
// differ from its defaults, null means no such stream, and "other" keeps the
// choices made for codecs that are not current. Defaults are left out, so a
// stored preset stays small and reads back exactly (LMFormatJsonWriter writes it).
//
// The text is read once with simdjson's On-Demand parser, straight into nodes
// and presets: no document is built on the way.
class LMFormatJsonReader {
public:
    // An empty pointer, and one log line, for anything that is not a valid tree.
    static std::shared_ptr<ILMFormatNode> ReadNode(const ILMJsonValue& json,
                                                   const LMFormatReadOptions& options);
};

} // namespace Lumeran
