// What the bench host shows beside words, on a fake plug-in: signs, hints, the running test, pictures.
#include <QDir>
#include <QFileDialog>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include "Host/BenchHost.h"
#include "Host/ToolWindow.h"
#include "HostTestFiles.h"
#include "tests/common/TestClass.h"

class HostSignsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void SignIsGreenForYesAndRedForNo();
    void HintTellsWhatAReasonMeans_data();
    void HintTellsWhatAReasonMeans();
    void ShowsTheRunningTestOfTheTool();
    void SavesAPictureOfHostAndTool();
    void TellsWhyAPictureIsNotSaved();

private:
    QString Text(const char *name) const { return m_host->findChild<QLabel *>(name)->text(); }
    QPushButton *Button(const char *name) const { return m_host->findChild<QPushButton *>(name); }
    QString StatusText() const { return m_host->statusBar()->currentMessage(); }
    QString LastEvent() const;
    QColor SignColor(const char *name) const;
    // Presses the picture button and gives the file's name to the dialog.
    void SavePicture(const QString &file);

    std::unique_ptr<CPluginHandle> m_plugin;
    std::unique_ptr<CBenchHost> m_host;
};

void HostSignsTest::init()
{
    qunsetenv("FAKE_TOOL");
    m_plugin = std::make_unique<CPluginHandle>();
    QString error;
    QVERIFY2(m_plugin->Load(FakePlugin("FakeTool"), error), qPrintable(error));
    m_host = std::make_unique<CBenchHost>(*m_plugin);
    m_host->show();
}

void HostSignsTest::cleanup()
{
    m_host.reset();
    m_plugin.reset();
}

QString HostSignsTest::LastEvent() const
{
    const auto *events = m_host->findChild<QTreeWidget *>("m_events");
    const QTreeWidgetItem *item = events->topLevelItem(events->topLevelItemCount() - 1);
    return item ? item->text(1) + ": " + item->text(2) : QString();
}

// Invalid: no dot.
QColor HostSignsTest::SignColor(const char *name) const
{
    const auto *sign = m_host->findChild<QLabel *>(name);
    return sign->isVisible() ? sign->palette().color(QPalette::WindowText) : QColor();
}

void HostSignsTest::SignIsGreenForYesAndRedForNo()
{
    QVERIFY(!SignColor("m_isSupportSign").isValid());
    m_host->Query();
    const QColor yes = SignColor("m_isSupportSign");
    QVERIFY2(yes.green() > yes.red(), qPrintable(yes.name()));
    qputenv("FAKE_TOOL", "unsupported");
    m_host->Query();
    const QColor no = SignColor("m_isSupportSign");
    QVERIFY2(no.red() > no.green(), qPrintable(no.name()));
}

void HostSignsTest::HintTellsWhatAReasonMeans_data()
{
    QTest::addColumn<QString>("reason");
    QTest::addColumn<QString>("words");  // empty: no hint
    QTest::newRow("C2K") << "It is C2K modem now."
                         << "C2K modem is active";
    QTest::newRow("unplugged") << "Not Support due to without any this RAT info from SW."
                               << "No DUT is plugged in";
    QTest::newRow("no world mode")
        << "We cannot get its support status: Failed to get multi-RAT world mode ID info."
        << "Look at the link";
    QTest::newRow("no NR") << "Not support this RAT from SW multi-RAT world mode ID info."
                           << "has no NR";
    QTest::newRow("no capability") << "Support this RAT but it failed to get its capability info."
                                   << "bands and routes";
    QTest::newRow("no CA capability") << "Support this RAT but it failed to get CA capability info."
                                      << "its routes";
    QTest::newRow("another") << "It is a fake DUT."
                             << "";
    QTest::newRow("none") << ""
                          << "";
}

void HostSignsTest::HintTellsWhatAReasonMeans()
{
    QFETCH(QString, reason);
    QFETCH(QString, words);
    qputenv("FAKE_TOOL", "unsupported");
    qputenv("FAKE_TOOL_REASON", reason.toUtf8());
    m_host->Query();
    qunsetenv("FAKE_TOOL_REASON");
    QCOMPARE(Text("m_reason"), reason.isEmpty() ? QString("none") : reason);
    const auto *hint = m_host->findChild<QLabel *>("m_hint");
    QCOMPARE(hint->isVisible(), !words.isEmpty());
    QVERIFY2(hint->text().contains(words), qPrintable(hint->text()));
}

void HostSignsTest::ShowsTheRunningTestOfTheTool()
{
    QCOMPARE(Text("m_toolRadio"), QString("none"));
    auto *lamp = new QLabel(QString::fromUtf8("\u25CF A test  n78  00:00:01"));
    lamp->setObjectName("m_testLamp");
    QPalette palette;
    palette.setColor(QPalette::WindowText, Qt::magenta);
    lamp->setPalette(palette);
    FindToolWindow()->statusBar()->addPermanentWidget(lamp);
    m_host->ShowTool();
    QTRY_COMPARE(Text("m_toolRadio"), QString("A test  n78  00:00:01"));
    QCOMPARE(SignColor("m_toolRadioSign"), QColor(Qt::magenta));
    lamp->hide();
    QTRY_COMPARE(Text("m_toolRadio"), QString("none"));
    QVERIFY(!SignColor("m_toolRadioSign").isValid());
}

void HostSignsTest::SavePicture(const QString &file)
{
    QTimer person;
    connect(&person, &QTimer::timeout, this, [&] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        dialog->findChild<QLineEdit *>("fileNameEdit")->setText(file);
        QTest::keyClick(dialog->findChild<QLineEdit *>("fileNameEdit"), Qt::Key_Return);
    });
    person.start(0);
    QTest::mouseClick(Button("m_picture"), Qt::LeftButton);
}

// A name without an ending gets one.
void HostSignsTest::SavesAPictureOfHostAndTool()
{
    QTemporaryDir folder;
    m_host->ShowTool();
    SavePicture(folder.filePath("bench"));
    const QString file = folder.filePath("bench.png");
    const QImage picture(file, "png");
    QVERIFY2(picture.width() > m_host->width() + FindToolWindow()->width(),
             qPrintable(QString::number(picture.width())));
    QVERIFY(picture.height() >= m_host->height());
    QCOMPARE(LastEvent(), "Picture: " + file);
    QCOMPARE(StatusText(), "Saved as " + file);
}

void HostSignsTest::TellsWhyAPictureIsNotSaved()
{
    QString told;
    QTimer person;
    connect(&person, &QTimer::timeout, this, [&] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            told = box->text();
            box->accept();
        }
    });
    person.start(0);
    SavePicture("/nowhere/bench.png");
    QVERIFY2(told.startsWith("Can't save a picture as /nowhere/bench.png"), qPrintable(told));
    QVERIFY2(LastEvent().startsWith("Picture: Can't save"), qPrintable(LastEvent()));
}

QUORLIN_TEST_CLASS(HostSignsTest)
#include "HostSignsTest.moc"
