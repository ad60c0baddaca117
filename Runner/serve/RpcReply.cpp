#include "Runner/serve/RpcReply.h"

#include <QJsonDocument>

namespace {

QByteArray LineOf(QJsonObject message)
{
    message.insert("jsonrpc", "2.0");
    return QJsonDocument(message).toJson(QJsonDocument::Compact);
}

}  // namespace

SRpcOutcome RpcResult(const QJsonObject &result)
{
    SRpcOutcome outcome;
    outcome.result = result;
    return outcome;
}

SRpcOutcome RpcError(ERpcError error, const QString &message, const QJsonObject &data)
{
    SRpcOutcome outcome;
    outcome.error = error;
    outcome.message = message;
    outcome.data = data;
    return outcome;
}

SRpcOutcome RpcError(ERpcError error, const SRefusal &refusal)
{
    return RpcError(error, refusal.Text(),
                    {{"reason", refusal.reason}, {"allowed", refusal.allowed}});
}

QByteArray ReplyText(const QJsonValue &id, const SRpcOutcome &outcome)
{
    QJsonObject message{{"id", id}};
    if (outcome.error == eRpcNoError) {
        message.insert("result", outcome.result);
    } else {
        QJsonObject error{{"code", outcome.error}, {"message", outcome.message}};
        if (!outcome.data.isEmpty())
            error.insert("data", outcome.data);
        message.insert("error", error);
    }
    return LineOf(message);
}

QByteArray NotificationText(const char *method, const QJsonObject &params)
{
    return LineOf({{"method", QLatin1String(method)}, {"params", params}});
}
