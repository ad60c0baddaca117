// The kind of a widget, told by its exact class name: a subclass of a Qt class is another kind.
//
//   if (auto *box = ExactCast<QComboBox>(widget)) ...   // null for a subclass of QComboBox
#pragma once

#include <QWidget>

// True when the widget's class is className itself, no subclass of it.
inline bool IsExactClass(const QWidget *widget, const char *className)
{
    return qstrcmp(widget->metaObject()->className(), className) == 0;
}

template <typename Widget>
Widget *ExactCast(QWidget *widget)
{
    return widget && IsExactClass(widget, Widget::staticMetaObject.className())
               ? static_cast<Widget *>(widget)
               : nullptr;
}
