#ifndef FOUNDATION_FOM_TYPE_H
#define FOUNDATION_FOM_TYPE_H

// Format of an object model file. Every type below DtFomEvolved is a format that cannot be merged with other modules.
enum DtFomType
{
    DtFomUnknown = 0, // reading stops
    DtFomOmt13 = 1,   // OMT text
    DtFom1516 = 2,    // IEEE 1516 XML
    DtFomEvolved = 3, // IEEE 1516-2010 XML
    DtFomHla4 = 4     // IEEE 1516-2025 XML
};

// Version of the standard that a model follows; the numbers are those of DtFomType.
enum DtHLAProtocolVersion
{
    DtHlaUnknown = 0,
    DtHla13 = 1,
    DtHla1516 = 2,
    DtHla1516e = 3,
    DtHla4 = 4
};

// Outcome of parsing a model file.
enum DtFedReadStatus
{
    DtFedReadSuccess = 0,
    DtFedReadNotFound = 1,
    DtFedReadBadContent = 2
};

#endif
