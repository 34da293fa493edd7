// SPDX-License-Identifier: MIT
#pragma once

#include "LMFoundationExport.h"

#include <string>

namespace Lumeran {

class LMFOUNDATION_EXPORT ILMStringHelper {
public:
    // Lower-cased copy of UTF-8 text, Unicode-aware ("QUALITÉ" -> "qualité");
    // pure ASCII takes a fast path that allocates nothing but the result.
    static std::string ToLower(const std::string& text);
};

} // namespace Lumeran
