#ifndef TESTS_MODEL_TOOLS_TOOL_TEST_H
#define TESTS_MODEL_TOOLS_TOOL_TEST_H

#include "modelTools/toolFailure.h"
#include "modelToolsTest.h"

#include <functional>
#include <string>
#include <vector>

// Exit code and text of the failure that the function throws, as "1: text"; empty without one.
inline std::string failureOf(const std::function<void()>& function)
{
    try
    {
        function();
    }
    catch (const DtToolFailure& failure)
    {
        return std::to_string(static_cast<int>(failure.code())) + ": " + failure.what();
    }
    return std::string();
}

// The texts, each behind a bar.
inline std::string joined(const std::vector<std::string>& texts)
{
    std::string all;
    for (const std::string& text : texts)
        all += "|" + text;
    return all;
}

#endif
