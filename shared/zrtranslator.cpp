#include "zrtranslator.h"

ZrTranslator::ZrTranslator(QObject *parent, const char *name)
    : QTranslator(parent)
{
    if (name)
        setObjectName(QLatin1String(name));
}
