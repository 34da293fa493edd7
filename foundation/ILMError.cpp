// SPDX-License-Identifier: MIT
#include "ILMError.h"

namespace Lumeran {

namespace {

class LMError final : public ILMError {
public:
    LMError(int code, std::string message) : m_code(code), m_message(std::move(message)) {}
    int ErrorCode() const override { return m_code; }
    std::string Message() const override { return m_message; }

private:
    int m_code;
    std::string m_message;
};

} // namespace

std::shared_ptr<const ILMError> ILMError::MallocError(int code, const std::string& message) {
    return std::make_shared<LMError>(code, message);
}

void ILMError::Report(std::shared_ptr<const ILMError>* out, int code, const std::string& message) {
    if (out)
        *out = MallocError(code, message);
}

} // namespace Lumeran
