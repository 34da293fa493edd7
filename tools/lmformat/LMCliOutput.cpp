// SPDX-License-Identifier: MIT
#include "LMCliOutput.h"

#include <cstdio>

namespace LMCliOutput {

void Print(const std::string& line) {
    std::printf("%s\n", line.c_str());
}

int Fail(const std::string& message) {
    std::fprintf(stderr, "lmformat: %s\n", message.c_str());
    return 1;
}

} // namespace LMCliOutput
