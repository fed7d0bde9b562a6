#include "screens/number_rows.h"

#include "numbers/text_helpers.h"

#include <QRandomGenerator>

namespace orl {

NumberRows::NumberRows(QObject *parent) : KeyedListModel({"number", "bars"}, parent) {}

void NumberRows::show(const QString &format, const QList<PhoneNumber> &numbers) {
    numbers_ = numbers;
    QList<Row> rows;
    for (const PhoneNumber &phone : numbers) {
        rows << Row{phone.number, {formattedNumber(phone.number, format), signalOf(phone.number)}};
    }
    setRows(rows);
}

int NumberRows::signalOf(const QString &number) {
    int &bars = signals_[number];
    if (bars == 0) bars = QRandomGenerator::global()->bounded(fewestBars, mostBars + 1);
    return bars;
}

} // namespace orl
