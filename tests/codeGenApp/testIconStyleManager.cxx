// The icon manager: which images an icon is made of, in which colours, and when it is made anew.

#include "registerTest.h"

#include "codeGenApp/widgetIconStyleManager.h"
#include "scratchData.h"

namespace
{
const char theAddIcon[] = "../data/images/DarkMode/SettingsAddWindow.svg";
const char theNoConfigurations[] = "No icon configurations were provided for a widget.\n";

QByteArray svgText(const QByteArray& color)
{
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"24\" height=\"24\" viewBox=\"0 0 24 24\">"
           "<rect width=\"24\" height=\"24\" fill=\"" +
           color + "\"/></svg>";
}

QColor centre(const QPixmap& pixmap)
{
    return pixmap.isNull() ? QColor() : pixmap.toImage().pixelColor(pixmap.width() / 2, pixmap.height() / 2);
}

QColor centre(const QIcon& icon, QIcon::Mode mode = QIcon::Normal, QIcon::State state = QIcon::Off)
{
    return centre(icon.pixmap(QSize(24, 24), mode, state));
}

DtQIconConfigurations oneImage(const std::string& file, QIcon::Mode mode = QIcon::Normal,
                               QIcon::State state = QIcon::Off)
{
    DtQIconConfigurations configurations;
    configurations.addConfiguration({file, mode, state});
    return configurations;
}

// Mode and state of each entry, with its image.
QString printed(const DtQIconConfigurations& configurations)
{
    QStringList entries;
    for (const DtQIconConfiguration& each : configurations.configurations())
        entries += QStringLiteral("%1%2:%3")
                       .arg(each.mode)
                       .arg(each.state == QIcon::On ? "on" : "off")
                       .arg(QString::fromStdString(each.iconFileNameOrPath));
    return entries.join(' ');
}
} // namespace

class TestIconStyleManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void configurationsKeepOrderAndImages();
    void secondConfigurationOfOneModeAndStateIsRefused();
    void generationIsOffUntilItIsSwitchedOn();
    void sourceColorsAreReplaced_data();
    void sourceColorsAreReplaced();
    void everyMappingCounts();
    void sourceColorIsTakenAsText();
    void mappingsCoverColorsOfOurImages();
    void onlySvgIsRecolored();
    void suffixOfSvgMayBeInCapitals();
    void missingIconIsToldOnInfo();
    void brokenSvgGivesNoPixmap();
    void iconsDirectoryIsThatOfTheDarkSet();
    void nameIsLookedUpBelowIconsDirectory();
    void existenceCoversDiskAndCache();
    void pixmapHasTwoPixelsAUnit();
    void edgesAreSharpAtBothScales();
    void otherModesAreGenerated();
    void givenConfigurationIsNotGeneratedAgain();
    void missingBaseIsTold_data();
    void missingBaseIsTold();
    void windowIsAskedForItsThreeModesOnly();
    void eachModeHasItsColor();
    void restingIconHasColorOfActive();
    void buttonGetsIcon();
    void actionGetsIcon();
    void labelGetsPixmap();
    void disabledLabelGetsPixmapOfDisabled();
    void noConfigurationIsTold();
    void unsupportedWidgetIsTold();
    void unsupportedIndexableWidgetIsTold();
    void indexableWidgetsGetIcons();
    void indexOutsideIsPassedOver();
    void sameIndexIsReplaced();
    void nullObjectIsPassedOver();
    void updateWithoutForceKeepsIcon();
    void updateWithForceReplacesIcon();
    void goneObjectDropsOut();
    void goneIndexableObjectDropsOut();
    void unmanagedObjectKeepsItsIcon();
    void managingAgainReplacesImages();
    void equalImagesShareOnePixmap();
    void clearCacheWithoutUpdateLeavesIcons();
    void clearCacheWithUpdateTakesNewColors();
    void enabledChangeUpdatesIcon();
    void enabledChangeOfUnmanagedObjectDoesNothing();
    void eventFilterConsumesNothing();
    void managerMayGoFirst();

