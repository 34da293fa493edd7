// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>

namespace Lumeran {

struct LMFormatReadReport;

// How ILMFormatNode::MallocFormatNode reads a tree.
struct LMFormatReadOptions {
    // Keep reading past entries that cannot be read: each is carried unchanged in
    // its place and written back with the tree, and the rest of the tree is read.
    // Off, any such entry rejects the whole tree (catalogues are all or nothing).
    bool keepUnreadable = false;
    // Filled in when given.
    LMFormatReadReport* report = nullptr;
    // Checked as the tree is built; once set the read stops and gives nothing.
    const std::atomic<bool>* cancel = nullptr;
};

} // namespace Lumeran
