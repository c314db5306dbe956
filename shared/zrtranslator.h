#ifndef QUOREL_ZRTRANSLATOR_H
#define QUOREL_ZRTRANSLATOR_H

#include <QTranslator>

// The suite's translator: loads a catalogue file and serves its translations.
class ZrTranslator : public QTranslator
{
    Q_OBJECT
public:
    ZrTranslator(QObject *parent = nullptr, const char *name = nullptr);
};

#endif
