#ifndef CODE_GEN_APP_CUSTOM_CODE_TEXT_H
#define CODE_GEN_APP_CUSTOM_CODE_TEXT_H

#include <QtCore/QString>

// A text that goes through an editor, which knows line feeds only. It comes out with the line ends that it came with,
// and one that was not changed comes out as it was, mixed line ends included.
struct DtCustomCodeText
{
    QString original; // with its own line ends
    QString edited;   // with line feeds
    bool isEdited = false;

    // Starts anew from this text, unedited.
    void setOriginal(const QString& text);
    bool differs() const;
    QString toSave() const;
};

#endif
