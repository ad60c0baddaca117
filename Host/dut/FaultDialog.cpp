#include "Host/dut/FaultDialog.h"

#include <algorithm>

#include <QJsonDocument>
#include <QPushButton>

#include "Host/dut/FaultWords.h"
#include "ui_FaultDialog.h"

namespace {

struct SFaultWord
{
    const char *value = "";
    const char *words = "";
};

constexpr SFaultWord kKinds[] = {
    {.value = "fail", .words = "fail: the call fails with a result"},
    {.value = "status", .words = "status: the DUT answers a status"},
    {.value = "delay", .words = "delay: the answer comes late"},
    {.value = "nullText", .words = "nullText: no text is returned"},
    {.value = "noise", .words = "noise: the answer is random bytes"},
    {.value = "bytes", .words = "bytes: laid over the answer"},
    {.value = "powerCut", .words = "powerCut: while the flash is written"},
    {.value = "stuck", .words = "stuck: a field keeps its value"},
};
constexpr SFaultWord kRecords[] = {
    {.value = "type1", .words = "Path loss, type 1"},
    {.value = "type2", .words = "Path loss, type 2"},
    {.value = "apt", .words = "APT"},
};
// In the condition's box, by what it adds to the fault.
constexpr SFaultWord kConditions[] = {
    {.value = "", .words = "Always"},
    {.value = "nth", .words = "On one call"},
    {.value = "probability", .words = "On a share of the calls"},
};

// A key of a fault, whose field is called "m_" and the key. Kinds: null: every kind that has a function.
struct SFaultKey
{
    const char *key = "";
    const char *kinds = nullptr;
};

constexpr SFaultKey kFaultKeys[] = {
    {.key = "result", .kinds = "fail"},
    {.key = "status", .kinds = "status"},
    {.key = "ms", .kinds = "delay"},
    {.key = "offset", .kinds = "bytes"},
    {.key = "hex", .kinds = "bytes"},
    {.key = "record", .kinds = "stuck"},
    {.key = "route", .kinds = "stuck"},
    {.key = "bandwidth", .kinds = "stuck"},
    {.key = "block", .kinds = "powerCut stuck"},
    {.key = "torn", .kinds = "powerCut"},
    {.key = "field", .kinds = "stuck"},
    {.key = "nth"},
    {.key = "probability"},
    {.key = "seed"},
};

constexpr double kPercent = 100.0;

template <std::size_t Count>
void FillBox(QComboBox &box, const SFaultWord (&choices)[Count])
{
    for (const SFaultWord &choice : choices)
        box.addItem(choice.words, choice.value);
}

void SetField(QWidget &widget, const char *key, const QJsonValue &value)
{
    if (auto *number = qobject_cast<QDoubleSpinBox *>(&widget))
        number->setValue(value.toDouble() * (QLatin1String(key) == "probability" ? kPercent : 1.0));
    else if (auto *line = qobject_cast<QLineEdit *>(&widget))
        line->setText(value.toString());
    else if (auto *box = qobject_cast<QCheckBox *>(&widget))
        box->setChecked(value.toBool());
    else if (auto *choice = qobject_cast<QComboBox *>(&widget))
        choice->setCurrentIndex(std::max(0, choice->findData(value.toString())));
}

QJsonValue FieldValue(const QWidget &widget, const char *key)
{
    if (const auto *number = qobject_cast<const QDoubleSpinBox *>(&widget))
        return number->value() / (QLatin1String(key) == "probability" ? kPercent : 1.0);
    if (const auto *line = qobject_cast<const QLineEdit *>(&widget))
        return line->text();
    if (const auto *box = qobject_cast<const QCheckBox *>(&widget))
        return box->isChecked();
    return qobject_cast<const QComboBox *>(&widget)->currentData().toString();
}

}  // namespace

CFaultDialog::CFaultDialog(const QJsonObject &fault, Apply apply, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::CFaultDialog>()), m_apply(std::move(apply))
{
    m_ui->setupUi(this);
    setWindowTitle(fault.isEmpty() ? "Add fault" : "Edit fault");
    m_ui->m_function->addItem("every function", "*");
    for (const QString &function : FaultFunctions())
        m_ui->m_function->addItem(function, function);
    FillBox(*m_ui->m_kind, kKinds);
    FillBox(*m_ui->m_record, kRecords);
    FillBox(*m_ui->m_condition, kConditions);
    for (QComboBox *box : {m_ui->m_kind, m_ui->m_record, m_ui->m_condition})
        connect(box, qOverload<int>(&QComboBox::currentIndexChanged), this,
                &CFaultDialog::ShowFields);
    Fill(fault);
    ShowFields();
}

CFaultDialog::~CFaultDialog() = default;

void CFaultDialog::Fill(const QJsonObject &fault)
{
    SetField(*m_ui->m_function, "function", fault.value("function"));
    SetField(*m_ui->m_kind, "kind", fault.value("kind"));
    const char *condition = fault.contains("nth")           ? "nth"
                            : fault.contains("probability") ? "probability"
                                                            : "";
    SetField(*m_ui->m_condition, "condition", condition);
    for (const SFaultKey &field : kFaultKeys) {
        if (fault.contains(field.key))
            SetField(*findChild<QWidget *>(QString("m_") + field.key), field.key,
                     fault.value(field.key));
    }
}

bool CFaultDialog::IsOfFlash() const
{
    const QString kind = m_ui->m_kind->currentData().toString();
    return kind == "powerCut" || kind == "stuck";
}

bool CFaultDialog::IsShown(const char *key) const
{
    const QLatin1String name(key);
    const QString kind = m_ui->m_kind->currentData().toString();
    const QString condition = m_ui->m_condition->currentData().toString();
    if (name == "seed")
        return kind == "noise" || (!IsOfFlash() && condition == "probability");
    if (name == "nth" || name == "probability")
        return !IsOfFlash() && condition == name;
    if (name == "bandwidth" && m_ui->m_record->currentData() != "apt")
        return false;
    const auto *const field = std::find_if(std::begin(kFaultKeys), std::end(kFaultKeys),
                                           [&](const SFaultKey &one) { return name == one.key; });
    return QString(field->kinds).split(' ').contains(kind);
}

void CFaultDialog::ShowFields()
{
    const auto show = [this](const QString &key, bool isShown) {
        findChild<QWidget *>("m_" + key)->setVisible(isShown);
        findChild<QWidget *>("m_" + key + "Caption")->setVisible(isShown);
    };
    show("function", !IsOfFlash());
    show("condition", !IsOfFlash());
    for (const SFaultKey &field : kFaultKeys)
        show(field.key, IsShown(field.key));
    adjustSize();
}

QJsonObject CFaultDialog::Fault() const
{
    QJsonObject fault;
    if (!IsOfFlash())
        fault.insert("function", m_ui->m_function->currentData().toString());
    fault.insert("kind", m_ui->m_kind->currentData().toString());
    for (const SFaultKey &field : kFaultKeys) {
        if (IsShown(field.key))
            fault.insert(field.key,
                         FieldValue(*findChild<QWidget *>(QString("m_") + field.key), field.key));
    }
    return fault;
}

void CFaultDialog::accept()
{
    const QString error = m_apply(QJsonDocument(Fault()).toJson(QJsonDocument::Compact));
    if (error.isEmpty())
        return QDialog::accept();
    m_ui->m_faultError->setText(error);
    m_ui->m_faultError->show();
}
