#pragma once

#include "LMFoundationExport.h"

#include <string>
#include <string_view>

namespace Lumeran {

// Standard Base64 (RFC 4648 alphabet, with padding). Decoding is strict:
// anything that is not valid Base64 gives the empty string.
class LMFOUNDATION_EXPORT ILMBase64Codec {
public:
    static std::string Encode(std::string_view data);
    static std::string Decode(std::string_view text);
};

} // namespace Lumeran
