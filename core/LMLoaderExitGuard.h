// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <mutex>

namespace Lumeran {

// Makes quitting during a catalogue load safe. When the application object goes
// away, or at the latest when exit() starts tearing statics down, every watched
// load is told to stop and its completion is no longer called; exit then waits a
// bounded time for the loads to finish and otherwise leaves them behind. A load
// left behind touches only what it holds itself (the format registry and the log
// are never destroyed), so it cannot crash the exit.
class LMLoaderExitGuard {
public:
    // Long enough for a load to notice the request between two entries, short
    // enough that nobody sees a lingering process.
    static constexpr std::chrono::milliseconds MaxWait{1000};

    struct Load {
        std::atomic<bool> cancel{false};
        // Held while the completion runs, and taken to cancel, so that no
        // completion starts or is still running once a load is cancelled.
        std::mutex completing;
    };

    // Watches a load; finished(timeout) waits up to timeout for it and says
    // whether it is done.
    static void Watch(std::shared_ptr<Load> load,
                      std::function<bool(std::chrono::milliseconds)> finished);
    // Cancels every watched load and waits for them, as exit does; safe to call
    // more than once.
    static void CancelAll();
};

} // namespace Lumeran
