#include <algorithm>

#include <QSet>

#include "tools/modelcheck/Checks.h"

namespace {

// Relevance runs depth-first through the widgets' own signals and remembers no one it has visited,
// so a circle recurses until nothing changes any more, or without end.
//
// Values alone make a circle, whatever the members are. Enable status closes one only through
// members that publish again when they are enabled or disabled: lists, which always do, and
// booleans.
class CCycleSearch
{
public:
    CCycleSearch(const SPage &page, const SReport &report) : m_page(page), m_report(report) {}

    void Run(bool withStatus)
    {
        m_withStatus = withStatus;
        m_done.clear();
        for (const SPageMember &member : m_page.members)
            Visit(member);
    }

private:
    void Visit(const SPageMember &member)
    {
        const int first = m_road.indexOf(member.path);
        if (first >= 0)
            AddCycle(m_road.mid(first));
        if (first >= 0 || m_done.contains(member.path))
            return;
        m_road.append(member.path);
        for (const QString &named : Targets(member)) {
            const SPageMember *target = m_page.Target(member, named);
            if (target)
                Visit(*target);
        }
        m_road.removeLast();
        m_done.insert(member.path);
    }

    QStringList Targets(const SPageMember &member) const
    {
        QStringList targets = member.List("publishValueList");
        if (!m_withStatus)
            return targets;
        if (!Republishes(member))
            return {};
        for (const QString &named : member.List("publishEnableStatusList")) {
            const SPageMember *target = m_page.Target(member, named);
            if (target && Republishes(*target))
                targets.append(named);
        }
        return targets;
    }

    static bool Republishes(const SPageMember &member)
    {
        return member.groupType == 1 && member.type && member.type->publishesValue;
    }

    // A circle is one finding, wherever the search has entered it.
    void AddCycle(QStringList cycle)
    {
        std::rotate(cycle.begin(), std::min_element(cycle.begin(), cycle.end()), cycle.end());
        const QString key = cycle.join(QLatin1Char(' '));
        if (m_reported.contains(key))
            return;
        m_reported.insert(key);
        QStringList names;
        for (const QString &path : cycle)
            names.append(RelativePath(path));
        names.append(names.first());
        m_report.Add(
            EKind::Cycle, cycle.first(),
            QStringLiteral("publishes to itself: %1").arg(names.join(QLatin1String(" -> "))));
    }

    const SPage &m_page;
    const SReport &m_report;
    bool m_withStatus = false;
    QStringList m_road;
    QSet<QString> m_done;
    QSet<QString> m_reported;
};

}  // namespace

void CheckCycles(const SPage &page, const SReport &report)
{
    CCycleSearch search(page, report);
    search.Run(false);
    search.Run(true);
}
