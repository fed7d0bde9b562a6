#pragma once

#include "numbers/request_view_model.h"
#include "screens/keyed_rows.h"

#include <QHash>

namespace orl {

/// The senders as ConversationCardView shows them: who, the last message, its time, and how many are unseen.
class SenderCards : public orl::KeyedRows {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by HomeView")
public:
    explicit SenderCards(const RequestViewModel &request, QObject *parent = nullptr);

    /// Shows these senders; the places of ads only where `withAds`.
    void show(const QList<SMSSender> &senders, bool withAds);

    /// Null for the place of an ad.
    const SMSSender *at(int row) const;

    /// The sender of this name as the list has it; null where it is not listed.
    const SMSSender *named(const QString &name) const;

protected:
    QVariant shown(const QString &key, qsizetype role) const override;

private:
    const RequestViewModel &request_;
    QList<SMSSender> senders_;
    QHash<QString, qsizetype>
        places_; ///< in senders_, by name, which is unique among senders; ads by their id
};

} // namespace orl
