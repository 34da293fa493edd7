// SPDX-License-Identifier: MIT
#pragma once

#include "LMFoundationExport.h"

#include <string>
#include <string_view>
#include <vector>

namespace Lumeran {

// Standard Base64 (RFC 4648 alphabet, with padding). Decoding ignores white
// space and line breaks (text wrapped as MIME and the base64 tool wrap it) and is
// otherwise strict: anything that is not valid Base64 gives the empty string.
class LMFOUNDATION_EXPORT ILMBase64Codec {
public:
    static std::string Encode(std::string_view data);
    static std::string Decode(std::string_view text);
    // For text that Decode refuses: what its damaged form may still hold, best
    // guesses first. One reading drops every character outside the alphabet, one
    // decodes the valid part before the first damage. Empty when neither gives
    // anything.
    static std::vector<std::string> SalvageDecodings(std::string_view text);
};

} // namespace Lumeran
