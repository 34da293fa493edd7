// SPDX-License-Identifier: MIT
#include "LMFormatJsonReader.h"

#include "ILMJsonValue.h"
#include "ILMLogConfig.h"
#include "LMFormatJsonKeys.h"
#include "LMFormatJsonWriter.h"
#include "LMFormatNode.h"
#include "LMFormatPreset.h"
#include "LMFormatReadOptions.h"
#include "LMFormatReadReport.h"
#include "LMOnDemandText.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <unordered_map>
#include <vector>

namespace Lumeran {

namespace {

namespace od = simdjson::ondemand;

struct FormatError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct Cancelled {};

using Keys = LMFormatJsonKeys;

bool IsContainer(od::json_type type) {
    return type == od::json_type::object || type == od::json_type::array;
}

// The text of a value as it stands in the document. Consumes the value.
std::string_view RawOf(od::value& value) {
    const od::json_type type = value.type();
    if (type == od::json_type::object) {
        od::object object = value.get_object();
        return object.raw_json();
    }
    if (type == od::json_type::array) {
        od::array array = value.get_array();
        return array.raw_json();
    }
    std::string_view token = value.raw_json_token();
    while (!token.empty() && (token.back() == ' ' || token.back() == '\t' || token.back() == '\n' ||
                              token.back() == '\r'))
        token.remove_suffix(1);
    return token;
}

// A value as Qt holds it, for what is kept rather than read: fields of other
// versions and entries that could not be read.
QJsonValue QtOf(std::string_view raw) {
    QByteArray text;
    text.reserve(static_cast<qsizetype>(raw.size()) + 2);
    text.append('[').append(raw.data(), static_cast<qsizetype>(raw.size())).append(']');
    return QJsonDocument::fromJson(text).array().at(0);
}

QString QtKey(std::string_view key) {
    return LMFormatJsonWriter::ToQString(key);
}

// Characters as QString counts them (UTF-16 code units).
std::size_t Utf16Length(std::string_view text) {
    std::size_t length = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte & 0xC0) != 0x80)
            length += byte >= 0xF0 ? 2 : 1;
    }
    return length;
}

std::string_view Key(od::field& field) {
    return LMOnDemandText::Key(field);
}

std::string_view String(od::value& value) {
    return LMOnDemandText::String(value);
}

// The text of the field key of object, the last one when the key repeats (as Qt
// reads it), or nothing when it is missing or no text. Leaves the object at its
// start. Keys are compared unescaped.
std::optional<std::string_view> TextField(od::object& object, std::string_view key) {
    std::optional<std::string_view> text;
    for (od::field field : object) {
        if (Key(field) != key)
            continue;
        od::value value = field.value();
        text = value.type() == od::json_type::string ? std::optional(String(value)) : std::nullopt;
    }
    object.reset();
    return text;
}

std::string Quoted(std::string_view text) {
    return "\"" + std::string(text) + "\"";
}

class NodeReader {
public:
    NodeReader(const LMFormatReadOptions& options, const char* bufferEnd)
        : m_options(options), m_bufferEnd(bufferEnd) {}

    std::shared_ptr<LMFormatNode> Node(od::value value, int depth) {
        if (m_options.cancel && m_options.cancel->load(std::memory_order_relaxed))
            throw Cancelled();
        if (depth > ILMFormatNode::MaxDepth)
            throw FormatError("nesting deeper than " + std::to_string(ILMFormatNode::MaxDepth));
        if (value.type() != od::json_type::object)
            throw FormatError("a node is not an object");
        auto node = std::make_shared<LMFormatNode>();
        QJsonObject extra;
        bool titled = false;
        for (od::field field : value.get_object()) {
            const std::string_view key = Key(field);
            od::value item = field.value();
            if (key == "title") {
                node->SetTitle(Text(item, "title"));
                titled = true;
            } else if (key == "description") {
                node->SetDescription(
                    Attribute(item, key, extra, [&] { return Text(item, "description"); }));
            } else if (key == "faceId") {
                node->SetFaceID(Attribute(item, key, extra, [&] { return Face(item); }));
            } else if (key == "presets") {
                Presets(*node, item, extra, depth);
            } else if (key == "children") {
                Children(node, item, extra, depth);
            } else {
                extra.insert(QtKey(key), QtOf(RawOf(item)));
            }
        }
        node->SetExtraFields(std::move(extra));
        node->Compact();
        // Text cut short loses the title, which is written after the lists; the
        // entries before the cut are still worth reading.
        if (!titled && !m_options.keepUnreadable)
            throw FormatError("\"title\" is missing or not text");
        if (!titled)
            RepairTitle(*node, depth);
        return node;
    }

private:
    void Presets(LMFormatNode& node, od::value& value, QJsonObject& extra, int depth) {
        if (!Attribute(value, "presets", extra, [&] { return IsList(value, "presets"); }))
            return;
        for (auto element : value.get_array()) {
            std::string_view raw;
            auto preset = Entry(
                element.value(), depth + 1, [&](od::value entry) { return Preset(entry); }, &raw);
            if (preset)
                node.AddFormatPreset(std::move(preset));
            else
                node.CarryPreset(QtOf(raw));
        }
    }

