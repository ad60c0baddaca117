#include "Runner/serve/RpcMethods.h"

#include <algorithm>
#include <iterator>

#include <QFileInfo>
#include <QJsonArray>

#include "Runner/bench/Bench.h"
#include "Runner/bench/BenchPage.h"
#include "Runner/describe/DescribeJson.h"

namespace {

constexpr double kLongestWait = 7 * 24 * 3600;  // seconds
const QLatin1String kTimeout("timeout");

SRpcOutcome BadParams(const QString &message)
{
    return RpcError(eRpcBadParams, message);
}

// A value as it would be typed.
QString TypedText(const QJsonValue &value)
{
    if (value.isBool())
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    if (value.isDouble())
        return QString::number(value.toDouble(), 'g', 15);
    return value.toString();
}

bool IsTypeable(const QJsonValue &value)
{
    return value.isBool() || value.isDouble() || value.isString();
}

// Seconds; nothing when it is given and is none.
std::optional<std::chrono::milliseconds> SecondsOf(const QJsonObject &params, QLatin1String key,
                                                   std::chrono::milliseconds otherwise)
{
    if (!params.contains(key))
        return otherwise;
    const double seconds = params.value(key).toDouble(-1);
    if (!(seconds >= 0 && seconds <= kLongestWait))
        return std::nullopt;
    return std::chrono::milliseconds(static_cast<qint64>(seconds * 1000));
}

SRpcOutcome BadTime(QLatin1String key)
{
    return BadParams(QStringLiteral("\"%1\" is a number of seconds, a week at most.").arg(key));
}

QJsonObject PressJson(const SPressEnd &end)
{
    QJsonArray boxes;
    for (const SBenchBox &box : end.boxes)
        boxes.append(BoxJson(box));
    return {{"status", end.status},
            {"busy", end.wasBusy},
            {"boxes", boxes},
            {"ms", static_cast<double>(end.duration.count()) / 1000}};
}

SRpcOutcome OutcomeOf(EBenchWait end)
{
    switch (end) {
    case EBenchWait::Done:
        return {};
    case EBenchWait::Late:
        return RpcError(eRpcLate, QStringLiteral("What was waited for has not come in time."));
    case EBenchWait::Interrupted:
        return RpcError(eRpcInterrupted, QStringLiteral("The wait was ended from outside."));
    case EBenchWait::Gone:
        break;
    }
    return RpcError(eRpcGone, QStringLiteral("The tool is gone."));
}

SRpcOutcome OutcomeOf(const SPressEnd &end)
{
    switch (end.how) {
    case EPressEnd::Idle:
        return RpcResult(PressJson(end));
    case EPressEnd::Refused:
        return RpcError(eRpcRefused, end.refusal);
    case EPressEnd::Late:
        return RpcError(eRpcLate, QStringLiteral("The tool is still busy."), PressJson(end));
    case EPressEnd::Interrupted:
        return RpcError(eRpcInterrupted, QStringLiteral("The press was ended from outside."),
                        PressJson(end));
    case EPressEnd::Gone:
        break;
    }
    return RpcError(eRpcGone, QStringLiteral("The tool is gone."));
}

QJsonValue ResultsOf(const CBenchPage &page)
{
    for (const SBenchTable &table : page.Tables()) {
        if (table.isResults && table.isShown)
            return TableJson(table);
    }
    return QJsonValue::Null;
}

}  // namespace

struct CRpcMethods::SMethod
{
    const char *name;
    bool needsPage;
    SRpcOutcome (CRpcMethods::*call)(const QJsonObject &params);
};

const CRpcMethods::SMethod CRpcMethods::kMethods[] = {
    {.name = "describe", .needsPage = false, .call = &CRpcMethods::Describe},
    {.name = "set", .needsPage = true, .call = &CRpcMethods::Set},
    {.name = "get", .needsPage = true, .call = &CRpcMethods::Get},
    {.name = "press", .needsPage = true, .call = &CRpcMethods::Press},
    {.name = "wait", .needsPage = false, .call = &CRpcMethods::Wait},
    {.name = "export", .needsPage = true, .call = &CRpcMethods::Export},
    {.name = "import", .needsPage = true, .call = &CRpcMethods::Import},
    {.name = "rfOff", .needsPage = false, .call = &CRpcMethods::RfOff},
    {.name = "close", .needsPage = false, .call = &CRpcMethods::Close},
};

CRpcMethods::CRpcMethods(CBench &bench, const SPressLimits &limits)
    : m_bench(bench), m_limits(limits)
{
}

bool CRpcMethods::Has(const QString &method) const
{
    return std::any_of(std::begin(kMethods), std::end(kMethods),
                       [&method](const SMethod &row) { return method == QLatin1String(row.name); });
}

SRpcOutcome CRpcMethods::Call(const QString &method, const QJsonObject &params)
{
    const SMethod *row =
        std::find_if(std::begin(kMethods), std::end(kMethods),
                     [&method](const SMethod &one) { return method == QLatin1String(one.name); });
    const bool hasPage = params.contains("page");
    if ((row->needsPage || hasPage) && !params.value("page").isString())
        return BadParams(QStringLiteral("\"page\" is the title or class name of a page."));
    SRefusal refusal;
    if (hasPage && !m_bench.FindPage(params.value("page").toString(), &refusal))
        return RpcError(eRpcRefused, refusal);
    return (this->*row->call)(params);
}

SRpcOutcome CRpcMethods::Describe(const QJsonObject &params)
{
    const CBenchPage *page = m_bench.FindPage(params.value("page").toString(), nullptr);
    return RpcResult(page ? DescribePage(m_bench, *page) : DescribeTool(m_bench));
}

