#ifndef OMT_READER_STANDARD_MIM_H
#define OMT_READER_STANDARD_MIM_H

// The standard management model of IEEE 1516-2010 as an XML text, made at build time from HLAstandardMIM-2010.xml.
extern const unsigned char theHLAeStandardMIM_xml[];
extern const unsigned int theHLAeStandardMIM_xml_len;

#endif
