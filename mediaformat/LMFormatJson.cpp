// SPDX-License-Identifier: MIT
#include "LMFormatJson.h"

#include "ILMLogConfig.h"
#include "LMFormatNode.h"
#include "LMFormatPreset.h"
#include "LMFormatReadOptions.h"
#include "LMFormatReadReport.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <stdexcept>

namespace Lumeran {

namespace {

struct FormatError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct Cancelled {};

constexpr const char* kNodeKeys[] = {"title", "description", "faceId", "presets", "children"};
constexpr const char* kStreamKeys[] = {"codec",   "resolution", "framerate",
                                       "quality", "samplerate", "channels"};
constexpr const char* kPresetKeys[] = {"title", "description", "faceId", "format",
                                       "video", "audio",       "other"};

// The fields of object outside known, which a newer version wrote.
template <std::size_t N>
QJsonObject ExtraFields(const QJsonObject& object, const char* const (&known)[N]) {
    QJsonObject extra;
    for (auto it = object.begin(); it != object.end(); ++it) {
        const bool isKnown = std::any_of(std::begin(known), std::end(known), [&](const char* key) {
            return it.key() == QLatin1StringView(key);
        });
        if (!isKnown)
            extra.insert(it.key(), it.value());
    }
    return extra;
}

void InsertExtra(QJsonObject& object, const QJsonObject& extra) {
    for (auto it = extra.begin(); it != extra.end(); ++it) {
        if (!object.contains(it.key()))
            object.insert(it.key(), it.value());
    }
}

constexpr const char* kOptionKeys[LMOptionListCount] = {"resolution", "framerate", "quality",
                                                        "samplerate", "channels"};

QLatin1StringView Key(const char* key) {
    return QLatin1StringView(key);
}

class NodeReader {
public:
    explicit NodeReader(const LMFormatReadOptions& options) : m_options(options) {}

    std::shared_ptr<LMFormatNode> Node(const QJsonValue& value, int depth) {
        if (m_options.cancel && m_options.cancel->load(std::memory_order_relaxed))
            throw Cancelled();
        if (depth > ILMFormatNode::MaxDepth)
            throw FormatError("nesting deeper than " + std::to_string(ILMFormatNode::MaxDepth));
        if (!value.isObject())
            throw FormatError("a node is not an object");
        const QJsonObject object = value.toObject();
        auto node = std::make_shared<LMFormatNode>();
        // Text cut short loses the title, which is written after the lists; the
        // entries before the cut are still worth reading.
        const bool titleLost = m_options.keepUnreadable && !object.contains(Key("title"));
        if (!titleLost)
            node->SetTitle(Text(object, "title", true));
        QJsonObject extra = ExtraFields(object, kNodeKeys);
        node->SetDescription(Attribute(object, "description", extra,
                                       [&] { return Text(object, "description", false); }));
        node->SetFaceID(Attribute(object, "faceId", extra, [&] { return Face(object); }));
        const QJsonArray presets =
            Attribute(object, "presets", extra, [&] { return List(object, "presets"); });
        const QJsonArray children =
            Attribute(object, "children", extra, [&] { return List(object, "children"); });
        node->SetExtraFields(std::move(extra));
        node->Reserve(static_cast<std::size_t>(presets.size()),
                      static_cast<std::size_t>(children.size()));
        for (const QJsonValue& preset : presets) {
            if (auto read = Entry(preset, [&] { return Preset(preset); }))
                node->AddFormatPreset(std::move(read));
            else
                node->CarryPreset(preset);
        }
        for (const QJsonValue& child : children) {
            auto childNode = Entry(child, [&] { return Node(child, depth + 1); });
            // A node left with nothing readable in it is carried whole, so that no
            // empty group or recent entry shows for what could not be read.
            if (childNode && childNode->FormatPresetCount() == 0 && childNode->ChildCount() == 0 &&
                (!childNode->CarriedPresets().empty() || !childNode->CarriedChildren().empty()))
                childNode.reset();
            if (!childNode) {
                node->CarryChild(child);
                continue;
            }
            childNode->SetParent(node);
            node->AddChild(std::move(childNode));
        }
        if (titleLost)
            RepairTitle(*node, depth);
        return node;
    }

private:
    // A group of stored presets is named after its format, so the format of its
    // first preset names it again; a root takes its name from whoever reads it.
    void RepairTitle(LMFormatNode& node, int depth) {
        if (node.FormatPresetCount() == 0 && depth > 0)
            throw FormatError("a node without a title or presets");
        Note(&LMFormatReadReport::repaired, QStringLiteral("no title"));
        if (node.FormatPresetCount() > 0)
            node.SetTitle(node.FormatPresetAt(0)->FormatName());
    }

