#include "foundation/mtlReader.h"

#include "foundation/mtlScanner.h"
#include "foundation/stringUtils.h"

#include <vector>

char* DtMtlReadEscapeChar = nullptr;

namespace
{
char theBackslash = '\\';

// A list whose closing parenthesis is still to come.
//
// Whether "." makes a dotted pair shows only at the end of the list: it does when it is the last element but one. Then
// the pair ahead of it gets the last element as its tail, which is why the last three pairs are known.
class DtOpenList
{
public:
    void append(DtlObjPtr object)
    {
        auto* pair = new DtlPair(std::move(object));
        DtlObjPtr link(pair);
        if (myLast == nullptr)
            myFirst = std::move(link);
        else
            myLast->setTail(std::move(link));
        myThirdLast = mySecondLast;
        mySecondLast = myLast;
        myLast = pair;
    }

    DtlObjPtr close()
    {
        if (myThirdLast != nullptr && isPoint(mySecondLast->head()))
            myThirdLast->setTail(DtlObjPtr(myLast->head()));
        return std::move(myFirst);
    }

private:
    static bool isPoint(const DtlObjPtr& object) { return DtcSymbolp(object) != 0 && object->string() == "."; }

    DtlObjPtr myFirst;
    DtlPair* myLast = nullptr; // the last three pairs, null as far as there are fewer
    DtlPair* mySecondLast = nullptr;
    DtlPair* myThirdLast = nullptr;
};

bool isInteger(const std::string& word)
{
    const std::size_t start = word[0] == '-' || word[0] == '+' ? 1 : 0;
    for (std::size_t at = start; at < word.size(); ++at)
        if (!DtIsDigit(word[at]))
            return false;
    return word.size() > start;
}

DtlObjPtr internName(const DtString& name, const DtlObjPtr& env)
{
    if (env->kind() != DtlObj::Kind::SymbolTable)
        return DtcMakeSymbol(name);
    return static_cast<DtlSymbolTable&>(*env).intern(name);
}

DtlObjPtr atomOfWord(const DtString& word, const DtlObjPtr& env)
{
    if (isInteger(word.stdString()))
        return DtlObjPtr(new DtlAtom(DtlObj::Kind::Integer, word));
    return internName(word, env);
}

DtlObjPtr atomOf(DtMtlToken token, const DtString& text, const DtlObjPtr& env)
{
    if (token == DtMtlToken::Text)
        return DtlObjPtr(new DtlAtom(DtlObj::Kind::String, text));
    return atomOfWord(text, env);
}

DtlObjPtr closeInnermost(std::vector<DtOpenList>& lists)
{
    DtlObjPtr list = lists.back().close();
    lists.pop_back();
    return list;
}

// Closes all lists when the input ends within them, and gives the outermost one.
DtlObjPtr closeAll(std::vector<DtOpenList>& lists, DtlInputStream& stream)
{
    stream.setEndedEarly();
    DtlObjPtr list = closeInnermost(lists);
    while (!lists.empty())
    {
        lists.back().append(std::move(list));
        list = closeInnermost(lists);
    }
    return list;
}
} // namespace

DtMtlBackslashEscapes::DtMtlBackslashEscapes()
{
    DtMtlReadEscapeChar = &theBackslash;
}

const char* DtMtlBackslashEscapes::character()
{
    return &theBackslash;
}

DtlObjPtr DtcIntern(const char* name, const DtlObjPtr& env)
{
    return internName(name, env);
}

// One pass over the tokens. The lists that are open at a moment stand in a stack, the innermost last; an object that is
// complete, an atom or a list that has just been closed, goes to the end of the innermost one, and is the result when
// there is none. The stack is not the program's own, since a file may nest lists to any depth.
DtlObjPtr DtcRead(DtlInputStream* stream, const DtlObjPtr& env)
{
    DtMtlScanner scanner(*stream, DtMtlReadEscapeChar);
    std::vector<DtOpenList> lists;
    while (true)
    {
        const DtMtlToken token = scanner.next();
        if (token == DtMtlToken::Open)
        {
            lists.emplace_back();
            continue;
        }
        if (token == DtMtlToken::End)
            return lists.empty() ? DtcIntern("eof", env) : closeAll(lists, *stream);
        if (token == DtMtlToken::Close && lists.empty())
            continue;
        DtlObjPtr object = token == DtMtlToken::Close ? closeInnermost(lists) : atomOf(token, scanner.text(), env);
        if (lists.empty())
            return object;
        lists.back().append(std::move(object));
    }
}
