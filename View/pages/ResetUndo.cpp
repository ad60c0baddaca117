#include "View/pages/ResetUndo.h"

#include <map>

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QStatusBar>

#include "View/editors/LateEditors.h"

namespace {

QList<QDoubleSpinBox *> Cells(const QList<QTableWidget *> &tables)
{
    QList<QDoubleSpinBox *> cells;
    for (const QTableWidget *table : tables) {
        EnsureEditors(table);
        for (int r = 0; r < table->rowCount(); ++r) {
            for (int c = 0; c < table->columnCount(); ++c) {
                if (auto *cell = qobject_cast<QDoubleSpinBox *>(table->cellWidget(r, c)))
                    cells.append(cell);
            }
        }
    }
    return cells;
}

}  // namespace

// One reset: the cells that it zeroed and that nobody has touched since, with their values before.
// Its own end cuts the connections to the cells.
struct CResetUndo::SReset : QObject
{
    explicit SReset(const QString &name) : name(name) {}

    void Zero(QDoubleSpinBox *cell)
    {
        before[cell] = cell->value();
        cell->setValue(0.0);
        const auto forget = [this, cell] { before.erase(cell); };
        connect(cell, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, forget);
        connect(cell, &QObject::destroyed, this, forget);
        if (const auto *text = cell->findChild<QLineEdit *>())
            connect(text, &QLineEdit::textEdited, this, forget);
    }

    // Empties the list first: each cell reports its change, which erases its entry.
    void Restore()
    {
        const std::map<QDoubleSpinBox *, double> values = std::move(before);
        before.clear();
        for (const auto &[cell, value] : values)
            cell->setValue(value);
    }

    const QString name;
    std::map<QDoubleSpinBox *, double> before;
};

CResetUndo::CResetUndo(QDockWidget *page, std::function<void()> finishEdit)
    : m_page(page), m_finishEdit(std::move(finishEdit))
{
    // A page whose tab is left is not hidden, but moved out of sight.
    connect(page, &QDockWidget::visibilityChanged, this, [this](bool isVisible) {
        if (!isVisible)
            Forget();
    });
}

// The button stands in the window's status bar and would stay there.
CResetUndo::~CResetUndo()
{
    delete m_button;
}

void CResetUndo::Zero(const QString &reset, const QList<QTableWidget *> &tables)
{
    m_finishEdit();
    auto done = std::make_unique<SReset>(reset);
    for (QDoubleSpinBox *cell : Cells(tables)) {
        if (cell->value() != 0.0)
            done->Zero(cell);
    }
    if (done->before.empty())
        return;
    m_resets.push_back(std::move(done));
    ShowButton();
}

void CResetUndo::Forget()
{
    m_resets.clear();
    RemoveButton();
}

void CResetUndo::Undo()
{
    m_finishEdit();
    if (m_resets.empty())
        return;
    const std::unique_ptr<SReset> last = std::move(m_resets.back());
    m_resets.pop_back();
    last->Restore();
    if (m_resets.empty())
        RemoveButton();
    else
        ShowButton();
}

void CResetUndo::ShowButton()
{
    if (auto *window = qobject_cast<QMainWindow *>(m_page->parentWidget()); window && !m_button) {
        m_button = new QPushButton(QStringLiteral("Undo"));
        m_button->setObjectName(QStringLiteral("m_btnUndo"));
        // A click leaves the focus in the tables; the keys reach the button all the same.
        m_button->setFocusPolicy(Qt::TabFocus);
        connect(m_button, &QPushButton::clicked, this, &CResetUndo::Undo);
        // To the left of what is always there.
        window->statusBar()->insertPermanentWidget(0, m_button);
        // No higher than the status line, or the page would move when the button comes and goes.
        m_button->setFixedHeight(m_button->fontMetrics().height());
    }
    if (m_button)
        m_button->setToolTip(QLatin1String("Takes back ") + m_resets.back()->name);
}

// A button that is hidden with the focus hands that on to another one. It may be in the midst of its
// own click, so it is deleted later.
void CResetUndo::RemoveButton()
{
    if (!m_button)
        return;
    m_button->clearFocus();
    m_button->hide();
    m_button->deleteLater();
    m_button.clear();
}
