#include "LMArtworkImageMgr.h"

#include "ILMJsonReader.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

namespace Lumeran {

std::shared_ptr<ILMArtworkImageGroup> LMArtworkImageMgr::ArtworkGroup(int faceID) const {
    const auto found = m_groups.find(faceID);
    return found == m_groups.end() ? nullptr : found->second;
}

void LMArtworkImageMgr::Add(std::shared_ptr<ILMArtworkImageGroup> group) {
    const int faceID = group->FaceID();
    m_groups[faceID] = std::move(group);
}

std::shared_ptr<ILMArtworkImageMgr>
ILMArtworkImageMgr::MallocArtworkImageMgr(const std::string& icfgPath,
                                          std::shared_ptr<const ILMError>* error) {
    const auto json = ILMJsonReader::ReadJsonFile(icfgPath, error);
    if (!json)
        return {};
    const QJsonValue artwork = json->Value().toObject().value(QLatin1StringView("artwork"));
    if (!artwork.isArray()) {
        ILMError::Report(error, ILMError::FormatError, "no \"artwork\" list in " + icfgPath);
        return {};
    }
    // Image paths are relative to the configuration's own folder, which may be a
    // resource folder (":/...") as well as one on disk.
    const QDir base = QFileInfo(QString::fromStdString(icfgPath)).dir();
    auto manager = std::make_shared<LMArtworkImageMgr>();
    for (const QJsonValue& entry : artwork.toArray()) {
        const QJsonObject object = entry.toObject();
        const QJsonValue face = object.value(QLatin1StringView("faceId"));
        if (!face.isDouble())
            continue;
        std::vector<std::string> paths;
        for (const QJsonValue& image : object.value(QLatin1StringView("images")).toArray()) {
            const QString path = base.filePath(image.toString());
            if (!image.toString().isEmpty() && QFileInfo(path).isFile())
                paths.push_back(QDir::cleanPath(path).toStdString());
        }
        if (!paths.empty())
            manager->Add(std::make_shared<LMArtworkImageGroup>(face.toInt(), std::move(paths)));
    }
    return manager;
}

} // namespace Lumeran
