#pragma once

#include "ads/native_ad_view.h"
#include "screens/appearance.h"
#include "screens/avatar_face.h"
#include "screens/ssn_is_valid_alert_view.h"

#include <memory>
#include <vector>

namespace orl {

/// Where the gallery's window is; it needs a `gallery` of this type.
inline constexpr char galleryWindow[] = "qrc:/Orl/Screens/GalleryWindow.qml";

/// What a page of all components needs of state, made up: it reads no host and keeps nothing.
class Gallery : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(orl::Appearance *appearance READ appearance CONSTANT)
    Q_PROPERTY(orl::KeyedListModel *genders READ genders CONSTANT)
    Q_PROPERTY(orl::SSNIsValidAlertView *ssnAlert READ ssnAlert CONSTANT)
    Q_PROPERTY(orl::AvatarFace face READ face CONSTANT)
    Q_PROPERTY(QStringList nameSets READ nameSets CONSTANT)
    Q_PROPERTY(QVariantList ads READ ads CONSTANT)
public:
    /// The process is where the pictures of the ads are kept.
    Gallery(Appearance &appearance, Process &process, QObject *parent = nullptr);
    ~Gallery() override;

    Appearance *appearance() { return &appearance_; }
    KeyedListModel *genders() { return &genders_; }
    SSNIsValidAlertView *ssnAlert() { return &ssnAlert_; }
    AvatarFace face() const;
    QStringList nameSets() const;
    QVariantList ads() const; ///< native cards; nothing happens when one is tapped

    Q_INVOKABLE void chooseGender(int index);
    Q_INVOKABLE void showSSN(); ///< puts a made-up result into the alert

private:
    Appearance &appearance_;
    KeyedListModel genders_;
    SSNIsValidAlertView ssnAlert_;
    std::vector<std::unique_ptr<NativeAdView>> ads_;
};

} // namespace orl
