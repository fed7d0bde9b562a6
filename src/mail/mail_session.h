#pragma once

#include "mail/records.h"
#include "platform/process.h"

#include <QString>

#include <optional>

namespace orl {

/// Where the address of the inbox is stored; overwritten by each new one and never removed.
inline const QString selectedEmailKey = QStringLiteral("selected_email");

/// What one run of the program knows of its inbox, whatever screens come and go. Main thread.
class MailSession {
public:
    /// Begins with the stored address.
    explicit MailSession(Process &process);

    std::optional<QString> currentAddress; ///< whose inbox is polled
    std::optional<MailInfo> openedMail;    ///< the one that was tapped last
};

} // namespace orl
