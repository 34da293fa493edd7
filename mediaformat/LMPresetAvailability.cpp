// SPDX-License-Identifier: MIT
#include "LMPresetAvailability.h"

namespace Lumeran {

std::string LMPresetAvailability::AlternativeTitle() const {
    if (!alternative)
        return {};
    if (!alternativeNode)
        return alternative->Title();
    return alternativeNode->Title() + " " + alternative->Title();
}

std::string LMPresetAvailability::Reason() const {
    if (!IsMissing())
        return {};
    std::string reason = "This FFmpeg has no " + missingName + " " + missingKind;
    if (alternative)
        reason += " \u2014 try " + AlternativeTitle();
    return reason;
}

} // namespace Lumeran
