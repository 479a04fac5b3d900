#ifndef CODE_GEN_APP_WINDOW_PLACE_H
#define CODE_GEN_APP_WINDOW_PLACE_H

class QString;
class QWidget;

// Where a window stood when it was closed last: position and size while not maximized, and whether it is maximized.
// It is kept in a settings file of its own below the user's configuration directory.
QString DtWindowPlaceFile();
void DtSaveWindowPlace(const QWidget& window);
// False when nothing was saved, or when no screen holds the place any more; the window then stays as it is.
bool DtRestoreWindowPlace(QWidget& window);

#endif
