// Append of 10 rows of 12 columns to a result table that already has 0, 1,000 or 10,000 rows, the
// repaint included, beside the same with plain items.
#include <benchmark/benchmark.h>

#include <QHeaderView>
#include <QScrollBar>

#include "Model/JsonPath.h"
#include "bench/BenchPage.h"

namespace {

constexpr int kColumns = 12;
constexpr int kRowsAnAppend = 10;
const char kTableName[] = "cmdIf_response_group1_memberProperty_column0";

// A result document that grows as a report does.
class CReport
{
public:
    CReport()
    {
        for (int c = 0; c < kColumns; ++c)
            m_columns.append(QJsonObject{{"caption", QString("Column %1").arg(c)},
                                         {"trait", QJsonObject{{"dataType", "label"}}}});
    }
    void Grow(int rows)
    {
        for (int i = 0; i < rows; ++i) {
            const QString key = QString("%1").arg(m_instances.size() + 1, 7, 10, QLatin1Char('0'));
            m_instances.append(key);
            for (int c = 0; c < kColumns; ++c) {
                const QJsonObject cell{{"defaultValue", QString::number(-90.25 + c, 'f', 2)}};
                m_columns[c].insert(key, cell);
            }
        }
    }
    QJsonObject Document() const
    {
        QJsonArray members;
        QJsonObject properties;
        for (int c = 0; c < kColumns; ++c) {
            const QString key = QString("column%1").arg(c);
            members.append(key);
            properties[key] = m_columns[c];
        }
        const QJsonObject group{{"groupType", 2},
                                {"memberList", members},
                                {"memberProperty", properties},
                                {"instanceList", m_instances}};
        return {{"cmdIf", QJsonObject{{"response", QJsonObject{{"group1", group}}}}}};
    }

private:
    QVector<QJsonObject> m_columns;
    QJsonArray m_instances;
};

// Both tables fill the page with all their columns, so that both paint the same cells and Append,
// which asks for the width of the columns, finds it there.
void FillPage(QTableWidget *table)
{
    table->setFixedSize(960, 620);
    table->horizontalHeader()->setDefaultSectionSize(70);
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

// Everything that a person waits for: layout, scrolling, painting.
void Settle(QWidget &page)
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    page.repaint();
}

void Append(benchmark::State &state)
{
    CBenchPage page;
    QTableWidget *table = page.AddTable(kTableName);
    CReport report;
    page.Open(report.Document());
    FillPage(table);
    const int before = static_cast<int>(state.range(0));
    while (table->rowCount() < before) {
        report.Grow(qMin(100, before - table->rowCount()));
        page.AppendWidget(report.Document());
        Settle(page);
    }
    for (auto _ : state) {
        state.PauseTiming();
        report.Grow(kRowsAnAppend);
        const QJsonObject document = report.Document();
        state.ResumeTiming();
        page.AppendWidget(document);
        Settle(page);
    }
    if (table->rowCount() != before + kRowsAnAppend * static_cast<int>(state.iterations()))
        state.SkipWithError("rows are missing");
}
BENCHMARK(Append)->Arg(0)->Arg(1000)->Arg(10000)->Iterations(25)->Unit(benchmark::kMillisecond);

void AppendItems(benchmark::State &state)
{
    CBenchPage page;
    QTableWidget *table = page.AddTable("table");
    table->setColumnCount(kColumns);
    page.resize(1000, 700);
    page.show();
    FillPage(table);
    const auto append = [table](int rows) {
        const int first = table->rowCount();
        for (int r = first; r < first + rows; ++r) {
            table->insertRow(r);
            table->verticalHeader()->resizeSection(r, 22);
            for (int c = 0; c < kColumns; ++c) {
                auto *item = new QTableWidgetItem(QString::number(-90.25 + c, 'f', 2));
                item->setFont(QFont("Arial"));
                item->setTextAlignment(Qt::AlignCenter);
                table->setItem(r, c, item);
            }
        }
        table->scrollToBottom();
    };
    append(static_cast<int>(state.range(0)));
    Settle(page);
    for (auto _ : state) {
        append(kRowsAnAppend);
        Settle(page);
    }
}
BENCHMARK(AppendItems)
    ->Arg(0)
    ->Arg(1000)
    ->Arg(10000)
    ->Iterations(25)
    ->Unit(benchmark::kMillisecond);

}  // namespace
