#include "screens/keyed_rows.h"

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

KeyedRows::KeyedRows(QByteArrayList roles, QObject *parent)
    : QAbstractListModel(parent), roles_(std::move(roles)) {}

void KeyedRows::arrange(const QStringList &keys) {
    if (keys == keys_) return;
    const int before = count();
    removeMissing(keys);
    const QSet<QString> known(keys_.cbegin(), keys_.cend());
    for (qsizetype i = 0; i < keys.size();) {
        if (known.contains(keys[i])) {
            place(i, keys[i]);
            ++i;
            continue;
        }
        qsizetype end = i + 1;
        while (end < keys.size() && !known.contains(keys[end]))
            ++end;
        insert(i, keys.mid(i, end - i));
        i = end;
    }
    if (count() != before) Q_EMIT countChanged();
}

void KeyedRows::removeMissing(const QStringList &keys) {
    const QSet<QString> wanted(keys.cbegin(), keys.cend());
    for (qsizetype last = keys_.size() - 1; last >= 0; --last) {
        if (wanted.contains(keys_[last])) continue;
        qsizetype first = last;
        while (first > 0 && !wanted.contains(keys_[first - 1]))
            --first;
        beginRemoveRows({}, int(first), int(last));
        keys_.remove(first, last - first + 1);
        endRemoveRows();
        last = first;
    }
}

/// All at once: a view that fills from nothing is told once.
void KeyedRows::insert(qsizetype at, const QStringList &keys) {
    beginInsertRows({}, int(at), int(at + keys.size() - 1));
    keys_ = keys_.mid(0, at) + keys + keys_.mid(at);
    endInsertRows();
}

void KeyedRows::place(qsizetype at, const QString &key) {
    const qsizetype from = keys_.indexOf(key, at);
    if (from == at) return;
    beginMoveRows({}, int(from), int(from), {}, int(at));
    keys_.move(from, at);
    endMoveRows();
}

void KeyedRows::changed(const QByteArrayList &roles) {
    if (keys_.isEmpty()) return;
    QList<int> numbers;
    for (const QByteArray &role : roles)
        numbers << Qt::UserRole + int(roles_.indexOf(role));
    Q_EMIT dataChanged(index(0), index(count() - 1), numbers);
}

QVariant KeyedRows::value(int row, const QByteArray &role) const {
    return data(index(row), Qt::UserRole + int(roles_.indexOf(role)));
}

int KeyedRows::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant KeyedRows::data(const QModelIndex &index, int role) const {
    const int at = role - Qt::UserRole;
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || at < 0 || at >= roles_.size()) return {};
    return shown(keys_[index.row()], at);
}

QHash<int, QByteArray> KeyedRows::roleNames() const {
    QHash<int, QByteArray> names;
    for (qsizetype i = 0; i < roles_.size(); ++i)
        names.insert(Qt::UserRole + int(i), roles_[i]);
    return names;
}

} // namespace orl
