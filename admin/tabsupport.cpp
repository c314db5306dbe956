#include "tabsupport.h"
#include "globals.h"
#include "prompter.h"
#include "utility.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QSqlQuery>

namespace TabSupport {

bool run(QSqlQuery &query, const QString &sql)
{
    return query.exec(sql) || !utils->showDBError(query);
}

bool run(const QString &sql)
{
    QSqlQuery query;
    return run(query, sql);
}

bool confirmed(QWidget *parent, const QString &caption, const QString &text)
{
    if (Prompter::confirm(parent, caption, text))
        return true;
    cancelled(parent, caption);
    return false;
}

void cancelled(QWidget *parent, const QString &caption)
{
    Prompter::inform(parent, caption, QCoreApplication::translate("Admin", "Operation cancelled"));
}

QString escaped(const QString &text)
{
    return utils->escapeSQL(text, false);
}

QString flag(const QAbstractButton *box)
{
    return box->isChecked() ? QStringLiteral("Y") : QStringLiteral("N");
}

QString latin1Format(const QString &pattern, const QStringList &values)
{
    QString out;
    qsizetype from = 0;
    for (const QString &value : values) {
        const qsizetype at = pattern.indexOf(QLatin1String("%s"), from);
        if (at < 0)
            break;
        out += pattern.mid(from, at - from) + QString::fromLatin1(value.toLatin1());
        from = at + 2;
    }
    return out + pattern.mid(from);
}

QString numberText(const QString &typed)
{
    return QString::number(Utility::strNum(typed, nullptr), 'g', 15);
}

} // namespace TabSupport
