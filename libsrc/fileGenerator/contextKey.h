#ifndef FILE_GENERATOR_CONTEXT_KEY_H
#define FILE_GENERATOR_CONTEXT_KEY_H

#include "foundation/string.h"

#include <vector>

// The form of what stands under a key of the model's context.
enum class DtKeyForm
{
    Plain, // a number or a fixed word
    Text,  // a text, with the companions "Html" and "Quoted"
    Name,  // a text with the companion "Id" too
    List   // a map, to loop over
};

// A key of the model's context and the list whose entries have it, "Attributes" say; the root's list is empty.
struct DtContextKey
{
    DtString list;
    DtString key;
    DtKeyForm form;

    // The key itself and its companions, as a template writes them.
    std::vector<DtString> spellings() const;
};

#endif
