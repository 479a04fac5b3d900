#ifndef FOUNDATION_WARNING_H
#define FOUNDATION_WARNING_H

#include "foundation/string.h"

// A kind of warning: what it is called in a diagnostic, and what it means. The rules stand in warningRules.h.
struct DtWarningRule
{
    const char* id;
    const char* meaning; // one sentence
};

// What a warning is about, for whoever shows where that stands in a model or looks it up.
struct DtSubject
{
    enum Kind
    {
        None,
        File, // the name is its path
        Datatype,
        ObjectClass, // the name is its full name
        InteractionClass,
        Attribute, // the owner is its class
        Parameter,
        Field,      // of a record; the owner is the datatype
        Enumerator, // likewise
        Setting
    };

    Kind kind = None;
    DtString name;
    DtString owner;
    unsigned int line = 0; // in a file, counted from 1; 0 when it is not known
    unsigned int column = 0;

    static DtSubject none() { return {}; }
    static DtSubject file(const DtString& path, unsigned int line = 0, unsigned int column = 0)
    {
        return {File, path, {}, line, column};
    }
    static DtSubject datatype(const DtString& name) { return {Datatype, name, {}}; }
    static DtSubject objectClass(const DtString& fullName) { return {ObjectClass, fullName, {}}; }
    static DtSubject interactionClass(const DtString& fullName) { return {InteractionClass, fullName, {}}; }
    static DtSubject field(const DtString& name, const DtString& datatype) { return {Field, name, datatype}; }
    static DtSubject enumerator(const DtString& name, const DtString& datatype) { return {Enumerator, name, datatype}; }
    static DtSubject setting(const DtString& key) { return {Setting, key, {}}; }

    // A member of this class or datatype: its attribute, parameter or field. What can have no members stands itself.
    DtSubject member(const DtString& memberName) const;
};

struct DtWarning
{
    const DtWarningRule& rule;
    DtSubject subject;
    DtString text; // as it is stated, line feed included
};

// Takes warnings in place of the warning stream, from when it is made until it is destroyed. The latest one counts.
class DtWarningTaker
{
public:
    DtWarningTaker();
    virtual ~DtWarningTaker();
    DtWarningTaker(const DtWarningTaker&) = delete;
    DtWarningTaker& operator=(const DtWarningTaker&) = delete;

    virtual void take(const DtWarning& warning) = 0;

private:
    DtWarningTaker* myOuter;
};

// The one way by which the libraries warn: the text goes to DtWarn, or to the taker if there is one.
void DtTellWarning(const DtWarningRule& rule, const DtSubject& subject, const DtString& text);

#endif
