// SPDX-License-Identifier: MIT
#pragma once

#include "LMFoundationExport.h"

#include <QJsonValue>

#include <memory>

namespace Lumeran {

// An immutable JSON value. Readers hand these out, writers take them; the
// format model builds and reads them through Value().
class LMFOUNDATION_EXPORT ILMJsonValue {
public:
    virtual ~ILMJsonValue() = default;
    virtual const QJsonValue& Value() const = 0;

    static std::shared_ptr<ILMJsonValue> MallocJsonValue(QJsonValue value);
};

} // namespace Lumeran
