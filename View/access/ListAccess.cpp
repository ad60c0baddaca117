#include "View/access/ListAccess.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QComboBox>

namespace {

constexpr char kIsNamed[] = "quorlinIsNamedByCaption";

class CListAccess : public QAccessibleWidget
{
public:
    explicit CListAccess(QComboBox *box) : QAccessibleWidget(box, QAccessible::ComboBox)
    {
        addControllingSignal(QStringLiteral("currentTextChanged(QString)"));
    }

    QString text(QAccessible::Text part) const override
    {
        return part == QAccessible::Value ? Box()->currentText() : QAccessibleWidget::text(part);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        const bool isOpen = Box()->view()->isVisible();
        state.expandable = true;
        state.expanded = isOpen;
        state.collapsed = !isOpen;
        state.hasPopup = true;
        return state;
    }

    int childCount() const override { return 1; }

    QAccessibleInterface *child(int index) const override
    {
        return index == 0 ? QAccessible::queryAccessibleInterface(Box()->view()) : nullptr;
    }

    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return child && child->object() == Box()->view() ? 0 : -1;
    }

    QAccessibleInterface *childAt(int x, int y) const override
    {
        const bool isInside = Box()->view()->isVisible() && child(0)->rect().contains(x, y);
        return isInside ? child(0) : nullptr;
    }

    QStringList actionNames() const override
    {
        return {showMenuAction(), pressAction(), setFocusAction()};
    }

    void doAction(const QString &action) override
    {
        if (action != showMenuAction() && action != pressAction())
            QAccessibleWidget::doAction(action);
        else if (Box()->view()->isVisible())
            Box()->hidePopup();
        else if (Box()->isEnabled())
            Box()->showPopup();
    }

private:
    QComboBox *Box() const { return static_cast<QComboBox *>(widget()); }
};

QAccessibleInterface *MakeListAccess(const QString &className, QObject *object)
{
    if (className != QLatin1String("QComboBox") || !object->property(kIsNamed).toBool())
        return nullptr;
    return new CListAccess(static_cast<QComboBox *>(object));
}

}  // namespace

// Qt keeps a factory once, however often it is installed. It has made its own interface of the list by
// now, at the first change of its entry, and keeps it until that is deleted.
void NameByCaption(QComboBox *box)
{
    if (box->property(kIsNamed).toBool())
        return;
    QAccessible::installFactory(MakeListAccess);
    if (QAccessibleInterface *own = QAccessible::queryAccessibleInterface(box))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(own));
    box->setProperty(kIsNamed, true);
}
