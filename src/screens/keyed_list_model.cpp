#include "screens/keyed_list_model.h"

#include <QHash>
#include <QSet>

namespace orl {

QStringList withOccurrence(const QStringList &keys) {
    QHash<QString, int> seen;
    QStringList unique;
    for (const QString &key : keys) {
        const int before = seen[key]++;
        unique << (before == 0 ? key : key + QChar(0x1f) + QString::number(before));
    }
    return unique;
}

KeyedListModel::KeyedListModel(QByteArrayList roles, QObject *parent)
    : QAbstractListModel(parent), roles_(std::move(roles)) {}

void KeyedListModel::setRows(QList<Row> rows) {
    QStringList keys;
    for (const Row &row : rows)
        keys << row.key;
    keys = withOccurrence(keys);
    for (qsizetype i = 0; i < rows.size(); ++i)
        rows[i].key = keys[i];

    const int before = count();
    removeMissing(rows);
    for (qsizetype i = 0; i < rows.size(); ++i)
        place(i, rows[i]);
    if (count() != before) Q_EMIT countChanged();
}

void KeyedListModel::removeMissing(const QList<Row> &rows) {
    QSet<QString> wanted;
    for (const Row &row : rows)
        wanted.insert(row.key);
    for (qsizetype last = rows_.size() - 1; last >= 0; --last) {
        if (wanted.contains(rows_[last].key)) continue;
        qsizetype first = last;
        while (first > 0 && !wanted.contains(rows_[first - 1].key))
            --first;
        beginRemoveRows({}, int(first), int(last));
        rows_.remove(first, last - first + 1);
        endRemoveRows();
        last = first;
    }
}

void KeyedListModel::place(qsizetype at, const Row &row) {
    const qsizetype from = find(row.key, at);
    if (from == -1) {
        beginInsertRows({}, int(at), int(at));
        rows_.insert(at, row);
        endInsertRows();
        return;
    }
    if (from != at) {
        beginMoveRows({}, int(from), int(from), {}, int(at));
        rows_.move(from, at);
        endMoveRows();
    }
    update(at, row);
}

void KeyedListModel::update(qsizetype at, const Row &row) {
    QList<int> changed;
    for (qsizetype i = 0; i < roles_.size(); ++i) {
        if (rows_[at].values.value(i) != row.values.value(i)) changed << Qt::UserRole + int(i);
    }
    if (changed.isEmpty()) return;
    rows_[at].values = row.values;
    Q_EMIT dataChanged(index(int(at)), index(int(at)), changed);
}

void KeyedListModel::setValue(const QString &key, const QByteArray &role, const QVariant &value) {
    const qsizetype at = find(key);
    const qsizetype column = roles_.indexOf(role);
    if (at == -1 || column == -1) return;
    Row row = rows_[at];
    row.values[column] = value;
    update(at, row);
}

QVariant KeyedListModel::value(int row, const QByteArray &role) const {
    return data(index(row), Qt::UserRole + int(roles_.indexOf(role)));
}

qsizetype KeyedListModel::find(const QString &key, qsizetype from) const {
    for (qsizetype i = from; i < rows_.size(); ++i) {
        if (rows_[i].key == key) return i;
    }
    return -1;
}

int KeyedListModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant KeyedListModel::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    return rows_[index.row()].values.value(role - Qt::UserRole);
}

QHash<int, QByteArray> KeyedListModel::roleNames() const {
    QHash<int, QByteArray> names;
    for (qsizetype i = 0; i < roles_.size(); ++i)
        names.insert(Qt::UserRole + int(i), roles_[i]);
    return names;
}

} // namespace orl
