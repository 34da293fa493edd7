// SPDX-License-Identifier: MIT
#include "LMCliTarget.h"

#include "ILMJsonReader.h"
#include "LMCliOutput.h"
#include "LMDefaultCatalogue.h"

using namespace Lumeran;

namespace {

std::shared_ptr<ILMFormatNode> LoadCatalogue(const std::string& path) {
    std::shared_ptr<const ILMError> error;
    const auto json = ILMJsonReader::ReadJsonFile(path, &error);
    if (!json) {
        LMCliOutput::Fail(path + ": " + (error ? error->Message() : std::string("unreadable")));
        return {};
    }
    auto root = ILMFormatNode::MallocFormatNode(json);
    if (!root)
        LMCliOutput::Fail(path + ": not a valid format catalogue (see the log line above)");
    return root;
}

// The node at the path's leading parts, or null; the last part is the preset's.
std::shared_ptr<const ILMFormatNode> FindNode(const std::shared_ptr<const ILMFormatNode>& root,
                                              const QStringList& parts) {
    std::shared_ptr<const ILMFormatNode> node = root;
    for (qsizetype i = 0; i + 1 < parts.size() && node; ++i)
        node = node->FindChild(parts.at(i).toStdString());
    return node;
}

} // namespace

bool LMCliTarget::Load(LMCliNeeds needs, const QStringList& operands) {
    if (needs == LMCliNeeds::Nothing)
        return true;
    catalogue = LoadCatalogue(operands.isEmpty() ? LMDefaultCatalogue::Path()
                                                 : operands.at(0).toStdString());
    if (!catalogue)
        return false;
    if (needs == LMCliNeeds::Catalogue ||
        (needs == LMCliNeeds::CatalogueOrDefault && operands.size() < 2))
        return true;
    const QStringList parts = operands.at(1).split(QLatin1Char('/'));
    node = parts.size() < 2 ? nullptr : FindNode(catalogue, parts);
    preset = node ? node->FindFormatPreset(parts.last().toStdString()) : nullptr;
    if (preset)
        return true;
    LMCliOutput::Fail("no preset \"" + operands.at(1).toStdString() + "\" in " +
                      operands.at(0).toStdString());
    return false;
}
