#include "View/access/SpokenText.h"

#include <QEvent>
#include <QLabel>
#include <QStringList>
#include <QVariant>
#include <QWidget>

namespace {

constexpr char kPlace[] = "quorlinSpokenPlace";
constexpr char kUnit[] = "quorlinSpokenUnit";
constexpr char kState[] = "quorlinSpokenState";

// "2000000~2010000" in the words that are read aloud.
QString SpokenLimits(QString limits)
{
    limits.replace(QLatin1Char('~'), QLatin1String(" to "));
    return limits.replace(QLatin1Char(','), QLatin1String(", "));
}

void SetPart(QWidget *widget, const char *part, const QString &text)
{
    if (widget->property(part).toString() == text)
        return;
    widget->setProperty(part, text);
    UpdateSpokenText(widget);
}

}  // namespace

// A result without a state, as most are, keeps its place in the description alone.
void SetSpokenPlace(QWidget *result, const QString &place)
{
    if (result->property(kState).isValid())
        SetPart(result, kPlace, place);
    else
        result->setAccessibleDescription(place);
}

void SetSpokenUnit(QWidget *widget, const QString &unit)
{
    SetPart(widget, kUnit, unit);
}

void SetSpokenState(QWidget *widget, const QString &state)
{
    if (!state.isEmpty() && !widget->property(kState).isValid() && qobject_cast<QLabel *>(widget))
        widget->setProperty(kPlace, widget->accessibleDescription());
    SetPart(widget, kState, state);
}

void UpdateSpokenText(QWidget *widget)
{
    const QString limits = SpokenLimits(widget->toolTip());
    const QString unit = widget->property(kUnit).toString();
    const bool hasBoth = !limits.isEmpty() && !unit.isEmpty();
    QStringList parts = {widget->property(kPlace).toString(),
                         hasBoth ? limits + QLatin1Char(' ') + unit : limits + unit,
                         widget->property(kState).toString()};
    parts.removeAll(QString());
    const QString text = parts.join(QLatin1String(", "));
    if (text != widget->accessibleDescription())
        widget->setAccessibleDescription(text);
}

CSpokenLimits *CSpokenLimits::Of(QObject *page)
{
    auto *limits = page->findChild<CSpokenLimits *>(QString(), Qt::FindDirectChildrenOnly);
    return limits ? limits : new CSpokenLimits(page);
}

void CSpokenLimits::Follow(QWidget *editor)
{
    editor->installEventFilter(this);
    UpdateSpokenText(editor);
}

bool CSpokenLimits::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::ToolTipChange)
        UpdateSpokenText(static_cast<QWidget *>(object));
    return false;
}
