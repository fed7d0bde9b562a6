#include "letter_files.h"

#include "../ad_picture.h"
#include "../random.h"

#include <QBuffer>
#include <QImage>
#include <QList>

using namespace Qt::StringLiterals;

namespace orl::demo {

namespace {

QByteArray encoded(const QImage &image, const char *format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

/// One empty page with a grey box on it, its cross-reference table included.
QByteArray pdf() {
    const QList<QByteArray> objects{
        "<< /Type /Catalog /Pages 2 0 R >>",
        "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
        "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 595 842] /Contents 4 0 R >>",
        "<< /Length 27 >>\nstream\n0.8 g 72 600 451 120 re f\n\nendstream",
    };
    QByteArray file = "%PDF-1.4\n";
    QByteArray table = "xref\n0 5\n0000000000 65535 f \n";
    for (qsizetype i = 0; i < objects.size(); ++i) {
        table += QByteArray::number(file.size()).rightJustified(10, '0') + " 00000 n \n";
        file += QByteArray::number(i + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
    }
    const QByteArray start = QByteArray::number(file.size());
    return file + table + "trailer\n<< /Size 5 /Root 1 0 R >>\nstartxref\n" + start + "\n%%EOF\n";
}

QByteArray table(Random &random) {
    QByteArray lines = "day,visits,orders\r\n";
    for (int day = 1; day <= 30; ++day)
        lines += QByteArray::number(day) + ',' + QByteArray::number(random.below(900)) + ',' +
                 QByteArray::number(random.below(60)) + "\r\n";
    return lines;
}

} // namespace

QByteArray letterFile(const QString &name, quint64 key) {
    Random random(mix(key, name));
    const QString seed = u"letter %1"_s.arg(random.next());
    const QString ending = name.section(u'.', -1).toLower();
    if (ending == u"jpg"_s || ending == u"jpeg"_s)
        return adPicture(seed, random.oneIn(3) ? u"tall"_s : u"wide"_s);
    if (ending == u"png"_s)
        return encoded(QImage::fromData(adPicture(seed, u"icon"_s)).scaledToWidth(480), "PNG");
    if (ending == u"pdf"_s) return pdf();
    if (ending == u"csv"_s) return table(random);
    if (ending == u"ics"_s)
        return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Orl//Demo//"
               "EN\r\nBEGIN:VEVENT\r\nUID:1@orl.example\r\n"
               "DTSTAMP:20260101T090000Z\r\nDTSTART:20260105T180000Z\r\nSUMMARY:Tea\r\nEND:VEVENT\r\nEND:"
               "VCALENDAR\r\n";
    return "Read me.\n";
}

QString sizeInWords(qsizetype bytes) {
    if (bytes < 1024) return u"%1 B"_s.arg(bytes);
    const double kilo = double(bytes) / 1024;
    if (kilo < 1024) return u"%1 KB"_s.arg(kilo, 0, 'f', 1);
    return u"%1 MB"_s.arg(kilo / 1024, 0, 'f', 1);
}

} // namespace orl::demo
