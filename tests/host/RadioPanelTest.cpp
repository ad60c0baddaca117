// The test set in the panel "DUT" of the bench host: numbers and sliders, by mouse and by keyboard.
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QPushButton>
#include <QSlider>

#include "PanelCalls.h"
#include "PanelWindow.h"
#include "tests/common/TestClass.h"

namespace {

// dBm, the first measurement of a fresh report.
double Rsrp()
{
    NRfTestResult_GetMixRxReportV7 report = {};
    VOND_NRf_GetMixRxReportV7_r(kHandle, kTimeoutMs, &report);
    return report.RSRP0[0] / 128.0;
}

}  // namespace

class RadioPanelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_window.reset(); }
    void NumbersAreTyped_data() { AddNumbers(); }
    void NumbersAreTyped();
    void SlidersMoveByKeyAndMouse_data() { AddNumbers(); }
    void SlidersMoveByKeyAndMouse();
    void LevelOfOneBandLeavesTheOthers();
    void LossOfOneRouteLeavesTheOthers();
    void LevelIsLiveWhileATestRuns();
    void TestBringsItsBandUnderTheSlider();
    void ProfilesOwnValuesComeBack();
    void FollowsWhatOthersChange();

private:
    static void AddNumbers();
    void Type(const char *name, const QString &text) const { m_window->Type(name, text); }
    void Choose(const char *box, const QString &value) const { m_window->Choose(box, value); }

    std::unique_ptr<CPanelWindow> m_window;
};

void RadioPanelTest::init()
{
    m_window = std::make_unique<CPanelWindow>("DUT");
    QVERIFY(m_window->IsGood());
}

void RadioPanelTest::AddNumbers()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("key");
    QTest::addColumn<double>("value");
    QTest::newRow("level") << QByteArray("m_level") << "levelDbm" << -71.5;
    QTest::newRow("loss") << QByteArray("m_loss") << "pathLossDb" << 3.2;
    QTest::newRow("noise") << QByteArray("m_noise") << "noiseFigureDb" << 9.0;
    QTest::newRow("fluctuation") << QByteArray("m_fluctuation") << "fluctuationDb" << 1.25;
    QTest::newRow("temperature") << QByteArray("m_temperature") << "temperatureC" << -12.5;
}

void RadioPanelTest::NumbersAreTyped()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, key);
    QFETCH(double, value);
    Type(name, QString::number(value));
    const QJsonValue held = Radio().value(key);
    QCOMPARE(held.isObject() ? held.toObject().value("default").toDouble() : held.toDouble(),
             value);
    QCOMPARE(m_window->Find<QSlider>(name + "Slider")->value(), qRound(value * 10));
}

void RadioPanelTest::SlidersMoveByKeyAndMouse()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, key);
    const auto held = [&] {
        const QJsonValue value = Radio().value(key);
        return value.isObject() ? value.toObject().value("default").toDouble() : value.toDouble();
    };
    auto *slider = m_window->Find<QSlider>(name + "Slider");
    auto *number = m_window->Find<QDoubleSpinBox>(name);
    const double first = held();
    QTest::keyClick(slider, Qt::Key_Right);
    QVERIFY(held() > first);
    QCOMPARE(number->value(), held());
    const double second = held();
    QTest::mouseClick(slider, Qt::LeftButton, {}, {slider->width() - 4, slider->height() / 2});
    QVERIFY(held() > second);
    QCOMPARE(number->value(), held());
    QCOMPARE(slider->value(), qRound(held() * 10));
}

void RadioPanelTest::LevelOfOneBandLeavesTheOthers()
{
    Choose("m_band", "n41");
    auto *asOthers = m_window->Find<QPushButton>("m_levelAsOthers");
    QVERIFY(!asOthers->isEnabled());
    Type("m_level", "-90");
    const QJsonObject levels = Radio().value("levelDbm").toObject();
    QCOMPARE(levels.value("n41").toDouble(), -90.0);
    QCOMPARE(levels.value("default").toDouble(), -65.0);
    QVERIFY(asOthers->isEnabled());
    Choose("m_band", "default");
    QCOMPARE(m_window->Find<QDoubleSpinBox>("m_level")->value(), -65.0);
    Choose("m_band", "n41");
    QCOMPARE(m_window->Find<QDoubleSpinBox>("m_level")->value(), -90.0);
    QTest::mouseClick(asOthers, Qt::LeftButton);
    QVERIFY(!Radio().value("levelDbm").toObject().contains("n41"));
    QCOMPARE(m_window->Find<QDoubleSpinBox>("m_level")->value(), -65.0);
}

void RadioPanelTest::LossOfOneRouteLeavesTheOthers()
{
    Choose("m_route", "12");
    Type("m_loss", "7.5");
    QCOMPARE(Radio().value("pathLossDb").toObject().value("12").toDouble(), 7.5);
    QCOMPARE(Radio().value("pathLossDb").toObject().value("default").toDouble(), 0.5);
    QTest::keyClick(m_window->Find<QPushButton>("m_lossAsOthers"), Qt::Key_Space);
    QVERIFY(!Radio().value("pathLossDb").toObject().contains("12"));
}

void RadioPanelTest::LevelIsLiveWhileATestRuns()
{
    Type("m_fluctuation", "0");
    QVERIFY(StartRsrp(RsrpForcedCommand()));
    const double before = Rsrp();
    const double level = Radio().value("levelDbm").toObject().value("default").toDouble();
    Type("m_level", QString::number(level - 10));
    const double after = Rsrp();
    QVERIFY2(qAbs(before - 10 - after) < 0.1, qPrintable(QString("%1, %2").arg(before).arg(after)));
    QCOMPARE(QString(VondSim_RunningTest()), QString("Rsrp"));
}

void RadioPanelTest::TestBringsItsBandUnderTheSlider()
{
    QVERIFY(StartRsrp(RsrpNormalCommand()));
    QTRY_COMPARE(m_window->Find<QComboBox>("m_band")->currentData().toString(), QString("n78"));
    // The user may look at another one while the test runs.
    Choose("m_band", "n1");
    QTest::qWait(500);
    QCOMPARE(m_window->Find<QComboBox>("m_band")->currentData().toString(), QString("n1"));
}

void RadioPanelTest::ProfilesOwnValuesComeBack()
{
    const QJsonObject own = Radio();
    Type("m_noise", "12");
    Type("m_level", "-100");
    QVERIFY(Radio() != own);
    QTest::mouseClick(m_window->Find<QPushButton>("m_ownRadio"), Qt::LeftButton);
    QCOMPARE(Radio(), own);
    QCOMPARE(m_window->Find<QDoubleSpinBox>("m_level")->value(), -65.0);
}

void RadioPanelTest::FollowsWhatOthersChange()
{
    QCOMPARE(VondSim_SetRadio(R"({"temperatureC": 55})"), 0);
    QTRY_COMPARE(m_window->Find<QDoubleSpinBox>("m_temperature")->value(), 55.0);
    QCOMPARE(m_window->Find<QSlider>("m_temperatureSlider")->value(), 550);
}

QUORLIN_TEST_CLASS(RadioPanelTest)
#include "RadioPanelTest.moc"
