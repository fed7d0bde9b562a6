#pragma once

#include "platform/process.h"

namespace orl {

/// Asks for a rating in the store now and then: at the third opening of the home screen, and at every third
/// one after that.
class Review {
public:
    static constexpr qint64 openingsBefore = 2; ///< openings without a request ahead of each one

    explicit Review(Process &process) : process_(process) {}

    /// To be called at each opening of the home screen. Without a window the opening is counted only.
    void requestReviewIfNeeded();

private:
    Process &process_;
};

} // namespace orl
