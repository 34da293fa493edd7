// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Lumeran::Fuzz {

// A broken promise of the code under test: says which on stderr and aborts, so
// that libFuzzer keeps the input as a crash file.
[[noreturn]] void Fail(const char* what);

// Drops the framework's own log lines. Every rejected input writes one, and the
// run would otherwise spend its time on terminal output. Qt's own messages still
// go through.
void QuietLog();

// A folder for this process's files, removed when it ends normally. Created on
// first use.
std::string ScratchDir();

} // namespace Lumeran::Fuzz
