#ifndef CODE_GEN_APP_CUSTOM_CODE_TOKENS_H
#define CODE_GEN_APP_CUSTOM_CODE_TOKENS_H

#include "fileGenerator/cCompatibleName.h"
#include "fileGenerator/tokenPass.h"
#include "fileGenerator/valueForm.h"

struct DtAccessorNames;
enum class DtToolkitValue;
class DtOMTTree;
class DtOmtProject;

// One attribute or parameter whose code is customized.
struct DtCustomCodeMember
{
    DtString className; // short name or rename of its class
    DtString name;      // the model's name of the member
    DtString datatype;  // the model's datatype
};

// The values behind the tokens of the custom code templates, for one member.
//
// They are worked out from the model and the project, so they are the same before and after a generation, and what
// they make up is what generation writes without custom code. Long names get their numbers from the given names, which
// must outlive the object, as tree and project must; tree and project may be null.
class DtCustomCodeTokens
{
public:
    DtCustomCodeTokens(const DtCustomCodeMember& member, const DtOMTTree* tree, const DtOmtProject* project,
                       const DtString& prefix, DtCCompatibleNames& names);

    // Replaces every token of the line, in the order of the table; a token that is not in it stays.
    void expand(DtString& line) const;
    // Whether the member gets the templates of enumerations.
    bool isEnumeration() const { return isEnumeration(myMember.datatype); }

private:
    static const DtTokenTable<DtCustomCodeTokens>& table();

    DtString identifier(const DtString& text) const { return myNames.MakeCCompatibleString(text); }
    DtAccessorNames accessors() const;
    bool isEnumeration(const DtString& datatype) const;
    DtString enumerationType() const;
    DtString enumerationRep() const;
    DtString lastRepresentation() const;
    DtString nextRepresentation(const DtString& datatype) const;
    DtValueForm valueForm() const;
    DtToolkitValue toolkitValue() const;
    DtString wireForm() const;

    const DtCustomCodeMember myMember;
    const DtOMTTree* myTree;
    const DtOmtProject* myProject;
    const DtString& myPrefix;
    DtCCompatibleNames& myNames;
};

#endif
