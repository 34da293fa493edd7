#include "ILMBase64Codec.h"

#include <QByteArray>

namespace Lumeran {

namespace {

QByteArray View(std::string_view data) {
    return QByteArray::fromRawData(data.data(), static_cast<qsizetype>(data.size()));
}

} // namespace

std::string ILMBase64Codec::Encode(std::string_view data) {
    return View(data).toBase64().toStdString();
}

std::string ILMBase64Codec::Decode(std::string_view text) {
    const auto result =
        QByteArray::fromBase64Encoding(View(text), QByteArray::AbortOnBase64DecodingErrors);
    if (!result)
        return {};
    return result.decoded.toStdString();
}

} // namespace Lumeran
