#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace orl {

class RequestViewModel;

/// The conversation slides over everything and is dragged away again; here is where the two screens stand.
/// Lengths are in points, along the direction in which a screen is dragged away.
class FullSwipePopHelper : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by ContentView")
    Q_PROPERTY(bool show READ show WRITE setShow NOTIFY showChanged)
    Q_PROPERTY(double width READ width WRITE setWidth NOTIFY moved)
    Q_PROPERTY(double coveringOffset READ coveringOffset NOTIFY moved)
    Q_PROPERTY(double coveredOffset READ coveredOffset NOTIFY moved)
    Q_PROPERTY(double minimumDistance READ minimumDistance CONSTANT)
public:
    static constexpr double leastDrag = 10;
    static constexpr double closingShare = 2.5; ///< a drag farther than the width divided by this closes
    static constexpr double coveredAtRest = -80;
    static constexpr double coveredTravel = 90;

    explicit FullSwipePopHelper(RequestViewModel &request, QObject *parent = nullptr);

    /// Whether the covering screen is there: RequestViewModel's conversation_isPresented, both ways.
    bool show() const;
    void setShow(bool show);

    double width() const { return width_; } ///< of the covering area
    void setWidth(double width);
    static double minimumDistance() { return leastDrag; }

    /// Where the covering screen stands; 0 is home.
    double coveringOffset() const { return gestureOffset_; }
    /// Where the covered screen stands: aside while it is covered, home again when the other one is far
    /// enough.
    double coveredOffset() const;

    /// The finger has moved by this much since it was put down. Nothing moves against the direction of
    /// closing.
    Q_INVOKABLE void drag(double translation);
    /// The finger was lifted: closes, or returns the covering screen to its home.
    Q_INVOKABLE void endDrag();

Q_SIGNALS:
    void showChanged();
    void moved();

private:
    RequestViewModel &request_;
    double width_ = 0;
    double gestureOffset_ = 0; ///< 0 when no drag runs
};

} // namespace orl
