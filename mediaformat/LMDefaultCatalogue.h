// SPDX-License-Identifier: MIT
#pragma once

#include "LMMediaFormatExport.h"

#include <string>

namespace Lumeran {

// The format catalogue that ships inside the library (with its artwork), for
// hosts that have no catalogue of their own. The path is a Qt resource path
// that the catalogue and artwork readers accept like a file path.
class LMMEDIAFORMAT_EXPORT LMDefaultCatalogue {
public:
    static std::string Path();
};

} // namespace Lumeran
