// Relevance: the chain that a change of one member sets off.
//
// The chain runs through Qt's direct signals, depth-first, and writes no document: it reads
// m_dataModel and changes widgets. A key that a target's table lacks is an expected passing state
// of a fan-out: the target keeps what it shows until the publisher that completes the key has its
// turn.
#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>

#include "Model/JsonPath.h"
#include "Model/MemberPath.h"
#include "Support/Log.h"
#include "View/engine/AutoBindingDataModelDockWidget.h"
#include "View/engine/DataTypes.h"
#include "View/engine/GroupTypes.h"
#include "View/engine/RelevanceWords.h"
#include "View/engine/TableGroup.h"
#include "View/engine/WidgetIndex.h"

// A row of a column table that is the target of a change.
struct STableRow
{
    QTableWidget *table = nullptr;  // null: not found
    int row = -1;
    int columns = 0;
};

namespace {

// Documents are free of loops. One that is not must end all the same: a loop of lists would never
// come to rest, since a list publishes each time it gets new items.
constexpr int kMaxDepth = 64;
constexpr int kMaxPublications = 4096;

// Words alone: a table of entries can be most of a document.
void LogIfWorded(const char *words)
{
    if (words)
        qCDebug(lcEngine) << words;
}

// Holds a counter up for the life of a scope.
class CCountScope
{
public:
    explicit CCountScope(int &count) : m_count(count) { ++m_count; }
    ~CCountScope() { --m_count; }
    CCountScope(const CCountScope &) = delete;
    CCountScope &operator=(const CCountScope &) = delete;

private:
    int &m_count;
};

QString CheckText(int state)
{
    return state == Qt::Checked ? QStringLiteral("true") : QStringLiteral("false");
}

}  // namespace

void CAutoBindingDataModelDockWidget::Slot_ValueChange(QString currentText)
{
    Publish(kValueWords, currentText);
}

void CAutoBindingDataModelDockWidget::Slot_EnableStatusChange(QString currentText)
{
    Publish(kStatusWords, currentText);
}

void CAutoBindingDataModelDockWidget::Slot_CheckBoxValueChange(int state)
{
    qCDebug(lcEngine) << "============ [Value Relevance]Check Box  =========== " << state;
    Slot_ValueChange(CheckText(state));
}

void CAutoBindingDataModelDockWidget::Slot_CheckBoxEnableStatusChange(int state)
{
    qCDebug(lcEngine) << "============ [Status Relevance]Check Box  =========== " << state;
    Slot_EnableStatusChange(CheckText(state));
}

void CAutoBindingDataModelDockWidget::Publish(const SRelevanceWords &words,
                                              const QString &currentText)
{
    qCDebug(lcEngine) << words.start << currentText;
    // A combo box that is being cleared.
    if (currentText.isEmpty())
        return;
    const auto *publisher = qobject_cast<QWidget *>(sender());
    if (!publisher || !publisher->isVisible())
        return;
    if (words.needsEnabledSender && !publisher->isEnabled())
        return;
    if (m_relevanceDepth == 0) {
        m_relevanceCount = 0;
        // What another widget sets off may give the editor new limits.
        if (publisher != m_edits.Editor())
            FinishEdit();
    }
    if (m_relevanceDepth >= kMaxDepth || m_relevanceCount >= kMaxPublications) {
        if (m_relevanceCount <= kMaxPublications)
            qCCritical(lcEngine) << "publish lists form a loop, the chain ends at"
                                 << publisher->objectName();
        m_relevanceCount = kMaxPublications + 1;
        return;
    }
    ++m_relevanceCount;
    const CCountScope depth(m_relevanceDepth);
    const CIndexScope index(this);

    qCDebug(lcEngine) << words.key << currentText;
    const QString path = PathFromObjectName(publisher->objectName());
    const QJsonArray targets = GetJsonValueConst(m_dataModel, path)
                                   .toObject()
                                   .value(QLatin1String(words.publishList))
                                   .toArray();
    qCDebug(lcEngine) << words.publishFound << "count: " << targets.size();
    for (const QJsonValue &target : targets)
        PublishTo(words, AbsoluteModelPath(target.toString()), currentText);
    qCDebug(lcEngine) << words.done;
}

