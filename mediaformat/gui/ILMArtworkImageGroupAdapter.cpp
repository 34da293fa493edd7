// SPDX-License-Identifier: MIT
#include "ILMArtworkImageGroupAdapter.h"

#include <QFileInfo>
#include <QHash>
#include <QImageReader>
#include <QSvgRenderer>

namespace Lumeran {

namespace {

bool Readable(const QString& path) {
    if (path.endsWith(QLatin1StringView(".svg"), Qt::CaseInsensitive))
        return QSvgRenderer(path).isValid();
    return QImageReader(path).canRead();
}

} // namespace

QIcon ILMArtworkImageGroupAdapter::imageFromArtworkImageGroup(
    const std::shared_ptr<const ILMArtworkImageGroup>& group) {
    if (!group)
        return {};
    // Icons are asked for once per cell; parse each group's files only once.
    static QHash<QString, QIcon> cache;
    QString key;
    const auto paths = group->ImagePaths();
    for (const std::string& path : paths)
        key += QString::fromStdString(path) + QLatin1Char('\n');
    if (const auto found = cache.constFind(key); found != cache.constEnd())
        return *found;
    QIcon icon;
    for (const std::string& path : paths) {
        const QString file = QString::fromStdString(path);
        if (Readable(file))
            icon.addFile(file);
    }
    cache.insert(key, icon);
    return icon;
}

} // namespace Lumeran
