// SPDX-License-Identifier: MIT
#include "ILMJsonValue.h"

namespace Lumeran {

namespace {

class LMJsonValue final : public ILMJsonValue {
public:
    explicit LMJsonValue(QJsonValue value) : m_value(std::move(value)) {}
    const QJsonValue& Value() const override { return m_value; }

private:
    QJsonValue m_value;
};

} // namespace

std::shared_ptr<ILMJsonValue> ILMJsonValue::MallocJsonValue(QJsonValue value) {
    return std::make_shared<LMJsonValue>(std::move(value));
}

} // namespace Lumeran
