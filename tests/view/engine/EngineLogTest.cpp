// The lines that each failure of binding leaves on the log, to the letter.
#include <functional>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTableWidget>
#include <QtTest>

#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/common/TestClass.h"
#include "tests/view/engine/TestPage.h"

namespace {

const char kMember[] = "response.group1.m";
const QString kName = "\"cmdIf_response_group1_memberProperty_m\"";

enum EWalk
{
    eInit,
    ePackage,
    eUpdate,
    eAppend,
};

template <typename Widget>
QWidget *Make(CTestPage &page)
{
    return page.Add<Widget>(kMember);
}

struct SFailure
{
    const char *title;
    EWalk walk;
    int groupType;       // of the page's document
    const char *member;  // of the page's document; null: no such member
    const char *update;  // member of the document that is updated with; null: no such member
    QWidget *(*make)(CTestPage &page);
    QString line;
};

const char kLabel[] = "{'trait':{'dataType':'label','defaultValue':'NA'}}";
const char kNoTrait[] = "{'caption':'x'}";
const char kForeign[] = "{'defaultSupport':1,'trait':{'dataType':'matrix','defaultValue':['1']},"
                        "'r0':{'defaultValue':'1'}}";

const SFailure kFailures[] = {
    {"init: no member", eInit, 1, nullptr, nullptr, Make<QLabel>,
     "====== Failed processing name: Cannot get the JSON Object======  " + kName},
    {"init: group type", eInit, 4, kLabel, nullptr, Make<QLabel>,
     "====== Failed processing name: Not support this group type yet ======  " + kName},
    {"init: no trait", eInit, 1, kNoTrait, nullptr, Make<QLabel>,
     "---> [Fail][Init][type1]Cannot get the Trait JSON Object <---"},
    {"init: wrong widget", eInit, 1, kLabel, nullptr, Make<QComboBox>,
     "---> [Fail][Init][type1]cannot find the mapping of Data Type and QWidget <---"},
    {"init: lost publisher", eInit, 1,
     "{'subscribeValue':'response.group1.memberProperty.gone','trait':{'dataType':'list'}}",
     nullptr, Make<QComboBox>,
     "---> [Init] Failed to initialize:  Cannot get the mapping data by KEY info <---"},
    {"init: row table widget", eInit, 2, kLabel, nullptr, Make<QLabel>,
     "---> [Fail][Init][type2] Now only support table widget(QTableWidget) <--- "},
    {"init: row table type", eInit, 2, kForeign, nullptr, Make<QTableWidget>,
     "---> [Fail][Init][type2] Cannot get the row info - dataType not support yet <---  "
     "\"matrix\""},
    {"init: column table widget", eInit, 3, kLabel, nullptr, Make<QLabel>,
     "---> [[Fail][Init][type3] Now only support table widget(QTableWidget) <--- "},
    {"init: column table type", eInit, 3, kForeign, nullptr, Make<QTableWidget>,
     "---> [Fail][Init][type3] Cannot get the row info: dataType not support yet <---  "
     "\"matrix\""},

    {"package: no member", ePackage, 1, nullptr, nullptr, Make<QLabel>,
     "====== Failed to packge: Cannot get its JSON ojbect ======  " + kName},
    {"package: group type", ePackage, 4, kLabel, nullptr, Make<QLabel>,
     "====== Failed to packge : Not support this group type yet ======"},
    {"package: row table", ePackage, 2, kLabel, nullptr, Make<QTableWidget>,
     "====== Failed to packge : Not support this group type yet ======"},
    {"package: wrong widget", ePackage, 1, kLabel, nullptr, Make<QLineEdit>,
     "QLineEdit ---> [Fail][Package][type1] : Not support this type yet <--- "},
    {"package: column table widget", ePackage, 3, kLabel, nullptr, Make<QLabel>,
     "---> [Fail][Package][type3] Now only support table widget(QTableWidget) <--- "},
    {"package: column table type", ePackage, 3, kForeign, nullptr, Make<QTableWidget>,
     "---> [Fail][Package][type3] Not support this data type yet <---"},

    {"update: no member", eUpdate, 1, kLabel, nullptr, Make<QLabel>,
     "====== Failed to update: Cannot get its JSON ojbect ====== " + kName},
    {"update: group type", eUpdate, 4, kLabel, kLabel, Make<QLabel>,
     "====== Failed to update : Not support this group type yet ======"},
    {"update: no trait", eUpdate, 1, kLabel, kNoTrait, Make<QLabel>,
     "---> [Fail][Update][type1] Cannot get the trait info <---"},
    {"update: wrong widget", eUpdate, 1, kLabel, kLabel, Make<QSpinBox>,
     "---> [Fail][Update][type1] Not support this data type yet <---"},
    {"update: row table widget", eUpdate, 2, kLabel, kLabel, Make<QLabel>,
     "---> [Fail][Update][type2] Now only support table widget(QTableWidget) <--- "},
    {"update: row table type", eUpdate, 2, kLabel, kForeign, Make<QTableWidget>,
     "---> [Fail][Update][type2] Not support this data type yet<---"},
    {"update: column table widget", eUpdate, 3, kLabel, kLabel, Make<QLabel>,
     "---> [Fail][Update][type3] Now only support table widget(QTableWidget) <--- "},
    {"update: column table type", eUpdate, 3, kLabel, kForeign, Make<QTableWidget>,
     "---> [Fail][Update][type3] Not support this data type yet <---"},

    {"append: no member", eAppend, 2, kLabel, nullptr, Make<QTableWidget>,
     "====== Failed to append: Cannot get its JSON ojbect ====== " + kName},
    {"append: scalar", eAppend, 1, kLabel, kLabel, Make<QLabel>,
     "====== Failed to append : Not support this group type yet ======"},
    {"append: column table", eAppend, 3, kLabel, kLabel, Make<QTableWidget>,
     "====== Failed to append : Not support this group type yet ======"},
    {"append: row table widget", eAppend, 2, kLabel, kLabel, Make<QLabel>,
     "---> [Fail][Append][type2] Now only support table widget(QTableWidget) <--- "},
    {"append: row table type", eAppend, 2, kLabel, kForeign, Make<QTableWidget>,
     "---> [Fail][Append][type2] Not support this data type yet <---"},
};

CTestDocument MakeDocument(int groupType, const char *member, int rows)
{
    CTestDocument document;
    document.Group("response.group1", groupType, rows == 1 ? "{'instanceList':['r0']}" : "{}");
    if (groupType == 3)
        document.ColumnTable("response.group1", 1);
    if (member)
        document.Member(kMember, member);
    return document;
}

}  // namespace

