#pragma once

#include "../service.h"
#include "letters.h"

#include <QHash>

#include <optional>

namespace orl::demo {

/// The mail endpoint: an inbox for every address, which begins with a welcome mail when it is first asked
/// for and then fills every few seconds; "noreply" gets nothing.
///
/// "/api/emails?inbox=ADDRESS" lists an inbox, "/api/emails/ID" is a mail's body in the first form of the
/// Accept header that the mail has, "/api/emails/ID/attachments/FILE" a file, "/pictures/..." and
/// "/pages/..." what mails refer to. What a mail says, and its id, depend on the address and its number
/// there alone: after a restart of the host the inbox fills anew with the same mails, and one can be read
/// by id before it has arrived again. Only when an inbox was first asked for is known to the running host
/// alone.
class Mailboxes : public Service {
public:
    explicit Mailboxes(quint64 seed) : seed_(seed) {}

    Reply answer(const Request &request) const override;

private:
    struct Inbox {
        QString address;
        double begun; ///< seconds since 1970
    };
    struct Place {
        quint64 key;
        int number;
    };

    Reply list(const Request &request, const QString &address) const;
    Reply body(const Request &request, const Place &place) const;
    Reply file(const Request &request, const Place &place, const QString &id) const;
    QString addressOf(quint64 key) const;
    Letter written(const Request &request, const Place &place) const;
    const Inbox &inbox(quint64 key, const QString &address, double now) const;

    quint64 seed_;
    mutable QHash<quint64, Inbox> inboxes_; ///< by key; server's thread
};

} // namespace orl::demo
