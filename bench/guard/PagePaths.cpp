// Paths through pages: Init and Package of a page, Update of a column table, Append to a row table.
// Painting is left out: it is Qt's, and differs most between processors.
#include <string>

#include <QDoubleSpinBox>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QLabel>
#include <QTableWidget>
#include <QVector>

#include "Model/ModelText.h"
#include "View/Rx/NrContRxDockWidgetV7.h"
#include "bench/BenchDocuments.h"
#include "bench/BenchPage.h"
#include "bench/guard/Counted.h"
#include "bench/guard/GuardPaths.h"

namespace {

class COpenContRx : public CNrContRxDockWidgetV7
{
public:
    COpenContRx() : CNrContRxDockWidgetV7(nullptr) { show(); }
    void RequestDataModel() override {}
    using CAutoBindingDataModelDockWidget::PackageMemberValue;
};

// A page from nothing to filled, beside its form alone; what it holds back into its document, beside the
// printing of that document.
void CountPage()
{
    QFile file(":/NrContRxV7.json");
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no resource");
    const std::string text = file.readAll().toStdString();
    CountPath(
        "pageInit",
        [&] {
            COpenContRx page;
            page.Slot_GetDataModelDone(text);
        },
        [&] { COpenContRx page; });

    COpenContRx page;
    page.Slot_GetDataModelDone(text);
    const QJsonObject document = ModelFromText(page.PackageMemberValue());
    CountPath(
        "pagePackage", [&] { page.PackageMemberValue(); }, [&] { ModelToText(document); });
}

QJsonObject Document(int groupType, const QJsonArray &members, QJsonObject properties,
                     const QJsonArray &instances = {})
{
    const QJsonObject group{{"groupType", groupType},
                            {"memberList", members},
                            {"memberProperty", properties},
                            {"instanceList", instances}};
    return {{"cmdIf", QJsonObject{{"response", QJsonObject{{"group1", group}}}}}};
}

// Two answers, of which each changes every cell; beside bare editors that take as many values.
void CountColumnUpdate()
{
    const QJsonObject first = ColumnDocument(0);
    const QJsonObject second = ColumnDocument(1);
    CBenchPage page;
    QTableWidget *table = page.AddTable("cmdIf_response_group1_memberProperty_row0");
    page.Open(first);
    page.grab();  // the editors are there
    if (!table->cellWidget(kBenchRows - 1, kBenchColumns - 1))
        qFatal("the table has no editors");
    QWidget bare;
    QVector<QDoubleSpinBox *> boxes;
    for (int i = 0; i < kBenchRows * kBenchColumns; ++i)
        boxes.append(new QDoubleSpinBox(&bare));
    CountPath(
        "columnUpdate",
        [&] {
            page.UpdateWidget(second);
            page.UpdateWidget(first);
        },
        [&] {
            for (const int value : {1, 2}) {
                for (int i = 0; i < boxes.size(); ++i)
                    boxes[i]->setValue((value + i) % 70);
            }
        });
}

QJsonObject RowDocument(int rows, int columns)
{
    QJsonArray members;
    QJsonArray instances;
    QJsonObject properties;
    for (int r = 1; r <= rows; ++r)
        instances.append(QString::number(r));
    for (int c = 0; c < columns; ++c) {
        const QString key = QString("column%1").arg(c);
        QJsonObject member{{"caption", key}, {"trait", QJsonObject{{"dataType", "label"}}}};
        for (const QJsonValue &row : qAsConst(instances))
            member[row.toString()] =
                QJsonObject{{"defaultValue", QString::number(-90.25 + c, 'f', 2)}};
        members.append(key);
        properties[key] = member;
    }
    return Document(2, members, properties, instances);
}

// Ten rows more to a table that has some, beside as many bare labels.
void CountRowAppend()
{
    constexpr int kRowsAnAppend = 10;
    constexpr int kReportColumns = 12;
    CBenchPage page;
    QTableWidget *table = page.AddTable("cmdIf_response_group1_memberProperty_column0");
    page.Open(RowDocument(kRowsAnAppend, kReportColumns));
    CBenchPage barePage;
    QTableWidget *bare = barePage.AddTable("table");
    bare->setColumnCount(kReportColumns);
    barePage.resize(page.size());
    barePage.show();
    const int before = table->rowCount();
    const QJsonObject answers[] = {RowDocument(2 * kRowsAnAppend, kReportColumns),
                                   RowDocument(3 * kRowsAnAppend, kReportColumns)};
    int answer = 0;
    CountPath(
        "rowAppend", [&] { page.AppendWidget(answers[answer++]); },
        [&] {
            for (int i = 0; i < kRowsAnAppend; ++i) {
                const int r = bare->rowCount();
                bare->insertRow(r);
                for (int c = 0; c < kReportColumns; ++c) {
                    bare->setCellWidget(r, c, new QLabel(QString::number(-90.25 + c, 'f', 2)));
                }
            }
            bare->scrollToBottom();
        });
    if (table->rowCount() != before + 2 * kRowsAnAppend)
        qFatal("rows are missing");
}

}  // namespace

void CountPagePaths()
{
    CountPage();
    CountColumnUpdate();
    CountRowAppend();
}
