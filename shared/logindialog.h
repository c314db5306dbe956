#ifndef QUOREL_LOGINDIALOG_H
#define QUOREL_LOGINDIALOG_H

#include <QDialog>

class QLabel;
class QLineEdit;

// The suite's login: a login id and a code, the code hidden while typed.
class LoginDialog : public QDialog
{
    Q_OBJECT
public:
    explicit LoginDialog(QWidget *parent = nullptr);
    QString loginId() const;
    QString code() const;
    void setLoginId(const QString &id);
    void setCode(const QString &code);
    void setMessage(const QString &text);
    QString message() const;

private:
    QLineEdit *idEdit;
    QLineEdit *codeEdit;
    QLabel *messageLabel;
};

#endif
