#include "View/pages/CalibrationRemarks.h"

#include <QStringList>

namespace {

constexpr int kRowsOfText = 60;  // more would not fit on the screen

QString Heading(const QString &item, const SCalRemarks &remarks)
{
    switch (remarks.kind) {
    case eRemarkLeftOut:
        return QStringLiteral("%1: the Read left out %2, which stay as they were before.")
            .arg(item)
            .arg(remarks.count);
    case eRemarkPassedOver:
        return QStringLiteral("%1: %2 passed over.").arg(item).arg(remarks.count);
    default:
        break;
    }
    QString text = QStringLiteral("%1: %2 values of the file are no numbers, or beyond what the "
                                  "page can show.")
                       .arg(item)
                       .arg(remarks.count);
    if (remarks.rows.size() < remarks.count)
        text += QStringLiteral(" The first %1:").arg(remarks.rows.size());
    return text;
}

// isJoined: rows with one reason stand together.
QStringList Lines(const QVector<SCalRemark> &rows, bool isJoined)
{
    QStringList lines;
    QStringList together;
    for (int i = 0; i < rows.size(); ++i) {
        together.append(rows[i].what);
        if (isJoined && i + 1 < rows.size() && rows[i + 1].why == rows[i].why)
            continue;
        lines.append(together.join(QLatin1String(", ")) + QLatin1String(": ") + rows[i].why);
        together.clear();
    }
    return lines;
}

}  // namespace

SRemarkBox RemarkBox(const QString &item, const SCalRemarks &remarks)
{
    const bool isJoined = remarks.kind != eRemarkOddValue;
    QStringList lines = {Heading(item, remarks)};
    lines += Lines(remarks.rows.mid(0, kRowsOfText), isJoined);
    SRemarkBox box;
    if (remarks.rows.size() > kRowsOfText) {
        lines.append(QStringLiteral("... and %1 more, see the details.")
                         .arg(remarks.rows.size() - kRowsOfText));
        box.detail = Lines(remarks.rows, isJoined).join(QLatin1Char('\n'));
    }
    box.text = lines.join(QLatin1Char('\n'));
    return box;
}
