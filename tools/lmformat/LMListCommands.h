// SPDX-License-Identifier: MIT
#pragma once

struct LMCliCall;

// The verbs of "recent" and "custom": they read and change the lists kept in the
// application settings, and save every change at once.
namespace LMListCommands {

int RecentList(const LMCliCall& call);
int RecentPush(const LMCliCall& call);
int RecentRemove(const LMCliCall& call);
int CustomList(const LMCliCall& call);
int CustomAdd(const LMCliCall& call);
int CustomRemove(const LMCliCall& call);
// The saved copies of the list named by call.group: number, date, entries, and
// whether the value was put aside because it could not be read in full.
int Backups(const LMCliCall& call);
// Puts back copy N as Backups() numbers them, from 1.
int Restore(const LMCliCall& call);

} // namespace LMListCommands
