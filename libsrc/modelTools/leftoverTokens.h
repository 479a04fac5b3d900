#ifndef MODEL_TOOLS_LEFTOVER_TOKENS_H
#define MODEL_TOOLS_LEFTOVER_TOKENS_H

#include <string>
#include <vector>

// Finds tokens of the template language that stand unexpanded in generated text. What looks like one and stands in one
// of the models or in the project came from there and is none.
class DtLeftoverTokens
{
public:
    explicit DtLeftoverTokens(std::vector<std::string> modelFiles) : myModelFiles(std::move(modelFiles)) {}

    // The first one, as "<!Name!>"; empty when there is none.
    std::string find(const std::string& text);

private:
    bool isOfModel(const std::string& token);

    std::vector<std::string> myModelFiles;
    std::string myModelText; // read when it is first needed
    bool myIsRead = false;
};

#endif
