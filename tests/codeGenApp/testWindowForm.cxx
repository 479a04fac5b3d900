// What the window is made of: form, actions, menus, names for those who cannot see it, style sheets and icons.

#include "registerTest.h"

#include "codeGenApp/aboutBox.h"
#include "codeGenApp/generateListView.h"
#include "windowFixture.h"

namespace
{
struct DtActionRow
{
    const char *text, *icon, *shortcut, *toolTip;
    bool isEnabled;
};

const DtActionRow theActions[] = {
    {"New Project",                  "",                       "",             "New Project",                  true },
    {"Load Project",                 "",                       "",             "Load Project",                 true },
    {"Save Project",                 "",                       "",             "Save Project",                 false},
    {"Import FOM",                   "FileNew.svg",            "Ctrl+O",       "Open a FOM definition file",   false},
    {"Select All",                   "",                       "Ctrl+A",       "Select All",                   true },
    {"Close",                        "UtilityClose.svg",       "",             "Close a FOM definition file",  true },
    {"Generate",                     "UtilityExport.svg",      "Ctrl+G",       "Generate Quorvex extensions",  true },
    {"Exit",                         "FileExit.svg",           "",             "Exit",                         true },
    {"Preferences...",               "SettingsSystem.svg",     "",             "Preferences",                  true },
    {"Choose Output Directory...",   "FileOpen.svg",           "",             "Choose Output Directory",      true },
    {"&Toggle Dark Mode...",         "",                       "Ctrl+Shift+D", "Toggle Dark Mode",             true },
    {"Version Web Site...",          "TerrainWorldView.svg",   "",             "Version Web Site",             true },
    {"About Quorvex Code Generator", "UtilityInformation.svg", "",             "About Quorvex Code Generator", true },
};

// The texts of a list of actions in order, "|" for a separator.
QString textsOf(const QList<QAction*>& actions)
{
    QStringList texts;
    for (const QAction* action : actions)
        texts += action->isSeparator() ? "|" : action->text();
    return texts.join(", ");
}

QString focusOrder(QWidget* window)
{
    QStringList names;
    for (QWidget* each = window->nextInFocusChain(); each != window; each = each->nextInFocusChain())
        if ((each->focusPolicy() & Qt::TabFocus) != 0 && each->isEnabled() && each->window() == window &&
            each->isVisible())
            names += each->accessibleName().isEmpty() ? each->objectName() : each->accessibleName();
    return names.join(", ");
}

// What a reader of the screen says of a control.
QString spokenName(QWidget* widget)
{
    QAccessibleInterface* const control = QAccessible::queryAccessibleInterface(widget);
    return control != nullptr ? control->text(QAccessible::Name) : QString();
}

QStringList controlsWithoutName(QWidget* window)
{
    QStringList nameless;
    for (QWidget* widget : window->findChildren<QWidget*>())
        if (widget->window() == window && !widget->isHidden() &&
            qobject_cast<QAbstractSpinBox*>(widget->parentWidget()) == nullptr &&
            (widget->focusPolicy() & Qt::TabFocus) != 0 && spokenName(widget).isEmpty())
            nameless += QString::fromLatin1(widget->metaObject()->className()) + " " + widget->objectName();
    return nameless;
}

// The letters behind the "&" of these texts.
QString mnemonics(const QList<QAction*>& actions)
{
    QString letters;
    for (const QAction* action : actions)
        if (action->text().contains('&'))
            letters += action->text().at(action->text().indexOf('&') + 1);
    return letters;
}

QColor average(const QImage& image)
{
    double red = 0, green = 0, blue = 0, weight = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
        {
            const QColor pixel = image.pixelColor(x, y);
            red += pixel.red() * pixel.alphaF();
            green += pixel.green() * pixel.alphaF();
            blue += pixel.blue() * pixel.alphaF();
            weight += pixel.alphaF();
        }
    return weight == 0 ? QColor() : QColor(qRound(red / weight), qRound(green / weight), qRound(blue / weight));
}

QImage imageOf(const QIcon& icon, QIcon::Mode mode = QIcon::Normal)
{
    return icon.pixmap(24, 24, mode).toImage();
}
} // namespace

