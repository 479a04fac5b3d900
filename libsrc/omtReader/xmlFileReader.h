#ifndef OMT_READER_XML_FILE_READER_H
#define OMT_READER_XML_FILE_READER_H

#include "foundation/filename.h"
#include "foundation/fomType.h"
#include "omtReader/modelFormat.h"
#include "omtReader/omtTree.h"
#include "omtReader/xmlDocument.h"

#include <libxml/tree.h>

#include <memory>
#include <vector>

class DtExerciseConn; // passed on and never looked into; callers give null

// Front of the XML model formats: parses a document, finds out its format, hands the root element to the reader of that
// format and merges modules with the standard management model, which is held inside the program.
//
// A failed read gives null, with the cause in getLastError(). What the parser says of a malformed file is warned of.
// The trees of the modules that were merged stay with the reader; the result belongs to the caller.
class DtXMLFileReader
{
public:
    static constexpr const char* IEEE1516_2009 = "IEEE1516-2009";
    static constexpr const char* IEEE1516_2010 = "IEEE1516-2010";
    static constexpr const char* IEEE1516_2025 = "IEEE1516-2025";
    static constexpr const char* xmlns_HLA1516_2010 = theNamespace2010;
    static constexpr const char* xmlns_HLA1516_2025 = theNamespace2025;
    static constexpr const char* tagDocumentType = theModelElement;
    static constexpr const char* tagObjectModel = theModelElement;

    virtual ~DtXMLFileReader() = default;
    DtXMLFileReader() = default;
    DtXMLFileReader(const DtXMLFileReader&) = delete;
    DtXMLFileReader& operator=(const DtXMLFileReader&) = delete;

    // One file. A 2010 or 2025 model is merged with the standard management model behind it when that is included and
    // the file is not that model itself.
    virtual DtOMTTree* readFile(const DtFilename& file, DtExerciseConn* connection);
    // All files merged in order, under the identification of the first. They share one format, the type, which is that
    // of the first file when it is 0; the tree has a version for the types 3 and 4 alone. A file of the standard
    // model's name is not read from disk.
    virtual DtOMTTree* readFiles(const std::vector<DtFilename>& files, DtFomType type, DtExerciseConn* connection);
    // Stays until it is cleared.
    virtual const DtString& getLastError() const { return myLastError; }
    virtual void clearLastError() { myLastError = DtString(); }
    // True when the last read failed on a malformed file, of which a warning told line and cause: the error, which
    // counts such a file as missing, has nothing to add then.
    bool isErrorTold() const { return myIsErrorTold; }
    // The file that was read last: when a read failed, the one at fault.
    const DtFilename& lastFile() const { return myLastFile; }
    virtual void includeMIM(bool include) { myIncludesMIM = include; }
    virtual bool MIMincluded() const { return myIncludesMIM; }

    // The file of that name or else the one below the directory in the environment variable RTI_CONFIG. The document
    // belongs to the caller.
    static DtFedReadStatus parseFile(const char* name, xmlDoc** doc, DtString& error);
    static DtFedReadStatus parseBuffer(const char* buffer, int size, xmlDoc** doc, DtString& error);

    // First child element of that name, null if none.
    static xmlNode* getNodeByName(xmlNode* parent, const xmlChar* name);
    // Text of that child, null if there is no child or no text in it.
    static const xmlChar* childContentByName(xmlNode* parent, const xmlChar* name);
    // True when the document is in the form of the 2010 standard, whatever its namespace says.
    static bool isEvolvedFormat(xmlNode*& root);

private:
    std::unique_ptr<DtOMTTree> readModule(xmlNode* root, DtFomType type);
    bool mergeModule(DtOMTTree& tree, const DtFilename& file, DtFomType type);
    bool mergeDocument(DtOMTTree& tree, DtXmlModel document, DtFomType type);

    DtString myLastError;
    bool myIsErrorTold = false;
    DtFilename myLastFile;
    DtExerciseConn* myConnection = nullptr;
    std::vector<std::unique_ptr<DtOMTTree>> myModules;
    bool myIsFirstModule = true; // of the present list
    bool myIncludesMIM = true;
};

#endif
