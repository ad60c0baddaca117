// The answers that the core signals on its pool threads, as signals of the same names on the GUI
// thread.
//
// For the sources of CQuorlinViewCtrl alone. One object for the process, made with the first
// request and never destroyed, like the core. GUI thread.
//
// The GUI thread may signal an answer late, when somebody has asked a newer question. Now() and
// Given() tell the two apart: an answer that was given before the moment of the question is not for
// the asker.
//
// A document in an answer is parsed on the pool thread that gives it.
//
//   connect(&answers, &CCoreAnswers::Signal_TestDone, this, [this, asked = answers.Now()] {
//       if (CCoreAnswers::Get().Given() > asked) ...
//   });
#pragma once

#include <atomic>
#include <string>

#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QVector>

#include "Model/CalRemarks.h"
#include "Model/OperationResult.h"
#include "Model/RunningTest.h"

class CNrCore;

class CCoreAnswers : public QObject
{
    Q_OBJECT

public:
    static CCoreAnswers &Get();

    quint64 Now() const { return m_count.load(); }
    // Of the answer that is being signalled.
    quint64 Given() const { return m_given; }
    // The document of the answer that is being signalled.
    QJsonObject Document() const { return m_document; }

signals:
    void Signal_TestDone(SEachItemOperationResult itemResult, std::string resultModel);
    void Signal_TestsRun(bool isAny);
    void Signal_NewestTest(SRunningTestInfo newest);
    void Signal_UploadFromFlashDone(bool isAllSuccess,
                                    QVector<SEachItemOperationResult> itemResult);
    void Signal_DownloadToFlashDone(bool isAllSuccess,
                                    QVector<SEachItemOperationResult> itemResult);
    void Signal_SaveToFileDone(bool isAllSuccess, QVector<SEachItemOperationResult> itemResult);
    void Signal_LoadFromFileDone(bool isAllSuccess, QVector<SEachItemOperationResult> itemResult);
    void Signal_CalDocument(QString item, std::string document);
    void Signal_CalProgress(QString item, int round, int routesDone, int routesInAll);
    void Signal_CalRemarks(QString item, SCalRemarks remarks);
    void Signal_CalWork(QString item, QString step, int routesDone, int routesInAll);

private:
    CCoreAnswers();
    template <typename Core, typename... Answers>
    void PassOn(void (Core::*signal)(Answers...), void (CCoreAnswers::*own)(Answers...));

    std::atomic<quint64> m_count{0};  // answers given so far
    quint64 m_given = 0;
    QJsonObject m_document;
};
