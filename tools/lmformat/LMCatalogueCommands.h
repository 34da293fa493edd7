// SPDX-License-Identifier: MIT
#pragma once

struct LMCliCall;

// The commands that read a catalogue: validate, tree, ffmpeg and search.
namespace LMCatalogueCommands {

// "N categories, N formats, N presets".
int Validate(const LMCliCall& call);
// Every node and preset, indented by depth.
int Tree(const LMCliCall& call);
// The output options of a preset for the ffmpeg command line.
int FFmpeg(const LMCliCall& call);
// The tree of the nodes and presets that match a text, as the popup finds them.
int Search(const LMCliCall& call);

} // namespace LMCatalogueCommands
