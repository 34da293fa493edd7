// SPDX-License-Identifier: MIT
#include "LMSizeText.h"

#include "LMFormatInternationalizationMgr.h"

#include <QLocale>

#include <array>

using Lumeran::LMSizeEstimate;

QString LMSizeText::number(const LMSizeEstimate::Scaled& scaled,
                           const LMFormatInternationalizationMgr* mgr) {
    return QLocale(mgr->languageCode()).toString(scaled.value, 'f', scaled.decimals);
}

QString LMSizeText::unitPattern(int unit, const LMFormatInternationalizationMgr* mgr) {
    static const std::array<QString, 5> patterns{QStringLiteral("%1 B"), QStringLiteral("%1 kB"),
                                                 QStringLiteral("%1 MB"), QStringLiteral("%1 GB"),
                                                 QStringLiteral("%1 TB")};
    return mgr->stringForKey(patterns.at(static_cast<std::size_t>(unit)));
}

QString LMSizeText::bytes(double bytes, const LMFormatInternationalizationMgr* mgr) {
    const LMSizeEstimate::Scaled scaled = LMSizeEstimate::Scale(bytes);
    return unitPattern(scaled.unit, mgr).arg(number(scaled, mgr));
}

QString LMSizeText::size(const LMSizeEstimate& estimate,
                         const LMFormatInternationalizationMgr* mgr) {
    return QString::fromStdString(
        estimate.Size([mgr](const LMSizeEstimate::Scaled& scaled, bool withUnit) {
            const QString figure = number(scaled, mgr);
            return (withUnit ? unitPattern(scaled.unit, mgr).arg(figure) : figure).toStdString();
        }));
}
