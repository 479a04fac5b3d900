#include "codeGenApp/windowPlace.h"

#include <QtCore/QSettings>
#include <QtCore/QStandardPaths>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace
{
const QString theRectangle = QStringLiteral("window/rectangle");
const QString theMaximized = QStringLiteral("window/maximized");

bool isOnAScreen(const QRect& rectangle)
{
    const QList<QScreen*> screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(),
                       [&rectangle](const QScreen* screen) { return screen->availableGeometry().contains(rectangle); });
}
} // namespace

QString DtWindowPlaceFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/quorvex/codeGeneratorWindow.ini";
}

void DtSaveWindowPlace(const QWidget& window)
{
    QSettings settings(DtWindowPlaceFile(), QSettings::IniFormat);
    settings.setValue(theRectangle, window.normalGeometry().isValid() ? window.normalGeometry() : window.geometry());
    settings.setValue(theMaximized, window.isMaximized());
}

bool DtRestoreWindowPlace(QWidget& window)
{
    const QSettings settings(DtWindowPlaceFile(), QSettings::IniFormat);
    const QRect rectangle = settings.value(theRectangle).toRect();
    if (!rectangle.isValid() || !isOnAScreen(rectangle))
        return false;
    window.setGeometry(rectangle);
    if (settings.value(theMaximized).toBool())
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
    return true;
}
