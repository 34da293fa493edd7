// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFormatNode.h"

#include <QString>

#include <algorithm>
#include <string>

namespace Lumeran {

// The limits the reader applies, applied where values are set, so that nothing
// is ever written that would not read back.
struct LMFormatLimits {
    static std::string Text(const std::string& text) {
        if (text.size() <= static_cast<std::size_t>(ILMFormatNode::MaxTextLength))
            return text; // fewer bytes than the limit is fewer characters too
        QString value = QString::fromStdString(text);
        if (value.size() <= ILMFormatNode::MaxTextLength)
            return text;
        qsizetype length = ILMFormatNode::MaxTextLength;
        if (value.at(length - 1).isHighSurrogate())
            --length; // never half a character
        value.truncate(length);
        return value.toStdString();
    }

    static int FaceID(int faceID) { return std::clamp(faceID, 0, ILMFormatNode::MaxFaceID); }
};

} // namespace Lumeran
