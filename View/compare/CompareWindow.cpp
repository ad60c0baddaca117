#include "View/compare/CompareWindow.h"

#include <algorithm>
#include <iterator>

#include <QAction>
#include <QEvent>
#include <QHeaderView>
#include <QPointer>
#include <QShortcut>
#include <QSignalBlocker>

#include "Support/FileDialogMan.h"
#include "View/compare/CountTable.h"
#include "View/compare/PageWork.h"
#include "View/engine/RowText.h"
#include "ui_CompareWindow.h"

namespace {

constexpr char kFileFilter[] = "Calibration data (*.ini *.json)|*.ini;*.json|All files (*.*)|*.*";
constexpr int kRowRim = 4;  // pixels above and below a row's text
constexpr int kColumnLetters[] = {8, 6, 12, 26, 10, 16, 16, 14};  // widths
static_assert(std::size(kColumnLetters) == CDifferenceModel::eColumnCount);

// "All", and what there is with its count. Entry n + 1 is the list's position n.
void FillFilter(QComboBox *box, const QVector<SCalCount> &counts)
{
    const QSignalBlocker quiet(box);
    box->clear();
    box->addItem(QStringLiteral("All"));
    for (const SCalCount &count : counts)
        box->addItem(QStringLiteral("%1 (%2)").arg(count.name).arg(count.count));
}

QString Records(int count)
{
    return count == 1 ? QStringLiteral("1 record") : QStringLiteral("%1 records").arg(count);
}

QString Summary(const SCalCompared &compared)
{
    if (!compared.differences)
        return QLatin1String("Compare failed. ") + FailureText(compared.result);
    const ICalDifferences &differences = *compared.differences;
    const QString sides =
        QStringLiteral(" Left has %1, right has %2.")
            .arg(Records(differences.RecordsLeft()), Records(differences.RecordsRight()));
    if (differences.Count() == 0)
        return QLatin1String("Both sides are the same.") + sides;
    return QStringLiteral("%1 differences in %2.")
               .arg(differences.Count())
               .arg(Records(differences.Routes().size())) +
           sides;
}

}  // namespace

CCompareWindow::CCompareWindow(const QString &name, QWidget *tool)
    : QDialog(tool, Qt::Window), m_ui(std::make_unique<Ui::CCompareWindow>())
{
    m_ui->setupUi(this);
    setWindowTitle(name + QLatin1String(": Compare"));
    m_left = {m_ui->m_leftKind, m_ui->m_leftFile, m_ui->m_leftBrowse};
    m_right = {m_ui->m_rightKind, m_ui->m_rightFile, m_ui->m_rightBrowse};
    m_right.kind->setCurrentIndex(static_cast<int>(ECalSide::Memory));
    for (const SSideEditors &side : {m_left, m_right})
        ConnectSide(side);
    ConnectTable();
    ConnectCounts(m_ui->m_routes, m_ui->m_route);
    ConnectCounts(m_ui->m_fields, m_ui->m_field);
    const auto whenChosen = QOverload<int>::of(&QComboBox::currentIndexChanged);
    connect(m_ui->m_route, whenChosen, this, &CCompareWindow::Filter);
    connect(m_ui->m_field, whenChosen, this, &CCompareWindow::Filter);
    connect(m_ui->m_least, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &CCompareWindow::Filter);
    connect(m_ui->m_compare, &QPushButton::clicked, this, &CCompareWindow::Compare);
    connect(m_ui->m_copy, &QPushButton::clicked, this, &CCompareWindow::Copy);
    connect(m_ui->m_goTo, &QPushButton::clicked, this, &CCompareWindow::GoTo);
    connect(m_ui->m_close, &QPushButton::clicked, this, &CCompareWindow::close);
    tool->installEventFilter(this);
    Show({});
    m_ui->m_summary->setText(QStringLiteral("Nothing has been compared yet."));
}

CCompareWindow::~CCompareWindow() = default;

void CCompareWindow::ConnectSide(const SSideEditors &side)
{
    connect(side.kind, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &CCompareWindow::FollowChoices);
    connect(side.file, &QLineEdit::textChanged, this, &CCompareWindow::FollowChoices);
    connect(static_cast<QPushButton *>(side.browse), &QPushButton::clicked, this,
            [this, file = side.file] { Browse(file); });
}

void CCompareWindow::ConnectTable()
{
    QTableView *table = m_ui->m_differences;
    table->setModel(&m_model);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowRim);
    QHeaderView *header = table->horizontalHeader();
    header->setSectionsClickable(true);
    header->setHighlightSections(false);
    header->setSortIndicator(-1, Qt::AscendingOrder);
    table->setSortingEnabled(true);
    for (int column = 0; column < CDifferenceModel::eColumnCount; ++column)
        header->resizeSection(column, kColumnLetters[column] * fontMetrics().averageCharWidth());
    header->setStretchLastSection(true);
    connect(table, &QTableView::doubleClicked, this, &CCompareWindow::GoTo);
    connect(new QShortcut(Qt::Key_Return, table, nullptr, nullptr, Qt::WidgetShortcut),
            &QShortcut::activated, this, &CCompareWindow::GoTo);
    connect(new QShortcut(QKeySequence::Copy, table, nullptr, nullptr, Qt::WidgetShortcut),
            &QShortcut::activated, this, &CCompareWindow::Copy);
}

