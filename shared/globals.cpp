#include "globals.h"

QSettings *settings = nullptr;
Utility *utils = nullptr;
