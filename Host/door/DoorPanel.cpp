#include "Host/door/DoorPanel.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include <QClipboard>
#include <QCompleter>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLocale>
#include <QScrollBar>
#include <QShortcut>

#include "Host/SimulatedDut.h"
#include "Host/door/MakeDoorSource.h"
#include "Host/door/TraceSave.h"
#include "ui_DoorPanel.h"

namespace {

constexpr std::chrono::milliseconds kLook(100);     // between two looks at the source
constexpr std::chrono::milliseconds kNextLook(50);  // when more is there
constexpr std::chrono::milliseconds kLongestLook(4);
constexpr std::size_t kLongTable = 1000;  // rows of fields
constexpr char kHint[] = "Choose a call to see its fields, two calls to compare them.";

QStringList FunctionNames()
{
    QStringList names;
    for (int id = 0; id < static_cast<int>(EFunction::Count); ++id) {
        const std::string_view name = FunctionOf(static_cast<EFunction>(id)).name;
        names.append(QString::fromLatin1(name.data(), static_cast<int>(name.size())));
    }
    names.sort();
    return names;
}

// Upwards.
std::vector<int> ChosenRows(const QTableView &table)
{
    std::vector<int> rows;
    for (const QItemSelectionRange &range : table.selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

QString Joined(const QStringList &cells)
{
    return cells.join('\t') + '\n';
}

QString CallsText(const std::vector<SDoorCall> &calls)
{
    QStringList captions;
    for (int column = 0; column < CDoorModel::eColumnCount; ++column)
        captions.append(CDoorModel::Caption(column));
    QString text = Joined(captions);
    for (const SDoorCall &call : calls) {
        QStringList cells;
        for (int column = 0; column < CDoorModel::eColumnCount; ++column)
            cells.append(CDoorModel::Text(call, column));
        text += Joined(cells);
    }
    return text;
}

QString FieldsText(const SDoorFields &fields, const std::vector<int> &rows)
{
    QString text = Joined(fields.captions);
    for (const int row : rows) {
        QStringList cells;
        for (int column = 0; column < fields.captions.size(); ++column)
            cells.append(CFieldModel::Text(fields.rows[static_cast<std::size_t>(row)], column));
        text += Joined(cells);
    }
    return text;
}

QString CountText(std::size_t count)
{
    const QString number = QLocale::c().toString(static_cast<qulonglong>(count));
    return number + (count == 1 ? " call" : " calls");
}

}  // namespace

CDoorPanel::CDoorPanel(CSimulatedDut &dut, QWidget *parent)
    : CDoorPanel(MakeDoorSource(dut), parent)
{
}

CDoorPanel::CDoorPanel(std::unique_ptr<IDoorSource> source, QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::CDoorPanel>()), m_source(std::move(source))
{
    m_ui->setupUi(this);
    SetUpTables();
    auto *const completer = new QCompleter(FunctionNames(), this);
    completer->setFilterMode(Qt::MatchContains);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_ui->m_function->setCompleter(completer);
    connect(m_ui->m_function, &QLineEdit::textChanged, this, &CDoorPanel::ApplyFilter);
    connect(m_ui->m_failedOnly, &QCheckBox::toggled, this, &CDoorPanel::ApplyFilter);
    connect(m_ui->m_setOnly, &QCheckBox::toggled, this, &CDoorPanel::ShowFields);
    connect(&m_timer, &QTimer::timeout, this, &CDoorPanel::Poll);
    ShowFields();
    ShowState();
}

CDoorPanel::~CDoorPanel()
{
    m_isStopped = true;
    m_pool.clear();
    m_pool.waitForDone();
}

void CDoorPanel::SetUpTables()
{
    const int width = fontMetrics().averageCharWidth();
    m_ui->m_calls->setModel(&m_calls);
    SetUpTable(*m_ui->m_calls, {7 * width, 13 * width, 30 * width, 9 * width});
    m_ui->m_fields->setModel(&m_fields);
    SetUpTable(*m_ui->m_fields, {});
    connect(m_ui->m_calls->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CDoorPanel::ShowFields);
    // An open call that is chosen has ended.
    connect(&m_calls, &CDoorModel::dataChanged, this, [this](const QModelIndex &changed) {
        if (m_ui->m_calls->selectionModel()->isRowSelected(changed.row(), {}))
            ShowFields();
    });
    auto *const copyCalls = new QShortcut(QKeySequence::Copy, m_ui->m_calls);
    copyCalls->setContext(Qt::WidgetShortcut);
    connect(copyCalls, &QShortcut::activated, this, &CDoorPanel::CopyCalls);
    auto *const copyFields = new QShortcut(QKeySequence::Copy, m_ui->m_fields);
    copyFields->setContext(Qt::WidgetShortcut);
    connect(copyFields, &QShortcut::activated, this, &CDoorPanel::CopyFields);
}

// Rows of one height, which nobody measures.
void CDoorPanel::SetUpTable(QTableView &table, const std::vector<int> &widths)
{
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + 4);
    for (std::size_t i = 0; i < widths.size(); ++i)
        table.horizontalHeader()->resizeSection(static_cast<int>(i), widths[i]);
}

void CDoorPanel::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_source && !m_ui->m_pause->isChecked())
        m_timer.start(kLook);
}

