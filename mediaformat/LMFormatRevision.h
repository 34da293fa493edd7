// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <cstdint>

namespace Lumeran {

// A number that names one state of a node or preset: it changes with every
// change of what the object writes as JSON, and no two objects ever share one
// (a copy takes a fresh number). The JSON writer keeps the text of a node with
// the numbers it was written from, and reuses it while they still hold.
class LMFormatRevision {
public:
    LMFormatRevision() : m_value(Next()) {}
    LMFormatRevision(const LMFormatRevision&) : m_value(Next()) {}
    LMFormatRevision& operator=(const LMFormatRevision&) {
        m_value = Next();
        return *this;
    }
    ~LMFormatRevision() = default;

    void Touch() { m_value = Next(); }
    std::uint64_t Value() const { return m_value; }

    static std::uint64_t Next() {
        static std::atomic<std::uint64_t> counter{0};
        return counter.fetch_add(1, std::memory_order_relaxed) + 1;
    }

private:
    std::uint64_t m_value;
};

} // namespace Lumeran
