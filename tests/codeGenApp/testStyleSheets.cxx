// The shipped style sheets, images and icons: whether everything is there, can be read, and can be seen.

#include "registerTest.h"

#include "codeGenApp/codeEditor.h"
#include "scratchData.h"

#include <QtSvg/QSvgRenderer>

#include <cmath>

namespace
{
const double theTextContrast = 4.5;
const double theShapeContrast = 3.0;
const QString theData = QStringLiteral(QX_SOURCE_DIR "/data");

double channel(double value)
{
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * channel(color.redF()) + 0.7152 * channel(color.greenF()) + 0.0722 * channel(color.blueF());
}

double contrast(const QColor& a, const QColor& b)
{
    const double lighter = std::max(luminance(a), luminance(b));
    const double darker = std::min(luminance(a), luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

QString sheetText(const QString& mode)
{
    const QString directory = theData + "/config/qt/" + mode;
    return readTextFile(directory + "/00_common.qss") + readTextFile(directory + "/01_qvx.qss");
}

// A style sheet as selectors with their properties; later rules of one selector come on top of earlier ones.
class DtSheet
{
public:
    using Properties = std::map<QString, QString>;

    explicit DtSheet(const QString& mode)
    {
        static const QRegularExpression theComment(QStringLiteral("/\\*.*?\\*/"),
                                                   QRegularExpression::DotMatchesEverythingOption);
        static const QRegularExpression theRule(QStringLiteral("([^{}]+)\\{([^}]*)\\}"));
        const QString text = sheetText(mode).remove(theComment);
        for (auto each = theRule.globalMatch(text); each.hasNext();)
            add(each.next());
    }

    const std::map<QString, Properties>& rules() const { return myRules; }
    QStringList selectors() const
    {
        QStringList names;
        for (const auto& [selector, properties] : myRules)
            names += selector;
        return names;
    }
    // What holds for a selector: its own value, or that of the widget behind it, without states, parts and names.
    // Transparent parts show what is below them.
    QColor color(const QString& selector, const QString& property) const
    {
        for (const QString& each : chain(selector))
        {
            const auto found = myRules.find(each);
            if (found == myRules.end() || found->second.count(property) == 0)
                continue;
            const QString value = found->second.at(property);
            if (value != QStringLiteral("transparent"))
                return QColor(value);
        }
        return QColor();
    }

private:
    void add(const QRegularExpressionMatch& rule)
    {
        for (const QString& selector : rule.captured(1).split(','))
            for (const QString& declaration : rule.captured(2).split(';', Qt::SkipEmptyParts))
            {
                const QString name = declaration.section(':', 0, 0).trimmed();
                if (!name.isEmpty())
                    myRules[selector.simplified()][name] = declaration.section(':', 1).trimmed();
            }
    }

    static QStringList chain(QString selector)
    {
        static const QRegularExpression theState(QStringLiteral("(?<!:):[a-z-]+$"));
        QStringList names(selector);
        for (QRegularExpressionMatch state; (state = theState.match(selector)).hasMatch();)
            names += selector = selector.left(state.capturedStart());
        if (selector.contains(QStringLiteral("::")))
            names += selector = selector.section(QStringLiteral("::"), 0, 0);
        if (selector.contains('#'))
            names += selector = selector.section('#', 0, 0);
        if (selector.contains(' '))
            names += selector = selector.section(' ', -1);
        names += selector == QStringLiteral("CodeEditor") ? QStringLiteral("QPlainTextEdit") : QString();
        for (const char* list : {"QTreeView", "QListView", "QTableView"})
            names += selector == list ? QStringLiteral("QAbstractItemView") : QString();
        return names << QStringLiteral("QWidget");
    }

    std::map<QString, Properties> myRules;
};

QStringList modes()
{
    return {QStringLiteral("DarkMode"), QStringLiteral("LightMode")};
}

// Every colour of a picture that is not transparent.
std::set<QRgb> opaqueColors(const QImage& image)
{
    std::set<QRgb> colors;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) == 255)
                colors.insert(image.pixel(x, y) & RGB_MASK);
    return colors;
}

QImage drawn(const QString& file, int side)
{
    QSvgRenderer renderer(file);
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

QStringList theWarnings;

void collectWarning(QtMsgType, const QMessageLogContext&, const QString& text)
{
    theWarnings += text;
}

// What Qt has to say about a style sheet while a window of this kind is polished.
QStringList warningsOf(const QString& sheet)
{
    theWarnings.clear();
    const auto old = qInstallMessageHandler(collectWarning);
    {
        QMainWindow window;
        window.setStyleSheet(sheet);
        window.menuBar()->addMenu(QStringLiteral("x"))->addAction(QStringLiteral("y"));
        window.setCentralWidget(new QTreeWidget);
        window.statusBar()->showMessage(QStringLiteral("z"));
        window.grab();
    }
    qInstallMessageHandler(old);
    return theWarnings;
}
} // namespace

class TestStyleSheets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void contrastIsComputedAsDefined();
    void sheetsAreThereAndPlainLatin1();
    void bothModesStyleTheSame();
    void everyKindOfControlIsStyled();
    void textCanBeRead_data() { addModes(); }
    void textCanBeRead();
    void selectedTextCanBeRead_data() { addModes(); }
    void selectedTextCanBeRead();
    void combinedStatesCanBeRead_data() { addModes(); }
    void combinedStatesCanBeRead();
    void currentEntryStandsOut_data() { addModes(); }
    void currentEntryStandsOut();
    void edgesOfFieldsCanBeSeen_data() { addModes(); }
    void edgesOfFieldsCanBeSeen();
    void imagesOfTheSheetsExist_data() { addModes(); }
    void imagesOfTheSheetsExist();
    void qtTakesTheSheetWithoutWarning_data() { addModes(); }
    void qtTakesTheSheetWithoutWarning();
    void brokenSheetWouldBeNoticed();
    void sheetReachesPaletteOfMiddleButtons_data() { addModes(); }
    void sheetReachesPaletteOfMiddleButtons();
    void codeIsOnPaperInBothModes();
    void actionIconsAreDrawnOnGrid_data() { addIcons(); }
    void actionIconsAreDrawnOnGrid();
    void actionIconCanBeSeenInBothModes_data() { addActionIcons(); }
    void actionIconCanBeSeenInBothModes();
    void iconGainsDetailAtScaleTwo_data() { addIcons(); }
    void iconGainsDetailAtScaleTwo();
    void buttonForWhatDoesNotFitCanBeSeen_data() { addModes(); }
    void buttonForWhatDoesNotFitCanBeSeen();
    void middleIconsHaveTheColorsThatAreReplaced();
    void noOtherImagesShip();
    void splashLeavesRoomForItsMessages();
    void windowIconHasEverySize();

private:
    static void addModes()
    {
        QTest::addColumn<QString>("mode");
        for (const QString& mode : modes())
            QTest::newRow(qPrintable(mode)) << mode;
    }
    static QStringList actionIcons()
    {
        return {"FileExit.svg",         "FileNew.svg",      "FileOpen.svg",      "SettingsSystem.svg",
                "TerrainWorldView.svg", "UtilityClose.svg", "UtilityExport.svg", "UtilityInformation.svg"};
    }
    static QStringList middleIcons() { return {"DarkMode/SettingsAddWindow.svg", "DarkMode/SettingsRemoveWindow.svg"}; }
    static void addFiles(const QStringList& files)
    {
        QTest::addColumn<QString>("file");
        for (const QString& file : files)
            QTest::newRow(qPrintable(file)) << theData + "/images/" + file;
    }
    static void addActionIcons() { addFiles(actionIcons()); }
    static void addIcons() { addFiles(actionIcons() + middleIcons()); }
};

