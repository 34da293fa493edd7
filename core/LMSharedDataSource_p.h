#pragma once

#include <memory>

namespace Lumeran {

class ILMFmtPresetDataSource;

// Where ILMFmtPresetDataSource::Shared() keeps its instance. Not part of the
// framework's interface: tests that run many cases in one process start each
// case from a new instance, as a new process would.
class LMSharedDataSource {
public:
    // Never destroyed: the store must outlive every static that might still
    // reach it at exit, and a load that was never waited for must not end the
    // process while statics are torn down.
    static std::shared_ptr<ILMFmtPresetDataSource>& Holder();
    // Waits for the current instance's load, if any, and drops the instance;
    // the next Shared() makes a new one, reading the settings as they are now.
    static void ResetForTesting();
};

} // namespace Lumeran
