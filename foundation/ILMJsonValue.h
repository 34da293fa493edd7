// SPDX-License-Identifier: MIT
#pragma once

#include "LMFoundationExport.h"

#include <QJsonValue>

#include <memory>
#include <string>
#include <string_view>

namespace Lumeran {

// An immutable JSON value. Readers hand these out, writers take them. A value
// read from text, or written by the format model, keeps its text and builds the
// Qt form only when Value() is first asked for: the format model reads and
// writes the text directly, so large catalogues and long lists never pay for a
// document they do not need.
class LMFOUNDATION_EXPORT ILMJsonValue {
public:
    // Bytes kept readable after a value's text, which the fast reader needs to
    // look past the end without a bounds check.
    static constexpr std::size_t TextPadding = 64;

    virtual ~ILMJsonValue() = default;
    // The value as Qt's JSON classes hold it. Safe to call from any thread.
    virtual const QJsonValue& Value() const = 0;
    // The JSON text the value holds (valid JSON, with TextPadding readable bytes
    // after it), or empty when it was made from a Qt value.
    virtual std::string_view Text() const { return {}; }
    // Whether Text() is exactly what ILMJsonWriter writes for this value.
    virtual bool TextIsWritten() const { return false; }

    static std::shared_ptr<ILMJsonValue> MallocJsonValue(QJsonValue value);
    // A value over text that is known to be one valid JSON object or array: text
    // checked by ILMJsonReader, or written (written = true) by a writer whose
    // output is byte for byte what ILMJsonWriter writes.
    static std::shared_ptr<ILMJsonValue> MallocJsonText(std::string text, bool written);
};

} // namespace Lumeran