class TestWindowForm : public QObject, private DtWindowFixture
{
    Q_OBJECT

private:
    QPushButton& middleButton(const char* toolTip) const
    {
        for (QPushButton* button : myWindow->findChildren<QPushButton*>("MiddleButton"))
            if (button->toolTip() == toolTip)
                return *button;
        qFatal("no button %s", toolTip);
    }
    QPushButton& addButton() const { return middleButton("Add selected items to the right panel"); }

private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void formHasItsNamesAndSize()
    {
        QCOMPARE(myWindow->objectName(), QString("CodeGenAppGUI"));
        QCOMPARE(myWindow->size(), QSize(640, 582));
        QCOMPARE(myWindow->windowTitle(), QString("Form3")); // until the application names it
        QCOMPARE(myWindow->centralWidget()->objectName(), QString("widget"));
        QCOMPARE(myWindow->menuBar()->objectName(), QString("MenuBar"));
        for (const char* layout : {"vboxLayout", "hboxLayout", "vboxLayout1"})
            QVERIFY2(myWindow->findChild<QLayout*>(layout) != nullptr, layout);
        QCOMPARE(left().objectName(), QString("myLeftListView"));
        QCOMPARE(right().objectName(), QString("myRightListView"));
        QVERIFY(!myWindow->windowIcon().isNull());
    }

    void middleButtonsShowIconsOnly()
    {
        for (const char* toolTip :
             {"Add selected items to the right panel", "Remove selected items from the right panel"})
        {
            const QPushButton& button = middleButton(toolTip);
            QCOMPARE(button.text(), QString());
            QCOMPARE(button.accessibleName(), QString(toolTip));
            QVERIFY(button.icon().isNull());
        }
        myWindow->manageIcons();
        QVERIFY(!addButton().icon().isNull());
        QVERIFY(!middleButton("Remove selected items from the right panel").icon().isNull());
    }

    void listsTakeTheFocusAndTheRightOneHasAMenu()
    {
        for (const QTreeWidget* list : {&left(), &right()})
            QCOMPARE(list->focusPolicy(), Qt::StrongFocus); // by click and by keyboard
        QCOMPARE(right().contextMenuPolicy(), Qt::CustomContextMenu);
        QVERIFY(!right().expandsOnDoubleClick());
        QCOMPARE(left().contextMenuPolicy(), Qt::DefaultContextMenu);
        QVERIFY(left().expandsOnDoubleClick());
    }

    void actionsAreAsListed_data()
    {
        QTest::addColumn<int>("row");
        for (int row = 0; row < int(std::size(theActions)); ++row)
            QTest::newRow(theActions[row].text) << row;
    }
    void actionsAreAsListed()
    {
        QFETCH(int, row);
        const DtActionRow& expected = theActions[row];
        const QAction& found = action(expected.text);
        QCOMPARE(found.shortcut().toString(), QString(expected.shortcut));
        QCOMPARE(found.toolTip(), QString(expected.toolTip));
        QCOMPARE(found.isEnabled(), expected.isEnabled);
        QCOMPARE(found.icon().isNull(), *expected.icon == '\0');
        if (*expected.icon != '\0')
            QCOMPARE(imageOf(found.icon()), imageOf(QIcon("../data/images/" + QString(expected.icon))));
        QCOMPARE(found.isCheckable(), QString(expected.text) == "&Toggle Dark Mode...");
        QCOMPARE(found.isChecked(), found.isCheckable());
    }

    void toolBarHasItsOrder()
    {
        const auto bars = myWindow->findChildren<QToolBar*>();
        QCOMPARE(bars.size(), 1);
        QCOMPARE(bars.first()->windowTitle(), QString("Actions"));
        QVERIFY(!bars.first()->isMovable());
        QCOMPARE(bars.first()->minimumHeight(), 30);
        QCOMPARE(bars.first()->maximumHeight(), 30);
        QCOMPARE(textsOf(bars.first()->actions()),
                 QString("New Project, Load Project, Save Project, |, Import FOM, Close, |, Generate"));
    }

