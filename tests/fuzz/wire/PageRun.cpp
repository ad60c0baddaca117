#include "tests/fuzz/wire/PageRun.h"

#include <algorithm>
#include <memory>

#include <QFile>
#include <QJsonArray>
#include <QMap>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QThreadPool>

#include "Controller/core/NrCore.h"
#include "Model/JsonPath.h"
#include "Model/ModelText.h"
#include "Model/StatusTable.h"
#include "Support/CalIniFile.h"
#include "Support/Threads.h"
#include "tests/controller/capability/WrittenPaths.h"
#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/wire/FuzzPages.h"

namespace {

constexpr int kMaxRows = 11;  // of a fetch: ten measurements and a marker
// Routes whose files an input may make: a type 2 route alone is 200 lines of 64 numbers.
constexpr int kMaxFiledTx = 10;
constexpr int kMaxFiledType1 = 4;
constexpr int kMaxFiledType2 = 1;

bool IsOperationStatus(int status)
{
    return status == eStatusSuccess || status == eStatusNotExecuted ||
           status == eStatusVondFailed || status == eStatusTargetFailed;
}

// A text that a request has answered with.
QJsonObject Answered(const std::string &text)
{
    const QJsonObject document = ModelFromText(text);
    Require(!document.isEmpty(), "an answer is a document");
    Require(ModelToText(document) == text, "a document travels as text");
    return document;
}

QJsonArray Messages(const QJsonObject &document)
{
    return document["modelIntegrity"]["messageList"].toArray();
}

// Only what the page's driver writes differs from what the library carries.
void CheckPatched(EPageId id, const QJsonObject &document)
{
    QJsonObject page = TemplatePage(id);
    for (const SWrittenPath &row : WrittenPaths(id))
        ModifyJsonValue(page, row.path, GetJsonValueConst(document, row.path), 0);
    QJsonObject outside = document;
    outside.remove("modelIntegrity");
    Require(outside == page, "a driver writes its own paths alone");
    Require(Messages(document).size() <= 1, "a driver ends with its first failure");
}

// Everything but the section that a response goes to.
QJsonObject Without(QJsonObject document, const QString &root, const char *section)
{
    QJsonObject sections = document[root].toObject();
    sections.remove(section);
    document[root] = sections;
    document.remove("modelIntegrity");
    return document;
}

// Gain indexes and gain modes of a response are the bytes that the DUT has answered.
void CheckGains(const QJsonObject &document)
{
    constexpr int kMaxByte = 255;
    static const QRegularExpression modes(QStringLiteral("G(\\d+)\\+g(\\d+)"));
    const QJsonObject members =
        document["cmdIf"]["response"]["group1"]["memberProperty"].toObject();
    for (auto member = members.begin(); member != members.end(); ++member) {
        const QString text = (*member)["trait"]["defaultValue"].toString();
        if (member.key().endsWith(QLatin1String("GainIdx")))
            Require(text.toInt() >= 0 && text.toInt() <= kMaxByte, "a gain index is a byte");
        auto match = modes.globalMatch(text);
        while (match.hasNext()) {
            const QRegularExpressionMatch mode = match.next();
            Require(mode.captured(1).toInt() <= kMaxByte && mode.captured(2).toInt() <= kMaxByte,
                    "a gain mode is two bytes");
        }
    }
}

bool IsFileSmall(EPageId page)
{
    const SMMRfRouteTableV7 *table = CTargetCapability().GetRouteTableNr();
    if (!table)
        return true;
    return page == EPageId::AptProfile ? table->txRouteCount <= kMaxFiledTx
                                       : table->rxType1RouteCount <= kMaxFiledType1 &&
                                             table->rxType2RouteCount <= kMaxFiledType2;
}

// What the jobs wrote can be read then.
void WaitForPool()
{
    QThreadPool::globalInstance()->waitForDone();
    Require(IsPoolIdle(), "a job is over when its thread is");
}

struct SFlowAnswer
{
    bool isDone = false;
    int status = -1;
};

// Runs a flow with the one item, to its end.
template <typename Signal, typename Start>
int RunFlow(Signal signal, const Start &start)
{
    SFlowAnswer answer;
    const auto connection = QObject::connect(
        &GetCore(), signal, &GetCore(),
        [&answer](bool isAllSuccess, const QVector<SEachItemOperationResult> &results) {
            Require(results.size() == 1, "an item has one result");
            Require(isAllSuccess == (results[0].status == 0), "a flow fails with its item");
            answer = {true, results[0].status};
        },
        Qt::DirectConnection);
    start();
    WaitForPool();
    QObject::disconnect(connection);
    Require(answer.isDone, "a flow answers");
    return answer.status;
}

}  // namespace