private:
    // Colours by mode, as the present style has them.
    DtIconColorMappings colors(QIcon::Mode mode)
    {
        myAsked.insert(mode);
        return DtWidgetIconStyleManager::mappingsTo(myColors.count(mode) != 0 ? myColors[mode] : QColor(Qt::white));
    }
    std::string image(const char* name, const QByteArray& text) const
    {
        const QString file = myData->path("images/") + QString::fromLatin1(name);
        writeTextFile(file, text);
        return file.toStdString();
    }

    DtScratchTree myTree{QStringList("images")};
    std::unique_ptr<DtScratchData> myData;
    std::unique_ptr<DtWidgetIconStyleManager> myManager;
    std::map<QIcon::Mode, QColor> myColors;
    std::set<QIcon::Mode> myAsked;
};

void TestIconStyleManager::init()
{
    myData = std::make_unique<DtScratchData>(myTree);
    myColors = {
        {QIcon::Active,   QColor(0xff0000)},
        {QIcon::Selected, QColor(0x00ff00)},
        {QIcon::Disabled, QColor(0x0000ff)}
    };
    myAsked.clear();
    myManager = std::make_unique<DtWidgetIconStyleManager>([this](QIcon::Mode mode) { return colors(mode); });
}

void TestIconStyleManager::cleanup()
{
    myManager.reset();
    myData.reset();
}

void TestIconStyleManager::configurationsKeepOrderAndImages()
{
    DtQIconConfigurations configurations;
    configurations.addConfiguration({"b", QIcon::Selected, QIcon::On});
    configurations.addConfiguration({"a", QIcon::Normal, QIcon::Off});
    QCOMPARE(printed(configurations), QString("3on:b 0off:a"));
    QCOMPARE(configurations.iconFileNameOrPathFromQIconModeAndState(QIcon::Selected, QIcon::On), std::string("b"));
    QCOMPARE(configurations.iconFileNameOrPathFromQIconModeAndState(QIcon::Selected, QIcon::Off), std::string());
}

void TestIconStyleManager::secondConfigurationOfOneModeAndStateIsRefused()
{
    DtQIconConfigurations configurations = oneImage("a");
    DtCapture capture(DtWarn);
    configurations.addConfiguration({"b", QIcon::Normal, QIcon::Off});
    QCOMPARE(capture.text(),
             QString("Warning: A configuration with that QIcon::Mode and QIcon::State combination already exists.\n"));
    QCOMPARE(printed(configurations), QString("0off:a"));
}

void TestIconStyleManager::generationIsOffUntilItIsSwitchedOn()
{
    DtQIconConfigurations configurations;
    QVERIFY(!configurations.isGenerateIconConfigurationsEnabledByMode(QIcon::Active));
    configurations.setIsGenerateIconConfigurationsEnabledByMode(QIcon::Active, true);
    QVERIFY(configurations.isGenerateIconConfigurationsEnabledByMode(QIcon::Active));
    QVERIFY(!configurations.isGenerateIconConfigurationsEnabledByMode(QIcon::Selected));
    configurations.setIsGenerateIconConfigurationsEnabledByMode(QIcon::Active, false);
    QVERIFY(!configurations.isGenerateIconConfigurationsEnabledByMode(QIcon::Active));
}

void TestIconStyleManager::sourceColorsAreReplaced_data()
{
    QTest::addColumn<QByteArray>("drawn");
    QTest::addColumn<QColor>("shown");
    const QColor target(0x123456);
    QTest::newRow("number") << QByteArray("#ffffff") << target;
    QTest::newRow("name") << QByteArray("white") << target;
    QTest::newRow("capitals") << QByteArray("#FFFFFF") << target;
    QTest::newRow("another colour") << QByteArray("#00ff00") << QColor(0x00ff00);
    QTest::newRow("longer name") << QByteArray("whitesmoke") << QColor(0xf5f5f5);
    QTest::newRow("part of a name") << QByteArray("ghostwhite") << QColor(0xf8f8ff);
}

void TestIconStyleManager::sourceColorsAreReplaced()
{
    QFETCH(QByteArray, drawn);
    QFETCH(QColor, shown);
    const QPixmap pixmap = myManager->getPixmapFromSVGAndColorMappings(
        image("i.svg", svgText(drawn)), DtWidgetIconStyleManager::mappingsTo(QColor(0x123456)));
    QCOMPARE(centre(pixmap).name(), shown.name());
}

void TestIconStyleManager::everyMappingCounts()
{
    const std::string file = image("i.svg", svgText("#010203"));
    const DtIconColorMappings mappings = {
        {"#010203", QColor(0x111111)},
        {"#111111", QColor(0x222222)}  // a later one sees what an earlier one put in
    };
    QCOMPARE(centre(myManager->getPixmapFromSVGAndColorMappings(file, mappings)).name(), QString("#222222"));
    QCOMPARE(centre(myManager->getPixmapFromSVGAndColorMappings(file, {})).name(), QString("#010203"));
}

