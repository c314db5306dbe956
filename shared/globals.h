#ifndef QUOREL_GLOBALS_H
#define QUOREL_GLOBALS_H

class QSettings;
class Utility;

// The run's settings store and shared helper. Start-up sets both; tests set them too.
extern QSettings *settings;
extern Utility *utils;

#endif
