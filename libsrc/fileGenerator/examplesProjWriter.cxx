#include "fileGenerator/examplesProjWriter.h"

DtExamplesProjectFileWriter::DtExamplesProjectFileWriter(const DtString& fileName, const DtString& templateName,
                                                         const DtOmtNode& node)
    : DtFileWriter(fileName, DtString("../data/templates/") + templateName),
      myNode(withIdentifiers(node)),
      myTokens(table(), this)
{
    myTokenChain.putAhead({&myTokens});
}

const DtOmtNode& DtExamplesProjectFileWriter::withIdentifiers(const DtOmtNode& node)
{
    node.uuid(2);
    return node;
}

const DtTokenTable<DtExamplesProjectFileWriter>& DtExamplesProjectFileWriter::table()
{
    using Writer = const DtExamplesProjectFileWriter&;
    static const DtTokenRow<DtExamplesProjectFileWriter> theRows[] = {
        {"<!LibName!>",     [](Writer w) { return w.myLibraryName; }                     },
        {"<!UUID1!>",       [](Writer w) { return w.myNode.uuid(1); }                    },
        {"<!UUID2!>",       [](Writer w) { return w.myNode.uuid(2); }                    },
        {"<!Name!>",        [](Writer w) { return w.myNode.name(); }                     },
        {"<!GenerateDis!>", [](Writer w) { return DtString(w.myGenerateDis ? "1" : ""); }},
    };
    static const DtTokenTable<DtExamplesProjectFileWriter> theTable(theRows);
    return theTable;
}

void DtExamplesProjectFileWriter::setLibraryName(const DtString& name)
{
    myLibraryName = name;
    myTokens.clear();
}

void DtExamplesProjectFileWriter::setGenerateDis(bool generate)
{
    myGenerateDis = generate;
    myTokens.clear();
}
