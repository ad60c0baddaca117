// Requests on the pool whose answer is a signal of the view controller.
//
// For the sources of CQuorlinViewCtrl alone. GUI thread.
//
//   RunOnPool("RsrpResetCounterInternal", &CQuorlinViewCtrl::Signal_RsrpResetCounterDone,
//             [](CNrCore &core) { return std::make_tuple(core.ResetMixRxCounter()); });
#pragma once

#include <memory>
#include <tuple>

#include <QCoreApplication>
#include <QPointer>
#include <QtConcurrent>

#include "Controller/NrCore.h"
#include "Model/StatusTable.h"
#include "Support/Log.h"
#include "ViewController/QuorlinViewCtrl.h"

// Runs a call on the GUI thread, some time later; not at all once the application is going down.
template <typename Call>
void PostToGui(Call call)
{
    if (QCoreApplication *application = QCoreApplication::instance())
        QMetaObject::invokeMethod(application, std::move(call), Qt::QueuedConnection);
}

// What a job that threw answers: that nothing ran, and nothing else.
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
void CQuorlinViewCtrl::RunOnPool(const char *internalName,
                                 void (CQuorlinViewCtrl::*signal)(Answers...), Job job)
{
    CNrCore &core = GetCore();
    m_future =
        QtConcurrent::run([internalName, signal, &core, job = std::make_shared<Job>(std::move(job)),
                           epoch = m_epoch, self = QPointer<CQuorlinViewCtrl>(this)] {
            qCDebug(lcCore) << internalName;
            std::tuple<Answers...> answers{AnswerOfNothing<Answers>()...};
            try {
                answers = (*job)(core);
            } catch (...) {
                qCCritical(lcCore) << internalName << "ended by an exception";
            }
            PostToGui([self, signal, epoch, answers = std::move(answers)] {
                const auto emitAll = [&](const Answers &...each) { emit(self->*signal)(each...); };
                if (self && self->m_epoch == epoch)
                    std::apply(emitAll, answers);
            });
        });
}
