#ifndef CODE_GEN_APP_MODEL_LOADING_H
#define CODE_GEN_APP_MODEL_LOADING_H

#include "foundation/filename.h"
#include "foundation/fomType.h"
#include "omtReader/omtTree.h"

#include <memory>
#include <vector>

// What is known of model files ahead of their reading.
struct DtModelFormats
{
    DtFomType first = DtFomUnknown; // of the first file that has one; the management model's where there is no other
    bool hasMim = false;            // one of them is a standard management model
};

DtModelFormats DtFormatsOf(const std::vector<DtFilename>& files);

// Puts the standard management model of that format behind the files, unless one of them is one. For several files that
// are read as one model; a single file has it ahead.
void DtAddMimIfMissing(std::vector<DtFilename>& files, const DtModelFormats& formats);

// A model that was read without a window.
struct DtLoadedModel
{
    std::unique_ptr<DtOMTTree> tree; // null when the reading failed; the reason went to DtWarn
    std::vector<DtFilename> files;   // as they were read, the management model among them where it was added
    DtFomType type = DtFomUnknown;   // of the files
};

// Reads files as one model, as the window does, with the management model added if wanted. The mapper does not learn
// the model's datatypes here.
DtLoadedModel DtLoadModel(const std::vector<DtFilename>& files, bool includeMim);

#endif
