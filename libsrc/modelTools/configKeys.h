#ifndef MODEL_TOOLS_CONFIG_KEYS_H
#define MODEL_TOOLS_CONFIG_KEYS_H

#include <string>
#include <vector>

class DtCodeGenInitializer;

// A key of the configuration that a run can be given with --set.
struct DtConfigKey
{
    enum Kind
    {
        Text,
        Identifier,   // of C++; may be empty
        Namespace,    // an identifier that is no keyword; may be empty
        SubDirectory, // a relative path that stays below the output
        Flag,         // true or false
        Number        // 0 and above
    };

    const char* name;
    Kind kind;
    const char* refusal;  // why it cannot be set here, null when it can
    bool writesElsewhere; // so that a file may name it with an empty value only
};

const std::vector<DtConfigKey>& DtConfigKeys();

// Sets KEY=VALUE in the configuration, whose fields follow with applySettings(). Throws DtToolFailure (Usage), with the
// nearest key or the values that there are, for a text without "=", an unknown or refused key, and a value of another
// kind.
void DtSetConfigKey(DtCodeGenInitializer& configuration, const std::string& assignment);

// Looks through a configuration file before it is read, since reading takes any text for a value and passes over keys
// that it does not know. Throws DtToolFailure (Unreadable), with the key and what it takes, for a file that is no
// configuration, an unknown key, and a value of another kind.
void DtCheckConfigFile(const std::string& path);

#endif
