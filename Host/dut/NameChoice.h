// A choice of built-in names and of files in a combo box, with a button that asks for a file. The files
// that were chosen last are remembered.
//
// The choice is only asked for: whoever owns it puts the thing in place and shows what is in force.
//
//     SNameChoice what = {.subject = "profile", .title = "Profile of the DUT", .names = names};
//     auto *choice = new CNameChoice(*m_ui->m_profileChoice, *m_ui->m_profileFile, what, this);
//     connect(choice, &CNameChoice::Signal_Chosen, this, [=](const QString &nameOrPath) {
//         choice->ShowCurrent(Take(nameOrPath) ? nameOrPath : m_inForce);
//     });
#pragma once

#include <QObject>
#include <QStringList>

class QComboBox;
class QPushButton;

struct SNameChoice
{
    QString subject;    // of the settings' keys
    QString title;      // of the box that asks for a file
    QString none = {};  // words of the choice of nothing, the empty name; empty: there is none
    QStringList names = {};
};

class CNameChoice : public QObject
{
    Q_OBJECT

public:
    CNameChoice(QComboBox &box, QPushButton &fileButton, const SNameChoice &what, QObject *parent);

    // A name or a path; a file joins the ones that are remembered.
    void ShowCurrent(const QString &nameOrPath);
    // A file that can be chosen from now on.
    void Remember(const QString &path);
    // What was given on the command line, so that it holds in another folder, too.
    static QString NameOrPath(const QString &given, const QStringList &names);

signals:
    void Signal_Chosen(const QString &nameOrPath);

private:
    void AskForFile();
    void Fill();
    QString FilesKey() const { return m_what.subject + "/files"; }
    QString FolderKey() const { return m_what.subject + "/folder"; }
    QStringList Files() const;

    QComboBox &m_box;
    SNameChoice m_what;
};
