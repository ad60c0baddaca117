// A document between two threads, with a race in it or without, as a test of the thread sanitizer's
// own settings: they must be quiet about what is right and must find what is wrong.
//
//   HandedRace right    the document is handed to the pool, its answer back: exit 0
//   HandedRace object   an object that shares its content is written by both ends: exit 0
//   HandedRace thread   two plain threads write one document
//   HandedRace pool     a pool's job and the GUI thread write one document
//   HandedRace qt       a document goes to the pool without any order but Qt's own, and is written
//                       by both ends
//   HandedRace copy     as "thread", but one side copies bytes
//
// A race ends the program with the sanitizer's exit code.
#include <atomic>
#include <cstring>
#include <map>
#include <string>
#include <thread>

#include <QCoreApplication>
#include <QJsonObject>
#include <QThreadPool>
#include <QtConcurrent>

#include "Support/Threads.h"

namespace {

std::string s_document = "document";
char s_bytes[4096];
std::atomic<bool> s_isWritten{false};  // relaxed: orders nothing

void WriteDocument()
{
    s_document += " of the other thread";
    s_isWritten.store(true, std::memory_order_relaxed);
}

void AwaitWrite()
{
    while (!s_isWritten.load(std::memory_order_relaxed))
        std::this_thread::yield();
}

int HandRight()
{
    std::string document = "document";
    StartOnPool([document = std::move(document)]() mutable {
        document += " done";
        PostToGui([answer = std::move(document)] {
            QCoreApplication::exit(answer == "document done" ? 0 : 1);
        });
    });
    return QCoreApplication::exec();
}

// What one end has after its writes.
QJsonObject Written(QJsonObject document, const QString &by, int members)
{
    for (int i = 0; i < 20000; ++i) {
        QJsonObject values = document.value("values").toObject();
        values.insert(QString::number(i % members), by + QString::number(i / members));
        document.insert("values", values);
    }
    return document;
}

int HandObject()
{
    constexpr int kMembers = 200;
    QJsonObject values;
    for (int i = 0; i < kMembers; ++i)
        values.insert(QString::number(i), "at first");
    const QJsonObject document{{"values", values}};
    StartOnPool([document] {
        const QJsonObject theirs = Written(document, "pool", kMembers);
        PostToGui([theirs] {
            const auto isTheirs = theirs.value("values").toObject().value("0") == "pool99";
            QCoreApplication::exit(isTheirs ? 0 : 1);
        });
    });
    const QJsonObject ours = Written(document, "page", kMembers);
    const int code = QCoreApplication::exec();
    const bool isOurs = ours.value("values").toObject().value("0") == "page99" &&
                        document.value("values").toObject().value("0") == "at first";
    return isOurs ? code : 1;
}

int RaceOfThreads()
{
    std::thread other(&WriteDocument);
    AwaitWrite();
    s_document += " of this one";
    other.join();
    return 0;
}

int RaceWithAPoolJob()
{
    StartOnPool(&WriteDocument);
    AwaitWrite();
    s_document += " of this one";
    return 0;
}

int RaceThroughQt()
{
    QtConcurrent::run(&WriteDocument);
    AwaitWrite();
    s_document += " of this one";
    return 0;
}

int RaceOfCopies()
{
    std::thread other([text = std::string(s_document.size(), 'o')] {
        std::memcpy(s_bytes, text.data(), text.size());
        s_isWritten.store(true, std::memory_order_relaxed);
    });
    AwaitWrite();
    const int code = s_bytes[1] == 'o' ? 0 : 1;
    other.join();
    return code;
}

}  // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const std::map<std::string, int (*)()> cases = {
        {"right", &HandRight},       {"object", &HandObject}, {"thread", &RaceOfThreads},
        {"pool", &RaceWithAPoolJob}, {"qt", &RaceThroughQt},  {"copy", &RaceOfCopies}};
    const auto found = cases.find(argc == 2 ? argv[1] : "");
    if (found == cases.end())
        return 2;
    const int code = found->second();
    QThreadPool::globalInstance()->waitForDone();
    return code;
}
