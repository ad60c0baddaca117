// Editors of column tables in the whole tool: they come with the first look, and what a page sends
// does not depend on them.
#include <QFile>
#include <QTabWidget>
#include <QTemporaryDir>

#include "tests/common/Cells.h"
#include "tests/common/TestClass.h"
#include "tests/device/CalibrationSession.h"

namespace {

bool IsLate(const QTableWidget *table)
{
    for (const QObject *part : table->children()) {
        if (part->inherits("CLateEditors"))
            return true;
    }
    return false;
}

// Editors in the column tables below the widget.
int Editors(const QWidget *widget)
{
    int count = 0;
    for (const QTableWidget *table : widget->findChildren<QTableWidget *>()) {
        for (int r = 0; IsLate(table) && r < table->rowCount(); ++r) {
            for (int c = 0; c < table->columnCount(); ++c)
                count += table->cellWidget(r, c) ? 1 : 0;
        }
    }
    return count;
}

QByteArray Bytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// What a Read, a Write and an Export of a page leave behind.
struct STraces
{
    QVector<QByteArray> records;
    QByteArray file;
    int editors = 0;
};

// By the slots of its buttons: a page that is not in front is turned off.
STraces RunFlows(CCalibrationSession &session, const QString &file)
{
    const auto run = [&](const char *slot, const SFlowButton &flow) {
        return QMetaObject::invokeMethod(session.Page(), slot) &&
               WaitUntil([&] { return session.StatusBar() == flow.done; });
    };
    const int before = JournalOf(kWriteCall).size();
    STraces traces;
    AnswerFileDialog(file);
    if (run("on_m_btnUpload_clicked", kRead) && run("on_m_btnDownload_clicked", kWrite) &&
        run("on_m_btnSave_clicked", kExport)) {
        traces.records = Rounds(before);
        traces.file = Bytes(file);
        traces.editors = Editors(session.Page());
    }
    return traces;
}

}  // namespace

class LateEditorsTest : public QObject
{
    Q_OBJECT

private slots:
    void pagesThatNobodyHasOpenedHaveNoEditors()
    {
        CPluginSession session("handset", 1, kAptPage);
        session->ShowPlugin();
        QVERIFY(session.WaitForStatus("Init done."));
        for (int i = 0; i < 20; ++i)
            QCoreApplication::processEvents();
        for (const QDockWidget *page : session.Window()->findChildren<QDockWidget *>()) {
            if (page->visibleRegion().isEmpty())
                QCOMPARE(Editors(page), 0);
        }
        QVERIFY(session.Page()->visibleRegion().isEmpty());
    }

    // 64 frequencies and three gains each; the other tables stand on tabs that are covered.
    void firstLookMakesTheEditorsOfWhatIsInSight()
    {
        CPluginSession session("handset", 1, kAptPage);
        session->ShowPlugin();
        QVERIFY(session.WaitForStatus("Init done."));
        QDockWidget *page = session.Page();
        auto *tabs = page->findChild<QTabWidget *>("m_tables");
        tabs->setCurrentIndex(0);
        QCOMPARE(Editors(page), 0);
        page->raise();
        QVERIFY(WaitUntil([&] { return Editors(page) > 0; }));
        QCoreApplication::processEvents();
        for (int tab = 0; tab < tabs->count(); ++tab) {
            tabs->setCurrentIndex(tab);
            QVERIFY(WaitUntil([&] { return Editors(tabs->currentWidget()) > 0; }));
            if (tab + 1 < tabs->count())
                QCOMPARE(Editors(tabs->widget(tab + 1)), 0);
        }
    }

    void pageThatNobodyHasOpenedSendsTheSameBytes_data()
    {
        QTest::addColumn<QString>("page");
        QTest::newRow("path loss") << kPathLossPage;
        QTest::newRow("APT") << kAptPage;
    }

    void pageThatNobodyHasOpenedSendsTheSameBytes()
    {
        QFETCH(QString, page);
        QTemporaryDir folder;
        STraces late;
        STraces early;
        {
            CCalibrationSession session(page);
            session->ShowPlugin();
            QVERIFY(session.WaitForStatus("Init done."));
            late = RunFlows(session, folder.filePath("late.ini"));
        }
        {
            CCalibrationSession session(page);
            QVERIFY(session.ShowAndWait());
            early = RunFlows(session, folder.filePath("early.ini"));
        }
        QVERIFY(!early.records.isEmpty() && !early.file.isEmpty());
        QVERIFY(early.records == late.records);
        QVERIFY(early.file == late.file);
        QCOMPARE(late.editors, 0);
        QVERIFY(early.editors > 0);
    }
};

QUORLIN_TEST_CLASS(LateEditorsTest)
#include "LateEditorsTest.moc"