class CEngineLogTest : public QObject
{
    Q_OBJECT

private slots:
    void failureIsOneCriticalLine_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < int(std::size(kFailures)); ++i)
            QTest::newRow(kFailures[i].title) << i;
    }

    void failureIsOneCriticalLine()
    {
        QFETCH(int, index);
        const SFailure &failure = kFailures[index];
        // An append needs a row that the page does not have yet.
        const CTestDocument document =
            MakeDocument(failure.groupType, failure.member, failure.walk == eAppend ? 0 : 1);
        const QJsonObject update = MakeDocument(failure.groupType, failure.update, 1).Json();
        CTestPage page(document);
        QWidget *widget = failure.make(page);
        widget->setStatusTip("as it was");
        LogCapture log(lcEngine());
        page.Init();
        if (failure.walk != eInit)
            log.Clear();
        if (failure.walk == ePackage)
            page.PackageMemberValue();
        else if (failure.walk == eUpdate)
            page.UpdateWidget(update);
        else if (failure.walk == eAppend)
            page.AppendWidget(update);
        QCOMPARE(log.Critical(), QStringList(failure.line));
        QVERIFY(page.IsModelReady());
    }

    void walkGoesOnAfterAFailure()
    {
        CTestDocument document;
        document.Member("response.group1.first", kNoTrait).Member("response.group1.last", kLabel);
        CTestPage page(document);
        page.Add<QLabel>("response.group1.first");
        page.Add<QLabel>("response.group1.absent");
        auto *last = page.Add<QLabel>("response.group1.last");
        page.Init();
        QCOMPARE(last->text(), QString("NA"));
    }

    void packageEndsWithItsTextInItsDoneLine()
    {
        const CTestDocument document = MakeDocument(1, kLabel, 1);
        CTestPage page(document);
        page.Add<QLabel>(kMember);
        LogCapture log(lcEngine());
        page.Init();
        log.Clear();
        const std::string text = page.PackageMemberValue();
        QVERIFY(text.size() > 2);
        QCOMPARE(log.Debug().last(), "============ [Done] Package MemberValue ============  " +
                                         QString::fromStdString(text));
    }

    void walksFrameTheirLines_data()
    {
        QTest::addColumn<int>("walk");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("last");
        QTest::newRow("init") << int(eInit) << "============ [Start] Init widget ============ "
                              << "============ [Done] Init widget ============ ";
        QTest::newRow("package") << int(ePackage)
                                 << "============ [Start] Package MemberValue ============ "
                                 << "============ [Done] Package MemberValue ============ ";
        QTest::newRow("update") << int(eUpdate)
                                << "============ [Start] Update Widget  ============ "
                                << "============ [Done] Update Widget ============ ";
        QTest::newRow("append") << int(eAppend)
                                << "============ [Start] Append Widget ============ "
                                << "============ [Done] Append Widget ============ ";
    }

    void walksFrameTheirLines()
    {
        QFETCH(int, walk);
        QFETCH(QString, first);
        QFETCH(QString, last);
        const CTestDocument document = MakeDocument(1, kLabel, 1);
        CTestPage page(document);
        page.Add<QLabel>(kMember);
        LogCapture log(lcEngine());
        page.Init();
        if (walk != eInit)
            log.Clear();
        if (walk == ePackage)
            page.PackageMemberValue();
        else if (walk == eUpdate)
            page.UpdateWidget(document.Json());
        else if (walk == eAppend)
            page.AppendWidget(document.Json());
        const QStringList lines = log.Debug();
        const int from = lines.indexOf(first);
        QVERIFY(from >= 0);
        int to = from;
        while (to < lines.size() && !lines[to].startsWith(last))
            ++to;
        QVERIFY(to < lines.size());
    }
};

QUORLIN_TEST_CLASS(CEngineLogTest)
#include "EngineLogTest.moc"
