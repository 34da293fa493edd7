// SPDX-License-Identifier: MIT
#pragma once

#include "LMFoundationExport.h"

#include <memory>
#include <string>

namespace Lumeran {

// An error reported through an optional out-parameter: a numeric code and a
// human-readable message. Operations never throw; they return an empty result
// and, when the caller asked for it, fill in one of these.
class LMFOUNDATION_EXPORT ILMError {
public:
    enum Code { NoError = 0, FileError = 1, ParseError = 2, FormatError = 3, LimitError = 4 };

    virtual ~ILMError() = default;
    virtual int ErrorCode() const = 0;
    virtual std::string Message() const = 0;

    static std::shared_ptr<const ILMError> MallocError(int code, const std::string& message);

    // Fills *out when the caller passed a place for an error; a null pointer means
    // the caller did not ask.
    static void Report(std::shared_ptr<const ILMError>* out, int code, const std::string& message);
};

} // namespace Lumeran
