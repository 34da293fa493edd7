// SPDX-License-Identifier: MIT
#include "LMSingleton.h"

#include "LMSingleton_p.h"

#include <vector>

namespace Lumeran {

namespace {

// The singletons with an instance, in the order they made it. Never destroyed,
// like the instances.
std::vector<LMSingletonBase*>& Made() {
    static auto* const made = new std::vector<LMSingletonBase*>();
    return *made;
}

} // namespace

void LMSingletonBase::Register(LMSingletonBase* singleton) {
    Made().push_back(singleton);
}

void LMSingletons::ResetForTesting() {
    std::vector<LMSingletonBase*>& made = Made();
    // An instance that makes another while it goes is dropped in turn.
    while (!made.empty()) {
        LMSingletonBase* newest = made.back();
        made.pop_back();
        newest->DropForTesting();
    }
}

} // namespace Lumeran
