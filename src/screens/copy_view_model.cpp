#include "screens/copy_view_model.h"

#include "platform/haptics.h"
#include "platform/pasteboard.h"
#include "platform/queues.h"

#include <QPointer>

namespace orl {

using namespace std::chrono_literals;

void CopyViewModel::copy(const QString &text) {
    process_.platform().pasteboard.setString(text);
    process_.platform().haptics.impact(Impact::Soft);
    setCopied(true);
    process_.platform().mainQueue.postAfter(2s, [self = QPointer(this)] {
        if (self) self->setCopied(false);
    });
}

void CopyViewModel::setCopied(bool copied) {
    copied_ = copied;
    Q_EMIT copiedChanged();
}

} // namespace orl
