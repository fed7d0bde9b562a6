#include "screens/keyed_list_model.h"

namespace orl {

KeyedListModel::KeyedListModel(QByteArrayList roles, QObject *parent) : KeyedRows(std::move(roles), parent) {}

void KeyedListModel::setRows(const QList<Row> &rows) {
    QStringList keys;
    for (const Row &row : rows)
        keys << row.key;
    keys = withOccurrence(keys);

    QHash<QString, QVariantList> values;
    for (qsizetype i = 0; i < rows.size(); ++i)
        values.insert(keys[i], rows[i].values);
    const QHash<QString, QVariantList> before = values_;
    values_.insert(values);
    arrange(keys);
    values_ = values;
    for (int row = 0; row < count(); ++row) {
        if (const auto old = before.constFind(key(row)); old != before.cend()) tellDifference(row, *old);
    }
}

void KeyedListModel::tellDifference(int row, const QVariantList &before) {
    const QVariantList now = values_.value(key(row));
    QList<int> changed;
    for (qsizetype role = 0; role < roles().size(); ++role) {
        if (before.value(role) != now.value(role)) changed << Qt::UserRole + int(role);
    }
    if (!changed.isEmpty()) Q_EMIT dataChanged(index(row), index(row), changed);
}

QVariant KeyedListModel::shown(const QString &key, qsizetype role) const {
    return values_.value(key).value(role);
}

} // namespace orl
