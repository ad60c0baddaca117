#include "tests/hands/rules/HandsRule.h"

#include <QApplication>
#include <QComboBox>

#include "tests/hands/witness/PageReader.h"

void CHandsRule::Before(SDeed::EKind kind)
{
    m_editors.clear();
    if (kind == SDeed::Wheel)
        m_editors = AllEditors();
    m_focus = QApplication::focusWidget();
    m_focusName = NameOf(m_focus);
    m_front = m_desk.FrontPage();
    m_isRequest = false;
}

void CHandsRule::OnBusy(QDockWidget *, bool isBusy)
{
    m_isRequest = m_isRequest || isBusy;
}

QString CHandsRule::After(const SDeed &deed)
{
    if (deed.kind == SDeed::Wheel)
        return CheckWheel(deed.target);
    const QWidget *focus = QApplication::focusWidget();
    const bool takesKeys =
        focus && (IsEditor(focus) || qobject_cast<const QAbstractButton *>(focus));
    // A table that gets the focus back hands it to a cell of its own.
    if (m_focus && focus && m_focus->isAncestorOf(focus))
        return {};
    if (deed.kind == SDeed::Shortcut && m_isRequest && m_front == m_desk.FrontPage() && takesKeys &&
        focus != m_focus)
        return QString("a request moved the focus from %1 to %2").arg(m_focusName, NameOf(focus));
    return {};
}

QMap<const QWidget *, QString> CHandsRule::AllEditors() const
{
    QMap<const QWidget *, QString> editors;
    for (const QDockWidget *page : m_desk.Pages()) {
        const auto values = EditorValues(page);
        for (auto i = values.begin(); i != values.end(); ++i)
            editors.insert(i.key(), i.value());
    }
    return editors;
}

QString CHandsRule::CheckWheel(const QWidget *target) const
{
    for (const QWidget *widget = target; widget; widget = widget->parentWidget()) {
        if (widget == m_focus || widget->objectName().startsWith("calDataIf_config_"))
            return {};
    }
    if (m_front != m_desk.FrontPage())
        return "the wheel changed the page";
    const auto now = AllEditors();
    for (auto i = m_editors.begin(); i != m_editors.end(); ++i) {
        if (now.contains(i.key()) && now[i.key()] != i.value())
            return QString("the wheel over %1 turned %2 from %3 to %4")
                .arg(NameOf(target), NameOf(i.key()), i.value(), now[i.key()]);
    }
    return {};
}
