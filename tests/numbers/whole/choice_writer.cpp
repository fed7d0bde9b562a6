// Chooses one number after the other until it is killed. Says, each in a line: how many choices the store
// counts and how many entries its history has, and then the number of each choice once all of it is stored.

#include "cli/port_watch.h"
#include "numbers/request_view_model.h"
#include "platform/qt/linux_platform.h"

#include <QCoreApplication>

#include <cstdio>

namespace {

using namespace orl;

class Writer {
public:
    Writer(RequestViewModel &numbers, IdleWatch &idle, int first)
        : numbers_(numbers), idle_(idle), next_(first) {}

    void chooseNext() {
        const QString name = QString::number(next_);
        numbers_.chooseNumber(
            {.name = name, .domain = {}, .prefix = {}, .continent = {}, .icon = {}, .format = {}},
            {.id = QUuid::createUuid(), .number = name, .website = {}}, false);
        idle_.whenIdle([this] {
            std::printf("%d\n", next_++);
            std::fflush(stdout);
            chooseNext();
        });
    }

private:
    RequestViewModel &numbers_;
    IdleWatch &idle_;
    int next_;
};

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    if (argc != 3) return 2;
    LinuxPlatform phone({QString::fromLocal8Bit(argv[1]), {}, {}, {}});
    const Platform ports = phone.platform();
    IdleWatch idle(ports.globalQueue, ports.mainQueue);
    NoNetwork network;
    Process process(ports.with(idle, network));
    RequestViewModel numbers(process);
    Writer writer(numbers, idle, QByteArray(argv[2]).toInt());
    numbers.loadHistory([&](const QList<History> &list) {
        std::printf("%lld %lld\n",
                    static_cast<long long>(ports.store.integer(QStringLiteral("chose_numbers_count_key"))),
                    static_cast<long long>(list.size()));
        std::fflush(stdout);
        writer.chooseNext();
    });
    const int code = QCoreApplication::exec();
    phone.stop();
    return code;
}
