#pragma once

#include "identity/fake_identity.h"
#include "platform/process.h"

#include <functional>
#include <optional>

namespace orl {

/// The identities that the user kept: a list in the store that only grows, newest first. Names need not
/// differ. Main thread; shared by the Process.
///
/// A stored list that does not decode is passed over without a word, and the next save begins anew in its
/// place.
class SavedIdentities {
public:
    using List = QList<IdentityHistory>;

    static constexpr char key[] = "identity_history_key";

    explicit SavedIdentities(Process &process) : process_(process) {}

    /// The stored list; nothing where none that decodes is stored.
    std::optional<List> load();

    /// Puts an identity in front of the stored list. `publish` gets that list as it was, where there is one,
    /// and then as it is now; what cannot be encoded is published and not stored.
    void save(const QString &name, const FakeIdentity &identity,
              const std::function<void(const List &)> &publish);

private:
    Process &process_;
    // The stored text that was decoded last, and what it holds: a text that did not change is neither decoded
    // nor, but for the new record, encoded again.
    QByteArray text_;
    List list_;
};

} // namespace orl
