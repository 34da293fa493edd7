// SPDX-License-Identifier: MIT
#include "ILMJsonReader.h"

#include "ILMFileProvider.h"
#include "LMJsonTextCheck.h"

#include <QJsonDocument>

#include <algorithm>
#include <vector>

namespace Lumeran {

namespace {

constexpr std::string_view kBom = "\xEF\xBB\xBF";

// A value over text, or nothing (and the error) when the text is not one JSON
// object or array. A byte order mark before the text is dropped, as Qt's parser
// drops it.
std::shared_ptr<const ILMJsonValue> Parse(std::string text,
                                          std::shared_ptr<const ILMError>* error) {
    if (std::string_view(text).substr(0, kBom.size()) == kBom)
        text.erase(0, kBom.size());
    auto value = ILMJsonValue::MallocJsonText(std::move(text), false);
    LMJsonTextCheck::Failure failure;
    if (!LMJsonTextCheck::Check(value->Text(), &failure)) {
        // Damage found while indexing the text (bad UTF-8, a raw control
        // character) has no place; the rest is named where reading stopped.
        const bool placed = failure.offset < value->Text().size();
        ILMError::Report(error, ILMError::ParseError,
                         placed ? failure.why + " at offset " + std::to_string(failure.offset)
                                : failure.why);
        return {};
    }
    return value;
}

// A place where the text may be cut and closed: right after an element of a list
// ended, with the closers of the containers still open there.
struct CutPoint {
    std::size_t end = 0;
    std::string closers;
};

// The places, first to last, where text could be cut into whole list elements.
// Only whole elements of lists count, so an entry is either kept whole or left out.
std::vector<CutPoint> CutPoints(const std::string& text, std::size_t limit) {
    std::vector<CutPoint> points;
    std::string open; // '{' or '[' per open container
    bool inString = false;
    bool escaped = false;
    const auto closers = [&open] {
        std::string result;
        for (auto it = open.rbegin(); it != open.rend(); ++it)
            result.push_back(*it == '{' ? '}' : ']');
        return result;
    };
    for (std::size_t i = 0; i < text.size() && i < limit; ++i) {
        const char c = text[i];
        if (inString) {
            if (escaped)
                escaped = false;
            else if (c == '\\')
                escaped = true;
            else if (c == '"')
                inString = false;
            continue;
        }
        if (c == '"') {
            inString = true;
        } else if (c == '{' || c == '[') {
            open.push_back(c);
            if (c == '[')
                points.push_back({i + 1, closers()});
        } else if (c == '}' || c == ']') {
            if (open.empty())
                break;
            open.pop_back();
            if (!open.empty() && open.back() == '[')
                points.push_back({i + 1, closers()});
        }
    }
    return points;
}

// Where Qt's parser finds text damaged: the salvage below cuts before that point,
// as it always has.
std::size_t DamageOffset(const std::string& text) {
    QJsonParseError parseError;
    QJsonDocument::fromJson(
        QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size())), &parseError);
    if (parseError.error == QJsonParseError::NoError)
        return text.size();
    return static_cast<std::size_t>(std::max(0, parseError.offset));
}

} // namespace

std::shared_ptr<const ILMJsonValue>
ILMJsonReader::ReadJsonFile(const std::string& path, std::shared_ptr<const ILMError>* error) {
    std::string text;
    std::string why;
    if (!ILMFileProvider::ReadRegularFile(path, MaxFileSize, &text, &why)) {
        ILMError::Report(
            error, why.rfind("file too large", 0) == 0 ? ILMError::LimitError : ILMError::FileError,
            why);
        return {};
    }
    return Parse(std::move(text), error);
}

std::shared_ptr<const ILMJsonValue>
ILMJsonReader::ReadJsonString(const std::string& text, std::shared_ptr<const ILMError>* error) {
    if (static_cast<std::int64_t>(text.size()) > MaxFileSize) {
        ILMError::Report(error, ILMError::LimitError, "text too large");
        return {};
    }
    return Parse(text, error);
}

std::shared_ptr<const ILMJsonValue> ILMJsonReader::ReadJsonStringSalvaging(const std::string& text,
                                                                           bool* complete) {
    if (complete)
        *complete = false;
    if (static_cast<std::int64_t>(text.size()) > MaxFileSize)
        return {};
    if (auto value = Parse(text, nullptr)) {
        if (complete)
            *complete = true;
        return value;
    }
    // Tries cut points from the damage backwards; each try parses the prefix, so
    // the number of tries is bounded and spread over the whole text.
    const auto points = CutPoints(text, DamageOffset(text));
    constexpr std::size_t kMaxTries = 48;
    std::size_t step = 1;
    for (std::size_t tried = 0, i = points.size(); i > 0 && tried < kMaxTries; ++tried) {
        const CutPoint& point = points[i - 1];
        if (auto value = Parse(text.substr(0, point.end) + point.closers, nullptr))
            return value;
        i = i > step ? i - step : 0;
        if (tried >= 8)
            step *= 2;
    }
    return {};
}

} // namespace Lumeran
