#ifndef TESTS_TEMPLATE_SCANNER_H
#define TESTS_TEMPLATE_SCANNER_H

#include "testSupport.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

#include <map>
#include <set>
#include <utility>
#include <vector>

// What one writer makes of a template: its tokens by the place where they have a value, and its loops.
struct DtTemplateRules
{
    using Names = std::set<QString>;

    Names freeTokens;                   // everywhere
    std::map<QString, Names> loops;     // loop to the tokens that it alone sets
    std::map<QString, QString> parents; // loop to the one that it must stand in
    Names verbs;                        // conditions without operands, beside those that every writer has
    bool hasCountedLoops = true;

    bool knows(const QString& token) const
    {
        for (const auto& [loop, tokens] : loops)
            if (tokens.count(token) > 0)
                return true;
        return freeTokens.count(token) > 0;
    }
};

// Reads a template strictly and says what the writer would pass over in silence.
//
// Stricter than the language where the language only surprises: every block has to be closed in the order of opening,
// every operand has to be there, a file block has to name a file, and a bar has to stand where it joins lines.
class DtTemplateScanner
{
public:
    // root: the directory that a path of a file block starts from.
    DtTemplateScanner(const DtTemplateRules& rules, const QString& root) : myRules(rules), myRoot(root) {}

    // The faults of this text and of the files that it includes, one a line: name:line: what is wrong.
    QStringList scan(const QString& name, const QByteArray& text)
    {
        const std::size_t outer = std::exchange(myOuter, myOpen.size());
        const Source outerSource = mySource;
        mySource = {name, QString::fromUtf8(text), 0};
        if (mySource.text.startsWith('|'))
            fault("a bar at the very start is plain text");
        while (mySource.at < mySource.text.size())
            step();
        for (; myOpen.size() > myOuter; myOpen.pop_back())
            fault("the block is not closed: " + myOpen.back().kind + myOpen.back().loop);
        myOuter = outer;
        mySource = outerSource;
        return myFaults;
    }
    const std::set<QString>& includedFiles() const { return myIncluded; }

private:
    struct Source
    {
        QString name;
        QString text;
        int at;
    };
    struct Block
    {
        QString kind; // "<#" or "<?"
        QString loop; // empty for counted loops and conditions
    };

    void fault(const QString& what)
    {
        const int line = mySource.text.leftRef(mySource.at).count('\n') + 1;
        myFaults += QStringLiteral("%1:%2: %3").arg(mySource.name).arg(line).arg(what);
    }
    bool isNext(const char* text) const { return mySource.text.midRef(mySource.at, 2) == QLatin1String(text); }
    bool isCloser(const QString& kind) const { return mySource.text.midRef(mySource.at, 3) == QString(kind + ">"); }

    void step()
    {
        if (isNext("<!"))
            takeToken();
        else if (isNext("<#") || isNext("<?"))
            takeBlock(mySource.text.mid(mySource.at, 2));
        else
        {
            if (isNext("#>") || isNext("?>"))
                fault("the end of a file block stands alone");
            ++mySource.at;
        }
    }

    void takeToken()
    {
        const int end = mySource.text.indexOf("!>", mySource.at);
        const QString token = mySource.text.mid(mySource.at, end + 2 - mySource.at);
        static const QRegularExpression theForm(QStringLiteral("^<![A-Za-z0-9]+!>$"));
        if (end < 0 || !theForm.match(token).hasMatch())
        {
            fault("no token follows <!");
            mySource.at += 2;
            return;
        }
        checkToken(token);
        mySource.at = end + 2;
    }

    void checkToken(const QString& token)
    {
        if (!myRules.knows(token))
            return fault("the writer does not know " + token);
        bool isSet = myRules.freeTokens.count(token) > 0;
        for (const Block& block : myOpen)
            isSet = isSet || (!block.loop.isEmpty() && myRules.loops.at(block.loop).count(token) > 0);
        if (!isSet)
            fault(token + " has no value outside of its loop");
    }

    void takeBlock(const QString& kind)
    {
        if (isCloser(kind))
        {
            if (myOpen.size() == myOuter || myOpen.back().kind != kind)
                fault(kind + "> closes no block");
            else
                myOpen.pop_back();
            mySource.at += 3;
            return;
        }
        const int end = headerEnd(kind.at(1));
        if (end < 0)
        {
            fault("the header has no end");
            mySource.at = mySource.text.size();
            return;
        }
        const QString header = mySource.text.mid(mySource.at + 2, end - mySource.at - 2);
        const Block block{kind, kind == "<#" ? checkLoop(header) : checkCondition(header)};
        mySource.at = end + 1;
        if (mySource.text.at(end) == '>')
            openBlock(block);
        else
            takeFile(block, kind.at(1));
    }

