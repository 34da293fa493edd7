// SPDX-License-Identifier: MIT
#pragma once

#include "LMMediaFormatExport.h"

#include <string>
#include <vector>

namespace Lumeran {

// The artwork of one face id: one or more image files (an SVG, or bitmaps of
// several sizes), as listed in the artwork configuration.
class LMMEDIAFORMAT_EXPORT ILMArtworkImageGroup {
public:
    virtual ~ILMArtworkImageGroup() = default;
    virtual int FaceID() const = 0;
    // Absolute paths (or Qt resource paths), in the configuration's order.
    virtual std::vector<std::string> ImagePaths() const = 0;
};

} // namespace Lumeran
