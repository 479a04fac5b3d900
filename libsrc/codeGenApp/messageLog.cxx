#include "codeGenApp/messageLog.h"

#include "foundation/outputStream.h"

DtMessageLog::DtMessageLog()
{
    for (DtOutputStream* stream : {&DtFatal, &DtWarn, &DtInfo, &DtVerbose, &DtDebug})
        stream->attachPrinter(this);
}

DtMessageLog::~DtMessageLog()
{
    for (DtOutputStream* stream : {&DtFatal, &DtWarn, &DtInfo, &DtVerbose, &DtDebug})
        stream->detachPrinter(this);
}

void DtMessageLog::print(const char* text, std::size_t length)
{
    const int before = myCount;
    for (const char* each = text; each != text + length; ++each)
    {
        if (*each != '\n')
        {
            myOpenLine += *each;
            continue;
        }
        myLines += QString::fromStdString(myOpenLine);
        myOpenLine.clear();
        ++myCount;
        if (myLines.size() > theMostLines)
            myLines.removeFirst();
    }
    if (myCount > before)
        Q_EMIT added();
}

void DtMessageLog::putInFront(const QStringList& lines)
{
    myLines = lines + myLines;
    myCount += lines.size();
    while (myLines.size() > theMostLines)
        myLines.removeFirst();
}

QStringList DtMessageLog::linesSince(int count) const
{
    return myLines.mid(qMax(0, myLines.size() - (myCount - count)));
}
