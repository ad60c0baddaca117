#include "Runner/serve/RpcServer.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QJsonDocument>

#include "Runner/bench/Bench.h"
#include "Runner/bench/CleanStdout.h"
#include "Runner/describe/DescribeJson.h"

namespace {

const QLatin1String kRfOff("rfOff");
const QLatin1String kClose("close");

bool IsId(const QJsonValue &id)
{
    return id.isUndefined() || id.isString() || id.isDouble() || id.isNull();
}

}  // namespace

CRpcServer::CRpcServer(CBench &bench, const SPressLimits &limits, CCleanStdout &out)
    : m_bench(bench), m_methods(bench, limits), m_out(out)
{
    connect(&bench, &CBench::Signal_Status, this, [this](const QString &line) {
        Write(NotificationText("status", {{"line", line}}));
    });
    connect(&bench, &CBench::Signal_Busy, this, [this](bool isBusy) {
        Write(NotificationText("busy", {{"busy", isBusy}}));
    });
    connect(&bench, &CBench::Signal_Box, this,
            [this](const SBenchBox &box) { Write(NotificationText("box", BoxJson(box))); });
}

void CRpcServer::TakeLine(const QByteArray &line)
{
    if (m_isEnded || line.trimmed().isEmpty())
        return;
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(line, &error);
    if (document.isNull()) {
        Write(ReplyText(
            QJsonValue::Null,
            RpcError(eRpcBadJson,
                     QStringLiteral("This line is no JSON: %1.").arg(error.errorString()))));
        return;
    }
    const QJsonObject message = document.object();
    const QJsonValue id = message.value("id");
    const QJsonValue params = message.value("params");
    const bool isRequest = document.isObject() && message.value("jsonrpc") == "2.0" &&
                           message.value("method").isString() && IsId(id) &&
                           (params.isUndefined() || params.isObject());
    if (!isRequest) {
        const QString text =
            QStringLiteral("A request is one object with jsonrpc \"2.0\", a method, "
                           "parameters by name, and an id.");
        const bool hasId = id.isString() || id.isDouble();
        Write(ReplyText(hasId ? id : QJsonValue::Null, RpcError(eRpcNoRequest, text)));
        return;
    }
    Take({id, message.value("method").toString(), params.toObject()});
}

void CRpcServer::TakeTooLong()
{
    Write(ReplyText(QJsonValue::Null,
                    RpcError(eRpcNoRequest, QStringLiteral("A line has at most 1 MiB."))));
}

void CRpcServer::Take(const SRequest &request)
{
    if (!m_methods.Has(request.method)) {
        Answer(request, RpcError(eRpcNoMethod,
                                 QStringLiteral("There is no method \"%1\".").arg(request.method)));
    } else if (request.method == kRfOff) {
        CarryOutAtOnce(request);
    } else if (request.method == kClose) {
        m_bench.Interrupt();
        CarryOutAtOnce(request);
        End();
    } else {
        m_requests.enqueue(request);
        QMetaObject::invokeMethod(this, &CRpcServer::WorkOff, Qt::QueuedConnection);
    }
}

// Its wait turns the event loop, in which no other request may begin: this one could not end before that.
void CRpcServer::CarryOutAtOnce(const SRequest &request)
{
    ++m_urgent;
    Answer(request, m_methods.Call(request.method, request.params));
    --m_urgent;
    QMetaObject::invokeMethod(this, &CRpcServer::WorkOff, Qt::QueuedConnection);
}

// A request that waits turns the event loop: those that come meanwhile stay in the queue.
void CRpcServer::WorkOff()
{
    if (m_isWorking || m_urgent > 0)
        return;
    m_isWorking = true;
    while (!m_requests.isEmpty() && !m_isEnded) {
        const SRequest request = m_requests.dequeue();
        Answer(request, m_methods.Call(request.method, request.params));
    }
    m_isWorking = false;
}

void CRpcServer::Answer(const SRequest &request, const SRpcOutcome &outcome)
{
    if (!request.id.isUndefined())
        Write(ReplyText(request.id, outcome));
}

// Who cannot be written to is gone.
void CRpcServer::Write(const QByteArray &line)
{
    if (!m_out.WriteLine(line))
        End();
}

void CRpcServer::End()
{
    if (m_isEnded)
        return;
    m_isEnded = true;
    m_bench.Interrupt();
    while (!m_requests.isEmpty())
        Answer(m_requests.dequeue(),
               RpcError(eRpcInterrupted, QStringLiteral("The server has ended.")));
}

void CRpcServer::Run()
{
    QJsonObject ready = DescribeTool(m_bench);
    Write(NotificationText("ready", ready));
    while (!m_isEnded)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}
