#include "tests/layout/LayoutCheck.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QFontMetrics>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyleOptionGroupBox>
#include <QTabBar>
#include <QTableWidget>

namespace {

// Qt's own indents between the place of a text and the text.
constexpr int kComboIndent = 1;
constexpr int kLineEditIndent = 2;

QString NameOf(const QWidget *widget)
{
    for (const QWidget *named = widget; named; named = named->parentWidget()) {
        const QString name = named->objectName();
        if (!name.isEmpty() && !name.startsWith("qt_"))
            return QString("%1 in %2").arg(widget->metaObject()->className(), name);
    }
    return widget->metaObject()->className();
}

// Gathers the texts of one widget that lack room.
class CTextCheck
{
public:
    CTextCheck(const QWidget *widget, QStringList &faults) : m_widget(widget), m_faults(faults) {}

    void Look() const
    {
        if (const auto *label = qobject_cast<const QLabel *>(m_widget))
            LookAt(*label);
        else if (const auto *push = qobject_cast<const QPushButton *>(m_widget))
            Compare(push->text(), push->sizeHint(), push->size());
        else if (const auto *check = qobject_cast<const QCheckBox *>(m_widget))
            Compare(check->text(), check->sizeHint(), check->size());
        else if (const auto *combo = qobject_cast<const QComboBox *>(m_widget))
            LookAt(*combo);
        else if (const auto *spin = qobject_cast<const QAbstractSpinBox *>(m_widget))
            LookAt(*spin);
        else if (const auto *box = qobject_cast<const QGroupBox *>(m_widget))
            LookAt(*box);
        else if (const auto *header = qobject_cast<const QHeaderView *>(m_widget))
            LookAt(*header);
        else if (const auto *bar = qobject_cast<const QTabBar *>(m_widget))
            Compare(bar->tabText(0), bar->sizeHint(), bar->size());
    }

private:
    void Compare(const QString &text, const QSize &need, const QSize &room) const
    {
        if (need.width() > room.width() || need.height() > room.height())
            m_faults.append(QString("%1: \"%2\" needs %3 x %4, has %5 x %6")
                                .arg(NameOf(m_widget), text)
                                .arg(need.width())
                                .arg(need.height())
                                .arg(room.width())
                                .arg(room.height()));
    }
    QSize TextSize(const QString &text) const
    {
        const QFontMetrics metrics = m_widget->fontMetrics();
        return {metrics.horizontalAdvance(text), metrics.height()};
    }
    void LookAt(const QLabel &label) const
    {
        if (!label.text().isEmpty() && !label.wordWrap())
            Compare(label.text(), label.sizeHint(), label.size());
    }
    void LookAt(const QComboBox &combo) const
    {
        QStyleOptionComboBox option;
        option.initFrom(&combo);
        option.editable = combo.isEditable();
        option.frame = combo.hasFrame();
        const QRect field = combo.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                          QStyle::SC_ComboBoxEditField, &combo);
        for (int i = 0; i < combo.count(); ++i)
            Compare(combo.itemText(i), TextSize(combo.itemText(i)),
                    field.size() - QSize(2 * kComboIndent, 0));
    }
    void LookAt(const QAbstractSpinBox &spin) const
    {
        // Its one line stands in the middle; blank above and below the ink may stand out.
        const auto *editor = spin.findChild<QLineEdit *>();
        const QFontMetrics metrics = editor->fontMetrics();
        const int base = (editor->height() - metrics.height() + 1) / 2 + metrics.ascent();
        const QRect ink = metrics.tightBoundingRect(spin.text()).translated(0, base);
        const bool isCut = ink.top() < 0 || ink.bottom() >= editor->height();
        Compare(spin.text(), {metrics.horizontalAdvance(spin.text()), isCut ? metrics.height() : 0},
                editor->size() - QSize(2 * kLineEditIndent, 0));
    }
    void LookAt(const QGroupBox &box) const
    {
        QStyleOptionGroupBox option;
        option.initFrom(&box);
        option.text = box.title();
        option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
        option.lineWidth = 1;
        const QRect label = box.style()->subControlRect(QStyle::CC_GroupBox, &option,
                                                        QStyle::SC_GroupBoxLabel, &box);
        Compare(box.title(), TextSize(box.title()), {box.width(), label.height()});
    }
    void LookAt(const QHeaderView &header) const
    {
        const bool isRow = header.orientation() == Qt::Horizontal;
        for (int i = 0; i < header.count(); ++i) {
            const QString text = header.model()->headerData(i, header.orientation()).toString();
            const QSize need = TextSize(text);
            const int section = header.sectionSize(i);
            Compare(text, need,
                    isRow ? QSize(section, header.height()) : QSize(header.width(), section));
        }
    }

