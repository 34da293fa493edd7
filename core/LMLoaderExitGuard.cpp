// SPDX-License-Identifier: MIT
#include "LMLoaderExitGuard.h"

#include <QCoreApplication>

#include <cstdlib>
#include <vector>

namespace Lumeran {

namespace {

struct Watched {
    std::shared_ptr<LMLoaderExitGuard::Load> load;
    std::function<bool(std::chrono::milliseconds)> finished;
};

struct State {
    std::mutex mutex;
    std::vector<Watched> loads;
    bool atExitRegistered = false;
    QCoreApplication* appWatched = nullptr;
};

// Never destroyed: it is used by the exit handlers themselves.
State& Guard() {
    static auto* const state = new State();
    return *state;
}

void CancelAtExit() {
    LMLoaderExitGuard::CancelAll();
}

} // namespace

void LMLoaderExitGuard::Watch(std::shared_ptr<Load> load,
                              std::function<bool(std::chrono::milliseconds)> finished) {
    State& state = Guard();
    const std::lock_guard lock(state.mutex);
    // Loads that are over need no watching; dropping them frees their results.
    std::erase_if(state.loads, [](const Watched& watched) {
        return watched.finished(std::chrono::milliseconds(0));
    });
    state.loads.push_back({std::move(load), std::move(finished)});
    if (!state.atExitRegistered) {
        state.atExitRegistered = true;
        std::atexit(CancelAtExit);
    }
    // The completion of a load posts to the application object, which must not
    // be reached once it is being destroyed.
    if (QCoreApplication* app = QCoreApplication::instance(); app && app != state.appWatched) {
        state.appWatched = app;
        qAddPostRoutine(CancelAtExit);
    }
}

void LMLoaderExitGuard::CancelAll() {
    std::vector<Watched> loads;
    {
        State& state = Guard();
        const std::lock_guard lock(state.mutex);
        loads.swap(state.loads);
    }
    for (const Watched& watched : loads) {
        const std::lock_guard lock(watched.load->completing);
        watched.load->cancel = true;
    }
    const auto deadline = std::chrono::steady_clock::now() + MaxWait;
    for (const Watched& watched : loads) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0 || !watched.finished(left))
            break;
    }
}

} // namespace Lumeran