void CDoorPanel::hideEvent(QHideEvent *event)
{
    m_timer.stop();
    QWidget::hideEvent(event);
}

void CDoorPanel::Poll()
{
    SDoorNews news;
    m_source->Poll(news, DoorClock::now() + kLongestLook);
    m_timer.setInterval(news.hasMore ? kNextLook : kLook);
    const QScrollBar &bar = *m_ui->m_calls->verticalScrollBar();
    const bool isAtEnd = bar.value() == bar.maximum();
    const int rows = m_calls.rowCount();
    const bool isReset = news.isReset;
    m_calls.Take(std::move(news));
    m_calls.DropBefore(m_source->FirstPlace());
    if (isReset)
        ShowFields();
    if (isAtEnd && m_calls.rowCount() != rows)
        m_ui->m_calls->scrollToBottom();
    ShowState();
}

void CDoorPanel::on_m_pause_toggled(bool isPaused)
{
    if (isPaused)
        m_timer.stop();
    else if (m_source && isVisible())
        m_timer.start(kNextLook);
    ShowState();
}

// What was chosen stays chosen, as far as it is shown.
void CDoorPanel::ApplyFilter()
{
    const std::vector<int> chosen = ChosenRows(*m_ui->m_calls);
    std::vector<uint64_t> serials;
    for (std::size_t i = 0; i < chosen.size() && chosen.size() <= 2; ++i)
        serials.push_back(m_calls.SerialAt(chosen[i]));
    m_calls.SetFilter({.function = m_ui->m_function->text().trimmed(),
                       .isFailedOnly = m_ui->m_failedOnly->isChecked()});
    QItemSelection selection;
    for (const uint64_t serial : serials) {
        const QModelIndex index = m_calls.index(m_calls.RowOf(serial), 0);
        if (index.isValid())
            selection.select(index, index);
    }
    m_ui->m_calls->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect |
                                                           QItemSelectionModel::Rows);
    if (selection.isEmpty())
        m_ui->m_calls->scrollToBottom();
    else
        m_ui->m_calls->scrollTo(selection.indexes().constFirst());
    ShowFields();
    Say({});
}

void CDoorPanel::ShowFields()
{
    const std::vector<int> rows = ChosenRows(*m_ui->m_calls);
    m_ui->m_setOnly->setEnabled(rows.size() != 2);
    ++m_request;
    if (rows.empty() || rows.size() > 2)
        return ShowFieldsOf({.about = kHint, .captions = {}, .rows = {}});
    std::vector<STraceCall> calls;
    for (const int row : rows) {
        std::optional<STraceCall> call = m_source->Read(m_calls.CallAt(row));
        if (!call)
            return ShowFieldsOf(
                {.about = QString("Call %1 is in the journal no more: it keeps the last 64 MiB.")
                              .arg(m_calls.CallAt(row).number),
                 .captions = {},
                 .rows = {}});
        calls.push_back(std::move(*call));
    }
    const EWhichFields which = m_ui->m_setOnly->isChecked() ? EWhichFields::Set : EWhichFields::All;
    RunAside([this, which, request = m_request, calls = std::move(calls)]() -> Then {
        auto fields = std::make_shared<SDoorFields>(calls.size() == 1
                                                        ? FieldsOfCall(calls[0], which)
                                                        : DifferencesOfCalls(calls[0], calls[1]));
        return [this, request, fields = std::move(fields)] {
            if (request == m_request)
                ShowFieldsOf(std::move(*fields));
        };
    });
}

