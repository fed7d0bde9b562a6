#pragma once

namespace orl {

/// The phone's request to rate the program in the store. Main thread.
class StoreReview {
public:
    virtual ~StoreReview() = default;

    /// Asks in the current window. Whether and how anything is shown is the phone's decision.
    virtual void requestReview() = 0;
};

/// Stands where nobody asks.
class NoStoreReview final : public StoreReview {
public:
    void requestReview() override {}

    static StoreReview &instance() {
        static NoStoreReview none;
        return none;
    }
};

} // namespace orl
