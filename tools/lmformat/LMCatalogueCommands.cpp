// SPDX-License-Identifier: MIT
#include "LMCatalogueCommands.h"

#include "ILMFmtPresetDataSource.h"
#include "LMCliCall.h"
#include "LMCliOutput.h"
#include "LMFFmpegArguments.h"
#include "LMFFmpegCommands.h"
#include "LMFormatInternationalizationMgr.h"

#include <cstdio>

using namespace Lumeran;
using LMCliOutput::Print;

namespace {

std::string Localized(const std::string& text) {
    if (text.empty())
        return text;
    return LMFormatInternationalizationMgr::sharedObject()
        ->stringForKey(QString::fromStdString(text))
        .toStdString();
}

std::string Line(bool localized, const std::string& title, const std::string& description) {
    if (!localized)
        return title;
    if (description.empty())
        return Localized(title);
    return Localized(title) + "\t" + Localized(description);
}

void PrintTree(const std::shared_ptr<const ILMFormatNode>& node, int depth, bool localized) {
    const std::string indent(static_cast<std::size_t>(depth) * 2, ' ');
    Print(indent + Line(localized, node->Title(), node->Description()));
    for (int i = 0; i < node->FormatPresetCount(); ++i) {
        const auto preset = node->FormatPresetAt(i);
        Print(indent + "  " + Line(localized, preset->Title(), preset->Description()));
    }
    for (int i = 0; i < node->ChildCount(); ++i)
        PrintTree(node->ChildAt(i), depth + 1, localized);
}

int CountPresets(const std::shared_ptr<const ILMFormatNode>& node) {
    int count = node->FormatPresetCount();
    for (int i = 0; i < node->ChildCount(); ++i)
        count += CountPresets(node->ChildAt(i));
    return count;
}

int CountNodes(const std::shared_ptr<const ILMFormatNode>& node) {
    int count = node->ChildCount();
    for (int i = 0; i < node->ChildCount(); ++i)
        count += CountNodes(node->ChildAt(i));
    return count;
}

} // namespace

namespace LMCatalogueCommands {

int Validate(const LMCliCall& call) {
    const auto& root = call.target.catalogue;
    int formats = 0;
    for (int i = 0; i < root->ChildCount(); ++i)
        formats += CountNodes(root->ChildAt(i));
    std::printf("%d categories, %d formats, %d presets\n", root->ChildCount(), formats,
                CountPresets(root));
    std::fflush(stdout);
    return call.ffmpegGiven ? LMFFmpegCommands::ListUnavailable(call) : 0;
}

int Tree(const LMCliCall& call) {
    PrintTree(call.target.catalogue, 0, call.localized);
    return 0;
}

int FFmpeg(const LMCliCall& call) {
    Print(LMFFmpegArguments::Join(LMFFmpegArguments::OutputOptions(call.target.preset)));
    return 0;
}

int Search(const LMCliCall& call) {
    // An empty text filters nothing and so finds nothing to print.
    const auto found = ILMFmtPresetDataSource::Shared()->SearchFormatPresets(call.target.catalogue,
                                                                             call.Operand(1), {});
    if (found)
        PrintTree(found, 0, call.localized);
    return 0;
}

} // namespace LMCatalogueCommands
