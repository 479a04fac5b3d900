#include "omtReader/xmlDocument.h"

#include "foundation/filename.h"
#include "foundation/warningRules.h"

#include <libxml/parser.h>
#include <libxml/parserInternals.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

const int theXmlParseOptions = XML_PARSE_NONET | XML_PARSE_COMPACT;

DtXmlErrors::DtXmlErrors() : myOldContext(xmlStructuredErrorContext), myOldFunction(xmlStructuredError)
{
    xmlSetStructuredErrorFunc(this, note);
}

DtXmlErrors::~DtXmlErrors()
{
    xmlSetStructuredErrorFunc(myOldContext, myOldFunction);
}

void DtXmlErrors::note(void* errors, xmlErrorPtr error)
{
    auto& self = *static_cast<DtXmlErrors*>(errors);
    if (self.myCause.length() > 0 || error->level != XML_ERR_FATAL)
        return;
    self.myCause = error->message != nullptr ? error->message : "unreadable";
    self.myCause.snipBackToFirst('\n');
    self.myLine = error->line;
    self.myColumn = error->int2; // where the parser keeps it
}

bool DtXmlErrors::report(const char* file)
{
    const bool isMalformed = myCause.length() > 0;
    if (isMalformed)
        DtTellWarning(DtRules::unreadableModel,
                      DtSubject::file(file, static_cast<unsigned int>(myLine), static_cast<unsigned int>(myColumn)),
                      DtString(file) + ":" + DtString(myLine) + ": " + myCause + "\n");
    myCause = DtString();
    return isMalformed;
}

int DtOpenPlainFile(const char* name)
{
    if (!DtFilename(name).isRegularFile()) // asked first: opening a device can have effects
        return -1;
    const int descriptor = open(name, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    struct stat status = {};
    if (descriptor >= 0 && (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)))
    {
        close(descriptor);
        return -1;
    }
    return descriptor;
}

FILE* DtStreamOf(int descriptor)
{
    FILE* const stream = descriptor >= 0 ? fdopen(descriptor, "r") : nullptr;
    if (stream == nullptr && descriptor >= 0)
        close(descriptor);
    return stream;
}

namespace
{
std::int64_t nanoseconds(const timespec& time)
{
    return static_cast<std::int64_t>(time.tv_sec) * 1000000000 + time.tv_nsec;
}

bool isUnchanged(const struct stat& before, const struct stat& now)
{
    return before.st_dev == now.st_dev && before.st_ino == now.st_ino && before.st_size == now.st_size &&
           nanoseconds(before.st_mtim) == nanoseconds(now.st_mtim) &&
           nanoseconds(before.st_ctim) == nanoseconds(now.st_ctim);
}

// A file written a moment ago may be written again within the same tick of its time stamp.
bool isSettled(const struct stat& status)
{
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    return nanoseconds(now) - std::max(nanoseconds(status.st_mtim), nanoseconds(status.st_ctim)) > 100000000;
}

struct DtKeptDocument
{
    DtXmlModel document = nullptr;
    struct stat status = {};
};

// Never destroyed: the parser may be gone by then.
DtKeptDocument& keptDocument()
{
    static auto* const theDocument = new DtKeptDocument;
    return *theDocument;
}

void setName(xmlDoc& document, const char* name)
{
    if (document.dict != nullptr && xmlDictOwns(document.dict, document.URL) != 0)
        return;
    xmlFree(const_cast<xmlChar*>(document.URL));
    document.URL = xmlStrdup(BAD_CAST name);
}

// The kept document goes in any case.
DtXmlModel takeKeptDocument(int descriptor, const char* name)
{
    DtXmlModel document = std::move(keptDocument().document);
    struct stat status = {};
    if (document == nullptr || fstat(descriptor, &status) != 0 || !isUnchanged(keptDocument().status, status))
        return nullptr;
    setName(*document, name);
    return document;
}

struct DtFreeContext
{
    void operator()(xmlParserCtxt* context) const { xmlFreeParserCtxt(context); }
};
using DtParserContext = std::unique_ptr<xmlParserCtxt, DtFreeContext>;

// The descriptor stays open.
DtParserContext contextOf(int descriptor, const char* name)
{
    xmlInitParser();
    DtParserContext context(xmlNewParserCtxt());
    xmlParserInputBuffer* const buffer = xmlParserInputBufferCreateFd(descriptor, XML_CHAR_ENCODING_NONE);
    if (buffer == nullptr || context == nullptr)
    {
        xmlFreeParserInputBuffer(buffer);
        return nullptr;
    }
    buffer->closecallback = nullptr;
    xmlParserInput* const input = xmlNewIOInputStream(context.get(), buffer, XML_CHAR_ENCODING_NONE);
    if (input == nullptr)
    {
        xmlFreeParserInputBuffer(buffer);
        return nullptr;
    }
    input->filename = reinterpret_cast<char*>(xmlStrdup(BAD_CAST name));
    inputPush(context.get(), input);
    return context;
}

DtXmlModel parse(const DtParserContext& context)
{
    if (context == nullptr || xmlCtxtUseOptions(context.get(), theXmlParseOptions) < 0)
        return nullptr;
    return DtXmlModel(DtXmlNodeBlocks::parse(*context));
}
} // namespace

