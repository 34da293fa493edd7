#include "LMFormatJson.h"

#include "ILMLogConfig.h"
#include "LMFormatNode.h"
#include "LMFormatPreset.h"

#include <QJsonArray>

#include <stdexcept>

namespace Lumeran {

namespace {

struct FormatError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

constexpr const char* kOptionKeys[LMOptionListCount] = {"resolution", "framerate", "quality",
                                                        "samplerate", "channels"};

QLatin1StringView Key(const char* key) {
    return QLatin1StringView(key);
}

class NodeReader {
public:
    std::shared_ptr<ILMFormatNode> Node(const QJsonValue& value, int depth) {
        if (depth > ILMFormatNode::MaxDepth)
            throw FormatError("nesting deeper than " + std::to_string(ILMFormatNode::MaxDepth));
        if (!value.isObject())
            throw FormatError("a node is not an object");
        const QJsonObject object = value.toObject();
        auto node = std::make_shared<LMFormatNode>();
        node->SetTitle(Text(object, "title", true));
        node->SetDescription(Text(object, "description", false));
        node->SetFaceID(Face(object));
        const QJsonArray presets = List(object, "presets");
        const QJsonArray children = List(object, "children");
        node->Reserve(static_cast<std::size_t>(presets.size()),
                      static_cast<std::size_t>(children.size()));
        for (const QJsonValue& preset : presets)
            node->AddFormatPreset(Preset(preset));
        for (const QJsonValue& child : children) {
            auto childNode = Node(child, depth + 1);
            childNode->SetParent(node);
            node->AddChild(std::move(childNode));
        }
        return node;
    }

private:
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
        preset->SetDescription(Text(object, "description", false));
        preset->SetFaceID(Face(object));
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
        if (!value.isDouble() || number < 0 || number > 1e9 || number != static_cast<int>(number))
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

} // namespace

std::shared_ptr<ILMFormatNode> LMFormatJson::ReadNode(const QJsonValue& json) {
    if (!LMFormatRegistry::Instance().IsValid())
        return {};
    try {
        return NodeReader().Node(json, 0);
    } catch (const std::exception& e) {
        ILMLogConfig::Printf("Format tree rejected: %s", e.what());
        return {};
    }
}

QJsonObject LMFormatJson::WritePreset(const LMFormatPreset& preset) {
    QJsonObject object;
    object.insert(Key("title"), QString::fromStdString(preset.Title()));
    if (!preset.Description().empty())
        object.insert(Key("description"), QString::fromStdString(preset.Description()));
    if (preset.FaceID() != 0)
        object.insert(Key("faceId"), preset.FaceID());
    object.insert(Key("format"), QString::fromStdString(preset.FormatId()));
    QJsonArray other;
    for (const bool audio : {false, true}) {
        const int current =
            audio ? preset.CurrentAudioCodecIndex() : preset.CurrentVideoCodecIndex();
        const int count = audio ? preset.AudioCodecCount() : preset.VideoCodecCount();
        if (count > 0)
            object.insert(Key(audio ? "audio" : "video"),
                          current >= 0 ? QJsonValue(StreamJson(preset, audio, current))
                                       : QJsonValue());
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
    return object;
}

QJsonObject LMFormatJson::WriteNode(const LMFormatNode& node) {
    QJsonObject object;
    object.insert(Key("title"), QString::fromStdString(node.Title()));
    if (!node.Description().empty())
        object.insert(Key("description"), QString::fromStdString(node.Description()));
    if (node.FaceID() != 0)
        object.insert(Key("faceId"), node.FaceID());
    QJsonArray presets;
    for (int i = 0; i < node.FormatPresetCount(); ++i) {
        const auto preset = std::dynamic_pointer_cast<const LMFormatPreset>(node.FormatPresetAt(i));
        if (preset)
            presets.append(WritePreset(*preset));
    }
    if (!presets.isEmpty())
        object.insert(Key("presets"), presets);
    QJsonArray children;
    for (int i = 0; i < node.ChildCount(); ++i) {
        const auto child = std::dynamic_pointer_cast<const LMFormatNode>(node.ChildAt(i));
        if (child)
            children.append(WriteNode(*child));
    }
    if (!children.isEmpty())
        object.insert(Key("children"), children);
    return object;
}

} // namespace Lumeran
