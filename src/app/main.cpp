#include "app/application.h"
#include "demo/endpoints_in_force.h"

#include <QGuiApplication>
#include <QLocale>

#include <cstdio>

int main(int argc, char **argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    const orl::CommandLine line = orl::readCommandLine(arguments);
    if (!line.options) {
        std::fputs(qUtf8Printable(line.text), line.exitCode == 0 ? stdout : stderr);
        return line.exitCode;
    }
    QGuiApplication gui(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("orl"));
    QGuiApplication::setDesktopFileName(QStringLiteral("orl"));
    QGuiApplication::setLayoutDirection(QLocale().textDirection());

    const auto endpoints = orl::EndpointsInForce::open(line.options->endpointsFile);
    if (!endpoints) {
        std::fprintf(stderr, "orl: %s\n", qUtf8Printable(endpoints.error().description));
        return 2;
    }
    return orl::Application(*line.options, endpoints.value()->endpoints()).run();
}