void TestStyleSheets::contrastIsComputedAsDefined()
{
    QCOMPARE(contrast(Qt::black, Qt::white), 21.0);
    QCOMPARE(contrast(Qt::white, Qt::white), 1.0);
    QVERIFY(std::abs(contrast(QColor(0x767676), Qt::white) - 4.54) < 0.01);
}

void TestStyleSheets::sheetsAreThereAndPlainLatin1()
{
    for (const QString& mode : modes())
        for (const char* name : {"00_common.qss", "01_qvx.qss"})
        {
            const QByteArray text = readTextFile(theData + "/config/qt/" + mode + "/" + name);
            QVERIFY2(!text.isEmpty(), name);
            for (const char byte : text)
                QVERIFY2(static_cast<unsigned char>(byte) < 0x80, name); // the program reads it as Latin-1
        }
}

void TestStyleSheets::bothModesStyleTheSame()
{
    const DtSheet dark("DarkMode");
    const DtSheet light("LightMode");
    QCOMPARE(dark.selectors(), light.selectors());
    for (const auto& [selector, properties] : dark.rules())
        for (const auto& [name, value] : properties)
            QVERIFY2(light.rules().at(selector).count(name) == 1, qPrintable(selector + " " + name));
    QVERIFY(dark.rules() != light.rules());
}

