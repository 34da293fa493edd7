// SPDX-License-Identifier: MIT
#include "ILMFmtPresetDataSource.h"

#include "LMFmtPresetDataSource.h"
#include "LMSingleton.h"

namespace Lumeran {

namespace {

std::shared_ptr<ILMFmtPresetDataSource> MakeDataSource() {
    return std::make_shared<LMFmtPresetDataSource>();
}

// A test starts its next case only once the load it began has finished with
// this store, then reads the settings anew.
void FinishLoading(ILMFmtPresetDataSource& source) {
    source.WaitForLoadingComplete();
}

constinit LMSingleton<ILMFmtPresetDataSource> s_dataSource{&MakeDataSource, &FinishLoading};

} // namespace

std::shared_ptr<ILMFmtPresetDataSource> ILMFmtPresetDataSource::Shared() {
    return s_dataSource.Instance();
}

} // namespace Lumeran
