// SPDX-License-Identifier: MIT
#pragma once

struct LMCliCall;

// The commands that ask an FFmpeg: which presets it can run, and whether each
// makes what it says.
namespace LMFFmpegCommands {

// After validate's count, with --ffmpeg: every preset that FFmpeg cannot run,
// with what it lacks and what to pick instead. 1 when the FFmpeg cannot be asked.
int ListUnavailable(const LMCliCall& call);
// Encodes a generated clip with every preset of the catalogue (or the one
// named), probes the file and prints OK or what differs; 1 if any fails.
int Verify(const LMCliCall& call);

// The expected output size of a preset for a duration (seconds, M:SS or
// H:MM:SS): one figure for bitrate and PCM settings, a range for quality-based
// ones.
int Estimate(const LMCliCall& call);

} // namespace LMFFmpegCommands
