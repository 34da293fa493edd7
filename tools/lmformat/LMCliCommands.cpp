// SPDX-License-Identifier: MIT
#include "LMCliCommands.h"

#include "LMCatalogueCommands.h"
#include "LMCliCall.h"
#include "LMCliOutput.h"
#include "LMFFmpegCommands.h"
#include "LMListCommands.h"
#include "LMPresetCommands.h"

#include <algorithm>
#include <array>

namespace {

using LMCliNeeds::Catalogue;
using LMCliNeeds::CatalogueOrDefault;
using LMCliNeeds::Nothing;
using LMCliNeeds::Preset;
namespace Lists = LMListCommands;
namespace Catalogues = LMCatalogueCommands;
namespace Presets = LMPresetCommands;

const std::array<LMCliCommand, 21> kCommands{{
    {"validate", "[FILE]",
     "Count the categories, formats and presets of a catalogue (the default one without FILE); "
     "with --ffmpeg, list the presets that FFmpeg cannot run and why.",
     CatalogueOrDefault, Catalogues::Validate, "", true},
    {"tree", "FILE", "Print every node and preset of a catalogue.", Catalogue, Catalogues::Tree},
    {"ffmpeg", "FILE \"CATEGORY/FORMAT/PRESET\"", "Print a preset's ffmpeg output options.", Preset,
     Catalogues::FFmpeg},
    {"verify", "[CATALOGUE [PRESET]]",
     "Encode a generated clip with every preset (of the default catalogue without one), probe "
     "it with ffprobe and print OK or what differs.",
     CatalogueOrDefault, LMFFmpegCommands::Verify, "", true},
    {"estimate", "CATALOGUE \"CATEGORY/FORMAT/PRESET\" DURATION",
     "Print the expected output size of a preset for a duration (seconds, M:SS or H:MM:SS).",
     Preset, LMFFmpegCommands::Estimate},
    {"search", "CATALOGUE TEXT", "Print what the popup's search finds for a text.", Catalogue,
     Catalogues::Search},
    {"recent list", "", "Print the recent list, newest first.", Nothing, Lists::RecentList},
    {"recent push", "CATALOGUE \"CATEGORY/FORMAT/PRESET\"",
     "Put a preset at the head of the recent list.", Preset, Lists::RecentPush},
    {"recent remove", "TITLE", "Remove a recent entry.", Nothing, Lists::RecentRemove},
    {"custom list", "", "Print the custom presets as NODE/PRESET.", Nothing, Lists::CustomList},
    {"custom add", "CATALOGUE \"CATEGORY/FORMAT/PRESET\" NAME",
     "Keep a copy of a preset as a custom preset named NAME.", Preset, Lists::CustomAdd},
    {"custom remove", "NODE PRESET", "Remove a custom preset.", Nothing, Lists::CustomRemove},
    {"custom export", "FILE [NODE/PRESET...]",
     "Write the custom presets, or the ones named, to a preset file.", Nothing, Presets::Export},
    {"custom import", "FILE [--on-clash rename|skip|replace]",
     "Add a preset file's presets; a taken name is numbered, left out or replaced.", Nothing,
     Presets::Import},
    {"custom rename", "NODE OLD NEW", "Give a custom preset a name no other preset of NODE has.",
     Nothing, Presets::Rename},
    {"custom duplicate", "NODE PRESET", "File a numbered copy of a custom preset after it.",
     Nothing, Presets::Duplicate},
    {"custom move", "NODE PRESET up|down", "Move a custom preset one place within NODE.", Nothing,
     Presets::Move},
    {"custom from-args", "NAME -- FFMPEG-OPTION...",
     "Keep the preset nearest to ffmpeg options as NAME; print the options that did not map.",
     Nothing, Presets::FromArguments},
    {"custom ffmpeg", "NODE PRESET", "Print a custom preset's ffmpeg output options.", Nothing,
     Presets::FFmpeg},
    {"recent|custom backups", "", "List the saved copies of a list.", Nothing, Lists::Backups},
    {"recent|custom restore", "N", "Put back saved copy N of a list.", Nothing, Lists::Restore,
     " (N from \"backups\")"},
}};

QString NameOf(const LMCliCommand& command) {
    return QString::fromUtf8(command.name);
}

QStringList OperandsOf(const LMCliCommand& command) {
    return QString::fromUtf8(command.operands).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

// Takes "--ffmpeg PATH" out of the operands of a command that accepts it;
// false when the option lacks its path.
bool TakeFFmpegOption(LMCliCall& call) {
    if (!call.command->takesFFmpeg)
        return true;
    const qsizetype at = call.operands.indexOf(QStringLiteral("--ffmpeg"));
    if (at < 0)
        return true;
    if (at + 1 >= call.operands.size() || call.operands.at(at + 1).isEmpty())
        return false;
    call.ffmpeg = call.operands.at(at + 1);
    call.ffmpegGiven = true;
    call.operands.remove(at, 2);
    return true;
}

// "recent|custom backups" answers to the groups "recent" and "custom" and the
// verb "backups"; a command without a group answers to its name alone.
QStringList GroupsOf(const LMCliCommand& command) {
    const QString name = NameOf(command);
    if (!name.contains(QLatin1Char(' ')))
        return {};
    return name.section(QLatin1Char(' '), 0, 0).split(QLatin1Char('|'));
}

QString VerbOf(const LMCliCommand& command) {
    return NameOf(command).section(QLatin1Char(' '), -1);
}

// head, then the command's options and operands, if it has any.
QString WithOperands(const QString& head, const LMCliCommand& command) {
    QString operands = QString::fromUtf8(command.operands);
    if (command.takesFFmpeg)
        operands = QStringLiteral("[--ffmpeg PATH] ") + operands;
    operands = operands.trimmed();
    return operands.isEmpty() ? head : head + QLatin1Char(' ') + operands;
}

QString Line(const LMCliCommand& command) {
    return WithOperands(NameOf(command), command);
}

bool IsGroup(const QString& word) {
    return std::any_of(kCommands.begin(), kCommands.end(), [&word](const LMCliCommand& command) {
        return GroupsOf(command).contains(word);
    });
}

// "usage: lmformat recent list | push CATALOGUE ... | backups | restore N".
std::string GroupUsage(const QString& group) {
    QStringList verbs;
    for (const LMCliCommand& command : kCommands) {
        if (GroupsOf(command).contains(group))
            verbs << WithOperands(VerbOf(command), command);
    }
    return "usage: lmformat " + group.toStdString() + " " +
           verbs.join(QStringLiteral(" | ")).toStdString();
}

const LMCliCommand* Find(const QString& group, const QString& verb) {
    const auto* const found =
        std::find_if(kCommands.begin(), kCommands.end(), [&](const LMCliCommand& command) {
            if (group.isEmpty())
                return GroupsOf(command).isEmpty() && NameOf(command) == verb;
            return GroupsOf(command).contains(group) && VerbOf(command) == verb;
        });
    return found == kCommands.end() ? nullptr : &*found;
}

// How many operands a command takes: its words outside brackets are needed, a
// bracketed group may be left out, and a word with "..." may repeat.
bool TakesOperandCount(const LMCliCommand& command, qsizetype count) {
    qsizetype least = 0;
    qsizetype most = 0;
    bool optional = false;
    bool repeats = false;
    for (const QString& word : OperandsOf(command)) {
        optional = optional || word.startsWith(QLatin1Char('['));
        least += optional ? 0 : 1;
        ++most;
        repeats = repeats || word.contains(QLatin1String("..."));
        optional = optional && !word.endsWith(QLatin1Char(']'));
    }
    return count >= least && (repeats || count <= most);
}

int RunCommand(LMCliCall& call) {
    if (!TakeFFmpegOption(call) || !TakesOperandCount(*call.command, call.operands.size()))
        return LMCliOutput::Fail(LMCliCommands::UsageOf(*call.command));
    if (!call.target.Load(call.command->needs, call.operands))
        return 1;
    return call.command->run(call);
}

} // namespace

namespace LMCliCommands {

std::span<const LMCliCommand> All() {
    return kCommands;
}

std::optional<int> Run(const QStringList& words, bool localized) {
    LMCliCall call;
    call.localized = localized;
    QStringList rest = words;
    const QString first = rest.takeFirst();
    if (IsGroup(first)) {
        call.group = first;
        call.command = rest.isEmpty() ? nullptr : Find(first, rest.takeFirst());
        if (!call.command)
            return LMCliOutput::Fail(GroupUsage(first));
    } else {
        call.command = Find(QString(), first);
        if (!call.command)
            return std::nullopt;
    }
    call.operands = rest;
    return RunCommand(call);
}

std::string UsageOf(const LMCliCommand& command) {
    return "usage: lmformat " + Line(command).toStdString() + command.usageNote;
}

QString Synopsis(const QString& indent) {
    QStringList lines;
    for (const LMCliCommand& command : kCommands)
        lines << QStringLiteral("lmformat ") + Line(command);
    return lines.join(QLatin1Char('\n') + indent);
}

QString Summaries() {
    QStringList lines;
    for (const LMCliCommand& command : kCommands)
        lines << QStringLiteral("  ") + Line(command) + QStringLiteral("\n      ") +
                     QString::fromUtf8(command.summary);
    return lines.join(QLatin1Char('\n'));
}

} // namespace LMCliCommands
