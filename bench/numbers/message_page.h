#pragma once

#include <QByteArray>

namespace orl {

/// A page of messages in the markup that the compiled recipe reads; `newest` is the number of its first one.
inline QByteArray messagePage(int messages, int senders, int newest) {
    QByteArray body;
    for (int i = 0; i < messages; ++i) {
        const int number = newest - i;
        body +=
            "<div class=\"shadow-sm bg-light rounded border-start border-info border-5\"><div class=\"mb-1\">"
            "Sender " +
            QByteArray::number(number % senders) + "</div><div class=\"placeholder text-break\">" +
            QByteArray::number(400000 + number) + " is your code, see https://example.example/" +
            QByteArray::number(number) + "</div></div><div class=\"mt-3\"><span data-created=\"2025-12-31T" +
            QByteArray::number(10 + number % 12) + ":23:45.000000Z\"></span></div>";
    }
    return "<html><body>" + body + "</body></html>";
}

} // namespace orl
