#include "Host/PlainText.h"

#include <QTextDocument>
#include <QTextDocumentFragment>

QString PlainText(const QString &text)
{
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}
