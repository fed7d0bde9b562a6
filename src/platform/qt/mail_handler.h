#pragma once

#include <QString>
#include <QStringList>

namespace orl {

/// Where desktops keep what opens what: folders in the order of their weight.
struct HandlerFolders {
    QStringList lists;        ///< of mimeapps.list
    QStringList applications; ///< of desktop files, with mimeinfo.cache beside them

    /// Those of the user and the system, by the XDG base directories.
    static HandlerFolders ofTheDesktop();
};

/// Whether an installed program opens this kind of content, such as "x-scheme-handler/mailto". Reads the
/// few small files that freedesktop.org lays down for this, and starts nothing.
bool hasHandler(const QString &mimeType, const HandlerFolders &folders);

} // namespace orl
