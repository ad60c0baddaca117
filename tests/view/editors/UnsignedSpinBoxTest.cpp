// The editor of 32-bit unsigned numbers.
#include "View/editors/UnsignedSpinBox.h"

#include <QToolTip>
#include <QWheelEvent>
#include <QtTest>

#include "tests/common/TestClass.h"

namespace {

void Wheel(QWidget *widget, int delta)
{
    QWheelEvent event(QPointF(5, 5), widget->mapToGlobal(QPointF(5, 5).toPoint()), QPoint(),
                      QPoint(0, delta), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
}

}  // namespace

class CUnsignedSpinBoxTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QToolTip::hideText(); }

    void startsEmptyWithTheWholeRangeOf32Bits()
    {
        const CUnsignedSpinBox box(nullptr, 10);
        QCOMPARE(box.text(), QString());
        QCOMPARE(box.m_lastValidText, QString());
        QCOMPARE(box.m_minimum, 0u);
        QCOMPARE(box.m_maximum, 4294967295u);
        QCOMPARE(box.font().family(), QString("Arial"));
    }

    void takesTheLargestNumberOf32Bits()
    {
        CUnsignedSpinBox box(nullptr, 10);
        box.setText("4294967295");
        QCOMPARE(box.m_lastValidText, QString("4294967295"));
        box.setText("4294967296");
        QCOMPARE(box.text(), QString("4294967295"));
    }

    void lowerCaseDigitsTurnIntoUpperCaseAndCount()
    {
        CUnsignedSpinBox box(nullptr, 16);
        QTest::keyClicks(&box, "1fe");
        QCOMPARE(box.text(), QString("1FE"));
        QCOMPARE(box.m_lastValidText, QString("1FE"));
    }

    void digitOutsideTheBaseRestoresTheLastValidText()
    {
        CUnsignedSpinBox box(nullptr, 16);
        box.setText("FF");
        QTest::keyClicks(&box, "g");
        QCOMPARE(box.text(), QString("FF"));
    }

    void firstTextIsTheFirstValidText()
    {
        CUnsignedSpinBox box(nullptr, 10);
        box.m_maximum = 100;
        box.setText("50");
        QCOMPARE(box.m_lastValidText, QString("50"));
        box.setText("101");
        QCOMPARE(box.text(), QString("50"));
    }

    void refusedEntryBeforeAnyValidOneEmptiesTheField()
    {
        CUnsignedSpinBox box(nullptr, 10);
        box.m_maximum = 100;
        box.setText("101");
        QCOMPARE(box.text(), QString());
    }

    void fieldMayBeClearedWhileTyping()
    {
        CUnsignedSpinBox box(nullptr, 10);
        box.m_minimum = 5;
        box.setText("7");
        box.clear();
        QCOMPARE(box.text(), QString());
        QCOMPARE(box.m_lastValidText, QString("7"));
        box.setText("x");
        QCOMPARE(box.text(), QString("7"));
    }

    void entryBelowTheMinimumIsRefused()
    {
        CUnsignedSpinBox box(nullptr, 10);
        box.m_minimum = 5;
        box.setText("5");
        box.setText("4");
        QCOMPARE(box.text(), QString("5"));
    }

    void refusedEntryNamesTheLimitsInTheBase()
    {
        CUnsignedSpinBox box(nullptr, 16);
        box.m_minimum = 10;
        box.m_maximum = 255;
        box.show();
        box.setText("B");
        QVERIFY(!QToolTip::isVisible());
        box.setText("100");
        QCOMPARE(QToolTip::text(), QString("Range should be:A~FF"));
        QCOMPARE(box.text(), QString("B"));
    }

    void wheelStepsByOne_data()
    {
        QTest::addColumn<int>("base");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("delta");
        QTest::addColumn<QString>("expected");
        QTest::newRow("up") << 10 << "9" << 120 << "10";
        QTest::newRow("up by the least turn") << 10 << "9" << 1 << "10";
        QTest::newRow("down") << 10 << "10" << -120 << "9";
        QTest::newRow("no turn counts as down") << 10 << "10" << 0 << "9";
        QTest::newRow("hexadecimal up") << 16 << "9" << 120 << "A";
        QTest::newRow("hexadecimal down") << 16 << "10" << -120 << "F";
        QTest::newRow("at the minimum") << 10 << "5" << -120 << "5";
        QTest::newRow("at the maximum") << 10 << "100" << 120 << "100";
        QTest::newRow("to the minimum") << 10 << "6" << -120 << "5";
        QTest::newRow("to the maximum") << 10 << "99" << 120 << "100";
    }

    void wheelStepsByOne()
    {
        QFETCH(int, base);
        QFETCH(QString, text);
        QFETCH(int, delta);
        CUnsignedSpinBox box(nullptr, base);
        box.m_minimum = 5;
        box.m_maximum = 100;
        box.setText(text);
        QCOMPARE(box.text(), text);
        Wheel(&box, delta);
        QTEST(box.text(), "expected");
        QCOMPARE(box.m_lastValidText, box.text());
    }

    void wheelAtTheEndsOf32BitsDoesNothing()
    {
        CUnsignedSpinBox box(nullptr, 16);
        box.setText("FFFFFFFF");
        Wheel(&box, 120);
        QCOMPARE(box.text(), QString("FFFFFFFF"));
        box.setText("0");
        Wheel(&box, -120);
        QCOMPARE(box.text(), QString("0"));
    }
};

QUORLIN_TEST_CLASS(CUnsignedSpinBoxTest)
#include "UnsignedSpinBoxTest.moc"
