#include "Host/dut/NameChoice.h"

#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QPushButton>

#include "Host/HostSettings.h"

namespace {

constexpr int kMostFiles = 8;
constexpr char kJsonFiles[] = "JSON files (*.json);;All files (*)";

}  // namespace

CNameChoice::CNameChoice(QComboBox &box, QPushButton &fileButton, const SNameChoice &what,
                         QObject *parent)
    : QObject(parent), m_box(box), m_what(what)
{
    Fill();
    connect(&m_box, qOverload<int>(&QComboBox::activated), this,
            [this](int index) { emit Signal_Chosen(m_box.itemData(index).toString()); });
    connect(&fileButton, &QPushButton::clicked, this, &CNameChoice::AskForFile);
}

void CNameChoice::ShowCurrent(const QString &nameOrPath)
{
    if (!nameOrPath.isEmpty() && m_box.findData(nameOrPath) < 0)
        Remember(nameOrPath);
    m_box.setCurrentIndex(m_box.findData(nameOrPath));
    m_box.setToolTip(nameOrPath);
}

void CNameChoice::AskForFile()
{
    const QString folder = CHostSettings().Value(FolderKey()).toString();
    auto *box = new QFileDialog(m_box.window(), m_what.title, folder, kJsonFiles);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setFileMode(QFileDialog::ExistingFile);
    connect(box, &QFileDialog::fileSelected, this, [this](const QString &file) {
        CHostSettings().Set(FolderKey(), QFileInfo(file).path());
        emit Signal_Chosen(file);
    });
    box->open();
}

void CNameChoice::Fill()
{
    m_box.clear();
    if (!m_what.none.isEmpty())
        m_box.addItem(m_what.none, QString());
    for (const QString &name : m_what.names)
        m_box.addItem(name, name);
    for (const QString &file : Files()) {
        m_box.addItem(QFileInfo(file).fileName(), file);
        m_box.setItemData(m_box.count() - 1, file, Qt::ToolTipRole);
    }
}

void CNameChoice::Remember(const QString &path)
{
    QStringList files = Files();
    files.removeAll(path);
    files.prepend(path);
    CHostSettings().Set(FilesKey(), QStringList(files.mid(0, kMostFiles)));
    Fill();
}

QString CNameChoice::NameOrPath(const QString &given, const QStringList &names)
{
    const bool isFile = !given.isEmpty() && !names.contains(given) && QFileInfo(given).isFile();
    return isFile ? QFileInfo(given).absoluteFilePath() : given;
}

QStringList CNameChoice::Files() const
{
    return CHostSettings().Value(FilesKey()).toStringList();
}
