// SPDX-License-Identifier: MIT
#include "LMFormatRegistry.h"

#include "ILMLogConfig.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <stdexcept>
#include <unordered_map>

static void InitMediaFormatResources() {
    Q_INIT_RESOURCE(mediaformat);
}

namespace Lumeran {

namespace {

QLatin1StringView View(const std::string& text) {
    return QLatin1StringView(text.data(), static_cast<qsizetype>(text.size()));
}

bool SameId(QStringView id, const std::string& mine) {
    return id == View(mine);
}

bool SameId(std::string_view id, const std::string& mine) {
    return id == mine;
}

template <typename List, typename Id>
int FindIn(const List& list, Id id) {
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (SameId(id, list[i]->IdRef()))
            return static_cast<int>(i);
    }
    return -1;
}

// The entry with that id in the codec's list, or -1; ids come as Qt or UTF-8 text.
template <typename Id>
int FindOption(const LMCodecInfo& codec, LMOptionList list, Id id) {
    switch (list) {
    case LMOptionList::Resolution:
        return FindIn(codec.resolutions, id);
    case LMOptionList::Framerate:
        return FindIn(codec.framerates, id);
    case LMOptionList::Quality:
        return FindIn(codec.qualities, id);
    case LMOptionList::Samplerate:
        return FindIn(codec.samplerates, id);
    case LMOptionList::ChannelLayout:
        return FindIn(codec.channelLayouts, id);
    }
    return -1;
}

// Reading failures inside the loader are thrown and caught at its edge, so the
// table's checks read as a list; nothing escapes FromJson.
struct RegistryError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

std::string Str(const QJsonObject& object, const char* key, bool required = true) {
    const QJsonValue value = object.value(QLatin1StringView(key));
    if (value.isString())
        return value.toString().toStdString();
    if (required || !value.isUndefined())
        throw RegistryError(std::string("missing or non-text \"") + key + "\"");
    return {};
}

std::vector<std::string> Strings(const QJsonObject& object, const char* key) {
    std::vector<std::string> result;
    for (const QJsonValue& value : object.value(QLatin1StringView(key)).toArray())
        result.push_back(value.toString().toStdString());
    return result;
}

using OptionTable = std::unordered_map<std::string, std::shared_ptr<const LMOptionPreset>>;

OptionTable ReadOptions(const QJsonArray& array) {
    OptionTable table;
    for (const QJsonValue& value : array) {
        const QJsonObject object = value.toObject();
        LMOptionPreset::Data data;
        data.id = Str(object, "id");
        data.name = Str(object, "name");
        data.automatic = object.value(QLatin1StringView("auto")).toBool();
        data.width = object.value(QLatin1StringView("width")).toInt();
        data.height = object.value(QLatin1StringView("height")).toInt();
        data.rate = Str(object, "rate", false);
        if (!data.rate.empty()) {
            const auto slash = data.rate.find('/');
            data.framesPerSecond = slash == std::string::npos
                                       ? std::stod(data.rate)
                                       : std::stod(data.rate.substr(0, slash)) /
                                             std::stod(data.rate.substr(slash + 1));
        }
        data.hertz = object.value(QLatin1StringView("hertz")).toInt();
        data.channels = object.value(QLatin1StringView("channels")).toInt();
        data.layout = Str(object, "layout", false);
        const std::string id = data.id;
        table.emplace(id, std::make_shared<const LMOptionPreset>(std::move(data)));
    }
    return table;
}

std::vector<std::shared_ptr<const LMOptionPreset>> Pick(const OptionTable& table,
                                                        const QJsonObject& codec, const char* key) {
    std::vector<std::shared_ptr<const LMOptionPreset>> result;
    for (const std::string& id : Strings(codec, key)) {
        const auto found = table.find(id);
        if (found == table.end())
            throw RegistryError("unknown option \"" + id + "\" in " + key);
        result.push_back(found->second);
    }
    return result;
}

ILMCodecQualityPreset::Kind QualityKind(const std::string& text) {
    if (text == "crf")
        return ILMCodecQualityPreset::Kind::Crf;
    if (text == "bitrate")
        return ILMCodecQualityPreset::Kind::Bitrate;
    if (text == "qscale")
        return ILMCodecQualityPreset::Kind::QScale;
    if (text == "profile")
        return ILMCodecQualityPreset::Kind::Profile;
    throw RegistryError("unknown quality kind \"" + text + "\"");
}

std::string LowerAscii(std::string text) {
    for (char& c : text) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    return text;
}

} // namespace

