#ifndef TESTS_REFERENCE_EXPANDER_H
#define TESTS_REFERENCE_EXPANDER_H

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

// The template language told once more, as slowly and literally as it can be: step by step on standard streams, with a
// fresh buffer for every line and one pass of the line for every token. What the writers do is compared with it.
class DtReferenceExpander
{
public:
    struct TooMuch : std::runtime_error
    {
        TooMuch() : std::runtime_error("more steps than a test has time for") {}
    };

    DtReferenceExpander(std::vector<std::pair<std::string, std::string>> tokens, int lineLength)
        : myTokens(std::move(tokens)), myLineLength(lineLength)
    {
    }

    const std::string& output() const { return myOutput; }
    const std::string& warnings() const { return myWarnings; }

    void expand(std::istream& in)
    {
        while (!in.eof() && !in.fail())
        {
            if (++mySteps > 3000)
                throw TooMuch();
            while (in.peek() == '\n')
            {
                in.get();
                if (in.peek() == '|')
                    in.get();
                else
                    myOutput += '\n';
            }
            in.clear();
            std::streamoff position = in.tellg();
            if (position < 0)
                position = 0;
            const std::string buffer = readLine(in);
            const std::size_t loop = buffer.find("<#");
            const std::size_t condition = buffer.find("<?");
            if (loop != none && (condition == none || loop < condition))
                expandBlock(in, position, loop, '#');
            else if (condition != none && (loop == none || condition < loop))
                expandBlock(in, position, condition, '?');
            else
                myOutput += decode(buffer);
        }
    }

    std::string decode(std::string line) const
    {
        for (const auto& [token, value] : myTokens)
            for (std::size_t at = line.find(token); at != none; at = line.find(token, at + value.size()))
                line.replace(at, token.size(), value);
        return line;
    }

private:
    static constexpr std::size_t none = std::string::npos;

    std::string readLine(std::istream& in) const
    {
        std::vector<char> buffer(static_cast<std::size_t>(myLineLength), '\0');
        in.get(buffer.data(), myLineLength);
        return buffer.data();
    }

    static void readCount(std::istream& in, std::size_t count)
    {
        std::vector<char> buffer(count + 1);
        in.read(buffer.data(), static_cast<std::streamsize>(count));
    }

    void expandBlock(std::istream& in, std::streamoff position, std::size_t length, char delimiter)
    {
        in.clear();
        in.seekg(position);
        if (length > 0)
        {
            std::vector<char> text(length + 1, '\0');
            in.read(text.data(), static_cast<std::streamsize>(length));
            myOutput += decode(text.data());
        }
        handle(in, delimiter);
    }

    void handle(std::istream& in, char delimiter)
    {
        std::streampos linePosition = in.tellg();
        std::string line = readLine(in);
        std::string header;
        std::size_t start = 2;
        int depth = 0;
        std::size_t end = headerEnd(line, start, delimiter, depth);
        header = line.substr(start, end == none ? none : end - start);
        while (end == none)
        {
            if (in.eof() || in.fail())
            {
                myWarnings += "Problem Handling For Loop in line: " + line;
                return;
            }
            while (in.peek() == '\n')
                in.get();
            linePosition = in.tellg();
            line = readLine(in);
            end = headerEnd(line, 0, delimiter, depth);
            header += line.substr(0, end);
        }
        if (line[end] == '>')
        {
            std::stringstream body;
            collect(line, end + 1, in, linePosition, delimiter, body);
            expandBody(header, body, delimiter);
        }
        else
        {
            std::ifstream file;
            open(line, end + 1, in, linePosition, delimiter, file);
            file.seekg(0);
            expandBody(header, file, delimiter);
        }
    }

    static std::size_t headerEnd(const std::string& line, std::size_t start, char delimiter, int& depth)
    {
        std::size_t end = line.find(delimiter, start);
        std::size_t less = line.find('<', start);
        std::size_t greater = line.find('>', start);
        while (less != none || greater != none)
        {
            if (less != none && (greater == none || !(greater < less)))
            {
                ++depth;
                less = line.find('<', less + 1);
            }
            else
            {
                if (depth == 0)
                    break;
                --depth;
                greater = line.find('>', greater + 1);
            }
        }
        if (depth == 0 && ((greater != none && end != none && greater < end) || end == none))
            end = greater;
        return end;
    }

