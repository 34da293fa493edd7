// SPDX-License-Identifier: MIT
#include "LMPresetCommands.h"

#include "ILMFmtPresetDataSource.h"
#include "LMCliCall.h"
#include "LMCliCommands.h"
#include "LMCliOutput.h"
#include "LMFFmpegArguments.h"

#include <utility>

using namespace Lumeran;
using LMCliOutput::Fail;
using LMCliOutput::Print;

namespace {

using Clash = ILMFmtPresetDataSource::ImportClash;
using Direction = ILMFmtPresetDataSource::MoveDirection;

// Saves the custom list; a save that did not reach the store is a failure worth
// an exit code, and the data source's failure handler has already said why.
int Save() {
    const auto source = ILMFmtPresetDataSource::Shared();
    source->SaveCustomList();
    return source->LastSaveSucceeded() ? 0 : 1;
}

int Usage(const LMCliCall& call) {
    return Fail(LMCliCommands::UsageOf(*call.command));
}

} // namespace

namespace LMPresetCommands {

int Export(const LMCliCall& call) {
    std::vector<LMCustomPresetRef> presets;
    for (qsizetype i = 1; i < call.operands.size(); ++i) {
        // NODE/PRESET: a format node's title has no slash, a preset's may.
        const QString& name = call.operands.at(i);
        const qsizetype slash = name.indexOf(QLatin1Char('/'));
        if (slash <= 0)
            return Fail("\"" + name.toStdString() + "\" is not NODE/PRESET");
        presets.push_back({name.left(slash).toStdString(), name.mid(slash + 1).toStdString()});
    }
    const auto result =
        ILMFmtPresetDataSource::Shared()->ExportCustomPresets(call.Operand(0), presets);
    if (!result.ok)
        return Fail(result.message);
    Print(result.message);
    return 0;
}

int Import(const LMCliCall& call) {
    Clash clash = Clash::Rename;
    if (call.operands.size() == 3) {
        const QString policy = call.operands.at(2);
        if (call.operands.at(1) != QLatin1String("--on-clash"))
            return Usage(call);
        if (policy == QLatin1String("skip"))
            clash = Clash::Skip;
        else if (policy == QLatin1String("replace"))
            clash = Clash::Replace;
        else if (policy != QLatin1String("rename"))
            return Usage(call);
    } else if (call.operands.size() != 1) {
        return Usage(call);
    }
    const auto result =
        ILMFmtPresetDataSource::Shared()->ImportCustomPresets(call.Operand(0), clash);
    if (!result.ok)
        return Fail(result.message);
    Print(result.message);
    return Save();
}

int Rename(const LMCliCall& call) {
    std::string error;
    if (!ILMFmtPresetDataSource::Shared()->RenameCustomPreset(call.Operand(0), call.Operand(1),
                                                              call.Operand(2), &error))
        return Fail(error);
    return Save();
}

int Duplicate(const LMCliCall& call) {
    const std::string title =
        ILMFmtPresetDataSource::Shared()->DuplicateCustomPreset(call.Operand(0), call.Operand(1));
    if (title.empty())
        return Fail("no custom preset \"" + call.Operand(0) + "/" + call.Operand(1) + "\"");
    Print(call.Operand(0) + "/" + title);
    return Save();
}

int Move(const LMCliCall& call) {
    const QString where = call.operands.at(2);
    if (where != QLatin1String("up") && where != QLatin1String("down"))
        return Usage(call);
    const Direction direction = where == QLatin1String("up") ? Direction::Up : Direction::Down;
    if (!ILMFmtPresetDataSource::Shared()->MoveCustomPreset(call.Operand(0), call.Operand(1),
                                                            direction))
        return Fail("cannot move \"" + call.Operand(0) + "/" + call.Operand(1) + "\" " +
                    where.toStdString() + ": it is not listed, or already " +
                    (direction == Direction::Up ? "first" : "last") + " of its group");
    return Save();
}

int FromArguments(const LMCliCall& call) {
    // NAME -- ARGUMENTS: the "--" keeps the FFmpeg options from being read as
    // lmformat's own.
    if (call.operands.at(1) != QLatin1String("--"))
        return Usage(call);
    std::vector<std::string> arguments;
    for (qsizetype i = 2; i < call.operands.size(); ++i)
        arguments.push_back(call.Operand(i));
    const auto result =
        ILMFmtPresetDataSource::Shared()->AddCustomPresetFromArguments(call.Operand(0), arguments);
    if (!result.ok)
        return Fail(result.message);
    Print(result.group + "/" + result.title);
    for (const std::string& argument : result.notMapped)
        Print("not mapped: " + argument);
    return Save();
}

int FFmpeg(const LMCliCall& call) {
    const auto custom = std::as_const(*ILMFmtPresetDataSource::Shared()).GetCustomList();
    const auto node = custom->FindChild(call.Operand(0));
    const auto preset = node ? node->FindFormatPreset(call.Operand(1)) : nullptr;
    if (!preset)
        return Fail("no custom preset \"" + call.Operand(0) + "/" + call.Operand(1) + "\"");
    Print(LMFFmpegArguments::Join(LMFFmpegArguments::OutputOptions(preset)));
    return 0;
}

} // namespace LMPresetCommands
