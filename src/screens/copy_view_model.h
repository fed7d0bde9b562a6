#pragma once

#include "platform/process.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace orl {

/// Copies a text and says so for two seconds.
class CopyViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by ContentView")
    Q_PROPERTY(bool copied READ copied NOTIFY copiedChanged)
public:
    explicit CopyViewModel(Process &process) : process_(process) {}

    bool copied() const { return copied_; }

    /// A second copy within the two seconds does not restart them. An empty text is copied and announced too.
    Q_INVOKABLE void copy(const QString &text);

Q_SIGNALS:
    void copiedChanged();

private:
    void setCopied(bool copied);

    Process &process_;
    bool copied_ = false;
};

} // namespace orl