void CAutoBindingDataModelDockWidget::PublishTo(const SRelevanceWords &words, const QString &target,
                                                const QString &currentText)
{
    qCDebug(lcEngine) << words.target << target;
    const int groupType = GetGroupType(target);
    qCDebug(lcEngine) << words.groupType << groupType;
    const QJsonArray subscribed =
        GetJsonValueConst(m_dataModel,
                          target + QLatin1Char('.') + QLatin1String(words.subscribeList))
            .toArray();
    QString key = currentText;
    if (!subscribed.isEmpty()) {
        key = BuildLiveKey(subscribed);
        qCDebug(lcEngine) << words.subscribeFound;
    }
    qCDebug(lcEngine) << words.targetKey << key;
    switch (groupType) {
    case eGroupScalar:
        (this->*words.applyScalar)(target, key);
        break;
    case eGroupColumnTable:
        (this->*words.applyTable)(target, key);
        break;
    default:
        qCCritical(lcEngine) << words.unsupported;
    }
}

QString CAutoBindingDataModelDockWidget::BuildLiveKey(const QJsonArray &list)
{
    const CIndexScope index(this);
    QString key;
    for (int i = 0; i < list.size(); ++i) {
        const QString path = AbsoluteModelPath(list.at(i).toString());
        qCDebug(lcEngine) << "---> subscribeValue <---" << path;
        const QWidget *widget = index->Find(path);
        if (!widget)
            continue;
        const QString name =
            GetJsonValueConst(m_dataModel, path + QLatin1String(".trait.dataType")).toString();
        const SDataType *type = FindScalarType(name, widget);
        if (!type || !type->keyText)
            continue;
        key += type->keyText(widget);
        if (i + 1 < list.size())
            key += QLatin1Char(',');
    }
    return key;
}

QWidget *CAutoBindingDataModelDockWidget::FindScalarTarget(const SScalarTargetWords &words,
                                                           const QString &target)
{
    const CIndexScope index(this);
    QWidget *widget = index->Find(target);
    if (!widget) {
        qCCritical(lcEngine) << words.none;
        return nullptr;
    }
    qCDebug(lcEngine) << words.found;
    if (!widget->isVisible()) {
        qCDebug(lcEngine) << words.hidden;
        return nullptr;
    }
    return widget;
}

STableRow CAutoBindingDataModelDockWidget::FindTableTarget(const STableTargetWords &words,
                                                           const QString &target)
{
    const CIndexScope index(this);
    const STableGroup group(m_dataModel, target);
    qCDebug(lcEngine) << words.rows << group.rows;
    if (words.columns)
        qCDebug(lcEngine) << words.columns << group.columns;
    QWidget *widget = nullptr;
    for (const QString &member : group.rows) {
        widget = index->Find(GroupPropertyPath(target) + QLatin1Char('.') + member);
        if (widget)
            break;
    }
    if (!widget) {
        qCCritical(lcEngine) << words.none;
        return {};
    }
    QTableWidget *table = AsTable(widget, words.notATable);
    if (!table)
        return {};
    qCDebug(lcEngine) << words.found;
    const int row = group.rows.indexOf(MemberKey(target));
    if (row < 0) {
        if (words.noRow)
            qCCritical(lcEngine) << words.noRow;
        return {};
    }
    qCDebug(lcEngine) << words.rowFound << row;
    return {table, row, group.columns};
}

// The entry of the target's table for a key; missing, with the failure on the critical log.
QJsonValue CAutoBindingDataModelDockWidget::FindEntry(const SEntryWords &words,
                                                      const QString &target, const QString &key)
{
    const QJsonValue trait = GetJsonValueConst(m_dataModel, target + QLatin1String(".trait"));
    LogIfWorded(words.traitFound);
    if (!IsJsonValueValid(trait)) {
        qCCritical(lcEngine) << words.noTrait;
        return {};
    }
    const QJsonValue pair = trait.toObject().value(QLatin1String(words.pair));
    LogIfWorded(words.pairFound);
    if (!IsJsonValueValid(pair)) {
        qCCritical(lcEngine) << words.noPair;
        return {};
    }
    const QJsonValue entry = GetJsonValueConst(pair.toObject(), key);
    if (words.entryFound)
        qCDebug(lcEngine) << words.entryFound << entry;
    if (!IsJsonValueValid(entry))
        qCCritical(lcEngine) << words.noEntry;
    return entry;
}

