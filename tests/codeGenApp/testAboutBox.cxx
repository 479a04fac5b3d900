// The about box, what it takes from the build and from the deployment file.

#include "registerTest.h"

#include "codeGenApp/aboutBox.h"
#include "foundation/fileUtils.h"
#include "scratchData.h"

#include <QtCore/QProcess>

namespace
{
// The texts of all labels in the order in which they were made, hidden and empty ones left out.
QStringList shownTexts(const QDialog& box)
{
    QStringList texts;
    for (const QLabel* label : box.findChildren<QLabel*>())
        if (!label->isHidden() && !label->text().isEmpty())
            texts += label->text();
    return texts;
}

// The value beside a caption.
QString valueOf(const QDialog& box, const QString& caption)
{
    const QStringList texts = shownTexts(box);
    for (const QLabel* label : box.findChildren<QLabel*>())
        if (label->text() == caption)
        {
            auto* const grid = box.findChild<QGridLayout*>();
            int row = 0, column = 0, rows = 0, columns = 0;
            grid->getItemPosition(grid->indexOf(const_cast<QLabel*>(label)), &row, &column, &rows, &columns);
            return qobject_cast<QLabel*>(grid->itemAtPosition(row, 1)->widget())->text();
        }
    return QString();
}

QPushButton* button(const QDialog& box, const char* text)
{
    for (QPushButton* each : box.findChildren<QPushButton*>())
        if (each->text() == text)
            return each;
    return nullptr;
}

struct BuildInfo
{
    QString date;
    QString revision;
};

// What the build's script writes; a null answer without CMake.
BuildInfo runBuildInfo(const QString& source, const QProcessEnvironment& environment)
{
    QTemporaryDir directory;
    const QString output = directory.path() + "/buildInfo.h";
    QProcess cmake;
    cmake.setProcessEnvironment(environment);
    cmake.start("cmake", {"-DOUTPUT=" + output, "-DSOURCE_DIR=" + source, "-DVERSION=5.10", "-P",
                          QX_SOURCE_DIR "/cmake/buildInfo.cmake"});
    if (!cmake.waitForFinished(60000) || cmake.exitCode() != 0)
        return BuildInfo();
    const QString text = QString::fromUtf8(readTextFile(output));
    const auto constant = [&text](const char* name)
    { return text.section(QString::fromLatin1(name) + "[] = \"", 1).section('"', 0, 0); };
    return {constant("theBuildDate"), constant("theBuildRevision")};
}

bool hasCMake()
{
    return !QStandardPaths::findExecutable("cmake").isEmpty();
}

const QStringList theFolders = {"config", "images"};

void writeDeployment(const DtScratchData& program, const QByteArray& elements)
{
    writeTextFile(program.path("data/config/deployment.xml"),
                  "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<deployment>" + elements + "</deployment>\n");
}
} // namespace

class TestAboutBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { myData = std::make_unique<DtScratchData>(myTree); }
    void cleanup() { myData.reset(); }

    void titleNamesTheProduct();
    void captionsStandInOrder();
    void valuesTellTheBuild();
    void shippedDeploymentIsEmpty();
    void textsOfSupportAreThere();
    void imageIsTheSplash();
    void missingImageTakesNoRoom();
    void deploymentFillsInAddresses();
    void linksHaveColorOfTheirStyle();
    void addressesAreNotTakenForMarkup();
    void closeAccepts();
    void copyPutsDialogOnClipboard();
    void buttonsHaveTheirTexts();
    void fontsAreThoseOfTheBuild();
    void missingDeploymentFileIsEmptyInSilence();
    void brokenDeploymentFileIsToldAndEmpty();
    void unknownElementsOfDeploymentAreSkipped();
    void dateFollowsSourceDateEpoch();
    void dateIsTodayOtherwise();
    void revisionIsThatOfTheCheckout();
    void revisionIsUnknownOutsideOfACheckout();
    void revisionIsUnknownBelowAnotherCheckout();
    void revisionIsUnknownWithoutGit();
    void unchangedBuildInfoIsLeftAlone();

private:
    // For a test that changes the data.
    const DtScratchData& ownData()
    {
        myData.reset();
        myData = std::make_unique<DtScratchData>(theFolders);
        return *myData;
    }

    DtScratchTree myTree{theFolders};
    std::unique_ptr<DtScratchData> myData;
};

