// Frequencies entered by other forms than kHz, and channels spread over a band.
#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QTimer>
#include <QtTest>

#include "tests/common/TestClass.h"
#include "tests/device/TxPages.h"

namespace {

const QString kGroup1("cmdIf_request_group1_memberProperty_");

QAction *ActionOf(const QWidget *widget, const char *name)
{
    for (QAction *action : widget->actions()) {
        if (action->objectName() == QLatin1String(name))
            return action;
    }
    return nullptr;
}

// What the dialog says of an entry; then it is accepted, if it can be.
struct SSeen
{
    QString meaning;
    QString raster;
    bool isTaken = false;
};

SSeen Enter(QAction *action, const std::function<void(QDialog *)> &work)
{
    SSeen seen;
    QTimer::singleShot(0, qApp, [&] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        work(dialog);
        seen.meaning = dialog->findChild<QLabel *>("m_meaning")->text();
        seen.raster = dialog->findChild<QLabel *>("m_raster")->text();
        auto *ok = dialog->findChild<QDialogButtonBox *>("m_buttons")->button(QDialogButtonBox::Ok);
        seen.isTaken = ok->isEnabled();
        if (seen.isTaken)
            QTest::keyClick(dialog, Qt::Key_Return);
        else
            QTest::keyClick(dialog, Qt::Key_Escape);
    });
    action->trigger();
    return seen;
}

SSeen EnterText(QAction *action, const QString &text)
{
    return Enter(action, [text](QDialog *dialog) {
        auto *entry = dialog->findChild<QLineEdit *>("m_entry");
        entry->selectAll();
        QTest::keyClicks(entry, text);
    });
}

}  // namespace

class FrequencyEntryTest : public QObject
{
    Q_OBJECT

private slots:
    void anyFormIsEntered_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::newRow("kHz") << "3549990";
        QTest::newRow("MHz") << "3549.99M";
        QTest::newRow("GHz") << "3.54999G";
        QTest::newRow("NR-ARFCN") << "636666";
    }
    void anyFormIsEntered()
    {
        QFETCH(QString, entry);
        CPluginSession session("handset", 1, kForced.className);
        QVERIFY(session.ShowAndWait());
        session.Find<QComboBox>(kGroup1 + "band")->setCurrentText("n78");
        auto *box = session.Find<QSpinBox>(kGroup1 + "ulFrequency");
        QAction *action = ActionOf(box, "m_actionEnterFrequency");
        QVERIFY(action);
        const SSeen seen = EnterText(action, entry);
        QCOMPARE(seen.meaning, QString("3549.990 MHz, NR-ARFCN 636666"));
        QCOMPARE(seen.raster, QString("3549.990 MHz, NR-ARFCN 636666"));
        QCOMPARE(box->value(), 3549990);
    }

    void whatIsNoneOrOutsideIsNotTaken_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("meaning");
        QTest::newRow("text") << "n78"
                              << "No frequency and no NR-ARFCN";
        QTest::newRow("outside") << "2.1G"
                                 << "2100.000 MHz, NR-ARFCN 420000 is not within 3300.000 MHz to "
                                    "3800.000 MHz";
    }
    void whatIsNoneOrOutsideIsNotTaken()
    {
        QFETCH(QString, entry);
        QFETCH(QString, meaning);
        CPluginSession session("handset", 1, kForced.className);
        QVERIFY(session.ShowAndWait());
        session.Find<QComboBox>(kGroup1 + "band")->setCurrentText("n78");
        auto *box = session.Find<QSpinBox>(kGroup1 + "ulFrequency");
        const int before = box->value();
        const SSeen seen = EnterText(ActionOf(box, "m_actionEnterFrequency"), entry);
        QVERIFY(!seen.isTaken);
        QCOMPARE(seen.meaning, meaning);
        QCOMPARE(box->value(), before);
    }

    void theChannelsOfTheBandLeaveRoomForTheBandwidth()
    {
        CPluginSession session("handset", 1, "CNrContRxDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        auto *box = session.Find<QSpinBox>(kGroup1 + "dlFrequency");
        QCOMPARE(session.Find<QComboBox>(kGroup1 + "dlBw")->currentText(), QString("5M"));
        QAction *action = ActionOf(box, "m_actionEnterFrequency");
        const auto press = [](const char *button) {
            return [button](QDialog *dialog) { dialog->findChild<QPushButton *>(button)->click(); };
        };
        Enter(action, press("m_low"));
        QCOMPARE(box->value(), box->minimum() + 2500);
        Enter(action, press("m_high"));
        QCOMPARE(box->value(), box->maximum() - 2500);
        Enter(action, press("m_middle"));
        QCOMPARE(box->value(), (box->minimum() + box->maximum()) / 2);
        Enter(action, [](QDialog *dialog) {
            auto *entry = dialog->findChild<QLineEdit *>("m_entry");
            entry->setText(QString::number(entry->text().toInt() + 30));
            dialog->findChild<QPushButton *>("m_nearest")->click();
        });
        QCOMPARE(box->value(), (box->minimum() + box->maximum()) / 2);
    }

    void theLowestChannelOfABandLiesWithinIt()
    {
        CPluginSession session("handset", 1, kForced.className);
        QVERIFY(session.ShowAndWait());
        session.Find<QComboBox>(kGroup1 + "band")->setCurrentText("n78");
        session.Find<QComboBox>(kGroup1 + "txScs")->setCurrentText("30kHz");
        auto *width = session.Find<QComboBox>(kGroup1 + "ulBandwidth");
        width->setCurrentIndex(width->findText("51 RB"));
        QCOMPARE(width->currentText(), QString("51 RB"));
        auto *box = session.Find<QSpinBox>(kGroup1 + "ulFrequency");
        Enter(ActionOf(box, "m_actionEnterFrequency"),
              [](QDialog *dialog) { dialog->findChild<QPushButton *>("m_low")->click(); });
        QCOMPARE(box->value(), 3310020);
    }

    void theFiveChannelsAreSpreadOverTheBand()
    {
        CPluginSession session("handset", 1, "CNrRssiDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        auto *table = session.Find<QTableWidget>("cmdIf_request_group2_memberProperty_dlFrequency");
        QVERIFY(table);
        QAction *spread = ActionOf(table, "m_actionSpreadChannels");
        QVERIFY(spread);
        auto cell = [table](int column) {
            return qobject_cast<QSpinBox *>(table->cellWidget(0, column));
        };
        const int least = cell(0)->minimum(), most = cell(0)->maximum();
        spread->trigger();
        for (int column = 0; column < 5; ++column) {
            if (cell(column)->isEnabled())
                QVERIFY(qAbs(cell(column)->value() - (least + (most - least) / 4 * column)) <= 50);
        }
        cell(0)->setFocus();
        EnterText(ActionOf(table, "m_actionEnterFrequency"), QString("%1k").arg(least + 500));
        QCOMPARE(cell(0)->value(), least + 500);
    }
};

QUORLIN_TEST_CLASS(FrequencyEntryTest)
#include "FrequencyEntryTest.moc"
