// SPDX-License-Identifier: MIT
#include "LMListCommands.h"

#include "ILMFmtPresetDataSource.h"
#include "LMCliCall.h"
#include "LMCliCommands.h"
#include "LMCliOutput.h"

#include <QDateTime>

#include <cstdio>
#include <utility>

using namespace Lumeran;
using LMCliOutput::Fail;
using LMCliOutput::Print;

namespace {

using StoredList = ILMFmtPresetDataSource::StoredList;

StoredList ListOf(const LMCliCall& call) {
    return call.group == QLatin1String("recent") ? StoredList::Recent : StoredList::Custom;
}

// A change that did not reach the store is a failure worth an exit code; the
// data source's failure handler has already said why.
int SettingsWritten() {
    if (ILMFmtPresetDataSource::Shared()->LastSaveSucceeded())
        return 0;
    return 1;
}

int Save(StoredList list) {
    const auto source = ILMFmtPresetDataSource::Shared();
    if (list == StoredList::Recent)
        source->SaveRecentList();
    else
        source->SaveCustomList();
    return SettingsWritten();
}

} // namespace

namespace LMListCommands {

int RecentList(const LMCliCall&) {
    for (const auto& item : ILMFmtPresetDataSource::Shared()->GetRecentList())
        Print(item->Title() + "\t" + item->Description());
    return 0;
}

int RecentPush(const LMCliCall& call) {
    if (!ILMFmtPresetDataSource::Shared()->PushRecentItem(call.target.preset, call.target.node))
        return Fail("could not record \"" + call.Operand(1) + "\"");
    return Save(StoredList::Recent);
}

int RecentRemove(const LMCliCall& call) {
    if (!ILMFmtPresetDataSource::Shared()->RemoveRecentItem(call.Operand(0)))
        return Fail("no recent entry \"" + call.Operand(0) + "\"");
    return Save(StoredList::Recent);
}

int CustomList(const LMCliCall&) {
    const auto custom = std::as_const(*ILMFmtPresetDataSource::Shared()).GetCustomList();
    for (int i = 0; i < custom->ChildCount(); ++i) {
        const auto node = custom->ChildAt(i);
        for (int j = 0; j < node->FormatPresetCount(); ++j)
            Print(node->Title() + "/" + node->FormatPresetAt(j)->Title());
    }
    return 0;
}

int CustomAdd(const LMCliCall& call) {
    const std::string name = call.Operand(2);
    if (name.empty())
        return Fail("a custom preset needs a name");
    if (!ILMFormatNode::IsAcceptableText(name))
        return Fail("a custom preset name is limited to " +
                    std::to_string(ILMFormatNode::MaxTextLength) + " characters");
    // The data source files a copy of what it is given; name that copy's source.
    auto named = call.target.preset->Clone();
    named->SetTitle(name);
    ILMFmtPresetDataSource::Shared()->AddCustomPreset(named, call.target.node);
    return Save(StoredList::Custom);
}

int CustomRemove(const LMCliCall& call) {
    const auto source = ILMFmtPresetDataSource::Shared();
    const auto node = source->GetCustomList()->FindChild(call.Operand(0));
    const auto preset = node ? node->FindFormatPreset(call.Operand(1)) : nullptr;
    if (!preset || !source->RemoveCustomPreset(preset, node))
        return Fail("no custom preset \"" + call.Operand(0) + "/" + call.Operand(1) + "\"");
    return Save(StoredList::Custom);
}

int Backups(const LMCliCall& call) {
    const auto backups = ILMFmtPresetDataSource::Shared()->GetBackups(ListOf(call));
    if (backups.empty())
        Print("no backups");
    for (std::size_t i = 0; i < backups.size(); ++i) {
        const LMPresetBackup& backup = backups[i];
        const QString date = QDateTime::fromMSecsSinceEpoch(backup.savedAtMs)
                                 .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
        std::printf("%zu\t%s\t%d %s%s\t%s\n", i + 1, date.toUtf8().constData(), backup.entryCount,
                    backup.entryCount == 1 ? "entry" : "entries",
                    backup.unreadable ? " (could not be read in full)" : "", backup.path.c_str());
    }
    return 0;
}

int Restore(const LMCliCall& call) {
    bool ok = false;
    const int number = call.operands.at(0).toInt(&ok);
    if (!ok || number < 1)
        return Fail(LMCliCommands::UsageOf(*call.command));
    if (!ILMFmtPresetDataSource::Shared()->RestoreBackup(ListOf(call), number - 1))
        return Fail("backup " + std::to_string(number) +
                    " does not exist or holds nothing readable");
    return Save(ListOf(call));
}

} // namespace LMListCommands
