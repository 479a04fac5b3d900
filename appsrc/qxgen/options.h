#ifndef QXGEN_OPTIONS_H
#define QXGEN_OPTIONS_H

#include "modelTools/nearNames.h"

#include <CLI/CLI.hpp>

#include <string>
#include <utility>
#include <vector>

// The names that an option takes, and what they stand for.
template <typename Value>
using DtChoices = std::vector<std::pair<std::string, Value>>;

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
        throw CLI::ValidationError(name, "there is no " + text + "." + DtNearNamesHint(text, names) + " Known are " +
                                             listed + ".");
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