    void Children(const std::shared_ptr<LMFormatNode>& node, od::value& value, QJsonObject& extra,
                  int depth) {
        if (!Attribute(value, "children", extra, [&] { return IsList(value, "children"); }))
            return;
        for (auto element : value.get_array()) {
            std::string_view raw;
            auto child = Entry(
                element.value(), depth + 1, [&](od::value entry) { return Node(entry, depth + 1); },
                &raw);
            // A node left with nothing readable in it is carried whole, so that no
            // empty group or recent entry shows for what could not be read.
            if (child && child->FormatPresetCount() == 0 && child->ChildCount() == 0 &&
                (!child->CarriedPresets().empty() || !child->CarriedChildren().empty()))
                child.reset();
            if (!child) {
                node->CarryChild(QtOf(raw));
                continue;
            }
            child->SetParent(node);
            node->AddChild(std::move(child));
        }
    }

    // A group of stored presets is named after its format, so the format of its
    // first preset names it again; a root takes its name from whoever reads it.
    void RepairTitle(LMFormatNode& node, int depth) {
        if (node.FormatPresetCount() == 0 && depth > 0)
            throw FormatError("a node without a title or presets");
        Note(&LMFormatReadReport::repaired, QStringLiteral("no title"));
        if (node.FormatPresetCount() > 0)
            node.SetTitle(node.FormatPresetAt(0)->FormatName());
    }

    // Counts what was not understood and keeps its text for the report.
    void Note(int LMFormatReadReport::*counter, const QJsonValue& value) {
        if (!m_options.report)
            return;
        ++(m_options.report->*counter);
        std::string text;
        LMFormatJsonWriter::AppendQtValue(QJsonArray{value}, text);
        m_options.report->notUnderstood += text + "\n";
    }

    // An entry of a list: read, or with keepUnreadable, nothing when it cannot be
    // read. With keepUnreadable the entry is read from a document of its own, so
    // that whatever in it cannot be read leaves the rest of the list readable, and
    // *raw receives its text.
    template <typename Read>
    auto Entry(od::value value, int depth, const Read& read, std::string_view* raw)
        -> decltype(read(value)) {
        if (!m_options.keepUnreadable)
            return read(value);
        *raw = RawOf(value);
        try {
            od::document document = Parser(depth).iterate(
                raw->data(), raw->size(), static_cast<std::size_t>(m_bufferEnd - raw->data()));
            return read(document.get_value());
        } catch (const FormatError&) {
        } catch (const simdjson::simdjson_error&) {
        }
        Note(&LMFormatReadReport::carried, QtOf(*raw));
        return {};
    }

    // An attribute of an entry that was read: with keepUnreadable, one that cannot
    // be read takes its default rather than losing the entry, and its stored value
    // goes with the unknown fields to be written back as it was.
    template <typename Read>
    auto Attribute(od::value& value, std::string_view key, QJsonObject& extra, const Read& read)
        -> decltype(read()) {
        if (!m_options.keepUnreadable)
            return read();
        // Reading a scalar consumes it: its text is taken first. Readers check the
        // type before consuming, so a list or object is still there on failure.
        const bool container = IsContainer(value.type());
        const std::string_view token = container ? std::string_view() : RawOf(value);
        try {
            return read();
        } catch (const FormatError&) {
        } catch (const simdjson::simdjson_error&) {
        }
        const QJsonValue stored = QtOf(container ? RawOf(value) : token);
        Note(&LMFormatReadReport::repaired, QJsonObject{{QtKey(key), stored}});
        extra.insert(QtKey(key), stored);
        return {};
    }

