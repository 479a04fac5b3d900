// Style sheets, and the colours of icons that follow from them.

#include "codeGenApp/codeGenAppGui.h"
#include "foundation/outputStream.h"
#include "ui_codeGenAppGui.h"

#include <QtCore/QFile>

namespace
{
const char* const theStylesheets[] = {"/00_common.qss", "/01_qvx.qss"};

QString readStylesheet(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()) : QString();
}

// Which colour of the middle buttons an icon takes.
struct DtIconColorRow
{
    QIcon::Mode mode;
    QPalette::ColorGroup group;
    QPalette::ColorRole role;
};

const DtIconColorRow theIconColors[] = {
    {QIcon::Disabled, QPalette::Disabled, QPalette::ButtonText     },
    {QIcon::Active,   QPalette::Active,   QPalette::ButtonText     },
    {QIcon::Selected, QPalette::Active,   QPalette::HighlightedText},
};

const DtIconColorRow* iconColorRow(QIcon::Mode mode)
{
    for (const DtIconColorRow& row : theIconColors)
        if (row.mode == mode)
            return &row;
    return nullptr;
}
} // namespace

void DtCodeGenAppGui::loadStylesheet(bool dark)
{
    const QString directory = QStringLiteral("../data/config/qt") + (dark ? "/DarkMode" : "/LightMode");
    QString text;
    for (const char* name : theStylesheets)
        text += readStylesheet(directory + QString::fromLatin1(name));
    setStyleSheet(resolveVars(text));
    invalidateIconColorMappings();
    myIconManager->clearCache(true);
}

void DtCodeGenAppGui::setToggleDarkMode(bool dark)
{
    loadStylesheet(dark);
}

void DtCodeGenAppGui::replaceAll(QString& text, const QString& from, const QString& to)
{
    for (int at = text.indexOf(from); at >= 0; at = text.indexOf(from))
        text.replace(at, from.length(), to);
}

QString DtCodeGenAppGui::resolveVars(const QString& text)
{
    QString result(text);
    replaceAll(result, QStringLiteral("$(APP_DIR)"), myAppDir);
    return result;
}

void DtCodeGenAppGui::manageIcons()
{
    myIconManager->manageWidget(myForm->myAddButton, "../data/images/DarkMode/SettingsAddWindow.svg");
    myIconManager->manageWidget(myForm->myRemoveButton, "../data/images/DarkMode/SettingsRemoveWindow.svg");
}

DtIconColorMappings DtCodeGenAppGui::iconColorMappingsByMode(QIcon::Mode mode) const
{
    const DtIconColorRow* const row = iconColorRow(mode);
    if (row == nullptr)
    {
        DtWarn << "Warning: libsrc/codeGenApp/codeGenAppGUI iconColorMappingsByMode: Color mappings for provided "
                  "QIcon::Mode with enumeration value "
               << static_cast<int>(mode) << " are not supported - returning no mappings" << std::endl;
        return {};
    }
    const auto [color, isNew] = myIconColors.try_emplace(mode);
    if (isNew)
    {
        // The style sheet's colours are in the palette then, and later sheets reach it, unseen as it may be.
        ensurePolished();
        myForm->myAddButton->ensurePolished();
        color->second = myForm->myAddButton->palette().color(row->group, row->role);
    }
    return DtWidgetIconStyleManager::mappingsTo(color->second);
}

void DtCodeGenAppGui::invalidateIconColorMappings()
{
    myIconColors.clear();
}
