#pragma once

#include <QObject>
#include <QString>
#include <QUrl>

namespace orl {

/// Desktops have no program for the store's own links, so these open as pages of the store host instead.
/// Holds for all that the program opens, as long as it lives.
class StorePages : public QObject {
    Q_OBJECT
public:
    /// `storeHost` is its base address.
    explicit StorePages(const QString &storeHost);
    ~StorePages() override;

    /// The page of a link of the store.
    QUrl pageOf(QUrl link) const;

public Q_SLOTS:
    void open(const QUrl &link) const;

private:
    const QString scheme_;
};

} // namespace orl
