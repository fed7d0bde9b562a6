#pragma once

#include "platform/json.h"
#include "platform/result.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace orl {

/// How to find elements: `type` is "class", "tag", "attribute" or "id", `id` is its argument.
struct ScrapingItem {
    QString type;
    QString id;

    bool operator==(const ScrapingItem &) const = default;
};

/// A piece of text: what stands behind the first `from` and ahead of the first `to` after it.
struct SliceItem {
    QString from;
    QString to;

    bool operator==(const SliceItem &) const = default;
};

/// The scraping recipe: where things stand on the pages of the first website, told in data so that a change
/// of the website's markup needs a new document and no new build. The default values are the compiled recipe.
struct ScrapingConfig {
    ScrapingItem countriesMainContent{QStringLiteral("class"), QStringLiteral("container-fluid mt-3 p-0")};
    ScrapingItem countryElement{QStringLiteral("class"), QStringLiteral("col-sm-12 col-md-6 col-lg-4")};
    ScrapingItem countryName{QStringLiteral("class"), QStringLiteral("placeholder h5")};
    QStringList countryShouldRemove;
    ScrapingItem phoneNumber{QStringLiteral("class"), QStringLiteral("fw-bold text-primary placeholder")};
    QStringList phoneNumberShouldRemove;
    ScrapingItem messagesElement{
        QStringLiteral("class"),
        QStringLiteral("shadow-sm bg-light rounded border-start border-info border-5")};
    ScrapingItem messageSender{QStringLiteral("class"), QStringLiteral("mb-1")};
    ScrapingItem messageContent{QStringLiteral("class"), QStringLiteral("placeholder text-break")};
    QStringList messageShouldRemove{QStringLiteral("From: "), QStringLiteral("From:"),
                                    QStringLiteral("From "),  QStringLiteral("From"),
                                    QStringLiteral("#> "),    QStringLiteral("s2 < \" >")};
    QStringList senderShouldRemove{QStringLiteral("From: "), QStringLiteral("From:"), QStringLiteral("From "),
                                   QStringLiteral("From")};
    ScrapingItem messageTimesElement{QStringLiteral("class"), QStringLiteral("mt-3")};
    SliceItem messageTimeSlice{QStringLiteral("data-created=\""), QStringLiteral("\">")};
    QStringList timeShouldRemove;

    /// One missing or mistyped key rejects the whole document; unknown keys are passed over.
    static Result<ScrapingConfig> decode(const QByteArray &document);

    /// Compact JSON with the keys in the order of the fields.
    QByteArray encoded() const;

    bool operator==(const ScrapingConfig &) const = default;
};

} // namespace orl
