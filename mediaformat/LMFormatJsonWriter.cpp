// SPDX-License-Identifier: MIT
#include "LMFormatJsonWriter.h"

#include "LMFormatJsonKeys.h"
#include "LMFormatNode.h"
#include "LMFormatPreset.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringDecoder>

#include <simdjson.h>

#include <algorithm>
#include <functional>

namespace Lumeran {

namespace {

// One JSON object, its fields given by the caller in the order of their keys;
// the fields another version wrote (extra) are merged in at their places, as a
// QJsonObject keeps its keys sorted. A field the caller writes wins over an
// extra field of the same key.
class ObjectWriter {
public:
    ObjectWriter(std::string& out, const QJsonObject& extra)
        : m_out(out), m_next(extra.begin()), m_end(extra.end()) {
        m_out.push_back('{');
    }
    ObjectWriter(const ObjectWriter&) = delete;
    ObjectWriter& operator=(const ObjectWriter&) = delete;
    ~ObjectWriter() = default;

    // Starts the field named key (plain ASCII); the caller appends its value.
    void Key(std::string_view key) {
        const QLatin1StringView latin(key.data(), static_cast<qsizetype>(key.size()));
        for (; m_next != m_end; ++m_next) {
            const int order = m_next.key().compare(latin);
            if (order > 0)
                break;
            if (order < 0)
                Extra();
        }
        Separator();
        m_out.push_back('"');
        m_out.append(key);
        m_out.append("\":");
    }
    void End() {
        for (; m_next != m_end; ++m_next)
            Extra();
        m_out.push_back('}');
    }

private:
    void Separator() {
        if (m_any)
            m_out.push_back(',');
        m_any = true;
    }
    void Extra() {
        Separator();
        LMFormatJsonWriter::AppendQtValue(m_next.key(), m_out);
        m_out.push_back(':');
        LMFormatJsonWriter::AppendQtValue(m_next.value(), m_out);
    }

