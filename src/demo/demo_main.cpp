#include "demo_host.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QSaveFile>

#include <cstdio>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

struct Arguments {
    orl::DemoHostOptions host;
    QString endpointsPath;
};

/// None after a complaint on the standard error stream.
std::optional<Arguments> readArguments() {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Serves every endpoint of Orl on one loopback port, with lifelike pages, until it is killed.\n"
        "POST /_control/fault?path=PREFIX&kind=KIND[&ms=N] makes it fail, POST /_control/reset heals it."_s);
    parser.addHelpOption();
    parser.addOptions({{u"port"_s, u"Listen on this port; 0 takes any free one."_s, u"N"_s, u"0"_s},
                       {u"seed"_s, u"Another seed is another world."_s, u"N"_s, u"1"_s},
                       {u"ads"_s, u"Switch all advertising on."_s},
                       {u"print-endpoints"_s, u"Write the base addresses to FILE."_s, u"FILE"_s}});
    parser.process(*QCoreApplication::instance());
    bool portFits = false, seedFits = false;
    Arguments arguments;
    arguments.host.port = parser.value(u"port"_s).toUShort(&portFits);
    arguments.host.seed = parser.value(u"seed"_s).toULongLong(&seedFits);
    if (parser.isSet(u"ads"_s)) arguments.host.configuration = orl::demo::livelyConfiguration();
    arguments.endpointsPath = parser.value(u"print-endpoints"_s);
    if (portFits && seedFits && parser.positionalArguments().isEmpty()) return arguments;
    std::fprintf(stderr,
                 "orl-demo-host: --port takes 0 to 65535, --seed a number, and nothing else; see --help\n");
    return std::nullopt;
}

bool writeFile(const QString &path, const QByteArray &text) {
    QSaveFile file(path); // a reader that waits for the file never sees half of it
    if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit()) return true;
    std::fprintf(stderr, "orl-demo-host: cannot write %s: %s\n", qUtf8Printable(path),
                 qUtf8Printable(file.errorString()));
    return false;
}

} // namespace

int main(int argc, char **argv) {
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"orl-demo-host"_s);
    const auto arguments = readArguments();
    if (!arguments) return 2;
    orl::DemoHost host(arguments->host);
    if (!host.start()) {
        std::fprintf(stderr, "orl-demo-host: cannot listen on port %d\n", arguments->host.port);
        return 1;
    }
    const QByteArray text = orl::endpointsFile(host.endpoints());
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout);
    std::fflush(stdout);
    if (!arguments->endpointsPath.isEmpty() && !writeFile(arguments->endpointsPath, text)) return 1;
    return QCoreApplication::exec();
}
