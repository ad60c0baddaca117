// A band change through a chain of a dozen targets: on a document of 1 MB, and on a small one.
#include <benchmark/benchmark.h>

#include <QComboBox>
#include <QLoggingCategory>
#include <QSpinBox>

#include "Model/ModelText.h"
#include "bench/BenchPage.h"

namespace {

constexpr int kMegabyte = 2900;  // ballast entries that make a document of 1 MB
constexpr int kTargets = 12;     // half lists, which publish on, half ranges that follow them
const char kPrefix[] = "request.group1.memberProperty.";

QString Name(const QString &member)
{
    return "cmdIf_request_group1_memberProperty_" + member;
}

QJsonObject Member(const QJsonObject &trait, const QJsonObject &relations)
{
    QJsonObject member{{"caption", ""}, {"defaultSupport", 1}, {"defaultEnableStatus", 1}};
    for (auto it = relations.begin(); it != relations.end(); ++it)
        member[it.key()] = it.value();
    member["trait"] = trait;
    return member;
}

// band -> list0 -> range0, list1 -> range1, ...: each list has its own entry a band, each range one
// a list text. ballast entries pad the tables.
QJsonObject Document(int ballast)
{
    QJsonArray bands{"n1", "n3"};
    QJsonArray members{"band"};
    QJsonArray lists;
    QJsonObject properties;
    for (int t = 0; t < kTargets / 2; ++t) {
        const QString list = QString("list%1").arg(t), range = QString("range%1").arg(t);
        members.append(list);
        members.append(range);
        lists.append(kPrefix + list);
        QJsonObject listPairs{{"n1", QJsonArray{"a", "b"}}, {"n3", QJsonArray{"c", "d"}}};
        QJsonObject rangePairs;
        for (const char *key : {"a", "b", "c", "d"})
            rangePairs[key] = QJsonObject{{"min", key[0] * 1000}, {"max", key[0] * 2000}};
        for (int i = 0; i < ballast; ++i) {
            const QString key = QString("x%1").arg(i, 5, 10, QLatin1Char('0'));
            listPairs[key] = QJsonArray{key, key};
            rangePairs[key] = QJsonObject{{"min", i}, {"max", i + 1}};
        }
        properties[list] =
            Member({{"dataType", "list"}, {"defaultValue", "a"}, {"valuePair", listPairs}},
                   {{"subscribeValue", kPrefix + QString("band")},
                    {"publishValueList", QJsonArray{kPrefix + range}}});
        properties[range] =
            Member({{"dataType", "range"}, {"defaultValue", "1"}, {"valuePair", rangePairs}},
                   {{"subscribeValue", kPrefix + list}});
    }
    properties["band"] = Member({{"dataType", "list"}, {"defaultValue", "n1"}, {"value", bands}},
                                {{"publishValueList", lists}});
    const QJsonObject group{
        {"groupType", 1}, {"memberList", members}, {"memberProperty", properties}};
    return {{"cmdIf", QJsonObject{{"request", QJsonObject{{"group1", group}}}}}};
}

void ChangeBand(benchmark::State &state, int ballast, bool isRecorded = true)
{
    CBenchPage page;
    page.Changes().SetOn(isRecorded);
    auto *band = page.Add<QComboBox>(Name("band"));
    QVector<QSpinBox *> ranges;
    for (int t = 0; t < kTargets / 2; ++t) {
        page.Add<QComboBox>(Name(QString("list%1").arg(t)));
        ranges.append(page.Add<QSpinBox>(Name(QString("range%1").arg(t))));
    }
    const QJsonObject document = Document(ballast);
    state.counters["documentBytes"] = static_cast<double>(ModelToText(document).size());
    page.Open(document);
    bool flip = false;
    for (auto _ : state) {
        flip = !flip;
        band->setCurrentText(flip ? "n3" : "n1");
    }
    if (ranges.last()->minimum() != (flip ? 'c' : 'a') * 1000)
        state.SkipWithError("the chain did not reach its end");
}

void BandChangeSmallDocument(benchmark::State &state)
{
    ChangeBand(state, 0);
}
BENCHMARK(BandChangeSmallDocument)->Unit(benchmark::kMicrosecond);

void BandChangeUnrecorded(benchmark::State &state)
{
    ChangeBand(state, 0, false);
}
BENCHMARK(BandChangeUnrecorded)->Unit(benchmark::kMicrosecond);

void BandChangeLargeDocument(benchmark::State &state)
{
    ChangeBand(state, kMegabyte);
}
BENCHMARK(BandChangeLargeDocument)->Unit(benchmark::kMicrosecond);

// The same with the debug log on, as a host that was asked for it runs the tool; nothing is
// printed.
void BandChangeLogged(benchmark::State &state)
{
    const auto previous =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    QLoggingCategory::setFilterRules("quorlin.*=true");
    ChangeBand(state, kMegabyte);
    QLoggingCategory::setFilterRules("quorlin.*=false");
    qInstallMessageHandler(previous);
}
BENCHMARK(BandChangeLogged)->Unit(benchmark::kMicrosecond);

}  // namespace
