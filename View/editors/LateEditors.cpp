#include "View/editors/LateEditors.h"

#include <QCoreApplication>
#include <QEvent>

namespace {

// As setUpdatesEnabled does, but without an update: the widget is in the midst of its paint, and its
// new children are painted with it. Each has asked for a paint as it was shown, which comes to
// nothing while updates are off.
void GoOnPainting(QWidget *widget)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateLater);
    widget->setAttribute(Qt::WA_ForceUpdatesDisabled, false);
    widget->setAttribute(Qt::WA_UpdatesDisabled, false);
    for (QWidget *child : widget->findChildren<QWidget *>())
        child->setAttribute(Qt::WA_UpdatesDisabled, false);
}

}  // namespace

CLateEditors::CLateEditors(QTableWidget *table) : QObject(table), m_table(table) {}

CLateEditors *CLateEditors::Of(const QWidget *table)
{
    return table->findChild<CLateEditors *>(QString(), Qt::FindDirectChildrenOnly);
}

void CLateEditors::MakeAtPaint()
{
    if (!m_areMade)
        m_table->viewport()->installEventFilter(this);
}

void CLateEditors::Ensure()
{
    if (!m_areMade)
        MakeAll(false);
}

// Qt would lay the table out anew later, and paint it once more.
void CLateEditors::MakeAll(bool isInPaint)
{
    m_areMade = true;
    QWidget *viewport = m_table->viewport();
    viewport->removeEventFilter(this);
    viewport->setUpdatesEnabled(false);
    Make();
    m_table->doItemsLayout();
    if (isInPaint)
        GoOnPainting(viewport);
    else
        viewport->setUpdatesEnabled(true);
    emit Made();
}

// Of the viewport, which is painted before its children.
bool CLateEditors::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::Paint && !m_areMade)
        MakeAll(true);
    return false;
}

void EnsureEditors(const QWidget *table)
{
    if (CLateEditors *late = CLateEditors::Of(table))
        late->Ensure();
}

void WhenEditorsAreMade(const QWidget *table, const QObject *context,
                        const std::function<void()> &call)
{
    CLateEditors *late = CLateEditors::Of(table);
    if (late && !late->AreMade())
        QObject::connect(late, &CLateEditors::Made, context, call);
    else
        call();
}