    // As the language finds it: the delimiter, or a ">" that pairs with no "<" ahead of it.
    int headerEnd(QChar delimiter) const
    {
        int depth = 0;
        for (int at = mySource.at + 2; at < mySource.text.size(); ++at)
        {
            const QChar character = mySource.text.at(at);
            if (character == delimiter || (character == '>' && depth == 0))
                return at;
            depth += character == '<' ? 1 : character == '>' ? -1 : 0;
        }
        return -1;
    }

    void openBlock(const Block& block)
    {
        if (mySource.text.midRef(mySource.at, 1) == QLatin1String("|"))
            fault("a bar behind a header is plain text");
        myOpen.push_back(block);
    }

    void takeFile(const Block& block, QChar delimiter)
    {
        const int end = mySource.text.indexOf(delimiter, mySource.at);
        const QString path = mySource.text.mid(mySource.at, end - mySource.at);
        if (end < 0 || mySource.text.midRef(end + 1, 1) != QLatin1String(">"))
            return fault("the path of a file block has no end");
        mySource.at = end + 2;
        if (!path.startsWith("../data/templates/") || !QFile::exists(myRoot + "/" + path))
            return fault("no such file: " + path);
        if (myOpen.size() > 16)
            return fault("a file that includes itself: " + path);
        myIncluded.insert(QString(path).remove(QStringLiteral("../data/templates/")));
        myOpen.push_back(block);
        scan(path, readTextFile(myRoot + "/" + path));
        myOpen.pop_back();
    }

    // The name of the loop; empty for one that counts.
    QString checkLoop(const QString& header)
    {
        static const QRegularExpression theCount(QStringLiteral("^[0-9]+$"));
        if (myRules.hasCountedLoops && theCount.match(header).hasMatch())
            return QString();
        if (myRules.loops.count(header) == 0)
        {
            fault("the writer does not know the loop " + header);
            return QString();
        }
        if (isInside(header))
            fault("the loop stands inside itself: " + header);
        const auto parent = myRules.parents.find(header);
        if (parent != myRules.parents.end() && !isInside(parent->second))
            fault(header + " stands outside of " + parent->second);
        return header;
    }
    bool isInside(const QString& loop) const
    {
        for (const Block& block : myOpen)
            if (block.loop == loop)
                return true;
        return false;
    }

    // A condition sets no token: the answer is empty.
    QString checkCondition(const QString& header)
    {
        static const std::map<QString, int> theOperandCounts = {
            {"exists",      1},
            {"notexists",   1},
            {"greaterthan", 2},
            {"lessthan",    2},
            {"equals",      2},
            {"notequals",   2}
        };
        const QStringList words = header.split(' ', Qt::SkipEmptyParts);
        const auto verb = theOperandCounts.find(header.section(' ', 0, 0));
        if (myRules.verbs.count(header) > 0)
            return QString();
        if (verb == theOperandCounts.end())
            fault("the writer does not know the verb in: " + header);
        else if (words.size() != 1 + verb->second)
            fault("the number of operands is wrong in: " + header);
        else if (verb->second == 1 && theNeverMissing.count(words.at(1)) > 0)
            fault(words.at(1) + " is never missing");
        checkTokensOf(header);
        return QString();
    }
    void checkTokensOf(const QString& header)
    {
        static const QRegularExpression theToken(QStringLiteral("<!(.*?)!>"));
        for (auto each = theToken.globalMatch(header); each.hasNext();)
            checkToken(each.next().captured());
        if (QString(header).remove(theToken).contains("<!"))
            fault("no token follows <! in: " + header);
    }

    // "0" when they do not hold, which exists like anything else.
    const std::set<QString> theNeverMissing = {"<!mapRtiObjectIdToGlobalId!>", "<!DatatypeFile!>"};

    const DtTemplateRules& myRules;
    const QString myRoot;
    Source mySource = {};
    std::vector<Block> myOpen;
    std::size_t myOuter = 0; // blocks of the files that include this one
    QStringList myFaults;
    std::set<QString> myIncluded;
};

#endif
