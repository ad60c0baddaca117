// Tells who reads the screen aloud that something has come up by itself. GUI thread.
//
//   statusBar()->showMessage(text);
//   Announce(statusBar());
#pragma once

class QWidget;

// The widget's name and description are what is told. Costs nothing while nobody listens.
void Announce(QWidget *widget);
