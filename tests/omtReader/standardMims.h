#ifndef TESTS_OMT_READER_STANDARD_MIMS_H
#define TESTS_OMT_READER_STANDARD_MIMS_H

#include "omtReader/standardMim.h"
#include "omtReader/xmlHla4FileReader.h"
#include "testSupport.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtTest/QtTest>

#include <memory>

// A standard management model inside the program, with what its standard says of it as a file.
struct StandardMim
{
    const char* year;
    const unsigned char* bytes;
    unsigned int length;
    DtHLAProtocolVersion version;
    std::unique_ptr<DtXMLEvolvedFileReader> (*makeReader)();
    const char* lineEnd;
    const char* attribution;

    QByteArray text() const { return {reinterpret_cast<const char*>(bytes), static_cast<int>(length)}; }
    QByteArray nameSpace() const { return QByteArray("http://standards.ieee.org/IEEE1516-") + year; }
    // The file of facts beside the repository; empty where there is none.
    QJsonObject facts() const
    {
        const QByteArray file = readTextFile(QStringLiteral(QX_SHARED_DIR "/mim/mim%1.json").arg(year));
        return QJsonDocument::fromJson(file).object();
    }
};

// Why a test ends where there is none.
const char theMissingFacts[] = "The file of facts is not here; what needs no file is tried all the same.";

template <typename Reader>
std::unique_ptr<DtXMLEvolvedFileReader> makeReader()
{
    return std::make_unique<Reader>(nullptr);
}

inline const StandardMim theStandardMims[] = {
    {"2010", theHLAeStandardMIM_xml, theHLAeStandardMIM_xml_len, DtHla1516e, makeReader<DtXMLEvolvedFileReader>, "\n",
     "Reprinted with permission from IEEE 1516.1(TM)-2010"},
    {"2025", theHLA4StandardMIM_xml, theHLA4StandardMIM_xml_len, DtHla4,     makeReader<DtXMLHla4FileReader>,    "\r\n",
     "Reprinted with permission from IEEE 1516.2(TM)-2025"},
};

// One test row for each model; the column "mim" holds its place in the table.
inline void addStandardMims()
{
    QTest::addColumn<int>("mim");
    int index = 0;
    for (const StandardMim& mim : theStandardMims)
        QTest::newRow(mim.year) << index++;
}

#endif
