// SPDX-License-Identifier: MIT
#pragma once

#include "LMCoreExport.h"

#include <memory>

namespace Lumeran {

// What every LMSingleton has in common: a place in the list of instances that a
// test resets between cases (LMSingleton_p.h).
class LMCORE_EXPORT LMSingletonBase {
protected:
    constexpr LMSingletonBase() = default;
    ~LMSingletonBase() = default;

    // Called by a singleton that has just made its instance.
    static void Register(LMSingletonBase* singleton);

private:
    friend class LMSingletons;
    virtual void DropForTesting() = 0;
};

// The one way the framework keeps a process-wide instance (the facade, the data
// source, the popup window, the editor, the language manager): made by the
// owner's factory on first use, on the thread that runs the host's user
// interface, and never destroyed, so nothing depends on the order in which
// statics and the application object go at exit (a widget must not be deleted
// after the application object, and a load still running at exit must find its
// store). The settings store is the one exception (ILMAppSettings::Shared()):
// it lives in the foundation below, and a test's reset must never drop it, for
// it is what points the test at its own settings file.
//
// Define one per class, at namespace scope in the class's source file, so that
// every library and program reaches the same one:
//     constinit LMSingleton<Foo> s_foo{&MakeFoo};
// Not thread-safe: everything that reaches the instance runs on one thread.
template <typename T>
class LMSingleton final : public LMSingletonBase {
public:
    using Factory = std::shared_ptr<T> (*)();
    // Run before a test drops the instance, for work that must finish first.
    using Settle = void (*)(T&);

    // What a test's reset does with the instance.
    enum class OnReset {
        Drop,
        // For an instance that widgets made outside the singletons (a test's own
        // windows) hold by plain pointer, and whose state a test sets itself.
        Keep
    };

    constexpr explicit LMSingleton(Factory make, Settle settle = nullptr,
                                   OnReset onReset = OnReset::Drop)
        : m_make(make), m_settle(settle), m_onReset(onReset) {}

    const std::shared_ptr<T>& Instance() {
        if (!m_instance)
            m_instance = new std::shared_ptr<T>(); // never freed, see above
        if (!*m_instance) {
            *m_instance = m_make();
            if (m_onReset == OnReset::Drop)
                Register(this);
        }
        return *m_instance;
    }

    // The instance if it has been made, without making it: for a caller on
    // another thread that only runs after the user interface made it.
    std::shared_ptr<T> Existing() const { return m_instance ? *m_instance : nullptr; }

private:
    void DropForTesting() override {
        if (!m_instance || !*m_instance)
            return;
        if (m_settle)
            m_settle(**m_instance);
        m_instance->reset();
    }

    Factory m_make;
    Settle m_settle;
    OnReset m_onReset;
    std::shared_ptr<T>* m_instance = nullptr;
};

} // namespace Lumeran
