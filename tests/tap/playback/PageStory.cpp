#include "tests/tap/playback/PageStory.h"

#include <QApplication>
#include <QMainWindow>
#include <QPixmap>
#include <QThreadPool>
#include <QVector>

#include "Simulator/VondSim.h"
#include "Trace/dictionary/Functions.h"
#include "tests/campaign/PageDriver.h"
#include "tests/common/BoxWatcher.h"
#include "tests/common/WaitUntil.h"

namespace {

// In an order that each request finds the state that it needs: what the idle page can do, Start, what a
// running one can do, Stop.
QVector<const SRequest *> InOrder(const SPage &page)
{
    QVector<const SRequest *> requests;
    const auto add = [&](EState needs, EState leads) {
        for (int i = 0; i < page.requestCount; ++i) {
            if (page.requests[i].needs == needs && page.requests[i].leads == leads)
                requests.append(&page.requests[i]);
        }
    };
    add(EState::Idle, EState::Idle);
    add(EState::Idle, EState::Running);
    add(EState::Running, EState::Running);
    add(EState::Running, EState::Idle);
    return requests;
}

void FailEveryCall()
{
    for (int id = 0; id < static_cast<int>(EFunction::Count); ++id) {
        const SFunction &function = FunctionOf(static_cast<EFunction>(id));
        if (function.kind == EFunctionKind::Target)
            VondSim_AddFault((R"({"function": ")" + std::string(function.name) +
                              R"(", "kind": "fail", "result": 7})")
                                 .c_str());
    }
}

class CPictures
{
public:
    explicit CPictures(const QString &folder) : m_folder(folder) {}

    bool Take(QMainWindow *window, const QString &name)
    {
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
        // A list box is as small as its items for a moment, by a timer of its own, before it is laid out.
        QCoreApplication::sendPostedEvents();
        const QString file =
            QString("%1/%2 %3.png").arg(m_folder).arg(m_count++, 2, 10, QChar('0'));
        return window->grab().save(file.arg(name));
    }

private:
    const QString m_folder;
    int m_count = 0;
};

QString Tell(CPageDriver &driver, const SPage &page, const QString &folder)
{
    if (!driver.Ready())
        return "the page does not come up";
    CPictures pictures(folder);
    QMainWindow *const window = driver.Session().Window();
    if (!pictures.Take(window, "ready"))
        return "no picture in " + folder;
    const QVector<const SRequest *> requests = InOrder(page);
    for (const SRequest *request : requests) {
        driver.Act(*request);
        const QString wrong = driver.Await(*request, GoodWords(*request));
        if (!wrong.isEmpty())
            return QString(request->name) + ": " + wrong;
        pictures.Take(window, request->name);
    }
    FailEveryCall();
    driver.Act(*requests.first());
    if (!WaitUntil([&] { return driver.IsAnswered(); }))
        return QString(requests.first()->name) + ", refused: not answered";
    pictures.Take(window, "refused");
    return {};
}

}  // namespace

SStoryEnd TellStory(const SPage &page, const QString &folder)
{
    QApplication::setCursorFlashTime(0);  // a cursor that is there now and then is no picture
    CPageDriver driver(page);
    SStoryEnd end;
    end.wrong = Tell(driver, page, folder);
    end.callsOfTheDut = VondSim_CallCount();  // the session's end clears the journal
    return end;
}

QString StartInWords(const SPage &page)
{
    CPluginSession session(page.profile, 1, page.className);
    if (!session.ShowAndWait())
        return "the page does not come up";
    CBoxWatcher boxes;
    session.Press("m_start");
    WaitUntil([&] { return !boxes.Seen().isEmpty(); });
    QString words;
    for (const SSeenBox &box : boxes.Seen())
        words += box.title + ": " + box.plain + box.informative;
    return words.simplified();
}
