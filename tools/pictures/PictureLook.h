// How the tool looks in the pictures: light, or on a dark desktop.
#pragma once

class QApplication;

void UseLook(QApplication &application, bool isDark);
