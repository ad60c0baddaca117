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

// A new list starts at its first item. Qt makes that item current as it is added: what depends on
// this member follows before the list is complete.
void RelateList(QWidget *widget, const SRelation &relation)
{
    auto *box = As<QComboBox>(widget);
    qCDebug(lcEngine) << "---> [Value Relevance][type1] Final value <---" << relation.entry;
    box->clear();
    FillList(box, relation.entry.toArray());
    box->setCurrentIndex(0);
}

// A value that is no item leaves the first one current.
void StartListCell(QWidget *cell, const SCellWish &wish)
{
    auto *box = As<QComboBox>(cell);
    box->setCurrentIndex(0);
    box->setCurrentText(wish.value.toString());
}

QWidget *MakeListCell(const SCellWish &wish)
{
    auto *box = new QComboBox(wish.parent);
    FillList(box, wish.items);
    SetCellFont(box);
    StartListCell(box, wish);
    return box;
}

QString ListText(const QWidget *widget)
{
    return As<QComboBox>(widget)->currentText();
}

// Whether it was enabled or disabled. Value relevance passes over a disabled publisher.
void PublishListAgain(QWidget *widget)
{
    qCDebug(lcEngine)
        << "---> [Status Relevance][type1] combox box publish current text change <---";
    auto *box = As<QComboBox>(widget);
    emit box->currentTextChanged(box->currentText());
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

void RelateLabel(QWidget *widget, const SRelation &relation)
{
    ShowLabel(widget, {}, relation.entry.toString());
    qCDebug(lcEngine) << "---> [Value Relevance][type1] Final Value <---" << relation.entry;
}

void StartLabelCell(QWidget *cell, const SCellWish &wish)
{
    const bool given = !wish.value.isUndefined() && !wish.value.isNull();
    ShowLabel(cell, {}, given ? wish.value.toString() : QStringLiteral("0"));
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
    StartLabelCell(label, wish);
    return label;
}

QString LabelText(const QWidget *widget)
{
    return As<QLabel>(widget)->text();
}

Qt::Alignment LabelAlignment(const QWidget *widget)
{
    return As<QLabel>(widget)->alignment();
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

void RelateBoolean(QWidget *widget, const SRelation &relation)
{
    SetChecked(widget, relation.entry.toString());
}

QString BooleanText(const QWidget *widget)
{
    return As<QCheckBox>(widget)->isChecked() ? QStringLiteral("true") : QStringLiteral("false");
}

void UncheckDisabled(QWidget *widget)
{
    if (widget->isEnabled())
        return;
    qCDebug(lcEngine)
        << "---> [Status Relevance][type1] check box publish current check status <---";
    As<QCheckBox>(widget)->setChecked(false);
}

SDataType ListType()
{
    return {
        .name = "list",
        .className = "QComboBox",
        .initLog = "---> [Init][type1] Init Combo Box  <---",
        .readsEntry = true,
        .init = InitList,
        .show = ShowList,
        .text = ListText,
        .relateLog = "---> [Value Relevance][type1] Combobox List <---",
        .relate = RelateList,
        .statusChanged = PublishListAgain,
        .keyText = ListText,
        .valueSignal = SIGNAL(currentTextChanged(QString)),
        .valueSlot = SLOT(Slot_ValueChange(QString)),
        .statusSignal = SIGNAL(currentTextChanged(QString)),
        .statusSlot = SLOT(Slot_EnableStatusChange(QString)),
        .makeCell = MakeListCell,
        .hasItems = true,
        .startCell = StartListCell,
    };
}

SDataType LabelType()
{
    return {
        .name = "label",
        .className = "QLabel",
        .initLog = "---> [Init][type1] Init label  <---",
        .init = InitLabel,
        .show = ShowLabel,
        .text = LabelText,
        .relateLog = "---> [Value Relevance][type1] Label <---",
        .relate = RelateLabel,
        .makeCell = MakeLabelCell,
        .takesStatus = true,
        .inRowTable = true,
        .alignment = LabelAlignment,
        .startCell = StartLabelCell,
        .updatesCell = true,
    };
}

SDataType BooleanType()
{
    return {
        .name = "boolean",
        .className = "QCheckBox",
        .initLog = "---> [Init][type1] Init Check Box  <---",
        .init = InitBoolean,
        .show = ShowBoolean,
        .text = BooleanText,
        .relateLog = "---> [Value Relevance][type1] Check Box <---",
        .relate = RelateBoolean,
        .statusChanged = UncheckDisabled,
        .keyText = BooleanText,
        .valueSignal = SIGNAL(stateChanged(int)),
        .valueSlot = SLOT(Slot_CheckBoxValueChange(int)),
        .statusSignal = SIGNAL(stateChanged(int)),
        .statusSlot = SLOT(Slot_CheckBoxEnableStatusChange(int)),
    };
}

}  // namespace

std::vector<SDataType> TextTypes()
{
    return {ListType(), LabelType(), BooleanType()};
}
