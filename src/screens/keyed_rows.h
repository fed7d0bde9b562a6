#pragma once

#include <QAbstractListModel>
#include <QByteArrayList>
#include <QStringList>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

namespace orl {

/// Keys made unique: the second, third... appearance of a key carries its number, counted from the front.
QStringList withOccurrence(const QStringList &keys);

/// A list whose rows are known by their keys. A new order of keys is shown as the difference: rows with a key
/// that was there before stay the same rows, so a view keeps its scroll position and redraws nothing that did
/// not change. What a row shows is asked of the subclass when a view wants it.
class KeyedRows : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the state classes")
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    explicit KeyedRows(QByteArrayList roles, QObject *parent = nullptr);

    int count() const { return int(keys_.size()); }
    const QString &key(int row) const { return keys_[row]; }

    /// What a row shows in a role; invalid for a row or role that is not there.
    Q_INVOKABLE QVariant value(int row, const QByteArray &role) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

protected:
    /// Brings the rows into the order of these keys, which must be unique. While it runs, a view may ask
    /// for rows that are about to go.
    void arrange(const QStringList &keys);

    /// Tells views that these roles may have changed in all rows.
    void changed(const QByteArrayList &roles);

    /// As changed, for one row and all its roles.
    void changedRow(int row) { Q_EMIT dataChanged(index(row), index(row)); }

    virtual QVariant shown(const QString &key, qsizetype role) const = 0;

    const QByteArrayList &roles() const { return roles_; }

private:
    void removeMissing(const QStringList &keys);
    void insert(qsizetype at, const QStringList &keys);
    void place(qsizetype at, const QString &key);

    QByteArrayList roles_;
    QStringList keys_;
};

} // namespace orl
