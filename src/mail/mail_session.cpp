#include "mail/mail_session.h"

#include "platform/defaults_store.h"

namespace orl {

MailSession::MailSession(Process &process)
    : currentAddress(process.platform().store.text(selectedEmailKey)) {}

} // namespace orl
