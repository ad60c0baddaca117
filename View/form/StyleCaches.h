// What Qt keeps for style sheets.
//
// As long as one widget of the process has a style sheet, Qt keeps some 300 bytes for each spin box below
// another sheet that has gone: pages have a sheet and a thousand spin boxes, and the form's buttons outlive
// them. Frees it, unless another window has a sheet. GUI thread; call it when the pages have gone.
//
//   FreeStyleCaches(form);
#pragma once

class QWidget;

// The widgets of the window have their sheets again when it returns.
void FreeStyleCaches(QWidget *window);
