// The data types of the document format, one row each (DataType.h).
//
//   | dataType      | widget           | alone | result table | column table |
//   | list          | QComboBox        | yes   |              | yes          |
//   | range         | QSpinBox         | yes   | yes          | yes          |
//   | pointRange    | QDoubleSpinBox   | yes   | yes          | yes          |
//   | label         | QLabel           | yes   | yes          | yes          |
//   | boolean       | QCheckBox        | yes   |              |              |
//   | unsignedRange | CUnsignedSpinBox |       |              | yes          |
//
//   const SDataType *type = FindScalarType("range", widget);
//   if (type)
//       type->show(widget, member, "1950000");
#pragma once

#include <QString>

#include "View/engine/DataType.h"

const SDataType *FindDataType(const QString &name);
// The row whose name and widget class both match and that can stand alone; null when there is none.
const SDataType *FindScalarType(const QString &name, const QWidget *widget);
// The row of the widget's class that can stand alone, whatever the document says of it.
const SDataType *FindScalarTypeOfWidget(const QWidget *widget);
