#pragma once

#include "app/options.h"
#include "numbers/records.h"

#include <QObject>

namespace orl {

class RequestViewModel;

/// Chooses a number that the command line names, as soon as its country's numbers have arrived. A number that
/// is the current one already is left alone, so that starting the same way again uses up nothing of the
/// allowance.
class StartChoice : public QObject {
    Q_OBJECT
public:
    StartChoice(RequestViewModel &request, ChosenNumber wanted, QObject *parent = nullptr);

private:
    void lookForCountry();
    void lookForNumber(const Country &country, const QList<PhoneNumber> &numbers);

    RequestViewModel &request_;
    const ChosenNumber wanted_;
    bool asked_ = false;
    bool done_ = false;
};

} // namespace orl
