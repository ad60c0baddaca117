#include "View/editors/UnsignedSpinBox.h"

#include <QWheelEvent>

#include "View/editors/FormFont.h"
#include "View/editors/LimitTip.h"

CUnsignedSpinBox::CUnsignedSpinBox(QWidget *parent, int base)
    : QLineEdit(parent), m_base(ValidBase(base))
{
    connect(this, &QLineEdit::textChanged, this, &CUnsignedSpinBox::validate);
    setFont(FormFont(parent));
}

QString CUnsignedSpinBox::ToText(unsigned int value, int base)
{
    return QString::number(value, ValidBase(base)).toUpper();
}

void CUnsignedSpinBox::validate(QString text)
{
    if (text.isEmpty())
        return;
    bool ok = false;
    const unsigned int value = text.toUInt(&ok, m_base);
    if (ok && value <= m_maximum && value >= m_minimum) {
        m_lastValidText = text;
        setText(text.toUpper());
        return;
    }
    setText(m_lastValidText);
    ShowLimitTip(this, ToText(m_minimum, m_base) + QLatin1Char('~') + ToText(m_maximum, m_base));
}

void CUnsignedSpinBox::wheelEvent(QWheelEvent *event)
{
    Step(event->angleDelta().y() >= 1);
}

void CUnsignedSpinBox::Step(bool isUp)
{
    const unsigned int value = text().toUInt(nullptr, m_base);
    if (value == (isUp ? m_maximum : m_minimum))
        return;
    // Through the signal, so that validate decides and writes the text.
    emit textChanged(ToText(isUp ? value + 1 : value - 1, m_base));
}
