#include "admin.h"

Admin::Admin(QWidget *parent, const char *name, Qt::WindowFlags flags)
    : QMainWindow(parent, flags)
{
    if (name)
        setObjectName(QLatin1String(name));
    setWindowTitle("Quorel - Admin");
    resize(832, 594);
}
