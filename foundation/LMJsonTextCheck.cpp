// SPDX-License-Identifier: MIT
#include "LMJsonTextCheck.h"

#include "ILMJsonValue.h"
#include "LMOnDemandText.h"

namespace Lumeran {

namespace {

namespace od = simdjson::ondemand;
using simdjson::error_code;
using simdjson::SUCCESS;

static_assert(ILMJsonValue::TextPadding >= simdjson::SIMDJSON_PADDING);

// As deep as Qt's parser nests.
constexpr std::size_t kMaxDepth = 1024;

error_code Visit(od::value value, std::size_t depth);

error_code VisitArray(od::value value, std::size_t depth) {
    od::array array;
    if (const error_code error = value.get_array().get(array))
        return error;
    for (auto element : array) {
        od::value child;
        if (const error_code error = element.get(child))
            return error;
        if (const error_code error = Visit(child, depth + 1))
            return error;
    }
    return SUCCESS;
}

error_code VisitObject(od::value value, std::size_t depth) {
    od::object object;
    if (const error_code error = value.get_object().get(object))
        return error;
    for (auto result : object) {
        od::field field;
        if (const error_code error = std::move(result).get(field))
            return error;
        std::string_view key;
        if (const error_code error = LMOnDemandText::Key(field).get(key))
            return error;
        if (const error_code error = Visit(field.value(), depth + 1))
            return error;
    }
    return SUCCESS;
}

error_code Visit(od::value value, std::size_t depth) {
    if (depth > kMaxDepth)
        return simdjson::DEPTH_ERROR;
    od::json_type type;
    if (const error_code error = value.type().get(type))
        return error;
    switch (type) {
    case od::json_type::array:
        return VisitArray(value, depth);
    case od::json_type::object:
        return VisitObject(value, depth);
    case od::json_type::string: {
        // A string without escapes was checked whole when the text was indexed
        // (UTF-8, no raw control characters); one with escapes is unescaped.
        std::string_view text;
        return LMOnDemandText::String(value).get(text);
    }
    case od::json_type::number: {
        double number = 0;
        return value.get_double().get(number);
    }
    case od::json_type::boolean: {
        bool flag = false;
        return value.get_bool().get(flag);
    }
    case od::json_type::null: {
        bool null = false;
        if (const error_code error = value.is_null().get(null))
            return error;
        return null ? SUCCESS : simdjson::N_ATOM_ERROR;
    }
    }
    return simdjson::INCORRECT_TYPE;
}

} // namespace

bool LMJsonTextCheck::Check(std::string_view paddedText, Failure* failure) {
    const auto fail = [&](const std::string& why, const char* where) {
        if (failure) {
            failure->why = why;
            failure->offset = where && where >= paddedText.data()
                                  ? static_cast<std::size_t>(where - paddedText.data())
                                  : paddedText.size();
        }
        return false;
    };
    od::parser parser;
    od::document document;
    if (const error_code error = parser
                                     .iterate(paddedText.data(), paddedText.size(),
                                              paddedText.size() + ILMJsonValue::TextPadding)
                                     .get(document))
        return fail(simdjson::error_message(error), nullptr);
    od::json_type type = od::json_type::null;
    error_code error = document.type().get(type);
    if (!error && type != od::json_type::object && type != od::json_type::array)
        return fail("not a JSON object or array", paddedText.data());
    od::value root;
    if (!error)
        error = document.get_value().get(root);
    if (!error)
        error = Visit(root, 0);
    const char* at = nullptr;
    const bool inside = !document.current_location().get(at);
    if (error)
        return fail(simdjson::error_message(error), inside ? at : nullptr);
    // Anything after the first value makes the text more than one value.
    if (inside)
        return fail(simdjson::error_message(simdjson::TRAILING_CONTENT), at);
    return true;
}

} // namespace Lumeran