void TestIconStyleManager::sourceColorIsTakenAsText()
{
    const std::string file = image("i.svg", svgText("rgb(1,2,3)"));
    const DtIconColorMappings mappings = {
        {"",           QColor(0x333333)},
        {"rgb.1,2,3.", QColor(0x444444)}, // no pattern
        {"rgb(1,2,3)", QColor(0x555555)}
    };
    QCOMPARE(centre(myManager->getPixmapFromSVGAndColorMappings(file, mappings)).name(), QString("#555555"));
}

void TestIconStyleManager::mappingsCoverColorsOfOurImages()
{
    const DtIconColorMappings mappings = DtWidgetIconStyleManager::mappingsTo(Qt::red);
    QCOMPARE(mappings.size(), std::size_t(2));
    QCOMPARE(mappings[0].first, std::string("#ffffff"));
    QCOMPARE(mappings[1].first, std::string("white"));
    QVERIFY(mappings[0].second == Qt::red && mappings[1].second == Qt::red);
}

void TestIconStyleManager::onlySvgIsRecolored()
{
    QImage white(8, 8, QImage::Format_RGB32);
    white.fill(Qt::white);
    QVERIFY(white.save("white.png"));
    const QPixmap pixmap =
        myManager->getPixmapFromSVGAndColorMappings("white.png", DtWidgetIconStyleManager::mappingsTo(Qt::red));
    QCOMPARE(centre(pixmap), QColor(Qt::white));
    QCOMPARE(pixmap.size(), QSize(8, 8));
}

void TestIconStyleManager::suffixOfSvgMayBeInCapitals()
{
    const std::string file = image("I.SVG", svgText("white"));
    QCOMPARE(centre(myManager->getPixmapFromSVGAndColorMappings(file, DtWidgetIconStyleManager::mappingsTo(Qt::red))),
             QColor(Qt::red));
}

void TestIconStyleManager::missingIconIsToldOnInfo()
{
    const DtSaved<int> level(DtNotifyLevel, 3);
    DtCapture capture(DtInfo);
    QVERIFY(myManager->getPixmapFromSVGAndColorMappings("none.svg", {}).isNull());
    QCOMPARE(capture.text(), QString("Icon none.svg does not exist in ../data/images/DarkMode/\n"));
}

void TestIconStyleManager::brokenSvgGivesNoPixmap()
{
    QVERIFY(myManager->getPixmapFromSVGAndColorMappings(image("i.svg", "<svg"), {}).isNull());
    QVERIFY(myManager->getPixmapFromSVGAndColorMappings(image("i.png", "no image"), {}).isNull());
    QPushButton button;
    myManager->manageWidget(&button, image("i.svg", "<svg"));
    QVERIFY(button.icon().isNull());
    QCOMPARE(myManager->cachedPixmapCount(), 0);
}

void TestIconStyleManager::iconsDirectoryIsThatOfTheDarkSet()
{
    QCOMPARE(myManager->iconsDirectory(), QString("../data/images/DarkMode/"));
}

void TestIconStyleManager::nameIsLookedUpBelowIconsDirectory()
{
    const QPixmap byName = myManager->getPixmapFromSVGAndColorMappings("SettingsAddWindow.svg", {});
    QVERIFY(!byName.isNull());
    QCOMPARE(byName.toImage(), myManager->getPixmapFromSVGAndColorMappings(theAddIcon, {}).toImage());
}

void TestIconStyleManager::existenceCoversDiskAndCache()
{
    const std::string file = image("i.svg", svgText("white"));
    QVERIFY(myManager->iconExistsOnDiskOrInCache(file));
    QVERIFY(!myManager->iconExistsOnDiskOrInCache("none.svg"));
    QVERIFY(!myManager->iconExistsOnDiskOrInCache("")); // the directory itself is no icon
    myManager->findOrCreatePixmapInCache(file, QIcon::Active);
    QVERIFY(QFile::remove(QString::fromStdString(file)));
    QVERIFY(myManager->iconExistsOnDiskOrInCache(file));
    myManager->clearCache(false);
    QVERIFY(!myManager->iconExistsOnDiskOrInCache(file));
}

