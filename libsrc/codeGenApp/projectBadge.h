#ifndef CODE_GEN_APP_PROJECT_BADGE_H
#define CODE_GEN_APP_PROJECT_BADGE_H

#include "foundation/string.h"

#include <QtWidgets/QLabel>

#include <cstddef>

// What the status bar tells of the project at its right end: name, modules and selected classes, and a star behind the
// name while something is not saved. A long name is cut in its middle, and where room is short the counts go; the
// tooltip has all. Hidden until it is filled.
class DtProjectBadge : public QLabel
{
public:
    struct DtFacts
    {
        DtString name; // of the project file, without its directory
        bool isUnsaved = false;
        std::size_t modules = 0;
        std::size_t classes = 0;
    };

    explicit DtProjectBadge(QWidget* parent = nullptr);
    void fill(const DtFacts& facts);
    // Takes the longest form that is not wider than so many pixels, or the shortest.
    void fitInto(int width);

private:
    QString countsText() const;

    DtFacts myFacts;
};

// "1 file", "2 files".
QString DtCounted(std::size_t count, const char* noun, const char* plural);

#endif