void TestAboutBox::titleNamesTheProduct()
{
    const DtAboutBox box;
    QCOMPARE(box.windowTitle(), QString("About Quorvex Code Generator"));
    QVERIFY(shownTexts(box).contains("Quorvex Code Generator"));
}

void TestAboutBox::captionsStandInOrder()
{
    const DtAboutBox box;
    const auto* const grid = box.findChild<QGridLayout*>();
    QStringList captions;
    for (int row = 0; row < grid->rowCount(); ++row)
        if (QLayoutItem* item = grid->itemAtPosition(row, 0))
            captions += qobject_cast<QLabel*>(item->widget())->text();
    QCOMPARE(captions, QStringList({"Platform:", "Compiler:", "Version:", "Built With:", "Build Date:", "SVN Rev:"}));
}

void TestAboutBox::valuesTellTheBuild()
{
    const DtAboutBox box;
    const QString bits = QString::number(8 * sizeof(void*));
    QCOMPARE(valueOf(box, "Platform:"), QString::fromUtf8(DtOperatingSystem().c_str()) + " " + bits + "-bit");
    QCOMPARE(valueOf(box, "Compiler:"), QString::fromUtf8(DtCompiler().c_str()));
    static const QRegularExpression theProject(QStringLiteral("\nproject\\(\\w+ VERSION ([0-9.]+)"));
    const QString version =
        theProject.match(QString::fromUtf8(readTextFile(QX_SOURCE_DIR "/CMakeLists.txt"))).captured(1);
    QVERIFY(!version.isEmpty());
    QCOMPARE(valueOf(box, "Version:"), version);
    QCOMPARE(valueOf(box, "Built With:"), "Quorvex " + version + ", Qt " QT_VERSION_STR);
    static const QRegularExpression theDate(QStringLiteral("^[A-Z][a-z]{2} [0-9]{2} 20[0-9]{2}$"));
    QVERIFY(theDate.match(valueOf(box, "Build Date:")).hasMatch());
    QVERIFY(!valueOf(box, "SVN Rev:").isEmpty());
}

void TestAboutBox::shippedDeploymentIsEmpty()
{
    const DtDeployment deployment = DtDeployment::read();
    QVERIFY(QFile::exists("../data/config/deployment.xml"));
    QCOMPARE(deployment.address + deployment.telephone + deployment.webAddress + deployment.mailAddress +
                 deployment.versionPage,
             QString());
}

void TestAboutBox::textsOfSupportAreThere()
{
    const DtAboutBox box;
    const QStringList texts = shownTexts(box);
    const QStringList expected = {"Tarnel Technologies", "Support", "Get in touch, let us know\nhow we can help you!"};
    QCOMPARE(texts.mid(texts.size() - 3), expected);
    const auto* const links = box.findChild<QLabel*>("AboutBoxHelpLink");
    QVERIFY(links != nullptr && links->isHidden());
}

void TestAboutBox::imageIsTheSplash()
{
    const DtAboutBox box;
    const auto* const label = box.findChild<QLabel*>();
    QCOMPARE(label->pixmap(Qt::ReturnByValue).toImage(), QPixmap("../data/images/SplashScreen_Quorvex.jpg").toImage());
    QCOMPARE(label->accessibleName(), QString("Quorvex Code Generator"));
}

void TestAboutBox::missingImageTakesNoRoom()
{
    ownData();
    const int height = DtAboutBox().sizeHint().height();
    const int image = QPixmap("../data/images/SplashScreen_Quorvex.jpg").height();
    QVERIFY(QFile::remove("../data/images/SplashScreen_Quorvex.jpg"));
    QVERIFY(DtAboutBox().sizeHint().height() <= height - image);
}

void TestAboutBox::deploymentFillsInAddresses()
{
    writeDeployment(ownData(), "<address>\n  Harbour Road 1\n  Smalltown\n</address><telephone>+1 2</telephone>"
                               "<webAddress>https://support.example</webAddress>"
                               "<mailAddress>help@support.example</mailAddress>");
    DtAboutBox box;
    box.show();
    const QStringList texts = shownTexts(box);
    QVERIFY(texts.contains("Harbour Road 1\nSmalltown"));
    QVERIFY(texts.contains("+1 2"));
    const auto* const links = box.findChild<QLabel*>("AboutBoxHelpLink");
    QVERIFY(links->isVisible() && links->openExternalLinks());
    QVERIFY(links->text().contains("<a href=\"https://support.example\">"));
    QVERIFY(links->text().contains("<a href=\"mailto:help@support.example\">"));
    QVERIFY(links->textInteractionFlags() & Qt::LinksAccessibleByKeyboard);
}