void TestIconStyleManager::pixmapHasTwoPixelsAUnit()
{
    QCOMPARE(myManager->findOrCreatePixmapInCache(theAddIcon, QIcon::Active).size(), QSize(48, 48));
    QPushButton button;
    myManager->manageWidget(&button, theAddIcon);
    QCOMPARE(button.icon().actualSize(QSize(48, 48)), QSize(48, 48));
    QCOMPARE(button.icon().pixmap(24).size(), QSize(24, 24));
}

// The frame of the window icon is a line of two units on whole units: no pixel beside it is half covered.
void TestIconStyleManager::edgesAreSharpAtBothScales()
{
    QPushButton button;
    myManager->manageWidget(&button, theAddIcon);
    for (const int scale : {1, 2})
    {
        const QImage image = button.icon().pixmap(24 * scale).toImage();
        const int row = 14 * scale;
        QStringList alphas;
        for (int x = 0; x < 6 * scale; x += scale)
            alphas += QString::number(qAlpha(image.pixel(x, row)));
        QCOMPARE(alphas.join(' '), QString("0 0 255 255 0 0"));
    }
}

void TestIconStyleManager::otherModesAreGenerated()
{
    const std::string file = image("i.svg", svgText("white"));
    DtQIconConfigurations configurations = oneImage(file);
    configurations.addConfiguration({"SettingsAddWindow.svg", QIcon::Normal, QIcon::On});
    configurations.setIsGenerateIconConfigurationsEnabledByMode(QIcon::Selected, true);
    configurations.setIsGenerateIconConfigurationsEnabledByMode(QIcon::Disabled, true);
    DtCapture capture(DtWarn);
    myManager->generateAndAppendAdditionalIconConfigurationsIfNeeded(configurations);
    const QString name = QString::fromStdString(file);
    QCOMPARE(printed(configurations), "0off:" + name + " 0on:SettingsAddWindow.svg 1on:SettingsAddWindow.svg 1off:" +
                                          name + " 3on:SettingsAddWindow.svg 3off:" + name);
    QCOMPARE(capture.text(), QString());
}

void TestIconStyleManager::givenConfigurationIsNotGeneratedAgain()
{
    DtQIconConfigurations configurations = oneImage(theAddIcon);
    configurations.addConfiguration({theAddIcon, QIcon::Normal, QIcon::On});
    configurations.addConfiguration({"own.svg", QIcon::Disabled, QIcon::Off});
    configurations.setIsGenerateIconConfigurationsEnabledByMode(QIcon::Disabled, true);
    DtCapture capture(DtWarn);
    myManager->generateAndAppendAdditionalIconConfigurationsIfNeeded(configurations);
    QCOMPARE(configurations.iconFileNameOrPathFromQIconModeAndState(QIcon::Disabled, QIcon::Off),
             std::string("own.svg"));
    QCOMPARE(capture.text(), QString());
}

void TestIconStyleManager::missingBaseIsTold_data()
{
    QTest::addColumn<int>("given");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("text");
    const QString text = "Could not generate icon for the \"%1\" QIcon::State and QIcon::Mode with enumeration value "
                         "(%2) - may be intentional.\n";
    QTest::newRow("on") << int(QIcon::Off) << int(QIcon::Selected) << text.arg("ON").arg(3);
    QTest::newRow("off") << int(QIcon::On) << int(QIcon::Disabled) << text.arg("OFF").arg(1);
}

void TestIconStyleManager::missingBaseIsTold()
{
    QFETCH(int, given);
    QFETCH(int, mode);
    QFETCH(QString, text);
    DtQIconConfigurations configurations = oneImage(theAddIcon, QIcon::Normal, QIcon::State(given));
    configurations.setIsGenerateIconConfigurationsEnabledByMode(QIcon::Mode(mode), true);
    DtCapture capture(DtWarn);
    myManager->generateAndAppendAdditionalIconConfigurationsIfNeeded(configurations);
    QCOMPARE(capture.text(), text);
    QCOMPARE(configurations.configurations().size(), std::size_t(2));
}

void TestIconStyleManager::windowIsAskedForItsThreeModesOnly()
{
    QPushButton button;
    myManager->manageWidget(&button, theAddIcon);
    QVERIFY(myAsked == std::set<QIcon::Mode>({QIcon::Disabled, QIcon::Active, QIcon::Selected}));
}

