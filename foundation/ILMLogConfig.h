// SPDX-License-Identifier: MIT
#pragma once

#include "LMFoundationExport.h"

#include <QLoggingCategory>

namespace Lumeran {

class LMFOUNDATION_EXPORT ILMLogConfig {
public:
    // Writes one printf-style line through the "lumeran" logging category.
    static void Printf(const char* format, ...) Q_ATTRIBUTE_FORMAT_PRINTF(1, 2);

    // The category the lines go through, for hosts that filter or capture them.
    static const QLoggingCategory& Category();
};

} // namespace Lumeran