class LMFormatRegistryLoader {
public:
    static void Load(LMFormatRegistry& registry, const QJsonObject& root) {
        const OptionTables options{
            ReadOptions(root.value(QLatin1StringView("resolutions")).toArray()),
            ReadOptions(root.value(QLatin1StringView("framerates")).toArray()),
            ReadOptions(root.value(QLatin1StringView("samplerates")).toArray()),
            ReadOptions(root.value(QLatin1StringView("channelLayouts")).toArray())};

        CodecTable video;
        CodecTable audio;
        for (const bool isVideo : {true, false}) {
            const char* key = isVideo ? "videoCodecs" : "audioCodecs";
            auto& table = isVideo ? video : audio;
            for (const QJsonValue& value : root.value(QLatin1StringView(key)).toArray()) {
                auto codec = ReadCodec(value.toObject(), options, isVideo);
                if (!table.emplace(codec->id, codec.get()).second)
                    throw RegistryError("duplicate codec \"" + codec->id + "\"");
                registry.m_codecs.push_back(std::move(codec));
            }
        }

        for (const QJsonValue& value : root.value(QLatin1StringView("containers")).toArray())
            registry.m_containers.push_back(ReadContainer(value.toObject(), video, audio));
        if (registry.m_containers.empty())
            throw RegistryError("no containers");
    }

private:
    using CodecTable = std::unordered_map<std::string, const LMCodecInfo*>;
    struct OptionTables {
        OptionTable resolutions, framerates, samplerates, channels;
    };

    static std::unique_ptr<LMCodecInfo> ReadCodec(const QJsonObject& object,
                                                  const OptionTables& options, bool isVideo) {
        auto codec = std::make_unique<LMCodecInfo>();
        codec->id = Str(object, "id");
        codec->name = Str(object, "name");
        codec->encoder = Str(object, "encoder");
        codec->streamCodec = Str(object, "stream");
        codec->pixelFormat = Str(object, "pixelFormat", false);
        codec->args = Strings(object, "args");
        codec->video = isVideo;
        codec->resolutions = Pick(options.resolutions, object, "resolutions");
        codec->framerates = Pick(options.framerates, object, "framerates");
        codec->samplerates = Pick(options.samplerates, object, "samplerates");
        codec->channelLayouts = Pick(options.channels, object, "channels");
        for (const QJsonValue& q : object.value(QLatin1StringView("qualities")).toArray())
            codec->qualities.push_back(ReadQuality(q.toObject()));
        ReadDefaults(*codec, object.value(QLatin1StringView("defaults")).toObject());
        return codec;
    }

    static std::shared_ptr<const LMQualityPreset> ReadQuality(const QJsonObject& quality) {
        LMQualityPreset::Data data;
        data.name = Str(quality, "name");
        data.id = LowerAscii(data.name);
        data.kind = QualityKind(Str(quality, "kind"));
        data.value = Str(quality, "value");
        data.pixelFormat = Str(quality, "pixelFormat", false);
        return std::make_shared<const LMQualityPreset>(std::move(data));
    }

    static std::unique_ptr<LMContainerInfo>
    ReadContainer(const QJsonObject& object, const CodecTable& video, const CodecTable& audio) {
        auto container = std::make_unique<LMContainerInfo>();
        container->id = Str(object, "id");
        container->name = Str(object, "name");
        container->muxer = Str(object, "muxer");
        container->extension = Str(object, "extension");
        container->args = Strings(object, "args");
        for (const bool isVideo : {true, false}) {
            const auto& table = isVideo ? video : audio;
            for (const std::string& id : Strings(object, isVideo ? "video" : "audio")) {
                const auto found = table.find(id);
                if (found == table.end())
                    throw RegistryError("container " + container->id + " lists unknown codec " +
                                        id);
                (isVideo ? container->video : container->audio).push_back(found->second);
            }
        }
        const QJsonObject codecArgs = object.value(QLatin1StringView("codecArgs")).toObject();
        for (auto it = codecArgs.begin(); it != codecArgs.end(); ++it) {
            std::vector<std::string> args;
            for (const QJsonValue& arg : it.value().toArray())
                args.push_back(arg.toString().toStdString());
            container->codecArgs.emplace(it.key().toStdString(), std::move(args));
        }
        return container;
    }