void TestIconStyleManager::eachModeHasItsColor()
{
    QPushButton button;
    myManager->manageWidget(&button, image("i.svg", svgText("white")));
    for (const QIcon::State state : {QIcon::Off, QIcon::On})
        for (const auto& [mode, color] : myColors)
            QCOMPARE(centre(button.icon(), mode, state), color);
}

void TestIconStyleManager::restingIconHasColorOfActive()
{
    QPushButton button;
    myManager->manageWidget(&button, image("i.svg", svgText("white")));
    QCOMPARE(centre(button.icon()), myColors[QIcon::Active]);
}

void TestIconStyleManager::buttonGetsIcon()
{
    QPushButton button;
    myManager->manageWidget(&button, theAddIcon);
    QVERIFY(!button.icon().isNull());
    QVERIFY(myManager->isManaged(&button));
}

void TestIconStyleManager::actionGetsIcon()
{
    QAction action(nullptr);
    myManager->manageWidget(&action, image("i.svg", svgText("white")));
    QCOMPARE(centre(action.icon()), myColors[QIcon::Active]);
}

void TestIconStyleManager::labelGetsPixmap()
{
    QLabel label;
    myManager->manageWidget(&label, image("i.svg", svgText("white")));
    const QPixmap pixmap = label.pixmap(Qt::ReturnByValue);
    QCOMPARE(centre(pixmap), myColors[QIcon::Active]);
    QCOMPARE(pixmap.size() / pixmap.devicePixelRatio(), QSize(24, 24));
}

void TestIconStyleManager::disabledLabelGetsPixmapOfDisabled()
{
    QLabel label;
    label.setEnabled(false);
    myManager->manageWidget(&label, image("i.svg", svgText("white")));
    QCOMPARE(centre(label.pixmap(Qt::ReturnByValue)), myColors[QIcon::Disabled]);
}

void TestIconStyleManager::noConfigurationIsTold()
{
    QPushButton button;
    QTabBar bar;
    DtCapture capture(DtWarn);
    myManager->manageWidget(&button, DtQIconConfigurations());
    myManager->manageIndexableWidget(&bar, 0, DtQIconConfigurations());
    QCOMPARE(capture.text(), QString::fromLatin1(theNoConfigurations).repeated(2));
}

void TestIconStyleManager::unsupportedWidgetIsTold()
{
    QSlider slider;
    DtCapture capture(DtWarn);
    myManager->manageWidget(&slider, theAddIcon);
    QCOMPARE(capture.text(), QString("Unsupported widget - cannot update icon.\n"));
}

void TestIconStyleManager::unsupportedIndexableWidgetIsTold()
{
    QPushButton button;
    DtCapture capture(DtWarn);
    myManager->manageIndexableWidget(&button, 0, oneImage(theAddIcon));
    QCOMPARE(capture.text(), QString("Unsupported indexable widget - cannot update icon.\n"));
}

void TestIconStyleManager::indexableWidgetsGetIcons()
{
    const DtQIconConfigurations configurations = oneImage(image("i.svg", svgText("white")));
    QTabBar bar;
    QTabWidget tabs;
    QToolBox tools;
    QComboBox box;
    for (int index = 0; index < 2; ++index)
    {
        bar.addTab(QString());
        tabs.addTab(new QWidget, QString());
        tools.addItem(new QWidget, QString());
        box.addItem(QString());
    }
    for (QObject* object : {static_cast<QObject*>(&bar), static_cast<QObject*>(&tabs), static_cast<QObject*>(&tools),
                            static_cast<QObject*>(&box)})
        myManager->manageIndexableWidget(object, 1, configurations);
    for (const QIcon& icon : {bar.tabIcon(1), tabs.tabIcon(1), tools.itemIcon(1), box.itemIcon(1)})
        QCOMPARE(centre(icon), myColors[QIcon::Active]);
    for (const QIcon& icon : {bar.tabIcon(0), tabs.tabIcon(0), tools.itemIcon(0), box.itemIcon(0)})
        QVERIFY(icon.isNull());
}

void TestIconStyleManager::indexOutsideIsPassedOver()
{
    QTabBar bar;
    QComboBox box;
    DtCapture capture(DtWarn);
    for (const int index : {-1, 0, 7})
    {
        myManager->manageIndexableWidget(&bar, index, oneImage(theAddIcon));
        myManager->manageIndexableWidget(&box, index, oneImage(theAddIcon));
    }
    QCOMPARE(capture.text(), QString());
    QCOMPARE(bar.count() + box.count(), 0);
}

