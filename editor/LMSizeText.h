// SPDX-License-Identifier: MIT
#pragma once

#include "LMSizeEstimate.h"

#include <QString>

class LMFormatInternationalizationMgr;

// An estimated size as the editor writes it for its language: the language's
// decimal sign and its words for the units ("1,7 Go" in French), the range
// with one unit where both ends share it ("45–80 MB").
class LMSizeText {
public:
    // The size alone; empty when the estimate is not known.
    static QString size(const Lumeran::LMSizeEstimate& estimate,
                        const LMFormatInternationalizationMgr* mgr);
    // One size in bytes.
    static QString bytes(double bytes, const LMFormatInternationalizationMgr* mgr);

private:
    static QString number(const Lumeran::LMSizeEstimate::Scaled& scaled,
                          const LMFormatInternationalizationMgr* mgr);
    static QString unitPattern(int unit, const LMFormatInternationalizationMgr* mgr);
};
