#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

namespace orl::demo {

enum class Website { First, Second };

/// One virtual number of the demo host.
struct Number {
    QString
        text; ///< as its website shows it: "+12025550123" on the first one, "+1 202 555 0123" on the second
    QString digits; ///< as it stands in a path: "12025550123"
    Website website = Website::First;
    bool quiet = false; ///< hardly anybody uses it: a handful of messages, hours apart
    /// Lively, but its website keeps the newest few messages only: all of them stand on one page. The last
    /// number of each country on the first website is one.
    bool brief = false;
    QStringList languages;
};

struct DemoCountry {
    QString name, pageName, slug, secondPath, icon, continent, prefix, format;
    std::vector<Number> first;  ///< 5 to 30 numbers
    std::vector<Number> second; ///< 2 to 6 further ones where secondPath is not empty
};

/// All countries with all their numbers, drawn once from a seed.
class Catalogue {
public:
    explicit Catalogue(quint64 seed);

    const std::vector<DemoCountry> &countries() const { return countries_; }
    /// The country with this slug on the first website, or null.
    const DemoCountry *countryBySlug(const QString &slug) const;
    /// The country with this path on the second website, or null.
    const DemoCountry *countryBySecondPath(const QString &path) const;
    /// The number with these digits, or null.
    const Number *number(const QString &digits, Website website) const;
    /// The country the number belongs to, or null.
    const DemoCountry *countryOf(const Number &number) const;

private:
    struct Place {
        std::size_t country, index;
        Website website;
    };
    void draw(std::size_t country, quint64 seed);
    void drawNumbers(std::size_t country, quint64 seed, Website website, int count);

    std::vector<DemoCountry> countries_;
    QHash<QString, Place> places_;
};

} // namespace orl::demo
