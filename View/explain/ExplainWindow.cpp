#include "View/explain/ExplainWindow.h"

#include <iterator>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QSignalBlocker>

#include "View/editors/NamedAction.h"
#include "View/engine/AutoBindingDataModelDockWidget.h"
#include "View/engine/RowText.h"
#include "ui_ExplainWindow.h"

namespace {

constexpr char kPlaceKey[] = "explain/geometry";
constexpr int kSyncMs = 50;
constexpr int kRowRim = 4;                          // pixels above and below a row's text
constexpr int kColumnLetters[] = {14, 40, 12, 12};  // widths; the last column has the rest
static_assert(std::size(kColumnLetters) == CChangeModel::eBecause);

QString CountText(int shown, int all)
{
    const QString changes = all == 1 ? QStringLiteral("1 change")
                            : all == CChangeRing::kMost
                                ? QStringLiteral("The last %1 changes").arg(all)
                                : QStringLiteral("%1 changes").arg(all);
    return shown == all ? changes : QStringLiteral("%1, %2 shown").arg(changes).arg(shown);
}

}  // namespace

CExplainWindow::CExplainWindow(CAutoBindingDataModelDockWidget *page)
    : CPageWindow(page, QLatin1String(kPlaceKey)), m_ui(std::make_unique<Ui::CExplainWindow>()),
      m_changes(*page)
{
    m_ui->setupUi(this);
    setWindowTitle(page->windowTitle().trimmed() + QLatin1String(": Explain changes"));
    m_filter.setSourceModel(&m_changes);
    m_filter.setFilterKeyColumn(CChangeModel::eMember);
    m_filter.setFilterRole(CChangeModel::kPathRole);
    m_ui->m_changes->setModel(&m_filter);
    QHeaderView *const header = m_ui->m_changes->horizontalHeader();
    for (int column = 0; column < CChangeModel::eBecause; ++column)
        header->resizeSection(column, kColumnLetters[column] *
                                          m_ui->m_changes->fontMetrics().averageCharWidth());
    header->setStretchLastSection(true);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_ui->m_changes->verticalHeader()->setDefaultSectionSize(
        m_ui->m_changes->fontMetrics().height() + kRowRim);
    FillMembers();
    connect(m_ui->m_member, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &CExplainWindow::Filter);
    connect(m_ui->m_copy, &QPushButton::clicked, this, &CExplainWindow::Copy);
    AddAction(m_ui->m_changes, "m_actionCopy", "&Copy", {QStringLiteral("Ctrl+C")}, [this] {
        Copy();
    })->setShortcutContext(Qt::WidgetShortcut);
    AddAction(this, "m_actionClose", "Close", {QStringLiteral("Esc")}, [this] { close(); });
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &CExplainWindow::Sync);
    connect(&page->Changes(), &CChangeRecorder::Recorded, this, [this] {
        if (isVisible() && !m_timer.isActive())
            m_timer.start(kSyncMs);
    });
    RestorePlace();
}

CExplainWindow::~CExplainWindow() = default;

void CExplainWindow::FillMembers()
{
    const QSignalBlocker quiet(m_ui->m_member);
    m_ui->m_member->addItem(QStringLiteral("All members"), QString());
    for (const QString &path : m_changes.Words().Members())
        m_ui->m_member->addItem(m_changes.Words().Name(path, -1), path);
}

void CExplainWindow::ShowMember(const QString &path)
{
    m_ui->m_member->setCurrentIndex(qMax(0, m_ui->m_member->findData(path)));
    Filter();
}

void CExplainWindow::Filter()
{
    const QString path = m_ui->m_member->currentData().toString();
    m_filter.setFilterRegularExpression(
        path.isEmpty() ? QString()
                       : QLatin1Char('^') + QRegularExpression::escape(path) + QLatin1Char('$'));
    Sync();
}

void CExplainWindow::showEvent(QShowEvent *event)
{
    Sync();
    CPageWindow::showEvent(event);
}

void CExplainWindow::Sync()
{
    m_changes.Sync();
    m_ui->m_count->setText(CountText(m_filter.rowCount(), m_changes.rowCount()));
}

void CExplainWindow::Copy()
{
    QGuiApplication::clipboard()->setText(RowText(*m_ui->m_changes));
}