void TestIconStyleManager::sameIndexIsReplaced()
{
    QTabBar bar;
    bar.addTab(QString());
    QImage blue(24, 24, QImage::Format_RGB32);
    blue.fill(Qt::blue);
    QVERIFY(blue.save("blue.png"));
    myManager->manageIndexableWidget(&bar, 0, oneImage(theAddIcon));
    myManager->manageIndexableWidget(&bar, 0, oneImage("blue.png"));
    myManager->updateAllManagedIcons(true);
    QCOMPARE(centre(bar.tabIcon(0)), QColor(Qt::blue));
}

void TestIconStyleManager::nullObjectIsPassedOver()
{
    myManager->manageWidget(nullptr, theAddIcon);
    myManager->manageIndexableWidget(nullptr, 0, oneImage(theAddIcon));
    myManager->unmanageWidget(nullptr);
    myManager->updateAllManagedIcons(true);
    QVERIFY(!myManager->isManaged(nullptr));
}

void TestIconStyleManager::updateWithoutForceKeepsIcon()
{
    QPushButton button;
    QTabBar bar;
    bar.addTab(QString());
    myManager->manageWidget(&button, image("i.svg", svgText("white")));
    myManager->manageIndexableWidget(&bar, 0, oneImage(image("i.svg", svgText("white"))));
    const QColor old = myColors[QIcon::Active];
    myColors[QIcon::Active] = Qt::yellow;
    myManager->updateAllManagedIcons(false);
    QCOMPARE(centre(button.icon()), old);
    QCOMPARE(centre(bar.tabIcon(0)), old);
    button.setIcon(QIcon());
    bar.setTabIcon(0, QIcon());
    myManager->updateAllManagedIcons(false);
    QCOMPARE(centre(button.icon()), QColor(Qt::yellow));
    QCOMPARE(centre(bar.tabIcon(0)), QColor(Qt::yellow));
}

void TestIconStyleManager::updateWithForceReplacesIcon()
{
    QPushButton button;
    myManager->manageWidget(&button, image("i.svg", svgText("white")));
    myColors[QIcon::Active] = Qt::yellow;
    myManager->updateAllManagedIcons(true);
    QCOMPARE(centre(button.icon()), QColor(Qt::yellow));
}

void TestIconStyleManager::goneObjectDropsOut()
{
    QPushButton stays;
    auto goes = std::make_unique<QPushButton>();
    myManager->manageWidget(goes.get(), image("i.svg", svgText("white")));
    myManager->manageWidget(&stays, image("i.svg", svgText("white")));
    const QObject* const address = goes.get();
    goes.reset();
    QVERIFY(!myManager->isManaged(address));
    myColors[QIcon::Active] = Qt::yellow;
    myManager->updateAllManagedIcons(true);
    QCOMPARE(centre(stays.icon()), QColor(Qt::yellow)); // the walk went on
}

void TestIconStyleManager::goneIndexableObjectDropsOut()
{
    QTabBar stays;
    stays.addTab(QString());
    auto goes = std::make_unique<QTabBar>();
    goes->addTab(QString());
    const DtQIconConfigurations configurations = oneImage(image("i.svg", svgText("white")));
    myManager->manageIndexableWidget(goes.get(), 0, configurations);
    myManager->manageIndexableWidget(&stays, 0, configurations);
    goes.reset();
    myColors[QIcon::Active] = Qt::yellow;
    myManager->updateAllManagedIcons(true);
    QCOMPARE(centre(stays.tabIcon(0)), QColor(Qt::yellow));
}

void TestIconStyleManager::unmanagedObjectKeepsItsIcon()
{
    QPushButton button;
    QTabBar bar;
    bar.addTab(QString());
    myManager->manageWidget(&button, image("i.svg", svgText("white")));
    myManager->manageIndexableWidget(&bar, 0, oneImage(image("i.svg", svgText("white"))));
    const QColor old = myColors[QIcon::Active];
    for (QObject* object : {static_cast<QObject*>(&button), static_cast<QObject*>(&bar)})
    {
        myManager->unmanageWidget(object);
        QVERIFY(!myManager->isManaged(object));
    }
    myColors[QIcon::Active] = Qt::yellow;
    myManager->clearCache(true);
    button.setEnabled(false);
    button.setEnabled(true);
    QCOMPARE(centre(button.icon()), old);
    QCOMPARE(centre(bar.tabIcon(0)), old);
}

