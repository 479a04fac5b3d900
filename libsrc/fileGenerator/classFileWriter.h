#ifndef FILE_GENERATOR_CLASS_FILE_WRITER_H
#define FILE_GENERATOR_CLASS_FILE_WRITER_H

#include "fileGenerator/attribute.h"
#include "fileGenerator/fileWriter.h"
#include "fileGenerator/omtProject.h"

#include <cstdint>
#include <list>
#include <vector>

class DtCCompatibleNames;

// What <!attributeName!> and <!AttributeName!> are for an attribute.
struct DtAccessorNames
{
    DtString getter;
    DtString setter; // behind "set"
};

// The values of the tokens of an attribute, which are the same in all files of its class. The generator of the class
// keeps them with the attribute: nothing that they are made of changes between these files.
struct DtAttributeValues : DtAttributeNotes
{
    std::vector<DtTokenValue> sizes;
    std::vector<DtTokenValue> attribute;
    std::vector<DtTokenValue> encodings;
};

// Expands the templates of everything that is generated once for each class or datatype of the model.
//
// Adds to DtFileWriter the names, the attributes and the project of one class, the tokens made from them and the loops
// over attributes, includes and modules. Subclasses derive their names in setClassName, setParentClassName and
// setFullClassName and replace tokens of their own before they hand a line to this pass; a plain object serves
// templates that need neither. A writer is made for one file, filled through its setters and run once.
class DtClassFileWriter : public DtFileWriter
{
public:
    DtClassFileWriter(const DtString& fileName, const DtString& templateName);
    ~DtClassFileWriter() override;

    // Gives long names their numbers ahead of the pass. Attribute tokens stay in the line while no attribute is
    // current.
    void decodeFileLine(DtString& line) override;
    // Knows "IncludeFiles", "NamesakeIncludeFiles" (the headers of generated types that are called like types of the
    // toolkit), "Attributes" (which must not stand inside itself), "Enumerations" (those among the types of the
    // attributes, each once) and "FomModules".
    void writeMultipleTimes(const DtString& loopName, std::istream& stream) override;

    // Stores the class's short name and hands it to setClassName, from where every subclass derives its names.
    virtual void setRootName(const DtString& name);
    virtual const DtString& rootName() const;
    virtual void setPduKind(int kind);
    virtual int pduKind() const;
    virtual void setClassName(const DtString& name);
    virtual const DtString& className() const;
    // Short name of the parent; "ObjectRoot" for the parent of a top class.
    virtual void setParentClassName(const DtString& name);
    virtual const DtString& parentClassName() const;
    // Appends a copy. Not while the "Attributes" loop runs.
    virtual void addAttribute(const DtAttribute& attribute);
    virtual const std::vector<DtAttribute>& attributeList() const;
    virtual void setOmtProject(const DtOmtProject& project);
    virtual const DtOmtProject& omtProject() const;
    // The name without a leading "ObjectRoot." or else "HLAobjectRoot."; unchanged when it begins with neither.
    virtual DtString replaceFirstObjRootOccurance(const DtString& name) const;
    // The same with "InteractionRoot." and "HLAinteractionRoot.".
    virtual DtString replaceFirstIntRootOccurance(const DtString& name) const;
    virtual void setFullClassName(const DtString& name);
    // What the model tells people of the class.
    void setDocumentation(const DtString& text);
    // Model name whose octet boundary the templates can ask for; "0" until it is set.
    virtual void setOriginalName(const DtString& name);
    virtual const DtString& originalName() const;
    // Appends the headers of the generated types that the attributes use. Only neighbours that are alike are dropped,
    // so a type that comes again behind another one is included twice.
    virtual void compileIncludeList();
    // A name as an identifier of generated code, as the tokens of classes and attributes give it.
    static DtString identifierOf(const DtString& name);
    // A copy of the short names that the tokens have given to long ones.
    static DtCCompatibleNames namesSoFar();
    // The accessors of an attribute as the tokens give them. Long names are numbered by the caller's names: only a
    // template line numbers those of generated code.
    static DtAccessorNames accessorNamesOf(const DtString& attribute, DtCCompatibleNames& names);

protected:
    // The attribute whose tokens are replaced, one of myAttributes; null outside the "Attributes" loop.
    const DtAttribute* currentAttribute() const { return myAttributeTokens.context(); }
    void setCurrentAttribute(const DtAttribute* attribute);
    // To be called behind every change of the names below that is not made by a setter of this class: their tokens are
    // worked out once.
    void namesChanged();
    // What the loop "Enumerations" looks at: the attributes.
    virtual std::vector<const DtAttribute*> typedMembers() const;
    // "Dt" taken off, first letter lowered: what the header of a generated type is called.
    static DtString includeNameOf(const DtString& type);

    DtString myClassName;
    DtString myBaseClassName;
    DtString myBaseClassHeader;
    DtString myRootName;
    DtString myParentClassName;
    DtString myFullClassName;
    DtString myOriginalName;
    DtString myDocumentation;
    std::int32_t myPduKind = 0;
    std::vector<DtAttribute> myAttributes;
    DtOmtProject myOmtProject;
    std::list<DtString> myIncludeFiles;
    DtString myCurrentInclude;
    DtString myCurrentFomModule;
    std::int32_t myAttributeCounter = 0;

private:
    struct DtTokens; // the tables that ask the writer
    struct DtNameRow;

    // The names of the class, from a table of name patterns.
    class DtNameTokens : public DtTokenSource
    {
    public:
        explicit DtNameTokens(const DtClassFileWriter& writer) : DtTokenSource(rowIndex()), myWriter(writer) {}

    protected:
        DtString workOut(int row) const override;

    private:
        static const std::vector<DtNameRow>& rows();
        static const DtTokenIndex& rowIndex();

        const DtClassFileWriter& myWriter;
    };

    void writeIncludeFiles(std::istream& stream);
    void writeNamesakeIncludeFiles(std::istream& stream);
    void writeIncludes(std::istream& stream, const std::list<DtString>& includes);
    void writeAttributes(std::istream& stream);
    void writeEnumerations(std::istream& stream);
    void writeFomModules(std::istream& stream);
    void setCurrentInclude(const DtString& include);
    void setAttributeCounter(int counter);
    DtString fill(const char* pattern) const; // with the names of this class
    bool hasLongNames() const;
    void numberLongNames();

    DtTokenValues<DtClassFileWriter> myBoundaryToken;
    // The tables of the current attribute, which is their context: their tokens stay in the line while there is none.
    DtTokenValues<DtAttribute> mySizeTokens;
    DtTokenValues<std::int32_t> myNumberToken;
    DtTokenValues<DtAttribute> myAttributeTokens;
    DtNameTokens myNameTokens;
    DtTokenValues<DtClassFileWriter> myModuleTokens; // only with a project that names modules
    DtTokenValues<DtAttribute> myEncodingTokens;     // of the current attribute too
    bool myLongNamesAreNumbered = false;
};

#endif
