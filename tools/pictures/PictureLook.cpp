#include "tools/pictures/PictureLook.h"

#include <QApplication>
#include <QPalette>

void UseLook(QApplication &application, bool isDark)
{
    application.setStyle("Fusion");
    if (!isDark)
        return;
    const QColor text(Qt::white);
    const QColor greyed(140, 140, 140);
    QPalette palette(QColor(55, 55, 55), QColor(45, 45, 45));
    palette.setColor(QPalette::Base, QColor(30, 30, 30));
    palette.setColor(QPalette::AlternateBase, QColor(45, 45, 45));
    palette.setColor(QPalette::ToolTipBase, QColor(45, 45, 45));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    palette.setColor(QPalette::HighlightedText, Qt::black);
    palette.setColor(QPalette::Link, QColor(110, 180, 255));
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, greyed);
    }
    application.setPalette(palette);
}
