#include "support/wait_until.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QTimer>

#include <chrono>

namespace orl {

bool waitUntil(const std::function<bool()> &reached) {
    const QDeadlineTimer deadline(std::chrono::seconds(60));
    QTimer wake; // the loop looks again when the deadline has passed, whatever happens
    wake.start(std::chrono::seconds(1));
    while (!reached()) {
        if (deadline.hasExpired()) return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // no loop runs that would
    }
    return true;
}

} // namespace orl
