#pragma once

#include "LMFoundationExport.h"

#include <string>

namespace Lumeran {

// Path helpers working on the text of a path, '/' as the separator.
class LMFOUNDATION_EXPORT ILMFileProvider {
public:
    // The path without its last extension: "a/b.json" -> "a/b". A dot that
    // starts the last component ("a/.hidden") or lies in a directory name is
    // not an extension.
    static std::string RemovePathExtension(const std::string& path);
    // path + "." + ext; an empty ext leaves the path unchanged.
    static std::string AppendPathExtension(const std::string& path, const std::string& ext);
};

} // namespace Lumeran
