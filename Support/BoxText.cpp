#include "Support/BoxText.h"

#include <QTextDocument>

QString BoxText(const QString &plain)
{
    return Qt::mightBeRichText(plain) ? Qt::convertFromPlainText(plain) : plain;
}
