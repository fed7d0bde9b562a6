#pragma once

#include "catalogue.h"

#include <QString>

#include <optional>
#include <vector>

namespace orl::demo {

/// One SMS as it reached the website, before any markup.
struct ReceivedMessage {
    qint64 microseconds = 0; ///< since 1970
    QString sender;
    QString text;    ///< a line feed is a line break on the page
    quint64 key = 0; ///< stable identity, for choices that belong to this message

    bool operator==(const ReceivedMessage &) const = default;
};

/// The endless timetable of one number: which message arrives when.
///
/// Time is cut into equal slots with one message at a drawn moment of each, so that any point in time can be
/// looked up without playing the past: on a lively number the gaps are 2 to 12 seconds. A quiet number holds
/// 3 to 7 messages some hours apart; a brief one holds as few and is lively. The same seed and number give
/// the same timetable in every run.
class MessageSchedule {
public:
    MessageSchedule(quint64 seed, const Number &number);

    /// Messages that have arrived by `now` (seconds since 1970), newest first, without the `skip` newest
    /// ones.
    std::vector<ReceivedMessage> newest(double now, int skip, int count) const;
    /// How many messages the website lists per page, 9 to 12.
    int pageSize() const { return pageSize_; }

private:
    qint64 arrival(qint64 slot) const;
    qint64 lastSlot(double now) const;
    ReceivedMessage message(qint64 slot) const;

    quint64 seed_;
    QStringList languages_;
    qint64 slotLength_, spread_, phase_; ///< microseconds
    int kept_;                           ///< how many messages the website keeps
    int pageSize_;
    std::vector<QString> services_; ///< the ones that write to this number
    std::vector<QString> others_;
};

/// Pages of one number on the first website; behind the last one there is nothing.
inline constexpr int lastPage = 5;

/// "2026-11-21T09:30:00.250000Z": UTC, six places of fraction.
QString timeStamp(qint64 microseconds);

/// "12 seconds ago", "1 minute ago", "3 hours ago", "2 days ago"...: the age in its largest whole unit.
QString ageInWords(qint64 microseconds);

} // namespace orl::demo
