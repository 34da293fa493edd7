// SPDX-License-Identifier: MIT
#include "LMCustomListChanges.h"

#include "LMFFmpegArgumentsReader.h"
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

// The first format node, depth first, that holds a preset of that container.
std::shared_ptr<const ILMFormatNode> NodeOf(const std::shared_ptr<const ILMFormatNode>& node,
                                            const std::string& formatId, int depth = 0) {
    if (!node || depth > ILMFormatNode::MaxDepth)
        return {};
    for (int i = 0; i < node->FormatPresetCount(); ++i) {
        if (node->FormatPresetAt(i)->FormatId() == formatId)
            return node;
    }
    for (int i = 0; i < node->ChildCount(); ++i) {
        if (auto found = NodeOf(node->ChildAt(i), formatId, depth + 1))
            return found;
    }
    return {};
}

// Why name cannot be a new title in group; empty when it can.
std::string RefusedTitle(const std::shared_ptr<const ILMFormatNode>& group,
                         const std::string& groupTitle, const std::string& name) {
    if (name.empty())
        return "a custom preset needs a name";
    if (!ILMFormatNode::IsAcceptableText(name))
        return "a custom preset name is limited to " +
               std::to_string(ILMFormatNode::MaxTextLength) + " characters";
    if (group && group->FindFormatPreset(name))
        return "\"" + groupTitle + "\" already has a preset named \"" + name + "\"";
    return {};
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
    else // a preset may keep its own name
        reason = RefusedTitle(newTitle != preset.title ? group : nullptr, preset.group, newTitle);
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

LMPresetArgumentsResult
LMCustomListChanges::FromArguments(const std::shared_ptr<ILMFormatNode>& root,
                                   const std::shared_ptr<const ILMFormatNode>& catalogue,
                                   const std::string& name,
                                   const std::vector<std::string>& arguments) {
    LMPresetArgumentsResult result;
    auto read = LMFFmpegArgumentsReader::PresetFromArguments(arguments);
    if (!read.preset) {
        result.message = "no container can be made from these arguments";
        return result;
    }
    std::shared_ptr<const ILMFormatNode> group = NodeOf(catalogue, read.preset->FormatId());
    if (!group) {
        // A catalogue without the container: a group of its own name.
        const std::string format = read.preset->FormatName();
        group =
            ILMFormatNode::MallocFormatNode(format, format + " file format", read.preset->FaceID());
    }
    result.group = group->Title();
    result.message = RefusedTitle(root->FindChild(result.group), result.group, name);
    if (!result.message.empty())
        return result;
    read.preset->SetTitle(name);
    read.preset->SetDescription(ILMFormatPreset::DescribeSettings(*read.preset));
    read.preset->SetFaceID(group->FaceID());
    File(root, group, read.preset);
    result.ok = true;
    result.title = name;
    result.notMapped = std::move(read.notMapped);
    result.message = "added \"" + result.group + "/" + name + "\"";
    if (!result.notMapped.empty())
        result.message +=
            "; " + Plural(static_cast<int>(result.notMapped.size()), "argument", "arguments") +
            " did not map";
    return result;
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
