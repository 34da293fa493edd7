// SPDX-License-Identifier: MIT
#include "LMFmtPresetRecentItem.h"

namespace Lumeran {

namespace {

// Two absent halves are equal; an absent and a present one are not.
bool SamePreset(const std::shared_ptr<const ILMFormatPreset>& mine,
                const std::shared_ptr<const ILMFormatPreset>& theirs) {
    if (!mine || !theirs)
        return !mine && !theirs;
    return mine->IsEqualTo(theirs);
}

// An entry stands for one preset of a node, so its node counts for its own
// attributes only. The model compares nodes with everything under them, and a
// format node of the catalogue (holding all of its presets) would then never
// equal the one-preset copy that the recent list keeps of it: picking the same
// preset again would add a second entry instead of moving the first one up.
bool SameNode(const std::shared_ptr<const ILMFormatNode>& mine,
              const std::shared_ptr<const ILMFormatNode>& theirs) {
    if (!mine || !theirs)
        return !mine && !theirs;
    const auto myOwn = mine->Clone(ILMFormatNode::CloneAttributes);
    const auto theirOwn = theirs->Clone(ILMFormatNode::CloneAttributes);
    return myOwn && theirOwn && myOwn->IsEqualTo(theirOwn);
}

} // namespace

LMFmtPresetRecentItem::LMFmtPresetRecentItem(std::shared_ptr<const ILMFormatNode> node,
                                             std::shared_ptr<const ILMFormatPreset> preset)
    : m_node(std::move(node)), m_preset(std::move(preset)) {}

// An entry built without a node still reads sensibly: it shows the preset alone.
std::string LMFmtPresetRecentItem::Title() const {
    if (!m_preset)
        return {};
    std::string presetTitle = m_preset->Title();
    if (!m_node)
        return presetTitle;
    std::string nodeTitle = m_node->Title();
    if (presetTitle.find(nodeTitle) != std::string::npos)
        return presetTitle;
    nodeTitle += ' ';
    nodeTitle += presetTitle;
    return nodeTitle;
}

std::string LMFmtPresetRecentItem::Description() const {
    if (!m_preset || !m_node)
        return {};
    return m_node->Description();
}

int LMFmtPresetRecentItem::FaceID() const {
    if (!m_preset || !m_node)
        return 0;
    return m_node->FaceID();
}

std::shared_ptr<const ILMFmtPresetRecentItem> LMFmtPresetRecentItem::Clone() const {
    return MallocFmtPresetRecentItem(m_preset, m_node);
}

bool LMFmtPresetRecentItem::IsEqualTo(std::shared_ptr<const ILMFmtPresetRecentItem> other) const {
    if (!other)
        return false;
    return FaceID() == other->FaceID() && Description() == other->Description() &&
           Title() == other->Title() && SameNode(m_node, other->FormatNode()) &&
           SamePreset(m_preset, other->FormatPreset());
}

} // namespace Lumeran
