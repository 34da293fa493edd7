// SPDX-License-Identifier: MIT
#pragma once

#include "ILMError.h"
#include "ILMJsonValue.h"
#include "LMFoundationExport.h"

#include <cstdint>
#include <memory>
#include <string>

namespace Lumeran {

// Reads JSON text. Anything that is not a JSON object or array (a missing file,
// a folder, a FIFO or device, invalid or truncated text, invalid UTF-8, nesting
// deeper than the parser's limit, a file larger than MaxFileSize) gives an empty
// pointer and, when asked for, an error; never an exception.
class LMFOUNDATION_EXPORT ILMJsonReader {
public:
    static constexpr std::int64_t MaxFileSize = std::int64_t(256) * 1024 * 1024;

    static std::shared_ptr<const ILMJsonValue> ReadJsonFile(const std::string& path,
                                                            std::shared_ptr<const ILMError>* error);
    static std::shared_ptr<const ILMJsonValue>
    ReadJsonString(const std::string& text, std::shared_ptr<const ILMError>* error);
    // As ReadJsonString, and for damaged text (cut short, or with bad bytes in
    // it) the longest part before the damage that still forms whole elements of
    // its lists, closed as the text had opened it. *complete says whether the
    // text was read as it stands.
    static std::shared_ptr<const ILMJsonValue> ReadJsonStringSalvaging(const std::string& text,
                                                                       bool* complete);
};

} // namespace Lumeran
