#include "demo/endpoints_in_force.h"

#include "demo/demo_host.h"

#include <array>

namespace orl {

namespace {

constexpr std::array kinds{
    &Endpoints::configurationHost, &Endpoints::firstWebsite, &Endpoints::secondWebsite,
    &Endpoints::mailHost,          &Endpoints::identityHost, &Endpoints::adHost,
    &Endpoints::legalHost,         &Endpoints::storeHost,    &Endpoints::connectivityProbe,
};

Endpoints endpointsOfTheBuild() {
    return {.configurationHost = QStringLiteral(ORL_ENDPOINT_CONFIGURATION_HOST),
            .firstWebsite = QStringLiteral(ORL_ENDPOINT_FIRST_WEBSITE),
            .secondWebsite = QStringLiteral(ORL_ENDPOINT_SECOND_WEBSITE),
            .mailHost = QStringLiteral(ORL_ENDPOINT_MAIL_HOST),
            .identityHost = QStringLiteral(ORL_ENDPOINT_IDENTITY_HOST),
            .adHost = QStringLiteral(ORL_ENDPOINT_AD_HOST),
            .legalHost = QStringLiteral(ORL_ENDPOINT_LEGAL_HOST),
            .storeHost = QStringLiteral(ORL_ENDPOINT_STORE_HOST),
            .connectivityProbe = QStringLiteral(ORL_ENDPOINT_CONNECTIVITY_PROBE)};
}

} // namespace

EndpointsInForce::~EndpointsInForce() = default;

Result<std::shared_ptr<EndpointsInForce>> EndpointsInForce::open(const QString &file) {
    const QString path = file.isEmpty() ? qEnvironmentVariable("ORL_ENDPOINTS") : file;
    std::shared_ptr<EndpointsInForce> inForce(new EndpointsInForce);
    inForce->endpoints_ = endpointsOfTheBuild();
    if (!path.isEmpty()) {
        Result<Endpoints> read = readEndpointsFile(path);
        if (!read.ok()) return read.error();
        inForce->endpoints_ = std::move(read).value();
    }

    Endpoints &endpoints = inForce->endpoints_;
    for (QString Endpoints::*kind : kinds) {
        if (!(endpoints.*kind).isEmpty()) continue;
        if (!inForce->demoHost_) {
            DemoHostOptions options;
            options.configuration = demo::livelyConfiguration();
            inForce->demoHost_ = std::make_unique<DemoHost>(std::move(options));
            if (!inForce->demoHost_->start())
                return Error{QStringLiteral("the demo host found no free port on 127.0.0.1")};
        }
        endpoints.*kind = inForce->demoHost_->endpoints().*kind;
    }
    return inForce;
}

} // namespace orl