    void collect(std::string& line, std::size_t start, std::istream& in, std::streampos& linePosition, char delimiter,
                 std::stringstream& body) const
    {
        const std::string opening = std::string("<") + delimiter;
        const std::string closing = std::string(1, delimiter) + ">";
        std::string text;
        int depth = 0;
        std::size_t p = line.find(opening, start);
        std::size_t q = line.find(closing, start);
        while (!(p != none && q != none && q == p + 1 && !(depth > 0)))
        {
            if (p == none && q == none)
            {
                if (in.eof() || in.fail())
                    break;
                text += line.substr(start);
                while (in.peek() == '\n')
                {
                    in.get();
                    text += '\n';
                }
                linePosition = in.tellg();
                line = readLine(in);
                p = line.find(opening, 0);
                q = line.find(closing, 0);
                start = 0;
            }
            else if (p != none && (q == none || q > p + 1))
            {
                ++depth;
                p = line.find(opening, p + 2);
            }
            else
            {
                --depth;
                if (p != none)
                    p = line.find(opening, q + 2);
                q = line.find(closing, q + 2);
            }
        }
        text += p == none ? line.substr(start) : line.substr(start, p - start);
        in.clear();
        in.seekg(linePosition);
        readCount(in, q + 2); // one character when there is no terminator
        body.str(text);
    }

    void open(std::string& line, std::size_t start, std::istream& in, std::streampos& linePosition, char delimiter,
              std::ifstream& file)
    {
        std::size_t end = line.find(delimiter, start);
        std::string path = line.substr(start, end == none ? none : end - start);
        while (end == none)
        {
            if (in.eof() || in.fail())
            {
                myWarnings += "Problem Handling For Loop in line: " + line;
                return;
            }
            line = "";
            while (in.peek() == '\n')
                in.get();
            linePosition = in.tellg();
            line = readLine(in);
            end = line.find(delimiter, 0);
            path += line.substr(0, end);
        }
        while (!path.empty() && path.back() == ' ')
            path.pop_back();
        in.clear();
        in.seekg(linePosition);
        readCount(in, end + 2);
        if (!path.empty())
            file.open(path);
    }

    void expandBody(const std::string& header, std::istream& body, char delimiter)
    {
        if (delimiter == '#')
            repeat(header, body);
        else if (holds(header))
            expand(body);
    }

    void repeat(const std::string& header, std::istream& body)
    {
        const int count = std::atoi(header.c_str());
        if (count < 1)
            return;
        const std::streampos position = body.tellg();
        for (int i = 0; i < count; ++i)
        {
            body.clear();
            body.seekg(position);
            expand(body);
        }
    }

    static std::string withoutLeading(std::string text)
    {
        while (!text.empty() && text.front() == ' ')
            text.erase(0, 1);
        return text;
    }

    bool holds(const std::string& header) const
    {
        if (withoutLeading(header).empty())
            return false;
        const std::size_t blank = header.find(' ');
        const std::string verb = header.substr(0, blank);
        std::string rest = withoutLeading(blank == none ? header : header.substr(blank + 1));
        while (!rest.empty() && rest.back() == ' ')
            rest.pop_back();
        const std::string whole = decode(rest);
        const std::size_t second = rest.find(' ');
        const std::string left = decode(rest.substr(0, second));
        const std::string right = decode(second == none ? rest : withoutLeading(rest.substr(second + 1)));
        if (verb == "exists")
            return !whole.empty() && whole[0] != '<';
        if (verb == "notexists")
            return whole.empty() || whole[0] == '<';
        if (verb == "greaterthan")
            return std::atoi(left.c_str()) > std::atoi(right.c_str());
        if (verb == "lessthan")
            return std::atoi(left.c_str()) < std::atoi(right.c_str());
        if (verb == "equals")
            return left == right;
        return verb == "notequals" && left != right;
    }

    std::vector<std::pair<std::string, std::string>> myTokens;
    int myLineLength;
    std::string myOutput;
    std::string myWarnings;
    int mySteps = 0;
};

#endif
