#pragma once

#include <vector>

namespace orl::demo {

/// What people and services write in one language. All texts are UTF-8.
///
/// Places that are filled in: {code} {alnum} {service} {link} {minutes} {amount} {name} {time}. A line break
/// is shown as one on the page.
struct LanguageTexts {
    const char *language;              ///< ISO 639-1
    std::vector<const char *> codes;   ///< what a service sends: mostly one-time codes
    std::vector<const char *> notices; ///< what a bank, a parcel service, a clinic or a friend sends
    std::vector<const char *> senders; ///< who sends the notices
    std::vector<const char *> names;   ///< first names
};

const std::vector<LanguageTexts> &languageTexts();

/// A service that sends under its own name. All of them are invented.
struct ServiceName {
    const char *name;
    bool hasIcon = false; ///< the configuration host has a picture for it
};

const std::vector<ServiceName> &serviceNames();

/// Senders without a service behind them: plain words, in any country.
const std::vector<const char *> &genericSenders();

} // namespace orl::demo
