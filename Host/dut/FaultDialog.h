// The box in which a fault is put together or edited: function, kind, the parameters of the kind, and the
// calls that it strikes. What the DUT refuses is told in the box, which stays open.
//
//     auto *dialog = new CFaultDialog(fault, [&](const QByteArray &json) {
//         return dut->AddFault(json) == 0 ? QString() : dut.Error();
//     }, this);
//     dialog->setAttribute(Qt::WA_DeleteOnClose);
//     dialog->open();
#pragma once

#include <functional>
#include <memory>

#include <QDialog>
#include <QJsonObject>

namespace Ui {
class CFaultDialog;
}

class CFaultDialog : public QDialog
{
    Q_OBJECT

public:
    // Takes the fault's JSON text. Returns why it can't be taken; empty: the box closes.
    using Apply = std::function<QString(const QByteArray &json)>;

    CFaultDialog(const QJsonObject &fault, Apply apply, QWidget *parent);
    ~CFaultDialog() override;

    void accept() override;

private:
    void Fill(const QJsonObject &fault);
    void ShowFields();
    bool IsShown(const char *key) const;
    bool IsOfFlash() const;
    QJsonObject Fault() const;

    std::unique_ptr<Ui::CFaultDialog> m_ui;
    Apply m_apply;
};
