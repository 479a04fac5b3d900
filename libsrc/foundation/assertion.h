#ifndef FOUNDATION_ASSERTION_H
#define FOUNDATION_ASSERTION_H

// Prints "file:line: function: Assertion `expression' failed." on the standard error stream and aborts.
[[noreturn]] void DtAssertionFailed(const char* expression, const char* file, int line, const char* function);

// Live in every build type: a failed one means that going on would damage the user's data.
#define DT_ASSERT(expression) DT_ASSERT_AS(expression, #expression, __FILE__, __LINE__, __PRETTY_FUNCTION__)
// The same with the words of the report given, for those that users of the program know by heart.
#define DT_ASSERT_AS(expression, text, file, line, function)                                                           \
    ((expression) ? static_cast<void>(0) : DtAssertionFailed(text, file, line, function))

#endif
