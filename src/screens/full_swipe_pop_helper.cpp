#include "screens/full_swipe_pop_helper.h"

#include "numbers/request_view_model.h"

#include <algorithm>
#include <utility>

namespace orl {

FullSwipePopHelper::FullSwipePopHelper(RequestViewModel &request, QObject *parent)
    : QObject(parent), request_(request) {
    connect(&request_, &RequestViewModel::conversation_isPresentedChanged, this, [this] {
        gestureOffset_ = 0;
        Q_EMIT showChanged();
        Q_EMIT moved();
    });
}

bool FullSwipePopHelper::show() const {
    return request_.conversation_isPresented();
}

void FullSwipePopHelper::setShow(bool show) {
    request_.setConversation_isPresented(show);
}

void FullSwipePopHelper::setWidth(double width) {
    width_ = width;
    Q_EMIT moved();
}

double FullSwipePopHelper::coveredOffset() const {
    if (!show()) return 0;
    const double travelled =
        width_ > 0 ? std::min(coveringOffset() / width_ * coveredTravel, coveredTravel) : 0;
    return std::min(travelled + coveredAtRest, 0.0);
}

void FullSwipePopHelper::drag(double translation) {
    if (!show()) return;
    gestureOffset_ = std::max(translation, 0.0);
    Q_EMIT moved();
}

void FullSwipePopHelper::endDrag() {
    const double translation = std::exchange(gestureOffset_, 0);
    if (translation > width_ / closingShare) setShow(false);
    Q_EMIT moved();
}

} // namespace orl
