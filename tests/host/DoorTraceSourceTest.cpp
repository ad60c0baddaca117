// A trace as a source of calls, read while it grows.
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "Host/door/TraceSource.h"
#include "Trace/lines/TraceWriter.h"
#include "tests/common/TestClass.h"

class DoorTraceSourceTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void FileThatIsNotThereHasNoCallsYet();
    void CallComesWhenItBeginsAndWhenItEnds();
    void CallIsReadWithItsRecords();
    void LineWithoutItsEndWaits();
    void EmptiedFileIsBegunAnew();
    void BrokenLineEndsTheReading();
    void LongTraceIsReadInPieces();
    void WithoutAFileTheReasonIsTold();

private:
    SDoorNews Look(std::chrono::milliseconds longest = std::chrono::seconds(10));
    void Append(const QByteArray &text);

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    std::unique_ptr<CTraceSource> m_source;
};

namespace {

constexpr char kHeader[] =
    "{\"vondTrace\":1,\"tool\":\"0.1\",\"time\":\"2026-11-22T12:30:00.250Z\",\"core\":\"a\","
    "\"coreBuildId\":\"\",\"app\":\"b\",\"appBuildId\":\"\"}\n";
constexpr char kBegin[] = "{\"begin\":0,\"function\":\"VOND_NRf_TestStop_r\",\"thread\":4711,"
                          "\"pid\":4700,\"startNs\":2000000}\n";
constexpr char kEnd[] = "{\"index\":0,\"function\":\"VOND_NRf_TestStop_r\",\"handle\":1,"
                        "\"timeout\":500,\"request\":null,\"answer\":null,\"result\":7,"
                        "\"text\":\"Timeout\",\"status\":0,\"durationNs\":81000}\n";

}  // namespace

void DoorTraceSourceTest::init()
{
    m_source.reset();
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath("run.jsonl");
    m_source = std::make_unique<CTraceSource>(m_file);
}

SDoorNews DoorTraceSourceTest::Look(std::chrono::milliseconds longest)
{
    SDoorNews news;
    m_source->Poll(news, DoorClock::now() + longest);
    return news;
}

void DoorTraceSourceTest::Append(const QByteArray &text)
{
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::Append));
    QCOMPARE(file.write(text), text.size());
}

void DoorTraceSourceTest::FileThatIsNotThereHasNoCallsYet()
{
    QVERIFY(Look().calls.empty());
    QCOMPARE(m_source->About(), QString("Trace run.jsonl"));
    Append(kHeader);
    QVERIFY(Look().calls.empty());
    QCOMPARE(m_source->Header().tool, std::string("0.1"));
}

void DoorTraceSourceTest::CallComesWhenItBeginsAndWhenItEnds()
{
    Append(QByteArray(kHeader) + kBegin);
    const SDoorNews begun = Look();
    QCOMPARE(begun.calls.size(), std::size_t{1});
    QVERIFY(!begun.calls[0].isEnded);
    QCOMPARE(QDateTime::fromMSecsSinceEpoch(begun.calls[0].startUnixMs, Qt::UTC),
             QDateTime(QDate(2026, 11, 22), QTime(12, 30, 0, 252), Qt::UTC));
    Append(kEnd);
    const SDoorNews ended = Look();
    QCOMPARE(ended.calls.size(), std::size_t{1});
    QVERIFY(ended.calls[0].isEnded && ended.calls[0].HasFailed());
    QCOMPARE(ended.calls[0].text, QString("Timeout"));
    QCOMPARE(ended.calls[0].thread, uint64_t{4711});
    QVERIFY(Look().calls.empty());
}

void DoorTraceSourceTest::CallIsReadWithItsRecords()
{
    CTraceWriter writer({.path = m_file.toStdString(), .who = "test"}, {.tool = "0.1"});
    const std::vector<uint8_t> request(40, 7);
    CTraceWriter::Line line = writer.Begin({.function = &FunctionOf(EFunction::ContRx),
                                            .handle = 1,
                                            .timeoutMs = 500,
                                            .request = {request.data(), request.size()}});
    writer.Note("between");
    writer.End(std::move(line), {.result = 0, .text = "OK", .durationNs = 1});
    const SDoorNews news = Look();
    QCOMPARE(news.calls.size(), std::size_t{2});
    const std::optional<STraceCall> open = m_source->Read(news.calls[0]);
    QVERIFY(open && !open->isEnded);
    const std::optional<STraceCall> call = m_source->Read(news.calls[1]);
    QVERIFY(call && call->isEnded && call->request == request);
    QCOMPARE(call->timeoutMs, 500u);
    SDoorCall other = news.calls[1];
    other.place += 1;
    QVERIFY(!m_source->Read(other));
}

void DoorTraceSourceTest::LineWithoutItsEndWaits()
{
    Append(QByteArray(kHeader) + kBegin + QByteArray(kEnd).left(50));
    QCOMPARE(Look().calls.size(), std::size_t{1});
    QVERIFY(Look().calls.empty());
    Append(QByteArray(kEnd).mid(50));
    QCOMPARE(Look().calls.size(), std::size_t{1});
}

void DoorTraceSourceTest::EmptiedFileIsBegunAnew()
{
    Append(QByteArray(kHeader).replace(":00.250Z", ":59.250Z") + kBegin);
    QCOMPARE(Look().calls.size(), std::size_t{1});
    QVERIFY(QFile(m_file).resize(0));
    const SDoorNews emptied = Look();
    QVERIFY(emptied.isReset && emptied.calls.empty());
    Append(QByteArray(kHeader) + kBegin + kEnd);
    QCOMPARE(Look().calls.size(), std::size_t{2});
    // Also when it has grown as long again since.
    QVERIFY(QFile(m_file).resize(0));
    Append(QByteArray(kHeader).replace(":00.250Z", ":01.250Z") + kBegin + kEnd);
    const SDoorNews replaced = Look();
    QVERIFY(replaced.isReset);
    QCOMPARE(replaced.calls.size(), std::size_t{2});
}

void DoorTraceSourceTest::BrokenLineEndsTheReading()
{
    Append(QByteArray(kHeader) + kBegin + "{\"index\":5}\n" + kEnd);
    QCOMPARE(Look().calls.size(), std::size_t{1});
    QVERIFY2(m_source->About().startsWith("Trace run.jsonl. Line 3 "),
             qPrintable(m_source->About()));
    QVERIFY(Look().calls.empty());
}

void DoorTraceSourceTest::LongTraceIsReadInPieces()
{
    constexpr std::size_t kCalls = 5000;
    CTraceWriter writer({.path = m_file.toStdString(), .who = "test"}, {.tool = "0.1"});
    for (std::size_t i = 0; i < kCalls; ++i)
        writer.End(writer.Begin({.function = &FunctionOf(EFunction::NrTestStop)}), {});
    std::size_t ended = 0;
    int looks = 0;
    SDoorNews news;
    do {
        news = Look(std::chrono::milliseconds(0));
        for (const SDoorCall &call : news.calls)
            ended += call.isEnded ? 1 : 0;
        ++looks;
    } while (news.hasMore);
    QCOMPARE(ended, kCalls);
    QVERIFY(looks > 10);
}

void DoorTraceSourceTest::WithoutAFileTheReasonIsTold()
{
    m_source = std::make_unique<CTraceSource>(QString());
    QVERIFY(Look().calls.empty());
    QVERIFY2(m_source->About().contains("VOND_TAP_OUT"), qPrintable(m_source->About()));
}

QUORLIN_TEST_CLASS(DoorTraceSourceTest)
#include "DoorTraceSourceTest.moc"
