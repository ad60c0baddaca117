// One leaf rewritten among many siblings, beside the same in nested std::maps.
#include <map>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include <QJsonObject>

#include "Model/JsonPath.h"

namespace {

QString Key(int i)
{
    return QString("member%1").arg(i, 6, 10, QLatin1Char('0'));
}

// {"data": {"group1": {"member000000": {"defaultValue": "1"}, ...}}}
QJsonObject Document(int siblings)
{
    QJsonObject group;
    for (int i = 0; i < siblings; ++i)
        group.insert(Key(i), QJsonObject{{"defaultValue", QString::number(i)}});
    return {{"data", QJsonObject{{"group1", group}}}};
}

// Paths all over the document, in an order that no cache can guess.
std::vector<QString> Paths(int siblings)
{
    std::vector<QString> paths;
    for (int i = 0; i < 64; ++i)
        paths.push_back("data.group1." + Key(int(i * 7919ll % siblings)) + ".defaultValue");
    return paths;
}

void WriteLeaves(benchmark::State &state, QJsonObject &document, int siblings)
{
    const std::vector<QString> paths = Paths(siblings);
    size_t i = 0;
    for (auto _ : state) {
        if (!ModifyJsonValue(document, paths[i % paths.size()], QString::number(i % 1000), 0))
            state.SkipWithError("the leaf is missing");
        ++i;
    }
}

void LeafWrite(benchmark::State &state)
{
    const int siblings = static_cast<int>(state.range(0));
    QJsonObject document = Document(siblings);
    WriteLeaves(state, document, siblings);
}
BENCHMARK(LeafWrite)->Arg(50)->Arg(5000)->Arg(25000);

// A document that has lived for days.
void LeafWriteAfter100000(benchmark::State &state)
{
    constexpr int kSiblings = 5000;
    QJsonObject document = Document(kSiblings);
    const std::vector<QString> paths = Paths(kSiblings);
    for (int i = 0; i < 100000; ++i)
        ModifyJsonValue(document, paths[i % paths.size()], QString::number(i % 1000), 0);
    WriteLeaves(state, document, kSiblings);
}
BENCHMARK(LeafWriteAfter100000);

// The floor: a map of maps by the same keys, walked from a dotted path.
struct SNode
{
    std::map<QString, SNode> children;
    QString value;
};

void LeafWriteMap(benchmark::State &state)
{
    const int siblings = static_cast<int>(state.range(0));
    SNode root;
    SNode &group = root.children["data"].children["group1"];
    for (int i = 0; i < siblings; ++i)
        group.children[Key(i)].children["defaultValue"].value = QString::number(i);
    const std::vector<QString> paths = Paths(siblings);
    size_t i = 0;
    for (auto _ : state) {
        SNode *node = &root;
        for (const QString &segment : paths[i % paths.size()].split('.'))
            node = &node->children.find(segment)->second;
        node->value = QString::number(i % 1000);
        ++i;
    }
}
BENCHMARK(LeafWriteMap)->Arg(50)->Arg(5000)->Arg(25000);

}  // namespace
