// SPDX-License-Identifier: MIT
#include "ILMLogConfig.h"

#include <cstdarg>
#include <cstdio>
#include <vector>

namespace Lumeran {

const QLoggingCategory& ILMLogConfig::Category() {
    // Never destroyed: a thread abandoned at exit may still log a line.
    static const QLoggingCategory* const category = new QLoggingCategory("lumeran");
    return *category;
}

void ILMLogConfig::Printf(const char* format, ...) {
    if (!format)
        return;
    va_list args;
    va_start(args, format);
    va_list copy;
    va_copy(copy, args);
    const int length = std::vsnprintf(nullptr, 0, format, copy);
    va_end(copy);
    if (length < 0) {
        va_end(args);
        return;
    }
    std::vector<char> buffer(static_cast<std::size_t>(length) + 1);
    std::vsnprintf(buffer.data(), buffer.size(), format, args);
    va_end(args);
    qCInfo(Category).noquote() << QString::fromUtf8(buffer.data(), length);
}

} // namespace Lumeran
