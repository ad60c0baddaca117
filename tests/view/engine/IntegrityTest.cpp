// The record of failed patches inside a document, and the boxes that a page opens.
#include <QLabel>
#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

#include "Model/StatusTable.h"
#include "tests/common/BoxWatcher.h"
#include "tests/common/TestClass.h"
#include "tests/view/engine/TestPage.h"

namespace {

const char kResult[] = "response.group1.result";
const char kErrors[] = "There are some error in this page:  Test page<br>";

CTestDocument Document(const QString &value)
{
    return CTestDocument().Member(kResult, QString("{'trait':{'dataType':'label',"
                                                   "'defaultValue':'%1'}}")
                                               .arg(value));
}

QJsonObject Record(const QString &text)
{
    return JsonObject(text);
}

}  // namespace

class CIntegrityTest : public QObject
{
    Q_OBJECT

private slots:
    void modelWithFailedPatchesFillsTheWidgetsAndStays()
    {
        CTestDocument document = Document("at init");
        document.Root("modelIntegrity",
                      Record("{'integrity':false,'messageList':['first','second']}"));
        CTestPage page(document);
        auto *result = page.Add<QLabel>(kResult);
        QSignalSpy done(&page, &CTestPage::Signal_InitDone);
        CBoxWatcher boxes;
        page.Init();
        QCOMPARE(boxes.Seen().size(), 1);
        QCOMPARE(boxes.Seen()[0].title, QString("Error"));
        QCOMPARE(boxes.Seen()[0].icon, int(QMessageBox::Critical));
        QCOMPARE(boxes.Seen()[0].plain, QString(kErrors) + "first<br>second<br>");
        QCOMPARE(result->text(), QString("at init"));
        QCOMPARE(done.size(), 1);
        QVERIFY(page.IsModelReady());
        QCOMPARE(page.Model()["cmdIf"], document.Json()["cmdIf"]);
        QVERIFY(!page.Model().contains("modelIntegrity"));
        QCOMPARE(page.Package(kResult).toString(), QString("at init"));
    }

    void messagesAreShownAsTheyRead()
    {
        CTestDocument document = Document("x");
        document.Root("modelIntegrity",
                      Record("{'integrity':false,'messageList':['no <b>band</b> & route']}"));
        CTestPage page(document);
        CBoxWatcher boxes;
        page.Init();
        QCOMPARE(boxes.Seen().size(), 1);
        QCOMPARE(boxes.Seen()[0].plain,
                 QString(kErrors) + "no &lt;b&gt;band&lt;/b&gt; &amp; route<br>");
    }

    void goodRecordIsTakenOutAndTheModelAdopted()
    {
        CTestDocument document = Document("x");
        document.Root("modelIntegrity", Record("{'integrity':true,'messageList':['all well']}"));
        CTestPage page(document);
        CBoxWatcher boxes;
        page.Init();
        QVERIFY(boxes.Seen().isEmpty());
        QVERIFY(!page.Model().contains("modelIntegrity"));
        QCOMPARE(page.Model()["cmdIf"], document.Json()["cmdIf"]);
    }

    void updateWithoutARecordIsAdoptedAtOnce()
    {
        CTestPage page(Document("old"));
        auto *result = page.Add<QLabel>(kResult);
        page.Init();
        CBoxWatcher boxes;
        page.UpdateWidget(Document("new").Json());
        QVERIFY(boxes.Seen().isEmpty());
        QCOMPARE(result->text(), QString("new"));
        QCOMPARE(page.Model()["cmdIf"], Document("new").Json()["cmdIf"]);
        QVERIFY(page.IsModelReady());
    }

    void failedUpdateIsShownButNotAdopted()
    {
        CTestPage page(Document("old"));
        auto *result = page.Add<QLabel>(kResult);
        page.Init();
        CTestDocument update = Document("new");
        update.Root("modelIntegrity", Record("{'integrity':false,'messageList':['failed']}"));
        CBoxWatcher boxes;
        page.UpdateWidget(update.Json());
        QCOMPARE(boxes.Seen().size(), 1);
        QCOMPARE(boxes.Seen()[0].plain, QString(kErrors) + "failed<br>");
        QCOMPARE(result->text(), QString("new"));
        QCOMPARE(page.Model()["cmdIf"], Document("old").Json()["cmdIf"]);
        QVERIFY(page.IsModelReady());
    }

    void recordIsReadOnce()
    {
        CTestDocument document = Document("old");
        document.Root("modelIntegrity", Record("{'integrity':false,'messageList':['failed']}"));
        CTestPage page(document);
        CBoxWatcher boxes;
        page.Init();
        QCOMPARE(boxes.Seen().size(), 1);
        page.UpdateWidget(page.Model());
        QCOMPARE(boxes.Seen().size(), 1);
    }

    void recordWithoutItsFlagCountsAsAFailure()
    {
        CTestPage page(Document("old"));
        page.Init();
        CTestDocument update = Document("new");
        update.Root("emptyModel", "").Root("modelIntegrity", Record("{'messageList':['lost']}"));
        CBoxWatcher boxes;
        page.UpdateWidget(update.Json());
        QCOMPARE(boxes.Seen().size(), 1);
        QCOMPARE(boxes.Seen()[0].plain, QString(kErrors) + "lost<br>");
    }

