#include "cli/mail_command.h"

#include "cli/port_watch.h"
#include "mail/mail_page.h"
#include "numbers/text_helpers.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <orl/html/html.h>

#include <algorithm>
#include <utility>

namespace orl {

namespace {

/// Shorter numbers in a mail are prices and days.
constexpr qsizetype shortestCode = 4;

/// A terminal obeys control characters, and a mail is written by anybody.
QString harmless(QString text) {
    for (QChar &c : text)
        if (c.category() == QChar::Other_Control && c != u'\n' && c != u'\t') c = QChar::ReplacementCharacter;
    return text;
}

QString oneLine(const QString &text) {
    return harmless(text).simplified();
}

QString compact(const QJsonObject &object) {
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

QJsonObject jsonOf(const MailInfo &mail, const Endpoints &endpoints) {
    QJsonObject json{{QStringLiteral("id"), mail.id},
                     {QStringLiteral("time"), mail.created_at},
                     {QStringLiteral("sender"), mail.sender.display_name},
                     {QStringLiteral("address"), mail.sender.email},
                     {QStringLiteral("subject"), mail.subject}};
    QJsonArray files;
    for (const MailAttachment &file : mail.attachments.value_or(QList<MailAttachment>()))
        files.append(QJsonObject{{QStringLiteral("name"), file.file_name},
                                 {QStringLiteral("type"), file.content_type},
                                 {QStringLiteral("size"), file.size_in_bytes},
                                 {QStringLiteral("url"), attachmentUrl(endpoints, file)}});
    if (!files.isEmpty()) json.insert(QStringLiteral("attachments"), files);
    return json;
}

QString textOf(const MailInfo &mail) {
    return QStringLiteral("%1  %2  %3: %4")
        .arg(oneLine(mail.created_at), oneLine(mail.id), oneLine(mail.sender.display_name),
             oneLine(mail.subject));
}

bool isMarkup(const QString &body) {
    static const QRegularExpression tag(
        QStringLiteral("<(?:!doctype|/?(?:html|body|div|p|br|table|span|a|b|i|h[1-6]|ul|img))\\b"),
        QRegularExpression::CaseInsensitiveOption);
    return body.contains(tag);
}

QString firstCode(const QString &text) {
    for (const QString &line : text.split(QLatin1Char('\n'))) {
        const QStringList codes = extractNumbers(shortestCode, line);
        if (!codes.isEmpty()) return codes.first();
    }
    return {};
}

/// Where the first link of a page leads.
QString firstTarget(const QString &page) {
    try {
        const html::Document document = html::Parser::parse(page.toStdString(), "");
        const html::Element link = document.select("a[href^=http]").first();
        return link ? QString::fromStdString(link.attr("href")) : QString();
    } catch (const html::Exception::Error &) {
        return {};
    }
}

/// The first code of a mail, or its first link where it has none.
QString firstExport(const MailInfo &mail) {
    if (const QString code = firstCode(mail.subject); !code.isEmpty()) return code;
    if (!mail.content) return {};
    const QString body = mailBody(*mail.content);
    const QString text = isMarkup(body) ? mailText(body) : body;
    if (const QString code = firstCode(text); !code.isEmpty()) return code;
    const QString target = firstTarget(body);
    return target.isEmpty() ? firstLink(text).value_or(QString()) : target;
}

} // namespace

MailCommand::MailCommand(Process &process, IdleWatch &idle, const ReadWatch &reads, Commands::Output output)
    : process_(process), idle_(idle), reads_(reads), output_(std::move(output)) {}

void MailCommand::run(const CommandLine &line, Commands::Finished finished) {
    line_ = line;
    finished_ = std::move(finished);
    if (line_.timeout) {
        process_.platform().mainQueue.postAfter(*line_.timeout, [this] {
            if (!finished_) return;
            output_.notice(QStringLiteral("nothing came within %1 seconds").arg(line_.timeout->count()));
            finish(ExitCode::NothingFound);
        });
    }
    if (line_.command == CommandLine::Command::MailShow) return show();
    if (line_.command == CommandLine::Command::MailWait) return wait();
    return line_.watch ? watch() : list();
}

/// Bodies that are still on their way hold nobody up.
void MailCommand::openInbox(std::function<void()> replaced) {
    service_ = std::make_unique<MailServiceViewModel>(process_);
    service_->setCurrentAddress(line_.arguments.at(0));
    QObject::connect(service_.get(), &MailServiceViewModel::mailsReplaced, service_.get(),
                     std::move(replaced));
    service_->fetchMails();
}

void MailCommand::list() {
    openInbox([this] {
        if (!finished_) return;
        const QList<MailInfo> mails = newMails();
        if (mails.isEmpty()) return finishEmpty(QStringLiteral("no mails"));
        QJsonArray rows;
        for (const MailInfo &mail : mails) {
            if (line_.json)
                rows.append(jsonOf(mail, process_.platform().endpoints));
            else
                output_.result(textOf(mail));
        }
        if (line_.json) output_.result(QString::fromUtf8(QJsonDocument(rows).toJson()).trimmed());
        finish(ExitCode::Done);
    });
    idle_.whenIdle([this] {
        if (finished_) finishEmpty(QStringLiteral("no mails"));
    });
}

void MailCommand::watch() {
    openInbox([this] {
        for (const MailInfo &mail : newMails())
            output_.result(line_.json ? compact(jsonOf(mail, process_.platform().endpoints)) : textOf(mail));
    });
}

void MailCommand::wait() {
    openInbox([this] { lookForMails(); });
    QObject::connect(service_.get(), &MailServiceViewModel::mailChanged, service_.get(),
                     [this](int position) {
                         const MailInfo mail = service_->mails()[position];
                         if (mail.content && awaited_.contains(mail.id) && report(mail))
                             finish(ExitCode::Done);
                     });
}

/// What stands in the first inbox that can be read came before.
void MailCommand::lookForMails() {
    const QList<MailInfo> mails = newMails();
    if (!std::exchange(sawInbox_, true)) return;
    for (const MailInfo &mail : mails) {
        if (finished_ && report(mail)) return finish(ExitCode::Done);
        awaited_.insert(mail.id);
    }
}

/// False where the mail has not, or not yet, what was asked for.
bool MailCommand::report(const MailInfo &mail) {
    if (!finished_) return false;
    QJsonObject json = jsonOf(mail, process_.platform().endpoints);
    QString text = textOf(mail);
    if (line_.code) {
        text = firstExport(mail);
        if (text.isEmpty()) return false;
        json.insert(QStringLiteral("code"), text);
    }
    output_.result(line_.json ? compact(json) : harmless(text));
    return true;
}

void MailCommand::show() {
    const auto request = bodyRequest(process_.platform().endpoints, line_.arguments.at(2));
    if (!request) return finishEmpty(QStringLiteral("no mail %1").arg(line_.arguments.at(2)));
    process_.platform().globalQueue.post([this, platform = process_.platform(), request = *request] {
        const Result<UrlResponse> answer = platform.urlReader.read(request);
        platform.mainQueue.post([this, answer] { printBody(answer); });
    });
}

void MailCommand::printBody(const Result<UrlResponse> &answer) {
    if (!finished_) return;
    const int status = answer ? answer.value().status : 0;
    if (status == 404) {
        output_.notice(QStringLiteral("no mail %1").arg(line_.arguments.at(2)));
        return finish(ExitCode::NothingFound);
    }
    if (!answer || status >= 400) {
        output_.notice(answer ? QStringLiteral("the mail host answers %1").arg(status)
                              : answer.error().description);
        return finish(ExitCode::EndpointFailed);
    }
    QString body = QString::fromUtf8(answer.value().body);
    if (line_.text && isMarkup(body)) body = mailText(body);
    const char *key = line_.text ? "text" : "body";
    output_.result(line_.json
                       ? compact({{QStringLiteral("id"), line_.arguments.at(2)}, {QLatin1String(key), body}})
                       : harmless(body).trimmed());
    finish(ExitCode::Done);
}

QList<MailInfo> MailCommand::newMails() {
    QList<MailInfo> fresh;
    for (const MailInfo &mail : service_->mails()) {
        if (taken_.contains(mail.id)) continue;
        taken_.insert(mail.id);
        fresh.prepend(mail);
    }
    return fresh;
}

void MailCommand::finishEmpty(const QString &notice) {
    output_.notice(notice);
    finish(reads_.failures() > 0 ? ExitCode::EndpointFailed : ExitCode::NothingFound);
}

void MailCommand::finish(ExitCode code) {
    if (const Commands::Finished finished = std::exchange(finished_, nullptr)) finished(code);
}

} // namespace orl
