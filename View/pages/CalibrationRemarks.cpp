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

SRemarkBox BoxOf(const QString &heading, const QVector<SCalRemark> &rows, bool isJoined)
{
    QStringList lines = {heading};
    lines += Lines(rows.mid(0, kRowsOfText), isJoined);
    SRemarkBox box;
    if (rows.size() > kRowsOfText) {
        lines.append(
            QStringLiteral("... and %1 more, see the details.").arg(rows.size() - kRowsOfText));
        box.detail = Lines(rows, isJoined).join(QLatin1Char('\n'));
    }
    box.text = lines.join(QLatin1Char('\n'));
    return box;
}

QString OtherRoutesHeading(const QString &item, const SCalRemarks &remarks)
{
    return QStringLiteral("%1: %2 sections of the file name another route than the one that they "
                          "were loaded into.")
        .arg(item)
        .arg(remarks.otherRoutes.size());
}

}  // namespace

SRemarkBox RemarkBox(const QString &item, const SCalRemarks &remarks)
{
    constexpr bool kOneALine = false;
    SRemarkBox box;
    if (!remarks.otherRoutes.isEmpty())
        box = BoxOf(OtherRoutesHeading(item, remarks), remarks.otherRoutes, kOneALine);
    if (remarks.rows.isEmpty())
        return box;
    const SRemarkBox rows =
        BoxOf(Heading(item, remarks), remarks.rows, remarks.kind != eRemarkOddValue);
    const auto join = [](const QString &first, const QString &second, const char *gap) {
        return first + (first.isEmpty() || second.isEmpty() ? "" : gap) + second;
    };
    box.text = join(box.text, rows.text, "\n\n");
    box.detail = join(box.detail, rows.detail, "\n\n");
    return box;
}
