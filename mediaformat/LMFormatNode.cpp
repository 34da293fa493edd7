// SPDX-License-Identifier: MIT
#include "LMFormatNode.h"

#include "LMFormatJsonReader.h"
#include "LMFormatJsonWriter.h"
#include "LMFormatReadOptions.h"

#include <QJsonDocument>

#include <algorithm>

namespace Lumeran {

namespace {

bool InRange(int index, std::size_t size) {
    return index >= 0 && static_cast<std::size_t>(index) < size;
}

} // namespace

std::shared_ptr<ILMFormatNode>
ILMFormatNode::MallocFormatNode(std::shared_ptr<ILMFormatNode> parent) {
    auto node = std::make_shared<LMFormatNode>();
    node->SetParent(std::move(parent));
    return node;
}

std::shared_ptr<ILMFormatNode> ILMFormatNode::MallocFormatNode(const std::string& title,
                                                               const std::string& description,
                                                               int faceID) {
    auto node = std::make_shared<LMFormatNode>();
    node->SetTitle(title);
    node->SetDescription(description);
    node->SetFaceID(faceID);
    return node;
}

std::shared_ptr<ILMFormatNode>
ILMFormatNode::MallocFormatNode(const std::shared_ptr<const ILMJsonValue>& json) {
    if (!json)
        return {};
    return LMFormatJsonReader::ReadNode(*json, LMFormatReadOptions());
}

std::shared_ptr<ILMFormatNode>
ILMFormatNode::MallocFormatNode(const std::shared_ptr<const ILMJsonValue>& json,
                                const LMFormatReadOptions& options) {
    if (!json)
        return {};
    return LMFormatJsonReader::ReadNode(*json, options);
}

int ILMFormatNode::UnreadableEntryCount(const std::shared_ptr<const ILMFormatNode>& node) {
    const auto* mine = dynamic_cast<const LMFormatNode*>(node.get());
    if (!mine)
        return 0;
    int count = static_cast<int>(mine->CarriedPresets().size() + mine->CarriedChildren().size());
    for (int i = 0; i < mine->ChildCount(); ++i)
        count += UnreadableEntryCount(mine->ChildAt(i));
    return count;
}

bool ILMFormatNode::SetChildAside(const std::shared_ptr<ILMFormatNode>& parent,
                                  const std::string& title) {
    auto* mine = dynamic_cast<LMFormatNode*>(parent.get());
    return mine && mine->CarryChildAt(mine->IndexOfChild(title));
}

bool ILMFormatNode::MoveFormatPreset(const std::shared_ptr<ILMFormatNode>& node, int from, int to) {
    auto* mine = dynamic_cast<LMFormatNode*>(node.get());
    return mine && mine->MovePreset(from, to);
}

bool ILMFormatNode::IsAcceptableText(const std::string& text) {
    return LMFormatLimits::Text(text) == text;
}

std::shared_ptr<ILMFormatNode>
ILMFormatNode::FirstChild(const std::shared_ptr<const ILMFormatNode>& node) {
    if (!node || node->ChildCount() == 0)
        return {};
    return std::const_pointer_cast<ILMFormatNode>(node->ChildAt(0));
}

std::shared_ptr<const ILMFormatPreset>
ILMFormatNode::FirstFormatPreset(const std::shared_ptr<const ILMFormatNode>& node) {
    if (!node || node->FormatPresetCount() == 0)
        return {};
    return node->FormatPresetAt(0);
}

std::shared_ptr<ILMFormatPreset>
ILMFormatNode::FirstFormatPreset(const std::shared_ptr<ILMFormatNode>& node) {
    if (!node || node->FormatPresetCount() == 0)
        return {};
    return node->FormatPresetAt(0);
}

std::shared_ptr<ILMFormatNode> LMFormatNode::Clone(int options) const {
    auto copy = std::make_shared<LMFormatNode>();
    if (options & CloneAttributes) {
        copy->m_title = m_title;
        copy->m_description = m_description;
        copy->m_faceID = m_faceID;
        copy->m_extra = m_extra;
    }
    if (options & ClonePresets) {
        copy->m_carriedPresets = m_carriedPresets;
        copy->m_presets.reserve(m_presets.size());
        for (const auto& preset : m_presets)
            copy->m_presets.push_back(preset->Clone());
    }
    if (options & CloneChildren) {
        copy->m_carriedChildren = m_carriedChildren;
        copy->m_children.reserve(m_children.size());
        for (const auto& child : m_children) {
            auto childCopy = child->Clone(options);
            childCopy->SetParent(copy);
            copy->m_children.push_back(std::move(childCopy));
        }
    }
    return copy;
}

std::shared_ptr<ILMJsonValue> LMFormatNode::ToJson() const {
    return ILMJsonValue::MallocJsonText(LMFormatJsonWriter::NodeText(*this), true);
}

std::shared_ptr<const ILMFormatPreset> LMFormatNode::FormatPresetAt(int index) const {
    return InRange(index, m_presets.size()) ? m_presets[static_cast<std::size_t>(index)] : nullptr;
}

std::shared_ptr<ILMFormatPreset> LMFormatNode::FormatPresetAt(int index) {
    return InRange(index, m_presets.size()) ? m_presets[static_cast<std::size_t>(index)] : nullptr;
}

void LMFormatNode::AddFormatPreset(std::shared_ptr<ILMFormatPreset> preset) {
    if (!preset)
        return;
    m_presets.push_back(std::move(preset));
    m_revision.Touch();
}

bool LMFormatNode::RemoveFormatPreset(const std::string& presetTitle) {
    const auto found = std::find_if(m_presets.begin(), m_presets.end(), [&](const auto& preset) {
        return preset->Title() == presetTitle;
    });
    if (found == m_presets.end())
        return false;
    m_presets.erase(found);
    m_revision.Touch();
    return true;
}

std::shared_ptr<ILMFormatPreset> LMFormatNode::FindFormatPreset(const std::string& title) const {
    for (const auto& preset : m_presets) {
        if (preset->Title() == title)
            return preset;
    }
    return {};
}

std::shared_ptr<const ILMFormatNode> LMFormatNode::ChildAt(int index) const {
    return InRange(index, m_children.size()) ? m_children[static_cast<std::size_t>(index)]
                                             : nullptr;
}

std::shared_ptr<ILMFormatNode> LMFormatNode::ChildAt(int index) {
    return InRange(index, m_children.size()) ? m_children[static_cast<std::size_t>(index)]
                                             : nullptr;
}

void LMFormatNode::AddChild(std::shared_ptr<ILMFormatNode> child) {
    if (!child)
        return;
    m_children.push_back(std::move(child));
    m_revision.Touch();
}

void LMFormatNode::RemoveChildAt(int index) {
    if (!InRange(index, m_children.size()))
        return;
    m_children.erase(m_children.begin() + index);
    m_revision.Touch();
}

void LMFormatNode::RemoveChild(std::shared_ptr<const ILMFormatNode> child) {
    const auto found = std::find_if(m_children.begin(), m_children.end(),
                                    [&](const auto& mine) { return mine.get() == child.get(); });
    if (found == m_children.end())
        return;
    m_children.erase(found);
    m_revision.Touch();
}

void LMFormatNode::RemoveChild(const std::string& title) {
    const int index = IndexOfChild(title);
    if (index >= 0)
        RemoveChildAt(index);
}

std::shared_ptr<ILMFormatNode> LMFormatNode::FindChild(const std::string& title) const {
    const int index = IndexOfChild(title);
    return index >= 0 ? m_children[static_cast<std::size_t>(index)] : nullptr;
}

int LMFormatNode::IndexOfChild(const std::string& title) const {
    for (std::size_t i = 0; i < m_children.size(); ++i) {
        if (m_children[i]->Title() == title)
            return static_cast<int>(i);
    }
    return -1;
}

bool LMFormatNode::IsEqualTo(std::shared_ptr<const ILMFormatNode> other) const {
    if (!other)
        return false;
    if (other.get() == this)
        return true;
    if (m_title != other->Title() || m_description != other->Description() ||
        m_faceID != other->FaceID() || FormatPresetCount() != other->FormatPresetCount() ||
        ChildCount() != other->ChildCount())
        return false;
    for (int i = 0; i < FormatPresetCount(); ++i) {
        if (!m_presets[static_cast<std::size_t>(i)]->IsEqualTo(other->FormatPresetAt(i)))
            return false;
    }
    for (int i = 0; i < ChildCount(); ++i) {
        if (!m_children[static_cast<std::size_t>(i)]->IsEqualTo(other->ChildAt(i)))
            return false;
    }
    return true;
}

bool LMFormatNode::MovePreset(int from, int to) {
    if (!InRange(from, m_presets.size()) || !InRange(to, m_presets.size()))
        return false;
    const auto first = m_presets.begin();
    if (from < to)
        std::rotate(first + from, first + from + 1, first + to + 1);
    else if (to < from)
        std::rotate(first + to, first + from, first + from + 1);
    m_revision.Touch();
    return true;
}

bool LMFormatNode::CarryChildAt(int index) {
    if (!InRange(index, m_children.size()))
        return false;
    const auto child =
        std::dynamic_pointer_cast<const LMFormatNode>(m_children[static_cast<std::size_t>(index)]);
    if (!child)
        return false;
    // Entries after it keep their places: it goes where it stood.
    const std::string text = LMFormatJsonWriter::NodeText(*child);
    m_carriedChildren.push_back(
        {static_cast<std::size_t>(index),
         QJsonDocument::fromJson(QByteArray::fromRawData(text.data(), qsizetype(text.size())))
             .object()});
    m_children.erase(m_children.begin() + index);
    m_revision.Touch();
    return true;
}

LMFormatNode::TextCache& LMFormatNode::JsonTextCache() const {
    if (!m_textCache)
        m_textCache = std::make_unique<TextCache>();
    return *m_textCache;
}

void LMFormatNode::Compact() {
    m_presets.shrink_to_fit();
    m_children.shrink_to_fit();
}

void LMFormatNode::Reserve(std::size_t presets, std::size_t children) {
    m_presets.reserve(presets);
    m_children.reserve(children);
}

} // namespace Lumeran