    // With keepUnreadable, what read cannot read gives an empty result and is
    // noted by onFailure; without, the reader's error rejects the whole tree.
    template <typename Read, typename OnFailure>
    auto Tolerating(const Read& read, const OnFailure& onFailure) -> decltype(read()) {
        if (!m_options.keepUnreadable)
            return read();
        try {
            return read();
        } catch (const FormatError&) {
            onFailure();
            return {};
        }
    }

    // Counts what was not understood and keeps its text for the report.
    void Note(int LMFormatReadReport::*counter, const QJsonValue& value) {
        if (!m_options.report)
            return;
        ++(m_options.report->*counter);
        m_options.report->notUnderstood +=
            QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).toStdString() + "\n";
    }

    // An entry of a list: read, or with keepUnreadable, nothing and carried.
    template <typename Read>
    auto Entry(const QJsonValue& value, const Read& read) -> decltype(read()) {
        return Tolerating(read, [&] { Note(&LMFormatReadReport::carried, value); });
    }

    // An attribute of an entry that was read: with keepUnreadable, one that cannot
    // be read takes its default rather than losing the entry, and its stored value
    // goes with the unknown fields to be written back as it was.
    template <typename Read>
    auto Attribute(const QJsonObject& object, const char* key, QJsonObject& extra, const Read& read)
        -> decltype(read()) {
        return Tolerating(read, [&] {
            const QJsonValue stored = object.value(Key(key));
            Note(&LMFormatReadReport::repaired, QJsonObject{{QLatin1StringView(key), stored}});
            extra.insert(Key(key), stored);
        });
    }

    std::shared_ptr<ILMFormatPreset> Preset(const QJsonValue& value) {
        if (!value.isObject())
            throw FormatError("a preset is not an object");
        const QJsonObject object = value.toObject();
        const QJsonValue format = object.value(Key("format"));
        if (!format.isString())
            throw FormatError("a preset has no \"format\"");
        const QString formatName = format.toString();
        const LMContainerInfo* container = LMFormatRegistry::Instance().FindContainer(formatName);
        if (!container)
            throw FormatError("unknown format \"" + formatName.toStdString() + "\"");
        auto preset = std::make_shared<LMFormatPreset>(container);
        preset->SetTitle(Text(object, "title", true));
        QJsonObject extra = ExtraFields(object, kPresetKeys);
        preset->SetDescription(Attribute(object, "description", extra,
                                         [&] { return Text(object, "description", false); }));
        preset->SetFaceID(Attribute(object, "faceId", extra, [&] { return Face(object); }));
        preset->SetExtraFields(std::move(extra));
        Stream(*preset, object.value(Key("video")), false);
        Stream(*preset, object.value(Key("audio")), true);
        for (const QJsonValue& other : List(object, "other")) {
            const QJsonObject choice = other.toObject();
            const QJsonValue stream = choice.value(Key("stream"));
            if (!stream.isString() ||
                (stream.toString() != Key("audio") && stream.toString() != Key("video")))
                throw FormatError("an \"other\" entry names no stream");
            const bool audio = stream.toString() == Key("audio");
            Options(*preset, choice, audio, CodecIndex(*container, choice, audio));
        }
        return preset;
    }

    void Stream(LMFormatPreset& preset, const QJsonValue& value, bool audio) {
        if (value.isUndefined())
            return; // the container's default codec with its defaults
        if (value.isNull()) {
            audio ? preset.SetCurrentAudioCodec(-1) : preset.SetCurrentVideoCodec(-1);
            return;
        }
        if (!value.isObject())
            throw FormatError(audio ? "\"audio\" is not an object" : "\"video\" is not an object");
        const QJsonObject object = value.toObject();
        const int codec = CodecIndex(preset.Container(), object, audio);
        audio ? preset.SetCurrentAudioCodec(codec) : preset.SetCurrentVideoCodec(codec);
        Options(preset, object, audio, codec);
        preset.SetStreamExtraFields(audio, ExtraFields(object, kStreamKeys));
    }

