// The font of the forms: Arial, in the size of the widget around, so that what a document brings
// looks like what the form has.
//
// Qt cuts a widget below a style sheet, which every page has, off from its parent's font: a bare
// QFont("Arial") gives it the size that the desktop chose for the application. GUI thread.
//
//   cell->setFont(FormFont(table));
#pragma once

#include <QFont>
#include <QWidget>

// around: null for the application's size.
inline QFont FormFont(const QWidget *around)
{
    QFont font(QStringLiteral("Arial"));
    if (around && around->font().pointSizeF() > 0)
        font.setPointSizeF(around->font().pointSizeF());
    return font;
}
