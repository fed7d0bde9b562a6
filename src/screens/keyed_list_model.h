#pragma once

#include <QAbstractListModel>
#include <QByteArrayList>
#include <QList>
#include <QString>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

namespace orl {

/// Keys made unique: the second, third... appearance of a key carries its number, counted from the front.
QStringList withOccurrence(const QStringList &keys);

/// A list whose content is replaced as a whole and shown as the difference.
///
/// Rows with a key that was there before stay the same rows: they move, and only the roles whose value
/// changed are told. So a view keeps its scroll position and redraws nothing that did not change.
class KeyedListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the state classes")
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    /// One value per role, in the order of the roles.
    struct Row {
        QString key;
        QVariantList values;
    };

    explicit KeyedListModel(QByteArrayList roles, QObject *parent = nullptr);

    /// Rows with equal keys are told apart by their occurrence.
    void setRows(QList<Row> rows);

    /// Writes one role of the row with this (unique) key; nothing happens when there is no such row.
    void setValue(const QString &key, const QByteArray &role, const QVariant &value);

    /// What a row shows in a role; invalid for a row or role that is not there.
    Q_INVOKABLE QVariant value(int row, const QByteArray &role) const;

    int count() const { return int(rows_.size()); }
    const QString &key(int row) const { return rows_[row].key; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    void removeMissing(const QList<Row> &rows);
    void place(qsizetype at, const Row &row);
    void update(qsizetype at, const Row &row);
    qsizetype find(const QString &key, qsizetype from = 0) const;

    QByteArrayList roles_;
    QList<Row> rows_;
};

} // namespace orl
