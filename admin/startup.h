#ifndef QUOREL_STARTUP_H
#define QUOREL_STARTUP_H

class QApplication;
class QWidget;

namespace Startup {
// Everything after the application object exists: settings, style, splash, translations, the
// database, the shared helper, the login and the main window's run. Returns the exit status:
// 0 after a normal run, -1 after a start-up failure.
int run(QApplication &app);
// The language of "/Personal/Lang": the suite library's and the program's catalogues from the
// installation folder, and the default locale's month and day names. The headless report tool
// takes it as the window does.
void installLanguage(QApplication &app);
// The main window while it exists.
QWidget *mainWindow();
} // namespace Startup

#endif