    static int CodecIndex(const LMContainerInfo& container, const QJsonObject& object, bool audio) {
        const QJsonValue id = object.value(Key("codec"));
        if (!id.isString())
            throw FormatError("a stream names no codec");
        const int index = container.FindCodec(audio, id.toString());
        if (index < 0)
            throw FormatError("codec \"" + id.toString().toStdString() + "\" is not offered by " +
                              container.id);
        return index;
    }

    static void Options(LMFormatPreset& preset, const QJsonObject& object, bool audio, int codec) {
        const LMCodecInfo* info = preset.Codec(audio, codec);
        for (int list = 0; list < LMOptionListCount; ++list) {
            const QJsonValue value = object.value(Key(kOptionKeys[list]));
            if (value.isUndefined())
                continue;
            const auto which = static_cast<LMOptionList>(list);
            const int index = value.isString() ? info->Find(which, value.toString()) : -1;
            if (index < 0)
                throw FormatError(std::string("codec ") + info->id + " has no " +
                                  kOptionKeys[list] + " \"" + value.toString().toStdString() +
                                  "\"");
            preset.SetOption(audio, codec, which, index);
        }
    }

    static std::string Text(const QJsonObject& object, const char* key, bool required) {
        const QJsonValue value = object.value(Key(key));
        if (value.isUndefined() && !required)
            return {};
        if (!value.isString())
            throw FormatError(std::string("\"") + key + "\" is missing or not text");
        const QString text = value.toString();
        if (text.size() > ILMFormatNode::MaxTextLength)
            throw FormatError(std::string("\"") + key + "\" is longer than " +
                              std::to_string(ILMFormatNode::MaxTextLength) + " characters");
        return text.toStdString();
    }

    static int Face(const QJsonObject& object) {
        const QJsonValue value = object.value(Key("faceId"));
        if (value.isUndefined())
            return 0;
        const double number = value.toDouble(-1);
        if (!value.isDouble() || number < 0 || number > ILMFormatNode::MaxFaceID ||
            number != static_cast<int>(number))
            throw FormatError("\"faceId\" is not a small whole number");
        return static_cast<int>(number);
    }

    static QJsonArray List(const QJsonObject& object, const char* key) {
        const QJsonValue value = object.value(Key(key));
        if (value.isUndefined())
            return {};
        if (!value.isArray())
            throw FormatError(std::string("\"") + key + "\" is not a list");
        return value.toArray();
    }

    const LMFormatReadOptions& m_options;
};

// Whether a codec has an option set away from its default, i.e. whether
// StreamJson would write more than the codec's id.
bool HasChoices(const LMFormatPreset& preset, bool audio, int codec) {
    const LMCodecInfo* info = preset.Codec(audio, codec);
    for (int list = 0; list < LMOptionListCount; ++list) {
        const int index = preset.Option(audio, codec, static_cast<LMOptionList>(list));
        if (index >= 0 && index != info->defaults[static_cast<std::size_t>(list)])
            return true;
    }
    return false;
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

std::shared_ptr<ILMFormatNode> LMFormatJson::ReadNode(const QJsonValue& json) {
    return ReadNode(json, LMFormatReadOptions());
}

std::shared_ptr<ILMFormatNode> LMFormatJson::ReadNode(const QJsonValue& json,
                                                      const LMFormatReadOptions& options) {
    if (!LMFormatRegistry::Instance().IsValid())
        return {};
    try {
        return NodeReader(options).Node(json, 0);
    } catch (const Cancelled&) {
        return {};
    } catch (const std::exception& e) {
        ILMLogConfig::Printf("Format tree rejected: %s", e.what());
        return {};
    }
}

QJsonObject LMFormatJson::WritePreset(const LMFormatPreset& preset) {
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
            // Most codecs that are not current keep their defaults and write
            // nothing; check that before building their object.
            if (codec == current || !HasChoices(preset, audio, codec))
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

QJsonObject LMFormatJson::WriteNode(const LMFormatNode& node) {
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

} // namespace Lumeran
