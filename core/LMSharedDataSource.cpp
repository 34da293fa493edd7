#include "LMSharedDataSource_p.h"

#include "ILMFmtPresetDataSource.h"

namespace Lumeran {

std::shared_ptr<ILMFmtPresetDataSource>& LMSharedDataSource::Holder() {
    static auto* const instance = new std::shared_ptr<ILMFmtPresetDataSource>();
    return *instance;
}

void LMSharedDataSource::ResetForTesting() {
    std::shared_ptr<ILMFmtPresetDataSource>& holder = Holder();
    if (holder)
        holder->WaitForLoadingComplete();
    holder.reset();
}

} // namespace Lumeran
