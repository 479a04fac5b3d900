#ifndef MODEL_TOOLS_SETTINGS_RENEWAL_H
#define MODEL_TOOLS_SETTINGS_RENEWAL_H

#include <string>

// The window reads the user's configuration in place of the shipped one, whose defaults it holds a copy of. A key that
// is new in the shipped one would be missing there, so it is added to that copy; everything else stays as it is.
// A configuration that cannot be read is left alone: the window puts it aside. Throws DtOutputException when the user's
// configuration cannot be written.
void DtRenewSettings(const std::string& shippedFile, const std::string& userFile);

#endif
