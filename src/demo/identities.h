#pragma once

#include "service.h"

#include <QString>

#include <map>

namespace orl::demo {

/// The identity API host: "/NAMESET-COUNTRY/GENDER" gives a person who is nobody. Names are written as the
/// name set writes them, addresses and numbers have the shape of the country, and dates and sizes go
/// together. Mail domains are those reserved for examples.
///
/// Two answers in a row to one address differ in every value. Every pair of a name set and a country is
/// served, those that nobody offers too.
class Identities : public Service {
public:
    explicit Identities(quint64 seed) : seed_(seed) {}

    Reply answer(const Request &request) const override;

private:
    quint64 seed_;
    mutable std::map<QString, quint64> served_; ///< answers so far by path, from 0 or 1
};

} // namespace orl::demo
