#include "screens/saved_identities_view.h"

#include "numbers/moments.h"
#include "platform/clock.h"

namespace orl {

QVariantList published(const SavedIdentities::List &list) {
    QVariantList values;
    values.reserve(list.size());
    for (const IdentityHistory &record : list)
        values << QVariant::fromValue(record);
    return values;
}

SavedIdentities::List savedIdentities(const RequestViewModel &request) {
    SavedIdentities::List list;
    list.reserve(request.savedIdentities().size());
    for (const QVariant &value : request.savedIdentities())
        list << value.value<IdentityHistory>();
    return list;
}

SavedIdentitiesView::SavedIdentitiesView(Process &process, RequestViewModel &request, QObject *parent)
    : KeyedRows({"picture", "gender", "name", "fullName", "time"}, parent),
      process_(process),
      request_(request) {
    connect(&request_, &RequestViewModel::savedIdentitiesChanged, this, &SavedIdentitiesView::list);
    list();
}

/// The list only grows at its front, so that a place counted from the end belongs to one record for ever.
void SavedIdentitiesView::list() {
    saved_ = savedIdentities(request_);
    QStringList keys;
    keys.reserve(saved_.size());
    for (qsizetype left = saved_.size(); left > 0; --left)
        keys << QString::number(left);
    arrange(keys);
}

QVariant SavedIdentitiesView::shown(const QString &key, qsizetype role) const {
    const IdentityHistory &record = saved_[saved_.size() - key.toLongLong()];
    switch (role) {
    case 0: return rawValue(record.identity.gender);
    case 1: return caseName(record.identity.gender);
    case 2: return record.name;
    case 3: return record.identity.full_name;
    default: return relativeTime(record.time, process_.platform().clock.now());
    }
}

} // namespace orl
