#include "codeGenApp/iconConfigurations.h"

#include "foundation/outputStream.h"

const DtQIconConfiguration* DtQIconConfigurations::find(QIcon::Mode mode, QIcon::State state) const
{
    for (const DtQIconConfiguration& each : myConfigurations)
        if (each.mode == mode && each.state == state)
            return &each;
    return nullptr;
}

void DtQIconConfigurations::addConfiguration(const DtQIconConfiguration& configuration)
{
    if (find(configuration.mode, configuration.state) != nullptr)
    {
        DtWarn << "Warning: A configuration with that QIcon::Mode and QIcon::State combination already exists."
               << std::endl;
        return;
    }
    myConfigurations.push_back(configuration);
}

std::string DtQIconConfigurations::iconFileNameOrPathFromQIconModeAndState(QIcon::Mode mode, QIcon::State state) const
{
    const DtQIconConfiguration* const found = find(mode, state);
    return found != nullptr ? found->iconFileNameOrPath : std::string();
}

void DtQIconConfigurations::setIsGenerateIconConfigurationsEnabledByMode(QIcon::Mode mode, bool isEnabled)
{
    myGeneratedModes[mode] = isEnabled;
}

bool DtQIconConfigurations::isGenerateIconConfigurationsEnabledByMode(QIcon::Mode mode) const
{
    const auto found = myGeneratedModes.find(mode);
    return found != myGeneratedModes.end() && found->second;
}