SRpcOutcome CRpcMethods::SetOne(CBenchPage &page, const QJsonObject &entry)
{
    if (!entry.value("name").isString() || !IsTypeable(entry.value("value")))
        return BadParams(
            QStringLiteral("\"name\" is a text, \"value\" a text, a number or a truth value."));
    const auto refusal = page.Set(entry.value("name").toString(), TypedText(entry.value("value")));
    return refusal ? RpcError(eRpcRefused, *refusal) : SRpcOutcome();
}

// One, or several in order; those in front of a refused one stay set.
SRpcOutcome CRpcMethods::Set(const QJsonObject &params)
{
    CBenchPage *page = m_bench.FindPage(params.value("page").toString(), nullptr);
    if (!params.contains("values"))
        return SetOne(*page, params);
    if (!params.value("values").isArray())
        return BadParams(QStringLiteral("\"values\" is a list of objects with name and value."));
    for (const QJsonValue &entry : params.value("values").toArray()) {
        const SRpcOutcome outcome = SetOne(*page, entry.toObject());
        if (outcome.error != eRpcNoError)
            return outcome;
    }
    return {};
}

SRpcOutcome CRpcMethods::Get(const QJsonObject &params)
{
    const CBenchPage *page = m_bench.FindPage(params.value("page").toString(), nullptr);
    if (!params.contains("name")) {
        QJsonObject values;
        for (const SBenchMember &member : page->Members())
            values.insert(member.Name(), member.isCells
                                             ? QJsonValue(QJsonArray::fromStringList(member.values))
                                             : QJsonValue(member.values.value(0)));
        return RpcResult({{"values", values}, {"results", ResultsOf(*page)}});
    }
    const SBenchOutput output = page->FindOutput(params.value("name").toString());
    if (!output.isFound)
        return RpcError(eRpcRefused, output.refusal);
    return RpcResult({{"name", output.name},
                      {"caption", output.caption},
                      {"unit", output.unit},
                      {"column", output.isColumn},
                      {"values", QJsonArray::fromStringList(output.values)}});
}

SRpcOutcome CRpcMethods::PressButton(CBenchPage &page, const QString &button,
                                     const QJsonObject &params)
{
    const auto bound = SecondsOf(params, kTimeout, kBenchWait);
    if (!bound)
        return BadTime(kTimeout);
    SBenchButton found;
    if (const auto refusal = page.FindButton(button, found))
        return RpcError(eRpcRefused, *refusal);
    if (const auto refusal = GuardPress(m_limits, page, button))
        return RpcError(eRpcGuarded, *refusal);
    return OutcomeOf(page.Press(button, *bound));
}

SRpcOutcome CRpcMethods::Press(const QJsonObject &params)
{
    if (!params.value("button").isString())
        return BadParams(QStringLiteral("\"button\" is the text or object name of a button."));
    return PressButton(*m_bench.FindPage(params.value("page").toString(), nullptr),
                       params.value("button").toString(), params);
}

SRpcOutcome CRpcMethods::PressWithFile(const QString &button, const QJsonObject &params)
{
    const QString file = params.value("file").toString();
    if (file.isEmpty())
        return BadParams(QStringLiteral("\"file\" is the path of a file."));
    m_bench.AnswerFileDialog(QFileInfo(file).absoluteFilePath());
    const SRpcOutcome outcome =
        PressButton(*m_bench.FindPage(params.value("page").toString(), nullptr), button, params);
    m_bench.AnswerFileDialog({});
    return outcome;
}

SRpcOutcome CRpcMethods::Export(const QJsonObject &params)
{
    return PressWithFile(QStringLiteral("Export"), params);
}

SRpcOutcome CRpcMethods::Import(const QJsonObject &params)
{
    const QString file = params.value("file").toString();
    if (!file.isEmpty() && !QFileInfo(file).isFile())
        return RpcError(eRpcRefused, SRefusal{QStringLiteral("There is no file %1.").arg(file)});
    return PressWithFile(QStringLiteral("Import"), params);
}

// For rows of the page's results, for a time, or until the tool is idle.
SRpcOutcome CRpcMethods::Wait(const QJsonObject &params)
{
    const QLatin1String time("time");
    const auto bound = SecondsOf(params, kTimeout, kBenchWait);
    const auto span = SecondsOf(params, time, std::chrono::milliseconds(0));
    if (!bound || !span)
        return BadTime(bound ? time : kTimeout);
    const CBenchPage *page = m_bench.FindPage(params.value("page").toString(), nullptr);
    if (params.contains("rows")) {
        const int rows = params.value("rows").toInt(-1);
        if (!page || rows < 0)
            return BadParams(QStringLiteral("\"rows\" is a number, of a \"page\"."));
        const EBenchWait end =
            m_bench.WaitUntil([page, rows] { return page->Rows() >= rows; }, *bound);
        SRpcOutcome outcome = OutcomeOf(end);
        (end == EBenchWait::Done ? outcome.result : outcome.data)
            .insert("results", ResultsOf(*page));
        return outcome;
    }
    if (!params.contains(time))
        return OutcomeOf(m_bench.WaitIdle(*bound));
    const EBenchWait end = m_bench.WaitUntil([] { return false; }, *span);
    return end == EBenchWait::Late ? SRpcOutcome() : OutcomeOf(end);
}

SRpcOutcome CRpcMethods::RfOff(const QJsonObject &params)
{
    const auto bound = SecondsOf(params, kTimeout, kBenchWait);
    if (!bound)
        return BadTime(kTimeout);
    QString why;
    return m_bench.RfOff(*bound, &why) ? SRpcOutcome() : RpcError(eRpcFailed, why);
}

// RF Off here, so that its outcome can be told; the server ends behind it.
SRpcOutcome CRpcMethods::Close(const QJsonObject &params)
{
    return m_bench.HasPressed() ? RfOff(params) : SRpcOutcome();
}
