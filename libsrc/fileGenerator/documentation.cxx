#include "fileGenerator/documentation.h"

#include "foundation/perRun.h"
#include "foundation/stringUtils.h"

#include <algorithm>
#include <sstream>
#include <vector>

namespace
{
// What models write where they have nothing to tell.
bool tellsNothing(const DtString& text)
{
    static const DtString theEmptyWords[] = {"na", "n/a", "none", "-"};
    std::string word = text.stdString();
    word.erase(0, word.find_first_not_of(" \t\r\n"));
    word.erase(word.find_last_not_of(" \t\r\n") + 1);
    DtString lower(word);
    lower.toLower();
    return word.empty() ||
           std::find(std::begin(theEmptyWords), std::end(theEmptyWords), lower) != std::end(theEmptyWords);
}

struct DtFact
{
    const char* name;
    DtString value;
};

// The facts that say something as one sentence each.
DtString sentences(const std::vector<DtFact>& facts)
{
    DtString text;
    for (const DtFact& fact : facts)
    {
        if (!tellsNothing(fact.value))
            text += (text.isEmpty() ? "" : " ") + DtString(fact.name) + ": " + fact.value +
                    (fact.value.stdString().back() == '.' ? "" : ".");
    }
    return text;
}
} // namespace

// The lines of one construct, in order; those that say nothing are left out.
class DtDocumentation::DtLines
{
public:
    explicit DtLines(const DtOMTTree* tree) : myTree(tree) {}

    DtLines& add(const DtString& text)
    {
        if (!tellsNothing(text))
            myText += (myText.isEmpty() ? "" : "\n\n") + text;
        return *this;
    }
    DtLines& addFacts(const std::vector<DtFact>& facts) { return add(sentences(facts)); }
    // Labels between blanks; one that the model does not define is passed over.
    DtLines& addNotes(const DtString& labels)
    {
        std::istringstream words(labels.stdString());
        for (std::string label; myTree != nullptr && words >> label;)
        {
            if (const DtNoteNode* note = myTree->getNoteNode(DtString(label)))
                add(note->getText());
        }
        return *this;
    }
    const DtString& text() const { return myText; }

private:
    const DtOMTTree* myTree;
    DtString myText;
};

DtDocumentation& DtDocumentation::instance()
{
    return DtPerRun<DtDocumentation>();
}

DtString DtDocumentation::unitsOf(const DtString& datatype) const
{
    const DtSimpleDatatypeNode* simple = myTree != nullptr ? myTree->getSimpleDatatypeNode(datatype) : nullptr;
    if (simple == nullptr)
        return DtString();
    return sentences({
        {"Units",      simple->getUnits()     },
        {"Resolution", simple->getResolution()},
        {"Accuracy",   simple->getAccuracy()  }
    });
}

template <typename Member>
DtString DtDocumentation::ofMember(const Member& member) const
{
    const DtString cardinality = member.getCardinality() == "1" ? DtString() : member.getCardinality();
    return DtLines(myTree)
        .add(member.getDescription())
        .add(unitsOf(member.getDatatype()))
        .addFacts({
            {"Accuracy",    member.getAccuracy()},
            {"Cardinality", cardinality         }
    })
        .addNotes(member.noteLabels())
        .text();
}

DtClassDocumentation DtDocumentation::of(const DtObjectClassFedNode& node) const
{
    DtClassDocumentation documentation;
    documentation.ofClass = DtLines(myTree).add(node.getDescriptor()).addNotes(node.noteLabels()).text();
    for (const DtAttributeFedNode* attribute : node.getAttributes())
    {
        if (attribute != nullptr)
            documentation.ofMembers[attribute->getName()] = ofMember(*attribute);
    }
    return documentation;
}

DtClassDocumentation DtDocumentation::of(const DtInteractionClassFedNode& node) const
{
    DtClassDocumentation documentation;
    documentation.ofClass = DtLines(myTree).add(node.getDescriptor()).addNotes(node.noteLabels()).text();
    for (const DtParameterFedNode* parameter : node.getParameters())
    {
        if (parameter != nullptr)
            documentation.ofMembers[parameter->getName()] = ofMember(*parameter);
    }
    return documentation;
}

DtString DtDocumentation::of(const DtBasicDataRepresentationNode& node) const
{
    return DtLines(myTree).add(node.getInterpretation()).addNotes(node.noteLabels()).text();
}

DtString DtDocumentation::of(const DtSimpleDatatypeNode& node) const
{
    return DtLines(myTree)
        .add(node.getDescription())
        .addFacts({
            {"Units",      node.getUnits()     },
            {"Resolution", node.getResolution()},
            {"Accuracy",   node.getAccuracy()  }
    })
        .addNotes(node.noteLabels())
        .text();
}

DtString DtDocumentation::of(const DtEnumeratedDatatypeNode& node) const
{
    return DtLines(myTree).add(node.getDescription()).addNotes(node.noteLabels()).text();
}

DtString DtDocumentation::of(const DtEnumerationNode& node) const
{
    return DtLines(myTree).addNotes(node.noteLabels()).text();
}

DtString DtDocumentation::of(const DtArrayDatatypeNode& node) const
{
    return DtLines(myTree)
        .add(node.getDescription())
        .add(unitsOf(node.getDatatype()))
        .addFacts({
            {"Cardinality", node.getCardinality()}
    })
        .addNotes(node.noteLabels())
        .text();
}

DtString DtDocumentation::of(const DtFixedDatatypeNode& node) const
{
    return DtLines(myTree).add(node.getDescription()).addNotes(node.noteLabels()).text();
}

DtString DtDocumentation::of(const DtFieldComponentNode& node) const
{
    return DtLines(myTree)
        .add(node.getDescription())
        .add(unitsOf(node.getDatatype()))
        .addNotes(node.noteLabels())
        .text();
}

DtString DtDocumentation::of(const DtVariantDatatypeNode& node) const
{
    return DtLines(myTree).add(node.getDescription()).addNotes(node.noteLabels()).text();
}

DtString DtDocumentation::of(const DtAlternativeComponentNode& node) const
{
    return DtLines(myTree)
        .add(node.getDescription())
        .add(unitsOf(node.getDatatype()))
        .addNotes(node.noteLabels())
        .text();
}

DtString DtDocumentation::of(const DtComplexDatatypeNode& node) const
{
    return DtLines(myTree).addNotes(node.noteLabels()).text();
}

DtString DtDocumentation::of(const DtComplexComponentNode& node) const
{
    const DtString cardinality = node.getCardinality() == "1" ? DtString() : node.getCardinality();
    return DtLines(myTree)
        .addFacts({
            {"Accuracy",    node.getAccuracy()},
            {"Cardinality", cardinality       }
    })
        .addNotes(node.noteLabels())
        .text();
}
