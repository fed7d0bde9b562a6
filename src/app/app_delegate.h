#pragma once

#include "platform/process.h"

#include <QObject>

namespace orl {

/// What runs before the first screen and when the program leaves the foreground. Main thread.
class AppDelegate : public QObject {
    Q_OBJECT
public:
    /// Of push payloads; kept for what the push service may hand on.
    static const QString gcmMessageIDKey;
    static const QString fetchingKey;
    static const QString cleaningKey;

    explicit AppDelegate(Process &process, QObject *parent = nullptr);

    /// Starts analytics and push and registers the background tasks. Always true.
    bool didFinishLaunching();

    /// Submits both background requests. Called each time that the program enters the background, and from
    /// nowhere else.
    void didEnterBackground();

    /// Their handlers do nothing on purpose: no message is fetched and nothing is cleaned in the background.
    void registerBackgroundTasks();
    void scheduleAppRefresh();
    void scheduleImageFetch();

private:
    void submit(const BackgroundRequest &request, const char *failure);

    Process &process_;
};

} // namespace orl
