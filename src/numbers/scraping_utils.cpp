#include "numbers/scraping_utils.h"

#include "numbers/web_page.h"
#include "platform/bundle.h"
#include "platform/console.h"

namespace orl {

namespace {

std::vector<html::Element> elements(const html::Elements &found) {
    return {found.begin(), found.end()};
}

html::Elements find(const html::Element &root, const ScrapingItem &item) {
    const std::string id = item.id.toStdString();
    if (item.type == QLatin1String("tag")) return root.getElementsByTag(id);
    if (item.type == QLatin1String("attribute")) return root.getElementsByAttribute(id);
    return root.getElementsByClass(id);
}

bool isId(const ScrapingItem &item) {
    return item.type == QLatin1String("id");
}

QString findText(const html::Element &root, const ScrapingItem &item) {
    if (!isId(item)) return toQString(find(root, item).text());
    const html::Element element = root.getElementById(item.id.toStdString());
    return element ? toQString(element.text()) : QString();
}

// The website goes by two spellings of its name.
QString renamed(QString text, const QString &name) {
    return text.replace(QLatin1String("sms24"), name).replace(QLatin1String("SMS24"), name);
}

} // namespace

QString removing(const QStringList &texts, QString from) {
    for (const QString &text : texts)
        from.remove(text);
    return from;
}

QString withoutLeadingBlank(const QString &text) {
    return text.startsWith(QLatin1Char(' ')) ? text.mid(1) : text;
}

ScrapingUtils::ScrapingUtils(Process &process)
    : platform_(process.platform()), recipe_(process.shared<ValuesInForce>().currentScrapingConfig) {}

std::optional<html::Element> ScrapingUtils::mainContent(const html::Document &document) const {
    const ScrapingItem item = recipe_->get()->countriesMainContent;
    try {
        const html::Element element =
            isId(item) ? document.getElementById(item.id.toStdString()) : find(document, item).first();
        if (element) return element;
    } catch (const html::Exception::Error &error) {
        logFailure(error);
    }
    return std::nullopt;
}

std::vector<html::Element> ScrapingUtils::countryElements(const html::Element &mainContent) const {
    return list(mainContent, &ScrapingConfig::countryElement);
}

QString ScrapingUtils::countryName(const html::Element &countryElement) const {
    return text(countryElement, &ScrapingConfig::countryName, &ScrapingConfig::countryShouldRemove);
}

std::vector<html::Element> ScrapingUtils::phoneNumberElements(const html::Document &document) const {
    return list(document, &ScrapingConfig::phoneNumber);
}

std::vector<html::Element> ScrapingUtils::messageElements(const html::Document &document) const {
    return list(document, &ScrapingConfig::messagesElement);
}

std::vector<html::Element> ScrapingUtils::messageTimeElements(const html::Document &document) const {
    return list(document, &ScrapingConfig::messageTimesElement);
}

QString ScrapingUtils::messageSender(const html::Element &messageElement) const {
    const QString found =
        text(messageElement, &ScrapingConfig::messageSender, &ScrapingConfig::senderShouldRemove);
    const QString sender = renamed(found, displayName());
    return sender.toLower() == QLatin1String("sms") ? sender.toUpper() : sender;
}

QString ScrapingUtils::messageContent(const html::Element &messageElement) const {
    const QString found =
        text(messageElement, &ScrapingConfig::messageContent, &ScrapingConfig::messageShouldRemove);
    const QString slug = displayName().replace(QLatin1Char(' '), QLatin1Char('-')).toLower();
    return renamed(found, slug);
}

std::optional<QString> ScrapingUtils::messageTime(const QString &timeElementDescription) const {
    const SliceItem slice = recipe_->get()->messageTimeSlice;
    if (slice.from.isEmpty() || slice.to.isEmpty()) return std::nullopt;
    const qsizetype from = timeElementDescription.indexOf(slice.from);
    if (from < 0) return std::nullopt;
    const qsizetype start = from + slice.from.size();
    const qsizetype end = timeElementDescription.indexOf(slice.to, start);
    if (end < 0) return std::nullopt;
    return removing(recipe_->get()->timeShouldRemove, timeElementDescription.mid(start, end - start));
}

std::optional<QString> ScrapingUtils::phoneNumber(const html::Element &numberElement) const {
    try {
        const QString text = toQString(numberElement.text()).trimmed();
        return removing(recipe_->get()->phoneNumberShouldRemove, text);
    } catch (const html::Exception::Error &) {
        platform_.console.print(QStringLiteral("No text found in this element"));
        return std::nullopt;
    }
}

std::vector<html::Element> ScrapingUtils::list(const html::Element &root,
                                               ScrapingItem ScrapingConfig::*item) const {
    try {
        return elements(find(root, (*recipe_->get()).*item));
    } catch (const html::Exception::Error &error) {
        logFailure(error);
        return {};
    }
}

QString ScrapingUtils::text(const html::Element &root, ScrapingItem ScrapingConfig::*item,
                            QStringList ScrapingConfig::*removals) const {
    try {
        const QString found = findText(root, (*recipe_->get()).*item);
        return removing((*recipe_->get()).*removals, found);
    } catch (const html::Exception::Error &error) {
        logFailure(error);
        return {};
    }
}

QString ScrapingUtils::displayName() const {
    return platform_.bundle.infoValue(QStringLiteral("CFBundleDisplayName")).value_or(QStringLiteral("App"));
}

void ScrapingUtils::logFailure(const html::Exception::Error &error) const {
    platform_.console.print(QStringLiteral("Failed to fetch data ") + toError(error).description);
}

} // namespace orl
