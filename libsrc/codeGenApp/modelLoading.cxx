#include "codeGenApp/modelLoading.h"

#include "fileGenerator/omtEnvReader.h"
#include "foundation/stringUtils.h"
#include "omtReader/fedReader.h"

namespace
{
DtString mimName(DtFomType type)
{
    return DtFedReader::standardMimFileName(type);
}
// The standard management model is there without a file too.
bool isMim(const DtFilename& file, DtFomType type)
{
    return DtContainsSubstring(file, mimName(type)) && (type != DtFomUnknown || !file.exists());
}
} // namespace

DtModelFormats DtFormatsOf(const std::vector<DtFilename>& files)
{
    DtModelFormats formats;
    DtFomType ofMim = DtFomUnknown;
    for (const DtFilename& file : files)
    {
        const DtFomType type = DtFedReader::checkFomType(file, DtFedReader::openFedFile(file, false), false);
        const bool isThisMim = isMim(file, type);
        formats.hasMim = formats.hasMim || isThisMim;
        DtFomType& kept = isThisMim ? ofMim : formats.first;
        kept = kept == DtFomUnknown ? type : kept;
    }
    if (formats.first == DtFomUnknown)
        formats.first = ofMim;
    return formats;
}

void DtAddMimIfMissing(std::vector<DtFilename>& files, const DtModelFormats& formats)
{
    if (!formats.hasMim)
        files.emplace_back(mimName(formats.first == DtFomUnknown ? DtFomEvolved : formats.first));
}

DtLoadedModel DtLoadModel(const std::vector<DtFilename>& files, bool includeMim)
{
    DtLoadedModel model;
    if (files.empty())
        return model;
    model.files = files;
    const DtModelFormats formats = DtFormatsOf(files);
    model.type = formats.first;
    DtOMTEnvReader reader;
    bool ok = false;
    DtOMTTree* tree = nullptr;
    if (files.size() == 1)
    {
        if (includeMim && model.type >= DtFomEvolved && !formats.hasMim)
            model.files.insert(model.files.begin(), mimName(model.type));
        tree = reader.readMultipleFiles(model.files, ok, model.type);
    }
    else
    {
        if (includeMim)
            DtAddMimIfMissing(model.files, formats);
        // The reader of several files asks for the extension of the first one, which of modules may also be "fdd".
        const bool isXml = files.front().extension() == "xml";
        tree = isXml ? reader.readFiles(model.files, ok) : reader.readMultipleFiles(model.files, ok, model.type);
    }
    model.tree.reset(tree);
    return model;
}
