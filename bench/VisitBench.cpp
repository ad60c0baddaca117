// The first visit of a page with column tables: its tab comes in front, the editors are made and
// painted. Beside it the bare form of the page, in which the same number of bare editors is made in
// tables of the same size, and painted.
#include <benchmark/benchmark.h>

#include <QDoubleSpinBox>
#include <QFile>
#include <QHeaderView>
#include <QMainWindow>
#include <QSpinBox>
#include <QTableWidget>

#include "Controller/capability/NrDataModelCapUpdater.h"
#include "Controller/core/PageTable.h"
#include "Model/ModelText.h"
#include "Simulator/VondSim.h"
#include "View/Rx/NrRxPathlossDockWidgetV7.h"
#include "View/Tx/NrAptProfileDockWidgetV7.h"
#include "View/editors/LateEditors.h"
#include "tests/common/CalProfile.h"

namespace {

void HandleEvents()
{
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
}

const std::string &PatchedText(EPageId id)
{
    static std::map<EPageId, std::string> texts;
    std::string &text = texts[id];
    if (text.empty()) {
        VondSim_Reset();
        VondSim_SetProfileText(kLargestCalProfile);
        CNrDataModelCapUpdater updater;
        const SPageRow &row = FindPage(id);
        QFile file(row.resource);
        file.open(QIODevice::ReadOnly);
        QJsonObject document = ModelFromText(file.readAll().toStdString());
        (updater.*row.driver)(document);
        text = ModelToText(document);
    }
    return text;
}

// A page behind another one, in a window that is shown.
template <typename Page>
class CBehind : public Page
{
public:
    // text: of the document; empty for the bare form.
    explicit CBehind(const std::string &text) : Page(nullptr), m_text(text)
    {
        m_window.resize(1280, 800);
        auto *front = new QDockWidget(&m_window);
        m_window.addDockWidget(Qt::TopDockWidgetArea, front);
        m_window.addDockWidget(Qt::TopDockWidgetArea, this);
        m_window.tabifyDockWidget(this, front);
        m_window.show();
        front->raise();
        HandleEvents();
    }
    ~CBehind() override { this->setParent(nullptr); }

    void RequestDataModel() override
    {
        if (m_text.empty())
            return;
        QObject::connect(this, SIGNAL(Signal_InitDone()), this, SLOT(Slot_InitDone()));
        this->Slot_GetDataModelDone(m_text);
    }
    QList<QTableWidget *> Tables() { return this->template findChildren<QTableWidget *>(); }

private:
    const std::string m_text;
    QMainWindow m_window;
};

template <typename Page>
void FirstVisit(benchmark::State &state, EPageId id)
{
    for (auto _ : state) {
        state.PauseTiming();
        {
            CBehind<Page> page(PatchedText(id));
            for (QTableWidget *table : page.Tables()) {
                if (CLateEditors::Of(table)->AreMade())
                    state.SkipWithError("a table has its editors before the visit");
            }
            state.ResumeTiming();
            page.raise();
            HandleEvents();
            state.PauseTiming();
        }
        HandleEvents();
        state.ResumeTiming();
    }
}

// A table as the first visit shows it.
struct STable
{
    QString name;
    QSize size;
    int rows;
    int columns;
    int columnWidth;
    bool isOfWholeNumbers;
};

template <typename Page>
std::vector<STable> VisitedTables(EPageId id)
{
    std::vector<STable> tables;
    CBehind<Page> page(PatchedText(id));
    page.raise();
    HandleEvents();
    for (QTableWidget *table : page.Tables()) {
        if (CLateEditors::Of(table)->AreMade())
            tables.push_back({table->objectName(), table->size(), table->rowCount(),
                              table->columnCount(), table->columnWidth(0),
                              qobject_cast<QSpinBox *>(table->cellWidget(0, 0)) != nullptr});
    }
    return tables;
}

QTableWidget *Shape(QTableWidget *table, const STable &like)
{
    table->setRowCount(like.rows);
    table->setColumnCount(like.columns);
    table->setFixedSize(like.size);
    for (int r = 0; r < like.rows; ++r)
        table->verticalHeader()->resizeSection(r, 22);
    for (int c = 0; c < like.columns; ++c)
        table->setColumnWidth(c, like.columnWidth);
    return table;
}

// A child of the viewport from the start: the table would make it one, at a cost of its own.
template <typename Box>
QWidget *BareEditor(QTableWidget *table)
{
    auto *box = new Box(table->viewport());
    box->setRange(-100, 100);
    box->setValue(1);
    box->setButtonSymbols(QAbstractSpinBox::NoButtons);
    return box;
}

template <typename Page>
void BareVisit(benchmark::State &state, EPageId id)
{
    const std::vector<STable> like = VisitedTables<Page>(id);
    int editors = 0;
    for (auto _ : state) {
        state.PauseTiming();
        {
            CBehind<Page> page({});
            std::vector<QTableWidget *> tables;
            for (const STable &table : like)
                tables.push_back(Shape(page.template findChild<QTableWidget *>(table.name), table));
            HandleEvents();
            state.ResumeTiming();
            editors = 0;
            for (size_t i = 0; i < like.size(); ++i) {
                for (int r = 0; r < like[i].rows; ++r) {
                    for (int c = 0; c < like[i].columns; ++c, ++editors)
                        tables[i]->setCellWidget(r, c,
                                                 like[i].isOfWholeNumbers
                                                     ? BareEditor<QSpinBox>(tables[i])
                                                     : BareEditor<QDoubleSpinBox>(tables[i]));
                }
            }
            page.raise();
            HandleEvents();
            state.PauseTiming();
        }
        HandleEvents();
        state.ResumeTiming();
    }
    state.counters["editors"] = editors;
}

void FirstVisitRxPathloss(benchmark::State &state)
{
    FirstVisit<CNrRxPathlossDockWidgetV7>(state, EPageId::RxPathLoss);
}
BENCHMARK(FirstVisitRxPathloss)->Unit(benchmark::kMillisecond);

void BareVisitRxPathloss(benchmark::State &state)
{
    BareVisit<CNrRxPathlossDockWidgetV7>(state, EPageId::RxPathLoss);
}
BENCHMARK(BareVisitRxPathloss)->Unit(benchmark::kMillisecond);

void FirstVisitApt(benchmark::State &state)
{
    FirstVisit<CNrAptProfileDockWidgetV7>(state, EPageId::AptProfile);
}
BENCHMARK(FirstVisitApt)->Unit(benchmark::kMillisecond);

void BareVisitApt(benchmark::State &state)
{
    BareVisit<CNrAptProfileDockWidgetV7>(state, EPageId::AptProfile);
}
BENCHMARK(BareVisitApt)->Unit(benchmark::kMillisecond);

}  // namespace
