#pragma once

#include "numbers/records.h"
#include "screens/keyed_list_model.h"

#include <QHash>

namespace orl {

/// Numbers of one country as cards: the number in the country's format and signal bars. The bars mean nothing
/// and are drawn by lot once per card.
class NumberRows : public orl::KeyedListModel {
    Q_OBJECT
public:
    static constexpr int fewestBars = 2;
    static constexpr int mostBars = 5;

    explicit NumberRows(QObject *parent = nullptr);

    void show(const QString &format, const QList<PhoneNumber> &numbers);
    const PhoneNumber &at(int row) const { return numbers_[row]; }

private:
    int signalOf(const QString &number);

    QList<PhoneNumber> numbers_;
    QHash<QString, int> signals_;
};

} // namespace orl
