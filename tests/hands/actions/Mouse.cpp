#include <QComboBox>
#include <QPushButton>
#include <QTabBar>

#include "tests/hands/actions/Actions.h"
#include "tests/hands/witness/PageReader.h"

namespace {

// Pressed more often than others.
constexpr char kMainButtons[] = "m_start m_stop m_btnUpload m_btnDownload";

QList<QWidget *> EditorsOn(const QDockWidget *page)
{
    QList<QWidget *> editors;
    for (QWidget *widget : SeenOn<QWidget>(page)) {
        // A combo box opens its list, which is another deed.
        if (IsEditor(widget) && !qobject_cast<QComboBox *>(widget))
            editors.append(widget);
    }
    return editors;
}

SDeed Clicked(CDesk &desk, QWidget *widget)
{
    const SDeed deed{SDeed::Other, "click " + NameOf(widget), widget};
    desk.Click(widget, PlaceOn(widget));
    return deed;
}

}  // namespace

SDeed ClickEditor(CDesk &desk, CChance &chance)
{
    const QList<QWidget *> editors = EditorsOn(DrawPage(desk, chance));
    return editors.isEmpty() ? SDeed{SDeed::Other, "no editor"} : Clicked(desk, chance.Of(editors));
}

SDeed ClickButton(CDesk &desk, CChance &chance)
{
    QList<QPushButton *> buttons;
    for (QPushButton *button : SeenOn<QPushButton>(DrawPage(desk, chance))) {
        const bool isMain = QString(kMainButtons).contains(button->objectName());
        for (int tickets = isMain ? 3 : 1; tickets > 0; --tickets)
            buttons.append(button);
    }
    return buttons.isEmpty() ? SDeed{SDeed::Other, "no button"} : Clicked(desk, chance.Of(buttons));
}

SDeed ClickAnywhere(CDesk &desk, CChance &chance)
{
    const QList<QWidget *> windows = desk.Windows();
    if (windows.isEmpty())
        return {SDeed::Other, "no window"};
    QWidget *window = chance.Of(windows);
    const QPoint place(chance.Below(window->width()), chance.Below(window->height()));
    QWidget *target = window->childAt(place);
    const SDeed deed{
        SDeed::Other,
        QString("click at %1, %2: %3").arg(place.x()).arg(place.y()).arg(NameOf(target)), target};
    desk.Click(window, place);
    return deed;
}

SDeed ClickTab(CDesk &desk, CChance &chance)
{
    for (QTabBar *bar :
         desk.Window()->findChildren<QTabBar *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!bar->isVisible() || bar->count() == 0)
            continue;
        const int tab = chance.Below(bar->count());
        const SDeed deed{SDeed::Other, "tab " + bar->tabText(tab), bar};
        desk.Click(bar, bar->tabRect(tab).center());
        return deed;
    }
    return {SDeed::Other, "no tabs"};
}

// With the keys, as far as the list goes.
SDeed ChooseItem(CDesk &desk, CChance &chance)
{
    const QList<QComboBox *> boxes = SeenOn<QComboBox>(DrawPage(desk, chance));
    if (boxes.isEmpty())
        return {SDeed::Other, "no combo box"};
    QPointer<QComboBox> box = chance.Of(boxes);
    const Qt::Key key = chance.OneIn(2) ? Qt::Key_Down : Qt::Key_Up;
    SDeed deed{SDeed::Other, "choose in " + NameOf(box), box.data()};
    box->setFocus(Qt::TabFocusReason);
    for (int steps = 1 + chance.Below(4); box && box->hasFocus() && steps > 0; --steps)
        desk.Key(box->window(), key);
    if (box)
        deed.words += ": " + box->currentText();
    return deed;
}

SDeed TurnWheel(CDesk &desk, CChance &chance)
{
    const QDockWidget *page = DrawPage(desk, chance);
    const int notches = chance.OneIn(2) ? 1 : -1;
    QList<QWidget *> targets = chance.OneIn(3) ? SeenOn<QWidget>(page) : EditorsOn(page);
    if (!chance.OneIn(3)) {
        for (QComboBox *box : SeenOn<QComboBox>(page))
            targets.append(box);
    }
    for (QTabBar *bar : SeenOn<QTabBar>(desk.Window()))
        targets.append(bar);
    if (targets.isEmpty())
        return {SDeed::Other, "nothing below the wheel"};
    QWidget *target = chance.Of(targets);
    const SDeed deed{SDeed::Wheel, "wheel over " + NameOf(target), target};
    for (int turns = 1 + chance.Below(3); deed.target && turns > 0; --turns)
        desk.Wheel(target, PlaceOn(target), notches);
    return deed;
}

SDeed PressRfOff(CDesk &desk, CChance &)
{
    QAbstractButton *button = desk.RfOff();
    return button && button->isEnabled() ? Clicked(desk, button) : SDeed{SDeed::Other, "no RF Off"};
}
