#include "fileGenerator/archiveName.h"

#include "fileGenerator/settings.h"

#include <algorithm>
#include <iterator>

DtString DtArchiveName()
{
    static const DtString theModelEndings[] = {"xml", "omt", "fed"};
    DtFilename name(DtSettings::instance().cpp.baseName);
    name.stripPath();
    if (std::count(std::begin(theModelEndings), std::end(theModelEndings), name.extension()) != 0)
        name.stripExtension();
    return name;
}