void CDoorPanel::ShowFieldsOf(SDoorFields fields)
{
    m_ui->m_about->setText(fields.about);
    m_ui->m_copyFields->setEnabled(!fields.rows.empty());
    const int columns = m_fields.columnCount();
    ReleaseAside(m_fields.Show(std::make_shared<const SDoorFields>(std::move(fields))));
    if (m_fields.columnCount() == columns)
        return;
    const int width = fontMetrics().averageCharWidth();
    for (int column = 0; column + 1 < m_fields.columnCount(); ++column)
        m_ui->m_fields->setColumnWidth(column, (column == 0 ? 36 : 26) * width);
}

// A long table takes longer to free than an event may.
void CDoorPanel::ReleaseAside(CFieldModel::Fields fields)
{
    if (fields->rows.size() < kLongTable)
        return;
    m_pool.start([held = std::move(fields)]() mutable { held.reset(); });
}

void CDoorPanel::CopyCalls()
{
    std::vector<SDoorCall> calls;
    const std::vector<int> rows = ChosenRows(*m_ui->m_calls);
    if (rows.empty())
        calls = m_calls.ShownCalls();
    for (const int row : rows)
        calls.push_back(m_calls.CallAt(row));
    RunAside([this, calls = std::move(calls)]() -> Then {
        return [this, text = CallsText(calls), count = calls.size()] {
            QGuiApplication::clipboard()->setText(text);
            Say(CountText(count) + " copied.");
        };
    });
}

void CDoorPanel::CopyFields()
{
    std::vector<int> rows = ChosenRows(*m_ui->m_fields);
    if (rows.empty()) {
        rows.resize(m_fields.Shown()->rows.size());
        std::iota(rows.begin(), rows.end(), 0);
    }
    RunAside([rows = std::move(rows), fields = m_fields.Shown()]() -> Then {
        return [text = FieldsText(*fields, rows)] { QGuiApplication::clipboard()->setText(text); };
    });
}

void CDoorPanel::on_m_save_clicked()
{
    auto *const dialog =
        new QFileDialog(this, "Save as trace", "calls.jsonl", "Traces (*.jsonl);;All files (*)");
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix("jsonl");
    dialog->selectFile("calls.jsonl");
    connect(dialog, &QFileDialog::fileSelected, this, &CDoorPanel::SaveAsTrace);
    dialog->open();
}

void CDoorPanel::SaveAsTrace(const QString &file)
{
    if (!m_source)
        return;
    m_ui->m_save->setEnabled(false);
    Say("Saving...");
    RunAside([this, file, calls = m_calls.ShownCalls(),
              header = m_source->Header()]() mutable -> Then {
        const STraceSaved saved = SaveTrace(*m_source, header, std::move(calls), file, m_isStopped);
        return [this, saved, file] {
            m_ui->m_save->setEnabled(true);
            if (!saved.error.isEmpty())
                return Say(saved.error);
            QString message = CountText(saved.written) + " saved to " + file + ".";
            if (saved.gone > 0)
                message += " " + CountText(saved.gone) + " had gone from the journal.";
            Say(message);
        };
    });
}

void CDoorPanel::Say(const QString &message)
{
    m_message = message;
    ShowState();
}

void CDoorPanel::ShowState()
{
    QString state = m_source ? m_source->About()
                             : "No calls can be seen here: the DUT is not "
                               "simulated, and no trace is recorded.";
    if (m_source && m_calls.CallCount() > 0) {
        state += ": " + CountText(m_calls.CallCount());
        const auto shown = static_cast<std::size_t>(m_calls.rowCount());
        if (shown != m_calls.CallCount())
            state += QString(", %1 shown").arg(QLocale::c().toString(m_calls.rowCount()));
    }
    if (m_ui->m_pause->isChecked())
        state += ". Paused";
    if (!m_message.isEmpty())
        state += ". " + m_message;
    if (m_ui->m_state->text() != state)
        m_ui->m_state->setText(state);
    const bool hasCalls = m_calls.rowCount() > 0;
    m_ui->m_copy->setEnabled(hasCalls);
    m_ui->m_save->setEnabled(hasCalls && m_message != "Saving...");
}

void CDoorPanel::RunAside(std::function<Then()> job)
{
    m_pool.start([this, job = std::move(job)] {
        Then then = job();
        QMetaObject::invokeMethod(this, std::move(then), Qt::QueuedConnection);
    });
}
