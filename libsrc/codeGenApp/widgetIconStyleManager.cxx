#include "codeGenApp/widgetIconStyleManager.h"

#include "foundation/outputStream.h"

#include <QtCore/QEvent>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QToolBox>

#include <boost/regex.hpp>

#include <algorithm>
#include <cmath>

namespace
{
const int theGrid = 24; // side of an image in logical pixels

const QIcon::Mode theGeneratedModes[] = {QIcon::Disabled, QIcon::Active, QIcon::Selected};
const QIcon::State theStates[] = {QIcon::On, QIcon::Off};

// What the images are drawn in.
const char* const theSourceColors[] = {"#ffffff", "white"};

const char* nameOf(QIcon::State state)
{
    return state == QIcon::On ? "ON" : "OFF";
}

std::string bytes(const QString& text)
{
    return text.toStdString();
}

QString qString(const std::string& text)
{
    return QString::fromStdString(text);
}

bool isSvg(const QString& path)
{
    return QFileInfo(path).suffix().compare(QLatin1String("svg"), Qt::CaseInsensitive) == 0;
}

std::string escaped(const std::string& text)
{
    static const boost::regex theSpecial(R"([.^$|()\[\]{}*+?\\])");
    return boost::regex_replace(text, theSpecial, R"(\\$&)", boost::match_default | boost::format_perl);
}

// Whole colours only: "white" stays in "whitesmoke", and "#ffffff" in "#ffffff80".
std::string recolored(const std::string& svg, const DtIconColorMappings& mappings)
{
    std::string text = svg;
    for (const auto& [source, target] : mappings)
    {
        if (source.empty())
            continue;
        const boost::regex color("(?<![\\w#-])" + escaped(source) + "(?![\\w-])", boost::regex::icase);
        text = boost::regex_replace(text, color, bytes(target.name()), boost::regex_constants::format_literal);
    }
    return text;
}

QSize logicalSize(const QSvgRenderer& renderer)
{
    const QSize size = renderer.defaultSize();
    return size.isEmpty() ? QSize(theGrid, theGrid) : size.boundedTo(QSize(512, 512));
}

// Twice the size looks the same as the size itself once it is halved, because all edges of the images lie on pixels.
int pixelRatio()
{
    return std::max(2, static_cast<int>(std::ceil(qApp->devicePixelRatio())));
}

QPixmap rendered(const QByteArray& svg)
{
    QSvgRenderer renderer(svg);
    if (!renderer.isValid())
        return QPixmap();
    QPixmap pixmap(logicalSize(renderer) * pixelRatio());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    painter.end();
    return pixmap;
}

QIcon iconOf(const QObject* object)
{
    if (const auto* button = qobject_cast<const QAbstractButton*>(object))
        return button->icon();
    if (const auto* action = qobject_cast<const QAction*>(object))
        return action->icon();
    return QIcon();
}

bool showsIcon(const QObject* object)
{
    const auto* const label = qobject_cast<const QLabel*>(object);
    return label != nullptr ? !label->pixmap(Qt::ReturnByValue).isNull() : !iconOf(object).isNull();
}

// A label shows one pixmap and knows no modes, so it gets the one that fits now.
void showInLabel(QLabel& label, const QIcon& icon)
{
    QPixmap pixmap =
        icon.pixmap(QSize(theGrid, theGrid) * pixelRatio(), label.isEnabled() ? QIcon::Normal : QIcon::Disabled);
    pixmap.setDevicePixelRatio(std::max(1.0, pixmap.width() / double(theGrid)));
    label.setPixmap(pixmap);
}

bool setIconOf(QObject* object, const QIcon& icon)
{
    if (auto* button = qobject_cast<QAbstractButton*>(object))
        button->setIcon(icon);
    else if (auto* action = qobject_cast<QAction*>(object))
        action->setIcon(icon);
    else if (auto* label = qobject_cast<QLabel*>(object))
        showInLabel(*label, icon);
    else
        return false;
    return true;
}

// The accessors of one kind of indexable widget; null when the object is none of the kind.
struct DtIndexed
{
    std::function<QIcon()> icon;
    std::function<void(const QIcon&)> setIcon;
};

template <class Widget>
bool accessIndex(QObject* object, int index, DtIndexed& access, QIcon (Widget::*get)(int) const,
                 void (Widget::*set)(int, const QIcon&))
{
    auto* const widget = qobject_cast<Widget*>(object);
    if (widget == nullptr)
        return false;
    const bool isIndex = index >= 0 && index < widget->count();
    access.icon = [=] { return isIndex ? (widget->*get)(index) : QIcon(); };
    access.setIcon = [=](const QIcon& icon)
    {
        if (isIndex)
            (widget->*set)(index, icon);
    };
    return true;
}

bool accessComboBox(QObject* object, int index, DtIndexed& access)
{
    auto* const box = qobject_cast<QComboBox*>(object);
    if (box == nullptr)
        return false;
    access.icon = [=] { return box->itemIcon(index); };
    access.setIcon = [=](const QIcon& icon) { box->setItemIcon(index, icon); };
    return true;
}

bool accessIndexed(QObject* object, int index, DtIndexed& access)
{
    return accessIndex(object, index, access, &QTabBar::tabIcon, &QTabBar::setTabIcon) ||
           accessIndex(object, index, access, &QTabWidget::tabIcon, &QTabWidget::setTabIcon) ||
           accessIndex(object, index, access, &QToolBox::itemIcon, &QToolBox::setItemIcon) ||
           accessComboBox(object, index, access);
}

template <class Map>
void eraseGone(Map& map)
{
    for (auto each = map.begin(); each != map.end();)
        each = each->second.object == nullptr ? map.erase(each) : std::next(each);
}

bool isProvided(const DtQIconConfigurations& configurations)
{
    if (configurations.configurations().empty())
        DtWarn << "No icon configurations were provided for a widget." << std::endl;
    return !configurations.configurations().empty();
}

std::string keyOf(const DtIconColorMappings& mappings)
{
    std::string key;
    for (const auto& [source, target] : mappings)
        key += source + ">" + bytes(target.name()) + ";";
    return key;
}
} // namespace

bool DtWidgetIconStyleManagerEventFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::EnabledChange)
        myManager.updateIconsOf(watched);
    return false;
}

DtWidgetIconStyleManager::DtWidgetIconStyleManager(DtColorSource colors)
    : myColors(std::move(colors)), myEventFilter(std::make_unique<DtWidgetIconStyleManagerEventFilter>(*this))
{
}

DtWidgetIconStyleManager::~DtWidgetIconStyleManager() = default;

DtIconColorMappings DtWidgetIconStyleManager::mappingsTo(const QColor& color)
{
    DtIconColorMappings mappings;
    for (const char* source : theSourceColors)
        mappings.emplace_back(source, color);
    return mappings;
}

void DtWidgetIconStyleManager::manageWidget(QObject* object, const std::string& iconFile)
{
    DtQIconConfigurations configurations;
    for (const QIcon::State state : theStates)
        configurations.addConfiguration({iconFile, QIcon::Normal, state});
    for (const QIcon::Mode mode : theGeneratedModes)
        configurations.setIsGenerateIconConfigurationsEnabledByMode(mode, true);
    manageWidget(object, configurations);
}

void DtWidgetIconStyleManager::manageWidget(QObject* object, const DtQIconConfigurations& configurations)
{
    if (object == nullptr)
        return;
    myManaged[object] = {object, configurations};
    watch(object);
    updateIcon(object, configurations, true);
}

void DtWidgetIconStyleManager::manageIndexableWidget(QObject* object, int index,
                                                     const DtQIconConfigurations& configurations)
{
    if (object == nullptr)
        return;
    DtManagedIndexes& managed = myManagedIndexes[object];
    if (managed.object != object) // a new object where an old one has been
        managed = {object, {}};
    const auto isSame = [index](const auto& icon) { return icon.first == index; };
    managed.icons.erase(std::remove_if(managed.icons.begin(), managed.icons.end(), isSame), managed.icons.end());
    managed.icons.emplace_back(index, configurations);
    watch(object);
    updateIndexedIcon(object, index, configurations, true);
}

// An event filter that is installed again only moves to the front.
void DtWidgetIconStyleManager::watch(QObject* object)
{
    object->installEventFilter(myEventFilter.get());
}

void DtWidgetIconStyleManager::unmanageWidget(QObject* object)
{
    if (!isManaged(object))
        return;
    object->removeEventFilter(myEventFilter.get());
    myManaged.erase(object);
    myManagedIndexes.erase(object);
}

bool DtWidgetIconStyleManager::isManaged(const QObject* object) const
{
    auto* const key = const_cast<QObject*>(object);
    const auto single = myManaged.find(key);
    const auto indexed = myManagedIndexes.find(key);
    return (single != myManaged.end() && single->second.object != nullptr) ||
           (indexed != myManagedIndexes.end() && indexed->second.object != nullptr);
}

void DtWidgetIconStyleManager::updateAllManagedIcons(bool force)
{
    eraseGone(myManaged);
    eraseGone(myManagedIndexes);
    for (const auto& [object, managed] : myManaged)
        updateIcon(object, managed.configurations, force);
    for (const auto& [object, managed] : myManagedIndexes)
        for (const auto& [index, configurations] : managed.icons)
            updateIndexedIcon(object, index, configurations, force);
}

void DtWidgetIconStyleManager::updateIconsOf(QObject* object)
{
    const auto single = myManaged.find(object);
    if (single != myManaged.end() && single->second.object != nullptr)
        updateIcon(object, single->second.configurations, true);
    const auto indexed = myManagedIndexes.find(object);
    if (indexed == myManagedIndexes.end() || indexed->second.object == nullptr)
        return;
    for (const auto& [index, configurations] : indexed->second.icons)
        updateIndexedIcon(object, index, configurations, true);
}

