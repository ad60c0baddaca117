// The Continuous RX page offers what the DUT can do: bands, route types, routes and bandwidths are
// chosen one by one with the keys of the keyboard, and the choices and limits that appear are those
// of the DUT.
#include <QComboBox>
#include <QSpinBox>
#include <QtTest>

#include "Vond/VondCommandRecords.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/device/ContRxProfiles.h"
#include "tests/device/DutChoices.h"

namespace {

// Two TDD bands behind an uplink-only one, in no order of numbers. n78 has type 1 routes alone; 22
// stands on both bands, and neither its limits nor those of 33 are declared.
constexpr char kTddProfile[] = R"({
    "name": "two TDD bands", "base": "handset",
    "bands": [{"band": 80, "uplinkOnly": true}, {"band": 78}, {"band": 41}],
    "txRoutes": [], "txLimits": [],
    "rxType1Routes": [
        {"band": 78, "route": 23, "antMask": 1, "feRoute": 1, "ports": ["A", "B"], "srx": 0},
        {"band": 78, "route": 22, "antMask": 1, "feRoute": 2, "ports": ["A", "B"], "srx": 1},
        {"band": 41, "route": 22, "antMask": 1, "feRoute": 2, "ports": ["A", "B"], "srx": 1}],
    "rxType2Routes": [
        {"band": 41, "route": 34, "antMask": 1, "feRoute": 3, "ports": ["A", "B"], "srx": [2, 3]},
        {"band": 41, "route": 33, "antMask": 1, "feRoute": 4, "ports": ["A", "B"], "srx": [4, 5]}],
    "rxLimits": [{"band": 41, "route": 34, "kHz": [2515000, 2675000]},
                 {"band": 78, "route": 23, "kHz": [3400000, 3600000]}]})";

constexpr const char *kGains[] = {"path0MainRfGain",  "path0DivRfGain",   "path1MainRfGain",
                                  "path1DivRfGain",   "path0MainGainIdx", "path0DivGainIdx",
                                  "path1MainGainIdx", "path1DivGainIdx"};

// The page in the hands of a user.
class CPage
{
public:
    explicit CPage(CPluginSession &session) : m_session(session) {}

    QComboBox *List(const char *member) const
    {
        return m_session.Find<QComboBox>(MemberName(member));
    }
    QSpinBox *Frequency() const { return m_session.Find<QSpinBox>(MemberName("dlFrequency")); }

    QStringList Items(const char *member) const
    {
        QStringList items;
        for (int i = 0; i < List(member)->count(); ++i)
            items.append(List(member)->itemText(i));
        return items;
    }
    QString Text(const char *member) const { return List(member)->currentText(); }

    // Goes to the last item and back to the first, which so announces itself anew.
    void First(const char *member) const
    {
        QTest::keyClick(List(member), Qt::Key_End);
        QTest::keyClick(List(member), Qt::Key_Home);
        QCOMPARE(List(member)->currentIndex(), 0);
    }
    // False behind the last item.
    bool Next(const char *member) const
    {
        const int before = List(member)->currentIndex();
        QTest::keyClick(List(member), Qt::Key_Down);
        return List(member)->currentIndex() == before + 1;
    }
    // From the first item on, calls for each.
    template <typename Visit>
    void Each(const char *member, const Visit &visit) const
    {
        First(member);
        do
            visit();
        while (Next(member));
    }
    void Pick(const char *member, const QString &item) const
    {
        First(member);
        while (Text(member) != item && Next(member))
            continue;
        QCOMPARE(Text(member), item);
    }

    // One letter a gain: main and div of path 0, of path 1, then the indexes; "-" is off.
    QString GainsOn() const
    {
        QString states;
        for (const char *gain : kGains)
            states += m_session.Find(MemberName(gain))->isEnabled() ? 'x' : '-';
        return states;
    }

private:
    CPluginSession &m_session;
};

QString Line(const QString &band, const QStringList &types, const QStringList &bandwidths)
{
    return QString("%1: %2; %3").arg(band, types.join(' '), bandwidths.join(' '));
}

QString Line(const QString &band, const QString &type, const QStringList &routes)
{
    return QString("%1 %2: %3").arg(band, type, routes.join(' '));
}

QString Line(const QString &route, int low, int high, int value, const QString &toolTip)
{
    return QString("route %1: %2 to %3 at %4, %5")
        .arg(route)
        .arg(low)
        .arg(high)
        .arg(value)
        .arg(toolTip);
}

}  // namespace

