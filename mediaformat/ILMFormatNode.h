// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFormatPreset.h"
#include "ILMJsonValue.h"
#include "LMMediaFormatExport.h"

#include <memory>
#include <string>

namespace Lumeran {

struct LMFormatReadOptions;

// A node of a format tree: a category, a format, or a recent or custom group.
// It has a title (the key by which siblings are found), a description, an
// artwork face id, format presets and child nodes, all in insertion order.
class LMMEDIAFORMAT_EXPORT ILMFormatNode {
public:
    // Clone options: the node's own attributes; with its presets; with its
    // children, recursively. CloneAll copies the whole subtree.
    static constexpr int CloneAttributes = 1;
    static constexpr int ClonePresets = 2;
    static constexpr int CloneChildren = 4;
    static constexpr int CloneAll = CloneAttributes | ClonePresets | CloneChildren;

    virtual ~ILMFormatNode() = default;

    virtual void SetParent(std::shared_ptr<ILMFormatNode> parent) = 0;
    virtual int FaceID() const = 0;
    virtual void SetFaceID(int faceID) = 0;
    virtual std::string Title() const = 0;
    virtual std::string Description() const = 0;
    virtual void SetTitle(const std::string& title) = 0;
    virtual void SetDescription(const std::string& description) = 0;
    // A copy without a parent; options as above.
    virtual std::shared_ptr<ILMFormatNode> Clone(int options) const = 0;
    // The node with its presets and children, as MallocFormatNode(json) reads it.
    virtual std::shared_ptr<ILMJsonValue> ToJson() const = 0;
    virtual int FormatPresetCount() const = 0;
    virtual std::shared_ptr<const ILMFormatPreset> FormatPresetAt(int index) const = 0;
    virtual std::shared_ptr<ILMFormatPreset> FormatPresetAt(int index) = 0;
    virtual void AddFormatPreset(std::shared_ptr<ILMFormatPreset> preset) = 0;
    virtual bool RemoveFormatPreset(const std::string& presetTitle) = 0;
    virtual std::shared_ptr<ILMFormatPreset> FindFormatPreset(const std::string& title) const = 0;
    virtual int ChildCount() const = 0;
    virtual std::shared_ptr<const ILMFormatNode> ChildAt(int index) const = 0;
    virtual std::shared_ptr<ILMFormatNode> ChildAt(int index) = 0;
    virtual void AddChild(std::shared_ptr<ILMFormatNode> child) = 0;
    // Counts from the first child; out of range does nothing.
    virtual void RemoveChildAt(int index) = 0;
    // Removes that very child object; the title overload removes the first child of that title.
    virtual void RemoveChild(std::shared_ptr<const ILMFormatNode> child) = 0;
    virtual void RemoveChild(const std::string& title) = 0;
    virtual std::shared_ptr<ILMFormatNode> FindChild(const std::string& title) const = 0;
    virtual int IndexOfChild(const std::string& title) const = 0;
    // Value equality of the whole subtree (attributes, presets, children).
    virtual bool IsEqualTo(std::shared_ptr<const ILMFormatNode> other) const = 0;

    virtual std::shared_ptr<ILMFormatNode> Parent() const = 0;

    static std::shared_ptr<ILMFormatNode> MallocFormatNode(std::shared_ptr<ILMFormatNode> parent);
    // A new node without a parent, with its attributes set.
    static std::shared_ptr<ILMFormatNode>
    MallocFormatNode(const std::string& title, const std::string& description, int faceID);
    // A tree from its JSON form (a catalogue file or a stored list). Anything it
    // cannot read (wrong types, unknown container, codec or option ids, texts
    // over MaxTextLength, nesting over MaxDepth) gives an empty pointer and one
    // log line.
    static std::shared_ptr<ILMFormatNode>
    MallocFormatNode(const std::shared_ptr<const ILMJsonValue>& json);
    // The same, read as options ask (LMFormatReadOptions.h): a stored list is
    // read keeping what it can and carrying what it cannot.
    static std::shared_ptr<ILMFormatNode>
    MallocFormatNode(const std::shared_ptr<const ILMJsonValue>& json,
                     const LMFormatReadOptions& options);

    // Entries under node (at any depth) that were read as unreadable and are
    // carried to be written back unchanged.
    static int UnreadableEntryCount(const std::shared_ptr<const ILMFormatNode>& node);
    // Takes parent's child of that title out of the tree as it is shown while
    // keeping it, unchanged, in what ToJson writes: for a group that still
    // carries entries this version cannot read. False when there is no such child.
    static bool SetChildAside(const std::shared_ptr<ILMFormatNode>& parent,
                              const std::string& title);
    // Moves node's preset at index from to index to, the presets between them
    // shifting by one place; entries carried unread keep their places. False
    // when either index is out of range.
    static bool MoveFormatPreset(const std::shared_ptr<ILMFormatNode>& node, int from, int to);
    // Whether text fits the limits every title and description is read back
    // with; setters cut longer texts to MaxTextLength.
    static bool IsAcceptableText(const std::string& text);

    static std::shared_ptr<ILMFormatNode>
    FirstChild(const std::shared_ptr<const ILMFormatNode>& node);
    static std::shared_ptr<const ILMFormatPreset>
    FirstFormatPreset(const std::shared_ptr<const ILMFormatNode>& node);
    static std::shared_ptr<ILMFormatPreset>
    FirstFormatPreset(const std::shared_ptr<ILMFormatNode>& node);

    // Limits shared by the reader and the writer: a tree deeper than MaxDepth,
    // a text longer than MaxTextLength characters (UTF-16 code units) or a face
    // id outside 0...MaxFaceID is not read.
    static constexpr int MaxDepth = 32;
    static constexpr int MaxTextLength = 4096;
    static constexpr int MaxFaceID = 1000000000;
};

} // namespace Lumeran