    std::string& m_out;
    QJsonObject::const_iterator m_next;
    QJsonObject::const_iterator m_end;
    bool m_any = false;
};

const QJsonObject& NoExtra() {
    static const QJsonObject empty;
    return empty;
}

void AppendNumber(int number, std::string& out) {
    out.append(std::to_string(number));
}

// The escape QJsonDocument writes for a byte below 0x20, '"' or '\'; none for
// any other byte.
std::string_view Escape(unsigned char c, char (&buffer)[7]) {
    static constexpr char kHex[] = "0123456789abcdef";
    switch (c) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\b':
        return "\\b";
    case '\f':
        return "\\f";
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default:
        break;
    }
    if (c >= 0x20)
        return {};
    buffer[0] = '\\';
    buffer[1] = 'u';
    buffer[2] = '0';
    buffer[3] = '0';
    buffer[4] = kHex[c >> 4];
    buffer[5] = kHex[c & 0xF];
    return std::string_view(buffer, 6);
}

// Whether a preset keeps a choice away from the defaults for a codec.
bool HasChoices(const LMFormatPreset& preset, bool audio, int codec) {
    const LMCodecInfo* info = preset.Codec(audio, codec);
    for (int list = 0; list < LMOptionListCount; ++list) {
        const int index = preset.Option(audio, codec, static_cast<LMOptionList>(list));
        if (index >= 0 && index != info->defaults[static_cast<std::size_t>(list)])
            return true;
    }
    return false;
}

void AppendOption(const LMFormatPreset& preset, bool audio, int codec, LMOptionList list,
                  ObjectWriter& object, std::string& out) {
    const LMCodecInfo* info = preset.Codec(audio, codec);
    const int index = preset.Option(audio, codec, list);
    if (index < 0 || index == info->defaults[static_cast<std::size_t>(list)])
        return;
    object.Key(LMFormatJsonKeys::Option[static_cast<std::size_t>(list)]);
    LMFormatJsonWriter::AppendString(info->IdAt(list, index), out);
}

// A stream object: the codec and the options away from its defaults; with
// stream set, the entry of "other" that names its stream.
void AppendStream(const LMFormatPreset& preset, bool audio, int codec, const QJsonObject& extra,
                  bool withStream, std::string& out) {
    ObjectWriter object(out, extra);
    AppendOption(preset, audio, codec, LMOptionList::ChannelLayout, object, out);
    object.Key("codec");
    LMFormatJsonWriter::AppendString(preset.Codec(audio, codec)->id, out);
    for (const LMOptionList list : {LMOptionList::Framerate, LMOptionList::Quality,
                                    LMOptionList::Resolution, LMOptionList::Samplerate})
        AppendOption(preset, audio, codec, list, object, out);
    if (withStream) {
        object.Key("stream");
        out.append(audio ? "\"audio\"" : "\"video\"");
    }
    object.End();
}

// "video" or "audio": the current codec, or null for no such stream.
void AppendCurrentStream(const LMFormatPreset& preset, bool audio, ObjectWriter& object,
                         std::string& out) {
    const int count = audio ? preset.AudioCodecCount() : preset.VideoCodecCount();
    if (count == 0)
        return;
    object.Key(audio ? "audio" : "video");
    const int current = audio ? preset.CurrentAudioCodecIndex() : preset.CurrentVideoCodecIndex();
    if (current < 0)
        out.append("null");
    else
        AppendStream(preset, audio, current, preset.StreamExtraFields(audio), false, out);
}

// "other": the choices kept for codecs that are not current, video first.
void AppendOther(const LMFormatPreset& preset, ObjectWriter& object, std::string& out) {
    bool any = false;
    for (const bool audio : {false, true}) {
        const int current =
            audio ? preset.CurrentAudioCodecIndex() : preset.CurrentVideoCodecIndex();
        const int count = audio ? preset.AudioCodecCount() : preset.VideoCodecCount();
        for (int codec = 0; codec < count; ++codec) {
            if (codec == current || !HasChoices(preset, audio, codec))
                continue;
            if (!any)
                object.Key("other");
            out.push_back(any ? ',' : '[');
            any = true;
            AppendStream(preset, audio, codec, NoExtra(), true, out);
        }
    }
    if (any)
        out.push_back(']');
}

// What nodes and presets write alike, for the keys before "format"/"presets":
// the description and the face only when they are set.
template <typename Item>
void AppendDescriptionAndFace(const Item& item, ObjectWriter& object, std::string& out) {
    if (const std::string description = item.Description(); !description.empty()) {
        object.Key("description");
        LMFormatJsonWriter::AppendString(description, out);
    }
    if (item.FaceID() != 0) {
        object.Key("faceId");
        AppendNumber(item.FaceID(), out);
    }
}

void AppendPreset(const LMFormatPreset& preset, std::string& out) {
    ObjectWriter object(out, preset.ExtraFields());
    AppendCurrentStream(preset, true, object, out);
    AppendDescriptionAndFace(preset, object, out);
    object.Key("format");
    LMFormatJsonWriter::AppendString(preset.FormatId(), out);
    AppendOther(preset, object, out);
    object.Key("title");
    LMFormatJsonWriter::AppendString(preset.Title(), out);
    AppendCurrentStream(preset, false, object, out);
    object.End();
}

// A list of readable entries with the carried ones back in their places:
// entry(i) gives the writer of entry i, or null for one that is not written.
// Nothing at all when the list has no entry.
template <typename Entry>
void AppendList(std::string_view key, int count, const std::vector<LMFormatNode::Carried>& carried,
                ObjectWriter& object, std::string& out, const Entry& entry) {
    std::vector<const LMFormatNode::Carried*> pending;
    pending.reserve(carried.size());
    for (const auto& item : carried)
        pending.push_back(&item);
    std::stable_sort(pending.begin(), pending.end(),
                     [](const auto* a, const auto* b) { return a->before < b->before; });
    bool any = false;
    const auto separator = [&] {
        if (!any)
            object.Key(key);
        out.push_back(any ? ',' : '[');
        any = true;
    };
    auto next = pending.begin();
    for (int i = 0; i <= count; ++i) {
        for (; next != pending.end() && (*next)->before <= static_cast<std::size_t>(i); ++next) {
            separator();
            LMFormatJsonWriter::AppendQtValue((*next)->json, out);
        }
        if (i == count)
            break;
        if (const auto write = entry(i)) {
            separator();
            write(out);
        }
    }
    for (; next != pending.end(); ++next) {
        separator();
        LMFormatJsonWriter::AppendQtValue((*next)->json, out);
    }
    if (any)
        out.push_back(']');
}

const LMFormatNode* AsNode(const std::shared_ptr<const ILMFormatNode>& node) {
    return dynamic_cast<const LMFormatNode*>(node.get());
}

const LMFormatPreset* AsPreset(const std::shared_ptr<const ILMFormatPreset>& preset) {
    return dynamic_cast<const LMFormatPreset*>(preset.get());
}

// The node's object; the text of each child is the one its cache holds (see Ensure).
void AppendNode(const LMFormatNode& node, std::string& out) {
    ObjectWriter object(out, node.ExtraFields());
    using Write = std::function<void(std::string&)>;
    AppendList("children", node.ChildCount(), node.CarriedChildren(), object, out,
               [&](int i) -> Write {
                   const LMFormatNode* child = AsNode(node.ChildAt(i));
                   if (!child)
                       return {};
                   return [child](std::string& text) { text.append(child->JsonTextCache().text); };
               });
    AppendDescriptionAndFace(node, object, out);
    AppendList("presets", node.FormatPresetCount(), node.CarriedPresets(), object, out,
               [&](int i) -> Write {
                   const LMFormatPreset* preset = AsPreset(node.FormatPresetAt(i));
                   if (!preset)
                       return {};
                   return [preset](std::string& text) { AppendPreset(*preset, text); };
               });
    object.Key("title");
    LMFormatJsonWriter::AppendString(node.Title(), out);
    object.End();
}

// Brings the text cache of every node below node (children, their children...)
// up to date; returns the bytes those children's texts hold.
std::size_t EnsureChildren(const LMFormatNode& node);

// Brings node's own text cache up to date and returns its stamp: a number that
// changes whenever its text does.
std::uint64_t Ensure(const LMFormatNode& node) {
    LMFormatNode::TextCache& cache = node.JsonTextCache();
    const std::size_t count = static_cast<std::size_t>(node.FormatPresetCount()) +
                              static_cast<std::size_t>(node.ChildCount());
    bool same =
        cache.stamp != 0 && cache.revision == node.Revision() && cache.pieces.size() == count;
    cache.pieces.resize(count);
    std::size_t piece = 0;
    const auto note = [&](std::uint64_t stamp) {
        if (cache.pieces[piece] != stamp) {
            cache.pieces[piece] = stamp;
            same = false;
        }
        ++piece;
    };
    for (int i = 0; i < node.FormatPresetCount(); ++i) {
        const LMFormatPreset* preset = AsPreset(node.FormatPresetAt(i));
        note(preset ? preset->Revision() : 0);
    }
    for (int i = 0; i < node.ChildCount(); ++i) {
        const LMFormatNode* child = AsNode(node.ChildAt(i));
        note(child ? Ensure(*child) : 0);
    }
    if (same)
        return cache.stamp;
    cache.text.clear();
    AppendNode(node, cache.text);
    cache.text.shrink_to_fit();
    cache.revision = node.Revision();
    cache.stamp = LMFormatRevision::Next();
    return cache.stamp;
}

std::size_t EnsureChildren(const LMFormatNode& node) {
    std::size_t bytes = 0;
    for (int i = 0; i < node.ChildCount(); ++i) {
        if (const LMFormatNode* child = AsNode(node.ChildAt(i))) {
            Ensure(*child);
            bytes += child->JsonTextCache().text.size() + 1;
        }
    }
    return bytes;
}

} // namespace

