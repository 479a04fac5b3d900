// What the status bar says: failures, successes, and what is open.

#include "codeGenApp/codeGenAppGui.h"
#include "codeGenApp/omtProjectXmlWriter.h"
#include "codeGenApp/preferencesDialog.h"
#include "codeGenApp/projectBadge.h"
#include "fileGenerator/omtProject.h"
#include "foundation/fileUtils.h"
#include "foundation/outputStream.h"
#include "foundation/stringUtils.h"
#include "foundation/warning.h"
#include "omtReader/fedReader.h"

#include <QtWidgets/QStatusBar>

#include <algorithm>

namespace
{
const int theEdgesOfTheBar = 40; // pixels left of the text and right of the badge, the grip among them

// What is told when a project is saved need not be told when it is compared with its file.
class DtSilence : public DtWarningTaker
{
public:
    void take(const DtWarning& /*warning*/) override {}
};
} // namespace

void DtCodeGenAppGui::createStatusBar()
{
    myBadge = new DtProjectBadge(this);
    statusBar()->addPermanentWidget(myBadge); // the bar is there from the start, so its first text moves nothing
    myBadge->hide();
}

void DtCodeGenAppGui::showStatus(const DtString& text)
{
    putStatus(QString::fromUtf8(text.c_str()), true);
    if (!isVisible()) // nobody could read it otherwise
        DtWarn << text << std::endl;
}

void DtCodeGenAppGui::showSuccess(const QString& text)
{
    if (isVisible())
        putStatus(text, false);
}

// A text that is wider than the bar is whole in its tooltip, where lines are broken.
void DtCodeGenAppGui::putStatus(const QString& text, bool isFailure)
{
    myStatusIsFailure = isFailure;
    statusBar()->showMessage(text, 0);
    statusBar()->setAccessibleDescription(text); // else it is that of the tooltip, with its markup
    statusBar()->setToolTip(QStringLiteral("<p>") + text.toHtmlEscaped() + QStringLiteral("</p>"));
    refreshBadge();
}

// Below the text itself: why a load failed, or where more is told.
void DtCodeGenAppGui::addToStatusToolTip(const QStringList& lines)
{
    QString toolTip = statusBar()->toolTip();
    for (const QString& line : lines)
        toolTip += QStringLiteral("<p>") + line.toHtmlEscaped() + QStringLiteral("</p>");
    statusBar()->setToolTip(toolTip);
}

// The whole bar is there for a failure.
void DtCodeGenAppGui::refreshBadge()
{
    if (isVisible())
        markTakenClasses();
    if (!isVisible() || myStatusIsFailure || myProject == nullptr || myProjectFile.isEmpty())
        return myBadge->hide();
    DtProjectBadge::DtFacts facts;
    facts.name = DtFilename::stripPath(myProjectFile);
    facts.isUnsaved = hasUnsavedWork();
    facts.modules = moduleCount();
    facts.classes = myProject->getObjects().size() + myProject->getInteractions().size();
    myBadge->fill(facts);
    fitBadge();
    myBadge->show();
}

void DtCodeGenAppGui::fitBadge()
{
    const int textWidth = statusBar()->fontMetrics().horizontalAdvance(statusBar()->currentMessage());
    myBadge->fitInto(width() - theEdgesOfTheBar - textWidth);
}

// Without the standard management model, which comes by itself.
std::size_t DtCodeGenAppGui::moduleCount() const
{
    const DtString mim = DtFedReader::standardMimFileName(myFomType);
    return static_cast<std::size_t>(std::count_if(myLoadedFiles.begin(), myLoadedFiles.end(),
                                                  [&mim](const DtModelFile& file)
                                                  { return mim.isEmpty() || !DtContainsSubstring(file.first, mim); }));
}

bool DtCodeGenAppGui::hasUnsavedWork() const
{
    if (myProject == nullptr || myProjectFile.isEmpty())
        return false;
    DtOmtProject project(*myProject);
    completeProject(project);
    const DtSilence silence;
    std::string saved;
    return !DtReadFile(myProjectFile, saved) || saved != DtOmtProjectXmlWriter(project, myProjectFile).text();
}
