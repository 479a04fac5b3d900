#ifndef FILE_GENERATOR_ROW_FILE_WRITER_H
#define FILE_GENERATOR_ROW_FILE_WRITER_H

#include "fileGenerator/classFileWriter.h"
#include "fileGenerator/namePattern.h"

#include <array>
#include <vector>

// A token that one writer alone knows. Its value is a name pattern; topValue, when there is one, takes its place under
// the model's root.
struct DtOwnToken
{
    const char* token = nullptr; // null ends the list
    const char* value = "";
    const char* topValue = nullptr;
};

// Which of the two class trees a writer serves.
enum class DtClassTree
{
    Object,     // top classes have the parent "ObjectRoot"
    Interaction // top classes have the parent "InteractionRoot"
};

// The form in which the full class name is stored.
enum class DtFullName
{
    AsGiven,
    WithoutRoot // a leading root name of the writer's tree is cut off
};

// One writer that differs from others by names only. All texts are name patterns (fillPattern); %N and %n are the name
// given to setClassName, %Q and %q the one given to setParentClassName. Source writers leave the headers empty: their
// header file carries the include.
struct DtWriterRow
{
    DtClassTree tree = DtClassTree::Object;
    const char* className = "%N";
    const char* topBase = ""; // base class and its header under the model's root ...
    const char* topHeader = "";
    const char* base = ""; // ... and under any other parent
    const char* header = "";
    DtFullName fullName = DtFullName::AsGiven;
    std::array<DtOwnToken, 4> ownTokens = {}; // replaced ahead of the class pass, in order
};

// The base of all writers over a row. Own values are worked out by the setters of the names, so prefix and include path
// have to stand before the names are set.
class DtRowFileWriterBase : public DtClassFileWriter
{
public:
    DtRowFileWriterBase(const DtWriterRow& row, const DtString& fileName, const DtString& templateName);

    void setClassName(const DtString& name) override;
    void setParentClassName(const DtString& name) override;
    void setFullClassName(const DtString& name) override;

private:
    // Values that are worked out by the setters.
    class DtOwnValues : public DtTokenSource
    {
    public:
        explicit DtOwnValues(const DtWriterRow& row) : DtTokenSource(indexOf(row)) {}
        void set(std::vector<DtString> values)
        {
            myValues = std::move(values);
            clear();
        }

    protected:
        DtString workOut(int row) const override { return myValues[static_cast<std::size_t>(row)]; }

    private:
        // One for each row, as long as the program runs: rows are constants.
        static const DtTokenIndex& indexOf(const DtWriterRow& row);

        std::vector<DtString> myValues; // in the order of the row's tokens
    };

    bool isTop() const;
    DtString fill(const char* pattern) const;
    void obtainOwnValues();

    const DtWriterRow& myRow;
    DtString myGivenName;
    DtOwnValues myOwnValues;
};

// A type of its own for each row: using DtFooFileWriter = DtRowFileWriter<theFooRow>;
template <const DtWriterRow& theRow>
class DtRowFileWriter : public DtRowFileWriterBase
{
public:
    DtRowFileWriter(const DtString& fileName, const DtString& templateName)
        : DtRowFileWriterBase(theRow, fileName, templateName)
    {
    }
};

#endif
