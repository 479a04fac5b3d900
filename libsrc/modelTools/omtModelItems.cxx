#include "foundation/mtlInputStream.h"
#include "foundation/mtlScanner.h"
#include "foundation/xmlText.h"
#include "modelTools/modelItems.h"

#include <cstring>
#include <map>
#include <utility>

namespace
{
// A list that defines something, below one that defines something of the parent kind, and the keyword of its name.
struct DtListRow
{
    const char* keyword;
    const char* name;
    DtSubject::Kind kind;
    DtSubject::Kind parent;
};

const DtListRow theLists[] = {
    {"Class",              "Name",       DtSubject::ObjectClass,      DtSubject::None            },
    {"Attribute",          "Name",       DtSubject::Attribute,        DtSubject::ObjectClass     },
    {"Interaction",        "Name",       DtSubject::InteractionClass, DtSubject::None            },
    {"Parameter",          "Name",       DtSubject::Parameter,        DtSubject::InteractionClass},
    {"ComplexDataType",    "Name",       DtSubject::Datatype,         DtSubject::None            },
    {"ComplexComponent",   "FieldName",  DtSubject::Field,            DtSubject::Datatype        },
    {"EnumeratedDataType", "Name",       DtSubject::Datatype,         DtSubject::None            },
    {"Enumeration",        "Enumerator", DtSubject::Enumerator,       DtSubject::Datatype        },
};

// Gives the bytes of a text and knows where the last one stands.
class DtPlacedText : public DtlInputStream
{
public:
    explicit DtPlacedText(const std::string& text) : myText(text) {}
    unsigned int line() const { return myLine; }
    unsigned int column() const { return myColumn; }

private:
    int readByte() override
    {
        if (myOffset == myText.size())
            return EOF;
        if (myOffset > 0 && myText[myOffset - 1] == '\n')
        {
            ++myLine;
            myColumn = 0;
        }
        const auto byte = static_cast<unsigned char>(myText[myOffset++]);
        myColumn += (byte & 0xC0) == 0x80 ? 0 : 1;
        return byte;
    }

    const std::string& myText;
    std::size_t myOffset = 0;
    unsigned int myLine = 1;
    unsigned int myColumn = 0;
};

class DtListScan
{
public:
    explicit DtListScan(const std::string& text) : myStream(text), myScanner(myStream, "\\") {}

    DtModelItems run();

private:
    enum class Role
    {
        Other,
        Model,
        Item,
        Name, // these three of the item around
        Number,
        SuperNumber
    };
    struct List
    {
        unsigned int line;
        unsigned int column;
        bool hasKeyword = false;
        Role role = Role::Other;
        std::size_t item = 0;
        const DtListRow* row = nullptr; // of the item
    };
    using Number = std::pair<DtSubject::Kind, int>;

    void takeKeyword(const DtString& keyword);
    void takeValue(const DtString& value);
    void addItem(const DtListRow& row, int parent);
    void linkSuperclasses();

    DtPlacedText myStream;
    DtMtlScanner myScanner;
    std::vector<List> myOpen;
    bool myHasModel = false; // the first one counts
    DtModelItems myResult;
    std::map<Number, std::size_t> myNumbers;      // of classes to their items
    std::map<std::size_t, Number> mySuperclasses; // of items
};

DtModelItems DtListScan::run()
{
    for (DtMtlToken token = myScanner.next(); token != DtMtlToken::End; token = myScanner.next())
    {
        if (token == DtMtlToken::Open)
        {
            if (!myOpen.empty())
                myOpen.back().hasKeyword = true; // a list in its place is none
            myOpen.push_back({myStream.line(), myStream.column()});
        }
        else if (myOpen.empty())
            continue;
        else if (token == DtMtlToken::Close)
            myOpen.pop_back();
        else if (myOpen.back().hasKeyword)
            takeValue(myScanner.text());
        else
        {
            myOpen.back().hasKeyword = true;
            if (token == DtMtlToken::Word)
                takeKeyword(myScanner.text());
        }
    }
    linkSuperclasses();
    return myResult;
}

void DtListScan::takeKeyword(const DtString& keyword)
{
    if (myOpen.size() == 1)
    {
        if (!myHasModel && keyword == "ObjectModel")
        {
            myOpen.back().role = Role::Model;
            myHasModel = true;
        }
        return;
    }
    const List& around = myOpen[myOpen.size() - 2];
    const bool isItem = around.role == Role::Item;
    if (around.role != Role::Model && !isItem)
        return;
    const DtSubject::Kind parent = isItem ? around.row->kind : DtSubject::None;
    for (const DtListRow& row : theLists)
        if (row.parent == parent && keyword == row.keyword)
            return addItem(row, isItem ? static_cast<int>(around.item) : -1);
    if (!isItem)
        return;
    myOpen.back().item = around.item;
    if (keyword == around.row->name)
        myOpen.back().role = Role::Name;
    else if (keyword == "ID")
        myOpen.back().role = Role::Number;
    else if (keyword == "SuperClass" || keyword == "SuperInteraction")
        myOpen.back().role = Role::SuperNumber;
}

void DtListScan::addItem(const DtListRow& row, int parent)
{
    List& list = myOpen.back();
    list.role = Role::Item;
    list.item = myResult.items.size();
    list.row = &row;
    DtModelItem item;
    item.kind = row.kind;
    item.parent = parent;
    item.line = list.line;
    item.column = list.column;
    item.hasMembers = true; // a class stands in the file once
    myResult.items.push_back(item);
}

void DtListScan::takeValue(const DtString& value)
{
    List& list = myOpen.back();
    if (myResult.items.empty()) // a value ahead of all items belongs to none
        return;
    DtModelItem& item = myResult.items[list.item];
    switch (list.role)
    {
    case Role::Name:
        item.name = value.stdString();
        break;
    case Role::Number:
        myNumbers.emplace(Number(item.kind, value.toInt()), list.item);
        break;
    case Role::SuperNumber:
        mySuperclasses.emplace(list.item, Number(item.kind, value.toInt()));
        break;
    case Role::Other:
    case Role::Model:
    case Role::Item:
        return;
    }
    list.role = Role::Other; // the first value counts
}

void DtListScan::linkSuperclasses()
{
    for (const auto& [item, number] : mySuperclasses)
    {
        const auto superclass = myNumbers.find(number);
        if (number.second != 0 && superclass != myNumbers.end() && superclass->second != item)
            myResult.items[item].parent = static_cast<int>(superclass->second);
    }
}
} // namespace

DtModelItems DtOmtModelItems(const std::string& content)
{
    const DtString text = DtUtf8Text(DtString(content));
    return DtListScan(text.stdString()).run();
}
