#ifndef FOUNDATION_SHARED_TEXT_H
#define FOUNDATION_SHARED_TEXT_H

#include "foundation/string.h"

#include <boost/smart_ptr/intrusive_ptr.hpp>
#include <boost/smart_ptr/intrusive_ref_counter.hpp>

// A text that takes the room of a pointer, for records that are there in thousands: copies share one text, and the
// empty text has no memory. What it holds does not change; another text takes its place. One thread only.
class DtSharedText
{
public:
    DtSharedText() = default;
    DtSharedText(const DtString& text) : myBody(text.length() > 0 ? new DtBody(text) : nullptr) {}

    // Shares the text with the last equal one that was made so, unless many others have come in between. For values
    // that are the same in most records.
    static DtSharedText recent(const DtString& text);

    // Good until another text takes the place of this one.
    const DtString& get() const { return myBody ? myBody->text : DtString::nullString(); }
    operator const DtString&() const { return get(); }

private:
    // An atomic counter: at -O3, g++ takes what a plain one does for a use behind the delete.
    struct DtBody : boost::intrusive_ref_counter<DtBody>
    {
        explicit DtBody(const DtString& content) : text(content) {}
        DtString text;
    };

    boost::intrusive_ptr<DtBody> myBody; // null for the empty text
};

#endif
