// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonValue>

#include <string>
#include <string_view>

namespace Lumeran {

class LMFormatNode;
class LMFormatPreset;

// Writes the JSON form of nodes and presets (see LMFormatJsonReader) as compact
// text straight from the tree: the bytes QJsonDocument would write for the same
// objects (keys in the order Qt keeps them, text escaped as Qt escapes it), with
// no document built on the way.
//
// A node below the one written keeps its text, and the next write reuses it while
// neither the node nor any preset or child under it changed. A recent entry never
// changes once it is pushed, so saving a long recent list mostly joins texts
// written before. Not for one tree written from two threads at once.
class LMFormatJsonWriter {
public:
    static std::string NodeText(const LMFormatNode& node);
    static std::string PresetText(const LMFormatPreset& preset);

    // UTF-8 text as a JSON string, quoted and escaped as QJsonDocument writes it.
    static void AppendString(std::string_view text, std::string& out);
    // Any value as QJsonDocument writes it.
    static void AppendQtValue(const QJsonValue& value, std::string& out);
    // UTF-8 text as a QString, a byte order mark at its start kept (QString's
    // own conversion drops it, and the text would not read back as it was).
    static QString ToQString(std::string_view text);
};

} // namespace Lumeran