void TestStyleSheets::everyKindOfControlIsStyled()
{
    const char* const theControls[] = {
        "QMenuBar",
        "QMenu::item",
        "QToolBar",
        "QToolButton",
        "QStatusBar",
        "QTreeView::branch:has-children:open",
        "QAbstractItemView",
        "QHeaderView::section",
        "QPushButton",
        "QLineEdit",
        "QAbstractSpinBox",
        "QPlainTextEdit",
        "QComboBox",
        "QCheckBox::indicator",
        "QTabBar::tab",
        "QTabWidget::pane",
        "QScrollBar::handle",
        "QProgressBar::chunk",
        "QDialog",
        "QMessageBox",
        "QProgressDialog",
        "QToolTip",
        "QGroupBox",
        "QRadioButton::indicator",
        "QSplitter::handle",
        "CodeEditor",
        "LineNumberArea",
        "QPushButton#MiddleButton",
        "QLabel#AboutBoxHelpLink",
    };
    const QStringList selectors = DtSheet("DarkMode").selectors();
    for (const char* control : theControls)
        QVERIFY2(selectors.contains(QString::fromLatin1(control)), control);
}

// Every rule that sets a text or a background, with what it leaves to others.
void TestStyleSheets::textCanBeRead()
{
    QFETCH(QString, mode);
    static const QRegularExpression theTextless(
        QStringLiteral("::(indicator|separator|handle|branch|corner|[a-z]+-(page|line|button|arrow)|drop-down)|"
                       "QScrollBar|QSplitter|QTableCornerButton"));
    const DtSheet sheet(mode);
    int checked = 0;
    for (const auto& [selector, properties] : sheet.rules())
    {
        const bool setsColor = properties.count("color") + properties.count("background-color") > 0;
        if (!setsColor || theTextless.match(selector).hasMatch())
            continue;
        const QColor text = sheet.color(selector, "color");
        const QColor ground = sheet.color(selector, "background-color");
        QVERIFY2(text.isValid() && ground.isValid(), qPrintable(selector));
        QVERIFY2(contrast(text, ground) >= theTextContrast,
                 qPrintable(QStringLiteral("%1: %2").arg(selector).arg(contrast(text, ground))));
        ++checked;
    }
    QVERIFY(checked > 50);
}

void TestStyleSheets::selectedTextCanBeRead()
{
    QFETCH(QString, mode);
    const DtSheet sheet(mode);
    int checked = 0;
    for (const auto& [selector, properties] : sheet.rules())
    {
        if (properties.count("selection-color") == 0)
            continue;
        const double value =
            contrast(sheet.color(selector, "selection-color"), sheet.color(selector, "selection-background-color"));
        QVERIFY2(value >= theTextContrast, qPrintable(selector));
        ++checked;
    }
    QVERIFY(checked >= 3);
}

// The entry under the mouse or the keyboard, against its neighbours.
void TestStyleSheets::currentEntryStandsOut()
{
    struct Pair
    {
        const char *entry, *property, *neighbour;
    };
    const Pair thePairs[] = {
        {"QMenuBar::item:selected",          "background-color", "QMenuBar"                        },
        {"QMenuBar::item:pressed",           "background-color", "QMenuBar"                        },
        {"QMenu::item:selected",             "background-color", "QMenu"                           },
        {"QAbstractItemView::item:selected", "background-color", "QAbstractItemView"               },
        {"QAbstractItemView::item:focus",    "border-color",     "QAbstractItemView"               },
        {"QAbstractItemView::item:focus",    "border-color",     "QAbstractItemView::item:selected"},
    };
    QFETCH(QString, mode);
    const DtSheet sheet(mode);
    for (const Pair& pair : thePairs)
    {
        const double value =
            contrast(sheet.color(pair.entry, pair.property), sheet.color(pair.neighbour, "background-color"));
        QVERIFY2(value >= theShapeContrast, qPrintable(QStringLiteral("%1 %2").arg(pair.entry).arg(value)));
    }
}

// Pairs that no rule has both halves of: a text and the ground that another state puts below it.
void TestStyleSheets::combinedStatesCanBeRead()
{
    struct Pair
    {
        const char *text, *ground;
    };
    const Pair thePairs[] = {
        {"QMenu::item:disabled",       "QMenu::item:selected:disabled"},
        {"QToolButton:disabled",       "QToolButton:hover"            },
        {"QProgressBar",               "QProgressBar::chunk"          },
        {"QProgressBar",               "QProgressBar"                 },
        {"QAbstractItemView:disabled", "QAbstractItemView"            },
        {"QTabBar::tab:disabled",      "QTabBar::tab"                 },
        {"QAbstractItemView",          "QComboBox QAbstractItemView"  },
        {"QWidget:disabled",           "QMenu"                        },
        {"QLabel",                     "QToolBar"                     },
    };
    QFETCH(QString, mode);
    const DtSheet sheet(mode);
    for (const Pair& pair : thePairs)
        QVERIFY2(contrast(sheet.color(pair.text, "color"), sheet.color(pair.ground, "background-color")) >=
                     theTextContrast,
                 pair.text);
    const QColor stripe = sheet.color("QAbstractItemView", "alternate-background-color");
    QVERIFY(contrast(sheet.color("QAbstractItemView", "color"), stripe) >= theTextContrast);
}