    void updateWithOnlyEmptyModelCountsAsNotCorrect()
    {
        CTestPage page(Document("old"));
        page.Init();
        CBoxWatcher boxes;
        page.UpdateWidget(JsonObject("{'emptyModel':''}"));
        QCOMPARE(boxes.Seen().size(), 1);
        QCOMPARE(boxes.Seen()[0].title, QString("Error"));
        QCOMPARE(boxes.Seen()[0].plain, QString(kErrors));
        QCOMPARE(page.Model()["cmdIf"], Document("old").Json()["cmdIf"]);
    }

    void emptyModelOfAGoodUpdateIsNotAdopted()
    {
        CTestPage page(Document("old"));
        page.Init();
        CBoxWatcher boxes;
        page.UpdateWidget(JsonObject("{'emptyModel':'','modelIntegrity':{'integrity':true}}"));
        QCOMPARE(boxes.Seen().size(), 1);
        QCOMPARE(boxes.Seen()[0].title, QString("Error"));
        QCOMPARE(boxes.Seen()[0].icon, int(QMessageBox::Critical));
        QCOMPARE(boxes.Seen()[0].plain, QString("This is empty data to update."));
        QCOMPARE(page.Model()["cmdIf"], Document("old").Json()["cmdIf"]);
    }

    void nullRecordAndNullEmptyModelCountAsMissing()
    {
        CTestPage page(Document("old"));
        page.Init();
        CTestDocument update = Document("new");
        update.Root("modelIntegrity", QJsonValue()).Root("emptyModel", QJsonValue());
        CBoxWatcher boxes;
        page.UpdateWidget(update.Json());
        QVERIFY(boxes.Seen().isEmpty());
        QCOMPARE(page.Model()["cmdIf"], update.Json()["cmdIf"]);
    }

    void pageMayGoWhileTheIntegrityBoxOfItsInitIsOpen()
    {
        CTestDocument document = Document("x");
        document.Root("modelIntegrity", Record("{'integrity':false,'messageList':['failed']}"));
        QPointer<CTestPage> page = new CTestPage(document);
        page->m_answersAtOnce = false;
        page->show();
        QSignalSpy done(page.data(), &CTestPage::Signal_InitDone);
        CBoxWatcher boxes;
        boxes.onBox = [&] { delete page.data(); };
        page->Deliver();
        QVERIFY(page.isNull());
        QCOMPARE(boxes.Seen().size(), 1);
        QCOMPARE(done.size(), 0);
    }

    void pageMayGoWhileTheIntegrityBoxOfAnUpdateIsOpen()
    {
        QPointer<CTestPage> page = new CTestPage(Document("x"));
        page->Add<QLabel>(kResult);
        page->Init();
        CBoxWatcher boxes;
        boxes.onBox = [&] { delete page.data(); };
        page->UpdateWidget(JsonObject("{'emptyModel':''}"));
        QVERIFY(page.isNull());
        QCOMPARE(boxes.Seen().size(), 1);
    }

    void pageMayGoWhileItsResultBoxIsOpen()
    {
        QPointer<CTestPage> page = new CTestPage(Document("x"));
        page->Init();
        CBoxWatcher boxes;
        boxes.onBox = [&] { delete page.data(); };
        page->ShowItemResult("Stop", {"", 203, ""});
        QVERIFY(page.isNull());
        QCOMPARE(boxes.Seen().size(), 1);
    }

    void itemResultIsWordedByTheStatusTable_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("message");
        QTest::addColumn<int>("icon");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("informative");
        const QString target = "L1 Status code != SUCCESS ";
        QTest::newRow("error with its message")
            << 203 << "code (1)" << int(QMessageBox::Critical) << target << "code (1)";
        QTest::newRow("status 3 with a message shows it, not the advice")
            << 3 << "error (7)" << int(QMessageBox::Critical) << LookupStatus(3).text
            << "error (7)";
        QTest::newRow("error with advice")
            << 203 << "" << int(QMessageBox::Critical) << target
            << "Please recheck SW load stability and parameter setting of the command.";
        QTest::newRow("warning") << 51 << "" << int(QMessageBox::Warning)
                                 << "Data does not exist in this file."
                                 << "Please select the file that includes the data you want to "
                                    "operate.";
        QTest::newRow("note") << 0 << "" << int(QMessageBox::Warning) << "Operation is successful."
                              << "";
    }

    void itemResultIsWordedByTheStatusTable()
    {
        QFETCH(int, status);
        QFETCH(QString, message);
        CTestPage page(Document("x"));
        page.Init();
        CBoxWatcher boxes;
        page.ShowItemResult("Cont Rx", {"Continuous RX", status, message});
        QCOMPARE(boxes.Seen().size(), 1);
        QCOMPARE(boxes.Seen()[0].title, QString("Cont Rx"));
        QTEST(boxes.Seen()[0].icon, "icon");
        QTEST(boxes.Seen()[0].plain, "text");
        QTEST(boxes.Seen()[0].informative, "informative");
        QCOMPARE(boxes.Seen()[0].detailed, QString());
    }
};

QUORLIN_TEST_CLASS(CIntegrityTest)
#include "IntegrityTest.moc"
