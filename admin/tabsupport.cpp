#include "tabsupport.h"
#include "admin.h"
#include "columns.h"
#include "globals.h"
#include "prompter.h"
#include "session.h"
#include "utility.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTreeWidgetItem>
#include <cmath>
#include <limits>

namespace {
// A connection found closed is opened again before a statement, but not in the middle of a
// transaction: the statements after it would run outside of it, and the change be half made.
bool transactionOpen = false;

void reopenOutsideTransaction()
{
    if (!transactionOpen)
        Session::ensureOpen();
}

// The typed number, or false when it is none. The integer columns take 32 bits on every server.
bool typedValue(const QString &typed, bool whole, double *value)
{
    bool ok = true;
    *value = typed.trimmed().isEmpty() ? 0.0 : Utility::strNum(typed, &ok);
    if (whole)
        ok = ok && std::abs(*value) <= double(std::numeric_limits<qint32>::max());
    return ok;
}

// The beginning of a long text, enough for the user to know which one is meant (whole characters:
// a four-byte one is not cut in two).
QString opening(const QString &text)
{
    const QString kept = Columns::stored(text).simplified();
    qsizetype end = 0;
    for (int characters = 0; end < kept.size() && characters < 40; ++characters)
        end += kept.at(end).isHighSurrogate() && end + 1 < kept.size() ? 2 : 1;
    return end < kept.size() ? kept.left(end) + QStringLiteral("...") : kept;
}
} // namespace

namespace TabSupport {

bool run(QSqlQuery &query, const QString &sql)
{
    reopenOutsideTransaction();
    return query.exec(sql) || !utils->showDBError(query);
}

bool run(const QString &sql)
{
    QSqlQuery query;
    return run(query, sql);
}

bool inOneTransaction(const std::function<bool()> &statements)
{
    Session::ensureOpen();
    QSqlDatabase db = QSqlDatabase::database(QLatin1String(QSqlDatabase::defaultConnection), false);
    if (!db.transaction()) {
        utils->showDBError(db.lastError(), QStringLiteral("BEGIN"));
        return false;
    }
    const quint64 connection = Session::generation();
    transactionOpen = true;
    const bool written = statements();
    transactionOpen = false;
    if (written) {
        if (db.commit())
            return true;
        utils->showDBError(db.lastError(), QStringLiteral("COMMIT"));
    }
    // A connection opened anew meanwhile holds no transaction: the server dropped it with the old one.
    if (Session::generation() == connection)
        db.rollback();
    return false;
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
    Prompter::inform(parent, caption, Admin::tr("Operation cancelled"));
}

QString escaped(const QString &text)
{
    return utils->escapeSQL(text, false);
}

QString cell(const QTreeWidgetItem *item, int column)
{
    return item ? item->data(column, Qt::EditRole).toString() : QString();
}

QString flag(const QAbstractButton *box)
{
    return box->isChecked() ? QStringLiteral("Y") : QStringLiteral("N");
}

QString formatted(const QString &pattern, const QStringList &values)
{
    QString out;
    qsizetype from = 0;
    for (const QString &value : values) {
        const qsizetype at = pattern.indexOf(QLatin1String("%s"), from);
        if (at < 0)
            break;
        out += pattern.mid(from, at - from) + value;
        from = at + 2;
    }
    return out + pattern.mid(from);
}

bool textsFit(QWidget *parent, const QString &caption, const QString &table, const QList<ColumnText> &texts)
{
    reopenOutsideTransaction();
    for (const ColumnText &text : texts) {
        Columns::Width width;
        QSqlError error;
        QString statement;
        // The widths are the first thing a change reads: a server gone away is found here.
        if (!Columns::width(table, text.column, &width, &error, &statement))
            return !utils->showDBError(error, statement);
        if (Columns::fits(text.text, width))
            continue;
        const QString kept = Columns::stored(text.text);
        const QString size = width.characters >= 0 && kept.toUcs4().size() > width.characters
            ? Admin::tr("It has %1 characters; the field takes at most %2.")
                  .arg(kept.toUcs4().size())
                  .arg(width.characters)
            : Admin::tr("It takes %1 bytes; the field takes at most %2.").arg(kept.toUtf8().size()).arg(width.bytes);
        Prompter::warn(parent, caption,
                       Admin::tr("The text \"%1\" is too long. %2\n\nShorten it; nothing was saved.")
                           .arg(opening(text.text), size));
        return false;
    }
    return true;
}

bool numbersRead(QWidget *parent, const QString &caption, const QList<TypedNumber> &numbers)
{
    for (const TypedNumber &number : numbers) {
        double value = 0.0;
        if (typedValue(number.text, number.whole, &value))
            continue;
        Prompter::warn(parent, caption,
                       (number.whole ? Admin::tr("The %1 \"%2\" is not a whole number.")
                                     : Admin::tr("The %1 \"%2\" is not a number."))
                               .arg(number.name, number.text)
                           + Admin::tr("\n\nType digits, with a point before any decimals; an empty field counts "
                                        "as 0. Nothing was saved."));
        return false;
    }
    return true;
}

QString numberText(const QString &typed, bool whole)
{
    double value = 0.0;
    if (!typedValue(typed, whole, &value))
        value = 0.0;
    if (whole)
        return QString::number(qRound64(value));
    return QString::number(value == 0.0 ? 0.0 : value, 'g', 15); // -0 is written as 0
}

} // namespace TabSupport
