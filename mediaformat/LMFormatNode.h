// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFormatNode.h"
#include "LMFormatLimits.h"
#include "LMFormatRevision.h"

#include <QJsonObject>
#include <QJsonValue>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Lumeran {

class LMFormatNode final : public ILMFormatNode {
public:
    void SetParent(std::shared_ptr<ILMFormatNode> parent) override { m_parent = parent; }
    int FaceID() const override { return m_faceID; }
    void SetFaceID(int faceID) override {
        m_faceID = LMFormatLimits::FaceID(faceID);
        m_revision.Touch();
    }
    std::string Title() const override { return m_title; }
    std::string Description() const override { return m_description; }
    void SetTitle(const std::string& title) override {
        m_title = LMFormatLimits::Text(title);
        m_revision.Touch();
    }
    void SetDescription(const std::string& description) override {
        m_description = LMFormatLimits::Text(description);
        m_revision.Touch();
    }
    std::shared_ptr<ILMFormatNode> Clone(int options) const override;
    std::shared_ptr<ILMJsonValue> ToJson() const override;
    int FormatPresetCount() const override { return static_cast<int>(m_presets.size()); }
    std::shared_ptr<const ILMFormatPreset> FormatPresetAt(int index) const override;
    std::shared_ptr<ILMFormatPreset> FormatPresetAt(int index) override;
    void AddFormatPreset(std::shared_ptr<ILMFormatPreset> preset) override;
    bool RemoveFormatPreset(const std::string& presetTitle) override;
    std::shared_ptr<ILMFormatPreset> FindFormatPreset(const std::string& title) const override;
    int ChildCount() const override { return static_cast<int>(m_children.size()); }
    std::shared_ptr<const ILMFormatNode> ChildAt(int index) const override;
    std::shared_ptr<ILMFormatNode> ChildAt(int index) override;
    void AddChild(std::shared_ptr<ILMFormatNode> child) override;
    void RemoveChildAt(int index) override;
    void RemoveChild(std::shared_ptr<const ILMFormatNode> child) override;
    void RemoveChild(const std::string& title) override;
    std::shared_ptr<ILMFormatNode> FindChild(const std::string& title) const override;
    int IndexOfChild(const std::string& title) const override;
    bool IsEqualTo(std::shared_ptr<const ILMFormatNode> other) const override;
    std::shared_ptr<ILMFormatNode> Parent() const override { return m_parent.lock(); }

    // Room for a known number of entries, used when reading large catalogues.
    void Reserve(std::size_t presets, std::size_t children);
    // Gives back the room the lists do not use, once a node is read.
    void Compact();

    // An entry that could not be read, kept as it was stored: written back after
    // the first `before` readable entries of its list.
    struct Carried {
        std::size_t before = 0;
        QJsonValue json;
    };
    void CarryPreset(QJsonValue json) {
        m_carriedPresets.push_back({m_presets.size(), std::move(json)});
        m_revision.Touch();
    }
    void CarryChild(QJsonValue json) {
        m_carriedChildren.push_back({m_children.size(), std::move(json)});
        m_revision.Touch();
    }
    const std::vector<Carried>& CarriedPresets() const { return m_carriedPresets; }
    const std::vector<Carried>& CarriedChildren() const { return m_carriedChildren; }
    // Moves the readable preset at from to index to; false when out of range.
    bool MovePreset(int from, int to);
    // Sets the readable child at index aside as a carried one; false when out of range.
    bool CarryChildAt(int index);
    // Fields of the node's JSON this version does not know, written back as read.
    const QJsonObject& ExtraFields() const { return m_extra; }
    void SetExtraFields(QJsonObject extra) {
        m_extra = std::move(extra);
        m_revision.Touch();
    }

    // Changes whenever the node's own part of its JSON (not its presets' or
    // children's) may have changed.
    std::uint64_t Revision() const { return m_revision.Value(); }
    // The JSON text last written for this node and what it was written from: the
    // node's revision and the revision or stamp of each preset and child. Kept by
    // LMFormatJsonWriter, which reuses the text while all of them still hold.
    struct TextCache {
        std::uint64_t revision = 0;
        std::uint64_t stamp = 0;
        std::vector<std::uint64_t> pieces;
        std::string text;
    };
    TextCache& JsonTextCache() const;

private:
    std::weak_ptr<ILMFormatNode> m_parent;
    std::string m_title;
    std::string m_description;
    int m_faceID = 0;
    std::vector<std::shared_ptr<ILMFormatPreset>> m_presets;
    std::vector<std::shared_ptr<ILMFormatNode>> m_children;
    std::vector<Carried> m_carriedPresets;
    std::vector<Carried> m_carriedChildren;
    QJsonObject m_extra;
    LMFormatRevision m_revision;
    mutable std::unique_ptr<TextCache> m_textCache;
};

} // namespace Lumeran
