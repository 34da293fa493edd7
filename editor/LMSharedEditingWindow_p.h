#pragma once

namespace Lumeran {

// Not part of the framework's interface: lets tests that run many cases in one
// process start each case with a new editor window, as a new process would.
class LMSharedEditingWindow {
public:
    // Deletes the window LMFormatEditingWndCtrl::shared() made, if any; the next
    // shared() makes a new one.
    static void ResetForTesting();
};

} // namespace Lumeran
