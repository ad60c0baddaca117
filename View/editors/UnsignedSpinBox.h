// Editor of a 32-bit unsigned number in any radix, which QSpinBox cannot hold.
//
// The text is the number in the box's base; digits turn into upper case as they are typed. A text
// that is no number, or one outside the limits, gives way to the last accepted text, and a tool tip
// names the limits. An empty text is allowed, so that the user may clear the field while typing.
// The wheel steps by one. GUI thread.
//
//   auto *box = new CUnsignedSpinBox(table, 16);
//   box->m_maximum = 0xFFFF;
//   box->setText("FF");
#pragma once

#include <QLineEdit>

class CUnsignedSpinBox : public QLineEdit
{
    Q_OBJECT

public:
    CUnsignedSpinBox(QWidget *parent, int base);

    static int ValidBase(int base) { return base >= 2 && base <= 36 ? base : 10; }
    // A number in a base, upper case. A base that is none, outside 2 to 36, counts as 10.
    static QString ToText(unsigned int value, int base);

    void Step(bool isUp);

    int m_base;               // radix of the text
    QString m_lastValidText;  // empty until a text was accepted
    unsigned int m_maximum = 4294967295u;
    unsigned int m_minimum = 0;

public slots:
    void validate(QString text);

protected:
    void wheelEvent(QWheelEvent *event) override;
};
