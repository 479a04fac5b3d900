#include "codeGenApp/aboutBox.h"

#include "buildInfo.h"
#include "foundation/fileUtils.h"

#include <QtCore/QEvent>
#include <QtCore/QFile>
#include <QtCore/QMap>
#include <QtGui/QClipboard>
#include <QtGui/QFontDatabase>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#ifdef QX_ABOUT_FONTS
// Resources of a static library come into the program only when they are asked for, and outside of any namespace.
static void initializeFonts()
{
    Q_INIT_RESOURCE(aboutFonts);
}
#else
static void initializeFonts()
{
}
#endif

namespace
{
const QString theProduct = QStringLiteral("Quorvex Code Generator");
const QString theImage = QStringLiteral("../data/images/SplashScreen_Quorvex.jpg");
const int theSideMargin = 24;

struct DtFontRow
{
    const char* resource;
    QFont::Weight weight;
};

const DtFontRow theHeavyFont = {":/fonts/Avenir_Heavy.ttf", QFont::ExtraBold};
const DtFontRow theRomanFont = {":/fonts/Avenir_Roman.ttf", QFont::Normal};

// Loads each font once. The default font, in the same weight, when the build had none to put in.
QFont resourceFont(const DtFontRow& row, int points)
{
    static QMap<QString, QString> theFamilies;
    const QString resource = QString::fromLatin1(row.resource);
    if (!theFamilies.contains(resource))
    {
        const int id = QFile::exists(resource) ? QFontDatabase::addApplicationFont(resource) : -1;
        theFamilies[resource] = QFontDatabase::applicationFontFamilies(id).value(0);
    }
    QFont font;
    if (!theFamilies[resource].isEmpty())
        font.setFamily(theFamilies[resource]);
    font.setWeight(row.weight);
    font.setPointSize(points);
    return font;
}

QString text(const DtString& value)
{
    return QString::fromUtf8(value.c_str());
}

QString platform()
{
    return QString::asprintf("%s %d-bit", DtOperatingSystem().c_str(), static_cast<int>(sizeof(void*) * 8));
}

QString builtWith()
{
    return QStringLiteral("Quorvex %1, Qt %2").arg(theBuildVersion, QT_VERSION_STR);
}

struct DtLabelRow
{
    const char* caption;
    QString value;
};

QString link(const QString& address, const QString& shown, const QColor& color)
{
    return QStringLiteral("<a href=\"%1\"><span style=\"color:%2\">%3</span></a>")
        .arg(address.toHtmlEscaped(), color.name(), shown.toHtmlEscaped());
}
} // namespace

DtAboutBox::DtAboutBox(QWidget* parent) : QDialog(parent), myDeployment(DtDeployment::read())
{
    initializeFonts();
    setupGui();
}

void DtAboutBox::setupGui()
{
    setWindowTitle(QStringLiteral("About ") + theProduct);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, theSideMargin / 2);
    column->setSpacing(6);
    addImage(column);
    addText(column, theProduct, resourceFont(theHeavyFont, 15));
    column->addLayout(createAllLabels());
    addMaker(column);
    addSupport(column);
    column->addStretch();
    addButtons(column);
    column->setSizeConstraint(QLayout::SetFixedSize);
}

void DtAboutBox::addImage(QVBoxLayout* column)
{
    const QPixmap image(theImage);
    if (image.isNull())
        return;
    auto* const label = new QLabel(this);
    label->setPixmap(image);
    label->setAccessibleName(theProduct);
    column->addWidget(label, 0, Qt::AlignHCenter);
    column->addSpacing(theSideMargin / 3);
}

QLabel* DtAboutBox::addText(QVBoxLayout* column, const QString& text, const QFont& font)
{
    auto* const label = new QLabel(text, this);
    label->setTextFormat(Qt::PlainText);
    label->setFont(font);
    label->setContentsMargins(theSideMargin, 0, theSideMargin, 0);
    if (text.isEmpty())
        label->hide();
    column->addWidget(label);
    return label;
}

