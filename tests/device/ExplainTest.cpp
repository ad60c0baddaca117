// "Explain changes": why the members of a page have changed.
#include <QAction>
#include <QClipboard>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTableWidget>

#include "tests/common/TestClass.h"
#include "tests/device/CalibrationSession.h"
#include "tests/device/ExplainSession.h"
#include "tests/device/RsrpSession.h"
#include "tests/device/RssiSession.h"
#include "tests/device/TxPages.h"

namespace {

constexpr char kBand[] = "request.group1.band";
constexpr char kPower[] = "request.group1.txPowerValue";
constexpr char kByUser[] = "The user";
constexpr char kByResult[] = "A result of the DUT";

// As a person does it.
void KeyOn(QWidget *widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    widget->setFocus();
    QTest::keyClick(widget, key, modifiers);
}

void TypePower(const CPluginSession &session, const QString &text)
{
    auto *power = session.Find<QDoubleSpinBox>(Member("txPowerValue"));
    session.Window()->activateWindow();
    power->setFocus();
    QVERIFY(WaitUntil([power] { return power->hasFocus(); }));
    power->selectAll();
    QTest::keyClicks(power, text);
}

QMenu *OpenMenu()
{
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

// What the menu has for a member; null when there is no menu, or no such entry.
QAction *MenuEntry()
{
    for (QAction *action : OpenMenu() ? OpenMenu()->actions() : QList<QAction *>()) {
        if (action->objectName() == "m_actionExplainMember")
            return action;
    }
    return nullptr;
}

// With the right button.
void AskMenu(const CPluginSession &session, QWidget *widget)
{
    QWidget *page = session.Page();
    const QPoint at = widget->mapTo(page, widget->rect().center());
    QWidget *under = page->childAt(at);
    const QPoint pos = under->mapFrom(page, at);
    QContextMenuEvent event(QContextMenuEvent::Mouse, pos, under->mapToGlobal(pos));
    QApplication::sendEvent(under, &event);
}

void ChooseEntry()
{
    QAction *const entry = MenuEntry();
    QVERIFY(entry);
    QTest::mouseClick(OpenMenu(), Qt::LeftButton, {}, OpenMenu()->actionGeometry(entry).center());
}

}  // namespace

class ExplainTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        if (QMenu *menu = OpenMenu())
            menu->close();
    }

    void whatAPageStartsWithIsTheDutsCapabilityOrItsOwnDefault()
    {
        CPluginSession session("handset", 1, kSingleTone.className);
        QVERIFY(session.ShowAndWait());
        const CExplainHands explain(session);
        QVERIFY(explain.Open());
        const SExplained band = explain.Newest(kBand);
        QCOMPARE(band.member, QString("Band (request.group1.band)"));
        QCOMPARE(band.from, QString());
        QCOMPARE(band.to, session.Find<QComboBox>(Member("band"))->currentText());
        QCOMPARE(band.because, QString("The DUT's capability at the start"));
        QCOMPARE(explain.Newest(kPower).to, QString("23.00"));
        QCOMPARE(explain.Newest(kPower).because, QString("The page's own default at the start"));
    }

    void numberThatTheUserTypesIsOneChange()
    {
        CPluginSession session("handset", 1, kSingleTone.className);
        QVERIFY(session.ShowAndWait());
        const CExplainHands explain(session);
        QVERIFY(explain.Open());
        TypePower(session, "-7.5");
        QVERIFY(explain.Comes(kPower, "-7.5"));
        KeyOn(session.Find<QDoubleSpinBox>(Member("txPowerValue")), Qt::Key_Tab);
        QVERIFY(explain.Comes(kPower, "-7.50"));
        QCOMPARE(explain.Of(kPower).size(), size_t(2));  // and the start
        QCOMPARE(explain.Newest(kPower).from, QString("23.00"));
        QCOMPARE(explain.Newest(kPower).because, QString(kByUser));
        TypePower(session, "3");
        QVERIFY(explain.Comes(kPower, "3"));
        QCOMPARE(explain.Of(kPower).size(), size_t(3));
        QCOMPARE(explain.Newest(kPower).from, QString("-7.50"));
    }

    void whatFollowsTheUsersChoiceNamesPublisherKeyAndEntry()
    {
        CPluginSession session("handset", 1, kSingleTone.className);
        QVERIFY(session.ShowAndWait());
        const CExplainHands explain(session);
        auto *band = session.Find<QComboBox>(Member("band"));
        KeyOn(band, Qt::Key_Down);
        QCOMPARE(band->currentText(), QString("n3"));
        QVERIFY(explain.Open());
        const SExplained choice = explain.Newest(kBand);
        QCOMPARE(choice.from + choice.to + choice.because, QString("n1n3") + kByUser);
        const SExplained route = explain.Newest("request.group1.txRoute");
        QCOMPARE(route.from + route.to, QString("13"));
        QCOMPARE(route.because, QString("Relation with Band (band), key \"n3\": 3, 4"));
        const SExplained frequency = explain.Newest("request.group1.ulFrequency");
        QCOMPARE(frequency.because, QString("Relation with Comp. Route (txRoute), key \"3\": "
                                            "max 1785000, min 1710000"));
        QCOMPARE(frequency.to, QString("1747500"));
        const SExplained port = explain.Newest("request.group2.port");
        QCOMPARE(port.because,
                 QString("Relation with Comp. Route (txRoute), key \"3,BW0\": ") + port.to);
        // The user's change came first, so it stands below.
        const std::vector<SExplained> rows = explain.Rows();
        const auto of = [&rows](const QString &key) {
            return std::find_if(rows.begin(), rows.end(), [&key](const SExplained &row) {
                return row.member.contains('(' + key + ')');
            });
        };
        QVERIFY(of(kBand) > of("request.group1.txRoute"));
        QVERIFY(of("request.group1.txRoute") > of("request.group1.ulFrequency"));
    }

    void keyThatIsMissingIsNamedAndTheMemberStays()
    {
        CPluginSession session("handset", 1, "CNrRsrpNormalDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        const CExplainHands explain(session);
        auto *band = session.Find<QComboBox>(Member("band"));
        while (band->currentText() != "n41" && band->currentIndex() + 1 < band->count())
            KeyOn(band, Qt::Key_Down);
        QVERIFY(explain.Open());
        const SExplained stays = explain.Newest("request.group2.band");
        QCOMPARE(stays.from + stays.to, QString("n28n28"));
        QCOMPARE(stays.because,
                 QString("Relation with Band (band), key \"n41\": no entry, it stays"));
    }

    void memberThatARelationTurnsOffTellsSo()
    {
        CPluginSession session("handset", 1, "CNrContRxDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        const CExplainHands explain(session);
        auto *type = session.Find<QComboBox>(Member("calType"));
        QVERIFY(type->isEnabled());
        KeyOn(session.Find<QComboBox>(Member("band")), Qt::Key_Down);
        QVERIFY(!type->isEnabled());
        QVERIFY(explain.Open());
        const SExplained off = explain.Newest("request.group1.calType");
        QCOMPARE(off.from + ' ' + off.to, QString("enabled disabled"));
        QCOMPARE(off.because,
                 QString("Relation with Route Type (routeType), key \"Type1\": disabled"));
    }

    void resultOfTheDutIsOne()
    {
        CRssiSession session;
        QVERIFY(session.ShowAndWait());
        const CExplainHands explain(session);
        QVERIFY(Measure(session));
        QVERIFY(explain.Open());
        const SExplained rssi = explain.Of("response.group2.rssiMain").front();
        QVERIFY2(rssi.member.startsWith("Main RSSI[4]"), qPrintable(rssi.member));
        QCOMPARE(rssi.to, session.ResultRow(0, CRssiSession::MainRssi).last());
        QCOMPARE(rssi.because, QString(kByResult));
    }

    void newestReportIsAChangeAMember()
    {
        CRsrpSession session("Force");
        QVERIFY(session.Running());
        const CExplainHands explain(session);
        QVERIFY(explain.Open());
        QString before;
        for (int fetch = 0; fetch < 3; ++fetch) {
            QVERIFY(session.Fetch());
            const QString newest = session.Column("RSRP0").last();
            if (newest == before)
                continue;
            QVERIFY(explain.Comes("response.group1.RSRP0", newest));
            QCOMPARE(explain.Newest("response.group1.RSRP0").from, before);
            QCOMPARE(explain.Newest("response.group1.RSRP0").because, QString(kByResult));
            before = newest;
        }
    }

    void commandsOfTheUserAreNamed()
    {
        CPluginSession session("handset", 1, "CNrRxPathlossDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        session.Press("m_btnUpload");
        QVERIFY(session.WaitForStatus("Read data from target successfully."));
        const CExplainHands explain(session);
        QVERIFY(explain.Open());
        const auto isData = [&] {
            const std::vector<SExplained> rows = explain.Rows();
            return !rows.empty() && rows.front().because == "Calibration data of the selection";
        };
        QVERIFY(WaitUntil(isData));
        QDoubleSpinBox *cell = nullptr;
        for (auto *box : session.Page()->findChildren<QDoubleSpinBox *>()) {
            if (!cell && box->isVisible() && box->isEnabled())
                cell = box;
        }
        QVERIFY(cell);
        QApplication::setActiveWindow(session.Window());
        const QString before = cell->text();
        cell->setFocus();
        cell->selectAll();
        QTest::keyClicks(cell, "1.5");
        QTest::keyClick(cell, Qt::Key_Return);
        QVERIFY(WaitUntil([&] { return explain.Rows().front().to == "1.50000"; }));
        QCOMPARE(explain.Rows().front().because, QString(kByUser));
        session.Page()->findChild<QAction *>("m_actionUndo")->trigger();
        QVERIFY(WaitUntil([&] { return explain.Rows().front().to == before; }));
        QCOMPARE(explain.Rows().front().because, QString("The user (Undo)"));
    }

    void theLastTenThousandAreThere()
    {
        CPluginSession session("handset", 1, kSingleTone.className);
        QVERIFY(session.ShowAndWait());
        const CExplainHands explain(session);
        QVERIFY(explain.Open());
        auto *band = session.Find<QComboBox>(Member("band"));
        for (int i = 0; i < 2500; ++i) {
            band->setCurrentIndex(1 - i % 2);
            if (i % 500 == 0)
                QTest::qWait(60);  // the window takes some of them on the way
        }
        QVERIFY(WaitUntil([&] { return explain.Table()->model()->rowCount() == 10000; }));
        QCOMPARE(explain.Window()->findChild<QLabel *>("m_count")->text(),
                 QString("The last 10000 changes"));
        TypePower(session, "1");
        QVERIFY(explain.Comes(kPower, "1"));
        QCOMPARE(explain.Table()->model()->rowCount(), 10000);
        // Newest first, none left out: each choice is from what the one before it was to.
        const std::vector<SExplained> choices = explain.Of(kBand);
        QVERIFY(choices.size() > 1000);
        for (size_t i = 0; i + 1 < choices.size(); ++i)
            QCOMPARE(choices[i].from, choices[i + 1].to);
        QVERIFY(explain.Rows().back().because != "The DUT's capability at the start");
    }

    void listOfMembersNarrowsItToOne()
    {
        CPluginSession session("handset", 1, kSingleTone.className);
        QVERIFY(session.ShowAndWait());
        const CExplainHands explain(session);
        KeyOn(session.Find<QComboBox>(Member("band")), Qt::Key_Down);
        QVERIFY(explain.Open());
        const size_t all = explain.Rows().size();
        QComboBox *members = explain.Members();
        QCOMPARE(members->currentText(), QString("All members"));
        QApplication::setActiveWindow(explain.Window());
        members->setFocus();
        QTest::keyClicks(members, "Comp. R");
        QCOMPARE(explain.Rows().size(), size_t(2));
        QCOMPARE(explain.Of("request.group1.txRoute").size(), size_t(2));
        QTest::keyClick(members, Qt::Key_Home);
        QCOMPARE(explain.Rows().size(), all);
    }

    void menuOfAMemberOpensItForThatMemberAlone()
    {
        CRssiSession session;
        QVERIFY(session.ShowAndWait());
        QVERIFY(Measure(session));
        const CExplainHands explain(session);
        auto *list = session.Find<QComboBox>(MemberName("band"));
        QApplication::setActiveWindow(session.Window());
        KeyOn(list, Qt::Key_F10, Qt::ShiftModifier);
        QVERIFY(MenuEntry());
        QCOMPARE(MenuEntry()->text(), QString("Explain changes of Band"));
        ChooseEntry();
        QVERIFY(explain.Window() && explain.Window()->isVisible());
        QCOMPARE(explain.Rows().size(), explain.Of(kBand).size());
        QCOMPARE(explain.Rows().size(), size_t(1));

        AskMenu(session, session.FrequencyTable()->cellWidget(0, 1));
        ChooseEntry();
        QCOMPARE(explain.Members()->currentData().toString(),
                 QString("cmdIf.request.group2.memberProperty.dlFrequency"));

        // A cell that is a label.
        AskMenu(session, session.ResultTable(0)->cellWidget(CRssiSession::DivRssi, 1));
        ChooseEntry();
        QVERIFY(!explain.Rows().empty());
        QCOMPARE(explain.Rows().size(), explain.Of("response.group2.rssiDiv").size());
        // The page's own entry shows all again, in the same window.
        QVERIFY(explain.Open());
        QVERIFY(explain.Rows().size() > explain.Of("response.group2.rssiDiv").size());
    }

    void menuIsThereOverACheckBoxAColumnOfReportsAndALabel()
    {
        CRsrpSession session("Normal");
        QVERIFY(session.Running());
        QVERIFY(session.Fetch());
        AskMenu(session, session.Table()->cellWidget(0, 0));
        QVERIFY(MenuEntry());
        QCOMPARE(MenuEntry()->text(),
                 "Explain changes of " + session.Table()->horizontalHeaderItem(0)->text());
        OpenMenu()->close();
        AskMenu(session, session.Input<QLabel>("group2", "ulFrequency"));
        QVERIFY(MenuEntry());
        OpenMenu()->close();

        CPluginSession tone("handset", 1, kSingleTone.className);
        QVERIFY(tone.ShowAndWait());
        KeyOn(tone.Find<QCheckBox>(Member("afcDataType")), Qt::Key_F10, Qt::ShiftModifier);
        QVERIFY(MenuEntry());
        QCOMPARE(MenuEntry()->text(), QString("Explain changes of AFC data used UI"));
    }

    void keyboardAloneOpensReadsCopiesAndCloses()
    {
        CPluginSession session("handset", 1, kSingleTone.className);
        QVERIFY(session.ShowAndWait());
        const CExplainHands explain(session);
        KeyOn(session.Find<QComboBox>(Member("band")), Qt::Key_Down);
        QVERIFY(explain.Open());
        QWidget *window = explain.Window();
        QApplication::setActiveWindow(window);
        QCOMPARE(window->focusWidget(), explain.Table());
        QTest::keyClick(explain.Table(), Qt::Key_Home, Qt::ControlModifier);
        QTest::keyClick(explain.Table(), Qt::Key_C, Qt::ControlModifier);
        const QStringList lines = QGuiApplication::clipboard()->text().split('\n');
        QCOMPARE(lines[0], QString("Time\tMember\tFrom\tTo\tBecause"));
        const SExplained newest = explain.Rows().front();
        QCOMPARE(
            lines[1],
            (QStringList{newest.time, newest.member, newest.from, newest.to, newest.because}.join(
                '\t')));
        QTest::keyClick(explain.Table(), Qt::Key_Tab);
        QCOMPARE(window->focusWidget(), explain.Members());
        QTest::keyClick(explain.Members(), Qt::Key_Tab);
        QCOMPARE(window->focusWidget()->objectName(), QString("m_copy"));
        QTest::keyClick(window, Qt::Key_Escape);
        QVERIFY(!window->isVisible());
    }

    void windowGoesAndComesWithTheToolAndEndsWithItsPage()
    {
        for (const bool isReset : {true, false}) {
            CPluginSession session("handset", 1, kSingleTone.className);
            QVERIFY(session.ShowAndWait());
            const CExplainHands explain(session);
            QVERIFY(explain.Open());
            TypePower(session, "2");
            const QPointer<QWidget> window(explain.Window());
            session->HidePlugin();
            QVERIFY(!window->isVisible());
            session->ShowPlugin();
            QVERIFY(WaitUntil([&] { return window && window->isVisible(); }));
            QVERIFY(WaitUntil([&] { return explain.Newest(kPower).to.startsWith("2"); }));
            TypePower(session, "3");
            if (isReset)
                session->ResetPlugin();
            else
                session.Unload();
            QVERIFY(!window);
        }
    }
};

QUORLIN_TEST_CLASS(ExplainTest)
#include "ExplainTest.moc"
