#ifndef CODE_GEN_APP_CLASS_FACTS_H
#define CODE_GEN_APP_CLASS_FACTS_H

#include <QtCore/QStringList>

class DtFedNode;

// What the window tells of an object or interaction class of the model.

// Names of the attributes or parameters that the class itself has.
QStringList DtMemberNames(const DtFedNode& node);
// Full name, first sentence of the semantics, and number of attributes or parameters, as rich text.
QString DtClassToolTip(const DtFedNode& node);
// Full name, semantics, and all attributes or parameters with their datatypes and semantics, those of superclasses
// first, as rich text.
QString DtClassDetails(const DtFedNode& node);

#endif
