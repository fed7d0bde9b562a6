#pragma once

#include "config/values_in_force.h"
#include "platform/process.h"

#include <QString>
#include <orl/html/document.h>

#include <memory>
#include <optional>
#include <vector>

namespace orl {

/// Reads the pages of the first website by the recipe in force. A failed look-up costs only the element it
/// was for: it is logged, and the operation gives an empty result. Cheap to copy into a worker; reads the
/// recipe and the display name anew for each call.
class ScrapingUtils {
public:
    explicit ScrapingUtils(Process &process);

    std::optional<html::Element> mainContent(const html::Document &document) const;
    std::vector<html::Element> countryElements(const html::Element &mainContent) const;
    QString countryName(const html::Element &countryElement) const;
    std::vector<html::Element> phoneNumberElements(const html::Document &document) const;
    std::vector<html::Element> messageElements(const html::Document &document) const;
    std::vector<html::Element> messageTimeElements(const html::Document &document) const;

    /// The website's own name is replaced by the program's display name, so that it never reaches the user.
    QString messageSender(const html::Element &messageElement) const;

    /// As messageSender, but the website's name becomes the display name in lower case with hyphens.
    QString messageContent(const html::Element &messageElement) const;

    /// The time stamp inside the outer HTML of a time element; absent where the recipe's slice is not found.
    std::optional<QString> messageTime(const QString &timeElementDescription) const;

    /// The text of a number element after the recipe's removals; logs and gives nothing if it cannot be read.
    std::optional<QString> phoneNumber(const html::Element &numberElement) const;

private:
    std::vector<html::Element> list(const html::Element &root, ScrapingItem ScrapingConfig::*item) const;
    QString text(const html::Element &root, ScrapingItem ScrapingConfig::*item,
                 QStringList ScrapingConfig::*removals) const;
    QString displayName() const;
    void logFailure(const html::Exception::Error &error) const;

    const Platform platform_;
    std::shared_ptr<const Snapshot<ScrapingConfig>> recipe_;
};

/// Removes all occurrences of each text, one after the other, literally and by case.
QString removing(const QStringList &texts, QString from);

/// Drops one blank at the very start.
QString withoutLeadingBlank(const QString &text);

} // namespace orl
