#ifndef FILE_GENERATOR_RECORD_WRITER_H
#define FILE_GENERATOR_RECORD_WRITER_H

#include "fileGenerator/rowFileWriter.h"

// Holds the selection record of an object class.
class DtObjectHolder
{
public:
    using Record = DtOmtObject;
    using Member = DtOmtAttribute;

    explicit DtObjectHolder(const DtOmtObject& object) : myObject(object) {}
    virtual ~DtObjectHolder() = default;
    virtual void setObject(const DtOmtObject& object) { myObject = object; }
    virtual const DtOmtObject& object() const { return myObject; }

protected:
    const DtOmtObject& record() const { return myObject; }
    DtOmtAttribute member(const DtString& name) const { return myObject.getAttributeFromName(name); }

private:
    DtOmtObject myObject;
};

// Holds the selection record of an interaction class.
class DtInteractionHolder
{
public:
    using Record = DtOmtInteraction;
    using Member = DtOmtParameter;

    explicit DtInteractionHolder(const DtOmtInteraction& interaction) : myInteraction(interaction) {}
    virtual ~DtInteractionHolder() = default;
    virtual void setInteraction(const DtOmtInteraction& interaction) { myInteraction = interaction; }
    virtual const DtOmtInteraction& interaction() const { return myInteraction; }

protected:
    const DtOmtInteraction& record() const { return myInteraction; }
    DtOmtParameter member(const DtString& name) const { return myInteraction.getParameterFromName(name); }

private:
    DtOmtInteraction myInteraction;
};

// A writer over a row that also holds the selection record of its class.
template <const DtWriterRow& theRow, typename Holder>
class DtRecordWriter : public DtRowFileWriter<theRow>, public Holder
{
public:
    DtRecordWriter(const DtString& fileName, const DtString& templateName, const typename Holder::Record& record)
        : DtRowFileWriter<theRow>(fileName, templateName), Holder(record)
    {
    }
};

#endif