void TestStyleSheets::edgesOfFieldsCanBeSeen()
{
    QFETCH(QString, mode);
    const DtSheet sheet(mode);
    const QColor window = sheet.color("QWidget", "background-color");
    for (const char* field : {"QPushButton", "QLineEdit", "QComboBox", "QCheckBox::indicator", "QProgressBar"})
    {
        const QColor edge(sheet.rules().at(field).at("border").section(' ', -1));
        QVERIFY2(contrast(edge, window) >= theShapeContrast, field);
    }
    QVERIFY(contrast(QColor(sheet.rules().at("QPushButton:focus").at("border-color")), window) >= theShapeContrast);
}

void TestStyleSheets::imagesOfTheSheetsExist()
{
    QFETCH(QString, mode);
    static const QRegularExpression theUrl(QStringLiteral("url\\(\\$\\(APP_DIR\\)/([^)]*)\\)"));
    const QString text = sheetText(mode);
    QCOMPARE(text.count("url("), text.count(theUrl));
    QVERIFY(text.count(theUrl) > 5);
    for (auto each = theUrl.globalMatch(text); each.hasNext();)
    {
        const QString name = each.next().captured(1);
        QVERIFY2(name.startsWith("qt/" + mode + "/"), qPrintable(name));
        QVERIFY2(QSvgRenderer(theData + "/config/" + name).isValid(), qPrintable(name));
    }
}

void TestStyleSheets::qtTakesTheSheetWithoutWarning()
{
    QFETCH(QString, mode);
    const DtScratchData program(QStringList("config"));
    QCOMPARE(warningsOf(sheetText(mode).replace("$(APP_DIR)", "../data/config")), QStringList());
}

void TestStyleSheets::brokenSheetWouldBeNoticed()
{
    QVERIFY(!warningsOf(QStringLiteral("QWidget { color: red")).isEmpty() ||
            !warningsOf(QStringLiteral("QWidget color red }")).isEmpty());
}

// The colours of the icons are asked of the buttons.
void TestStyleSheets::sheetReachesPaletteOfMiddleButtons()
{
    QFETCH(QString, mode);
    const DtSheet sheet(mode);
    QWidget window;
    window.setStyleSheet(sheetText(mode));
    QPushButton button(&window);
    button.setObjectName(QStringLiteral("MiddleButton"));
    button.ensurePolished();
    QCOMPARE(button.palette().color(QPalette::Active, QPalette::ButtonText),
             sheet.color("QPushButton#MiddleButton", "color"));
    QCOMPARE(button.palette().color(QPalette::Disabled, QPalette::ButtonText),
             sheet.color("QPushButton#MiddleButton:disabled", "color"));
}

// The colours of the syntax are fixed; the ground is what they can be read on.
void TestStyleSheets::codeIsOnPaperInBothModes()
{
    for (const QString& mode : modes())
    {
        const QColor paper = DtSheet(mode).color("CodeEditor", "background-color");
        for (const Qt::GlobalColor color : {Qt::darkBlue, Qt::darkMagenta, Qt::blue, Qt::darkGreen})
            QVERIFY(contrast(color, paper) >= theTextContrast);
        QVERIFY(contrast(Qt::red, paper) >= 3.9); // no ground gives this red more without taking it from the others
    }
}

void TestStyleSheets::actionIconsAreDrawnOnGrid()
{
    QFETCH(QString, file);
    const QByteArray text = readTextFile(file);
    QVERIFY(text.contains("width=\"24\" height=\"24\" viewBox=\"0 0 24 24\""));
    QVERIFY(text.contains("stroke-width=\"2\" stroke-linecap=\"round\" stroke-linejoin=\"round\"")); // one style
    QVERIFY(QSvgRenderer(file).isValid());
    const QImage image = drawn(file, 24);
    for (int at = 0; at < 24; ++at) // nothing is cut off
        QVERIFY(qAlpha(image.pixel(at, 0)) + qAlpha(image.pixel(at, 23)) + qAlpha(image.pixel(0, at)) +
                    qAlpha(image.pixel(23, at)) ==
                0);
}

