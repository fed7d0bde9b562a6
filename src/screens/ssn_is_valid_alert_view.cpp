#include "screens/ssn_is_valid_alert_view.h"

namespace orl {

void SSNIsValidAlertView::setSsnValidItem(const std::optional<ValidSSN> &item) {
    ssnValidItem_ = item;
    if (item) {
        const std::pair<const char *, QString> rows[] = {{"SSN", item->ssn},
                                                         {"Issuance Location", item->issuance_location},
                                                         {"First Year Issued", item->first_year_issued},
                                                         {"Last Year Issued", item->last_year_issued},
                                                         {"Estimated Age", item->estimated_age}};
        QList<KeyedListModel::Row> list;
        for (const auto &[title, content] : rows)
            list << KeyedListModel::Row{QString::fromLatin1(title), {QString::fromLatin1(title), content}};
        rows_.setRows(list);
    }
    Q_EMIT ssnValidItemChanged();
}

} // namespace orl