void TestAboutBox::linksHaveColorOfTheirStyle()
{
    writeDeployment(ownData(), "<webAddress>https://support.example</webAddress>");
    QWidget window;
    window.setStyleSheet("#AboutBoxHelpLink { color: #123456; }");
    window.show();
    DtAboutBox box(&window);
    box.show();
    const auto* const links = box.findChild<QLabel*>("AboutBoxHelpLink");
    QVERIFY(links->text().contains("color:#123456"));
    window.setStyleSheet("#AboutBoxHelpLink { color: #654321; }");
    QVERIFY(links->text().contains("color:#654321"));
}

void TestAboutBox::addressesAreNotTakenForMarkup()
{
    writeDeployment(ownData(), "<address>&lt;b&gt;A&lt;/b&gt; &amp; B</address>"
                               "<webAddress>https://a.example/?x=1&amp;y=\"2\"</webAddress>");
    DtAboutBox box;
    box.show();
    for (const QLabel* label : box.findChildren<QLabel*>())
        if (label->text().startsWith("<b>"))
            QCOMPARE(label->textFormat(), Qt::PlainText);
    QVERIFY(shownTexts(box).contains("<b>A</b> & B"));
    QVERIFY(box.findChild<QLabel*>("AboutBoxHelpLink")->text().contains("x=1&amp;y=&quot;2&quot;\""));
}

void TestAboutBox::closeAccepts()
{
    DtAboutBox box;
    const QSignalSpy accepted(&box, &QDialog::accepted);
    box.show();
    QTest::mouseClick(button(box, "Close"), Qt::LeftButton);
    QCOMPARE(accepted.count(), 1);
    QVERIFY(!box.isVisible());
}

void TestAboutBox::copyPutsDialogOnClipboard()
{
    QApplication::clipboard()->clear();
    DtAboutBox box;
    box.show();
    QTest::mouseClick(button(box, "Copy Image to Clipboard"), Qt::LeftButton);
    const QImage image = QApplication::clipboard()->image();
    QCOMPARE(image.size(), box.size() * box.devicePixelRatio());
    QCOMPARE(image.pixelColor(image.width() / 2, 2), box.grab().toImage().pixelColor(image.width() / 2, 2));
    QVERIFY(box.isVisible());
}

void TestAboutBox::buttonsHaveTheirTexts()
{
    const DtAboutBox box;
    QCOMPARE(box.findChildren<QPushButton*>().size(), 2);
    QVERIFY(button(box, "Close")->isDefault());
    QCOMPARE(button(box, "Copy Image to Clipboard")->toolTip(),
             QString("Copy image of About dialog to the clipboard.\nPlease paste this into any emails to Tarnel "
                     "support."));
}

// The maker stands out from the address, with the fonts of the build or without them.
void TestAboutBox::fontsAreThoseOfTheBuild()
{
    const DtAboutBox box;
    const QLabel *maker = nullptr, *support = nullptr;
    for (const QLabel* label : box.findChildren<QLabel*>())
    {
        maker = label->text() == "Tarnel Technologies" ? label : maker;
        support = label->text().startsWith("Get in touch") ? label : support;
    }
    QVERIFY(maker->font().weight() > support->font().weight());
    QVERIFY(!QFontInfo(maker->font()).family().isEmpty());
    const bool isBuiltIn = QFile::exists(":/fonts/Avenir_Heavy.ttf");
    QCOMPARE(QFile::exists(":/fonts/Avenir_Roman.ttf"), isBuiltIn);
    if (isBuiltIn)
        QCOMPARE(support->font().family(), QRawFont(QStringLiteral(":/fonts/Avenir_Roman.ttf"), 12).familyName());
    else
        QCOMPARE(support->font().family(), QFont().family());
}

void TestAboutBox::missingDeploymentFileIsEmptyInSilence()
{
    DtCapture capture(DtWarn);
    QCOMPARE(DtDeployment::read("nowhere.xml").address, QString());
    QCOMPARE(capture.text(), QString());
}

void TestAboutBox::brokenDeploymentFileIsToldAndEmpty()
{
    writeTextFile("broken.xml", "<deployment><telephone>1</telephone><address>");
    DtCapture capture(DtWarn);
    QCOMPARE(DtDeployment::read("broken.xml").telephone, QString());
    QVERIFY(capture.text().startsWith("Cannot read broken.xml: "));
}

