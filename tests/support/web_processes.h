#pragma once

#include <QDir>
#include <QFile>
#include <QMap>

namespace orl {

/// What of the web engine runs besides a program, where it runs without its sandbox.
struct WebProcesses {
    int waiting = 0; ///< kept to fork others off
    int drawing = 0; ///< forked off by one that waits: a page is shown

    static WebProcesses of(qint64 program) {
        QMap<QString, QString> parents;
        for (const QString &id :
             QDir(QStringLiteral("/proc")).entryList({QStringLiteral("[0-9]*")}, QDir::Dirs)) {
            QFile status(QStringLiteral("/proc/%1/status").arg(id)),
                line(QStringLiteral("/proc/%1/cmdline").arg(id));
            if (!status.open(QIODevice::ReadOnly) || !line.open(QIODevice::ReadOnly)) continue;
            if (!line.readAll().contains("QtWebEngineProcess")) continue;
            for (const QByteArray &row : status.readAll().split('\n'))
                if (row.startsWith("PPid:")) parents[id] = QString::fromLatin1(row.mid(5).trimmed());
        }
        WebProcesses found;
        for (const QString &parent : parents) {
            found.waiting += parent == QString::number(program);
            found.drawing += parents.value(parent) == QString::number(program);
        }
        return found;
    }
};

} // namespace orl
