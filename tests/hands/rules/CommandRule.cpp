#include "tests/hands/rules/CommandRule.h"

#include "Simulator/VondSim.h"
#include "tests/common/SimJournal.h"
#include "tests/hands/witness/PageReader.h"

namespace {

QJsonObject RequestPart(const QJsonObject &document)
{
    return document["cmdIf"].toObject()["request"].toObject();
}

// The members whose values differ: "group1.band: n1, n3".
QString Differences(const QJsonObject &first, const QJsonObject &second)
{
    QStringList texts;
    for (const QString &group : first.keys()) {
        const QJsonObject was = first[group].toObject()["memberValue"].toObject();
        const QJsonObject is = second[group].toObject()["memberValue"].toObject();
        for (const QString &member : was.keys()) {
            if (was[member] != is[member])
                texts.append(QString("%1.%2: %3, %4")
                                 .arg(group, member,
                                      was[member].toVariant().toStringList().join(' '),
                                      is[member].toVariant().toStringList().join(' ')));
        }
    }
    return texts.join("; ");
}

}  // namespace

CCommandRule::CCommandRule(CDesk &desk, const CDutCommands &commands)
    : m_desk(desk), m_commands(commands), m_next(VondSim_CallCount())
{
}

void CCommandRule::OnBusy(QDockWidget *page, bool isBusy)
{
    if (isBusy)
        m_shown.append({page, page->objectName(), m_commands.Fill(page), Unfinished(page), m_deed});
}

QString CCommandRule::After(const SDeed &)
{
    QString failure;
    SVondSimCall call;
    for (; failure.isEmpty() && VondSim_GetCall(m_next, &call) == 0; ++m_next)
        failure = CheckCall(m_next, call.function);
    if (m_desk.IsQuiet())
        m_shown.clear();
    ++m_deed;
    return failure;
}

QString CCommandRule::CheckCall(uint32_t index, const char *function)
{
    const QVector<SCommandRow> rows = CDutCommands::Rows(function);
    if (rows.isEmpty())
        return {};
    const QByteArray request = RequestOf(index);
    QString failure = QString("%1 comes of no page").arg(function);
    for (const SShown &shown : qAsConst(m_shown)) {
        for (const SCommandRow &row : rows) {
            if (shown.className != row.className)
                continue;
            const QByteArray bytes = m_commands.Build(row, shown.filled);
            if (bytes == request) {
                ++m_count;
                return CheckShown(shown);
            }
            int at = 0;
            while (at < qMin(bytes.size(), request.size()) && bytes[at] == request[at])
                ++at;
            failure = QString("%1 differs from byte %2 on: page %3, DUT %4; %5")
                          .arg(function)
                          .arg(at)
                          .arg(QString(bytes.mid(at, 8).toHex()),
                               QString(request.mid(at, 8).toHex()), shown.unfinished);
        }
    }
    return failure;
}

QString CCommandRule::CheckShown(const SShown &shown) const
{
    if (!shown.unfinished.isEmpty())
        return "in the middle of an edit: " + shown.unfinished;
    const QDockWidget *page = shown.page;
    if (!m_desk.IsQuiet() || !m_desk.Pages().contains(shown.page) || m_shown.size() != 1)
        return {};
    const QString differences =
        Differences(RequestPart(shown.filled), RequestPart(m_commands.Fill(page)));
    return differences.isEmpty() ? QString() : "the page then shows other values: " + differences;
}