void TestStyleSheets::actionIconCanBeSeenInBothModes()
{
    QFETCH(QString, file);
    const std::set<QRgb> colors = opaqueColors(drawn(file, 48));
    QCOMPARE(static_cast<int>(colors.size()), 1);
    for (const QString& mode : modes())
    {
        const DtSheet sheet(mode);
        for (const char* ground :
             {"QToolBar", "QToolButton:hover", "QToolButton:checked", "QMenu", "QMenu::icon:selected"})
        {
            const double value = contrast(QColor(*colors.begin()), sheet.color(ground, "background-color"));
            QVERIFY2(value >= theShapeContrast, qPrintable(QStringLiteral("%1 %2 %3").arg(mode, ground).arg(value)));
        }
    }
}

// At the end of a tool bar or menu bar that is too narrow.
void TestStyleSheets::buttonForWhatDoesNotFitCanBeSeen()
{
    QFETCH(QString, mode);
    const DtScratchData program(QStringList("config"));
    const DtSheet sheet(mode);
    QMainWindow window;
    window.setStyleSheet(sheetText(mode).replace("$(APP_DIR)", "../data/config"));
    QToolBar* const bar = window.addToolBar("bar");
    for (const char* text : {"What is rather long", "and longer", "and wider than the window"})
    {
        bar->addAction(text);
        window.menuBar()->addMenu(text)->addAction(text);
    }
    window.resize(200, 100);
    window.show();
    for (const char* name : {"qt_toolbar_ext_button", "qt_menubar_ext_button"})
    {
        auto* const button = window.findChild<QToolButton*>(name);
        QVERIFY2(button != nullptr, name);
        QTRY_VERIFY2(button->isVisible(), name);
        const std::set<QRgb> colors = opaqueColors(button->icon().pixmap(16, 16).toImage());
        QVERIFY2(!colors.empty(), name);
        const char* const ground = button->parent() == bar ? "QToolBar" : "QMenuBar";
        for (const QRgb color : colors)
            QVERIFY2(contrast(QColor(color), sheet.color(ground, "background-color")) >= theShapeContrast, name);
    }
}

// Drawn at twice the size an icon is no blown-up copy, and its straight edges fall between pixels at either size.
void TestStyleSheets::iconGainsDetailAtScaleTwo()
{
    QFETCH(QString, file);
    const QImage plain = drawn(file, 24);
    const QImage twice = drawn(file, 48);
    QVERIFY(twice != plain.scaled(48, 48));
    const auto fullPixels = [](const QImage& image)
    {
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += qAlpha(image.pixel(x, y)) == 255 ? 1 : 0;
        return count;
    };
    QVERIFY(fullPixels(plain) >= 20); // off the grid, two-pixel lines would leave hardly one
    QVERIFY(fullPixels(twice) > 4 * fullPixels(plain));
}

void TestStyleSheets::middleIconsHaveTheColorsThatAreReplaced()
{
    for (const QString& name : middleIcons())
    {
        const QByteArray text = readTextFile(theData + "/images/" + name);
        QVERIFY(text.contains("\"#ffffff\"") && text.contains("\"white\""));
        QCOMPARE(opaqueColors(drawn(theData + "/images/" + name, 48)), std::set<QRgb>{0xffffff});
    }
    QVERIFY(drawn(theData + "/images/" + middleIcons().first(), 24) !=
            drawn(theData + "/images/" + middleIcons().last(), 24));
}

void TestStyleSheets::noOtherImagesShip()
{
    QStringList expected = actionIcons() + middleIcons();
    expected += QStringLiteral("SplashScreen_Quorvex.jpg");
    expected.sort();
    QCOMPARE(filesBelow(theData + "/images"), expected);
}

// The messages are black, at the top left.
void TestStyleSheets::splashLeavesRoomForItsMessages()
{
    const QImage splash(theData + "/images/SplashScreen_Quorvex.jpg");
    QVERIFY(splash.width() >= 400 && splash.width() <= 800 && splash.height() >= 200 && splash.height() <= 500);
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < splash.width() / 2; ++x)
            QVERIFY(contrast(Qt::black, splash.pixelColor(x, y)) >= 15);
}

void TestStyleSheets::windowIconHasEverySize()
{
    const QIcon icon(theData + "/quorvexIcon.ico");
    for (const int side : {16, 24, 32, 48, 64, 128, 256})
    {
        QVERIFY(icon.availableSizes().contains(QSize(side, side)));
        QVERIFY(opaqueColors(icon.pixmap(side).toImage()).size() > 3);
    }
}

QX_REGISTER_TEST(TestStyleSheets)
#include "testStyleSheets.moc"
