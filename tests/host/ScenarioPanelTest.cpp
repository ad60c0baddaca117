// Scenarios in the panel "Faults" of the bench host: chosen, loaded, saved.
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTableView>

#include "Host/dut/FaultPanel.h"
#include "PanelWindow.h"
#include "tests/common/TestClass.h"

class ScenarioPanelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_window.reset(); }
    void OffersAllScenarios();
    void IsChosenAndTakenAwayByKeyboard();
    void WordsBelowTheEdgeComeIntoView();
    void ResultOfAFaultIsTold();
    void BrokenFileGetsWordsAndChangesNothing();
    void FileIsLoadedAndRemembered();
    void StateIsSavedAndComesBack();
    void FolderThatCannotBeWrittenGetsWords();
    void ResetOfTheDutTakesItAway();

private:
    QString Text(const char *name) const { return m_window->Find<QLabel>(name)->text(); }
    void Click(const char *button) const
    {
        QTest::mouseClick(m_window->Find<QPushButton>(button), Qt::LeftButton);
    }
    QComboBox *Box() const { return m_window->Find<QComboBox>("m_scenario"); }

    std::unique_ptr<CPanelWindow> m_window;
};

void ScenarioPanelTest::init()
{
    m_window = std::make_unique<CPanelWindow>("Faults");
    QVERIFY(m_window->IsGood());
}

void ScenarioPanelTest::OffersAllScenarios()
{
    for (uint32_t i = 0; const char *name = VondSim_ScenarioName(i); ++i)
        QVERIFY2(Box()->findData(name) > 0, name);
    QCOMPARE(Box()->currentText(), QString("none"));
    QVERIFY(!m_window->Find<QLabel>("m_scenarioAbout")->isVisible());
}

void ScenarioPanelTest::IsChosenAndTakenAwayByKeyboard()
{
    Box()->setFocus();
    QTest::keyClicks(Box(), "weak");
    QCOMPARE(Box()->currentText(), QString("weak-cell"));
    QTest::keyClick(Box(), Qt::Key_Home);
    QTest::keyClick(Box(), Qt::Key_Down);
    QCOMPARE(Box()->currentText(), QString(VondSim_ScenarioName(0)));
    QCOMPARE(CopiedText(&VondSim_GetScenarioText),
             QByteArray(VondSim_BuiltinScenarioText(VondSim_ScenarioName(0))));
    QVERIFY2(Text("m_scenarioAbout").startsWith("The edge of a cell"),
             qPrintable(Text("m_scenarioAbout")));
    QTest::keyClick(Box(), Qt::Key_Up);
    QCOMPARE(Box()->currentText(), QString("none"));
    QCOMPARE(CopiedText(&VondSim_GetScenarioText), QByteArray());
}

void ScenarioPanelTest::WordsBelowTheEdgeComeIntoView()
{
    m_window->Host().resize(m_window->Host().width(), m_window->Host().minimumSizeHint().height());
    const auto isWhole = [this](const char *name) {
        const auto *label = m_window->Find<QLabel>(name);
        return label->isVisible() && label->visibleRegion().boundingRect() == label->rect();
    };
    Box()->setFocus();
    QTest::keyClicks(Box(), "torn");
    QTRY_VERIFY(isWhole("m_scenarioAbout"));
    CFileBoxes boxes(m_window->File("mine"));
    Click("m_saveScenario");
    QTRY_VERIFY(isWhole("m_faultMessage"));
}

void ScenarioPanelTest::ResultOfAFaultIsTold()
{
    Box()->setFocus();
    QTest::keyClicks(Box(), "flaky");
    const QAbstractItemModel &faults = *m_window->Find<QTableView>("m_faults")->model();
    QTRY_VERIFY(faults.rowCount() > 0);
    QCOMPARE(faults.index(0, CFaultModel::eParameters).data(Qt::ToolTipRole).toString(),
             QString("result 2: Connection: the target did not answer in time"));
}

