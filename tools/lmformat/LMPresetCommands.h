// SPDX-License-Identifier: MIT
#pragma once

struct LMCliCall;

// The verbs of "custom" that let users own their presets: preset files, names,
// copies and order, a preset from an FFmpeg command line, and a custom preset's
// FFmpeg options. Every change is saved at once.
namespace LMPresetCommands {

int Export(const LMCliCall& call);
int Import(const LMCliCall& call);
int Rename(const LMCliCall& call);
int Duplicate(const LMCliCall& call);
int Move(const LMCliCall& call);
int FromArguments(const LMCliCall& call);
int FFmpeg(const LMCliCall& call);

} // namespace LMPresetCommands
