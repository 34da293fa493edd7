// SPDX-License-Identifier: MIT
#include "ILMMediaFormatPopup.h"

#include "ILMFmtPresetDataSource.h"
#include "LMFFmpegAvailability.h"
#include "LMMediaFormatPopupQt.h"
#include "LMSingleton.h"

namespace Lumeran {

namespace {
constinit LMSingleton<ILMMediaFormatPopup> s_popup{[]() -> std::shared_ptr<ILMMediaFormatPopup> {
    return std::make_shared<LMMediaFormatPopupQt>();
}};
} // namespace

std::shared_ptr<ILMMediaFormatPopup> ILMMediaFormatPopup::Shared() {
    return s_popup.Instance();
}

void ILMMediaFormatPopup::SetFFmpegPath(const std::string& path, const std::string& cacheDir) {
    LMFFmpegAvailability::shared()->setFFmpegPath(path, cacheDir);
}

LMPresetAvailability
ILMMediaFormatPopup::PresetAvailability(std::shared_ptr<const ILMFormatPreset> preset) const {
    return LMFFmpegAvailability::shared()->availability(preset);
}

void ILMMediaFormatPopup::SetupExternalFormatData(const std::string& path) {
    ILMFmtPresetDataSource::Shared()->AsyncLoadExternalDataSource(path, [] {
        // On the loader's thread: the host made the facade (Shared()) before it
        // could start a load, so this only looks it up.
        if (auto popup = std::static_pointer_cast<LMMediaFormatPopupQt>(s_popup.Existing()))
            popup->LoadExternalDataInMainThread();
    });
}

void ILMMediaFormatPopup::WaitForFormatDataLoadingComplete() {
    ILMFmtPresetDataSource::Shared()->WaitForLoadingComplete();
}

} // namespace Lumeran