void CAutoBindingDataModelDockWidget::ApplyScalarValueRelevance(const QString &target,
                                                                const QString &key)
{
    QWidget *widget = FindScalarTarget(kValueWords.scalar, target);
    if (!widget)
        return;
    const QJsonValue entry = FindEntry(kValueWords.scalar.entry, target, key);
    if (!IsJsonValueValid(entry))
        return;
    const QJsonObject trait =
        GetJsonValueConst(m_dataModel, target + QLatin1String(".trait")).toObject();
    const SDataType *type =
        FindScalarType(trait.value(QLatin1String("dataType")).toString(), widget);
    if (!type || !type->relate) {
        qCCritical(lcEngine) << "---> [Fail][Value Relevance][type1] Cannot get the mapping of "
                                "dataType and widget <--- ";
        return;
    }
    qCDebug(lcEngine) << type->relateLog;
    type->relate(widget, {entry, trait.value(QLatin1String("defaultValue")).toString(),
                          m_modelInterface == eInterfaceCmdIf});
}

void CAutoBindingDataModelDockWidget::ApplyTableValueRelevance(const QString &target,
                                                               const QString &key)
{
    const STableRow found = FindTableTarget(kValueWords.table, target);
    if (!found.table)
        return;
    const QJsonValue entry = FindEntry(kValueWords.table.entry, target, key);
    if (!IsJsonValueValid(entry))
        return;
    const QJsonObject trait =
        GetJsonValueConst(m_dataModel, target + QLatin1String(".trait")).toObject();
    const SDataType *type = FindDataType(trait.value(QLatin1String("dataType")).toString());
    if (!type || !type->relateCell) {
        qCCritical(lcEngine)
            << "---> [Fail][Value Relevance][type3] Not support this data type yet";
        return;
    }
    qCDebug(lcEngine) << type->relateCellLog;
    const QJsonObject limits = entry.toObject();
    if (IsJsonValueValid(limits.value(QLatin1String("rangeCheck"))))
        qCDebug(lcEngine) << "---> [Value Relevance][type3] Has the range check <---";
    if (IsJsonValueValid(limits.value(QLatin1String("value"))))
        qCDebug(lcEngine) << "---> [Value Relevance][type3] Has the value in valuePair <---";
    const QJsonArray defaults = trait.value(QLatin1String("defaultValue")).toArray();
    for (int c = 0; c < found.columns; ++c) {
        QWidget *cell = found.table->cellWidget(found.row, c);
        if (!cell || !IsExactClass(cell, type->className))
            continue;
        type->relateCell(cell, {entry, ColumnElement(defaults, c).toString(),
                                m_modelInterface == eInterfaceCmdIf, c});
    }
}

void CAutoBindingDataModelDockWidget::ApplyScalarStatusRelevance(const QString &target,
                                                                 const QString &key)
{
    QWidget *widget = FindScalarTarget(kStatusWords.scalar, target);
    if (!widget)
        return;
    const QJsonValue entry = FindEntry(kStatusWords.scalar.entry, target, key);
    if (!IsJsonValueValid(entry))
        return;
    widget->setEnabled(entry.toInt() != 0);
    if (auto *checkBox = ExactCast<QCheckBox>(widget)) {
        if (!checkBox->isEnabled()) {
            qCDebug(lcEngine)
                << "---> [Status Relevance][type1] check box publish current check status <---";
            checkBox->setChecked(false);
        }
    } else if (auto *comboBox = ExactCast<QComboBox>(widget)) {
        qCDebug(lcEngine)
            << "---> [Status Relevance][type1] combox box publish current text change <---";
        emit comboBox->currentTextChanged(comboBox->currentText());
    } else if (IsExactClass(widget, "QSbinBox")) {
        // No class bears this name, so a spin box never publishes again. Documents rely on that.
        qCDebug(lcEngine)
            << "---> [Status Relevance][type1] spin box publish current text change <---";
        auto *spinBox = static_cast<QSpinBox *>(widget);
        emit spinBox->valueChanged(spinBox->value());
    }
}

void CAutoBindingDataModelDockWidget::ApplyTableStatusRelevance(const QString &target,
                                                                const QString &key)
{
    const STableRow found = FindTableTarget(kStatusWords.table, target);
    if (!found.table)
        return;
    const QJsonValue entry = FindEntry(kStatusWords.table.entry, target, key);
    if (!IsJsonValueValid(entry))
        return;
    for (int c = 0; c < found.columns; ++c) {
        if (QWidget *cell = found.table->cellWidget(found.row, c))
            cell->setEnabled(entry.toInt() != 0);
    }
}
