// The widgets of a Designer form file, as far as the engine tells widgets apart: object name and
// class.
//
// The XML is read as it stands; no widget is made. Values only, any thread.
//
//   const SForm form = ReadForm(file.readAll());
//   if (!form.error.isEmpty()) ...   // "line 7: Opening and ending tag mismatch."
#pragma once

#include <vector>

#include <QByteArray>
#include <QString>

struct SFormWidget
{
    QString name;
    QString className;
};

struct SForm
{
    std::vector<SFormWidget> widgets;  // in the order of the file
    QString error;                     // empty when the text is a form
};

SForm ReadForm(const QByteArray &text);
