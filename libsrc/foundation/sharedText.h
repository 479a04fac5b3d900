#ifndef FOUNDATION_SHARED_TEXT_H
#define FOUNDATION_SHARED_TEXT_H

#include "foundation/string.h"

#include <utility>

// A text that takes the room of a pointer, for records that are there in thousands: copies share one text, and the
// empty text has no memory. What it holds does not change; another text takes its place. One thread only.
class DtSharedText
{
public:
    DtSharedText() = default;
    DtSharedText(const DtString& text) : myBody(text.length() > 0 ? new DtBody(text) : nullptr) {}
    DtSharedText(const DtSharedText& other) : myBody(other.myBody)
    {
        if (myBody != nullptr)
            ++myBody->owners;
    }
    DtSharedText(DtSharedText&& other) noexcept : myBody(std::exchange(other.myBody, nullptr)) {}
    DtSharedText& operator=(DtSharedText other) noexcept
    {
        std::swap(myBody, other.myBody);
        return *this;
    }
    ~DtSharedText()
    {
        if (myBody != nullptr && --myBody->owners == 0)
            delete myBody;
    }

    // Shares the text with the last equal one that was made so, unless many others have come in between. For values
    // that are the same in most records.
    static DtSharedText recent(const DtString& text);

    // Good until another text takes the place of this one.
    const DtString& get() const { return myBody != nullptr ? myBody->text : DtString::nullString(); }
    operator const DtString&() const { return get(); }

private:
    struct DtBody
    {
        explicit DtBody(const DtString& content) : text(content) {}
        DtString text;
        unsigned int owners = 1;
    };

    DtBody* myBody = nullptr; // null for the empty text
};

#endif
