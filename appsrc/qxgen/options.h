#ifndef QXGEN_OPTIONS_H
#define QXGEN_OPTIONS_H

#include "modelTools/nearNames.h"
#include "modelTools/toolFailure.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

// The names that an option takes, and what they stand for.
template <typename Value>
using DtChoices = std::vector<std::pair<std::string, Value>>;

// A variable of a script that is empty would pass for an option that was not given. Throws DtToolFailure (Usage) for
// the first option with an empty value, but for those whose name is among the others.
inline void refuseEmptyValues(const CLI::App& command, const std::vector<std::string>& others)
{
    for (const CLI::Option* option : command.get_options())
    {
        const std::vector<std::string>& values = option->results();
        const bool isEmpty = option->get_items_expected_max() > 0 &&
                             std::find(values.begin(), values.end(), std::string()) != values.end();
        if (isEmpty && std::find(others.begin(), others.end(), option->get_name()) == others.end())
            throw DtToolFailure(DtExitCode::Usage, option->get_name() + " has an empty value.");
    }
}

// An option that takes one of a few names. Help and completion show them as "one|other".
template <typename Value>
CLI::Option* addChoice(CLI::App& command, const std::string& name, Value& value, const DtChoices<Value>& choices,
                       const std::string& description)
{
    std::string listed;
    std::vector<std::string> names;
    for (const auto& [choice, ignored] : choices)
    {
        names.push_back(choice);
        listed += (listed.empty() ? "" : "|") + choice;
    }
    const auto take = [&value, name, choices, names, listed](const std::string& text)
    {
        for (const auto& [choice, meaning] : choices)
            if (text == choice)
            {
                value = meaning;
                return;
            }
        throw CLI::ValidationError(name, "there is no \"" + text + "\"." + DtNearNamesHint(text, names) +
                                             " Known are " + listed + ".");
    };
    return command.add_option_function<std::string>(name, take, description)->type_name(listed);
}

// An option that may be given several times, with one value each time: what follows a value is not another one.
inline CLI::Option* addRepeated(CLI::App& command, const std::string& name, std::vector<std::string>& values,
                                const std::string& type, const std::string& description)
{
    return command.add_option(name, values, description)
        ->type_name(type)
        ->expected(1)
        ->take_all()
        ->allow_extra_args(false);
}

#endif
