#ifndef FILE_GENERATOR_ENUM_FILE_WRITER_H
#define FILE_GENERATOR_ENUM_FILE_WRITER_H

#include "fileGenerator/fileWriter.h"
#include "fileGenerator/numberForm.h"

#include <set>
#include <vector>

// One enumerator: its name and its number as text.
class DtEnumerationValue
{
public:
    DtEnumerationValue(const DtString& name, const DtString& val) : DtEnumerationValue(name, val, val) {}
    // number: where the model states more than val, which has 32 bits, holds.
    DtEnumerationValue(const DtString& name, const DtString& val, const DtString& number)
        : myName(name), myVal(val), myNumber(number)
    {
    }
    const DtString& name() const { return myName; }
    const DtString& val() const { return myVal; }
    const DtString& number() const { return myNumber; }
    // What the model tells people of it.
    void setDocumentation(const DtString& text) { myDocumentation = text; }
    const DtString& documentation() const { return myDocumentation; }

private:
    DtString myName;
    DtString myVal;
    DtString myNumber;
    DtString myDocumentation;
};

// One enumeration on its way into the enumerations header.
class DtEnumeration
{
public:
    DtEnumeration(const DtString& name, const std::vector<DtEnumerationValue>& vals) : myName(name), myVals(vals) {}
    const DtString& name() const { return myName; }
    const std::vector<DtEnumerationValue>& vals() const { return myVals; }
    // Bits, as text; empty when the model gives none.
    const DtString& size() const { return mySize; }
    void setSize(const DtString& size) { mySize = size; }
    // The number that stands for it on the wire; without octets when the model does not tell.
    const DtNumberForm& numberForm() const { return myNumberForm; }
    void setNumberForm(const DtNumberForm& form) { myNumberForm = form; }
    void setDocumentation(const DtString& text) { myDocumentation = text; }
    const DtString& documentation() const { return myDocumentation; }

private:
    DtString myName;
    std::vector<DtEnumerationValue> myVals;
    DtString mySize;
    DtNumberForm myNumberForm;
    DtString myDocumentation;
};

// Writes the one header that holds all enumerations, and tells the mapper the name, size and representation of each. A
// second one, made of it, writes the source with what need not stand in the header.
//
// Names that cannot stand in C++ side by side are told on the warning stream. The second of two enumerators gets a name
// of its own; the second of two enumerations is marked, so that the template can leave it out.
class DtEnumerationFileWriter : public DtFileWriter
{
public:
    explicit DtEnumerationFileWriter(const DtString& fileName);
    // For another file of the header's enumerations, which are told to nobody again.
    DtEnumerationFileWriter(const DtString& fileName, const DtString& templateName,
                            const DtEnumerationFileWriter& header);

    // Knows "Enumeration" and, inside it, "EnumerationField".
    void writeMultipleTimes(const DtString& loopName, std::istream& stream) override;

    bool hasEnumerations() const { return !myEnumerations.empty(); }

    // An enumeration without a size is asked for it by its name: the number behind the last "Enum". When that gives
    // none either, the mapper learns no size and no representation.
    virtual void addEnumeration(const DtEnumeration& enumeration);
    virtual DtString createEnumerationName(const DtEnumeration& enumeration) const;
    // The enumeration's name makes no difference.
    virtual DtString createEnumerationValueName(const DtString& enumerationName, const DtEnumerationValue& value) const;
    virtual DtString getEnumerationRepFromSize(const DtString& size) const;

    // The enumerator's name without / # - < > and &.
    static DtString cleanedValueName(const DtString& name);

private:
    struct DtTokens;

    // The names that an enumeration has in generated code.
    struct DtNames
    {
        DtString type;
        bool isRepeated = false;           // an enumeration ahead of it has that name
        std::vector<DtString> identifiers; // of the enumerators
        DtNumberForm numberForm;           // with octets in any case
    };

    DtNames makeNames(const DtEnumeration& enumeration);
    const DtNames& currentNames() const;       // while an enumeration is current
    const DtString& currentIdentifier() const; // while an enumerator is
    void writeEnumerations(std::istream& stream);
    void writeFields(std::istream& stream);

    std::vector<DtEnumeration> myEnumerations;
    const DtEnumeration* myCurrentEnumeration = nullptr; // null outside "Enumeration"
    const DtEnumerationValue* myCurrentValue = nullptr;  // null outside "EnumerationField"
    std::vector<DtNames> myNames;                        // of the enumerations, in their order
    std::set<DtString> myTypeNames;
    DtTokenValues<DtEnumerationFileWriter> myEnumerationTokens;
    DtTokenValues<DtEnumerationFileWriter> myFieldTokens;
};

#endif
