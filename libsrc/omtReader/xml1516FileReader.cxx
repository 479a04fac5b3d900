#include "omtReader/xml1516FileReader.h"

#include "omtReader/xmlModelFields.h"

DtXML1516FileReader::DtXML1516FileReader(DtExerciseConn* connection)
    : DtXMLModelReader(connection, {DtXml1516Form, "1516 XML", "Object", valueObjectRoot, true})
{
}

void DtXML1516FileReader::listValues(xmlNode* node, Values& values)
{
    for (const xmlAttr* attribute = node->properties; attribute != nullptr; attribute = attribute->next)
        values.add(attribute->name, DtXmlText(attribute->children));
}

DtOMTTree* DtXML1516FileReader::processObjectModel(xmlNode*& root)
{
    using Reader = DtXML1516FileReader;
    static const Construct<Reader> theConstructs[] = {
        {tagNotes,            &Reader::processNotes             },
        {tagObjects,          &Reader::processObjects           },
        {tagInteractions,     &Reader::processInteractions      },
        {tagDataTypes,        &Reader::processDatatypes         },
        {tagSwitches,         &Reader::processSwitches          },
        {tagDimensions,       &Reader::processDimensions        },
        {tagTime,             &Reader::processTimeRepresentation},
        {tagTags,             &Reader::processTags              },
        {tagTransportations,  &Reader::processTransportations   },
        {tagSynchronizations, &Reader::processSynchronizations  },
    };
    auto tree = std::make_unique<DtOMTTree>();
    tree->setHlaVersion(DtHla1516);
    readFields(root, DtXmlModelFields::theIdentificationFields, *tree);
    readPoc(root, tree.get());
    dispatch(root, theConstructs, tree.get());
    return tree.release();
}

void DtXML1516FileReader::processSwitches(xmlNode*& node, DtOMTTree* tree)
{
    for (const Value& value : valuesOf(node))
    {
        if (value.text.isEmpty())
            continue;
        auto item = std::make_unique<DtBoolAttrNode>();
        item->setName(DtString(std::string(value.name)));
        if (value.text == valueEnabled || value.text == valueDisabled)
            item->setEnabled(value.text == valueEnabled);
        tree->addSwitchNode(item.release());
    }
}

void DtXML1516FileReader::processTags(xmlNode*& node, DtOMTTree* tree)
{
    for (xmlNode* child = node->children; child != nullptr; child = child->next)
        processTag(child, tree);
}
