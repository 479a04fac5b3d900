#include "foundation/envXmlWriter.h"

#include "foundation/fileUtils.h"
#include "foundation/stringUtils.h"
#include "foundation/xmlText.h"

#include <libxml/tree.h>
#include <libxml/xmlwriter.h>

namespace
{
const xmlChar* xml(const DtString& text)
{
    return reinterpret_cast<const xmlChar*>(text.c_str());
}

// Writes one document into memory and remembers whether every step went well.
class DtDocumentWriter
{
public:
    DtDocumentWriter() : myBuffer(xmlBufferCreate(), xmlBufferFree), myWriter(nullptr, xmlFreeTextWriter)
    {
        myWriter.reset(myBuffer != nullptr ? xmlNewTextWriterMemory(myBuffer.get(), 0) : nullptr);
        myIsGood = myWriter != nullptr;
    }

    void begin(const DtString& rootName, const DtString& dtdName)
    {
        check(xmlTextWriterStartDocument(myWriter.get(), nullptr, "UTF-8", nullptr));
        if (isName(rootName))
            check(xmlTextWriterWriteDTD(myWriter.get(), xml(rootName), nullptr, xml(dtdName), nullptr));
        check(xmlTextWriterWriteRaw(myWriter.get(), xml("\n")));
        check(xmlTextWriterSetIndent(myWriter.get(), 1)); // only now: it would break the document type into lines
        check(xmlTextWriterSetIndentString(myWriter.get(), xml("    ")));
    }

    void writeObject(const DtEnvObject& object, const DtString& type, bool hasName)
    {
        if (!isName(type))
            return;
        check(xmlTextWriterStartElement(myWriter.get(), xml(type)));
        if (hasName)
            writeAttribute("name", object.name());
        for (const auto& attribute : object.attributes())
            writeStoredAttribute(*attribute);
        for (const auto& child : object.children())
            writeChild(child);
        check(xmlTextWriterEndElement(myWriter.get()));
    }

    bool end(std::string& text)
    {
        check(xmlTextWriterEndDocument(myWriter.get()));
        check(xmlTextWriterFlush(myWriter.get()));
        if (myIsGood)
            text.assign(reinterpret_cast<const char*>(xmlBufferContent(myBuffer.get())),
                        static_cast<std::size_t>(xmlBufferLength(myBuffer.get())));
        return myIsGood;
    }

    bool isGood() const { return myIsGood; }

private:
    void check(int result) { myIsGood = myIsGood && result >= 0; }

    bool isName(const DtString& text)
    {
        myIsGood = myIsGood && xmlValidateName(xml(text), 0) == 0;
        return myIsGood;
    }

    void writeAttribute(const DtString& name, const DtString& text)
    {
        check(xmlTextWriterWriteAttribute(myWriter.get(), xml(name), xml(DtXmlText(text))));
    }

    // An attribute called "name" would be taken for the object's own name.
    void writeStoredAttribute(const DtEnvValue& attribute)
    {
        myIsGood = myIsGood && attribute.name() != "name";
        if (isName(attribute.name()))
            writeAttribute(attribute.name(), attribute.value());
    }

    void writeChild(const std::shared_ptr<DtEnvValue>& node)
    {
        const DtEnvObject* const object = DtEnvObject::castToObject(node);
        if (object != nullptr)
            writeObject(*object, object->type(), !object->isList());
        else
            check(xmlTextWriterWriteComment(myWriter.get(), xml(commentText(node->value()))));
    }

    // Two dashes in a row, and one at the end, are not allowed in a comment: a blank goes between.
    static DtString commentText(const DtString& text)
    {
        DtString result = DtXmlText(text);
        while (DtContainsSubstring(result, "--"))
            result = DtReplaceAllSubstrings(result, "--", "- -");
        const bool endsInDash = result.length() > 0 && result[result.length() - 1] == '-';
        return endsInDash ? result + " " : result;
    }

    std::unique_ptr<xmlBuffer, decltype(&xmlBufferFree)> myBuffer;
    std::unique_ptr<xmlTextWriter, decltype(&xmlFreeTextWriter)> myWriter;
    bool myIsGood = false;
};
} // namespace

bool DtEnvXMLWriter::writeFile(DtEnvironment& environment, const DtString& fileName) const
{
    DtDocumentWriter writer;
    if (!writer.isGood())
        return false;
    const DtEnvObject empty("", "");
    const DtEnvObject* const root = DtEnvObject::castToObject(environment.root());
    writer.begin(myRootName, myDtdName);
    writer.writeObject(root != nullptr ? *root : empty, myRootName, false);
    std::string text;
    return writer.end(text) && DtReplaceFile(fileName, text);
}
