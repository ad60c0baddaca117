#include "tests/fuzz/rpc/RpcRules.h"

#include <algorithm>
#include <iterator>

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

#include "Runner/serve/RpcReply.h"
#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/common/JsonMutator.h"

namespace {

constexpr int kCodes[] = {eRpcBadJson, eRpcNoRequest, eRpcNoMethod,    eRpcBadParams, eRpcRefused,
                          eRpcGuarded, eRpcLate,      eRpcInterrupted, eRpcGone,      eRpcFailed};

QString TextOf(const QJsonValue &id)
{
    return QString::fromUtf8(QJsonDocument(QJsonArray{id}).toJson(QJsonDocument::Compact));
}

bool IsRequest(const QJsonObject &message)
{
    const QJsonValue id = message["id"];
    const QJsonValue params = message["params"];
    return message["jsonrpc"] == QLatin1String("2.0") && message["method"].isString() &&
           (id.isUndefined() || id.isString() || id.isDouble() || id.isNull()) &&
           (params.isUndefined() || params.isObject());
}

// The ids that have to be answered, as the manual of the server has them.
QStringList Expected(const QByteArrayList &lines)
{
    QStringList ids;
    for (const QByteArray &line : lines) {
        if (line.trimmed().isEmpty())
            continue;
        const QJsonObject message = ReadJson(line).object();
        const QJsonValue id = message.value("id");
        if (!IsRequest(message)) {
            const bool hasId = id.isString() || id.isDouble();
            ids.append(TextOf(hasId ? id : QJsonValue(QJsonValue::Null)));
            continue;
        }
        if (!id.isUndefined())
            ids.append(TextOf(id));
        if (message["method"] == QLatin1String("close"))
            break;
    }
    ids.sort();
    return ids;
}

void CheckError(const QJsonObject &error)
{
    const int code = error["code"].toInt();
    Require(std::find(std::begin(kCodes), std::end(kCodes), code) != std::end(kCodes),
            "an error has a code of the manual");
    Require(!error["message"].toString().isEmpty(), "an error has words");
}

}  // namespace

bool MaySend(const QByteArray &line)
{
    const QJsonObject message = ReadJson(line).object();
    const QString method = message["method"].toString();
    return method != QLatin1String("export") && method != QLatin1String("import");
}

void CheckReplies(const QByteArrayList &lines, const QByteArray &output)
{
    Require(output.isEmpty() || output.endsWith('\n'), "what is written are lines");
    QStringList ids;
    for (const QByteArray &line : output.split('\n')) {
        if (line.isEmpty())
            continue;
        const QJsonObject message = ReadJson(line).object();
        Require(message["jsonrpc"] == QLatin1String("2.0"), "a line is a message");
        if (message.contains("method")) {
            Require(!message.contains("id"), "what is told asks for no answer");
            continue;
        }
        Require(message.contains("id"), "an answer has an id");
        Require(message.contains("result") != message.contains("error"),
                "an answer is a result or an error");
        if (message.contains("error"))
            CheckError(message["error"].toObject());
        ids.append(TextOf(message["id"]));
    }
    ids.sort();
    Require(ids == Expected(lines), "each request with an id is answered once");
}
