#pragma once

#include <QString>

#include <functional>

namespace orl {

/// What became of a mail, numbered as phones number it.
enum class MailResult { Cancelled = 0, Saved = 1, Sent = 2, Failed = 3 };

/// The phone's window for writing a mail. Main thread.
class MailComposer {
public:
    virtual ~MailComposer() = default;

    /// Whether the device has anything to write mail with. Answers at once.
    virtual bool canSendMail() const = 0;

    /// Opens a mail to `address`. The result, a MailResult, comes later and once. A mail program of its own
    /// does not tell whether the mail was sent: what was handed over to one counts as Saved.
    virtual void compose(const QString &address, std::function<void(int)> result) = 0;
};

/// Stands where no mail can be written.
class NoMailComposer final : public MailComposer {
public:
    bool canSendMail() const override { return false; }
    void compose(const QString &, std::function<void(int)> result) override {
        if (result) result(int(MailResult::Failed));
    }

    static MailComposer &instance() {
        static NoMailComposer none;
        return none;
    }
};

} // namespace orl
