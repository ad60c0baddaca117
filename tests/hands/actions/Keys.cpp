#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QKeySequence>
#include <QLabel>
#include <QRegularExpression>

#include "tests/common/WaitUntil.h"
#include "tests/hands/actions/Actions.h"
#include "tests/hands/witness/PageReader.h"

namespace {

constexpr int kClickMs = 5000;  // ends the wait for a click that does not come

constexpr Qt::Key kNumberKeys[] = {
    Qt::Key_0,     Qt::Key_1,      Qt::Key_2,         Qt::Key_5,         Qt::Key_9,
    Qt::Key_Minus, Qt::Key_Period, Qt::Key_Backspace, Qt::Key_Backspace, Qt::Key_Delete,
};
constexpr Qt::Key kOtherKeys[] = {
    Qt::Key_Tab,  Qt::Key_Tab,  Qt::Key_Backtab,  Qt::Key_Return, Qt::Key_Space,
    Qt::Key_Up,   Qt::Key_Down, Qt::Key_Left,     Qt::Key_Right,  Qt::Key_PageUp,
    Qt::Key_Home, Qt::Key_End,  Qt::Key_PageDown,
};

QString FocusName()
{
    return NameOf(QApplication::focusWidget());
}

QWidget *KeyWindow(CDesk &desk)
{
    const QList<QWidget *> windows = desk.Windows();
    QWidget *active = QApplication::activeWindow();
    return windows.contains(active) ? active : windows.value(0);
}

QList<QChar> MnemonicsOn(const QWidget *window)
{
    QList<QChar> letters;
    const auto add = [&letters](const QString &text) {
        const int at = text.indexOf('&') + 1;
        if (at > 0 && at < text.size())
            letters.append(text[at].toUpper());
    };
    for (const auto *button : SeenOn<QAbstractButton>(window))
        add(button->text());
    for (const auto *label : SeenOn<QLabel>(window))
        add(label->text());
    return letters;
}

bool IsAnyDown(CDesk &desk)
{
    for (const QWidget *window : desk.Windows()) {
        for (const QAbstractButton *button : window->findChildren<QAbstractButton *>()) {
            if (button->isDown())
                return true;
        }
    }
    return false;
}

// What changes data that the page does not show, which the rules cannot see.
bool ChangesUnseen(const QAction *action)
{
    static const QRegularExpression whole("Read|Import|Revert");
    return action->text().contains(whole);
}

}  // namespace

SDeed TypeKeys(CDesk &desk, CChance &chance)
{
    QWidget *window = KeyWindow(desk);
    SDeed deed{SDeed::Keys, "type at " + FocusName() + ':'};
    for (int count = 1 + chance.Below(4); window && count > 0; --count) {
        // Often the whole text is replaced.
        if (chance.OneIn(6))
            desk.Key(window, Qt::Key_A, Qt::ControlModifier);
        const Qt::Key key = chance.Of(kNumberKeys);
        desk.Key(window, key);
        deed.words += ' ' + QKeySequence(key).toString();
    }
    return deed;
}

SDeed PressKey(CDesk &desk, CChance &chance)
{
    const Qt::Key key = chance.Of(kOtherKeys);
    const SDeed deed{SDeed::Other, "press " + QKeySequence(key).toString() + " at " + FocusName()};
    if (QWidget *window = KeyWindow(desk))
        desk.Key(window, key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
    return deed;
}

SDeed PressMnemonic(CDesk &desk, CChance &chance)
{
    QWidget *window = KeyWindow(desk);
    const QList<QChar> letters = window ? MnemonicsOn(window) : QList<QChar>();
    if (letters.isEmpty())
        return {SDeed::Other, "no mnemonic"};
    const QChar letter = chance.Of(letters);
    const SDeed deed{SDeed::Shortcut, QString("press Alt+%1 at %2").arg(letter).arg(FocusName())};
    desk.Key(window, static_cast<Qt::Key>(letter.unicode()), Qt::AltModifier);
    // The button stays down for a moment and is clicked then.
    WaitUntil([&desk] { return !IsAnyDown(desk); }, kClickMs);
    return deed;
}

// Of an action of the page in front, of the editor that has the focus, or of the window.
SDeed PressActionKeys(CDesk &desk, CChance &chance)
{
    QWidget *window = KeyWindow(desk);
    if (!window)
        return {SDeed::Other, "no window"};
    QList<QAction *> actions = desk.Window()->actions();
    for (QWidget *widget :
         {static_cast<QWidget *>(DrawPage(desk, chance)), QApplication::focusWidget()}) {
        if (widget)
            actions += widget->actions();
    }
    const QAction *action = actions.isEmpty() ? nullptr : chance.Of(actions);
    if (!action || action->shortcut().isEmpty() || ChangesUnseen(action))
        return {SDeed::Other, "no keys of an action"};
    const int keys = action->shortcut()[0];
    const SDeed deed{SDeed::Other, "press " + action->shortcut().toString() + " at " + FocusName()};
    desk.Key(window, static_cast<Qt::Key>(keys & ~Qt::KeyboardModifierMask),
             static_cast<Qt::KeyboardModifiers>(keys & Qt::KeyboardModifierMask));
    return deed;
}
