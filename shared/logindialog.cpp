#include "logindialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

LoginDialog::LoginDialog(QWidget *parent)
    : QDialog(parent)
{
    setObjectName("LoginDialog");
    setWindowTitle(tr("Quorel Login"));
    auto *layout = new QVBoxLayout(this);
    auto *title = new QLabel(tr("<b>Quorel</b> - enter your login id and code"), this);
    layout->addWidget(title);
    auto *form = new QFormLayout;
    idEdit = new QLineEdit(this);
    idEdit->setObjectName("login_tf");
    codeEdit = new QLineEdit(this);
    codeEdit->setObjectName("password_tf");
    codeEdit->setEchoMode(QLineEdit::Password);
    form->addRow(tr("Login id:"), idEdit);
    form->addRow(tr("Code:"), codeEdit);
    layout->addLayout(form);
    messageLabel = new QLabel(this);
    messageLabel->setObjectName("message_lab");
    messageLabel->setStyleSheet("color: #b00000;");
    messageLabel->setWordWrap(true);
    messageLabel->hide();
    layout->addWidget(messageLabel);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("&Login"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    idEdit->setFocus();
}

QString LoginDialog::loginId() const { return idEdit->text(); }
QString LoginDialog::code() const { return codeEdit->text(); }
void LoginDialog::setLoginId(const QString &id) { idEdit->setText(id); }
void LoginDialog::setCode(const QString &code) { codeEdit->setText(code); }
QString LoginDialog::message() const { return messageLabel->text(); }

void LoginDialog::setMessage(const QString &text)
{
    messageLabel->setText(text);
    messageLabel->setVisible(!text.isEmpty());
}
