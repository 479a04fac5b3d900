#ifndef FILE_GENERATOR_OMT_ENV_WRITER_H
#define FILE_GENERATOR_OMT_ENV_WRITER_H

#include "foundation/string.h"

// Driver of the generation of C++.
class DtOMTEnvWriter
{
public:
    // Class-wide settings of a run, read by every writer.
    static void setMaximumLineLength(int length); // 300 at start; bytes, the terminating NUL included
    static int maximumLineLength();
    static void setMIMincluded(bool included); // true at start
    static bool MIMincluded();
    static bool includeMIM() { return MIMincluded(); }
    static void setNamespaceName(const DtString& name);
    static const DtString& namespaceName();
    static void setIncludeName(const DtString& name);
    static const DtString& includeName();
    static void setPrefixName(const DtString& name);
    static const DtString& prefixName();
    static void setFomDefinitionFileName(const DtString& name);
    static const DtString& fomDefinitionFileName();
    static void setBaseName(const DtString& name);
    static const DtString& baseName();
    // The include name and a separator, or empty when there is no include name.
    static DtString includePath();

private:
    static int theMaximumLineLength;
    static bool myMIMincluded;
    static DtString theNamespaceName;
    static DtString theIncludeName;
    static DtString thePrefixName;
    static DtString theFomDefinitionFileName;
    static DtString theBaseName;
};

#endif
