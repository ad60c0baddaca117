// Words that are not the tool's own, for a message box: a file's, the DUT's, the pair's.
//
//   m_messageBox.Show(eBoxWarningAsIs, title, BoxText(why), {}, {}, -1);
#pragma once

#include <QString>

// The box shows these characters, also where they look like markup, which a box would follow. Other texts
// stay as they are.
QString BoxText(const QString &plain);
