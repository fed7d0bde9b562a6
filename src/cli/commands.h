#pragma once

#include "cli/command_line.h"
#include "config/app_config_view_model.h"
#include "numbers/request_view_model.h"
#include "platform/process.h"
#include "platform/queues.h"

#include <QHash>
#include <QJsonObject>

#include <functional>
#include <memory>
#include <optional>

namespace orl {

class IdleWatch;
class ReadWatch;

/// Runs one command of orl-cli on the program's own state objects. Main thread. Showing a number's messages
/// makes it the current one, so every command but those that use the application's data needs a store that
/// may be thrown away.
class Commands {
public:
    struct Output {
        std::function<void(const QString &line)> result; ///< what was asked for
        std::function<void(const QString &line)> notice; ///< what went wrong, for people
    };
    using Finished = std::function<void(ExitCode)>;

    Commands(Process &process, IdleWatch &idle, const ReadWatch &reads, Output output);

    /// Calls `finished` once, on the main queue; with --watch never, unless the start fails. The timeout of
    /// `wait` counts from here.
    void run(const CommandLine &line, Finished finished);

private:
    void withCountry(const QString &name, std::function<void(const Country &)> next);
    void withNumbers(const QString &country,
                     std::function<void(const Country &, const QList<PhoneNumber> &)> next);
    void withNumber(std::function<void(const Country &, const PhoneNumber &)> next);
    void withMessages(std::function<void()> next);
    void start();
    void listCountries();
    void listNumbers();
    void showMessages();
    void watchMessages();
    void waitForMessage();
    void lookForMessage();
    void chooseNumber();
    void showHistory();
    /// Reads the messages every ten seconds, and calls `seen` each time that this is done.
    void refreshMessages(std::function<void()> seen);
    void finish(ExitCode code);
    void print(const QList<QJsonObject> &rows, const std::function<QString(const QJsonObject &)> &text);
    /// Messages that were not printed yet, oldest first.
    QList<QJsonObject> newMessages();
    void finishEmpty(const QString &notice);

    Process &process_;
    IdleWatch &idle_;
    const ReadWatch &reads_;
    Output output_;
    CommandLine line_;
    Finished finished_;
    std::unique_ptr<AppConfigViewModel> config_;
    std::unique_ptr<RequestViewModel> requests_;
    std::unique_ptr<RepeatingTimer> refresh_;
    bool sawPage_ = false;      ///< of Wait: what was there before is known
    QHash<QString, int> shown_; ///< how many messages of one identity were printed so far
};

} // namespace orl
