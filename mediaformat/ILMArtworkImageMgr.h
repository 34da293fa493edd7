// SPDX-License-Identifier: MIT
#pragma once

#include "ILMArtworkImageGroup.h"
#include "ILMError.h"
#include "LMMediaFormatExport.h"

#include <memory>
#include <string>

namespace Lumeran {

// Face id -> artwork, read from the artwork configuration ("icfg") that sits
// beside a format catalogue. Image paths in it are relative to its folder.
class LMMEDIAFORMAT_EXPORT ILMArtworkImageMgr {
public:
    static constexpr int CategoryFaceIDRecentList = 1;
    static constexpr int CategoryFaceIDCustomize = 2;
    static constexpr int FormatFaceIDMP4 = 100;

    virtual ~ILMArtworkImageMgr() = default;
    // The group of the face id, or empty when the configuration has none.
    virtual std::shared_ptr<ILMArtworkImageGroup> ArtworkGroup(int faceID) const = 0;
    virtual int GroupCount() const = 0;

    // A missing or unreadable configuration gives an empty pointer (and the error,
    // when asked for); an entry whose image files are missing is left out.
    static std::shared_ptr<ILMArtworkImageMgr>
    MallocArtworkImageMgr(const std::string& icfgPath, std::shared_ptr<const ILMError>* error);
};

} // namespace Lumeran
