// SPDX-License-Identifier: MIT
#pragma once

#include <string>

// What lmformat prints: results on stdout, one line each; complaints on stderr,
// prefixed with the program's name.
namespace LMCliOutput {

// Prints the line and a newline on stdout.
void Print(const std::string& line);
// Prints "lmformat: message" on stderr and returns exit code 1, so that a
// command can `return Fail(...)`.
int Fail(const std::string& message);

} // namespace LMCliOutput
