#pragma once

#include "catalogue.h"
#include "service.h"

namespace orl::demo {

/// The first SMS website: "/en", "/en/countries/<slug>", "/en/numbers/<digits>" and
/// "/en/numbers/<digits>/<page>". Its pages have the structure that the recipe document describes.
class FirstWebsite : public Service {
public:
    FirstWebsite(const Catalogue &catalogue, quint64 seed) : catalogue_(catalogue), seed_(seed) {}
    Reply answer(const Request &request) const override;

private:
    Reply countries(const Request &request) const;
    Reply numbers(const DemoCountry &country, const Request &request) const;
    Reply messages(const Number &number, int page, const Request &request) const;
    Reply page(const QString &title, const QString &body, const QString &decoy, const Request &request) const;

    const Catalogue &catalogue_;
    quint64 seed_;
};

/// What the link farms of both websites advertise.
QStringList farmTexts(const Catalogue &catalogue);

} // namespace orl::demo