    void menusHaveTheirOrder()
    {
        QString text;
        for (const QAction* menu : myWindow->menuBar()->actions())
            text += menu->text() + ": " + textsOf(menu->menu()->actions()) + "\n";
        QCOMPARE(text, QString("&File: New Project, Load Project, Save Project, Import FOM, Close, |, Exit\n"
                               "&Edit: Select All\n"
                               "&Configuration: Preferences..., Choose Output Directory..., &Toggle Dark Mode...\n"
                               "&Build: Generate\n"
                               "&Help: Version Web Site..., |, About Quorvex Code Generator\n"));
    }

    void mnemonicsDoNotClash()
    {
        QCOMPARE(mnemonics(myWindow->menuBar()->actions()), QString("FECBH"));
        for (const QAction* menu : myWindow->menuBar()->actions())
        {
            const QString letters = mnemonics(menu->menu()->actions()).toLower();
            QCOMPARE(QSet<QChar>(letters.begin(), letters.end()).size(), letters.size());
        }
    }

    void everyControlHasASpokenName()
    {
        QCOMPARE(controlsWithoutName(myWindow.get()), QStringList());
        QCOMPARE(controlsWithoutName(myWindow->preferences()), QStringList());
        QCOMPARE(controlsWithoutName(myWindow->aboutBox()), QStringList());
        QCOMPARE(spokenName(&left()), QString("Objects/Interactions in Data File"));
        QCOMPARE(spokenName(&right()), QString("Objects/Interactions to Generate"));
    }

    void tabGoesFromLeftToRight()
    {
        show();
        QCOMPARE(focusOrder(myWindow.get()),
                 QString("Objects/Interactions in Data File, Add selected items to the right panel, Remove selected "
                         "items from the right panel, Objects/Interactions to Generate"));
    }

    void dialogsBelongToTheWindow()
    {
        QVERIFY(myWindow->preferences()->parentWidget() == myWindow.get()); // and have its style
        QVERIFY(myWindow->aboutBox()->parentWidget() == myWindow.get());
        QVERIFY(!myWindow->preferences()->isVisible() && !myWindow->aboutBox()->isVisible());
    }

    // Style

    void windowStartsDark()
    {
        const QString dark = myWindow->styleSheet();
        myWindow->loadStylesheet(false);
        const QString light = myWindow->styleSheet();
        QVERIFY(!dark.isEmpty() && !light.isEmpty() && dark != light);
        action("&Toggle Dark Mode...").setChecked(false);
        QCOMPARE(myWindow->styleSheet(), light);
        action("&Toggle Dark Mode...").setChecked(true);
        QCOMPARE(myWindow->styleSheet(), dark);
        myWindow->setToggleDarkMode(false);
        QCOMPARE(myWindow->styleSheet(), light);
    }

    void sheetsAreJoinedInOrderAndTheirVariablesResolved()
    {
        openOnOwnData();
        writeTextFile(path("data/config/qt/DarkMode/00_common.qss"), "/* a $(APP_DIR) \xE4 */\n");
        writeTextFile(path("data/config/qt/DarkMode/01_qvx.qss"), "/* b $(APP_DIR)/x $(APP_DIR) */\n");
        myWindow->loadStylesheet(true);
        QCOMPARE(myWindow->styleSheet(), QString::fromLatin1("/* a ../data/config \xE4 */\n"
                                                             "/* b ../data/config/x ../data/config */\n"));
    }

    void missingSheetsGiveNoneInSilence()
    {
        openOnOwnData();
        QDir(path("data/config/qt")).removeRecursively();
        const DtCapture warnings(DtWarn);
        myWindow->loadStylesheet(true);
        QCOMPARE(myWindow->styleSheet(), QString());
        QCOMPARE(warnings.text(), QString());
        QCOMPARE(status(), QString());
    }