    const QWidget *m_widget;
    QStringList &m_faults;
};

// What the widget's layout has placed, not what its own code has.
QList<QWidget *> LaidOutChildren(const QWidget *parent)
{
    QList<QWidget *> children;
    for (QWidget *child : parent->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (child->isVisible() && !child->isWindow() && parent->layout()->indexOf(child) >= 0)
            children.append(child);
    }
    // Widgets of nested layouts are children of the same widget.
    for (QLayout *layout : parent->findChildren<QLayout *>()) {
        for (int i = 0; i < layout->count(); ++i) {
            QWidget *child = layout->itemAt(i)->widget();
            if (child && child->parentWidget() == parent && child->isVisible() &&
                !children.contains(child))
                children.append(child);
        }
    }
    return children;
}

QString RectText(const QRect &rect)
{
    return QString("%1,%2 %3x%4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

}  // namespace

QStringList CutTexts(const QWidget *page)
{
    QStringList faults;
    for (const QWidget *widget : page->findChildren<QWidget *>()) {
        if (widget->isVisible())
            CTextCheck(widget, faults).Look();
    }
    return faults;
}

QStringList Overlaps(const QWidget *page)
{
    QStringList faults;
    for (const QWidget *parent : page->findChildren<QWidget *>()) {
        if (!parent->isVisible() || !parent->layout())
            continue;
        const QList<QWidget *> children = LaidOutChildren(parent);
        for (int i = 0; i < children.size(); ++i) {
            const QRect rect = children[i]->geometry();
            if (!parent->rect().contains(rect))
                faults.append(QString("%1 at %2 stands out of %3, %4")
                                  .arg(NameOf(children[i]), RectText(rect), NameOf(parent),
                                       RectText(parent->rect())));
            for (int j = 0; j < i; ++j) {
                if (rect.intersects(children[j]->geometry()))
                    faults.append(QString("%1 at %2 lies over %3 at %4")
                                      .arg(NameOf(children[i]), RectText(rect), NameOf(children[j]),
                                           RectText(children[j]->geometry())));
            }
        }
    }
    return faults;
}

QStringList PageScrollBars(const QWidget *page)
{
    QStringList faults;
    for (const QScrollBar *bar : page->findChildren<QScrollBar *>()) {
        const auto *area =
            qobject_cast<const QAbstractScrollArea *>(bar->parentWidget()->parentWidget());
        if (!bar->isVisible() || !area)
            continue;
        const bool isTable = qobject_cast<const QTableWidget *>(area) != nullptr;
        const bool isFixed = area->minimumSize() == area->maximumSize();
        const bool holdsTable = !isTable && bar->orientation() == Qt::Horizontal &&
                                area->minimumHeight() == area->maximumHeight();
        if ((isTable && !isFixed) || holdsTable)
            continue;
        faults.append(
            QString("%1 shows its %2 scroll bar, %3 of %4")
                .arg(NameOf(area), bar->orientation() == Qt::Horizontal ? "horizontal" : "vertical")
                .arg(bar->pageStep())
                .arg(bar->pageStep() + bar->maximum()));
    }
    return faults;
}

QStringList HiddenButtons(const QWidget *page)
{
    QStringList faults;
    for (const QPushButton *button : page->findChildren<QPushButton *>()) {
        if (!button->isVisible())
            continue;
        const QRegion seen = button->visibleRegion();
        if (seen != QRegion(button->rect()))
            faults.append(QString("%1: \"%2\" shows %3 of its %4")
                              .arg(NameOf(button), button->text(), RectText(seen.boundingRect()),
                                   RectText(button->rect())));
    }
    return faults;
}
