// SPDX-License-Identifier: MIT
#pragma once

#include <simdjson.h>

#include <optional>
#include <string_view>

namespace Lumeran {

// Strings and keys of a simdjson On-Demand document, taken straight from the
// text when they hold no escape (nearly always): the parser then copies nothing
// into its string buffer, which for a large catalogue would otherwise grow to a
// good part of the file's size.
struct LMOnDemandText {
    // The bytes between a string value's quotes; nothing when the string holds
    // an escape. Does not consume the value.
    static std::optional<std::string_view> Plain(simdjson::ondemand::value& value) {
        const std::string_view token = Token(value);
        if (token.size() < 2 || token.front() != '"' || token.back() != '"' ||
            token.find('\\') != std::string_view::npos)
            return std::nullopt;
        return token.substr(1, token.size() - 2);
    }

    // The text of a scalar value as it stands in the document. Does not consume it.
    static std::string_view Token(simdjson::ondemand::value& value) {
        std::string_view token = value.raw_json_token();
        // The token runs to the next structural character, white space included.
        while (!token.empty() && (token.back() == ' ' || token.back() == '\n' ||
                                  token.back() == '\r' || token.back() == '\t'))
            token.remove_suffix(1);
        return token;
    }

    // A string value's text, unescaped; an error when the value is no string.
    static simdjson::simdjson_result<std::string_view> String(simdjson::ondemand::value& value) {
        if (const auto plain = Plain(value))
            return std::string_view(*plain);
        return value.get_string();
    }

    // A field's key, unescaped.
    static simdjson::simdjson_result<std::string_view> Key(simdjson::ondemand::field& field) {
        const char* start = field.key().raw();
        for (const char* at = start;; ++at) {
            if (*at == '"')
                return std::string_view(start, static_cast<std::size_t>(at - start));
            if (*at == '\\')
                return field.unescaped_key();
        }
    }
};

} // namespace Lumeran
