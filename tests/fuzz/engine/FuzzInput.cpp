#include "tests/fuzz/engine/FuzzInput.h"

#include "View/engine/AutoBindingDataModelDockWidget.h"
#include "tests/fuzz/common/JsonMutator.h"

namespace {

const char kParting[] = "\n--\n";
constexpr int kMaxColumns = 1024;  // the engine cuts wider tables

}  // namespace

QList<QByteArray> CutInput(const QByteArray &whole)
{
    QList<QByteArray> parts;
    int from = 0;
    for (int at = whole.indexOf(kParting); at >= 0; at = whole.indexOf(kParting, from)) {
        parts.append(whole.mid(from, at - from));
        from = at + static_cast<int>(sizeof(kParting)) - 1;
    }
    parts.append(whole.mid(from));
    return parts;
}

QByteArray JoinInput(const QList<QByteArray> &parts)
{
    return parts.join(kParting);
}

namespace {

// The text that Qt writes of the document; for all that is no JSON a short text that is none.
QByteArray WithoutLeak(const QByteArray &text)
{
    if (text.isEmpty())
        return text;
    const QJsonDocument document = ReadJson(text);
    return document.isNull() ? QByteArrayLiteral("no JSON")
                             : document.toJson(QJsonDocument::Compact);
}

qint64 CellCountOfGroup(const QJsonObject &group)
{
    const QJsonObject properties = group.value(QLatin1String("memberProperty")).toObject();
    const qint64 members = group.value(QLatin1String("memberList")).toArray().size();
    const qint64 instances = group.value(QLatin1String("instanceList")).toArray().size();
    const qint64 columns = properties.value(QLatin1String("dimentionCount")).toInt();
    return members * qMax(instances, qBound<qint64>(0, columns, kMaxColumns));
}

int InterfaceNamedIn(const QByteArray &text)
{
    const int calibration = text.indexOf("\"calDataIf\"");
    const int test = text.indexOf("\"cmdIf\"");
    return calibration >= 0 && (test < 0 || calibration < test) ? eInterfaceCalDataIf
                                                                : eInterfaceCmdIf;
}

}  // namespace

CFuzzInput::CFuzzInput(const uint8_t *data, size_t size)
{
    QList<QByteArray> parts =
        CutInput(QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size)));
    const QByteArray document = parts.takeFirst();
    m_interface = InterfaceNamedIn(document);
    m_document = WithoutLeak(document);
    if (!parts.isEmpty())
        m_actions = parts.takeFirst();
    for (const QByteArray &report : qAsConst(parts))
        m_reports.append(WithoutLeak(report));
}

qint64 CellCount(const QJsonObject &document)
{
    qint64 cells = 0;
    for (const QJsonValue &word : document) {
        for (const QJsonValue &section : word.toObject()) {
            for (const QJsonValue &group : section.toObject())
                cells += CellCountOfGroup(group.toObject());
        }
    }
    return cells;
}