CPageRun::CPageRun(EPageId page) : m_page(page), m_name(PageName(page)) {}

void CPageRun::Launch()
{
    GetCore().ResetTargetCache();
    const SRfSupportStatus support = GetCore().GetSupportStatus();
    Require(support.status >= eSupported && support.status <= eSupportUnknown &&
                !support.message.isEmpty(),
            "the launch query is decided, with words");
    const QStringList pages = GetCore().GetAllSupportPage();
    Require(pages.isEmpty() || pages == ShownPageClasses(), "there are all pages or none");
    m_isGeneration1 = !pages.isEmpty();

    const std::string text = GetCore().GetDataModel(m_name);
    Require(text.empty() != m_isGeneration1, "generation 1 alone has documents");
    const QJsonObject document = text.empty() ? TemplatePage(m_page) : Answered(text);
    if (m_isGeneration1)
        CheckPatched(m_page, document);
    // A test's document is large by the DUT's tables, which no answer to a test looks at.
    m_document = PackagedPage(m_page, IsCalibration(m_page) ? document : TemplatePage(m_page));
}

void CPageRun::Use()
{
    struct SUse
    {
        EPageId page;
        void (CPageRun::*use)();
    };
    static constexpr SUse kUses[] = {
        {EPageId::Rssi, &CPageRun::ReadRssi},
        {EPageId::RsrpForce, &CPageRun::ReadReports},
        {EPageId::RsrpNormal, &CPageRun::ReadReports},
        {EPageId::SingleToneTx, &CPageRun::ReadValue},
        {EPageId::PuschTxForce, &CPageRun::ReadValue},
        {EPageId::PuschTxNormal, &CPageRun::ReadValue},
        {EPageId::AptProfile, &CPageRun::Calibrate},
        {EPageId::RxPathLoss, &CPageRun::Calibrate},
    };
    Test();
    for (const SUse &row : kUses) {
        if (row.page == m_page)
            (this->*row.use)();
    }
}

void CPageRun::Test()
{
    bool isDone = false;
    const auto done = QObject::connect(
        &GetCore(), &CNrCore::Signal_TestDone, &GetCore(),
        [&](const SEachItemOperationResult &result, const std::string &answer) {
            isDone = true;
            Require(result.itemName == m_name, "a result names its page");
            Require(IsOperationStatus(result.status), "a test has a status of the table");
            Require(m_isGeneration1 || result.status == eStatusNotExecuted,
                    "without generation 1 nothing runs");
            if (m_page != EPageId::Rssi || !m_isGeneration1) {
                Require(answer.empty(), "one test alone answers with a document");
            } else {
                CheckGains(Answered(answer));
                Require(Without(Answered(answer), "cmdIf", "response") ==
                            Without(m_document, "cmdIf", "response"),
                        "a response is written to its section alone");
            }
        },
        Qt::DirectConnection);
    GetCore().Test(m_name, ModelToText(m_document));
    GetCore().TestStopStart(true);
    GetCore().TestStopStart(false);
    WaitForPool();
    QObject::disconnect(done);
    Require(isDone, "a test answers");
}

void CPageRun::ReadRssi()
{
    SEachItemOperationResult result;
    const QJsonObject document =
        Answered(GetCore().RssiGainCalculate(ModelToText(m_document), result));
    Require(IsOperationStatus(result.status), "a search has a status of the table");
    CheckGains(document);
    Require(Without(document, "cmdIf", "response") == Without(m_document, "cmdIf", "response"),
            "a response is written to its section alone");
}

void CPageRun::ReadReports()
{
    constexpr int kFetches = 2;
    std::string text = ModelToText(m_document);
    for (int i = 1; i <= kFetches; ++i) {
        SEachItemOperationResult result;
        text = GetCore().FetchMixRxReport(m_name, text, result);
        Require(IsOperationStatus(result.status), "a fetch has a status of the table");
        const QJsonObject document = Answered(text);
        for (const char *group : {"group1", "group2"}) {
            const QJsonValue table = document["cmdIf"]["response"][group];
            Require(table["instanceList"].toArray().size() <= i * kMaxRows,
                    "a fetch adds at most 11 rows");
        }
    }
    const QJsonObject clean = Answered(GetCore().ClearMixRxReport(text));
    Require(!m_isGeneration1 ||
                clean["cmdIf"]["response"]["group1"]["instanceList"].toArray().isEmpty(),
            "a cleaned table has no rows");
    Require(Without(clean, "cmdIf", "response") == Without(m_document, "cmdIf", "response"),
            "a response is written to its section alone");
    GetCore().ResetMixRxCounter();
}