    void shippedSheetsLeaveNothingUnresolved()
    {
        for (const bool isDark : {true, false})
        {
            const DtCapture warnings(DtWarn);
            myWindow->loadStylesheet(isDark);
            QVERIFY(!myWindow->styleSheet().contains("$("));
            const QRegularExpression url("url\\(([^)]*)\\)");
            for (auto each = url.globalMatch(myWindow->styleSheet()); each.hasNext();)
            {
                const QString file = each.next().captured(1);
                QVERIFY2(QFile::exists(file), qPrintable(file));
            }
        }
    }

    // Colours of icons

    void iconColorsFollowTheStyle()
    {
        myWindow->manageIcons();
        const auto colorOfIcon = [this] { return average(imageOf(addButton().icon())).lightness(); };
        const int dark = colorOfIcon();
        action("&Toggle Dark Mode...").setChecked(false);
        const int light = colorOfIcon();
        QVERIFY2(dark > 180 && light < 75, qPrintable(QString("%1 %2").arg(dark).arg(light)));
        action("&Toggle Dark Mode...").setChecked(true);
        QCOMPARE(colorOfIcon(), dark);
    }

    void disabledButtonHasAPalerIcon()
    {
        myWindow->manageIcons();
        const int enabled = average(imageOf(addButton().icon())).lightness();
        const int disabled = average(imageOf(addButton().icon(), QIcon::Disabled)).lightness();
        QVERIFY2(disabled < enabled - 20, qPrintable(QString("%1 %2").arg(enabled).arg(disabled)));
    }

    void eachModeHasItsColors_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("disabled") << int(QIcon::Disabled);
        QTest::newRow("active") << int(QIcon::Active);
        QTest::newRow("selected") << int(QIcon::Selected);
    }
    void eachModeHasItsColors()
    {
        QFETCH(int, mode);
        const DtCapture warnings(DtWarn);
        const DtIconColorMappings mappings = myWindow->iconColorMappingsByMode(QIcon::Mode(mode));
        QCOMPARE(mappings.size(), std::size_t(2));
        QCOMPARE(mappings.front().first.c_str(), "#ffffff");
        QCOMPARE(mappings.back().first.c_str(), "white");
        QVERIFY(mappings.front().second.isValid() && mappings.front().second == mappings.back().second);
        QCOMPARE(warnings.text(), QString());
    }

    // The normal mode is the one that has no row.
    void normalModeHasNoColorsAndAWarning()
    {
        const DtCapture warnings(DtWarn);
        QVERIFY(myWindow->iconColorMappingsByMode(QIcon::Normal).empty());
        QCOMPARE(warnings.text(),
                 QString("Warning: libsrc/codeGenApp/codeGenAppGUI iconColorMappingsByMode: Color mappings for "
                         "provided QIcon::Mode with enumeration value 0 are not supported - returning no mappings\n"));
    }

    void colorsAreKeptUntilTheyAreInvalid()
    {
        const QColor before = myWindow->iconColorMappingsByMode(QIcon::Active).front().second;
        myWindow->setStyleSheet("QPushButton { color: #123456; }");
        QCOMPARE(myWindow->iconColorMappingsByMode(QIcon::Active).front().second, before);
        myWindow->invalidateIconColorMappings();
        QCOMPARE(myWindow->iconColorMappingsByMode(QIcon::Active).front().second, QColor("#123456"));
    }

    void iconsAreSharpAtScaleTwo()
    {
        myWindow->manageIcons();
        for (const QIcon& icon : {addButton().icon(), action("Generate").icon()})
        {
            const QPixmap pixmap = icon.pixmap(QSize(48, 48)); // what is asked for at 24 by 24 logical pixels
            QCOMPARE(pixmap.size(), QSize(48, 48));
            const QImage image = pixmap.toImage();
            const QImage enlarged = icon.pixmap(QSize(24, 24)).toImage().scaled(48, 48);
            QVERIFY(image != enlarged.convertToFormat(image.format()));
        }
    }
};

QX_REGISTER_TEST(TestWindowForm)
#include "testWindowForm.moc"
