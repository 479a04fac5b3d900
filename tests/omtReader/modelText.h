#ifndef TESTS_OMT_READER_MODEL_TEXT_H
#define TESTS_OMT_READER_MODEL_TEXT_H

#include "omtReader/xml1516FileReader.h"
#include "omtReader/xmlDocument.h"
#include "omtReader/xmlHla4FileReader.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <csignal>
#include <functional>
#include <memory>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

// Builders and printers for models in tests.

// A document of the 2010 form around the sections given.
inline QByteArray modelText(const QByteArray& sections, const QByteArray& space = "IEEE1516-2010")
{
    return "<?xml version=\"1.0\"?>\n<objectModel xmlns=\"http://standards.ieee.org/" + space + "\">" + sections +
           "</objectModel>\n";
}

// A document of the 1516 form around the sections given.
inline QByteArray modelText1516(const QByteArray& sections, const QByteArray& rootAttributes = QByteArray())
{
    return "<?xml version=\"1.0\"?>\n<objectModel " + rootAttributes + ">" + sections + "</objectModel>\n";
}

template <typename Reader>
std::unique_ptr<DtOMTTree> readDocument(const QByteArray& text)
{
    const DtXmlErrors quiet;
    const DtXmlDocument document = DtParseXmlBuffer(text.constData(), text.size());
    if (document == nullptr)
        qFatal("malformed test model");
    xmlNode* root = xmlDocGetRootElement(document.get());
    return std::unique_ptr<DtOMTTree>(Reader(nullptr).processObjectModel(root));
}

// The 2010 reader's tree of a document with these sections.
template <typename Reader = DtXMLEvolvedFileReader>
std::unique_ptr<DtOMTTree> readSections(const QByteArray& sections)
{
    return readDocument<Reader>(modelText(sections));
}

// The 1516 reader's.
inline std::unique_ptr<DtOMTTree> readSections1516(const QByteArray& sections,
                                                   const QByteArray& rootAttributes = QByteArray())
{
    return readDocument<DtXML1516FileReader>(modelText1516(sections, rootAttributes));
}

inline QString toQt(const DtString& text)
{
    return QString::fromUtf8(text.c_str());
}

// The texts joined by blanks, "-" for an empty one.
inline QString textsOf(const std::vector<DtString>& texts)
{
    QStringList list;
    for (const DtString& text : texts)
        list += text.isEmpty() ? QString("-") : toQt(text);
    return list.join(' ');
}

// The identification, without points of contact and the list of references.
inline QString identificationTexts(const DtOMTTree& tree)
{
    return textsOf({tree.getName(), tree.getVersionNo(), tree.getType(), tree.getPurpose(), tree.getApplicationDomain(),
                    tree.getSponsorOrgName(), tree.getModificationDate(), tree.getSecurityClassification(),
                    tree.getReleaseRestriction(), tree.getDescription(), tree.getMOMVersion(), tree.getReference(),
                    tree.getOther(), tree.getUseLimitation(), tree.getUseHistory()});
}

inline QString contactOf(const DtOMTTreePOC& poc)
{
    return textsOf({poc.type, poc.firstName, poc.lastName, poc.organization, poc.telephone, poc.email, poc.other});
}

// The names from begin to end, joined by blanks.
template <typename Iterator>
QString namesOf(Iterator begin, Iterator end)
{
    QStringList names;
    for (; begin != end; ++begin)
        names += toQt((*begin)->getName());
    return names.join(' ');
}

template <typename Nodes>
QString namesOf(const Nodes& nodes)
{
    return namesOf(nodes.begin(), nodes.end());
}

inline const std::list<DtObjectClassFedNode*>& childrenOf(const DtObjectClassFedNode& node)
{
    return node.getChildObjects();
}
inline const std::list<DtInteractionClassFedNode*>& childrenOf(const DtInteractionClassFedNode& node)
{
    return node.getChildInteractions();
}
inline QString membersOf(const DtObjectClassFedNode& node)
{
    return namesOf(node.getAttributes());
}
inline QString membersOf(const DtInteractionClassFedNode& node)
{
    return namesOf(node.getParameters());
}

// A class and all below it, one a line, two blanks an indent, members in brackets.
template <typename Class>
QString printClass(const Class* node, const QString& indent = QString())
{
    if (node == nullptr)
        return "none\n";
    QString text = indent + toQt(node->getName());
    if (!membersOf(*node).isEmpty())
        text += " [" + membersOf(*node) + "]";
    text += '\n';
    for (const Class* child : childrenOf(*node))
        text += printClass(child, indent + "  ");
    return text;
}

// An object class of that name with attributes of these, under a parent of the tree or as its root.
inline DtObjectClassFedNode* addObjectClass(DtOMTTree& tree, const char* name, DtObjectClassFedNode* parent,
                                            const QStringList& attributes = QStringList())
{
    auto* node = new DtObjectClassFedNode;
    node->setName(name);
    for (const QString& attribute : attributes)
    {
        auto* member = new DtAttributeFedNode;
        member->setName(attribute.toUtf8().constData());
        node->addAttribute(member);
    }
    tree.addObjectClassNode(node);
    if (parent != nullptr)
        parent->addChildObject(node);
    else
        tree.setObjectClassRoot(node);
    return node;
}

// What a piece of work that aborts writes to the standard error stream; empty when it does not abort.
inline QString textOfAbort(const std::function<void()>& work)
{
    int ends[2];
    if (pipe(ends) != 0)
        return QString();
    const pid_t child = fork();
    if (child == 0)
    {
        dup2(ends[1], STDERR_FILENO);
        signal(SIGABRT, SIG_DFL);
        work();
        _exit(0);
    }
    close(ends[1]);
    QByteArray text;
    char piece[512];
    for (ssize_t count = 0; (count = read(ends[0], piece, sizeof piece)) > 0;)
        text.append(piece, static_cast<int>(count));
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGABRT ? QString::fromUtf8(text) : QString();
}

#endif
