// The file dialogs of both calibration pages: what they list, and how a file is called that the
// user named without an end.
#include <QListView>
#include <QTemporaryDir>

#include "tests/common/TestClass.h"
#include "tests/device/CalibrationSession.h"

namespace {

// What the dialog lists of the folder; the names come in from another thread.
QStringList Listed(QFileDialog *dialog)
{
    const auto *view = dialog->findChild<QListView *>("listView");
    QStringList names;
    for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row)
        names.append(view->model()->index(row, 0, view->rootIndex()).data().toString());
    names.sort();
    return names;
}

bool Lists(QFileDialog *dialog, const QStringList &names)
{
    return WaitUntil([&] { return Listed(dialog) == names; });
}

}  // namespace

class CalibrationFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void dialogsListIniFilesAndOnDemandAll_data();
    void dialogsListIniFilesAndOnDemandAll();
    void fileSavedWithoutAnEndIsAnIniFile_data() { AddPages(); }
    void fileSavedWithoutAnEndIsAnIniFile();

private:
    static void AddPages();

    std::unique_ptr<QTemporaryDir> m_folder;
};

void CalibrationFilesTest::AddPages()
{
    QTest::addColumn<QString>("page");
    QTest::newRow("path loss") << kPathLossPage;
    QTest::newRow("APT") << kAptPage;
}

void CalibrationFilesTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    for (const char *name : {"cal.ini", "notes.txt", "plain"}) {
        QFile file(m_folder->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
}

void CalibrationFilesTest::dialogsListIniFilesAndOnDemandAll_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("button");
    for (const char *page : {kPathLossPage, kAptPage}) {
        QTest::newRow(qPrintable(QString(page) + " import")) << page << kImport.button;
        QTest::newRow(qPrintable(QString(page) + " export")) << page << kExport.button;
    }
}

void CalibrationFilesTest::dialogsListIniFilesAndOnDemandAll()
{
    QFETCH(QString, page);
    QFETCH(QString, button);
    CCalibrationSession session(page);
    QVERIFY(session.ShowAndWait());
    CBoxWatcher boxes;
    bool listsIni = false;
    bool listsAll = false;
    AnswerFileDialog({}, [&](QFileDialog *dialog) {
        dialog->setDirectory(m_folder->path());
        listsIni = Lists(dialog, {"cal.ini"});
        dialog->selectNameFilter("All files (*)");
        listsAll = Lists(dialog, {"cal.ini", "notes.txt", "plain"});
    });
    session.Press(button);
    QVERIFY(listsIni);
    QVERIFY(listsAll);
}

void CalibrationFilesTest::fileSavedWithoutAnEndIsAnIniFile()
{
    QFETCH(QString, page);
    CCalibrationSession session(page);
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.Run(kRead));
    QVERIFY(session.Run(kExport, m_folder->filePath("mine")));
    QVERIFY(QFile::exists(m_folder->filePath("mine.ini")));
    QVERIFY(!QFile::exists(m_folder->filePath("mine")));
    QVERIFY(session.Run(kExport, m_folder->filePath("mine.txt")));
    QVERIFY(QFile::exists(m_folder->filePath("mine.txt")));
    QVERIFY(session.Run(kImport, m_folder->filePath("mine.ini")));
}

QUORLIN_TEST_CLASS(CalibrationFilesTest)
#include "CalibrationFilesTest.moc"
