#include "Host/dut/FaultModel.h"

#include <algorithm>

#include <QColor>
#include <QJsonDocument>
#include <QPalette>

#include "Host/dut/FaultWords.h"

namespace {

constexpr const char *kFaultHeaders[CFaultModel::eColumnCount] = {
    "Function", "Kind", "Parameters", "Condition", "Fired", "From"};

QJsonObject ParsedObject(const QString &text)
{
    return QJsonDocument::fromJson(text.toUtf8()).object();
}

QString CompactText(const QJsonObject &json)
{
    return QString::fromUtf8(QJsonDocument(json).toJson(QJsonDocument::Compact));
}

bool IsSameFault(const CFaultModel::SRow &one, const CFaultModel::SRow &other)
{
    return one.IsFault() && other.IsFault()
               ? one.fault.id == other.fault.id
               : one.IsFault() == other.IsFault() && one.json == other.json;
}

// What a step to come does: its kind and its parameters.
std::pair<QString, QString> StepWords(const QJsonObject &step)
{
    if (step.contains("plugged"))
        return {step.value("plugged").toBool() ? "plug in" : "unplug", {}};
    return {"radio", CompactText(step.value("radio").toObject())};
}

QString SourceWords(const CFaultModel::SRow &row)
{
    if (!row.IsFault())
        return "step to come";
    switch (row.fault.source) {
    case eVondSimFaultOfProfile:
        return "profile";
    case eVondSimFaultOfScenario:
        return "scenario";
    default:
        return "added";
    }
}

QString FiredWords(const SVondSimFault &fault)
{
    const QString counts = QString("%1 of %2").arg(fault.firedCount).arg(fault.callCount);
    return fault.isOver ? counts + ", over" : counts;
}

}  // namespace

CFaultModel::CFaultModel(const CSimulatedDut &dut, QObject *parent)
    : QAbstractTableModel(parent), m_dut(dut)
{
}

void CFaultModel::Refresh()
{
    std::vector<SRow> rows = TakeRows();
    for (int i = rowCount(); i-- > 0;) {
        const auto at = m_rows.begin() + i;
        if (std::none_of(rows.begin(), rows.end(),
                         [&](const SRow &row) { return IsSameFault(row, *at); })) {
            beginRemoveRows({}, i, i);
            m_rows.erase(at);
            endRemoveRows();
        }
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (i >= m_rows.size() || !IsSameFault(rows[i], m_rows[i])) {
            const int at = static_cast<int>(i);
            beginInsertRows({}, at, at);
            m_rows.insert(m_rows.begin() + at, rows[i]);
            endInsertRows();
        }
    }
    if (m_rows.size() != rows.size()) {  // rows have changed places
        beginResetModel();
        m_rows = std::move(rows);
        endResetModel();
    } else if (!rows.empty()) {
        m_rows = std::move(rows);
        emit dataChanged(index(0, 0), index(rowCount() - 1, eColumnCount - 1));
    }
}

QJsonArray CFaultModel::TakeSteps() const
{
    return ParsedObject(CSimulatedDut::Text(m_dut->GetStateAsScenario, "", ""))
        .value("steps")
        .toArray();
}

// The state's steps with a fault are those that are on, can still fire and are not the profile's, in
// order. Between the calls the DUT may go on: then a condition may be missing until the next time.
std::vector<CFaultModel::SRow> CFaultModel::TakeRows() const
{
    std::vector<SRow> rows;
    SRow fault;
    for (uint32_t i = 0; m_dut->GetFault(i, &fault.fault) == 0; ++i) {
        fault.json = ParsedObject(CSimulatedDut::Text(m_dut->GetFaultText, fault.fault.id));
        rows.push_back(fault);
    }
    const QJsonArray steps = TakeSteps();
    std::size_t next = 0;
    const std::size_t faultCount = rows.size();
    for (const QJsonValue &value : steps) {
        const QJsonObject step = value.toObject();
        const QJsonObject when = step.value("when").toObject();
        if (step.contains("fault")) {
            while (next < faultCount && rows[next].json != step.value("fault").toObject())
                ++next;
            if (next < faultCount)
                rows[next++].when = when;
        } else if (!when.isEmpty())
            rows.push_back({.fault = {}, .json = step, .when = when});
    }
    return rows;
}

int CFaultModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int CFaultModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : eColumnCount;
}

QVariant CFaultModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const SRow &row = m_rows[static_cast<std::size_t>(index.row())];
    if (role == Qt::ToolTipRole && index.column() == eParameters && row.IsFault())
        return ParameterHint(row);
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return Text(row, index.column());
    if (role == Qt::CheckStateRole && index.column() == eFunction && row.IsFault())
        return row.fault.isOn ? Qt::Checked : Qt::Unchecked;
    if (role == Qt::ForegroundRole && row.IsFault() && (row.fault.isOver || !row.fault.isOn))
        return QPalette().color(QPalette::Disabled, QPalette::Text);
    return {};
}

QString CFaultModel::Text(const SRow &row, int column)
{
    switch (column) {
    case eFunction:
        if (!row.IsFault())
            return row.when.value("function").toString();
        return row.fault.function[0] != '\0' ? QString::fromUtf8(row.fault.function) : "the flash";
    case eKind:
        return row.IsFault() ? QString::fromUtf8(row.fault.kind) : StepWords(row.json).first;
    case eParameters:
        return row.IsFault() ? ParameterWords(row.json) : StepWords(row.json).second;
    case eWhen:
        return WhenWords(row.IsFault() ? row.json : row.when, row.when);
    case eFired:
        return row.IsFault() ? FiredWords(row.fault) : QString();
    default:
        return SourceWords(row);
    }
}

// The number of a result, and what it says.
QString CFaultModel::ParameterHint(const SRow &row) const
{
    const QString words = ParameterWords(row.json);
    if (row.json.value("kind").toString() != "fail")
        return words;
    const int result = row.json.value("result").toInt(kFailResult);
    return words + ": " + QString::fromUtf8(m_dut->ResultText(result));
}

bool CFaultModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || role != Qt::CheckStateRole || index.column() != eFunction)
        return false;
    const uint32_t id = m_rows[static_cast<std::size_t>(index.row())].fault.id;
    const bool isDone = m_dut->SwitchFault(id, value.toInt() == Qt::Checked ? 1 : 0) == 0;
    Refresh();
    return isDone;
}

Qt::ItemFlags CFaultModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    const bool hasBox = index.isValid() && index.column() == eFunction &&
                        m_rows[static_cast<std::size_t>(index.row())].IsFault();
    return hasBox ? flags | Qt::ItemIsUserCheckable : flags;
}

QVariant CFaultModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return kFaultHeaders[section];
    return QAbstractTableModel::headerData(section, orientation, role);
}