void CPageRun::ReadValue()
{
    const std::string text = ModelToText(m_document);
    const bool isTone = m_page == EPageId::SingleToneTx;
    const QJsonObject document =
        Answered(isTone ? GetCore().GetPdValue(text) : GetCore().GetDlFreqForPuschTx(m_name, text));
    Require(Without(document, "cmdIf", "response") == Without(m_document, "cmdIf", "response"),
            "a response is written to its section alone");
}

void CPageRun::Calibrate()
{
    const QStringList items{m_name};
    RunFlow(&CNrCore::Signal_UploadFromFlashDone, [&] { GetCore().UploadFromFlashStart(items); });
    ShowAndStore();
    SelectAnother();
    ShowAndStore();
    RunFlow(&CNrCore::Signal_DownloadToFlashDone, [&] { GetCore().DownloadToFlashStart(items); });
}

// The last route of its table, as it comes: a TX route's last region, and a type 2 route in the
// other power mode, the last subband, path and gain mode.
void CPageRun::SelectAnother()
{
    const SMMRfRouteTableV7 *table = CTargetCapability().GetRouteTableNr();
    const SMMRfRouteTableV7 none = {};
    if (!table)
        table = &none;
    const SMMRfTxRouteV7 &tx = table->txRoute[std::max<int>(table->txRouteCount, 1) - 1];
    const SMMRfRxType2RouteV7 &rx =
        table->rxType2Route[std::max<int>(table->rxType2RouteCount, 1) - 1];
    const QMap<QString, QString> apt = {
        {"txRoute", QString::number(tx.route)},
        {"aggBwRegion", QStringLiteral("BW%1").arg(tx.bwRegionCount - 1)},
    };
    const QMap<QString, QString> pathLoss = {
        {"routeType", "Type2"}, {"route", QString::number(rx.route)}, {"powerMode", "LPM"},
        {"path", "1"},          {"type2GainModeIdx", "G6"},           {"freqIdx", "63"},
    };
    const QMap<QString, QString> &selection = m_page == EPageId::AptProfile ? apt : pathLoss;
    for (auto text = selection.begin(); text != selection.end(); ++text)
        ModifyJsonValue(m_document, "calDataIf.config.group1.memberValue." + text.key(),
                        text.value(), 0);
}

void CPageRun::UseFile()
{
    if (!IsCalibration(m_page) || !IsFileSmall(m_page))
        return;
    const QTemporaryDir folder;
    const QStringList items{m_name};
    const auto fileOf = [&](const char *name) {
        return std::make_shared<CCalIniFile>(folder.filePath(name).toStdWString().c_str());
    };
    const auto save = [&](const char *name) {
        return RunFlow(&CNrCore::Signal_SaveToFileDone,
                       [&] { GetCore().SaveToFileStart(fileOf(name), items); });
    };
    const auto bytesOf = [&](const char *name) {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const int saved = save("first.ini");
    const QByteArray first = bytesOf("first.ini");
    Require(saved == eStatusSuccess || first.isEmpty(), "a save that fails leaves no file");
    if (first.isEmpty())
        return;  // no record is valid
    const int loaded = RunFlow(&CNrCore::Signal_LoadFromFileDone,
                               [&] { GetCore().LoadFromFileStart(fileOf("first.ini"), items); });
    Require(loaded == eStatusSuccess, "what was saved loads again");
    Require(save("second.ini") == eStatusSuccess && bytesOf("second.ini") == first,
            "what was loaded makes the same file");
}

// The record that the document selects is shown, given back and shown again: it stays.
void CPageRun::ShowAndStore()
{
    const bool isApt = m_page == EPageId::AptProfile;
    const auto get = isApt ? &CNrCore::GetAptCalibrationData : &CNrCore::GetPathLossCalibrationData;
    const auto set = isApt ? &CNrCore::SetAptCalibrationData : &CNrCore::SetPathLossCalibrationData;
    const std::string text = (GetCore().*get)(ModelToText(m_document));
    Require(text.empty() != m_isGeneration1, "generation 1 alone has calibration data");
    if (text.empty())
        return;
    const QJsonObject shown = Answered(text);
    Require(Without(shown, "calDataIf", "data") == Without(m_document, "calDataIf", "data"),
            "a record is shown in its section alone");
    const QJsonObject packaged = PackagedPage(m_page, shown);
    (GetCore().*set)(ModelToText(packaged));
    const QJsonObject again = Answered((GetCore().*get)(ModelToText(packaged)));
    if (Messages(shown).isEmpty())
        Require(PackagedPage(m_page, again) == packaged,
                "a record that was only shown stays as it was");
}
