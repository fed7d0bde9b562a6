#include "numbers/choice_allowance.h"

#include "platform/defaults_store.h"

namespace orl {

namespace {

const QString countKey = QStringLiteral("chose_numbers_count_key");
const QString soundDisabledKey = QStringLiteral("message_received_sound_disabled_key");

} // namespace

ChoiceAllowance::ChoiceAllowance(Process &process)
    : process_(process), configuration_(process.shared<ValuesInForce>().currentConfiguration) {}

qint64 ChoiceAllowance::chosenNumbersCount() {
    if (!chosenNumbersCount_) chosenNumbersCount_ = process_.platform().store.integer(countKey);
    return *chosenNumbersCount_;
}

void ChoiceAllowance::setChosenNumbersCount(qint64 count) {
    process_.platform().store.setValue(countKey, count);
    chosenNumbersCount_ = count;
}

void ChoiceAllowance::countChoice() {
    setChosenNumbersCount(process_.platform().store.integer(countKey) + 1);
}

void ChoiceAllowance::giveWay() {
    setChosenNumbersCount(process_.platform().store.integer(countKey) - 1);
}

bool ChoiceAllowance::mayChoose() {
    return chosenNumbersCount() < maxChosenNumbers || !configuration_->get()->admob.rewardAdEnabled;
}

void ChoiceAllowance::resetAllowance() {
    setChosenNumbersCount(0);
    Q_EMIT rewardUser();
}

bool MessageSound::messageSoundEnabled() {
    if (!enabled_) enabled_ = !process_.platform().store.boolean(soundDisabledKey);
    return *enabled_;
}

void MessageSound::setMessageSoundEnabled(bool enabled) {
    process_.platform().store.setValue(soundDisabledKey, !enabled);
    enabled_ = enabled;
}

} // namespace orl
