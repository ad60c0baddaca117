#include "tests/fuzz/engine/FuzzPage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>

#include "View/editors/UnsignedSpinBox.h"

namespace {

template <typename Widget>
QWidget *Make(QWidget *parent)
{
    return new Widget(parent);
}

struct SFormWidget
{
    bool isResult;  // in the result section
    const char *group;
    const char *member;  // with "_caption" behind it: the member's caption
    QWidget *(*make)(QWidget *parent);
};

// The widgets lie below each other, without a layout, which would take a tenth of the time of a
// run.
constexpr QSize kWidgetSize(200, 24);  // pixels

constexpr SFormWidget kForm[] = {
    {false, "g1", "on_caption", Make<QGroupBox>},
    {false, "g1", "a", Make<QComboBox>},
    {false, "g1", "b", Make<QComboBox>},
    {false, "g1", "c", Make<QComboBox>},
    {false, "g1", "a_caption", Make<QLabel>},
    {false, "g1", "n", Make<QSpinBox>},
    {false, "g1", "m", Make<QSpinBox>},
    {false, "g1", "n_caption", Make<QLabel>},
    {false, "g1", "x", Make<QDoubleSpinBox>},
    {false, "g1", "y", Make<QDoubleSpinBox>},
    {false, "g1", "t", Make<QLabel>},
    {false, "g1", "on", Make<QCheckBox>},
    {false, "g1", "of", Make<QCheckBox>},
    {false, "g1", "bad", Make<QLineEdit>},
    {false, "g1", "bad_caption", Make<QPushButton>},
    {false, "g2", "f", Make<QTableWidget>},
    {true, "g1", "a", Make<QComboBox>},
    {true, "g1", "n", Make<QSpinBox>},
    {true, "g1", "x", Make<QDoubleSpinBox>},
    {true, "g1", "t", Make<QLabel>},
    {true, "g1", "on", Make<QCheckBox>},
    {true, "g1", "t_cpation", Make<QLabel>},
    {true, "g2", "r", Make<QTableWidget>},
    {true, "g3", "f", Make<QTableWidget>},
    {true, "g3", "f_caption", Make<QGroupBox>},
};

}  // namespace

CFuzzPage::CFuzzPage(int modelInterface, QWidget *parent)
    : CAutoBindingDataModelDockWidget(parent), m_interface(modelInterface)
{
    setWindowTitle(QStringLiteral("Page <1>"));
    auto *content = new QWidget(this);
    for (const SFormWidget &row : kForm) {
        QWidget *widget = row.make(content);
        const QString section = row.isResult ? ResultSection() : InputSection();
        widget->setObjectName(
            QStringLiteral("%1_%2_%3_memberProperty_%4")
                .arg(Word(), section, QLatin1String(row.group), QLatin1String(row.member)));
        const int top = m_editors.size() * kWidgetSize.height();
        widget->setGeometry(QRect(QPoint(0, top), kWidgetSize));
        m_editors.append(widget);
    }
    setWidget(content);
}

QString CFuzzPage::Word() const
{
    return m_interface == eInterfaceCmdIf ? QStringLiteral("cmdIf") : QStringLiteral("calDataIf");
}

QString CFuzzPage::InputSection() const
{
    return m_interface == eInterfaceCmdIf ? QStringLiteral("request") : QStringLiteral("config");
}

QString CFuzzPage::ResultSection() const
{
    return m_interface == eInterfaceCmdIf ? QStringLiteral("response") : QStringLiteral("data");
}
