#pragma once

#include "identity/saved_identities.h"
#include "numbers/request_view_model.h"
#include "screens/keyed_rows.h"

namespace orl {

/// The saved identities, newest first, while their list is open. What a row shows is worked out when a view
/// asks for it, so that a long list opens as fast as a short one.
///
/// Roles "picture" (of the gender), "gender", "name", "fullName", and "time", how long ago it was saved.
class SavedIdentitiesView : public orl::KeyedRows {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by FakeGeneratorView")
public:
    SavedIdentitiesView(Process &process, RequestViewModel &request, QObject *parent = nullptr);

    const IdentityHistory &at(int row) const { return saved_[row]; }

protected:
    QVariant shown(const QString &key, qsizetype role) const override;

private:
    void list();

    Process &process_;
    RequestViewModel &request_;
    SavedIdentities::List saved_;
};

/// The list in the form in which RequestViewModel publishes it, and back.
QVariantList published(const SavedIdentities::List &list);
SavedIdentities::List savedIdentities(const RequestViewModel &request);

} // namespace orl
