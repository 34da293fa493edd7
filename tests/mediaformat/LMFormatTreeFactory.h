// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFormatNode.h"

#include <memory>
#include <random>
#include <string>

namespace Lumeran::TestSupport {

// Small trees and presets for the model tests.
std::shared_ptr<ILMFormatPreset> MakePreset(const std::string& format, const std::string& title);
std::shared_ptr<ILMFormatNode> MakeNode(const std::string& title,
                                        const std::string& description = {}, int faceID = 0);
// A random tree: random titles (some non-ASCII), random containers, random
// codec and option choices, up to the given depth.
std::shared_ptr<ILMFormatNode> MakeRandomTree(std::mt19937& random, int depth);
std::shared_ptr<ILMFormatNode> LoadDefaultCatalogue();

} // namespace Lumeran::TestSupport
