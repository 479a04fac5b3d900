#include "foundation/mtlScanner.h"

#include "foundation/stringUtils.h"

namespace
{
bool isSpace(int byte)
{
    return byte != EOF && DtIsSpace(static_cast<char>(byte));
}

bool endsWord(int byte)
{
    return byte == EOF || byte == '(' || byte == ')' || byte == '"' || isSpace(byte);
}

int escaped(int byte)
{
    switch (byte)
    {
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    case 't':
        return '\t';
    default:
        return byte;
    }
}
} // namespace

DtMtlToken DtMtlScanner::next()
{
    myText.clear();
    skipBlanksAndComments();
    switch (myStream.peek())
    {
    case EOF:
        return DtMtlToken::End;
    case '(':
        myStream.get();
        return DtMtlToken::Open;
    case ')':
        myStream.get();
        return DtMtlToken::Close;
    case '"':
        myStream.get();
        readText();
        return DtMtlToken::Text;
    default:
        readWord();
        return DtMtlToken::Word;
    }
}

void DtMtlScanner::skipBlanksAndComments()
{
    bool isInComment = false;
    while (isSpace(myStream.peek()) || myStream.peek() == ';' || (isInComment && myStream.peek() != EOF))
    {
        const int byte = myStream.get();
        isInComment = byte == ';' || (isInComment && byte != '\n' && byte != '\r');
    }
}

void DtMtlScanner::readText()
{
    for (int byte = myStream.get(); byte != '"'; byte = myStream.get())
    {
        const bool isEscaped = isEscape(byte);
        if (isEscaped)
            byte = escaped(myStream.get());
        if (byte == EOF)
        {
            myStream.setEndedEarly();
            return;
        }
        keep(byte);
    }
}

void DtMtlScanner::readWord()
{
    while (!endsWord(myStream.peek()))
        keep(myStream.get());
}

void DtMtlScanner::keep(int byte)
{
    if (myText.size() < myTextLimit)
        myText += static_cast<char>(byte);
}
