// SPDX-License-Identifier: MIT
#include "LMCustomListChanges.h"

#include "LMPresetFile.h"
#include "LMPresetNames.h"

namespace Lumeran {

namespace {

std::string Plural(int count, const char* one, const char* many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

// The index of the first preset of that title in group, or -1.
int IndexOf(const std::shared_ptr<const ILMFormatNode>& group, const std::string& title) {
    if (!group)
        return -1;
    for (int i = 0; i < group->FormatPresetCount(); ++i) {
        if (group->FormatPresetAt(i)->Title() == title)
            return i;
    }
    return -1;
}

std::string ImportSummary(const LMPresetFileResult& result) {
    std::string line = "imported " + Plural(result.added + result.renamed, "preset", "presets");
    if (result.renamed > 0)
        line += ", " + std::to_string(result.renamed) + " of them under a new name";
    if (result.replaced > 0)
        line += "; replaced the settings of " + Plural(result.replaced, "preset", "presets");
    if (result.skipped > 0)
        line +=
            "; left out " + Plural(result.skipped, "preset", "presets") + " whose name was taken";
    if (result.unreadable > 0)
        line += "; left out " + Plural(result.unreadable, "preset", "presets") +
                " of a newer version that this version cannot read";
    return line;
}

} // namespace

LMPresetFileResult LMCustomListChanges::Export(const std::shared_ptr<const ILMFormatNode>& root,
                                               const std::string& path,
                                               const std::vector<LMCustomPresetRef>& presets) {
    LMPresetFileResult result;
    LMPresetFile file;
    if (presets.empty()) {
        for (int i = 0; i < root->ChildCount(); ++i) {
            const auto group = root->ChildAt(i);
            for (int j = 0; j < group->FormatPresetCount(); ++j)
                file.Add(group, group->FormatPresetAt(j));
        }
    }
    for (const LMCustomPresetRef& ref : presets) {
        const auto group = root->FindChild(ref.group);
        const auto preset = group ? group->FindFormatPreset(ref.title) : nullptr;
        if (!preset) {
            result.message = "no custom preset \"" + ref.group + "/" + ref.title + "\"";
            return result;
        }
        file.Add(group, preset);
    }
    if (!file.Write(path, &result.message))
        return result;
    result.ok = true;
    result.written = static_cast<int>(file.Entries().size());
    result.message = "exported " + Plural(result.written, "preset", "presets") + " to " + path;
    return result;
}

LMPresetFileResult LMCustomListChanges::Import(const std::shared_ptr<ILMFormatNode>& root,
                                               const std::string& path, Clash clash) {
    LMPresetFileResult result;
    LMPresetFile file;
    // Everything is read and checked before the list is touched: a file that
    // fails anywhere adds nothing.
    if (!file.Read(path, &result.message))
        return result;
    result.unreadable = file.UnreadableCount();
    for (const LMPresetFile::Entry& entry : file.Entries()) {
        const auto group = root->FindChild(entry.group->Title());
        const auto listed = group ? group->FindFormatPreset(entry.preset->Title()) : nullptr;
        if (listed && clash == Clash::Skip) {
            ++result.skipped;
            continue;
        }
        if (listed && clash == Clash::Replace) {
            listed->CopyFrom(entry.preset);
            ++result.replaced;
            continue;
        }
        if (listed) {
            entry.preset->SetTitle(LMPresetNames::FreeTitle(group, entry.preset->Title()));
            ++result.renamed;
        } else {
            ++result.added;
        }
        File(root, entry.group, entry.preset);
    }
    result.ok = true;
    result.message = ImportSummary(result);
    return result;
}

bool LMCustomListChanges::Rename(const std::shared_ptr<ILMFormatNode>& root,
                                 const LMCustomPresetRef& preset, const std::string& newTitle,
                                 std::string* error) {
    std::string reason;
    const auto group = root->FindChild(preset.group);
    const auto found = group ? group->FindFormatPreset(preset.title) : nullptr;
    if (!found)
        reason = "no custom preset \"" + preset.group + "/" + preset.title + "\"";
    else if (newTitle.empty())
        reason = "a custom preset needs a name";
    else if (!ILMFormatNode::IsAcceptableText(newTitle))
        reason = "a custom preset name is limited to " +
                 std::to_string(ILMFormatNode::MaxTextLength) + " characters";
    else if (newTitle != preset.title && group->FindFormatPreset(newTitle))
        reason = "\"" + preset.group + "\" already has a preset named \"" + newTitle + "\"";
    if (!reason.empty()) {
        if (error)
            *error = reason;
        return false;
    }
    found->SetTitle(newTitle);
    return true;
}

std::string LMCustomListChanges::Duplicate(const std::shared_ptr<ILMFormatNode>& root,
                                           const LMCustomPresetRef& preset) {
    const auto group = root->FindChild(preset.group);
    const int index = IndexOf(group, preset.title);
    if (index < 0)
        return {};
    auto copy = group->FormatPresetAt(index)->Clone();
    copy->SetTitle(LMPresetNames::FreeTitle(group, preset.title));
    const std::string title = copy->Title();
    group->AddFormatPreset(std::move(copy));
    ILMFormatNode::MoveFormatPreset(group, group->FormatPresetCount() - 1, index + 1);
    return title;
}

bool LMCustomListChanges::Move(const std::shared_ptr<ILMFormatNode>& root,
                               const LMCustomPresetRef& preset, Direction direction) {
    const auto group = root->FindChild(preset.group);
    const int index = IndexOf(group, preset.title);
    if (index < 0)
        return false;
    const int to = direction == Direction::Up ? index - 1 : index + 1;
    return ILMFormatNode::MoveFormatPreset(group, index, to);
}

void LMCustomListChanges::File(const std::shared_ptr<ILMFormatNode>& root,
                               const std::shared_ptr<const ILMFormatNode>& group,
                               const std::shared_ptr<const ILMFormatPreset>& preset) {
    auto child = root->FindChild(group->Title());
    if (!child) {
        child = group->Clone(ILMFormatNode::CloneAttributes);
        root->AddChild(child);
        child->SetParent(root);
    }
    child->AddFormatPreset(preset->Clone());
}

} // namespace Lumeran
