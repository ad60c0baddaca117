// A start and stop page that has no requests of its own asks by its page id.
#include <QPushButton>
#include <QtTest>

#include "Model/OperationResult.h"
#include "View/pages/StartStopDockWidget.h"
#include "tests/common/BoxWatcher.h"
#include "tests/common/TestClass.h"

// The core has no test of this page, so each start answers with 2 ("not executed").
class CPageById : public CStartStopDockWidget
{
    Q_OBJECT

public:
    CPageById()
        : CStartStopDockWidget(
              {
                  .test = "Some",
                  .page = EPageId::SrsTx,
                  .startSlot = static_cast<ResultSlot>(&CPageById::Slot_StartDone),
                  .stop = &CQuorlinViewCtrl::NrTestStop,
                  .stopSlot = static_cast<ResultSlot>(&CPageById::Slot_StopDone),
              },
              nullptr)
    {
        SetTestButtons(&m_start, &m_stop);
    }

    void Start() { StartTest(); }
    const QPushButton &StartButton() const { return m_start; }

    QVector<SEachItemOperationResult> started;

public slots:
    void Slot_TriggerStopTest() override { StopRunningTest(); }
    void Slot_StartDone(SEachItemOperationResult result)
    {
        started.append(result);
        FinishStart("Slot_StartDone", result);
    }
    void Slot_StopDone(SEachItemOperationResult result) { FinishStop("Slot_StopDone", result); }

private:
    QPushButton m_start{this};
    QPushButton m_stop{this};
};

class CPageByIdTest : public QObject
{
    Q_OBJECT

private slots:
    void documentIsAskedForByTheId()
    {
        CPageById page;
        QSignalSpy done(&page, &CAutoBindingDataModelDockWidget::Signal_InitDone);
        page.RequestDataModel();
        QTRY_COMPARE(done.size(), 1);
    }

    void eachStartIsAnsweredOnce()
    {
        CPageById page;
        CBoxWatcher boxes;
        for (int starts = 1; starts <= 2; ++starts) {
            page.Start();
            QTRY_COMPARE(page.started.size(), starts);
            QTRY_VERIFY(page.StartButton().isEnabled());
            QCOMPARE(page.started.last().itemName, QString("SRS TX"));
            QCOMPARE(page.started.last().status, 2);
            QTRY_COMPARE(boxes.Seen().size(), starts);
            QCOMPARE(boxes.Seen().last().title, QString("Some start failed"));
        }
    }
};

QUORLIN_TEST_CLASS(CPageByIdTest)
#include "PageByIdTest.moc"