    std::shared_ptr<ILMFormatPreset> Preset(od::value value) {
        if (value.type() != od::json_type::object)
            throw FormatError("a preset is not an object");
        od::object object = value.get_object();
        // What the streams mean depends on the container: its format is read first.
        const auto formatName = TextField(object, "format");
        if (!formatName)
            throw FormatError("a preset has no \"format\"");
        const LMContainerInfo* container = LMFormatRegistry::Instance().FindContainer(*formatName);
        if (!container)
            throw FormatError("unknown format " + Quoted(*formatName));
        auto preset = std::make_shared<LMFormatPreset>(container);
        QJsonObject extra;
        bool titled = false;
        for (od::field field : object) {
            const std::string_view key = Key(field);
            od::value item = field.value();
            if (key == "title") {
                preset->SetTitle(Text(item, "title"));
                titled = true;
            } else if (key == "description") {
                preset->ShareDescription(
                    Shared(Attribute(item, key, extra, [&] { return Text(item, "description"); })));
            } else if (key == "faceId") {
                preset->SetFaceID(Attribute(item, key, extra, [&] { return Face(item); }));
            } else if (key == "video" || key == "audio") {
                Stream(*preset, item, key == "audio");
            } else if (key == "other") {
                Other(*preset, item);
            } else if (key != "format") { // read first
                extra.insert(QtKey(key), QtOf(RawOf(item)));
            }
        }
        if (!titled)
            throw FormatError("\"title\" is missing or not text");
        preset->SetExtraFields(std::move(extra));
        return preset;
    }

    static void Stream(LMFormatPreset& preset, od::value& value, bool audio) {
        const od::json_type type = value.type();
        if (type == od::json_type::null) {
            audio ? preset.SetCurrentAudioCodec(-1) : preset.SetCurrentVideoCodec(-1);
            return;
        }
        if (type != od::json_type::object)
            throw FormatError(audio ? "\"audio\" is not an object" : "\"video\" is not an object");
        od::object object = value.get_object();
        const int codec = CodecIndex(preset.Container(), object, audio);
        audio ? preset.SetCurrentAudioCodec(codec) : preset.SetCurrentVideoCodec(codec);
        QJsonObject extra;
        for (od::field field : object) {
            const std::string_view key = Key(field);
            od::value item = field.value();
            if (key == "codec")
                continue;
            if (!Option(preset, audio, codec, key, item))
                extra.insert(QtKey(key), QtOf(RawOf(item)));
        }
        preset.SetStreamExtraFields(audio, std::move(extra));
    }

    static void Other(LMFormatPreset& preset, od::value& value) {
        if (value.type() != od::json_type::array)
            throw FormatError("\"other\" is not a list");
        for (auto element : value.get_array()) {
            od::value entry = element.value();
            if (entry.type() != od::json_type::object)
                throw FormatError("an \"other\" entry names no stream");
            od::object object = entry.get_object();
            const auto stream = TextField(object, "stream");
            if (!stream || (*stream != "audio" && *stream != "video"))
                throw FormatError("an \"other\" entry names no stream");
            const bool audio = *stream == "audio";
            const int codec = CodecIndex(preset.Container(), object, audio);
            for (od::field field : object) {
                od::value item = field.value();
                Option(preset, audio, codec, Key(field), item);
            }
        }
    }

    static int CodecIndex(const LMContainerInfo& container, od::object& object, bool audio) {
        const auto name = TextField(object, "codec");
        if (!name)
            throw FormatError("a stream names no codec");
        const int index = container.FindCodec(audio, *name);
        if (index < 0)
            throw FormatError("codec " + Quoted(*name) + " is not offered by " + container.id);
        return index;
    }

