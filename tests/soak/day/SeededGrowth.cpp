#include "tests/soak/day/SeededGrowth.h"

#include <cstring>
#include <memory>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

#include <QTimer>
#include <QWidget>

namespace {

constexpr std::size_t kBlock = 200000;

// Reachable to the end: it is no leak for a sanitizer.
template <typename Thing>
std::vector<Thing> &Kept()
{
    static auto *things = new std::vector<Thing>;
    return *things;
}

void GrowMemory()
{
    auto &blocks = Kept<std::unique_ptr<char[]>>();
    blocks.push_back(std::make_unique<char[]>(kBlock));
    std::memset(blocks.back().get(), 1, kBlock);
}

void GrowFiles()
{
    Kept<int>().push_back(open("/dev/null", O_RDONLY | O_CLOEXEC));
}

void GrowThreads()
{
    std::thread([] {
        for (;;)
            pause();
    }).detach();
}

void GrowWidgets()
{
    Kept<QWidget *>().push_back(new QWidget);
}

void GrowWindows()
{
    GrowWidgets();
    Kept<QWidget *>().back()->winId();
}

void GrowTimers()
{
    GrowWidgets();
    auto *timer = new QTimer(Kept<QWidget *>().back());
    timer->start(1000);
}

struct SGrowthKind
{
    const char *name;
    void (*grow)();
};

constexpr SGrowthKind kGrowthKinds[] = {
    {"memory", GrowMemory},   {"files", GrowFiles},     {"threads", GrowThreads},
    {"widgets", GrowWidgets}, {"windows", GrowWindows}, {"timers", GrowTimers},
};

}  // namespace

QStringList GrowthKinds()
{
    QStringList names;
    for (const SGrowthKind &kind : kGrowthKinds)
        names.append(kind.name);
    return names;
}

SeededGrowth FindGrowth(const QString &name)
{
    for (const SGrowthKind &kind : kGrowthKinds) {
        if (name == QLatin1String(kind.name))
            return kind.grow;
    }
    return {};
}