void TestIconStyleManager::managingAgainReplacesImages()
{
    QPushButton button;
    myManager->manageWidget(&button, theAddIcon);
    myManager->manageWidget(&button, oneImage(image("i.svg", svgText("#010203"))));
    myManager->updateAllManagedIcons(true);
    QCOMPARE(centre(button.icon()).name(), QString("#010203"));
}

void TestIconStyleManager::equalImagesShareOnePixmap()
{
    QPushButton first, second;
    myManager->manageWidget(&first, theAddIcon);
    myManager->manageWidget(&second, theAddIcon);
    QCOMPARE(myManager->cachedPixmapCount(), 3); // one for each colour
    const qint64 key = myManager->findOrCreatePixmapInCache(theAddIcon, QIcon::Disabled).cacheKey();
    QCOMPARE(myManager->findOrCreatePixmapInCache(theAddIcon, QIcon::Disabled).cacheKey(), key);
    QVERIFY(myManager->generateThemedPixmapFromSVGAndIconMode(theAddIcon, QIcon::Disabled).cacheKey() != key);
}

void TestIconStyleManager::clearCacheWithoutUpdateLeavesIcons()
{
    QPushButton button;
    myManager->manageWidget(&button, image("i.svg", svgText("white")));
    const QColor old = myColors[QIcon::Active];
    myColors[QIcon::Active] = Qt::yellow;
    myManager->clearCache(false);
    QCOMPARE(myManager->cachedPixmapCount(), 0);
    QCOMPARE(centre(button.icon()), old);
}

void TestIconStyleManager::clearCacheWithUpdateTakesNewColors()
{
    QPushButton button;
    QAction action(nullptr);
    const std::string file = image("i.svg", svgText("white"));
    myManager->manageWidget(&button, file);
    myManager->manageWidget(&action, file);
    myColors = {
        {QIcon::Active,   QColor(0x101010)},
        {QIcon::Selected, QColor(0x202020)},
        {QIcon::Disabled, QColor(0x303030)}
    };
    myManager->clearCache(true);
    for (const auto& [mode, color] : myColors)
        QVERIFY(centre(button.icon(), mode) == color && centre(action.icon(), mode) == color);
    QCOMPARE(myManager->cachedPixmapCount(), 3); // none of the old ones
}

void TestIconStyleManager::enabledChangeUpdatesIcon()
{
    QLabel label;
    QPushButton button;
    myManager->manageWidget(&label, image("i.svg", svgText("white")));
    myManager->manageWidget(&button, image("i.svg", svgText("white")));
    myColors[QIcon::Disabled] = Qt::yellow;
    label.setEnabled(false);
    button.setEnabled(false);
    QCOMPARE(centre(label.pixmap(Qt::ReturnByValue)), QColor(Qt::yellow));
    QCOMPARE(centre(button.icon(), QIcon::Disabled), QColor(Qt::yellow));
}

void TestIconStyleManager::enabledChangeOfUnmanagedObjectDoesNothing()
{
    QPushButton button;
    DtCapture capture(DtWarn);
    myManager->updateIconsOf(&button);
    myManager->updateIconsOf(nullptr);
    QVERIFY(button.icon().isNull());
    QCOMPARE(capture.text(), QString());
}

void TestIconStyleManager::eventFilterConsumesNothing()
{
    QPushButton button;
    myManager->manageWidget(&button, theAddIcon);
    DtWidgetIconStyleManagerEventFilter filter(*myManager);
    QCOMPARE(int(QEvent::EnabledChange), 98);
    for (const QEvent::Type type : {QEvent::EnabledChange, QEvent::Show, QEvent::MouseButtonPress})
    {
        QEvent event(type);
        QVERIFY(!filter.eventFilter(&button, &event));
    }
}

void TestIconStyleManager::managerMayGoFirst()
{
    QPushButton button;
    myManager->manageWidget(&button, theAddIcon);
    myManager.reset();
    button.setEnabled(false);
    QVERIFY(!button.icon().isNull());
}

QX_REGISTER_TEST(TestIconStyleManager)
#include "testIconStyleManager.moc"