    // Reads the field key of a stream object when it is an option; false when
    // key names no option.
    static bool Option(LMFormatPreset& preset, bool audio, int codec, std::string_view key,
                       od::value& value) {
        const auto* found = std::find(std::begin(Keys::Option), std::end(Keys::Option), key);
        if (found == std::end(Keys::Option))
            return false;
        const auto which = static_cast<LMOptionList>(found - std::begin(Keys::Option));
        const LMCodecInfo* info = preset.Codec(audio, codec);
        std::string_view id;
        const bool text = value.type() == od::json_type::string;
        if (text)
            id = String(value);
        const int index = text ? info->Find(which, id) : -1;
        if (index < 0)
            throw FormatError("codec " + info->id + " has no " + std::string(key) + " " +
                              Quoted(id));
        preset.SetOption(audio, codec, which, index);
        return true;
    }

    static std::string Text(od::value& value, const char* key) {
        if (value.type() != od::json_type::string)
            throw FormatError(std::string("\"") + key + "\" is missing or not text");
        const std::string_view text = String(value);
        if (text.size() > static_cast<std::size_t>(ILMFormatNode::MaxTextLength) &&
            Utf16Length(text) > static_cast<std::size_t>(ILMFormatNode::MaxTextLength))
            throw FormatError(std::string("\"") + key + "\" is longer than " +
                              std::to_string(ILMFormatNode::MaxTextLength) + " characters");
        return std::string(text);
    }

    static int Face(od::value& value) {
        if (value.type() != od::json_type::number)
            throw FormatError("\"faceId\" is not a small whole number");
        const double number = value.get_double();
        if (number < 0 || number > ILMFormatNode::MaxFaceID || number != static_cast<int>(number))
            throw FormatError("\"faceId\" is not a small whole number");
        return static_cast<int>(number);
    }

    static bool IsList(od::value& value, const char* key) {
        if (value.type() != od::json_type::array)
            throw FormatError(std::string("\"") + key + "\" is not a list");
        return true;
    }

    // One copy of each description: presets of a catalogue share a few.
    std::shared_ptr<const std::string> Shared(std::string text) {
        if (text.empty())
            return nullptr;
        if (const auto found = m_descriptions.find(text); found != m_descriptions.end())
            return found->second;
        auto shared = std::make_shared<const std::string>(std::move(text));
        m_descriptions.emplace(*shared, shared);
        return shared;
    }

    // One parser per depth of the entries read from documents of their own: an
    // entry's document stays in use while the entries inside it are read.
    od::parser& Parser(int depth) {
        const auto index = static_cast<std::size_t>(depth);
        if (m_parsers.size() <= index)
            m_parsers.resize(index + 1);
        if (!m_parsers[index])
            m_parsers[index] = std::make_unique<od::parser>();
        return *m_parsers[index];
    }

    const LMFormatReadOptions& m_options;
    // The end of the readable bytes of the text (its padding included).
    const char* m_bufferEnd;
    std::vector<std::unique_ptr<od::parser>> m_parsers;
    std::unordered_map<std::string_view, std::shared_ptr<const std::string>> m_descriptions;
};

} // namespace

std::shared_ptr<ILMFormatNode> LMFormatJsonReader::ReadNode(const ILMJsonValue& json,
                                                            const LMFormatReadOptions& options) {
    if (!LMFormatRegistry::Instance().IsValid())
        return {};
    std::shared_ptr<ILMJsonValue> written;
    std::string_view text = json.Text();
    if (text.empty()) {
        // A value built through Qt: read as the writer writes it.
        std::string qtText;
        LMFormatJsonWriter::AppendQtValue(json.Value(), qtText);
        if (!json.Value().isObject() && !json.Value().isArray())
            return {};
        written = ILMJsonValue::MallocJsonText(std::move(qtText), true);
        text = written->Text();
    }
    try {
        od::parser parser;
        od::document document =
            parser.iterate(text.data(), text.size(), text.size() + ILMJsonValue::TextPadding);
        NodeReader reader(options, text.data() + text.size() + ILMJsonValue::TextPadding);
        return reader.Node(document.get_value(), 0);
    } catch (const Cancelled&) {
        return {};
    } catch (const FormatError& e) {
        ILMLogConfig::Printf("Format tree rejected: %s", e.what());
    } catch (const simdjson::simdjson_error& e) {
        ILMLogConfig::Printf("Format tree rejected: %s", e.what());
    }
    return {};
}

} // namespace Lumeran
