#include <qx/disReflectedObject.h>
#include <qx/hlaReflectedObject.h>

DtReflectedObjectBase::DtReflectedObjectBase(DtExerciseObjectId object, const std::string& name,
                                             std::unique_ptr<DtStateRepository> state)
    : myObject(object), myName(name), myState(std::move(state)), myRefused()
{
}

std::vector<std::string>* DtReflectedObjectBase::beginUpdate()
{
    myRefused.clear();
    myState->clearChanges();
    return &myRefused;
}

DtHlaReflectedObject::DtHlaReflectedObject(DtExerciseObjectId object, const std::string& name,
                                           std::unique_ptr<DtStateRepository> state,
                                           std::unique_ptr<DtHlaStateDecoder> decoder)
    : DtReflectedObjectBase(object, name, std::move(state)), myDecoder(std::move(decoder))
{
}

bool DtHlaReflectedObject::update(const DtAttributeValues& values)
{
    return myDecoder->decode(values, *stateRepository(), beginUpdate());
}

DtDisReflectedObject::DtDisReflectedObject(DtExerciseObjectId object, const std::string& name,
                                           std::unique_ptr<DtStateRepository> state,
                                           std::unique_ptr<DtStateDecoder> decoder)
    : DtReflectedObjectBase(object, name, std::move(state)), myDecoder(std::move(decoder))
{
}

bool DtDisReflectedObject::update(const DtStateMsg& message)
{
    return myDecoder->decodeState(message, *stateRepository(), beginUpdate());
}
