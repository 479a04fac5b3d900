#include "fileGenerator/progressMeter.h"

#include "fileGenerator/qtProgressMeter.h"

namespace
{
DtProgressMeter* theMeterInUse = nullptr;
}

DtProgressMeter* DtProgressMeter::current()
{
    return theMeterInUse != nullptr ? theMeterInUse : DtQtProgressMeter::instance();
}

void DtProgressMeter::init(QApplication* /*application*/, QWidget* /*parent*/)
{
}

void DtQuietProgressMeter::setTotalMeasure(int total)
{
    myTotal = total;
    setCurrentMeasure(0);
}

DtProgressUse::DtProgressUse(DtProgressMeter& meter) : myOuter(theMeterInUse)
{
    theMeterInUse = &meter;
}

DtProgressUse::~DtProgressUse()
{
    theMeterInUse = myOuter;
}
