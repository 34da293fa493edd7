// SPDX-License-Identifier: MIT
#include "LMShownText.h"

namespace Lumeran {

namespace {

LMShownText::Table& Current() {
    static LMShownText::Table table;
    return table;
}

} // namespace

void LMShownText::SetLowerCaseTable(Table table) {
    Current() = std::move(table);
}

const std::string* LMShownText::LowerCase(const std::string& text) {
    const Table& table = Current();
    if (table.empty())
        return nullptr;
    const auto found = table.find(text);
    return found == table.end() ? nullptr : &found->second;
}

} // namespace Lumeran
