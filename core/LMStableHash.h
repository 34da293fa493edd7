// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace Lumeran {

// A fast 64-bit hash whose value depends on the bytes alone: the same on every
// machine, in every run and in every later version, so it can name files that
// another run looks up (XXH64, seed 0). qHash and std::hash give no such
// promise. Not for security: anyone can make two inputs collide on purpose.
class LMStableHash {
public:
    static std::uint64_t Of(std::string_view bytes);
};

} // namespace Lumeran
