#include "View/undo/ResetUndo.h"

#include <algorithm>
#include <utility>

#include <QMainWindow>
#include <QPushButton>
#include <QStatusBar>

CResetUndo::CResetUndo(QDockWidget *page) : m_page(page)
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

void CResetUndo::Add(SReset reset)
{
    m_resets.push_back(std::move(reset));
    ShowButton();
}

void CResetUndo::Touch(const QStringList &selection, const SEditorPlace &place)
{
    for (SReset &reset : m_resets) {
        if (reset.selection != selection)
            continue;
        auto &edits = reset.edits;
        edits.erase(std::remove_if(edits.begin(), edits.end(),
                                   [&](const SCellEdit &edit) { return edit.place == place; }),
                    edits.end());
    }
}

void CResetUndo::KeepThoseOn(const QUndoStack &stack)
{
    const auto isOff = [&stack](const SReset &reset) {
        for (int i = 0; i < stack.index(); ++i) {
            if (stack.command(i) == reset.command)
                return false;
        }
        return true;
    };
    m_resets.erase(std::remove_if(m_resets.begin(), m_resets.end(), isOff), m_resets.end());
    if (m_resets.empty())
        RemoveButton();
    else
        ShowButton();
}

void CResetUndo::Forget()
{
    m_resets.clear();
    RemoveButton();
}

SReset CResetUndo::TakeLast()
{
    SReset last = std::move(m_resets.back());
    m_resets.pop_back();
    if (m_resets.empty())
        RemoveButton();
    else
        ShowButton();
    return last;
}

void CResetUndo::ShowButton()
{
    if (auto *window = qobject_cast<QMainWindow *>(m_page->parentWidget()); window && !m_button) {
        m_button = new QPushButton(QStringLiteral("Undo"));
        m_button->setObjectName(QStringLiteral("m_btnUndo"));
        // A click leaves the focus in the tables; the keys reach the button all the same.
        m_button->setFocusPolicy(Qt::TabFocus);
        connect(m_button, &QPushButton::clicked, this, &CResetUndo::Wanted);
        // To the left of what is always there.
        window->statusBar()->insertPermanentWidget(0, m_button);
        // No higher than the status line, or the page would move when the button comes and goes.
        m_button->setFixedHeight(m_button->fontMetrics().height());
    }
    if (m_button)
        m_button->setToolTip(QLatin1String("Takes back ") + m_resets.back().name);
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
