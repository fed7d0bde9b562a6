#pragma once

#include <QObject>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace orl {

/// Tab goes through siblings in the order in which they were made. A list makes its foot before its rows, and
/// rows as they come into sight, so what is to come earlier is put there.
class FocusOrder : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    using QObject::QObject;

    /// Nothing where one of them is missing or they are no siblings.
    Q_INVOKABLE static void putBefore(QQuickItem *item, QQuickItem *sibling) {
        if (item && sibling && item != sibling && item->parentItem() == sibling->parentItem())
            item->stackBefore(sibling);
    }
};

} // namespace orl