void DtKeepXmlModel(int descriptor, DtXmlModel document)
{
    DtKeptDocument& kept = keptDocument();
    const bool isKept = fstat(descriptor, &kept.status) == 0 && isSettled(kept.status);
    kept.document = isKept ? std::move(document) : nullptr;
}

// The parser escapes the name that it keeps, such as blanks; warnings want it as it is.
DtXmlModel DtParseXmlModel(int descriptor, const char* name)
{
    DtXmlModel document = parse(contextOf(descriptor, name));
    if (document != nullptr)
        setName(*document, name);
    return document;
}

DtXmlModel DtParseXmlModel(const char* buffer, int size)
{
    xmlInitParser();
    return parse(DtParserContext(xmlCreateMemoryParserCtxt(buffer, size)));
}

DtSubject DtXmlFileOf(const xmlNode* node)
{
    const bool hasFile = node->doc != nullptr && node->doc->URL != nullptr;
    return hasFile ? DtSubject::file(reinterpret_cast<const char*>(node->doc->URL)) : DtSubject::none();
}

DtXmlModel DtParseXmlModel(const char* name)
{
    const int descriptor = DtOpenPlainFile(name);
    if (descriptor < 0)
        return nullptr;
    DtXmlModel document = takeKeptDocument(descriptor, name);
    if (document == nullptr)
        document = DtParseXmlModel(descriptor, name);
    close(descriptor);
    return document;
}

DtXmlDocument DtParseXmlFile(const char* name)
{
    const int descriptor = DtOpenPlainFile(name);
    if (descriptor < 0)
        return nullptr;
    DtXmlDocument document(xmlReadFd(descriptor, name, nullptr, theXmlParseOptions));
    if (document != nullptr)
        setName(*document, name);
    close(descriptor);
    return document;
}

DtXmlDocument DtParseXmlBuffer(const char* buffer, int size)
{
    return DtXmlDocument(xmlReadMemory(buffer, size, nullptr, nullptr, theXmlParseOptions));
}

xmlNode* DtElementFrom(xmlNode* node)
{
    while (node != nullptr && node->type != XML_ELEMENT_NODE)
        node = node->next;
    return node;
}

bool DtHasXmlName(const xmlNode* node, const char* name)
{
    return std::strcmp(reinterpret_cast<const char*>(node->name), name) == 0;
}

xmlNode* DtFirstXmlChild(const xmlNode* parent, const char* name)
{
    for (xmlNode* child : DtXmlElements(parent))
        if (DtHasXmlName(child, name))
            return child;
    return nullptr;
}

const xmlChar* DtXmlText(const xmlNode* first)
{
    while (first != nullptr && (first->type == XML_COMMENT_NODE || first->type == XML_PI_NODE))
        first = first->next;
    const bool isText = first != nullptr && (first->type == XML_TEXT_NODE || first->type == XML_CDATA_SECTION_NODE);
    return isText ? first->content : nullptr;
}
