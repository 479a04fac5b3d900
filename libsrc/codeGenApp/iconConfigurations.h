#ifndef CODE_GEN_APP_ICON_CONFIGURATIONS_H
#define CODE_GEN_APP_ICON_CONFIGURATIONS_H

#include <QtGui/QIcon>

#include <map>
#include <string>
#include <vector>

// The image of an icon in one mode and state.
struct DtQIconConfiguration
{
    std::string iconFileNameOrPath;
    QIcon::Mode mode = QIcon::Normal;
    QIcon::State state = QIcon::Off;
};

// What the icon of one widget is made of: an image for each mode and state that is given, and the modes for which the
// icon manager makes the rest from the images of QIcon::Normal. A plain value; there are never two entries of one mode
// and state.
class DtQIconConfigurations
{
public:
    // A second entry of the same mode and state is refused with a warning.
    void addConfiguration(const DtQIconConfiguration& configuration);
    const std::vector<DtQIconConfiguration>& configurations() const { return myConfigurations; }
    // Empty when there is no such entry.
    std::string iconFileNameOrPathFromQIconModeAndState(QIcon::Mode mode, QIcon::State state) const;
    // Off for every mode at first.
    void setIsGenerateIconConfigurationsEnabledByMode(QIcon::Mode mode, bool isEnabled);
    bool isGenerateIconConfigurationsEnabledByMode(QIcon::Mode mode) const;

private:
    const DtQIconConfiguration* find(QIcon::Mode mode, QIcon::State state) const;

    std::vector<DtQIconConfiguration> myConfigurations;
    std::map<QIcon::Mode, bool> myGeneratedModes;
};

#endif
