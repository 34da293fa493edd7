// SPDX-License-Identifier: MIT
#include "LMPresetNames.h"

#include <QString>

namespace Lumeran {

namespace {

// base + suffix, base cut (never within a character) until the whole fits the
// limit every title is kept to.
std::string Numbered(const std::string& base, const std::string& suffix) {
    std::string name = base + suffix;
    if (ILMFormatNode::IsAcceptableText(name))
        return name;
    QString cut = QString::fromStdString(base);
    const qsizetype room = ILMFormatNode::MaxTextLength - QString::fromStdString(suffix).size();
    cut.truncate(std::max<qsizetype>(room, 0));
    if (!cut.isEmpty() && cut.back().isHighSurrogate())
        cut.chop(1);
    return cut.toStdString() + suffix;
}

} // namespace

std::string LMPresetNames::FreeTitle(const std::shared_ptr<const ILMFormatNode>& group,
                                     const std::string& title) {
    if (!group || !group->FindFormatPreset(title))
        return title;
    for (int number = 2;; ++number) {
        const std::string name = Numbered(title, " (" + std::to_string(number) + ")");
        if (!group->FindFormatPreset(name))
            return name;
    }
}

} // namespace Lumeran
