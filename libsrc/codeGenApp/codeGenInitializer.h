#ifndef CODE_GEN_APP_CODE_GEN_INITIALIZER_H
#define CODE_GEN_APP_CODE_GEN_INITIALIZER_H

#include "foundation/environment.h"

#include <map>

// The generator's persistent settings and the store that keeps them.
//
// The store has two lists: `defaults`, which is never changed, and `user`, where every change goes. A setting is looked
// up in `user` first. A setter writes to the store and sets the field; only saveConfigFile writes the file. Copies
// share the store's nodes.
class DtCodeGenInitializer
{
public:
    DtCodeGenInitializer() = default;
    DtCodeGenInitializer(const DtCodeGenInitializer&) = default;
    DtCodeGenInitializer& operator=(const DtCodeGenInitializer&) = default;
    virtual ~DtCodeGenInitializer();

    // False, with every field as it was, when the file cannot be read. After a successful read a setting that the file
    // lacks is empty, 0 or false, whatever its compiled-in default, and named on DtWarn.
    virtual bool parseConfigFile(const DtString& file);
    // Takes the content of the file for the store that is saved, with every field as it was. False when the file cannot
    // be read.
    bool takeStore(const DtString& file);
    // False when the file could not be written, or is not to be.
    virtual bool saveConfigFile(const DtString& file);
    // Whether saveConfigFile() and that of later copies write; true at first.
    void setSaved(bool isSaved) { myIsSaved = isSaved; }
    bool isSaved() const { return myIsSaved; }

    virtual void setLogFileName(const DtString& name);
    virtual const DtString& logFileName() const;
    virtual void setNamespaceName(const DtString& name);
    virtual const DtString& namespaceName() const;
    virtual void setIncludeName(const DtString& name);
    virtual const DtString& includeName() const;
    virtual void setPrefixName(const DtString& name);
    virtual const DtString& prefixName() const;
    virtual void setGenerateExamples(bool on);
    virtual bool generateExamples() const;
    virtual void setGenerate64Bit(bool on);
    virtual bool generate64Bit() const;
    // Read from "useErrorForNonDecodableAttrs" but saved as "generateErrors", which nothing reads: a choice made in the
    // window holds until the program ends.
    virtual void setGenerateErrors(bool on);
    virtual bool generateErrors() const;
    virtual void setDumpParseTree(bool on);
    virtual bool dumpParseTree() const;
    virtual void setGenerateDis(bool on);
    virtual bool generateDis() const;
    virtual void setFirstPduKind(int kind);
    virtual int firstPduKind() const;
    // Read from "mapRtiObjectIdToGlobalId" and then from "encodeSizeInStrings", which wins; saved as the former.
    virtual void setMapRtiObjIdToGlobalId(bool on);
    virtual bool mapRtiObjIdToGlobalId() const;
    virtual void setIncludeStandardMIM(bool on); // sets the field only: the store does not change
    virtual bool includeStandardMIM() const;
    // Nobody warns when the keys below are missing.
    bool codeOpenArrays() const { return myCodeOpenArrays; }
    bool allDatatypes() const { return myAllDatatypes; }
    // Scripts by file name, with whether they take part in a generation.
    virtual void setScriptMap(const std::map<DtString, bool>& scripts);
    virtual const std::map<DtString, bool>& scriptMap() const;

    // Enters the scripts of both lists in the map; those already there keep their flag, so `user` goes first.
    void parseScripts();
    // Writes the map to the list `scripts` below `user`. Entries that are no longer in the map stay in the list.
    void saveScripts();

    // The value in `user`, else in `defaults`; empty, with a warning, when there is none.
    DtString getVariableValue(const DtString& name) const;
    DtString getVariableValue(const DtEnvironment& env, const DtString& name, bool& found) const;
    bool setVariableValue(const DtString& name, const DtString& value); // in `user`, made when it is missing
    bool setVariableValue(const DtString& name, const DtString& value, DtEnvironment& env);
    // Sets the fields from what stands in the store now, behind setVariableValue().
    void applySettings();

private:
    void readSettings();
    void readNotifyLevel() const;
    bool readFlag(const DtString& name) const;
    // The value in `user`, else in `defaults`.
    DtString storedValue(const DtString& name, bool& found) const;
    bool readOptionalFlag(const DtString& name) const; // false without a warning when it is missing
    void parseScripts(const DtEnvironment& list);
    // Gives the setting its value; without a node for it a new setting is made at the end of the list.
    static bool storeValue(std::shared_ptr<DtEnvValue> node, const DtString& name, const DtString& value,
                           DtEnvironment& env);
    void makeUserList();
    void setText(const char* key, DtString& field, const DtString& value);
    void setFlag(const char* key, bool& field, bool value);

    DtEnvironment myConfig;   // the whole file
    DtEnvironment myDefaults; // its list `defaults`
    DtEnvironment myUser;     // its list `user`
    DtString myLogFileName;
    DtString myNamespaceName;
    DtString myIncludeName;
    DtString myPrefixName;
    int myFirstPduKind = 0;
    bool myGenerateExamples = true;
    bool myGenerate64Bit = true;
    bool myGenerateErrors = false;
    bool myGenerateDis = false;
    bool myDumpParseTree = false;
    bool myMapRtiObjIdToGlobalId = true;
    bool myIncludeStandardMIM = true;
    bool myCodeOpenArrays = false;
    bool myAllDatatypes = false;
    std::map<DtString, bool> myScriptMap;
    bool myIsSaved = true;
};

#endif
