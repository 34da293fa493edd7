// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Lumeran {

// Whether text is one valid JSON object or array and nothing else, read with
// simdjson's On-Demand parser: every value is visited once and nothing is built.
// The text must have ILMJsonValue::TextPadding readable bytes after its end.
class LMJsonTextCheck {
public:
    struct Failure {
        std::string why;
        // Where the reader stopped: the damage is at or before it.
        std::size_t offset = 0;
    };
    static bool Check(std::string_view paddedText, Failure* failure);
};

} // namespace Lumeran
