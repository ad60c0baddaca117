#include <QHash>
#include <QSet>

#include "Model/MemberPath.h"
#include "tools/modelcheck/Checks.h"
#include "tools/modelcheck/FormatKeys.h"

namespace {

const QLatin1String kTableClass("QTableWidget");
constexpr const char *kCaptionClasses[] = {"QLabel", "QGroupBox"};

bool IsCaptionClass(const QString &className)
{
    for (const char *name : kCaptionClasses) {
        if (className == QLatin1String(name))
            return true;
    }
    return false;
}

class CWidgetCheck
{
public:
    CWidgetCheck(const SPage &page, const SReport &pageReport, const SReport &formReport)
        : m_page(page), m_pageReport(pageReport), m_formReport(formReport)
    {
    }

    void CheckForm(const SForm &form)
    {
        for (const SFormWidget &widget : form.widgets) {
            if (!IsBoundName(widget.name))
                continue;
            const int count = ++m_names[widget.name];
            if (count == 2)
                m_formReport.Add(EKind::WidgetDuplicate, widget.name,
                                 "another widget has the same name");
            if (count > 1)
                continue;
            if (IsCaptionName(widget.name))
                CheckCaption(widget);
            else
                CheckEditor(widget);
        }
    }

    void CheckMissing() const
    {
        for (const SPageMember &member : m_page.members) {
            if (member.groupType == 1 && !m_bound.contains(member.path))
                m_pageReport.Add(EKind::MemberWithoutWidget, member.path,
                                 "no widget is named after this member");
        }
        for (const SPageGroup &group : m_page.groups) {
            const bool isTable = group.type == 2 || group.type == 3;
            if (isTable && !group.members.isEmpty() && !m_tables.contains(group.path))
                m_pageReport.Add(EKind::TableMissing, group.path,
                                 "no QTableWidget is named after a member of this group");
        }
    }

private:
    void CheckCaption(const SFormWidget &widget) const
    {
        const QString path = PathFromObjectName(widget.name);
        const SPageMember *member = m_page.Find(ParentPath(path));
        const bool isCaption = MemberKey(path) == QLatin1String("caption");
        if (!member)
            m_formReport.Add(EKind::CaptionNamesNothing, widget.name,
                             QStringLiteral("\"%1\" is no member").arg(ParentPath(path)));
        else if (!isCaption)
            m_formReport.Add(EKind::CaptionNamesNothing, widget.name,
                             "a caption's name ends in \"_caption\"");
        else if (!member->Has("caption"))
            m_formReport.Add(EKind::CaptionNamesNothing, widget.name,
                             QStringLiteral("\"%1\" has no caption").arg(member->path));
        if (!IsCaptionClass(widget.className))
            m_formReport.Add(EKind::CaptionClass, widget.name,
                             QStringLiteral("is a %1; a caption is a QLabel or a QGroupBox")
                                 .arg(widget.className));
    }

    void CheckEditor(const SFormWidget &widget)
    {
        const QString path = PathFromObjectName(widget.name);
        const SPageMember *member = m_page.Find(path);
        if (member && member->groupType == 1)
            CheckScalar(widget, *member);
        else if (member && member->groupType)
            CheckTable(widget, *member);
        else if (!member && m_page.Find(ParentPath(path)))
            m_formReport.Add(EKind::CaptionNamesNothing, widget.name,
                             QStringLiteral("names nothing: a caption's name ends in \"_caption\", "
                                            "not in \"_%1\"")
                                 .arg(MemberKey(path)));
        else if (!member)
            m_formReport.Add(EKind::WidgetWithoutMember, widget.name,
                             QStringLiteral("\"%1\" is no member").arg(path));
    }

    void CheckScalar(const SFormWidget &widget, const SPageMember &member)
    {
        m_bound.insert(member.path);
        const bool isScalarType = member.type && member.type->groups & GroupBit(1);
        if (isScalarType && widget.className != QLatin1String(member.type->className))
            m_formReport.Add(EKind::WidgetClass, widget.name,
                             QStringLiteral("is a %1; data type \"%2\" wants a %3")
                                 .arg(widget.className, QLatin1String(member.type->name),
                                      QLatin1String(member.type->className)));
    }

    void CheckTable(const SFormWidget &widget, const SPageMember &member)
    {
        const QString group = GroupPath(member.path);
        if (widget.className != kTableClass) {
            m_formReport.Add(EKind::WidgetClass, widget.name,
                             QStringLiteral("is a %1; a group of groupType %2 wants a QTableWidget")
                                 .arg(widget.className)
                                 .arg(member.groupType));
        } else if (m_tables.contains(group)) {
            m_formReport.Add(EKind::TableDuplicate, widget.name,
                             QStringLiteral("is a second table of \"%1\" beside %2")
                                 .arg(group, m_tables.value(group)));
        } else {
            m_tables.insert(group, widget.name);
        }
    }

    const SPage &m_page;
    const SReport &m_pageReport;
    const SReport &m_formReport;
    QHash<QString, int> m_names;
    QSet<QString> m_bound;             // paths of scalar members that a widget names
    QHash<QString, QString> m_tables;  // group path to the name of its table
};

}  // namespace

void CheckWidgets(const SPage &page, const SForm &form, const SReport &pageReport,
                  const SReport &formReport)
{
    CWidgetCheck check(page, pageReport, formReport);
    check.CheckForm(form);
    check.CheckMissing();
}
