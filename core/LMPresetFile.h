// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"

#include <QByteArray>
#include <QJsonObject>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Lumeran {

// A file of custom presets, as users back them up, move them to another machine
// or share them (MIME type application/x-lmformat-presets+json):
//
//   {"format": "lmformat-presets", "version": 1, "presets": [ENTRY, ...]}
//
// where each ENTRY is a preset in the format model's own JSON form with one more
// field, "group": the attributes of the format node it is filed under ({"title",
// "description", "faceId"}). Fields this version does not know are kept: at the
// top level by this object, in an entry by the preset or group read from it, so
// writing the file again (or exporting what was imported) gives them back.
//
// A file is read whole and checked before anyone uses a single entry from it.
class LMPresetFile {
public:
    static constexpr std::string_view FormatName = "lmformat-presets";
    static constexpr std::string_view MimeType = "application/x-lmformat-presets+json";
    static constexpr int CurrentVersion = 1;
    // Larger files are refused before a byte of them is read: a few thousand
    // presets take well under a megabyte.
    static constexpr std::int64_t MaxFileSize = std::int64_t(16) * 1024 * 1024;

    struct Entry {
        // A node with the group's attributes only, no presets or children.
        std::shared_ptr<ILMFormatNode> group;
        std::shared_ptr<ILMFormatPreset> preset;
    };

    // Reads the file at path. On failure returns false, says why in *error and
    // leaves this object as it was.
    bool Read(const std::string& path, std::string* error);
    bool ReadText(const QByteArray& text, std::string* error);
    // The file's text: the fields above first, one entry per line.
    QByteArray Text() const;
    // Writes Text() to path through a temporary file, so a failed write never
    // leaves a half-written file where a good one was.
    bool Write(const std::string& path, std::string* error) const;

    // Appends copies of group's attributes and of preset.
    void Add(const std::shared_ptr<const ILMFormatNode>& group,
             const std::shared_ptr<const ILMFormatPreset>& preset);
    const std::vector<Entry>& Entries() const { return m_entries; }
    // The version the file said it was written in (CurrentVersion for a new one).
    int Version() const { return m_version; }
    // Entries of a newer version that this version cannot read; left out of
    // Entries(). A file of the current version with such an entry is not read.
    int UnreadableCount() const { return m_unreadable; }
    // Top-level fields of other versions.
    const QJsonObject& ExtraFields() const { return m_extra; }

private:
    std::vector<Entry> m_entries;
    int m_version = CurrentVersion;
    int m_unreadable = 0;
    QJsonObject m_extra;
};

} // namespace Lumeran
