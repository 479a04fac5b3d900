#include "omtReader/xmlFileReader.h"

#include "foundation/assertion.h"
#include "foundation/outputStream.h"
#include "foundation/stringUtils.h"
#include "omtReader/fedReader.h"
#include "omtReader/standardMim.h"
#include "omtReader/xml1516FileReader.h"
#include "omtReader/xmlDocument.h"
#include "omtReader/xmlHla4FileReader.h"

#include <cstdlib>

namespace
{
const char theUnexpectedProblem[] = "Unexpected problem reading fed file\n";

DtFedReadStatus statusOf(const xmlDoc& document, const char* noRootText, DtString& error)
{
    if (xmlDocGetRootElement(&document) != nullptr)
        return DtFedReadSuccess;
    error = noRootText;
    return DtFedReadBadContent;
}

// isTold: whether a malformed file was warned of.
template <typename Document>
DtFedReadStatus parse(const char* name, Document (*parser)(const char*), Document& document, DtString& error,
                      bool& isTold)
{
    DtXmlErrors errors;
    DtString path(name);
    document = parser(path);
    isTold = errors.report(path);
    if (document == nullptr)
    {
        path = DtFedReader::pathBelowRtiConfig(name);
        document = parser(path);
        isTold = errors.report(path) || isTold;
    }
    if (document == nullptr)
    {
        error = std::getenv("RTI_CONFIG") == nullptr ? "RTI_CONFIG environment variable unbound\n" : "";
        error += DtString("No such FED file: ") + name;
        return DtFedReadNotFound;
    }
    isTold = false;
    DtVerbose("Reading FED file: %s\n", path.c_str());
    return statusOf(*document, "DtXmlFedReader:: Bad FED File.\n\tCould not find Document Root in FED File.\n", error);
}

template <typename Document>
DtFedReadStatus parse(const char* buffer, int size, Document (*parser)(const char*, int), Document& document,
                      DtString& error)
{
    DtXmlErrors errors;
    document = parser(buffer, size);
    errors.report("buffer");
    if (document == nullptr)
    {
        error = "DtXMLFileReader::parseBuffer: Failed to parse buffer";
        return DtFedReadBadContent;
    }
    return statusOf(*document, "DtXmlFedReader:: Bad FED File buffer.\n\tCould not find Document Root in FED File.\n",
                    error);
}

DtFedReadStatus parseStandardModel(DtFomType type, DtXmlModel& document, DtString& error)
{
    const bool isHla4 = type == DtFomHla4;
    const unsigned char* text = isHla4 ? theHLA4StandardMIM_xml : theHLAeStandardMIM_xml;
    const unsigned int length = isHla4 ? theHLA4StandardMIM_xml_len : theHLAeStandardMIM_xml_len;
    return parse<DtXmlModel>(reinterpret_cast<const char*>(text), static_cast<int>(length), DtParseXmlModel, document,
                             error);
}
} // namespace

DtFedReadStatus DtXMLFileReader::parseFile(const char* name, xmlDoc** doc, DtString& error)
{
    DT_ASSERT_AS(*doc == nullptr, "NULL == *newXmlDocTree", __FILE__, __LINE__, __PRETTY_FUNCTION__);
    DT_ASSERT_AS(name != nullptr, "NULL != fedFileName", __FILE__, __LINE__, __PRETTY_FUNCTION__);
    DtXmlDocument document;
    bool isTold = false;
    const DtFedReadStatus status = parse(name, DtParseXmlFile, document, error, isTold);
    if (status == DtFedReadSuccess)
        *doc = document.release();
    return status;
}

DtFedReadStatus DtXMLFileReader::parseBuffer(const char* buffer, int size, xmlDoc** doc, DtString& error)
{
    DT_ASSERT_AS(*doc == nullptr, "NULL == *newXmlDocTree", __FILE__, __LINE__, __PRETTY_FUNCTION__);
    DT_ASSERT_AS(buffer != nullptr, "NULL != buffer", __FILE__, __LINE__, __PRETTY_FUNCTION__);
    DtXmlDocument document;
    const DtFedReadStatus status = parse(buffer, size, DtParseXmlBuffer, document, error);
    if (status == DtFedReadSuccess)
        *doc = document.release();
    return status;
}

