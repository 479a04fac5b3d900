#ifndef CODE_GEN_APP_NAME_RULES_H
#define CODE_GEN_APP_NAME_RULES_H

#include "foundation/string.h"

// What the settings take for names that go into the generated code. An empty text fits: it switches the setting off.

// An identifier of C++. Keywords are among them, as a name of the model follows.
bool DtFitsPrefix(const DtString& text);
// An identifier of C++ that is no keyword.
bool DtFitsNamespace(const DtString& text);

#endif
