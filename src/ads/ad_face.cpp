#include "ads/ad_face.h"

#include "ads/native_model.h"

namespace orl {

AdPictures::Key AdPictures::keep(const QByteArray &bytes) {
    if (bytes.isEmpty()) return nullptr;
    const std::lock_guard lock(mutex_);
    std::erase_if(entries_, [](const auto &entry) { return entry.second.key.expired(); });
    const auto key = std::make_shared<const QString>(QString::number(++next_));
    entries_.emplace(*key, Entry{key, bytes});
    return key;
}

QByteArray AdPictures::bytes(const QString &key) const {
    const std::lock_guard lock(mutex_);
    const auto entry = entries_.find(key);
    return entry == entries_.end() || entry->second.key.expired() ? QByteArray() : entry->second.bytes;
}

std::size_t AdPictures::held() const {
    const std::lock_guard lock(mutex_);
    return entries_.size();
}

AdFace::AdFace(Process &process, const AdAssets &assets)
    : texts_(assets),
      icon_(process.shared<AdPictures>().keep(assets.icon)),
      media_(process.shared<AdPictures>().keep(assets.media.picture)) {
    texts_.icon.clear();
    texts_.media.picture.clear();
}

QString AdFace::stars() const {
    return starImage(texts_.starRating);
}

} // namespace orl
