#include "codeGenApp/projectBadge.h"

namespace
{
// In pixels.
const int theGap = 12; // to the text of the bar
const int theWidestName = 160;
const int theLeastName = 60;

QString nameOf(const DtProjectBadge::DtFacts& facts)
{
    return QString::fromUtf8(facts.name.c_str());
}

QString starOf(const DtProjectBadge::DtFacts& facts)
{
    return facts.isUnsaved ? QStringLiteral("*") : QString();
}
} // namespace

DtProjectBadge::DtProjectBadge(QWidget* parent) : QLabel(parent)
{
    setObjectName(QStringLiteral("ProjectBadge"));
    setTextFormat(Qt::PlainText);
    setContentsMargins(theGap, 0, 0, 0);
    hide();
}

void DtProjectBadge::fill(const DtFacts& facts)
{
    myFacts = facts;
    QString toolTip = "<p>" + (nameOf(facts) + starOf(facts) + countsText()).toHtmlEscaped() + "</p>";
    if (facts.isUnsaved)
        toolTip += "<p>" + QStringLiteral("Not all of the project is saved.") + "</p>";
    setToolTip(toolTip);
}

void DtProjectBadge::fitInto(int width)
{
    const QFontMetrics metrics = fontMetrics();
    const QString star = starOf(myFacts);
    const QString name = metrics.elidedText(nameOf(myFacts), Qt::ElideMiddle, theWidestName);
    const int room = width - theGap;
    if (metrics.horizontalAdvance(name + star + countsText()) <= room)
        return setText(name + star + countsText());
    const int roomForName = qBound(theLeastName, room - metrics.horizontalAdvance(star), theWidestName);
    setText(metrics.elidedText(nameOf(myFacts), Qt::ElideMiddle, roomForName) + star);
}

QString DtProjectBadge::countsText() const
{
    return ", " + DtCounted(myFacts.modules, "module", "modules") + ", " +
           DtCounted(myFacts.classes, "class", "classes");
}

QString DtCounted(std::size_t count, const char* noun, const char* plural)
{
    return QStringLiteral("%1 %2").arg(count).arg(QLatin1String(count == 1 ? noun : plural));
}
