#include "validators.h"

#include <QRegularExpression>

namespace {
// Digits with an optional point and at most `decimals` digits after it; `sign` allows a minus.
QValidator::State numberShape(const QString &input, int decimals, bool sign)
{
    // A lone point or sign is on its way to a number, not one yet.
    if (input.isEmpty() || input == QLatin1String(".")
        || (sign && (input == QLatin1String("-") || input == QLatin1String("-."))))
        return QValidator::Intermediate;
    const QString pattern = QString("^%1[0-9]*(\\.[0-9]{0,%2})?$").arg(sign ? "-?" : "").arg(decimals);
    return QRegularExpression(pattern).match(input).hasMatch() ? QValidator::Acceptable
                                                               : QValidator::Invalid;
}
} // namespace

MoneyValidator::MoneyValidator(QObject *parent, int decimals, const char *name)
    : QValidator(parent), decimals(decimals)
{
    if (name)
        setObjectName(QLatin1String(name));
}

QValidator::State MoneyValidator::validate(QString &input, int &) const
{
    return numberShape(input, decimals, false);
}

DecimalValidator::DecimalValidator(double top, double bottom, int decimals, QObject *parent, const char *name)
    : QValidator(parent), top(top), bottom(bottom), decimals(decimals)
{
    if (name)
        setObjectName(QLatin1String(name));
}

QValidator::State DecimalValidator::validate(QString &input, int &) const
{
    const State shape = numberShape(input, decimals, bottom < 0);
    if (shape != Acceptable || input == QLatin1String("."))
        return shape == Acceptable ? Intermediate : shape;
    const double value = input.toDouble();
    if (value > top)
        return Invalid;
    return value < bottom ? Intermediate : Acceptable;
}

LimitValidator::LimitValidator(QObject *parent, const char *name, int maxLength, bool noLeadingBlank)
    : QValidator(parent), maxLength(maxLength), noLeadingBlank(noLeadingBlank)
{
    if (name)
        setObjectName(QLatin1String(name));
}

QValidator::State LimitValidator::validate(QString &input, int &) const
{
    if (input.size() > maxLength)
        return Invalid;
    if (noLeadingBlank && !input.isEmpty() && input.at(0).isSpace())
        return Invalid;
    return Acceptable;
}
