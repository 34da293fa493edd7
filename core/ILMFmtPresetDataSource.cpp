#include "ILMFmtPresetDataSource.h"

#include "LMFmtPresetDataSource.h"
#include "LMSharedDataSource_p.h"

namespace Lumeran {

std::shared_ptr<ILMFmtPresetDataSource> ILMFmtPresetDataSource::Shared() {
    std::shared_ptr<ILMFmtPresetDataSource>& instance = LMSharedDataSource::Holder();
    if (!instance)
        instance = std::make_shared<LMFmtPresetDataSource>();
    return instance;
}

} // namespace Lumeran
