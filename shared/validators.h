#ifndef QUOREL_VALIDATORS_H
#define QUOREL_VALIDATORS_H

#include <QValidator>

// A non-negative amount with at most `decimals` decimals.
class MoneyValidator : public QValidator
{
    Q_OBJECT
public:
    MoneyValidator(QObject *parent, int decimals, const char *name = nullptr);
    State validate(QString &input, int &pos) const override;

private:
    int decimals;
};

// A decimal number between `bottom` and `top` with at most `decimals` decimals.
class DecimalValidator : public QValidator
{
    Q_OBJECT
public:
    DecimalValidator(double top, double bottom, int decimals, QObject *parent, const char *name = nullptr);
    State validate(QString &input, int &pos) const override;

private:
    double top;
    double bottom;
    int decimals;
};

// At most `maxLength` characters; with `noLeadingBlank` the text may not start with a blank, so
// that names sort where a person looks for them.
class LimitValidator : public QValidator
{
    Q_OBJECT
public:
    LimitValidator(QObject *parent, const char *name, int maxLength, bool noLeadingBlank);
    State validate(QString &input, int &pos) const override;

private:
    int maxLength;
    bool noLeadingBlank;
};

#endif
