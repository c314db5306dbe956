#ifndef QUOREL_ADMIN_H
#define QUOREL_ADMIN_H

#include <QMainWindow>

// The administration window. (Placeholder until the window's form lands.)
class Admin : public QMainWindow
{
    Q_OBJECT
public:
    Admin(QWidget *parent = nullptr, const char *name = nullptr, Qt::WindowFlags flags = Qt::Window);
};

#endif
