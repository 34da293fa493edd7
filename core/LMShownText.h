// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <unordered_map>

namespace Lumeran {

// What the popup shows for the texts of the catalogue and the lists in the
// language on screen, lower-cased for search. Only texts that are keys of the
// string tables ("High Quality", "MP4 file format") are shown otherwise than
// they are written; the language manager hands over their translations whenever
// a language is set, so that a search matches what the user reads.
// Used on the GUI thread.
class LMShownText {
public:
    using Table = std::unordered_map<std::string, std::string>;

    // Replaces the translations: text -> its shown text, lower-cased.
    static void SetLowerCaseTable(Table table);
    // The lower-cased text shown for text, or null when it is shown as written.
    static const std::string* LowerCase(const std::string& text);
};

} // namespace Lumeran
