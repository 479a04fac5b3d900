#ifndef OMT_READER_STANDARD_MIM_H
#define OMT_READER_STANDARD_MIM_H

// The standard management models as XML texts, each followed by a zero octet that its length does not count. They are
// made at build time from HLAstandardMIM-2010.xml and HLAstandardMIM-2025.xml.

// IEEE 1516-2010
extern const unsigned char theHLAeStandardMIM_xml[];
extern const unsigned int theHLAeStandardMIM_xml_len;

// IEEE 1516-2025, with CR LF line ends
extern const unsigned char theHLA4StandardMIM_xml[];
extern const unsigned int theHLA4StandardMIM_xml_len;

#endif
