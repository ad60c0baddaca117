// The tool behind JSON-RPC 2.0: a message a line in, a message a line out. docs/rpc.md is its manual.
//
// Requests are carried out one by one, in the order in which they came; rfOff and close do not wait for
// those in front: rfOff goes next on the link at once, within the wait of the one under way. close and
// the end of the input end that wait, answer what still waits with an error, and end the server.
//
// Status lines, busy and boxes are told as they come. GUI thread.
//
//   CRpcServer server(bench, limits, out);
//   connect(&reader, &CLineReader::Signal_Line, &server, &CRpcServer::TakeLine);
//   server.Run();      // until close, or the end of the input
#pragma once

#include <QJsonObject>
#include <QObject>
#include <QQueue>

#include "Runner/serve/RpcMethods.h"

class CCleanStdout;

class CRpcServer : public QObject
{
    Q_OBJECT

public:
    CRpcServer(CBench &bench, const SPressLimits &limits, CCleanStdout &out);

    void TakeLine(const QByteArray &line);
    void TakeTooLong();
    // Ends the server: what waits is answered with an error.
    void End();
    // Tells that the tool is there, and turns the event loop until the end.
    void Run();

private:
    struct SRequest
    {
        QJsonValue id;  // undefined: a notification, which gets no answer
        QString method;
        QJsonObject params;
    };

    void Take(const SRequest &request);
    void CarryOutAtOnce(const SRequest &request);
    void WorkOff();
    void Answer(const SRequest &request, const SRpcOutcome &outcome);
    void Write(const QByteArray &line);

    CBench &m_bench;
    CRpcMethods m_methods;
    CCleanStdout &m_out;
    QQueue<SRequest> m_requests;
    bool m_isWorking = false;
    int m_urgent = 0;  // under way, of those that do not wait their turn
    bool m_isEnded = false;
};
