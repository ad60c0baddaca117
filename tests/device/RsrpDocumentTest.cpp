// What the document of an RSRP page holds while reports come: the numbers of the rows; their cells
// are on the table.
#include <QApplication>
#include <QLabel>
#include <QTableWidget>
#include <QtTest>

#include "Model/JsonPath.h"
#include "Model/ModelResources.h"
#include "Model/ModelText.h"
#include "Simulator/VondSim.h"
#include "View/Rx/NrRsrpForceDockWidgetV7.h"
#include "View/Rx/NrRsrpNormalDockWidgetV7.h"
#include "tests/common/WaitUntil.h"

namespace {

constexpr int kRowsAFetch = 5;  // the page's default

// A page with a running test on the simulated DUT, whose document can be looked at. Its own timer
// is out of the way.
template <typename Page>
class CRunningPage : public Page
{
public:
    CRunningPage() : Page(nullptr)
    {
        VondSim_Reset();
        this->show();
    }
    bool Start()
    {
        if (!WaitUntil([this] { return this->m_modelReady; }))
            return false;
        QString status;
        QObject::connect(this, &Page::Signal_UpdateStatus,
                         [&status](const QString &text) { status = text; });
        this->on_m_start_clicked();
        const bool isRunning = WaitUntil([&status] { return status == "Rsrp start..."; });
        QObject::disconnect(this, &Page::Signal_UpdateStatus, nullptr, nullptr);
        this->template findChild<QTimer *>("reportTimer")->stop();
        return isRunning;
    }
    bool Fetch()
    {
        const int wanted = Table()->rowCount() + kRowsAFetch;
        this->Slot_RsrpRxTimerTimeout();
        return WaitUntil([&] { return Table()->rowCount() == wanted; });
    }
    QTableWidget *Table() const
    {
        return this->template findChild<QTableWidget *>(
            "cmdIf_response_group1_memberProperty_RSRP0");
    }
    QStringList Texts() const
    {
        QStringList texts;
        for (int row = 0; row < Table()->rowCount(); ++row) {
            for (int column = 0; column < Table()->columnCount(); ++column)
                texts.append(qobject_cast<QLabel *>(Table()->cellWidget(row, column))->text());
        }
        return texts;
    }
    QJsonArray Rows() const
    {
        return GetJsonValueConst(this->m_dataModel, "cmdIf.response.group1.instanceList").toArray();
    }
    bool HasCell(const QString &row) const
    {
        return HasJsonValue(this->m_dataModel, "cmdIf.response.group1.memberProperty.RSRP0." + row);
    }
    std::size_t DocumentSize() const { return ModelToText(this->m_dataModel).size(); }
};

template <typename Page>
void CheckDocument()
{
    CRunningPage<Page> page;
    QVERIFY(page.Start());
    const std::size_t emptySize = page.DocumentSize();
    QVERIFY(page.Fetch());
    const QStringList first = page.Texts();
    QVERIFY(!first.contains(QString()));
    QVERIFY(page.Fetch());
    QCOMPARE(page.Rows(), (QJsonArray{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));
    QVERIFY(!page.HasCell("1"));
    QVERIFY(!page.HasCell("10"));
    QVERIFY(page.HasCell("caption"));
    const std::string numbers = R"("1","2","3","4","5","6","7","8","9","10")";
    QCOMPARE(page.DocumentSize() - emptySize, numbers.size());
    const QStringList both = page.Texts();
    QCOMPARE(both.mid(0, first.size()), first);
    QCOMPARE(both.size(), 2 * first.size());
    QVERIFY(!both.contains(QString()));
}

}  // namespace

class RsrpDocumentTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        RegisterOperationResultTypes();
        InitModelResources();
    }
    void forcedPageKeepsNumbersOfRowsAlone() { CheckDocument<CNrRsrpForceDockWidgetV7>(); }
    void normalPageKeepsNumbersOfRowsAlone() { CheckDocument<CNrRsrpNormalDockWidgetV7>(); }
};

QTEST_MAIN(RsrpDocumentTest)
#include "RsrpDocumentTest.moc"
