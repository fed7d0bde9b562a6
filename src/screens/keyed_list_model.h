#pragma once

#include "screens/keyed_rows.h"

#include <QHash>
#include <QList>

namespace orl {

/// Rows whose values are all known when they are set. Only the roles whose value changed are told.
class KeyedListModel : public orl::KeyedRows {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the state classes")
public:
    /// One value per role, in the order of the roles.
    struct Row {
        QString key;
        QVariantList values;
    };

    explicit KeyedListModel(QByteArrayList roles, QObject *parent = nullptr);

    /// Rows with equal keys are told apart by their occurrence.
    void setRows(const QList<Row> &rows);

protected:
    QVariant shown(const QString &key, qsizetype role) const override;

private:
    void tellDifference(int row, const QVariantList &before);

    QHash<QString, QVariantList> values_;
};

} // namespace orl
