// The methods of the server, one function each: parameters by name, an outcome.
//
// A method that waits runs the event loop. GUI thread.
//
//   CRpcMethods methods(bench, limits);
//   const SRpcOutcome outcome = methods.Call("set", {{"page", "RSSI"}, {"name", "band"}, {"value", "n77"}});
#pragma once

#include <chrono>

#include "Runner/bench/PressGuard.h"
#include "Runner/serve/RpcReply.h"

class CBench;
class CBenchPage;

class CRpcMethods
{
public:
    CRpcMethods(CBench &bench, const SPressLimits &limits);

    bool Has(const QString &method) const;
    // Of one that Has knows.
    SRpcOutcome Call(const QString &method, const QJsonObject &params);

private:
    struct SMethod;
    static const SMethod kMethods[];

    SRpcOutcome Describe(const QJsonObject &params);
    SRpcOutcome Set(const QJsonObject &params);
    SRpcOutcome Get(const QJsonObject &params);
    SRpcOutcome Press(const QJsonObject &params);
    SRpcOutcome Wait(const QJsonObject &params);
    SRpcOutcome Export(const QJsonObject &params);
    SRpcOutcome Import(const QJsonObject &params);
    SRpcOutcome RfOff(const QJsonObject &params);
    SRpcOutcome Close(const QJsonObject &params);

    SRpcOutcome SetOne(CBenchPage &page, const QJsonObject &entry);
    SRpcOutcome PressButton(CBenchPage &page, const QString &button, const QJsonObject &params);
    SRpcOutcome PressWithFile(const QString &button, const QJsonObject &params);

    CBench &m_bench;
    const SPressLimits m_limits;
};
