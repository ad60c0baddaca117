// The rows of the data type table, and what their functions share. For the table's own sources
// only; everyone else asks DataTypes.h.
#pragma once

#include <vector>

#include "Model/JsonPath.h"
#include "Support/Log.h"
#include "View/editors/FormFont.h"
#include "View/engine/DataType.h"

std::vector<SDataType> TextTypes();    // DataTypesText.cpp
std::vector<SDataType> NumberTypes();  // DataTypesNumber.cpp

// The widget as the class that its row names.
template <typename Widget>
Widget *As(QWidget *widget)
{
    return static_cast<Widget *>(widget);
}

template <typename Widget>
const Widget *As(const QWidget *widget)
{
    return static_cast<const Widget *>(widget);
}

inline void SetCellFont(QWidget *cell)
{
    cell->setFont(FormFont(cell->parentWidget()));
}

// The member's default, on the log too.
inline QString LoggedDefault(const QJsonObject &member)
{
    const QString text = member.value(QLatin1String("trait"))
                             .toObject()
                             .value(QLatin1String("defaultValue"))
                             .toString();
    qCDebug(lcEngine) << "---> [Init][type1] Default value <---" << text;
    return text;
}
