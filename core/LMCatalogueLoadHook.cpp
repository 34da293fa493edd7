// SPDX-License-Identifier: MIT
#include "LMCatalogueLoadHook_p.h"

#include <memory>
#include <mutex>

namespace Lumeran {

namespace {

struct HookState {
    std::mutex mutex;
    std::shared_ptr<const LMCatalogueLoadHook::Hook> hook;
};

// Never destroyed: a load abandoned at exit may still ask for it.
HookState& State() {
    static auto* const state = new HookState();
    return *state;
}

} // namespace

void LMCatalogueLoadHook::Set(Hook hook) {
    HookState& state = State();
    const std::lock_guard lock(state.mutex);
    state.hook = hook ? std::make_shared<const Hook>(std::move(hook)) : nullptr;
}

void LMCatalogueLoadHook::Run(const std::string& path) {
    std::shared_ptr<const Hook> hook;
    {
        HookState& state = State();
        const std::lock_guard lock(state.mutex);
        hook = state.hook;
    }
    if (hook)
        (*hook)(path); // outside the lock: the hook may wait for a long time
}

} // namespace Lumeran
