// SPDX-License-Identifier: MIT
#pragma once

#include "LMCoreExport.h"

namespace Lumeran {

// Not part of the framework's interface: lets a test program that runs many
// cases in one process start each case as a new process would.
class LMCORE_EXPORT LMSingletons {
public:
    // Drops every LMSingleton's instance, the newest first (a window goes before
    // the data source it shows); the next use makes a new one.
    static void ResetForTesting();
};

} // namespace Lumeran