class ContRxChoicesTest : public QObject
{
    Q_OBJECT

private slots:
    void eachBandTypeAndRouteShowsWhatTheDutHas_data();
    void eachBandTypeAndRouteShowsWhatTheDutHas();
    void pageOpensWithTheDutsFirstBandAndRoute_data();
    void pageOpensWithTheDutsFirstBandAndRoute();
    void newBandStartsAtItsFirstChoices();
    void routeOfTwoBandsHasTheLimitsOfTheLaterOne();
    void bandWithoutType1RoutesOffersAnEmptyList();
    void calTypeAndGainsFollowTheRouteType_data();
    void calTypeAndGainsFollowTheRouteType();
    void calTypeAndGainsStandAsTheDocumentSaysUntilAChoice();
    void eachRouteStartsAtTheFrequencyThatThePageSets();
};

void ContRxChoicesTest::eachBandTypeAndRouteShowsWhatTheDutHas_data()
{
    QTest::addColumn<QString>("profile");
    QTest::newRow("handset") << "handset";
    QTest::newRow("two TDD bands") << kTddProfile;
}

void ContRxChoicesTest::eachBandTypeAndRouteShowsWhatTheDutHas()
{
    QFETCH(QString, profile);
    CPluginSession session(profile);
    QVERIFY(session.ShowAndWait());
    const CPage page(session);
    const CDutChoices dut;

    QStringList expected;
    for (const QString &band : dut.Bands()) {
        expected << Line(band, dut.RouteTypes(band), dut.Bandwidths(band));
        for (const QString &type : dut.RouteTypes(band)) {
            expected << Line(band, type, dut.Routes(band, type));
            for (const QString &route : dut.Routes(band, type)) {
                const auto [low, high] = dut.Limits(route);
                expected << Line(route, low, high, (low + high) / 2,
                                 QString("%1~%2").arg(low).arg(high));
            }
        }
    }

    QStringList shown;
    page.Each("band", [&] {
        const QString band = page.Text("band");
        shown << Line(band, page.Items("routeType"), page.Items("dlBw"));
        page.Each("routeType", [&] {
            shown << Line(band, page.Text("routeType"), page.Items("rxRoute"));
            page.Each("rxRoute", [&] {
                const QSpinBox *box = page.Frequency();
                shown << Line(page.Text("rxRoute"), box->minimum(), box->maximum(), box->value(),
                              box->toolTip());
            });
        });
    });

    QVERIFY(dut.Bands().size() > 1);
    QCOMPARE(page.Items("band"), dut.Bands());
    QCOMPARE(shown, expected);
}

void ContRxChoicesTest::pageOpensWithTheDutsFirstBandAndRoute_data()
{
    eachBandTypeAndRouteShowsWhatTheDutHas_data();
}

void ContRxChoicesTest::pageOpensWithTheDutsFirstBandAndRoute()
{
    QFETCH(QString, profile);
    CPluginSession session(profile);
    QVERIFY(session.ShowAndWait());
    const CPage page(session);
    const CDutChoices dut;

    const QString band = dut.Bands()[0];
    const QString route = dut.Routes(band, "Type1")[0];
    const auto [low, high] = dut.Limits(route);
    QCOMPARE(page.Text("band"), band);
    QCOMPARE(page.Text("routeType"), QString("Type1"));
    QCOMPARE(page.Text("rxRoute"), route);
    QCOMPARE(page.Text("dlBw"), dut.Bandwidths(band)[0]);
    QCOMPARE(page.Items("routeType"), dut.RouteTypes(band));
    QCOMPARE(page.Items("rxRoute"), dut.Routes(band, "Type1"));
    QCOMPARE(page.Frequency()->minimum(), low);
    QCOMPARE(page.Frequency()->maximum(), high);
    // The document's own frequency, where the limits let it be.
    constexpr int kDefault = 1950000;
    QCOMPARE(page.Frequency()->value(),
             low <= kDefault && kDefault <= high ? kDefault : (low + high) / 2);
}

void ContRxChoicesTest::newBandStartsAtItsFirstChoices()
{
    CPluginSession session;
    QVERIFY(session.ShowAndWait());
    const CPage page(session);
    const CDutChoices dut;
    // The last of everything on n41.
    page.Pick("band", "n41");
    for (const char *member : {"dlBw", "routeType", "rxRoute"})
        QTest::keyClick(page.List(member), Qt::Key_End);
    QCOMPARE(page.Text("rxRoute"), dut.Routes("n41", "Type2").last());
    QCOMPARE(page.Text("dlBw"), dut.Bandwidths("n41").last());

    page.Pick("band", "n78");
    QCOMPARE(page.Text("routeType"), QString("Type1"));
    QCOMPARE(page.Text("rxRoute"), dut.Routes("n78", "Type1")[0]);
    QCOMPARE(page.Text("dlBw"), dut.Bandwidths("n78")[0]);
    QCOMPARE(page.Frequency()->maximum(), dut.Limits(page.Text("rxRoute")).high);
}

