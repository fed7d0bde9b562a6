#pragma once

#include "platform/platform.h"

#include <map>
#include <memory>
#include <mutex>
#include <typeindex>
#include <utility>

namespace orl {

/// One run of the program. Everything that is process-wide hangs here instead of in globals, so that a test
/// makes a second Process on the same store and has restarted the phone.
class Process {
public:
    explicit Process(Platform platform) : platform_(std::move(platform)) {}
    Process(const Process &) = delete;
    Process &operator=(const Process &) = delete;

    const Platform &platform() const { return platform_; }

    /// The shared instance of T, made from this process at first use. Callable from any thread; T's
    /// constructor may ask for other shared instances.
    template<class T>
    T &shared() {
        const std::lock_guard lock(mutex_);
        std::shared_ptr<void> &slot = shared_[std::type_index(typeid(T))];
        if (!slot) {
            auto made = std::make_shared<T>(*this);
            shared_[std::type_index(typeid(T))] = made;
            return *made;
        }
        return *static_cast<T *>(slot.get());
    }

private:
    Platform platform_;
    std::recursive_mutex mutex_;
    std::map<std::type_index, std::shared_ptr<void>> shared_;
};

} // namespace orl
