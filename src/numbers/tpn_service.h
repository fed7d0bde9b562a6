#pragma once

#include "config/values_in_force.h"
#include "numbers/records.h"
#include "platform/process.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace orl {

/// Reads numbers and messages from the second website by class names that are compiled in. Only its first
/// pages are ever read. Process-wide as shared<TPNService>(); copies share one state, so that a worker may
/// keep one. The operations may be called from any thread; they return at once and complete on the main
/// queue.
class TPNService {
public:
    using NumbersCompletion = std::function<void(const QList<PhoneNumber> &)>;

    /// `whole` is false when a failure ended the page early; the list then holds what was read until there.
    using MessagesCompletion = std::function<void(const QList<Message> &, bool whole)>;

    explicit TPNService(Process &process);

    /// A copy of the icons list; see RequestViewModel::fetchIcons.
    void setIcons(const QStringList &icons);
    QStringList icons() const;

    /// `domain` is the country's path on the website. A URL that cannot be made is never completed.
    void fetchNumbers(const QString &domain, NumbersCompletion completion) const;
    void fetchMessages(const QString &domain, const PhoneNumber &number, MessagesCompletion completion) const;

    /// The next gradient pair; never reset, so that colours keep rotating from fetch to fetch.
    int gradientColorIndex() const;

private:
    struct State;
    std::shared_ptr<State> state_;
};

/// The moment that a phrase such as "2 hours ago" means, in seconds since 1970. A month counts 30 days and a
/// year twelve months; a phrase without a known unit or a readable count means now.
double dateFromRelativeTime(const QString &phrase, double now);

} // namespace orl
