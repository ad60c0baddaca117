// Page lists with names that cannot become a page.
#include <QMessageBox>
#include <QtTest>

#include "tests/common/BoxWatcher.h"
#include "tests/common/TestClass.h"
#include "tests/view/form/FormUnderTest.h"

namespace {

constexpr char kFailedText[] = "There are some page failed in init flow";

}  // namespace

class FailedPagesTest : public QObject
{
    Q_OBJECT

private slots:
    void unregisteredNameIsListedAsUnknownTypeAndTheOthersComeUp();
    void typeThatCannotBeConstructedIsListed_data();
    void typeThatCannotBeConstructedIsListed();
    void allFailuresAreListedInTheOrderOfTheList();
    void allNamesFailingLeavesAnEmptyWindowAndTheBox();
    void emptyListSaysThatTheInitFailed();
    void afterAnEmptyListOnlyAResetLetsTheNextShowTryAgain();
};

void FailedPagesTest::unregisteredNameIsListedAsUnknownTypeAndTheOthersComeUp()
{
    CFormUnderTest form;
    CBoxWatcher boxes;
    QVERIFY(form.ShowAndWait({"CFirstPage", "CNoSuchPage", "CSecondPage"}));
    QCOMPARE(form.PageTitles(), (QStringList{kFirst, kSecond}));
    QCOMPARE(form.TabBars()[0]->count(), 2);
    QCOMPARE(form.MenuTitles(), (QStringList{kFirst, kSecond}));
    QVERIFY(form.isEnabled());
    QCOMPARE(boxes.Seen().size(), 1);
    QCOMPARE(boxes.Seen()[0].title, QString("Quorlin RF"));
    QVERIFY(boxes.Seen()[0].text.contains(kFailedText));
    QCOMPARE(boxes.Seen()[0].informative, QString("CNoSuchPage: unknown type"));
    QCOMPARE(boxes.Seen()[0].icon, int(QMessageBox::Critical));
}

void FailedPagesTest::typeThatCannotBeConstructedIsListed_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("line");
    QTest::newRow("constructor not invokable") << "CHiddenPage"
                                               << "CHiddenPage: cannot new Instance";
    QTest::newRow("dock widget that is no page") << "CForeignDock"
                                                 << "CForeignDock: cannot new Instance";
    QTest::newRow("no QObject") << "SPlainRecord"
                                << "SPlainRecord: no QMetaObject";
}

void FailedPagesTest::typeThatCannotBeConstructedIsListed()
{
    QFETCH(QString, name);
    QFETCH(QString, line);
    CFormUnderTest form;
    CBoxWatcher boxes;
    QVERIFY(form.ShowAndWait({name, "CFirstPage"}));
    QCOMPARE(boxes.Seen().size(), 1);
    QCOMPARE(boxes.Seen()[0].informative, line);
    QCOMPARE(form.findChildren<QDockWidget *>().size(), 1);
    QCOMPARE(form.PageTitles(), (QStringList{kFirst}));
    QVERIFY(form.Page(kFirst)->isVisible());
}

void FailedPagesTest::allFailuresAreListedInTheOrderOfTheList()
{
    CFormUnderTest form;
    CBoxWatcher boxes;
    QVERIFY(form.ShowAndWait({"CHiddenPage", "CFirstPage", "CNoSuchPage"}));
    QCOMPARE(boxes.Seen().size(), 1);
    QCOMPARE(boxes.Seen()[0].informative,
             QString("CHiddenPage: cannot new Instance\nCNoSuchPage: unknown type"));
}

void FailedPagesTest::allNamesFailingLeavesAnEmptyWindowAndTheBox()
{
    CFormUnderTest form;
    CBoxWatcher boxes;
    QVERIFY(form.ShowAndWait({"CNoSuchPage", "CHiddenPage"}));
    QVERIFY(form.findChildren<QDockWidget *>().isEmpty());
    QVERIFY(form.isEnabled());
    QVERIFY(form.MenuTitles().isEmpty());
    QCOMPARE(boxes.Seen().size(), 1);
    QCOMPARE(boxes.Seen()[0].informative,
             QString("CNoSuchPage: unknown type\nCHiddenPage: cannot new Instance"));
}

void FailedPagesTest::emptyListSaysThatTheInitFailed()
{
    CFormUnderTest form;
    CBoxWatcher boxes;
    form.ShowWith({});
    QCOMPARE(form.statuses, (QStringList{"Please to wait the init flow...", "Init failed."}));
    QVERIFY(form.isEnabled());
    QCOMPARE(boxes.Seen().size(), 1);
    QCOMPARE(boxes.Seen()[0].title, QString("Quorlin RF"));
    QVERIFY(boxes.Seen()[0].text.contains("Without any RF page init flow."));
    QCOMPARE(boxes.Seen()[0].informative, QString());
    QCOMPARE(boxes.Seen()[0].icon, int(QMessageBox::Warning));
}

void FailedPagesTest::afterAnEmptyListOnlyAResetLetsTheNextShowTryAgain()
{
    CFormUnderTest form;
    CBoxWatcher boxes;
    form.ShowWith({});
    form.hide();
    form.ShowWith({"CFirstPage"});
    QCOMPARE(form.Status(), QString("Init failed."));
    QVERIFY(form.PageTitles().isEmpty());
    form.hide();
    form.ResetPages();
    QVERIFY(form.ShowAndWait({"CFirstPage"}));
    QCOMPARE(form.PageTitles(), (QStringList{kFirst}));
    QCOMPARE(boxes.Seen().size(), 1);
}

QUORLIN_TEST_CLASS(FailedPagesTest)
#include "FailedPagesTest.moc"
