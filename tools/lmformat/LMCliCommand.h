// SPDX-License-Identifier: MIT
#pragma once

#include "LMCliTarget.h"

struct LMCliCall;

// One line of lmformat's command table.
struct LMCliCommand {
    // "tree", or a verb after the lists it works on: "recent push",
    // "recent|custom backups".
    const char* name;
    // One word per operand, as the usage shows them; words in brackets may be
    // left out ("[CATALOGUE [PRESET]]").
    const char* operands;
    // What the command does, for --help.
    const char* summary;
    LMCliNeeds needs;
    int (*run)(const LMCliCall& call);
    // Said after the usage line when the operands are wrong.
    const char* usageNote = "";
    // Takes "--ffmpeg PATH" anywhere among its operands (LMCliCall::ffmpeg).
    bool takesFFmpeg = false;
};
