// SPDX-License-Identifier: MIT
#include "LMDefaultCatalogue.h"

#include <QtGlobal>

static void InitCatalogueResources() {
    Q_INIT_RESOURCE(catalogue);
}

namespace Lumeran {

std::string LMDefaultCatalogue::Path() {
    static const bool initialised = [] {
        InitCatalogueResources();
        return true;
    }();
    Q_UNUSED(initialised);
    return ":/LMMediaFormat/catalogue/formats.json";
}

} // namespace Lumeran