void DtWidgetIconStyleManager::updateIcon(QObject* object, const DtQIconConfigurations& configurations, bool force)
{
    if (!isProvided(configurations) || (!force && showsIcon(object)))
        return;
    if (!setIconOf(object, createQIconBasedOnConfigurations(configurations)))
        DtWarn << "Unsupported widget - cannot update icon." << std::endl;
}

void DtWidgetIconStyleManager::updateIndexedIcon(QObject* object, int index,
                                                 const DtQIconConfigurations& configurations, bool force)
{
    if (!isProvided(configurations))
        return;
    DtIndexed access;
    if (!accessIndexed(object, index, access))
    {
        DtWarn << "Unsupported indexable widget - cannot update icon." << std::endl;
        return;
    }
    if (force || access.icon().isNull())
        access.setIcon(createQIconBasedOnConfigurations(configurations));
}

void DtWidgetIconStyleManager::clearCache(bool update)
{
    myCache.clear();
    if (update)
        updateAllManagedIcons(true);
}

QString DtWidgetIconStyleManager::iconsDirectory() const
{
    return QStringLiteral("../data/images/DarkMode/");
}

// A path as it is, or a name below the directory of icons; empty when neither is there.
QString DtWidgetIconStyleManager::filePath(const std::string& iconFile) const
{
    const QString name = qString(iconFile);
    for (const QString& path : {name, iconsDirectory() + name})
        if (QFileInfo(path).isFile())
            return path;
    return QString();
}

bool DtWidgetIconStyleManager::iconExistsOnDiskOrInCache(const std::string& iconFile) const
{
    const auto cached = myCache.lower_bound({iconFile, std::string()});
    return (cached != myCache.end() && cached->first.first == iconFile) || !filePath(iconFile).isEmpty();
}

DtIconColorMappings DtWidgetIconStyleManager::colorsOf(QIcon::Mode mode) const
{
    return myColors ? myColors(mode == QIcon::Normal ? QIcon::Active : mode) : DtIconColorMappings();
}

QPixmap DtWidgetIconStyleManager::findOrCreatePixmapInCache(const std::string& iconFile, QIcon::Mode mode)
{
    const DtIconColorMappings mappings = colorsOf(mode);
    const DtCacheKey key(iconFile, keyOf(mappings));
    const auto found = myCache.find(key);
    if (found != myCache.end())
        return found->second;
    const QPixmap pixmap = getPixmapFromSVGAndColorMappings(iconFile, mappings);
    if (!pixmap.isNull())
        myCache[key] = pixmap;
    return pixmap;
}

QPixmap DtWidgetIconStyleManager::generateThemedPixmapFromSVGAndIconMode(const std::string& iconFile,
                                                                         QIcon::Mode mode) const
{
    return getPixmapFromSVGAndColorMappings(iconFile, colorsOf(mode));
}

QPixmap DtWidgetIconStyleManager::getPixmapFromSVGAndColorMappings(const std::string& iconFile,
                                                                   const DtIconColorMappings& mappings) const
{
    const QString path = filePath(iconFile);
    if (path.isEmpty())
    {
        DtInfo << "Icon " << iconFile << " does not exist in " << bytes(iconsDirectory()) << std::endl;
        return QPixmap();
    }
    if (!isSvg(path))
        return QPixmap(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QPixmap();
    const std::string text = recolored(file.readAll().toStdString(), mappings);
    return rendered(QByteArray::fromStdString(text));
}

void DtWidgetIconStyleManager::generateAndAppendAdditionalIconConfigurationsIfNeeded(
    DtQIconConfigurations& configurations) const
{
    for (const QIcon::Mode mode : theGeneratedModes)
    {
        if (!configurations.isGenerateIconConfigurationsEnabledByMode(mode))
            continue;
        for (const QIcon::State state : theStates)
        {
            if (!configurations.iconFileNameOrPathFromQIconModeAndState(mode, state).empty())
                continue;
            const std::string base = configurations.iconFileNameOrPathFromQIconModeAndState(QIcon::Normal, state);
            if (!base.empty() && iconExistsOnDiskOrInCache(base))
                configurations.addConfiguration({base, mode, state});
            else
                DtWarn << "Could not generate icon for the \"" << nameOf(state)
                       << "\" QIcon::State and QIcon::Mode with enumeration value (" << static_cast<int>(mode)
                       << ") - may be intentional." << std::endl;
        }
    }
}

QIcon DtWidgetIconStyleManager::createQIconBasedOnConfigurations(const DtQIconConfigurations& configurations)
{
    DtQIconConfigurations complete = configurations;
    generateAndAppendAdditionalIconConfigurationsIfNeeded(complete);
    QIcon icon;
    for (const DtQIconConfiguration& each : complete.configurations())
    {
        const QPixmap pixmap = findOrCreatePixmapInCache(each.iconFileNameOrPath, each.mode);
        if (!pixmap.isNull())
            icon.addPixmap(pixmap, each.mode, each.state);
    }
    return icon;
}
