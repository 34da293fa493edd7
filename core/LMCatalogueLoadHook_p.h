// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

namespace Lumeran {

// A seam for tests, not part of the framework's interface: a hook the catalogue
// loader calls on its own thread right before it reads the catalogue, so that a
// test can hold a load at its start and decide when the file is there to read.
class LMCatalogueLoadHook {
public:
    using Hook = std::function<void(const std::string& path)>;

    // Replaces the hook; an empty one removes it.
    static void Set(Hook hook);
    // Calls the hook, if any, with the catalogue's path.
    static void Run(const std::string& path);
};

} // namespace Lumeran
