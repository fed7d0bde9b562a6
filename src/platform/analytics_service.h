#pragma once

namespace orl {

/// The service that would count what users do. The program starts it and tells it nothing.
class AnalyticsService {
public:
    virtual ~AnalyticsService() = default;

    virtual void configure() = 0;
};

/// Stands where nothing is counted.
class NoAnalyticsService final : public AnalyticsService {
public:
    void configure() override {}

    static AnalyticsService &instance() {
        static NoAnalyticsService none;
        return none;
    }
};

} // namespace orl
