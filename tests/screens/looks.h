#pragma once

#include "screens/appearance.h"

#include <QQuickItem>
#include <QStringList>

#include <ostream>

namespace orl {

/// One way in which a user may have set up the device.
struct Look {
    const char *name;
    int width = 390;
    int height = 844;
    bool dark = false;
    double textScale = 1;
    bool rightToLeft = false;
};

inline void PrintTo(const Look &look, std::ostream *out) {
    *out << look.name;
}

/// Without motion, as only screens at rest are looked at.
inline void setUp(Appearance &appearance, const Look &look) {
    appearance.setDark(look.dark);
    appearance.setTextScale(look.textScale);
    appearance.setRightToLeft(look.rightToLeft);
    appearance.setReducedMotion(true);
}

/// Whether a text that neither wraps nor is shortened or made smaller to fit has the width that its words
/// take.
inline bool holdsItsWords(const QQuickItem &text) {
    const bool adapts = text.property("wrapMode").toInt() != 0 ||
                        text.property("elide").toInt() != Qt::ElideNone ||
                        text.property("fontSizeMode").toInt() != 0;
    return adapts || text.property("contentWidth").toDouble() <= text.width() + 0.5;
}

/// What the toolkit has warned of since a test began; a message handler gathers it.
inline QStringList complaints;

inline void noteComplaint(QtMsgType type, const QMessageLogContext &, const QString &text) {
    if (type != QtDebugMsg && type != QtInfoMsg) complaints << text;
}

} // namespace orl
