#pragma once

#include <QSizeF>
#include <QString>

#include <optional>

namespace orl {

/// Where a native card stands.
enum class NativeAdType {
    INSIDE_MESSAGES,
    IN_HOME_SCREEN,
    IDENTITY_HOME,
    IDENTITY_AFTER_BUTTON,
    INSIDE_CHAT
};

QString rawValue(NativeAdType type);   ///< the case name
QString layoutFile(NativeAdType type); ///< the component that lays the card out
QString adUnit(NativeAdType type);

enum class NativeAdState { none, failed, loaded };

/// One slot for a native ad.
struct NativeModel {
    QString id; ///< "home", "inside_messages", or that of a sender's ad row
    NativeAdType adType = NativeAdType::INSIDE_MESSAGES;
    QSizeF size{0, 0}; ///< points; zero when the layout decides

    bool operator==(const NativeModel &) const = default;
};

/// The picture of a rating of 5; empty below 3.5 and without one.
QString starImage(std::optional<double> rating);

} // namespace orl
