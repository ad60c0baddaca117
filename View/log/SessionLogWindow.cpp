#include "View/log/SessionLogWindow.h"

#include <QAction>
#include <QPointer>
#include <QScrollBar>

#include "Support/FileDialogMan.h"
#include "Support/SessionLog.h"
#include "Support/Settings.h"
#include "Support/WholeFile.h"
#include "View/engine/RowText.h"
#include "ui_SessionLogWindow.h"

namespace {

constexpr char kGeometryKey[] = "log/geometry";

}  // namespace

CSessionLogWindow::CSessionLogWindow(QWidget *owner)
    : QWidget(owner, Qt::Window), m_ui(std::make_unique<Ui::CSessionLogWindow>())
{
    m_ui->setupUi(this);
    m_filter.setSourceModel(&CSessionLog::Get());
    m_filter.setFilterKeyColumn(-1);
    m_filter.setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_ui->m_events->setModel(&m_filter);
    m_ui->m_events->horizontalHeader()->setStretchLastSection(true);
    connect(m_ui->m_filter, &QLineEdit::textChanged, &m_filter,
            &QSortFilterProxyModel::setFilterFixedString);
    connect(m_ui->m_copy, &QPushButton::clicked, this, &CSessionLogWindow::Copy);
    connect(m_ui->m_save, &QPushButton::clicked, this, &CSessionLogWindow::Save);
    auto *const copy = new QAction(this);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &CSessionLogWindow::Copy);
    m_ui->m_events->addAction(copy);
    auto *const close = new QAction(this);
    close->setShortcut(QKeySequence(Qt::Key_Escape));
    connect(close, &QAction::triggered, this, &QWidget::close);
    addAction(close);
    FollowNewest();
    restoreGeometry(CSettings::Get().Value(kGeometryKey).toByteArray());
}

CSessionLogWindow::~CSessionLogWindow() = default;

void CSessionLogWindow::FollowNewest()
{
    QTableView *const events = m_ui->m_events;
    connect(&m_filter, &QAbstractItemModel::rowsAboutToBeInserted, this, [this, events] {
        const QScrollBar *const bar = events->verticalScrollBar();
        m_isAtEnd = bar->value() == bar->maximum();
    });
    connect(
        &m_filter, &QAbstractItemModel::rowsInserted, this,
        [this, events] {
            if (m_isAtEnd)
                events->scrollToBottom();
        },
        Qt::QueuedConnection);
    events->resizeColumnsToContents();
    events->scrollToBottom();
}

void CSessionLogWindow::hideEvent(QHideEvent *event)
{
    CSettings::Get().SetValue(kGeometryKey, saveGeometry());
    QWidget::hideEvent(event);
}

QString CSessionLogWindow::Text() const
{
    return RowText(*m_ui->m_events);
}

void CSessionLogWindow::Copy()
{
    m_copy.Start(RowsOf(*m_ui->m_events), &m_filter, [](bool) {});
}

void CSessionLogWindow::Save()
{
    const QPointer<CSessionLogWindow> self(this);
    const QString path =
        CFileDialogMan().GetSaveFileName(QStringLiteral("Save log"), QStringLiteral("*.txt"));
    if (!self || path.isEmpty())
        return;
    const QString why = SaveWhole(path, Text().toUtf8());
    m_ui->m_outcome->setText(why.isEmpty() ? QStringLiteral("Saved to %1").arg(path)
                                           : QStringLiteral("Not saved: %1").arg(why));
}
