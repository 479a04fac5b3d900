#ifndef QXGEN_TELLING_OPTIONS_H
#define QXGEN_TELLING_OPTIONS_H

#include "options.h"

#include "modelTools/generateTool.h"

#include <string>

// --color and --format of the commands that tell diagnostics. what: what the command calls these in its help.
inline void addTellingChoices(CLI::App& command, DtColor& color, DtDiagnosticFormat& format, const std::string& what)
{
    const DtChoices<DtColor> colors = {
        {"auto",   DtColor::Auto  },
        {"always", DtColor::Always},
        {"never",  DtColor::Never },
    };
    const DtChoices<DtDiagnosticFormat> formats = {
        {"text", DtDiagnosticFormat::Text},
        {"msvs", DtDiagnosticFormat::Msvs},
        {"json", DtDiagnosticFormat::Json},
    };
    addChoice(command, "--color", color, colors, "Colours in " + what);
    addChoice(command, "--format", format, formats, "How " + what + " are written");
}

#endif