DtOMTTree* DtXMLFileReader::readFile(const DtFilename& file, DtExerciseConn* connection)
{
    myConnection = connection;
    DtXmlModel document;
    myLastFile = file;
    myIsErrorTold = false;
    if (!file.isUsable() ||
        parse<DtXmlModel>(file, DtParseXmlModel, document, myLastError, myIsErrorTold) != DtFedReadSuccess)
        return nullptr;
    try
    {
        xmlNode* root = xmlDocGetRootElement(document.get());
        const DtFomType type = DtFormatOfRoot(root);
        if (type == DtFom1516) // never with the management model
            return DtXML1516FileReader(connection).processObjectModel(root);
        const DtString standardName = DtFedReader::standardMimFileName(type);
        if (MIMincluded() && !DtContainsSubstring(DtFilename::stripPath(file), standardName))
        {
            document.reset(); // the file is parsed again among its modules
            return readFiles({file, standardName}, type, connection);
        }
        return readModule(root, type).release();
    }
    catch (...)
    {
        myLastError = theUnexpectedProblem;
        return nullptr;
    }
}

// Null for a type that cannot be merged.
std::unique_ptr<DtOMTTree> DtXMLFileReader::readModule(xmlNode* root, DtFomType type)
{
    if (type == DtFomEvolved)
        return std::unique_ptr<DtOMTTree>(DtXMLEvolvedFileReader(myConnection).processObjectModel(root));
    if (type == DtFomHla4)
        return std::unique_ptr<DtOMTTree>(DtXMLHla4FileReader(myConnection).processObjectModel(root));
    return nullptr;
}

DtOMTTree* DtXMLFileReader::readFiles(const std::vector<DtFilename>& files, DtFomType type, DtExerciseConn* connection)
{
    myConnection = connection;
    myIsErrorTold = false;
    if (files.empty())
        return nullptr;
    auto tree = std::make_unique<DtOMTTree>();
    if (type == DtFomEvolved || type == DtFomHla4)
        tree->setHlaVersion(static_cast<DtHLAProtocolVersion>(type));
    else
    {
        const DtFomType found = DtFedReader::checkFomType(files.front());
        if (found == DtFomUnknown)
            return nullptr;
        if (type == DtFomUnknown)
            type = found;
    }
    myIsFirstModule = true;
    for (const DtFilename& file : files)
        if (!mergeModule(*tree, file, type))
            return nullptr;
    return tree.release();
}

// False with the last error set when the module cannot be merged.
bool DtXMLFileReader::mergeModule(DtOMTTree& tree, const DtFilename& file, DtFomType type)
{
    DtXmlModel document;
    myLastFile = file;
    const DtFedReadStatus status = file == DtFedReader::standardMimFileName(type)
                                       ? parseStandardModel(type, document, myLastError)
                                       : parse<DtXmlModel>(file, DtParseXmlModel, document, myLastError, myIsErrorTold);
    return status == DtFedReadSuccess && mergeDocument(tree, std::move(document), type);
}

bool DtXMLFileReader::mergeDocument(DtOMTTree& tree, DtXmlModel document, DtFomType type)
{
    try
    {
        xmlNode* root = xmlDocGetRootElement(document.get());
        if (DtFormatOfRoot(root) != type)
        {
            myLastError = "FOM file does not match expected type\n";
            return false;
        }
        std::unique_ptr<DtOMTTree> module = readModule(root, type);
        if (module == nullptr)
        {
            myLastError = "Failed to process object model";
            return false;
        }
        document.reset(); // the largest thing in memory
        if (myIsFirstModule)
            tree.takeIdentification(*module);
        myIsFirstModule = false;
        tree.takeDatatypes(*module); // enumerations may have thousands of values
        tree.merge(module.get());
        myModules.push_back(std::move(module));
        return true;
    }
    catch (...)
    {
        myLastError = theUnexpectedProblem;
        return false;
    }
}

xmlNode* DtXMLFileReader::getNodeByName(xmlNode* parent, const xmlChar* name)
{
    return parent != nullptr ? DtFirstXmlChild(parent, reinterpret_cast<const char*>(name)) : nullptr;
}

const xmlChar* DtXMLFileReader::childContentByName(xmlNode* parent, const xmlChar* name)
{
    const xmlNode* child = getNodeByName(parent, name);
    return child != nullptr ? DtXmlText(child->children) : nullptr;
}

bool DtXMLFileReader::isEvolvedFormat(xmlNode*& root)
{
    return DtHasEvolvedForm(root);
}
