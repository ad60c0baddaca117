#include "ViewController/CoreAnswers.h"

#include <tuple>
#include <utility>

#include "Controller/core/NrCore.h"
#include "Support/Threads.h"
#include "ViewController/AnswerDocument.h"

CCoreAnswers &CCoreAnswers::Get()
{
    static auto *const answers = new CCoreAnswers;
    return *answers;
}

CCoreAnswers::CCoreAnswers()
{
    using Cal = IRfCoreCalDataOperation;
    PassOn(&CNrCore::Signal_TestDone, &CCoreAnswers::Signal_TestDone);
    PassOn(&CNrCore::Signal_TestsRun, &CCoreAnswers::Signal_TestsRun);
    PassOn(&CNrCore::Signal_NewestTest, &CCoreAnswers::Signal_NewestTest);
    PassOn(&Cal::Signal_UploadFromFlashDone, &CCoreAnswers::Signal_UploadFromFlashDone);
    PassOn(&Cal::Signal_DownloadToFlashDone, &CCoreAnswers::Signal_DownloadToFlashDone);
    PassOn(&Cal::Signal_SaveToFileDone, &CCoreAnswers::Signal_SaveToFileDone);
    PassOn(&Cal::Signal_LoadFromFileDone, &CCoreAnswers::Signal_LoadFromFileDone);
    PassOn(&CNrCore::Signal_CalDocument, &CCoreAnswers::Signal_CalDocument);
    PassOn(&Cal::Signal_CalProgress, &CCoreAnswers::Signal_CalProgress);
    PassOn(&Cal::Signal_CalRemarks, &CCoreAnswers::Signal_CalRemarks);
    PassOn(&CNrCore::Signal_CalWork, &CCoreAnswers::Signal_CalWork);
}

// The connection is never taken down, so no pool thread can meet it half gone.
template <typename Core, typename... Answers>
void CCoreAnswers::PassOn(void (Core::*signal)(Answers...), void (CCoreAnswers::*own)(Answers...))
{
    const auto post = [this, own](const Answers &...answers) {
        PostToGui([this, own, given = ++m_count, document = ParseDocument(answers...),
                   answers = std::make_tuple(answers...)]() mutable {
            // of an event loop around this one
            const quint64 outer = std::exchange(m_given, given);
            QJsonObject outerDocument = std::exchange(m_document, std::move(document));
            std::apply([&](const Answers &...each) { emit(this->*own)(each...); }, answers);
            m_given = outer;
            m_document = std::move(outerDocument);
        });
    };
    connect(static_cast<Core *>(&GetCore()), signal, this, post, Qt::DirectConnection);
}
