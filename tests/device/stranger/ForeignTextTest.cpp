// Words of a file in boxes and windows: all their characters are shown, and none of them is markup.
#include <QAction>
#include <QFile>
#include <QTemporaryDir>
#include <QTextDocument>

#include "tests/common/TestClass.h"
#include "tests/device/CompareSession.h"

namespace {

// What a box or an automatic label shows of a text.
QString Shown(const QString &text)
{
    QTextDocument document;
    document.setHtml(text);
    return Qt::mightBeRichText(text) ? document.toPlainText() : text;
}

constexpr char kOdd[] = "a<b>c.ini";

}  // namespace

class ForeignTextTest : public QObject
{
    Q_OBJECT

private slots:
    // Larger than any INI file, though it takes no place on the disk.
    void init()
    {
        QFile file(m_folder.filePath(kOdd));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(300LL * 1024 * 1024));
    }

    void boxShowsTheNameOfAFileAsItIs()
    {
        CCalibrationSession session(kPathLossPage);
        QVERIFY(session.ShowAndWait() && session.Run(kRead));
        CBoxWatcher boxes;
        AnswerFileDialog(m_folder.filePath(kOdd));
        session.Press(kImport.button);
        QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1 && session.IsIdle(); }));
        const QString text = boxes.Seen()[0].informative;
        QVERIFY2(Shown(text).contains(kOdd), qPrintable(text));
    }

    void compareShowsTheNameOfAFileAsItIs()
    {
        CCompareSession session(kPathLossPage);
        QVERIFY(IsReady(session));
        QVERIFY(session.Compare(eFileSide, eDutSide, m_folder.filePath(kOdd)));
        QVERIFY2(session.Summary().contains(kOdd), qPrintable(session.Summary()));
        QCOMPARE(session.InWindow<QLabel>("m_summary")->textFormat(), Qt::PlainText);
    }

    void boxShowsRefusedSettingsAsTheyAre();

private:
    QTemporaryDir m_folder;
};

void ForeignTextTest::boxShowsRefusedSettingsAsTheyAre()
{
    CPluginSession session("handset", 1, "CNrSingleToneTxDockWidgetV7");
    QVERIFY(session.ShowAndWait());
    const QString file = m_folder.filePath("tone.json");
    QFile settings(file);
    QVERIFY(settings.open(QIODevice::WriteOnly));
    settings.write(QByteArray("{'version': 1, 'page': 'Single Tone TX', 'request': {'group1': "
                              "{'band': '<i>n78</i>'}}}")
                       .replace('\'', '"'));
    settings.close();
    CBoxWatcher boxes;
    AnswerFileDialog(file);
    session.Page()->findChild<QAction *>("m_actionLoadSettings")->trigger();
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    const QString text = boxes.Seen()[0].text + boxes.Seen()[0].informative;
    QVERIFY2(Shown(text).contains("<i>n78</i>"), qPrintable(text));
}

QUORLIN_TEST_CLASS(ForeignTextTest)
#include "ForeignTextTest.moc"
