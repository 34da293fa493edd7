#include "ILMJsonReader.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Lumeran {

namespace {

std::shared_ptr<const ILMJsonValue> Parse(const QByteArray& text,
                                          std::shared_ptr<const ILMError>* error) {
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(text, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        ILMError::Report(error, ILMError::ParseError,
                         parseError.errorString().toStdString() + " at offset " +
                             std::to_string(parseError.offset));
        return {};
    }
    if (document.isObject())
        return ILMJsonValue::MallocJsonValue(document.object());
    if (document.isArray())
        return ILMJsonValue::MallocJsonValue(document.array());
    ILMError::Report(error, ILMError::ParseError, "empty JSON document");
    return {};
}

} // namespace

std::shared_ptr<const ILMJsonValue>
ILMJsonReader::ReadJsonFile(const std::string& path, std::shared_ptr<const ILMError>* error) {
    const QString fileName = QString::fromStdString(path);
    const QFileInfo info(fileName);
    if (!info.exists() || info.isDir()) {
        ILMError::Report(error, ILMError::FileError, "not a file: " + path);
        return {};
    }
    if (info.size() > MaxFileSize) {
        ILMError::Report(error, ILMError::LimitError, "file too large: " + path);
        return {};
    }
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        ILMError::Report(error, ILMError::FileError,
                         "cannot open " + path + ": " + file.errorString().toStdString());
        return {};
    }
    return Parse(file.readAll(), error);
}

std::shared_ptr<const ILMJsonValue>
ILMJsonReader::ReadJsonString(const std::string& text, std::shared_ptr<const ILMError>* error) {
    if (static_cast<std::int64_t>(text.size()) > MaxFileSize) {
        ILMError::Report(error, ILMError::LimitError, "text too large");
        return {};
    }
    return Parse(QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size())), error);
}

} // namespace Lumeran
