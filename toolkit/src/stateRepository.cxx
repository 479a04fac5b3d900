#include <qx/stateRepository.h>

#include <algorithm>

DtStateRepository::DtStateRepository() = default;
DtStateRepository::DtStateRepository(const DtStateRepository& other) = default;
DtStateRepository& DtStateRepository::operator=(const DtStateRepository& other) = default;
DtStateRepository::~DtStateRepository() = default;

void DtStateRepository::markChanged(const char* attribute)
{
    const std::vector<std::string>::iterator place = std::lower_bound(myChanges.begin(), myChanges.end(), attribute);
    if (place == myChanges.end() || *place != attribute)
    {
        myChanges.insert(place, attribute);
    }
}

bool DtStateRepository::isChanged(const std::string& attribute) const
{
    return std::binary_search(myChanges.begin(), myChanges.end(), attribute);
}
