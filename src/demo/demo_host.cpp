#include "demo_host.h"

#include "advertising.h"
#include "first_website.h"
#include "identities.h"
#include "legal_pages.h"
#include "mail/mailboxes.h"
#include "second_website.h"
#include "server.h"

#include <QDateTime>
#include <QTcpServer>
#include <QThread>

using namespace Qt::StringLiterals;

namespace orl {

namespace {

double systemSeconds() {
    return static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000;
}

/// Says that the network is there; nobody reads what it answers.
class Probe : public demo::Service {
public:
    demo::Reply answer(const demo::Request &) const override { return {200, "text/plain", "ok\n"}; }
};

/// A kind of endpoint whose service is not built yet.
class Unserved : public demo::Service {
public:
    demo::Reply answer(const demo::Request &) const override { return demo::notFoundPage(); }
};

} // namespace

/// Everything behind the server. A further kind of endpoint is a member here and an entry in `services`.
struct DemoHost::World {
    World(quint64 seed, const demo::ConfigurationValues &values)
        : catalogue(seed),
          configuration(catalogue),
          first(catalogue, seed),
          second(catalogue, seed),
          mail(seed),
          identities(seed) {
        configuration.setValues(values);
    }

    demo::Server::Services services() const {
        return {{u"config"_s, &configuration}, {u"first"_s, &first},
                {u"second"_s, &second},        {u"mail"_s, &mail},
                {u"identity"_s, &identities},  {u"ads"_s, &advertising},
                {u"legal"_s, &legal},          {u"store"_s, &unserved},
                {u"probe"_s, &probe}};
    }

    demo::Catalogue catalogue;
    demo::ConfigurationDocuments configuration;
    demo::FirstWebsite first;
    demo::SecondWebsite second;
    demo::Mailboxes mail;
    demo::LegalPages legal;
    demo::Advertising advertising;
    demo::Identities identities;
    Unserved unserved;
    Probe probe;
    demo::FaultTable faults;
};

/// Serves from start() until it is destroyed.
class DemoHost::Thread : public QThread {
public:
    explicit Thread(const DemoHost &host) : host_(host) { setObjectName(u"demo host"_s); }

    ~Thread() override {
        quit();
        wait();
    }

    /// The port it listens on, 0 if it cannot.
    std::future<quint16> port() { return port_.get_future(); }

protected:
    void run() override {
        // Who connects before the world is there waits for the first answer.
        auto listener = std::make_unique<QTcpServer>();
        listener->listen(QHostAddress::LocalHost, host_.options_.port);
        port_.set_value(listener->serverPort());
        if (!listener->isListening()) return;
        World &world = host_.world();
        demo::Server server(world.services(), world.first, world.faults, host_.options_.clock,
                            host_.options_.heard);
        server.bind(listener.release()); // which takes it
        exec();
    }

private:
    const DemoHost &host_;
    std::promise<quint16> port_;
};

DemoHost::DemoHost(DemoHostOptions options)
    : options_(std::move(options)),
      world_(std::async(std::launch::async, [seed = options_.seed, values = options_.configuration] {
          return std::make_unique<World>(seed, values);
      })) {
    if (!options_.clock) options_.clock = systemSeconds;
}

DemoHost::~DemoHost() = default;

bool DemoHost::start() {
    thread_ = std::make_unique<Thread>(*this);
    auto port = thread_->port();
    thread_->start();
    port_ = port.get();
    return port_ != 0;
}

Endpoints DemoHost::endpoints() const {
    const QString base = u"http://127.0.0.1:%1"_s.arg(port_);
    Endpoints endpoints;
    endpoints.configurationHost = base + u"/config"_s;
    endpoints.firstWebsite = base + u"/first"_s;
    endpoints.secondWebsite = base + u"/second/"_s;
    endpoints.mailHost = base + u"/mail"_s;
    endpoints.identityHost = base + u"/identity"_s;
    endpoints.adHost = base + u"/ads"_s;
    endpoints.legalHost = base + u"/legal"_s;
    endpoints.storeHost = base + u"/store"_s;
    endpoints.connectivityProbe = base + u"/probe"_s;
    return endpoints;
}

void DemoHost::setFault(const QString &pathPrefix, Fault fault) {
    world().faults.set(pathPrefix, fault);
}

void DemoHost::clearFaults() {
    world().faults.clear();
}

void DemoHost::setConfiguration(const demo::ConfigurationValues &values) {
    world().configuration.setValues(values);
}

QByteArray endpointsFile(const Endpoints &endpoints) {
    const std::pair<const char *, QString> lines[] = {{"configurationHost", endpoints.configurationHost},
                                                      {"firstWebsite", endpoints.firstWebsite},
                                                      {"secondWebsite", endpoints.secondWebsite},
                                                      {"mailHost", endpoints.mailHost},
                                                      {"identityHost", endpoints.identityHost},
                                                      {"adHost", endpoints.adHost},
                                                      {"legalHost", endpoints.legalHost},
                                                      {"storeHost", endpoints.storeHost},
                                                      {"connectivityProbe", endpoints.connectivityProbe}};
    QByteArray text;
    for (const auto &[key, value] : lines)
        text += QByteArray(key) + '=' + value.toUtf8() + '\n';
    return text;
}

} // namespace orl
