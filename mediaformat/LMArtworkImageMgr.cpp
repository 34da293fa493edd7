// SPDX-License-Identifier: MIT
#include "LMArtworkImageMgr.h"

#include "ILMJsonReader.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

namespace Lumeran {

namespace {

// An image named by a configuration stays inside the configuration's folder: a
// catalogue from elsewhere must not make the popup open arbitrary files.
QString ImagePath(const QDir& base, const QString& name) {
    if (name.isEmpty() || QDir::isAbsolutePath(name))
        return {};
    const QString root = QDir::cleanPath(base.absolutePath());
    const QString path = QDir::cleanPath(base.absoluteFilePath(name));
    if (!path.startsWith(root + QLatin1Char('/')))
        return {};
    const QFileInfo info(path);
    if (!info.isFile())
        return {};
    // A link may point out of the folder; resources have no links.
    if (info.isSymLink()) {
        const QString target = info.canonicalFilePath();
        const QString canonicalRoot = QFileInfo(root).canonicalFilePath();
        if (target.isEmpty() || !target.startsWith(canonicalRoot + QLatin1Char('/')))
            return {};
    }
    return path;
}

} // namespace

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
            if (const QString path = ImagePath(base, image.toString()); !path.isEmpty())
                paths.push_back(path.toStdString());
        }
        if (!paths.empty())
            manager->Add(std::make_shared<LMArtworkImageGroup>(face.toInt(), std::move(paths)));
    }
    return manager;
}

} // namespace Lumeran