std::string LMFormatJsonWriter::NodeText(const LMFormatNode& node) {
    // The node itself is not kept: the node a caller writes is the one that
    // changed (a list's root), and its text is the caller's.
    const std::size_t childBytes = EnsureChildren(node);
    std::string out;
    out.reserve(childBytes + 256 * static_cast<std::size_t>(node.FormatPresetCount()) + 256);
    AppendNode(node, out);
    return out;
}

std::string LMFormatJsonWriter::PresetText(const LMFormatPreset& preset) {
    std::string out;
    AppendPreset(preset, out);
    return out;
}

void LMFormatJsonWriter::AppendString(std::string_view text, std::string& out) {
    const bool ascii = std::all_of(text.begin(), text.end(),
                                   [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    // Bytes that are no UTF-8 become what Qt makes of them (U+FFFD). A byte order
    // mark at the start of a text is kept, where Qt's conversion dropped it and
    // the text did not read back as it was.
    if (!ascii && !simdjson::validate_utf8(text.data(), text.size())) {
        AppendQtValue(ToQString(text), out);
        return;
    }
    out.reserve(out.size() + text.size() + 2);
    out.push_back('"');
    std::size_t plain = 0;
    char buffer[7];
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::string_view escape = Escape(static_cast<unsigned char>(text[i]), buffer);
        if (escape.empty())
            continue;
        out.append(text.substr(plain, i - plain));
        out.append(escape);
        plain = i + 1;
    }
    out.append(text.substr(plain));
    out.push_back('"');
}

QString LMFormatJsonWriter::ToQString(std::string_view text) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless |
                                                     QStringDecoder::Flag::ConvertInitialBom);
    return decoder(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
}

void LMFormatJsonWriter::AppendQtValue(const QJsonValue& value, std::string& out) {
    // QJsonDocument writes objects and arrays only: the value goes in a list of
    // one, whose brackets are left out.
    const QByteArray text = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    out.append(text.constData() + 1, static_cast<std::size_t>(text.size() - 2));
}

} // namespace Lumeran