void CCompareWindow::ConnectCounts(QTableWidget *table, QComboBox *filter)
{
    const auto show = [this, table, filter] {
        if (table->currentRow() < 0)
            return;
        filter->setCurrentIndex(table->currentRow() + 1);
        m_ui->m_tabs->setCurrentWidget(m_ui->m_differencesTab);
        m_ui->m_differences->setFocus();
    };
    connect(table, &QTableWidget::cellDoubleClicked, this, show);
    connect(new QShortcut(Qt::Key_Return, table, nullptr, nullptr, Qt::WidgetShortcut),
            &QShortcut::activated, this, show);
}

void CCompareWindow::ShowInFront()
{
    show();
    raise();
    activateWindow();
    m_ui->m_compare->setFocus();
}

// A window with a parent stays when the parent's window goes out of sight.
bool CCompareWindow::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Hide)
        hide();
    return QDialog::eventFilter(object, event);
}

void CCompareWindow::SetBusy(bool isOn)
{
    if (isOn && !m_isBusy)
        m_mayTakeFocus = focusWidget() == m_ui->m_compare;
    m_isBusy = isOn;
    FollowChoices();
    // Only if nothing has it: the user may have gone elsewhere.
    if (!isOn && m_mayTakeFocus && !focusWidget())
        m_ui->m_compare->setFocus(Qt::OtherFocusReason);
}

// Compare goes off while it runs. Its focus goes nowhere then: the next key must not choose a filter.
bool CCompareWindow::focusNextPrevChild(bool next)
{
    const QWidget *focus = focusWidget();
    if (m_isBusy && focus == m_ui->m_compare && !focus->isEnabled())
        return false;
    return QDialog::focusNextPrevChild(next);
}

void CCompareWindow::FollowChoices()
{
    bool isComplete = true;
    for (const SSideEditors &side : {m_left, m_right}) {
        const bool isFile = side.kind->currentIndex() == static_cast<int>(ECalSide::File);
        side.file->setEnabled(isFile);
        side.browse->setEnabled(isFile);
        isComplete = isComplete && (!isFile || !side.file->text().isEmpty());
    }
    m_ui->m_compare->setEnabled(isComplete && !m_isBusy);
}

void CCompareWindow::Browse(QLineEdit *file)
{
    const QPointer<CCompareWindow> self(this);
    QString path;
    {
        CFileDialogMan dialogs;
        path = dialogs.GetOpenFileName({}, QLatin1String(kFileFilter));
    }
    if (self && !path.isEmpty())
        file->setText(path);
}

SComparedSide CCompareWindow::SideOf(const SSideEditors &side) const
{
    SComparedSide of{.kind = static_cast<ECalSide>(side.kind->currentIndex())};
    if (of.kind == ECalSide::File)
        of.file = side.file->text();
    return of;
}

void CCompareWindow::Compare()
{
    emit Signal_Compare(SideOf(m_left), SideOf(m_right));
}

void CCompareWindow::Show(const SCalCompared &compared)
{
    const CalDifferences &differences = compared.differences;
    m_model.SetDifferences(differences);
    m_ui->m_summary->setText(Summary(compared));
    const QVector<SCalCount> none;
    const QVector<SCalCount> &routes = differences ? differences->Routes() : none;
    const QVector<SCalCount> &fields = differences ? differences->Fields() : none;
    FillFilter(m_ui->m_route, routes);
    FillFilter(m_ui->m_field, fields);
    FillCountTable(m_ui->m_routes, QStringLiteral("Route"), routes);
    FillCountTable(m_ui->m_fields, QStringLiteral("Field"), fields);
    Filter();
}

// The row that the user is at stays the current one while it is shown.
void CCompareWindow::Filter()
{
    m_model.SetFilter({.route = m_ui->m_route->currentIndex() - 1,
                       .field = m_ui->m_field->currentIndex() - 1,
                       .least = m_ui->m_least->value()});
    const int shown = m_model.rowCount();
    const int all = m_model.Differences() ? m_model.Differences()->Count() : 0;
    m_ui->m_shown->setText(shown == all ? QString()
                                        : QStringLiteral("%1 of %2 shown").arg(shown).arg(all));
    m_ui->m_copy->setEnabled(shown > 0);
    m_ui->m_goTo->setEnabled(shown > 0);
    if (shown > 0)
        m_ui->m_differences->setCurrentIndex(m_model.index(0, 0));
    m_ui->m_differences->clearSelection();
}

void CCompareWindow::Copy()
{
    if (m_model.rowCount() > 0)
        m_copy.Start(RowsOf(*m_ui->m_differences), &m_model, [](bool) {});
}

void CCompareWindow::GoTo()
{
    const QModelIndex current = m_ui->m_differences->currentIndex();
    if (current.isValid() && !m_isBusy)
        emit Signal_GoTo(m_model.Place(current.row()));
}

void CCompareWindow::Say(const QString &text)
{
    m_ui->m_shown->setText(text);
}
