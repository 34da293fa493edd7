// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QJsonValue>

#include <memory>

namespace Lumeran {

class ILMFormatNode;
class LMFormatNode;
class LMFormatPreset;
struct LMFormatReadOptions;

// The JSON form of nodes and presets, shared by catalogue files and stored
// lists. A node is {"title", "description", "faceId", "presets", "children"};
// a preset is {"title", "description", "faceId", "format", "video", "audio",
// "other"}, where "video"/"audio" name the current codec and the options that
// differ from its defaults, null means no such stream, and "other" keeps the
// choices made for codecs that are not current. Defaults are left out, so a
// stored preset stays small and reads back exactly.
class LMFormatJson {
public:
    // An empty pointer, and one log line, for anything that is not a valid tree.
    static std::shared_ptr<ILMFormatNode> ReadNode(const QJsonValue& json);
    // The same, read as options ask; see LMFormatReadOptions.
    static std::shared_ptr<ILMFormatNode> ReadNode(const QJsonValue& json,
                                                   const LMFormatReadOptions& options);
    static QJsonObject WriteNode(const LMFormatNode& node);
    static QJsonObject WritePreset(const LMFormatPreset& preset);
};

} // namespace Lumeran