void ScenarioPanelTest::BrokenFileGetsWordsAndChangesNothing()
{
    QCOMPARE(VondSim_AddFault(R"({"function": "*", "kind": "delay", "ms": 0})"), 0);
    QCOMPARE(VondSim_SetRadio(R"({"temperatureC": 50})"), 0);
    const QByteArray before = CopiedText(&VondSim_GetStateAsScenario, "", "");
    const QString path = m_window->File("broken.json");
    QVERIFY(WriteText(path, "{'name': 'broken', 'steps': [{'plugged': 'no'}]}"));
    CFileBoxes boxes(path);
    Click("m_scenarioFile");
    QTRY_COMPARE(boxes.Count(), 1);
    QVERIFY(m_window->Find<QLabel>("m_faultMessage")->isVisible());
    QVERIFY2(Text("m_faultMessage").startsWith("The scenario can't be used: ") &&
                 Text("m_faultMessage").contains("plugged"),
             qPrintable(Text("m_faultMessage")));
    QCOMPARE(CopiedText(&VondSim_GetStateAsScenario, "", ""), before);
    QCOMPARE(Box()->currentText(), QString("none"));
    QCOMPARE(Box()->findData(path), -1);
}

void ScenarioPanelTest::FileIsLoadedAndRemembered()
{
    const QString path = m_window->File("evening.json");
    QVERIFY(WriteText(path, "{'name': 'evening', 'about': 'It gets late.', 'steps': ["
                            "{'fault': {'function': '*', 'kind': 'delay', 'ms': 1}}]}"));
    CFileBoxes boxes(path);
    Click("m_scenarioFile");
    QTRY_COMPARE(VondSim_FaultCount(), 1u);
    QCOMPARE(Text("m_scenarioAbout"), QString("It gets late."));
    QCOMPARE(Box()->currentText(), QString("evening.json"));
    m_window->Open("Faults");
    QVERIFY(Box()->findData(path) > 0);
}

void ScenarioPanelTest::StateIsSavedAndComesBack()
{
    QCOMPARE(VondSim_AddFault(R"({"function": "*", "kind": "delay", "ms": 7})"), 0);
    QCOMPARE(VondSim_SetRadio(R"({"temperatureC": 50})"), 0);
    VondSim_SetPlugged(0);
    {
        CFileBoxes boxes(m_window->File("now"));
        Click("m_saveScenario");
        QTRY_COMPARE(boxes.Count(), 1);
    }
    const QString path = m_window->File("now.json");
    QVERIFY2(QFile::exists(path), qPrintable(Text("m_faultMessage")));
    QCOMPARE(Text("m_faultMessage"),
             QString("Saved. Start with it: quorlin-host --scenario %1").arg(path));
    VondSim_Reset();
    QCOMPARE(VondSim_IsPlugged(), 1);
    // It is among the choices from now on, the last of them.
    Box()->setFocus();
    QTest::keyClick(Box(), Qt::Key_End);
    QCOMPARE(Box()->currentData().toString(), path);
    QCOMPARE(VondSim_IsPlugged(), 0);
    QCOMPARE(VondSim_FaultCount(), 1u);
    QCOMPARE(ToObject(CopiedText(&VondSim_GetRadioText)).value("temperatureC").toDouble(), 50.0);
}

void ScenarioPanelTest::FolderThatCannotBeWrittenGetsWords()
{
    CFileBoxes boxes(m_window->File("no-such-folder/now.json"));
    bool isWorded = false;
    QTimer person;
    connect(&person, &QTimer::timeout, this, [&] {
        // Qt's own box may refuse the path first; the person gives up then.
        if (auto *box = QApplication::activeModalWidget(); box && boxes.Count() > 0) {
            isWorded = true;
            QTest::keyClick(box, Qt::Key_Escape);
        }
    });
    person.start(20);
    Click("m_saveScenario");
    QTRY_VERIFY(isWorded || Text("m_faultMessage").contains("can't be written"));
    QVERIFY(!QFile::exists(m_window->File("no-such-folder/now.json")));
}

void ScenarioPanelTest::ResetOfTheDutTakesItAway()
{
    Box()->setFocus();
    QTest::keyClicks(Box(), "slow");
    QCOMPARE(Box()->currentText(), QString("slow-dut"));
    VondSim_SetScenario("");
    QTRY_COMPARE(Box()->currentText(), QString("none"));
}

QUORLIN_TEST_CLASS(ScenarioPanelTest)
#include "ScenarioPanelTest.moc"
