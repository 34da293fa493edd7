// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>

#include <string>

namespace Lumeran {

class LMFormatNode;
class LMFormatPreset;

// The JSON form of nodes and presets built through QJsonObject and written by
// QJsonDocument: the writer the format model used before it wrote text straight
// from the tree. Tests hold the text writer to it byte for byte.
class LMQtFormatJsonWriter {
public:
    static QJsonObject WriteNode(const LMFormatNode& node);
    static QJsonObject WritePreset(const LMFormatPreset& preset);
    static std::string NodeText(const LMFormatNode& node);
};

} // namespace Lumeran
