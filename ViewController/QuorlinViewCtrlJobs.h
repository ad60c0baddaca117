// Requests on the pool: their answer is what a job returns, or a signal of the core.
//
// For the sources of CQuorlinViewCtrl alone. GUI thread.
//
//   RunOnPool("RsrpResetCounterInternal", &CQuorlinViewCtrl::Signal_RsrpResetCounterDone,
//             [](CNrCore &core) { return std::make_tuple(core.ResetMixRxCounter()); });
#pragma once

#include <functional>
#include <memory>
#include <tuple>
#include <utility>

#include <QPointer>

#include "Controller/core/NrCore.h"
#include "Model/StatusTable.h"
#include "Support/Log.h"
#include "Support/Threads.h"
#include "ViewController/AnswerDocument.h"
#include "ViewController/CoreAnswers.h"
#include "ViewController/QuorlinViewCtrl.h"

// The answer of a job that threw: nothing ran.
template <typename Answer>
Answer AnswerOfNothing()
{
    return {};
}
template <>
inline SEachItemOperationResult AnswerOfNothing()
{
    return {QString(), eStatusNotExecuted, QString()};
}

// The answers of job go out through signal, on the GUI thread, if this object still lives then and
// no reset came between. The job is made once and never copied: it holds a document.
template <typename Job, typename... Answers>
CJobQueue::Job CQuorlinViewCtrl::PoolJob(const char *internalName,
                                         void (CQuorlinViewCtrl::*signal)(Answers...), Job job)
{
    return [internalName, signal, &core = GetCore(), job = std::make_shared<Job>(std::move(job)),
            epoch = m_epoch, self = QPointer<CQuorlinViewCtrl>(this)] {
        qCDebug(lcCore) << internalName;
        std::tuple<Answers...> answers{AnswerOfNothing<Answers>()...};
        try {
            answers = (*job)(core);
        } catch (...) {
            qCCritical(lcCore) << internalName << "ended by an exception";
        }
        QJsonObject document =
            std::apply([](const Answers &...each) { return ParseDocument(each...); }, answers);
        PostToGui([self, signal, epoch, document = std::move(document),
                   answers = std::move(answers)]() mutable {
            const auto emitAll = [&](const Answers &...each) {
                self->EmitAnswer(signal, std::move(document), each...);
            };
            if (self && self->m_epoch == epoch)
                std::apply(emitAll, answers);
        });
    };
}

// document: of the answers, for DocumentOf in a slot. This object may be gone behind the signal.
template <typename... Answers>
void CQuorlinViewCtrl::EmitAnswer(void (CQuorlinViewCtrl::*signal)(Answers...),
                                  QJsonObject document, const Answers &...answers)
{
    const QPointer<CQuorlinViewCtrl> self(this);
    // of an event loop around this one
    QJsonObject outer = std::exchange(m_answered, std::move(document));
    emit(this->*signal)(answers...);
    if (self)
        m_answered = std::move(outer);
}

template <typename Job, typename... Answers>
void CQuorlinViewCtrl::RunOnPool(const char *internalName,
                                 void (CQuorlinViewCtrl::*signal)(Answers...), Job job)
{
    m_future = StartOnPool(PoolJob(internalName, signal, std::move(job)));
}

// The connection lives for one request: made here, taken down when done has its answer. What was
// asked for before a reset is not answered after it. done: takes this object and the answers.
template <typename Done, typename... Answers>
void CQuorlinViewCtrl::AwaitAnswer(void (CCoreAnswers::*signal)(Answers...), Done done)
{
    CCoreAnswers &core = CCoreAnswers::Get();
    disconnect(&core, signal, this, nullptr);
    connect(&core, signal, this,
            [this, done, epoch = m_epoch, asked = core.Now()](const Answers &...answers) {
                if (m_epoch == epoch && CCoreAnswers::Get().Given() > asked)
                    std::invoke(done, this, answers...);
            });
}
