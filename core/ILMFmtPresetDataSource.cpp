#include "ILMFmtPresetDataSource.h"

#include "LMFmtPresetDataSource.h"

namespace Lumeran {

std::shared_ptr<ILMFmtPresetDataSource> ILMFmtPresetDataSource::Shared() {
    // The holder is deliberately never destroyed: the store must outlive every
    // static that might still reach it at exit, and a load that was never waited
    // for must not end the process while statics are torn down.
    static auto* const instance = new std::shared_ptr<ILMFmtPresetDataSource>();
    if (!*instance)
        *instance = std::make_shared<LMFmtPresetDataSource>();
    return *instance;
}

} // namespace Lumeran
