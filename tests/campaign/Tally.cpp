#include "tests/campaign/Tally.h"

#include <cstdio>

namespace {

constexpr int kKinds = static_cast<int>(EFault::Count);

}  // namespace

void CTally::Book(const SCase &which, const QString &problem)
{
    const bool isHeld = problem.isEmpty();
    const auto count = [&](std::vector<SCount> &row) {
        row.resize(kKinds);
        SCount &cell = row[static_cast<std::size_t>(which.kind)];
        ++cell.run;
        cell.held += isHeld;
    };
    count(m_byFunction[which.function]);
    count(m_byRequest[which.request]);
    ++m_all.run;
    m_all.held += isHeld;
    if (!isHeld)
        Complain(
            QString("%1, %2, %3: %4").arg(which.request, which.function, which.fault, problem));
}

void CTally::BookScenario(const QString &scenario, const QString &request, int made, int failed,
                          const QString &problem)
{
    const bool isHeld = problem.isEmpty();
    SPlay &row = m_byScenario[scenario];
    row.made += made;
    row.failed += failed;
    ++row.cases.run;
    row.cases.held += isHeld;
    ++m_all.run;
    m_all.held += isHeld;
    if (!isHeld)
        Complain(QString("%1, scenario %2: %3").arg(request, scenario, problem));
}

void CTally::Reach(const QString &request, const QString &function, int calls)
{
    m_reach[function].append(calls == 1 ? request : QString("%1 (%2)").arg(request).arg(calls));
}

void CTally::Complain(const QString &problem)
{
    m_complaints.append(problem);
    std::printf("DOES NOT HOLD: %s\n", qPrintable(problem));
    std::fflush(stdout);
}

bool CTally::AllHeld() const
{
    return m_complaints.isEmpty();
}

QString CTally::Text(const SCount &count)
{
    if (count.run == 0)
        return "-";
    return count.held == count.run ? QString::number(count.run)
                                   : QString("%1 of %2").arg(count.held).arg(count.run);
}

void CTally::PrintBy(const char *head, const QMap<QString, std::vector<SCount>> &rows) const
{
    std::printf("\n| %s |", head);
    for (int kind = 0; kind < kKinds; ++kind)
        std::printf(" %s |", FaultName(static_cast<EFault>(kind)));
    std::printf(" cases | held |\n|---|");
    for (int kind = 0; kind < kKinds + 2; ++kind)
        std::printf("---|");
    for (auto row = rows.begin(); row != rows.end(); ++row) {
        SCount sum;
        std::printf("\n| %s |", qPrintable(row.key()));
        for (const SCount &cell : row.value()) {
            std::printf(" %s |", qPrintable(Text(cell)));
            sum.run += cell.run;
            sum.held += cell.held;
        }
        std::printf(" %d | %d |", sum.run, sum.held);
    }
    std::printf("\n");
}

void CTally::PrintScenarios() const
{
    std::printf("\n| Scenario | requests made | failed of these | cases | held |\n"
                "|---|---|---|---|---|\n");
    for (auto row = m_byScenario.begin(); row != m_byScenario.end(); ++row)
        std::printf("| %s | %d | %d | %d | %d |\n", qPrintable(row.key()), row->made, row->failed,
                    row->cases.run, row->cases.held);
}

void CTally::Print() const
{
    if (!m_byFunction.isEmpty()) {
        PrintBy("Function of the DUT", m_byFunction);
        PrintBy("Request", m_byRequest);
    }
    if (!m_byScenario.isEmpty())
        PrintScenarios();
    std::printf("\nCases run: %d, cases held: %d\n", m_all.run, m_all.held);
    for (const QString &complaint : m_complaints)
        std::printf("DOES NOT HOLD: %s\n", qPrintable(complaint));
}

void CTally::PrintReach() const
{
    std::printf("\n| Function of the DUT | Requests that reach it (calls) |\n|---|---|\n");
    for (auto row = m_reach.begin(); row != m_reach.end(); ++row)
        std::printf("| %s | %s |\n", qPrintable(row.key()), qPrintable(row.value().join(", ")));
}
