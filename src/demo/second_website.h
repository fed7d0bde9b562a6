#pragma once

#include "catalogue.h"
#include "service.h"

namespace orl::demo {

/// The second SMS website: "/<country>/" and "/<country>/<digits>/page1". It tells times only in words.
class SecondWebsite : public Service {
public:
    SecondWebsite(const Catalogue &catalogue, quint64 seed) : catalogue_(catalogue), seed_(seed) {}
    Reply answer(const Request &request) const override;

private:
    Reply numbers(const DemoCountry &country, const Request &request) const;
    Reply messages(const Number &number, const Request &request) const;
    Reply page(const QString &title, const QString &body, const QString &decoy, const Request &request) const;

    const Catalogue &catalogue_;
    quint64 seed_;
};

} // namespace orl::demo
