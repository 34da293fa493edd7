// SPDX-License-Identifier: MIT
#pragma once

#include "LMFoundationExport.h"

#include <cstdint>
#include <string>

namespace Lumeran {

// Path helpers working on the text of a path, '/' as the separator, and the one
// way this system reads a file whose size or kind it cannot trust.
class LMFOUNDATION_EXPORT ILMFileProvider {
public:
    // The path without its last extension: "a/b.json" -> "a/b". A dot that
    // starts the last component ("a/.hidden") or lies in a directory name is
    // not an extension.
    static std::string RemovePathExtension(const std::string& path);
    // path + "." + ext; an empty ext leaves the path unchanged.
    static std::string AppendPathExtension(const std::string& path, const std::string& ext);

    // Reads the whole of a regular file of at most maxBytes into *contents. A FIFO,
    // a device, a socket or a folder is refused before anything is read (opening
    // never waits for a writer), and a file that grows past maxBytes while it is
    // read is refused too, so the caller never blocks on it for good nor holds
    // more than maxBytes + 1 of it. Paths of Qt resources (":/...") are read from
    // memory. False, with *error set when given, on any refusal or failure.
    static bool ReadRegularFile(const std::string& path, std::int64_t maxBytes,
                                std::string* contents, std::string* error);
};

} // namespace Lumeran
