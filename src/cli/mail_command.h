#pragma once

#include "cli/commands.h"
#include "mail/mail_service_view_model.h"

#include <QSet>

#include <memory>

namespace orl {

/// `orl-cli mail`: an inbox in a terminal, on the program's own mail service. Main thread.
class MailCommand {
public:
    MailCommand(Process &process, IdleWatch &idle, const ReadWatch &reads, Commands::Output output);

    /// As Commands::run, for the commands about mail.
    void run(const CommandLine &line, Commands::Finished finished);

private:
    void list();
    void watch();
    void show();
    void wait();
    void openInbox(std::function<void()> replaced);
    void printBody(const Result<UrlResponse> &answer);
    void lookForMails();
    bool report(const MailInfo &mail);
    /// Those that were not taken before, oldest first.
    QList<MailInfo> newMails();
    void finish(ExitCode code);
    void finishEmpty(const QString &notice);

    Process &process_;
    IdleWatch &idle_;
    const ReadWatch &reads_;
    const Commands::Output output_;
    CommandLine line_;
    Commands::Finished finished_;
    std::unique_ptr<MailServiceViewModel> service_;
    QSet<QString> taken_;
    QSet<QString> awaited_; ///< new mails whose bodies may still bring a code
    bool sawInbox_ = false;
};

} // namespace orl
