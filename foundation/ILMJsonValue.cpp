// SPDX-License-Identifier: MIT
#include "ILMJsonValue.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <mutex>

namespace Lumeran {

namespace {

class LMJsonValue final : public ILMJsonValue {
public:
    explicit LMJsonValue(QJsonValue value) : m_value(std::move(value)) {}
    const QJsonValue& Value() const override { return m_value; }

private:
    QJsonValue m_value;
};

class LMJsonText final : public ILMJsonValue {
public:
    LMJsonText(std::string text, bool written) : m_text(std::move(text)), m_written(written) {
        const std::size_t size = m_text.size();
        // Padding is bytes the string owns: reserve keeps them allocated, and a
        // resize and shrink back makes them readable without changing the text.
        m_text.reserve(size + TextPadding);
        m_text.resize(size + TextPadding, ' ');
        m_text.resize(size);
    }

    const QJsonValue& Value() const override {
        std::call_once(m_built, [this] {
            const QJsonDocument document = QJsonDocument::fromJson(
                QByteArray::fromRawData(m_text.data(), static_cast<qsizetype>(m_text.size())));
            if (document.isObject())
                m_value = document.object();
            else if (document.isArray())
                m_value = document.array();
        });
        return m_value;
    }
    std::string_view Text() const override { return m_text; }
    bool TextIsWritten() const override { return m_written; }

private:
    std::string m_text;
    bool m_written;
    mutable std::once_flag m_built;
    mutable QJsonValue m_value;
};

} // namespace

std::shared_ptr<ILMJsonValue> ILMJsonValue::MallocJsonValue(QJsonValue value) {
    return std::make_shared<LMJsonValue>(std::move(value));
}

std::shared_ptr<ILMJsonValue> ILMJsonValue::MallocJsonText(std::string text, bool written) {
    return std::make_shared<LMJsonText>(std::move(text), written);
}

} // namespace Lumeran
