// SPDX-License-Identifier: MIT
#include "ILMJsonWriter.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Lumeran {

std::string ILMJsonWriter::WriteJsonString(std::shared_ptr<const ILMJsonValue> value) {
    if (!value)
        return {};
    if (value->TextIsWritten())
        return std::string(value->Text());
    const QJsonValue& json = value->Value();
    QJsonDocument document;
    if (json.isObject())
        document.setObject(json.toObject());
    else if (json.isArray())
        document.setArray(json.toArray());
    else
        return {};
    return document.toJson(QJsonDocument::Compact).toStdString();
}

} // namespace Lumeran
