// Captions: the widgets that name a member.
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QtTest>

#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/common/TestClass.h"
#include "tests/view/engine/TestPage.h"

namespace {

const char kPort[] = "request.group3.portP0";

CTestDocument Document(const QString &member)
{
    return CTestDocument().Member(kPort, member);
}

}  // namespace

class CCaptionTest : public QObject
{
    Q_OBJECT

private slots:
    void captionNamesTheMember()
    {
        CTestPage page(Document("{'caption':'Port 0'}"));
        auto *label = page.AddCaption<QLabel>(kPort);
        page.Init();
        QCOMPARE(label->text(), QString("Port 0"));
        QVERIFY(label->isVisible());
    }

    void emptyCaptionShowsNothing()
    {
        CTestPage page(Document("{'caption':''}"));
        auto *label = page.AddCaption<QLabel>(kPort);
        label->setText("as designed");
        LogCapture log(lcEngine());
        page.Init();
        QCOMPARE(label->text(), QString());
        QCOMPARE(log.Critical(), QStringList());
    }

    void misspeltCaptionSuffixLeavesTheLabelAsDesigned()
    {
        CTestPage page(Document("{'caption':'Port 0'}"));
        const QString name = "cmdIf_request_group3_memberProperty_portP0_cpation";
        auto *label = page.AddNamed<QLabel>(name);
        label->setText("as designed");
        LogCapture log(lcEngine());
        page.Init();
        QCOMPARE(label->text(), QString("as designed"));
        QCOMPARE(log.Critical(),
                 QStringList("====== Failed processing name: Cannot get the JSON Object======  \"" +
                             name + "\""));
    }

    void captionOfAnUnsupportedMemberIsHidden()
    {
        CTestPage page(Document("{'caption':'Port 0','defaultSupport':0}"));
        auto *label = page.AddCaption<QLabel>(kPort);
        page.Init();
        QCOMPARE(label->text(), QString("Port 0"));
        QVERIFY(label->isHidden());
    }

    void captionOfAMemberWithoutSupportKeyIsShown()
    {
        CTestDocument document;
        document.Group("request.group3", 2).Member(kPort, "{'caption':'Port 0'}");
        CTestPage page(document);
        auto *label = page.AddCaption<QLabel>(kPort);
        label->hide();
        page.Init();
        QVERIFY(label->isVisible());
    }

    void groupBoxCaptionKeepsItsTitleAndFollowsTheSupport()
    {
        CTestDocument document = Document("{'caption':'Port 0','defaultSupport':0}");
        document.Member("request.group3.portP1", "{'caption':'Port 1'}");
        CTestPage page(document);
        auto *hidden = page.AddCaption<QGroupBox>(kPort);
        auto *shown = page.AddCaption<QGroupBox>("request.group3.portP1");
        hidden->setTitle("of the form");
        shown->setTitle("of the form");
        page.Init();
        QVERIFY(hidden->isHidden());
        QVERIFY(shown->isVisible());
        QCOMPARE(hidden->title(), QString("of the form"));
        QCOMPARE(shown->title(), QString("of the form"));
        QCOMPARE(shown->font().weight(), 75);
    }

    void captionOnAnotherClassDoesNothing()
    {
        CTestPage page(Document("{'caption':'Port 0','defaultSupport':0}"));
        auto *box = page.AddCaption<QCheckBox>(kPort);
        box->setText("as designed");
        LogCapture log(lcEngine());
        page.Init();
        QCOMPARE(box->text(), QString("as designed"));
        QVERIFY(box->isVisible());
        QCOMPARE(log.Critical(), QStringList());
    }

    void captionIsNotPackaged()
    {
        CTestPage page(Document("{'caption':'Port 0'}"));
        page.AddCaption<QLabel>(kPort);
        page.Init();
        LogCapture log(lcEngine());
        QVERIFY(page.Package("request.group3.portP0").isUndefined());
        QCOMPARE(log.Critical(), QStringList());
    }
};

QUORLIN_TEST_CLASS(CCaptionTest)
#include "CaptionTest.moc"
