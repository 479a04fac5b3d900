#include "modelTools/settingsRenewal.h"

#include "qxgenProgram.h"
#include "registerTest.h"

namespace
{
std::string configuration(const std::string& lists)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE codeGenConfig SYSTEM \"codeGenConfig.dtd\">\n"
           "<codeGenConfig>\n" +
           lists + "</codeGenConfig>\n";
}

const char theShipped[] = "    <defaults>\n"
                          "        <!--A word on it.-->\n"
                          "        <var name=\"prefixName\" value=\"\"/>\n"
                          "        <var name=\"newKey\" value=\"7\"/>\n"
                          "        <scripts>\n"
                          "            <var name=\"genCpp.txt\" value=\"true\"/>\n"
                          "            <var name=\"genNew.txt\" value=\"false\"/>\n"
                          "        </scripts>\n"
                          "    </defaults>\n";
} // namespace

class TestSettingsRenewal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { myFolder.write("shipped.xml", configuration(theShipped)); }

    void newKeysAreAddedAndAllElseStays()
    {
        COMPARE_TEXT(renewed("    <defaults>\n"
                             "        <!--My own.-->\n"
                             "        <var name=\"prefixName\" value=\"Mine\"/>\n"
                             "        <var name=\"oldKey\" value=\"1\"/>\n"
                             "        <scripts>\n"
                             "            <var name=\"genCpp.txt\" value=\"false\"/>\n"
                             "        </scripts>\n"
                             "    </defaults>\n"
                             "    <user>\n"
                             "        <var name=\"newKey\" value=\"8\"/>\n"
                             "    </user>\n"),
                     configuration("    <defaults>\n"
                                   "        <!--My own.-->\n"
                                   "        <var name=\"prefixName\" value=\"Mine\"/>\n"
                                   "        <var name=\"oldKey\" value=\"1\"/>\n"
                                   "        <scripts>\n"
                                   "            <var name=\"genCpp.txt\" value=\"false\"/>\n"
                                   "            <var name=\"genNew.txt\" value=\"false\"/>\n"
                                   "        </scripts>\n"
                                   "        <var name=\"newKey\" value=\"7\"/>\n"
                                   "    </defaults>\n"
                                   "    <user>\n"
                                   "        <var name=\"newKey\" value=\"8\"/>\n"
                                   "    </user>\n")
                         .c_str());
    }

    void listsThatAreMissingAreAddedAsAWhole()
    {
        const std::string text =
            renewed("    <user>\n        <var name=\"prefixName\" value=\"Mine\"/>\n    </user>\n");
        QVERIFY(contains(text, "genNew.txt") && contains(text, "newKey") && contains(text, "Mine"));
    }

    void fileWithAllKeysIsNotTouched()
    {
        const std::string own = "<codeGenConfig><defaults><var name='prefixName' value='Mine'/>"
                                "<var name='newKey' value='9'/><scripts><var name='genNew.txt' value='true'/>"
                                "<var name='genCpp.txt' value='true'/></scripts></defaults></codeGenConfig>";
        myFolder.write("user.xml", own);
        renew();
        COMPARE_TEXT(myFolder.text("user.xml"), own.c_str());
    }

    void fileThatCannotBeReadIsLeftAlone()
    {
        for (const char* text : {"", "<codeGenConfig>", "no configuration"})
        {
            myFolder.write("user.xml", text);
            renew();
            COMPARE_TEXT(myFolder.text("user.xml"), text);
        }
        std::filesystem::remove(myFolder.path("user.xml"));
        renew();
        QVERIFY(!std::filesystem::exists(myFolder.path("user.xml")));
        myFolder.write("user.xml", configuration(""));
        myFolder.write("shipped.xml", "<codeGenConfig>");
        renew();
        COMPARE_TEXT(myFolder.text("user.xml"), configuration("").c_str());
    }

    // The starter of the window asks for it so.
    void programRenewsSettings()
    {
        myFolder.write("user.xml", configuration(""));
        COMPARE_TEXT(textOf(myFolder.run({"renew-settings", "shipped.xml", "user.xml"})), "0\n--\n");
        QVERIFY(contains(myFolder.text("user.xml"), "newKey"));
    }

private:
    void renew() const { DtRenewSettings(myFolder.path("shipped.xml").native(), myFolder.path("user.xml").native()); }
    std::string renewed(const std::string& lists) const
    {
        myFolder.write("user.xml", configuration(lists));
        renew();
        return myFolder.text("user.xml");
    }

    DtProgramFolder myFolder;
};

QX_REGISTER_TEST(TestSettingsRenewal)
#include "testSettingsRenewal.moc"