    static void ReadDefaults(LMCodecInfo& codec, const QJsonObject& defaults) {
        static constexpr const char* keys[LMOptionListCount] = {
            "resolution", "framerate", "quality", "samplerate", "channels"};
        for (int list = 0; list < LMOptionListCount; ++list) {
            const auto which = static_cast<LMOptionList>(list);
            if (codec.Count(which) > 127)
                throw RegistryError("codec " + codec.id + " has too many options");
            int index = codec.Count(which) > 0 ? 0 : -1;
            const QJsonValue value = defaults.value(QLatin1StringView(keys[list]));
            if (value.isString()) {
                index = codec.Find(which, value.toString());
                if (index < 0)
                    throw RegistryError("codec " + codec.id + " defaults to an option it lacks");
            }
            codec.defaults[static_cast<std::size_t>(list)] = index;
        }
    }
};

int LMCodecInfo::Count(LMOptionList list) const {
    switch (list) {
    case LMOptionList::Resolution:
        return static_cast<int>(resolutions.size());
    case LMOptionList::Framerate:
        return static_cast<int>(framerates.size());
    case LMOptionList::Quality:
        return static_cast<int>(qualities.size());
    case LMOptionList::Samplerate:
        return static_cast<int>(samplerates.size());
    case LMOptionList::ChannelLayout:
        return static_cast<int>(channelLayouts.size());
    }
    return 0;
}

int LMCodecInfo::Find(LMOptionList list, QStringView id) const {
    return FindOption(*this, list, id);
}

int LMCodecInfo::Find(LMOptionList list, std::string_view id) const {
    return FindOption(*this, list, id);
}

const std::string& LMCodecInfo::IdAt(LMOptionList list, int index) const {
    const auto i = static_cast<std::size_t>(index);
    switch (list) {
    case LMOptionList::Resolution:
        return resolutions.at(i)->IdRef();
    case LMOptionList::Framerate:
        return framerates.at(i)->IdRef();
    case LMOptionList::Quality:
        return qualities.at(i)->IdRef();
    case LMOptionList::Samplerate:
        return samplerates.at(i)->IdRef();
    case LMOptionList::ChannelLayout:
        break;
    }
    return channelLayouts.at(i)->IdRef();
}

int LMContainerInfo::FindCodec(bool audioStream, QStringView id) const {
    const auto& codecs = Codecs(audioStream);
    for (std::size_t i = 0; i < codecs.size(); ++i) {
        if (id == View(codecs[i]->id))
            return static_cast<int>(i);
    }
    return -1;
}

int LMContainerInfo::FindCodec(bool audioStream, std::string_view id) const {
    const auto& codecs = Codecs(audioStream);
    for (std::size_t i = 0; i < codecs.size(); ++i) {
        if (id == codecs[i]->id)
            return static_cast<int>(i);
    }
    return -1;
}

const LMContainerInfo* LMFormatRegistry::FindContainer(QStringView idOrName) const {
    for (const auto& container : m_containers) {
        if (idOrName == View(container->id))
            return container.get();
    }
    for (const auto& container : m_containers) {
        if (idOrName == QString::fromStdString(container->name))
            return container.get();
    }
    return nullptr;
}

const LMContainerInfo* LMFormatRegistry::FindContainer(std::string_view idOrName) const {
    for (const auto& container : m_containers) {
        if (idOrName == container->id)
            return container.get();
    }
    for (const auto& container : m_containers) {
        if (idOrName == container->name)
            return container.get();
    }
    return nullptr;
}

std::unique_ptr<LMFormatRegistry> LMFormatRegistry::FromJson(const QByteArray& json,
                                                             std::string* error) {
    auto registry = std::make_unique<LMFormatRegistry>();
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(json, &parseError);
    try {
        if (!document.isObject())
            throw RegistryError("not a JSON object: " + parseError.errorString().toStdString());
        LMFormatRegistryLoader::Load(*registry, document.object());
    } catch (const std::exception& e) {
        if (error)
            *error = e.what();
        return std::make_unique<LMFormatRegistry>();
    }
    return registry;
}

const LMFormatRegistry& LMFormatRegistry::Instance() {
    // Never destroyed: a loader thread abandoned at exit may still be reading
    // with it while static objects are torn down.
    static const LMFormatRegistry* const instance = [] {
        InitMediaFormatResources();
        QFile file(QStringLiteral(":/LMMediaFormat/registry.json"));
        std::string error = "the embedded table is missing";
        std::unique_ptr<LMFormatRegistry> registry;
        if (file.open(QIODevice::ReadOnly))
            registry = FromJson(file.readAll(), &error);
        if (!registry || !registry->IsValid()) {
            ILMLogConfig::Printf("Format registry unusable: %s", error.c_str());
            registry = std::make_unique<LMFormatRegistry>();
        }
        return registry.release();
    }();
    return *instance;
}

} // namespace Lumeran
