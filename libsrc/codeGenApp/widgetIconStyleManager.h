#ifndef CODE_GEN_APP_WIDGET_ICON_STYLE_MANAGER_H
#define CODE_GEN_APP_WIDGET_ICON_STYLE_MANAGER_H

#include "codeGenApp/iconConfigurations.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtGui/QColor>
#include <QtGui/QPixmap>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class DtWidgetIconStyleManager;

// Colours of an image and what each becomes: the text of a colour as it stands in the SVG file, and the new colour.
using DtIconColorMappings = std::vector<std::pair<std::string, QColor>>;

// Tells the icon manager when a managed object is enabled or disabled; takes no event away from the object.
class DtWidgetIconStyleManagerEventFilter : public QObject
{
public:
    explicit DtWidgetIconStyleManagerEventFilter(DtWidgetIconStyleManager& manager) : myManager(manager) {}

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    DtWidgetIconStyleManager& myManager;
};

// Gives buttons and actions icons in the colours of the present style. The images are drawn once, in white, and
// recoloured for each QIcon::Mode.
//
// Objects are managed by weak pointers: one that is deleted drops out by itself. The colours are asked of the main
// window whenever a pixmap is made; clearCache(true) after a change of style makes all icons anew. At rest an icon has
// the colours of QIcon::Active, for the window has none of its own for QIcon::Normal.
//
// An image is an SVG file, or anything else that QPixmap reads and that stays as drawn. It is named by its path, or by
// a name below iconsDirectory().
class DtWidgetIconStyleManager
{
public:
    // Colours for a mode; asked for QIcon::Active, QIcon::Selected and QIcon::Disabled only.
    using DtColorSource = std::function<DtIconColorMappings(QIcon::Mode)>;

    explicit DtWidgetIconStyleManager(DtColorSource colors);
    DtWidgetIconStyleManager(const DtWidgetIconStyleManager&) = delete;
    DtWidgetIconStyleManager& operator=(const DtWidgetIconStyleManager&) = delete;
    virtual ~DtWidgetIconStyleManager();

    // The colours of our images, each mapped to the one given.
    static DtIconColorMappings mappingsTo(const QColor& color);

    // Sets the icon at once and from then on with every change. Managing an object again replaces its images. One file
    // serves both states, and every mode is made from it.
    virtual void manageWidget(QObject* object, const std::string& iconFile);
    virtual void manageWidget(QObject* object, const DtQIconConfigurations& configurations);
    // For objects with several icons: the pages of a tab bar, tab widget or tool box, the items of a combo box.
    virtual void manageIndexableWidget(QObject* object, int index, const DtQIconConfigurations& configurations);
    // The object keeps the icons that it has.
    virtual void unmanageWidget(QObject* object);
    bool isManaged(const QObject* object) const;

    // Without force an object that shows an icon keeps it.
    virtual void updateAllManagedIcons(bool force);
    virtual void updateIcon(QObject* object, const DtQIconConfigurations& configurations, bool force);
    virtual void updateIndexedIcon(QObject* object, int index, const DtQIconConfigurations& configurations, bool force);
    // All icons of one managed object; nothing for any other.
    virtual void updateIconsOf(QObject* object);
    // Forgets all pixmaps and, if told so, makes all icons anew.
    virtual void clearCache(bool update);

    // The pixmap of an image in the colours of a mode; null when it cannot be made.
    virtual QPixmap findOrCreatePixmapInCache(const std::string& iconFile, QIcon::Mode mode);
    virtual QString iconsDirectory() const;
    virtual bool iconExistsOnDiskOrInCache(const std::string& iconFile) const;
    // Has two pixels at least for each unit of the image, so that icons are sharp on every screen. Null when the file
    // is missing or no image.
    virtual QPixmap getPixmapFromSVGAndColorMappings(const std::string& iconFile,
                                                     const DtIconColorMappings& mappings) const;
    virtual QPixmap generateThemedPixmapFromSVGAndIconMode(const std::string& iconFile, QIcon::Mode mode) const;
    // For each mode that is to be generated: the states "on" and "off", from the image of QIcon::Normal.
    virtual void generateAndAppendAdditionalIconConfigurationsIfNeeded(DtQIconConfigurations& configurations) const;
    virtual QIcon createQIconBasedOnConfigurations(const DtQIconConfigurations& configurations);

    int cachedPixmapCount() const { return static_cast<int>(myCache.size()); }

private:
    struct DtManaged
    {
        QPointer<QObject> object;
        DtQIconConfigurations configurations;
    };
    struct DtManagedIndexes
    {
        QPointer<QObject> object;
        std::vector<std::pair<int, DtQIconConfigurations>> icons;
    };
    using DtCacheKey = std::pair<std::string, std::string>; // file, colours

    DtIconColorMappings colorsOf(QIcon::Mode mode) const;
    QString filePath(const std::string& iconFile) const;
    void watch(QObject* object);

    DtColorSource myColors;
    // By address; the weak pointer tells whether the object still lives.
    std::map<QObject*, DtManaged> myManaged;
    std::map<QObject*, DtManagedIndexes> myManagedIndexes;
    std::map<DtCacheKey, QPixmap> myCache;
    std::unique_ptr<DtWidgetIconStyleManagerEventFilter> myEventFilter;
};

#endif
