#ifndef FOUNDATION_FILENAME_H
#define FOUNDATION_FILENAME_H

#include "foundation/string.h"

// A text that names a file, with the operations on its parts.
//
// Only '/' separates path components; a backslash is an ordinary character of a name. Extensions are looked for in the
// last component only, so "a.d/b" has none.
class DtFilename : public DtString
{
public:
    DtFilename() = default;
    DtFilename(const char* name) : DtString(name) {}
    DtFilename(const DtString& name) : DtString(name) {}

    DtFilename& operator=(const DtString& name);
    DtFilename& operator=(const char* name);

    void stripPath();      // leaves the last component
    void stripFilename();  // leaves the directory, its final separator included; empty when there is none
    void stripExtension(); // removes the last extension and its dot
    static DtFilename stripPath(const DtFilename& name);

    DtString extension() const;                   // without the dot
    void setExtension(const DtString& extension); // an empty one leaves no dot

    // Join with one separator. An empty part adds none; an absolute right part stands alone.
    void append(const DtFilename& right);
    void prepend(const DtFilename& left);

    bool exists() const;
    bool isRegularFile() const;
    bool isAbsolute() const;
    // False for the empty name and for one that ends in a separator: no file can have it.
    virtual bool isUsable() const;

    static char separator() { return '/'; }
    // Makes path absolute from the working directory, into result.
    static void absolutePath(const DtString& path, DtString& result);
    // The name if such a file exists, else the one below the directory in RTI_CONFIG if that exists, else the name.
    static DtFilename searchAlternatePath(const char* name);
    // The name if such a file exists, else directory/name if that exists, else the name.
    static DtFilename searchAlternatePath(const char* name, const char* directory);
    // Without "." and ".." as far as the text alone allows; links are not looked at.
    static DtString normalized(const DtString& path);

    DtFilename(const DtFilename&) = default;
    DtFilename& operator=(const DtFilename&) = default;
    virtual ~DtFilename() = default;
};

#endif
