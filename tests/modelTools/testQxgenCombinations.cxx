// Every combination of layout, script and selection on the sample, and models of many classes.

#include "compiledOutput.h"
#include "qxgenProgram.h"
#include "registerTest.h"

namespace
{
const char theSample[] = QX_SOURCE_DIR "/data/samples/sample.xml";

std::string joined(const std::set<std::string>& texts)
{
    std::string all;
    for (const std::string& text : texts)
        all += text + "\n";
    return all;
}

std::string modelOf(int classes)
{
    QByteArray objects;
    for (int number = 1; number <= classes; ++number)
        objects += objectText("Made" + QByteArray::number(number), attributeText("Speed"));
    return moduleText(objects).toStdString();
}
} // namespace

class TestQxgenCombinations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { myFolder = std::make_unique<DtProgramFolder>(DtTestFolder::memory()); }

    void everyCombinationIsWholeAndTheSameEachTime_data()
    {
        QTest::addColumn<bool>("isClassic");
        QTest::addColumn<QByteArray>("scripts");
        QTest::addColumn<QByteArray>("patterns");
        QTest::addColumn<bool>("withManagement");
        for (const char* scripts : {"cpp", "html", "json", "python", "cpp html json python"})
            for (const char* patterns : {"", "*Ship*", "Answer* Berth", "!*Ship* !Port*"})
                for (const bool isClassic : {false, true})
                    for (const bool withManagement : {false, true})
                        QTest::addRow("%s, %s, %s%s", scripts, patterns, isClassic ? "classic" : "tree",
                                      withManagement ? ", management" : "")
                            << isClassic << QByteArray(scripts) << QByteArray(patterns) << withManagement;
    }
    void everyCombinationIsWholeAndTheSameEachTime()
    {
        QFETCH(bool, isClassic);
        QFETCH(QByteArray, scripts);
        QFETCH(QByteArray, patterns);
        QFETCH(bool, withManagement);
        DtArguments arguments = {theSample, "-o", "out", "--layout", isClassic ? "classic" : "tree"};
        for (const std::string& script : words(scripts))
            arguments.insert(arguments.end(), {"--script", script});
        for (const std::string& pattern : words(patterns))
            arguments.insert(arguments.end(), {"--select", pattern});
        if (withManagement)
            arguments.emplace_back("--with-management");
        const auto isGood = [withManagement](const std::string& end) // some datatypes of that model have no encoding
        { return withManagement ? end.rfind("0\n--\n", 0) == 0 && !contains(end, "error") : end == "0\n--\n"; };
        const std::string end = textOf(myFolder->generate(arguments));
        QVERIFY2(isGood(end), end.c_str());
        const DtContents contents = treeOf(myFolder->path("out"));
        QVERIFY(contents.size() > (scripts.startsWith("cpp") ? 20u : 0u));
        COMPARE_TEXT(machinePaths(contents), "");
        arguments.emplace_back("--verify");
        const std::string second = textOf(myFolder->generate(arguments));
        QVERIFY2(isGood(second), second.c_str());
        for (const auto& file : contents)
            QVERIFY2(contains(file.first, "\\") == isClassic || scripts != "cpp", file.first.c_str());
    }

    void sampleWithEverythingNamesNoMachine()
    {
        const DtContents contents = everythingOfTheSample();
        QVERIFY(contents.size() > 400);
        COMPARE_TEXT(machinePaths(contents), "");
    }

    void programGivesTheSameBytesElsewhere()
    {
        const DtContents expected = everythingOfTheSample();
        const DtProgramFolder other;
        other.write("deeper/sample.xml", readBytes(theSample));
        const DtProgramEnd end =
            other.generate({"deeper/sample.xml", "--dis", "--examples", "--script", "cpp", "--script", "html",
                            "--script", "json", "--script", "python", "-o", "another/place"});
        COMPARE_TEXT(textOf(end), "0\n--\n");
        COMPARE_TEXT(differenceOf(expected, treeOf(other.path("another/place"))), "");
    }

    // Ten times the classes make ten times the files, and no file more.
    void manyClassesMakeFilesInProportion()
    {
        const int few = isFullRun() ? 1000 : 100;
        const std::size_t none = filesFor(0), some = filesFor(few), many = filesFor(10 * few);
        qInfo("%d classes: %zu files", 10 * few, many);
        QVERIFY(some > static_cast<std::size_t>(few));
        QCOMPARE(many - none, 10 * (some - none));
    }

private:
    static std::vector<std::string> words(const QByteArray& text)
    {
        std::vector<std::string> result;
        for (const QByteArray& word : text.split(' '))
            if (!word.isEmpty())
                result.push_back(word.toStdString());
        return result;
    }

    DtContents everythingOfTheSample() const
    {
        const DtProgramEnd end =
            myFolder->generate({theSample, "-o", "out", "--script", "cpp", "--script", "html", "--script", "json",
                                "--script", "python", "--set", "generateDIS=true", "--set", "generateExamples=true"});
        if (textOf(end) != "0\n--\n")
            qFatal("the sample cannot be generated");
        return treeOf(myFolder->path("out"));
    }

    // Files that name a place of this machine.
    std::string machinePaths(const DtContents& contents) const
    {
        std::set<std::string> files;
        for (const auto& [path, content] : contents)
            for (const std::string& place : {std::string(QX_SOURCE_DIR), myFolder->path().parent_path().native(),
                                             std::string(".qxgen-"), std::filesystem::current_path().native()})
                if (contains(content, place))
                    files.insert(path + ": " + place);
        return joined(files);
    }

    std::size_t filesFor(int classes) const
    {
        myFolder->write("made.xml", modelOf(classes));
        if (textOf(myFolder->generate({"made.xml", "-o", "out"})) != "0\n--\n")
            qFatal("the made model cannot be generated");
        const std::size_t count = DtOutputTree(myFolder->path("out")).list().size();
        std::filesystem::remove_all(myFolder->path("out"));
        return count;
    }

    std::unique_ptr<DtProgramFolder> myFolder;
};

QX_REGISTER_TEST(TestQxgenCombinations)
#include "testQxgenCombinations.moc"