void TestAboutBox::unknownElementsOfDeploymentAreSkipped()
{
    writeDeployment(ownData(), "<fax>3<number/></fax><telephone> 1 </telephone><versionPage>https://v</versionPage>");
    QCOMPARE(DtDeployment::read().telephone, QString("1"));
    QCOMPARE(DtDeployment::read().versionPage, QString("https://v"));
}

void TestAboutBox::dateFollowsSourceDateEpoch()
{
    if (!hasCMake())
        QSKIP("There is no cmake to run.");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("SOURCE_DATE_EPOCH", "1760572800");
    QCOMPARE(runBuildInfo(QX_SOURCE_DIR, environment).date, QString("Oct 16 2025"));
}

void TestAboutBox::dateIsTodayOtherwise()
{
    if (!hasCMake())
        QSKIP("There is no cmake to run.");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("SOURCE_DATE_EPOCH");
    const auto today = [] { return QLocale::c().toString(QDateTime::currentDateTimeUtc(), "MMM dd yyyy"); };
    const QString before = today();
    const QString date = runBuildInfo(QX_SOURCE_DIR, environment).date;
    QVERIFY(date == before || date == today());
}

void TestAboutBox::revisionIsThatOfTheCheckout()
{
    if (!hasCMake())
        QSKIP("There is no cmake to run.");
    QProcess git;
    git.start("git", {"-C", QX_SOURCE_DIR, "rev-parse", "--show-prefix", "HEAD"});
    const bool isCheckout = git.waitForFinished() && git.exitCode() == 0;
    const QString revision = runBuildInfo(QX_SOURCE_DIR, QProcessEnvironment::systemEnvironment()).revision;
    if (!isCheckout)
        QCOMPARE(revision, QString("unknown"));
    else
        QVERIFY(revision.size() >= 10 && QString::fromUtf8(git.readAll()).trimmed().startsWith(revision));
}

void TestAboutBox::revisionIsUnknownOutsideOfACheckout()
{
    if (!hasCMake())
        QSKIP("There is no cmake to run.");
    QTemporaryDir source;
    QCOMPARE(runBuildInfo(source.path(), QProcessEnvironment::systemEnvironment()).revision, QString("unknown"));
}

// Sources unpacked inside somebody else's checkout do not get its revision.
void TestAboutBox::revisionIsUnknownBelowAnotherCheckout()
{
    if (!hasCMake())
        QSKIP("There is no cmake to run.");
    QCOMPARE(runBuildInfo(QX_SOURCE_DIR "/libsrc", QProcessEnvironment::systemEnvironment()).revision,
             QString("unknown"));
}

void TestAboutBox::revisionIsUnknownWithoutGit()
{
    if (!hasCMake())
        QSKIP("There is no cmake to run.");
    // As where there is none: it is found and does not run.
    QTemporaryDir directory;
    writeTextFile(directory.path() + "/git", "#!/bin/sh\nexit 127\n");
    QFile::setPermissions(directory.path() + "/git", QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PATH", directory.path() + ":" + environment.value("PATH"));
    const BuildInfo info = runBuildInfo(QX_SOURCE_DIR, environment);
    QCOMPARE(info.revision, QString("unknown"));
    QVERIFY(!info.date.isEmpty());
}

void TestAboutBox::unchangedBuildInfoIsLeftAlone()
{
    if (!hasCMake())
        QSKIP("There is no cmake to run.");
    const QStringList arguments = {"-DOUTPUT=info.h", "-DSOURCE_DIR=" QX_SOURCE_DIR, "-DVERSION=1.0", "-P",
                                   QX_SOURCE_DIR "/cmake/buildInfo.cmake"};
    QCOMPARE(QProcess::execute("cmake", arguments), 0);
    QFile file("info.h");
    QVERIFY(file.open(QIODevice::ReadWrite));
    const QDateTime past = QDateTime::fromSecsSinceEpoch(1000000);
    QVERIFY(file.setFileTime(past, QFileDevice::FileModificationTime));
    file.close();
    QCOMPARE(QProcess::execute("cmake", arguments), 0);
    QCOMPARE(QFileInfo("info.h").lastModified(), past);
}

QX_REGISTER_TEST(TestAboutBox)
#include "testAboutBox.moc"
