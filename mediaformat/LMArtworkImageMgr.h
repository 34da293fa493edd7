// SPDX-License-Identifier: MIT
#pragma once

#include "ILMArtworkImageMgr.h"

#include <unordered_map>

namespace Lumeran {

class LMArtworkImageGroup final : public ILMArtworkImageGroup {
public:
    LMArtworkImageGroup(int faceID, std::vector<std::string> paths)
        : m_faceID(faceID), m_paths(std::move(paths)) {}
    int FaceID() const override { return m_faceID; }
    std::vector<std::string> ImagePaths() const override { return m_paths; }

private:
    int m_faceID;
    std::vector<std::string> m_paths;
};

class LMArtworkImageMgr final : public ILMArtworkImageMgr {
public:
    std::shared_ptr<ILMArtworkImageGroup> ArtworkGroup(int faceID) const override;
    int GroupCount() const override { return static_cast<int>(m_groups.size()); }

    void Add(std::shared_ptr<ILMArtworkImageGroup> group);

private:
    std::unordered_map<int, std::shared_ptr<ILMArtworkImageGroup>> m_groups;
};

} // namespace Lumeran
