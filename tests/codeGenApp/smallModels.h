#ifndef TESTS_SMALL_MODELS_H
#define TESTS_SMALL_MODELS_H

#include <QtCore/QByteArray>

// Texts of models that are as small as a test allows.

inline QByteArray element(const QByteArray& name, const QByteArray& content)
{
    return "<" + name + ">" + content + "</" + name + ">";
}

// A class of that name: "objectClass" or "interactionClass" around its members and subclasses.
inline QByteArray classText(const QByteArray& kind, const QByteArray& name, const QByteArray& content = QByteArray())
{
    return element(kind, element("name", name) + content);
}

inline QByteArray objectText(const QByteArray& name, const QByteArray& content = QByteArray())
{
    return classText("objectClass", name, content);
}

inline QByteArray interactionText(const QByteArray& name, const QByteArray& content = QByteArray())
{
    return classText("interactionClass", name, content);
}

inline QByteArray attributeText(const QByteArray& name, const QByteArray& type = "HLAinteger32BE")
{
    return element("attribute", element("name", name) + element("dataType", type));
}

inline QByteArray parameterText(const QByteArray& name, const QByteArray& type = "HLAinteger32BE")
{
    return element("parameter", element("name", name) + element("dataType", type));
}

// A module of the 2010 form with these object and interaction classes below the roots.
inline QByteArray moduleText(const QByteArray& objects, const QByteArray& interactions = QByteArray(),
                             const QByteArray& year = "2010")
{
    return "<?xml version=\"1.0\"?>\n<objectModel xmlns=\"http://standards.ieee.org/IEEE1516-" + year + "\">" +
           element("modelIdentification", element("name", "Small")) +
           element("objects", objectText("HLAobjectRoot", objects)) +
           element("interactions", interactionText("HLAinteractionRoot", interactions)) + "</objectModel>\n";
}

// One object class, Barge, and one interaction class, Horn, in the older formats.
const char theOmtText[] = "(DIF HLA-OMT v1.3 (TYPE Single))\n"
                          "(ObjectModel (Name \"Old\")\n"
                          "  (Class (ID 1) (Name \"Barge\"))\n"
                          "  (Interaction (ID 2) (Name \"Horn\")))\n";
const char the1516Text[] =
    "<?xml version=\"1.0\"?>\n<objectModel DTDversion=\"1516.2\" name=\"Old\">"
    "<objects><objectClass name=\"HLAobjectRoot\"><objectClass name=\"Barge\"/></objectClass></objects>"
    "<interactions><interactionClass name=\"HLAinteractionRoot\"><interactionClass name=\"Horn\"/>"
    "</interactionClass></interactions></objectModel>\n";

#endif
