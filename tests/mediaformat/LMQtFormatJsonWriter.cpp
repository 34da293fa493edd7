// SPDX-License-Identifier: MIT
#include "LMQtFormatJsonWriter.h"

#include "LMFormatNode.h"
#include "LMFormatPreset.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace Lumeran {

namespace {

constexpr const char* kOptionKeys[LMOptionListCount] = {"resolution", "framerate", "quality",
                                                        "samplerate", "channels"};

QLatin1StringView Key(const char* key) {
    return QLatin1StringView(key);
}

void InsertExtra(QJsonObject& object, const QJsonObject& extra) {
    for (auto it = extra.begin(); it != extra.end(); ++it) {
        if (!object.contains(it.key()))
            object.insert(it.key(), it.value());
    }
}

QJsonObject StreamJson(const LMFormatPreset& preset, bool audio, int codec) {
    const LMCodecInfo* info = preset.Codec(audio, codec);
    QJsonObject object;
    object.insert(Key("codec"), QString::fromStdString(info->id));
    for (int list = 0; list < LMOptionListCount; ++list) {
        const auto which = static_cast<LMOptionList>(list);
        const int index = preset.Option(audio, codec, which);
        if (index >= 0 && index != info->defaults[static_cast<std::size_t>(list)])
            object.insert(Key(kOptionKeys[list]), QString::fromStdString(info->IdAt(which, index)));
    }
    return object;
}

// What nodes and presets write alike: the title always, the description and
// the face only when they are set.
template <typename Item>
QJsonObject TitledJson(const Item& item) {
    QJsonObject object;
    object.insert(Key("title"), QString::fromStdString(item.Title()));
    if (!item.Description().empty())
        object.insert(Key("description"), QString::fromStdString(item.Description()));
    if (item.FaceID() != 0)
        object.insert(Key("faceId"), item.FaceID());
    return object;
}

// The readable entries of a list with the carried ones back in their places.
template <typename Write>
QJsonArray WithCarried(int count, const std::vector<LMFormatNode::Carried>& carried,
                       const Write& write) {
    QJsonArray list;
    std::vector<const LMFormatNode::Carried*> pending;
    pending.reserve(carried.size());
    for (const auto& entry : carried)
        pending.push_back(&entry);
    std::stable_sort(pending.begin(), pending.end(),
                     [](const auto* a, const auto* b) { return a->before < b->before; });
    auto next = pending.begin();
    for (int i = 0; i <= count; ++i) {
        for (; next != pending.end() && (*next)->before <= static_cast<std::size_t>(i); ++next)
            list.append((*next)->json);
        if (i == count)
            break;
        if (const QJsonValue value = write(i); !value.isUndefined())
            list.append(value);
    }
    for (; next != pending.end(); ++next)
        list.append((*next)->json);
    return list;
}

} // namespace

QJsonObject LMQtFormatJsonWriter::WritePreset(const LMFormatPreset& preset) {
    QJsonObject object = TitledJson(preset);
    object.insert(Key("format"), QString::fromStdString(preset.FormatId()));
    QJsonArray other;
    for (const bool audio : {false, true}) {
        const int current =
            audio ? preset.CurrentAudioCodecIndex() : preset.CurrentVideoCodecIndex();
        const int count = audio ? preset.AudioCodecCount() : preset.VideoCodecCount();
        if (count > 0 && current >= 0) {
            QJsonObject stream = StreamJson(preset, audio, current);
            InsertExtra(stream, preset.StreamExtraFields(audio));
            object.insert(Key(audio ? "audio" : "video"), stream);
        } else if (count > 0) {
            object.insert(Key(audio ? "audio" : "video"), QJsonValue());
        }
        for (int codec = 0; codec < count; ++codec) {
            // A codec that is not current is written when it keeps a choice.
            if (codec == current)
                continue;
            QJsonObject choice = StreamJson(preset, audio, codec);
            if (choice.size() > 1) {
                choice.insert(Key("stream"),
                              audio ? QStringLiteral("audio") : QStringLiteral("video"));
                other.append(choice);
            }
        }
    }
    if (!other.isEmpty())
        object.insert(Key("other"), other);
    InsertExtra(object, preset.ExtraFields());
    return object;
}

QJsonObject LMQtFormatJsonWriter::WriteNode(const LMFormatNode& node) {
    QJsonObject object = TitledJson(node);
    const QJsonArray presets =
        WithCarried(node.FormatPresetCount(), node.CarriedPresets(), [&](int i) -> QJsonValue {
            const auto preset =
                std::dynamic_pointer_cast<const LMFormatPreset>(node.FormatPresetAt(i));
            return preset ? QJsonValue(WritePreset(*preset)) : QJsonValue(QJsonValue::Undefined);
        });
    if (!presets.isEmpty())
        object.insert(Key("presets"), presets);
    const QJsonArray children =
        WithCarried(node.ChildCount(), node.CarriedChildren(), [&](int i) -> QJsonValue {
            const auto child = std::dynamic_pointer_cast<const LMFormatNode>(node.ChildAt(i));
            return child ? QJsonValue(WriteNode(*child)) : QJsonValue(QJsonValue::Undefined);
        });
    if (!children.isEmpty())
        object.insert(Key("children"), children);
    InsertExtra(object, node.ExtraFields());
    return object;
}

std::string LMQtFormatJsonWriter::NodeText(const LMFormatNode& node) {
    return QJsonDocument(WriteNode(node)).toJson(QJsonDocument::Compact).toStdString();
}

} // namespace Lumeran
