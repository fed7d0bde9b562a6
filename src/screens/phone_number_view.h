#pragma once

#include "screens/number_choice.h"
#include "screens/number_rows.h"

#include <chrono>
#include <memory>

namespace orl {

/// The numbers of one country, to choose one of them.
class PhoneNumberView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the country screens")
    Q_PROPERTY(State state READ state NOTIFY stateChanged)
    Q_PROPERTY(QString countryName READ countryName CONSTANT)
    Q_PROPERTY(QString flag READ flag CONSTANT)
    Q_PROPERTY(orl::KeyedListModel *phones READ phones CONSTANT)
    Q_PROPERTY(orl::NumberChoice *choice READ choice CONSTANT)
public:
    enum class State {
        Fetching,
        Failed,
        Numbers,
        Nothing, ///< the first number is chosen; the root screen changes
    };
    Q_ENUM(State)

    /// A host that has not answered by then counts as one without numbers, so that the user may try again. An
    /// answer that comes still later is shown all the same.
    static constexpr std::chrono::seconds patience{30};

    /// With `firstSetup` a tap chooses at once; otherwise it goes through NumberChoice.
    PhoneNumberView(Process &process, RequestViewModel &request, std::optional<Country> country,
                    bool firstSetup, QObject *parent = nullptr);

    State state() const;
    QString countryName() const { return country_ ? country_->name : QString(); }
    QString flag() const { return country_ ? country_->icon : QString(); }
    KeyedListModel *phones() { return &rows_; }
    NumberChoice *choice() { return &choice_; }
    bool firstSetup() const { return firstSetup_; }
    bool runMainView() const { return runMainView_; }

    /// Asks for the numbers, at first and with "Try Again".
    Q_INVOKABLE void load();
    Q_INVOKABLE void tap(int row);

Q_SIGNALS:
    void stateChanged();
    void left(); ///< a number was chosen and the screen is to go

private:
    void setPhones(std::optional<QList<PhoneNumber>> phones);

    Process &process_;
    RequestViewModel &request_;
    const std::optional<Country> country_;
    const bool firstSetup_;
    std::optional<QList<PhoneNumber>> phones_; ///< absent while still loading
    int loads_ = 0;
    bool runMainView_ = false;
    NumberRows rows_;
    NumberChoice choice_;
};

} // namespace orl
