#include "identity/saved_identities.h"

#include "platform/clock.h"
#include "platform/defaults_store.h"

#include <cmath>

namespace orl {

namespace {

/// A list with one more record in front. `list` is valid JSON and a list.
QByteArray withFirst(const QByteArray &record, const QByteArray &list, bool listIsEmpty) {
    QByteArray text;
    text.reserve(record.size() + list.size() + 2);
    text += '[';
    text += record;
    text += listIsEmpty ? "]" : ",";
    if (!listIsEmpty) text += QByteArrayView(list).sliced(list.indexOf('[') + 1);
    return text;
}

} // namespace

std::optional<SavedIdentities::List> SavedIdentities::load() {
    const std::optional<QByteArray> text = process_.platform().store.data(QLatin1String(key));
    if (!text) return std::nullopt;
    if (!text_.isEmpty() && *text == text_) return list_;
    const Result<List> list = decodeJsonList(*text, IdentityHistory::decode);
    if (!list) return std::nullopt;
    text_ = *text;
    list_ = list.value();
    return list_;
}

void SavedIdentities::save(const QString &name, const FakeIdentity &identity,
                           const std::function<void(const List &)> &publish) {
    const IdentityHistory record{name, process_.platform().clock.now(), identity};
    const std::optional<List> stored = load();
    if (stored) publish(*stored);
    List list = stored.value_or(List());
    list.prepend(record);
    publish(list);
    if (!std::isfinite(record.time)) return; // no number that JSON could hold
    text_ = withFirst(encodeJson(record.encoded()), stored ? text_ : QByteArray(), list.size() == 1);
    list_ = std::move(list);
    process_.platform().store.setValue(QLatin1String(key), text_);
}

} // namespace orl