void ContRxChoicesTest::routeOfTwoBandsHasTheLimitsOfTheLaterOne()
{
    CPluginSession session;
    QVERIFY(session.ShowAndWait());
    const CPage page(session);
    for (const char *band : {"n77", "n78"}) {
        page.Pick("band", band);
        page.Pick("rxRoute", "12");
        QCOMPARE(page.Frequency()->minimum(), 3300000);
        QCOMPARE(page.Frequency()->maximum(), 3800000);
    }
    page.Pick("band", "n77");
    page.Pick("rxRoute", "11");
    QCOMPARE(page.Frequency()->maximum(), 4200000);
}

void ContRxChoicesTest::bandWithoutType1RoutesOffersAnEmptyList()
{
    CPluginSession session(Type2Profile());
    QVERIFY(session.ShowAndWait());
    const CPage page(session);
    QCOMPARE(page.Items("routeType"), (QStringList{"Type1", "Type2"}));
    QCOMPARE(page.Text("routeType"), QString("Type1"));
    QCOMPARE(page.Items("rxRoute"), QStringList());
    QCOMPARE(page.Frequency()->maximum(), 0);

    page.Pick("routeType", "Type2");
    QCOMPARE(page.Items("rxRoute"), QStringList("1"));
    QCOMPARE(page.Frequency()->minimum(), 1920000);
    QCOMPARE(page.Frequency()->maximum(), 1980000);
}

void ContRxChoicesTest::calTypeAndGainsFollowTheRouteType_data()
{
    QTest::addColumn<QString>("routeType");
    QTest::addColumn<QStringList>("calTypes");
    QTest::addColumn<QStringList>("gains");
    QTest::newRow("type 1") << "Type1" << QStringList{"Partial-On Path0"}
                            << QStringList{"xx------"};
    QTest::newRow("type 2") << "Type2"
                            << QStringList{"Partial-On Path0", "Partial-On Path1", "Simultaneously"}
                            << QStringList{"xx------", "--xx----", "xxxxxxxx"};
}

void ContRxChoicesTest::calTypeAndGainsFollowTheRouteType()
{
    QFETCH(QString, routeType);
    QFETCH(QStringList, calTypes);
    QFETCH(QStringList, gains);
    CPluginSession session;
    QVERIFY(session.ShowAndWait());
    const CPage page(session);
    page.Pick("band", "n78");
    // From the other type, with all gains on.
    page.Pick("routeType", "Type2");
    page.Pick("calType", "Simultaneously");
    page.Pick("routeType", routeType);

    QCOMPARE(page.Items("calType"), calTypes);
    QCOMPARE(page.Text("calType"), calTypes[0]);
    QCOMPARE(page.List("calType")->isEnabled(), routeType == "Type2");
    for (int i = 0; i < calTypes.size(); ++i) {
        if (i > 0)
            page.Pick("calType", calTypes[i]);
        QCOMPARE(page.GainsOn(), gains[i]);
    }
}

void ContRxChoicesTest::calTypeAndGainsStandAsTheDocumentSaysUntilAChoice()
{
    CPluginSession session;
    QVERIFY(session.ShowAndWait());
    const CPage page(session);
    QVERIFY(page.List("calType")->isEnabled());
    QCOMPARE(page.GainsOn(), QString("xxxxxxxx"));
    // A band publishes its route type, be it the same as before.
    QVERIFY(page.Next("band"));
    QVERIFY(!page.List("calType")->isEnabled());
    QCOMPARE(page.GainsOn(), QString("xx------"));
}

void ContRxChoicesTest::eachRouteStartsAtTheFrequencyThatThePageSets()
{
    CPluginSession session;
    QVERIFY(session.ShowAndWait());
    const CPage page(session);

    QStringList chosen;
    page.Each("band", [&] {
        page.Each("routeType", [&] {
            page.Each("rxRoute", [&] {
                if (QTest::currentTestFailed())
                    return;
                session.Press("m_start");
                QVERIFY(session.WaitForStatus("Cont Rx start..."));
                session.Press("m_stop");
                QVERIFY(session.WaitForStatus("Cont Rx stop."));
                chosen << QString("%1 %2 %3")
                              .arg(page.Text("band"), page.Text("rxRoute"),
                                   QString::number(page.Frequency()->value()));
            });
        });
    });

    QStringList received;
    for (const SJournalCall &start : JournalOf("VOND_MMRf_ContRxV7_r")) {
        QCOMPARE(start.request.size(), int(sizeof(SMMContRxCmdV7)));
        const auto *command = reinterpret_cast<const SMMContRxCmdV7 *>(start.request.constData());
        received << QString("n%1 %2 %3")
                        .arg(command->band)
                        .arg(command->rxRoute)
                        .arg(command->dlFrequency);
    }
    QVERIFY(!chosen.isEmpty());
    QCOMPARE(received, chosen);
}

QUORLIN_TEST_CLASS(ContRxChoicesTest)
#include "ContRxChoicesTest.moc"
