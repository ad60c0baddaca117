// Messages of JSON-RPC 2.0, as docs/rpc.md has them.
//
// A method gives an outcome: a result or an error.
//
//   SRpcOutcome outcome = RpcError(eRpcRefused, refusal);
//   out.WriteLine(ReplyText(id, outcome));
#pragma once

#include <QJsonObject>
#include <QJsonValue>

#include "Runner/bench/BenchTypes.h"

enum ERpcError : int
{
    eRpcNoError = 0,
    eRpcBadJson = -32700,
    eRpcNoRequest = -32600,
    eRpcNoMethod = -32601,
    eRpcBadParams = -32602,
    eRpcRefused = 1,      // a name or a value was not taken
    eRpcGuarded = 2,      // a press that nobody has allowed
    eRpcLate = 3,         // a wait has passed its bound
    eRpcInterrupted = 4,  // RF Off or the end came in between
    eRpcGone = 5,         // the tool is gone
    eRpcFailed = 6,       // the tool says that it failed
};

struct SRpcOutcome
{
    ERpcError error = eRpcNoError;
    QString message = {};
    QJsonObject data = {};    // of an error
    QJsonObject result = {};  // otherwise
};

SRpcOutcome RpcResult(const QJsonObject &result);
SRpcOutcome RpcError(ERpcError error, const QString &message, const QJsonObject &data = {});
// data: reason and allowed.
SRpcOutcome RpcError(ERpcError error, const SRefusal &refusal);

QByteArray ReplyText(const QJsonValue &id, const SRpcOutcome &outcome);
QByteArray NotificationText(const char *method, const QJsonObject &params);
