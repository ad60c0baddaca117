#include "View/editors/LimitTip.h"

#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QToolTip>

void TellRefusedKeys(QAbstractSpinBox *box)
{
    QObject::connect(box->findChild<QLineEdit *>(), &QLineEdit::inputRejected, box,
                     [box] { ShowLimitTip(box, box->toolTip()); });
}

void ShowLimitTip(QWidget *editor, const QString &limits)
{
    if (editor->isVisible())
        QToolTip::showText(editor->mapToGlobal(QPoint(5, 5)),
                           QLatin1String("Range should be:") + limits, editor);
}
