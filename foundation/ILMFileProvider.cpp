#include "ILMFileProvider.h"

namespace Lumeran {

std::string ILMFileProvider::RemovePathExtension(const std::string& path) {
    const std::size_t slash = path.find_last_of('/');
    const std::size_t nameStart = slash == std::string::npos ? 0 : slash + 1;
    const std::size_t dot = path.find_last_of('.');
    if (dot == std::string::npos || dot <= nameStart)
        return path;
    return path.substr(0, dot);
}

std::string ILMFileProvider::AppendPathExtension(const std::string& path, const std::string& ext) {
    if (ext.empty())
        return path;
    return path + "." + ext;
}

} // namespace Lumeran
