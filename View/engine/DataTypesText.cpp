// Data types that are edited as text or choice: list, label, boolean.
#include <QCheckBox>
#include <QComboBox>
#include <QJsonArray>
#include <QLabel>

#include "View/engine/DataTypeRows.h"

namespace {

// list

void FillList(QComboBox *box, const QJsonArray &items)
{
    for (const QJsonValue &item : items)
        box->addItem(item.toString());
}

void InitList(QWidget *widget, const QJsonObject &member, const QJsonValue &entry)
{
    auto *box = As<QComboBox>(widget);
    box->clear();
    FillList(box, entry.toArray());
    // A default that is no item leaves the first item current: the box is not editable.
    box->setCurrentText(LoggedDefault(member));
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
}

void ShowList(QWidget *widget, const QJsonObject &, const QString &text)
{
    auto *box = As<QComboBox>(widget);
    if (box->findData(text, Qt::DisplayRole, Qt::MatchExactly | Qt::MatchCaseSensitive) >= 0)
        box->setCurrentText(text);
    else
        box->setCurrentIndex(-1);
}

// A new list always starts at its first item. Qt makes that item current as it is added, so the
// members that depend on this one are recomputed before the list is complete.
void RelateList(QWidget *widget, const SRelevance &relevance)
{
    auto *box = As<QComboBox>(widget);
    qCDebug(lcEngine) << "---> [Value Relevance][type1] Final value <---" << relevance.entry;
    box->clear();
    FillList(box, relevance.entry.toArray());
    box->setCurrentIndex(0);
}

QWidget *MakeListCell(const SCellWish &wish)
{
    auto *box = new QComboBox(wish.parent);
    FillList(box, wish.items);
    SetCellFont(box);
    box->setCurrentText(wish.value.toString());
    return box;
}

QString ListText(const QWidget *widget)
{
    return As<QComboBox>(widget)->currentText();
}

// label

void ShowLabel(QWidget *widget, const QJsonObject &, const QString &text)
{
    As<QLabel>(widget)->setText(text);
}

void InitLabel(QWidget *widget, const QJsonObject &member, const QJsonValue &)
{
    ShowLabel(widget, member, LoggedDefault(member));
}

void RelateLabel(QWidget *widget, const SRelevance &relevance)
{
    ShowLabel(widget, {}, relevance.entry.toString());
    qCDebug(lcEngine) << "---> [Value Relevance][type1] Final Value <---" << relevance.entry;
}

QWidget *MakeLabelCell(const SCellWish &wish)
{
    auto *label = new QLabel(wish.parent);
    SetCellFont(label);
    if (wish.use == ECellUse::Column) {
        label->setFrameShape(QFrame::Panel);
        label->setFrameShadow(QFrame::Sunken);
    } else {
        label->setAlignment(Qt::AlignCenter);
    }
    const bool given = !wish.value.isUndefined() && !wish.value.isNull();
    label->setText(given ? wish.value.toString() : QStringLiteral("0"));
    return label;
}

QString LabelText(const QWidget *widget)
{
    return As<QLabel>(widget)->text();
}

// boolean

void SetChecked(QWidget *widget, const QString &text)
{
    As<QCheckBox>(widget)->setChecked(text == QLatin1String("true"));
}

void ShowBoolean(QWidget *widget, const QJsonObject &member, const QString &text)
{
    As<QCheckBox>(widget)->setText(member.value(QLatin1String("caption")).toString());
    SetChecked(widget, text);
}

void InitBoolean(QWidget *widget, const QJsonObject &member, const QJsonValue &)
{
    ShowBoolean(widget, member, LoggedDefault(member));
}

void RelateBoolean(QWidget *widget, const SRelevance &relevance)
{
    SetChecked(widget, relevance.entry.toString());
}

QString BooleanText(const QWidget *widget)
{
    return As<QCheckBox>(widget)->isChecked() ? QStringLiteral("true") : QStringLiteral("false");
}

}  // namespace

SDataType ListType()
{
    SDataType row;
    row.name = "list";
    row.className = "QComboBox";
    row.initLog = "---> [Init][type1] Init Combo Box  <---";
    row.readsEntry = true;
    row.init = InitList;
    row.show = ShowList;
    row.text = ListText;
    row.relateLog = "---> [Value Relevance][type1] Combobox List <---";
    row.relate = RelateList;
    row.keyText = ListText;
    row.valueSignal = SIGNAL(currentTextChanged(QString));
    row.valueSlot = SLOT(Slot_ValueChange(QString));
    row.statusSignal = SIGNAL(currentTextChanged(QString));
    row.statusSlot = SLOT(Slot_EnableStatusChange(QString));
    row.makeCell = MakeListCell;
    return row;
}

SDataType LabelType()
{
    SDataType row;
    row.name = "label";
    row.className = "QLabel";
    row.initLog = "---> [Init][type1] Init label  <---";
    row.init = InitLabel;
    row.show = ShowLabel;
    row.text = LabelText;
    row.relateLog = "---> [Value Relevance][type1] Label <---";
    row.relate = RelateLabel;
    row.inRowTable = true;
    row.updatesCell = true;
    row.takesStatus = true;
    row.makeCell = MakeLabelCell;
    return row;
}

SDataType BooleanType()
{
    SDataType row;
    row.name = "boolean";
    row.className = "QCheckBox";
    row.initLog = "---> [Init][type1] Init Check Box  <---";
    row.init = InitBoolean;
    row.show = ShowBoolean;
    row.text = BooleanText;
    row.relateLog = "---> [Value Relevance][type1] Check Box <---";
    row.relate = RelateBoolean;
    row.keyText = BooleanText;
    row.valueSignal = SIGNAL(stateChanged(int));
    row.valueSlot = SLOT(Slot_CheckBoxValueChange(int));
    row.statusSignal = SIGNAL(stateChanged(int));
    row.statusSlot = SLOT(Slot_CheckBoxEnableStatusChange(int));
    return row;
}