QGridLayout* DtAboutBox::createAllLabels()
{
    const DtLabelRow rows[] = {
        {"Platform:",   platform()                           },
        {"Compiler:",   text(DtCompiler())                   },
        {"Version:",    QString::fromLatin1(theBuildVersion) },
        {"Built With:", builtWith()                          },
        {"Build Date:", QString::fromLatin1(theBuildDate)    },
        {"SVN Rev:",    QString::fromLatin1(theBuildRevision)},
    };
    auto* const grid = new QGridLayout;
    grid->setContentsMargins(theSideMargin, 0, theSideMargin, 0);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(2);
    grid->setColumnStretch(1, 1);
    for (const DtLabelRow& row : rows)
    {
        const int line = grid->rowCount();
        auto* const value = new QLabel(row.value, this);
        value->setTextFormat(Qt::PlainText);
        value->setTextInteractionFlags(Qt::TextSelectableByMouse);
        grid->addWidget(new QLabel(QString::fromLatin1(row.caption), this), line, 0);
        grid->addWidget(value, line, 1);
    }
    return grid;
}

void DtAboutBox::addMaker(QVBoxLayout* column)
{
    column->addSpacing(theSideMargin / 3);
    addText(column, QStringLiteral("Tarnel Technologies"), resourceFont(theHeavyFont, 13));
    const QFont roman = resourceFont(theRomanFont, 11);
    addText(column, myDeployment.address, roman);
    addText(column, myDeployment.telephone, roman);
    myLinks = addText(column, myDeployment.webAddress + myDeployment.mailAddress, roman);
    myLinks->setObjectName(QStringLiteral("AboutBoxHelpLink"));
    myLinks->setTextFormat(Qt::RichText);
    myLinks->setTextInteractionFlags(Qt::TextBrowserInteraction);
    myLinks->setOpenExternalLinks(true);
    myLinks->installEventFilter(this);
}

void DtAboutBox::addSupport(QVBoxLayout* column)
{
    column->addSpacing(theSideMargin / 3);
    addText(column, QStringLiteral("Support"), resourceFont(theHeavyFont, 13));
    addText(column, QStringLiteral("Get in touch, let us know\nhow we can help you!"), resourceFont(theRomanFont, 11));
}

void DtAboutBox::addButtons(QVBoxLayout* column)
{
    auto* const copy = new QPushButton(QStringLiteral("Copy Image to Clipboard"), this);
    copy->setToolTip(QStringLiteral(
        "Copy image of About dialog to the clipboard.\nPlease paste this into any emails to Tarnel support."));
    copy->setAutoDefault(false);
    connect(copy, &QPushButton::clicked, this, &DtAboutBox::slot_saveDialogToClipboardClicked);
    auto* const close = new QPushButton(QStringLiteral("Close"), this);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);

    auto* const row = new QHBoxLayout;
    row->setContentsMargins(theSideMargin, theSideMargin / 3, theSideMargin, 0);
    row->addStretch();
    row->addWidget(copy);
    row->addWidget(close);
    column->addLayout(row);
    close->setFocus();
}

// The style sheet colours the label; its links follow only when they are told.
void DtAboutBox::colorLinks()
{
    myLinks->ensurePolished();
    const QColor color = myLinks->palette().color(QPalette::WindowText);
    QStringList links;
    if (!myDeployment.webAddress.isEmpty())
        links += link(myDeployment.webAddress, myDeployment.webAddress, color);
    if (!myDeployment.mailAddress.isEmpty())
        links += link("mailto:" + myDeployment.mailAddress, myDeployment.mailAddress, color);
    myLinks->setText(links.join(QStringLiteral("<br>")));
}

void DtAboutBox::showEvent(QShowEvent* event)
{
    colorLinks();
    QDialog::showEvent(event);
}

bool DtAboutBox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == myLinks && event->type() == QEvent::StyleChange)
        colorLinks();
    return QDialog::eventFilter(watched, event);
}

void DtAboutBox::slot_saveDialogToClipboardClicked()
{
    QGuiApplication::clipboard()->setPixmap(grab());
}
