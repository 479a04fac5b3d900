#ifndef MODEL_TOOLS_UNKNOWN_DATATYPES_H
#define MODEL_TOOLS_UNKNOWN_DATATYPES_H

class DtOMTTree;
class DtOmtProject;

// Warns of attributes, parameters, fields and other parts of datatypes whose datatype is one that neither the models
// nor the toolkit have: most likely a module is missing, or the name is misspelt. Looks at the selected classes and at
// what they use. To be called once the datatype mapper knows the tree, and ahead of the writers, which add to both.
void DtWarnOfUnknownDatatypes(const DtOMTTree& tree, const DtOmtProject& project);

#endif
