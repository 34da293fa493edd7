// SPDX-License-Identifier: MIT
#pragma once

#include "ILMJsonValue.h"
#include "LMFoundationExport.h"

#include <memory>
#include <string>

namespace Lumeran {

// Writes a JSON object or array as compact UTF-8 text; anything else (an empty
// pointer, a bare scalar) gives the empty string.
class LMFOUNDATION_EXPORT ILMJsonWriter {
public:
    static std::string WriteJsonString(std::shared_ptr<const ILMJsonValue> value);
};

} // namespace Lumeran
