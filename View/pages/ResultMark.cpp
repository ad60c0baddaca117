#include "View/pages/ResultMark.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTableWidget>

#include "Model/MemberPath.h"
#include "View/access/Contrast.h"
#include "View/access/SpokenText.h"
#include "View/editors/LateEditors.h"

namespace {

constexpr char kIsGrey[] = "quorlinIsGrey";
const QLatin1String kNotOfShown("not of the settings that are shown");

// The table's cells, or the widget itself.
QList<QWidget *> Parts(QWidget *widget)
{
    auto *table = qobject_cast<QTableWidget *>(widget);
    if (!table)
        return {widget};
    QList<QWidget *> cells;
    for (int r = 0; r < table->rowCount(); ++r) {
        for (int c = 0; c < table->columnCount(); ++c) {
            if (QWidget *cell = table->cellWidget(r, c))
                cells.append(cell);
        }
    }
    return cells;
}

// Invalid for what is no editor.
QVariant Value(const QWidget *widget)
{
    if (const auto *box = qobject_cast<const QComboBox *>(widget))
        return box->currentText();
    if (const auto *box = qobject_cast<const QSpinBox *>(widget))
        return box->value();
    if (const auto *box = qobject_cast<const QDoubleSpinBox *>(widget))
        return box->value();
    if (const auto *box = qobject_cast<const QCheckBox *>(widget))
        return box->isChecked();
    return {};
}

// Of the colours that the widget has without it.
QPalette GreyPalette(const QWidget *widget)
{
    const bool isLabel = qobject_cast<const QLabel *>(widget);
    const bool isCell = qobject_cast<QTableWidget *>(widget->parentWidget()->parentWidget());
    const QPalette plain = widget->palette();
    const QColor grey =
        FadedText(plain.color(isLabel ? QPalette::WindowText : QPalette::Text),
                  plain.color(isLabel && !isCell ? QPalette::Window : QPalette::Base));
    QPalette palette;
    palette.setColor(QPalette::Text, grey);
    palette.setColor(QPalette::WindowText, grey);
    return palette;
}

// Grey and slanted, so that the colour does not tell it alone.
void SetGrey(QWidget *widget, bool isGrey)
{
    if (widget->property(kIsGrey).toBool() == isGrey)
        return;
    widget->setProperty(kIsGrey, isGrey);
    widget->setPalette({});
    const QPalette palette = isGrey ? GreyPalette(widget) : QPalette();
    widget->setPalette(palette);
    // Below a style sheet the text of a spin box does not follow its box.
    if (auto *text = widget->findChild<QLineEdit *>())
        text->setPalette(palette);
    QFont font = widget->font();
    font.setItalic(isGrey);
    widget->setFont(font);
    SetSpokenState(widget, isGrey ? QString(kNotOfShown) : QString());
}

}  // namespace

CResultMark::CResultMark(QWidget *page, const QList<QWidget *> &results,
                         const QList<QWidget *> &inputs)
    : m_page(page), m_results(results), m_inputs(inputs)
{
}

void CResultMark::Watch()
{
    QList<QWidget *> roots = m_inputs;
    for (QWidget *widget : m_page->findChildren<QWidget *>()) {
        if (widget->objectName().startsWith(kRequestName))
            roots.append(widget);
    }
    for (QWidget *root : qAsConst(roots)) {
        const auto watch = [this, root] {
            for (QWidget *editor : Parts(root))
                WatchEditor(editor);
        };
        WhenEditorsAreMade(root, this, watch);
    }
    m_watched = roots;
    for (QWidget *widget : roots + m_results) {
        if (const CLateEditors *late = CLateEditors::Of(widget))
            connect(late, &CLateEditors::Made, this, [this] { Show(); });
    }
    Show();
}

void CResultMark::WatchEditor(QWidget *editor)
{
    if (Value(editor).isValid())
        m_editors.append(editor);
    if (auto *list = qobject_cast<QComboBox *>(editor))
        connect(list, &QComboBox::currentTextChanged, this, [this] { Show(); });
    else if (auto *number = qobject_cast<QSpinBox *>(editor))
        connect(number, QOverload<int>::of(&QSpinBox::valueChanged), this, [this] { Show(); });
    else if (auto *real = qobject_cast<QDoubleSpinBox *>(editor))
        connect(real, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                [this] { Show(); });
    else if (auto *check = qobject_cast<QCheckBox *>(editor))
        connect(check, &QCheckBox::toggled, this, [this] { Show(); });
}

// What is remembered of a cell is remembered by its editor.
void CResultMark::Package()
{
    for (const QWidget *widget : m_watched + m_results)
        EnsureEditors(widget);
    m_packaged = Settings();
}

void CResultMark::Measured()
{
    m_measured = m_packaged;
    m_texts.clear();
    for (QWidget *result : Results()) {
        if (const auto *label = qobject_cast<QLabel *>(result))
            m_texts[result] = label->text();
    }
    Show();
}

void CResultMark::Forget()
{
    m_measured.clear();
    Show();
}

void CResultMark::Show()
{
    const bool isOfShown = IsOfShownSettings();
    for (QWidget *result : Results()) {
        const auto *label = qobject_cast<QLabel *>(result);
        SetGrey(result, !isOfShown || (label && label->text() != m_texts.value(result)));
    }
}

bool CResultMark::IsOfShownSettings() const
{
    if (m_measured.isEmpty())
        return false;
    for (QWidget *editor : m_editors) {
        if (editor->isVisibleTo(m_page) && Value(editor) != m_measured.value(editor))
            return false;
    }
    return true;
}

QHash<QWidget *, QVariant> CResultMark::Settings() const
{
    QHash<QWidget *, QVariant> settings;
    for (QWidget *editor : m_editors)
        settings[editor] = Value(editor);
    return settings;
}

QList<QWidget *> CResultMark::Results() const
{
    QList<QWidget *> parts;
    for (QWidget *result : m_results)
        parts += Parts(result);
    return parts;
}
