// SPDX-License-Identifier: MIT
#include "ILMMediaFormatPopup.h"

#include "ILMFmtPresetDataSource.h"
#include "LMMediaFormatPopupQt.h"

namespace Lumeran {

namespace {
// Read by the load's completion directly: the host reaches the facade through
// Shared() before any load can finish, so the instance exists by then.
std::shared_ptr<ILMMediaFormatPopup> s_popup;
} // namespace

std::shared_ptr<ILMMediaFormatPopup> ILMMediaFormatPopup::Shared() {
    if (!s_popup)
        s_popup = std::make_shared<LMMediaFormatPopupQt>();
    return s_popup;
}

void ILMMediaFormatPopup::SetupExternalFormatData(const std::string& path) {
    ILMFmtPresetDataSource::Shared()->AsyncLoadExternalDataSource(path, [] {
        if (auto popup = std::static_pointer_cast<LMMediaFormatPopupQt>(s_popup))
            popup->LoadExternalDataInMainThread();
    });
}

void ILMMediaFormatPopup::WaitForFormatDataLoadingComplete() {
    ILMFmtPresetDataSource::Shared()->WaitForLoadingComplete();
}

} // namespace Lumeran
