#ifndef MODEL_TOOLS_COLOR_H
#define MODEL_TOOLS_COLOR_H

// When what is told has colours.
enum class DtColor
{
    Auto, // on a terminal, unless NO_COLOR is set
    Always,
    Never
};

// stream: the number of an open file, such as STDERR_FILENO.
bool DtIsColored(DtColor color, int stream);

#endif
