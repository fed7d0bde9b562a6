#include "support/played_platform.h"

namespace orl {

namespace {

template<class Map>
std::optional<typename Map::mapped_type> find(const Map &map, const QString &key) {
    const auto entry = map.find(key);
    if (entry == map.end()) return std::nullopt;
    return entry->second;
}

} // namespace

std::optional<StoredValue> PlayedStore::value(const QString &key) const {
    return find(values, key);
}

void PlayedStore::setValue(const QString &key, const StoredValue &value) {
    setValues({{key, value}});
}

void PlayedStore::remove(const QString &key) {
    writes.append(key);
    values.erase(key);
}

void PlayedStore::setValues(const std::vector<std::pair<QString, StoredValue>> &all) {
    for (const auto &[key, value] : all) {
        writes.append(key);
        values.insert_or_assign(key, value);
    }
}

bool PlayedReachability::canTarget(const QString &name) const {
    return targetable && !name.isEmpty();
}

std::optional<unsigned> PlayedReachability::flags(const QString &name) const {
    asked.append(name);
    return current;
}

std::optional<QByteArray> PlayedBundle::resource(const QString &name) const {
    return find(resources, name);
}

std::optional<QString> PlayedBundle::infoValue(const QString &key) const {
    return find(infoValues, key);
}

PlayedPlatform::PlayedPlatform() {
    endpoints.configurationHost = QStringLiteral("https://configuration.example");
    endpoints.firstWebsite = QStringLiteral("https://first.example");
    endpoints.secondWebsite = QStringLiteral("https://second.example/");
    endpoints.mailHost = QStringLiteral("https://mail.example");
    endpoints.identityHost = QStringLiteral("https://identity.example");
    endpoints.adHost = QStringLiteral("https://ads.example");
    endpoints.legalHost = QStringLiteral("https://legal.example");
    endpoints.storeHost = QStringLiteral("https://store.example");
    endpoints.connectivityProbe = QStringLiteral("https://probe.example");
}

Platform PlayedPlatform::platform() {
    return {clock, mainQueue, globalQueue, urls, store, reachability, bundle, console, fatal, endpoints};
}

} // namespace orl
