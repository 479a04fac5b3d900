#include "codeGenApp/projectBadge.h"

DtProjectBadge::DtProjectBadge(QWidget* parent) : QLabel(parent)
{
    setObjectName(QStringLiteral("ProjectBadge"));
    setTextFormat(Qt::PlainText);
    hide();
}

void DtProjectBadge::fill(const DtFacts& facts)
{
    setText(QString::fromUtf8(facts.name.c_str()) + (facts.isUnsaved ? QStringLiteral("*, ") : QStringLiteral(", ")) +
            DtCounted(facts.modules, "module", "modules") + QStringLiteral(", ") +
            DtCounted(facts.classes, "class", "classes"));
    setToolTip(facts.isUnsaved ? QStringLiteral("Not all of the project is saved.") : QString());
}

QString DtCounted(std::size_t count, const char* noun, const char* plural)
{
    return QStringLiteral("%1 %2").arg(count).arg(QLatin1String(count == 1 ? noun : plural));
}
