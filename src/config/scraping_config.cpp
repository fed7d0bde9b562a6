#include "config/scraping_config.h"

namespace orl {

namespace {

// An object that keeps its keys in the order in which they were added, which QJsonObject does not.
class OrderedObject {
public:
    OrderedObject &add(const char *key, const QByteArray &json) {
        body_ += body_.isEmpty() ? "\"" : ",\"";
        body_ += key;
        body_ += "\":" + json;
        return *this;
    }
    QByteArray json() const { return '{' + body_ + '}'; }

private:
    QByteArray body_;
};

QByteArray encoded(const QString &text) {
    const QByteArray list = encodeJson(QJsonArray{text});
    return list.mid(1, list.size() - 2);
}

QByteArray encoded(const QStringList &texts) {
    return encodeJson(QJsonArray::fromStringList(texts));
}

QByteArray encoded(const ScrapingItem &item) {
    return OrderedObject().add("type", encoded(item.type)).add("id", encoded(item.id)).json();
}

QByteArray encoded(const SliceItem &slice) {
    return OrderedObject().add("from", encoded(slice.from)).add("to", encoded(slice.to)).json();
}

void decode(JsonDecoder &json, const char *key, ScrapingItem &item) {
    item = json.object(key, [](JsonDecoder &inner) {
        return ScrapingItem{.type = inner.text("type"), .id = inner.text("id")};
    });
}

void decode(JsonDecoder &json, const char *key, SliceItem &slice) {
    slice = json.object(key, [](JsonDecoder &inner) {
        return SliceItem{.from = inner.text("from"), .to = inner.text("to")};
    });
}

void decode(JsonDecoder &json, const char *key, QStringList &texts) {
    texts = json.textList(key);
}

// Visits every field with its key, in the order in which documents hold them.
template<class Config, class Visit>
void forEachField(Config &config, Visit visit) {
    visit("countries_main_content", config.countriesMainContent);
    visit("country_element", config.countryElement);
    visit("country_name", config.countryName);
    visit("country_should_remove", config.countryShouldRemove);
    visit("phone_number", config.phoneNumber);
    visit("phone_number_should_remove", config.phoneNumberShouldRemove);
    visit("messages_element", config.messagesElement);
    visit("message_sender", config.messageSender);
    visit("message_content", config.messageContent);
    visit("message_should_remove", config.messageShouldRemove);
    visit("sender_should_remove", config.senderShouldRemove);
    visit("message_times_element", config.messageTimesElement);
    visit("message_time_slice", config.messageTimeSlice);
    visit("time_should_remove", config.timeShouldRemove);
}

} // namespace

Result<ScrapingConfig> ScrapingConfig::decode(const QByteArray &document) {
    return decodeJson(document, [](JsonDecoder &json) {
        ScrapingConfig config;
        forEachField(config, [&](const char *key, auto &field) { orl::decode(json, key, field); });
        return config;
    });
}

QByteArray ScrapingConfig::encoded() const {
    OrderedObject object;
    forEachField(*this, [&](const char *key, const auto &field) { object.add(key, orl::encoded(field)); });
    return object.json();
}

} // namespace orl
