// SPDX-License-Identifier: MIT
#pragma once

#include "LMCliCommand.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <span>
#include <string>

// lmformat's command table and what is derived from it: the dispatch, the usage
// lines and the command list of --help.
namespace LMCliCommands {

// Every command, in the order the usage lists them.
std::span<const LMCliCommand> All();

// Runs the command the words name (its name, then its operands). A known
// command with wrong operands, or a list without a known verb, fails with its
// usage (exit 1); words that name no command give nothing, for the caller's
// usage.
std::optional<int> Run(const QStringList& words, bool localized);

// "usage: lmformat <name> <operands>" and the command's note.
std::string UsageOf(const LMCliCommand& command);
// "lmformat <name> <operands>" for every command, one per line, each line after
// the first starting with indent.
QString Synopsis(const QString& indent);
// Every command with its summary below it, for --help.
QString Summaries();

} // namespace LMCliCommands
