#include "screens/review_prompt.h"

namespace orl {

void ReviewPrompt::rate() {
    browser_.open(reviewLink_);
    dismiss();
}

void ReviewPrompt::setIsPresented(bool presented) {
    if (presented == isPresented_) return;
    isPresented_ = presented;
    Q_EMIT isPresentedChanged();
}

} // namespace orl
