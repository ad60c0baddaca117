// Colours that the tool makes are read on any ground.
#include "View/access/Contrast.h"

#include <QtTest>

#include "tests/common/TestClass.h"

class ContrastTest : public QObject
{
    Q_OBJECT

private slots:
    void contrastIsThatOfTheGuidelines()
    {
        QCOMPARE(Contrast(Qt::black, Qt::white), 21.0);
        QCOMPARE(Contrast(Qt::white, Qt::white), 1.0);
        // The greys on white that the guidelines' users know as the last that passes and the first
        // that fails.
        QVERIFY(Contrast(QColor(118, 118, 118), Qt::white) >= kTextContrast);
        QVERIFY(Contrast(Qt::white, QColor(119, 119, 119)) < kTextContrast);
        QVERIFY(qAbs(Contrast(Qt::red, Qt::white) - 3.998) < 0.001);
    }

    void colourThatIsReadStaysAsItIs()
    {
        QCOMPARE(Readable(Qt::black, Qt::white), QColor(Qt::black));
        QCOMPARE(Readable(QColor("#b71c1c"), Qt::white), QColor("#b71c1c"));
    }

    void anyColourIsReadOnAnyGround()
    {
        constexpr int kStep = 51;
        for (int red = 0; red < 256; red += kStep) {
            for (int green = 0; green < 256; green += kStep) {
                for (int blue = 0; blue < 256; blue += kStep) {
                    const QColor ground(red, green, blue);
                    QVERIFY(Contrast(Readable(ground, ground), ground) >= kTextContrast);
                    QVERIFY(Contrast(FadedText(Qt::white, ground), ground) >= kTextContrast);
                }
            }
        }
    }

    void fadedTextIsWeakerThanText()
    {
        QVERIFY(Contrast(FadedText(Qt::black, Qt::white), Qt::white) < 5);
        QVERIFY(Contrast(FadedText(Qt::white, QColor(30, 30, 30)), QColor(30, 30, 30)) < 5);
    }
};

QUORLIN_TEST_CLASS(ContrastTest)
#include "ContrastTest.moc"
