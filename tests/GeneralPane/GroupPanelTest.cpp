// Panels for the groups of a PPD that no bundle was made for.
#include "Dialog.h"

#include <clocale>

using namespace support;

namespace {

/// An office printer's. A custom choice comes behind its option, as the library wants it.
PPDText office()
{
    PPDText ppd;
    ppd.line("*OpenGroup: Output/Paper and Output")
        .option("InputSlot", "Tray", "Upper", {{"Upper", "Upper Tray"}, {"Lower", "Lower & Stand"}})
        .option("Duplex", "2-Sided", "None", {{"None", "No"}, {"Long", "Long Edge"}, {"Short", "Short Edge"}})
        .option("Binding", "Binding Margin", "None", {{"None", "None"}, {"Narrow", "Narrow"}})
        .line("*CustomBinding True: \"x\"")
        .line("*ParamCustomBinding Width: 1 points 14.173 85.04")
        .line("*CloseGroup: Output")
        .line("*OpenGroup: Quality/Quality")
        .line("*OpenUI *Smooth/Smooth Edges: Boolean\n*DefaultSmooth: True\n*Smooth True/On: \"x\"\n"
              "*Smooth False/Off: \"x\"\n*CloseUI: *Smooth")
        .option("Density", "Density Level", "5", {{"5", "Normal"}, {"7", "Dark"}})
        .line("*CustomDensity True: \"x\"")
        .line("*ParamCustomDensity Level: 1 int 1 9")
        .line("*OpenUI *Finish/Finishing: PickMany\n*DefaultFinish: None\n*Finish None/None: \"x\"\n"
              "*Finish Staple/Staple: \"x\"\n*Finish Punch/Punch: \"x\"\n*CloseUI: *Finish")
        .line("*CloseGroup: Quality")
        .line("*UIConstraints: *Duplex Short *InputSlot Lower\n*UIConstraints: *InputSlot Lower *Duplex Short");
    return ppd;
}

class GroupPanel : public DialogTest
{
protected:
    void open(const PPDText &ppd, QJsonObject more = {})
    {
        more["bundle"] = QN_GENERAL_BUNDLE_DIR;
        Dialog::open(ppd, "A4", more);
        m_panels.clear();
        for (const QJsonValue &each : reply()["panels"].toArray())
            m_panels.append(each.toString());
    }
    QString name(const QString &panel)
    {
        request({{"do", "name"}, {"panel", panel}});
        return reply()["result"].toString();
    }
    QStringList keys(const QString &panel)
    {
        request({{"do", "keys"}, {"panel", panel}});
        return reply()["result"].toVariant().toStringList();
    }
    QString kind(const QString &control) const { return this->control(control)["kind"].toString(); }

    QStringList m_panels;
};

TEST_F(GroupPanel, IsThereForEveryGroupThatHasOptionsForAPerson)
{
    open(office().line("*OpenGroup: Empty/Empty").line("*CloseGroup: Empty"));
    EXPECT_EQ(m_panels, QStringList({"Output", "Quality"}));
    EXPECT_EQ(name("Output"), "Paper and Output");
    EXPECT_EQ(keys("Output"), QStringList({"InputSlot", "Duplex", "Binding"}));
    EXPECT_EQ(keys("Quality"), QStringList({"Smooth", "Density", "Finish"}));
}

TEST_F(GroupPanel, OfWhatIsInstalledComesLast)
{
    open(PPDText()
             .line("*OpenGroup: InstallableOptions/Options Installed")
             .option("Option1", "Duplexer", "False", {{"False", "Not Installed"}, {"True", "Installed"}})
             .line("*CloseGroup: InstallableOptions")
             .line("*OpenGroup: Quality/Quality")
             .option("Density", "Density", "A", {{"A", "a"}, {"B", "b"}})
             .line("*CloseGroup: Quality"));
    EXPECT_EQ(m_panels, QStringList({"Quality", "InstallableOptions"}));
}

TEST_F(GroupPanel, LeavesOutWhatIsNoneOfAPersonsBusiness)
{
    open(PPDText()
             .line("*OpenGroup: All/All")
             .option("Shown", "Shown", "A", {{"A", "a"}, {"B", "b"}})
             .option("Collate", "Collate", "A", {{"A", "a"}, {"B", "b"}})
             .option("mirror", "Mirror", "A", {{"A", "a"}, {"B", "b"}})
             .option("page-top", "Top Margin", "A", {{"A", "a"}, {"B", "b"}})
             .option("xxSingle", "A Single Choice", "A", {{"A", "a"}})
             .line("*OpenUI *xxInternal: PickOne\n*DefaultxxInternal: A\n*xxInternal A: \"x\"\n*xxInternal B: \"x\"\n"
                   "*CloseUI: *xxInternal")
             .line("*CloseGroup: All"));
    EXPECT_EQ(m_panels, QStringList{"All"}); // and none with the size of the paper, which the dialog asks for itself
    EXPECT_EQ(keys("All"), QStringList{"Shown"});
}

TEST_F(GroupPanel, LeavesOutCustomValuesThatCanNotBeEntered)
{
    open(PPDText()
             .line("*OpenGroup: All/All")
             .option("Text", "Text", "A", {{"A", "a"}, {"B", "b"}})
             .line("*CustomText True: \"x\"\n*ParamCustomText Words: 1 string 9 8")
             .option("Area", "Area", "A", {{"A", "a"}, {"B", "b"}})
             .line("*CustomArea True: \"x\"\n*ParamCustomArea Width: 1 points 0 72\n"
                   "*ParamCustomArea Height: 2 points 0 72")
             .option("Profile", "Profile", "A", {{"A", "a"}, {"Custom", "Of the printer"}})
             .line("*CloseGroup: All"));
    show("All");
    EXPECT_EQ(titles("Text"), QStringList({"a", "b"}));
    EXPECT_EQ(titles("Area"), QStringList({"a", "b"}));
    EXPECT_EQ(titles("Profile"), QStringList({"a", "Of the printer"})); // a choice like any other
    pick("Profile", 1);
    EXPECT_EQ(marks(), (Marks{{"Profile", "_Custom"}})); // what the library calls a listed one
}

TEST_F(GroupPanel, ShowsAnOptionAsWhatItIs)
{
    open(office());
    show("Output");
    EXPECT_EQ(kind("InputSlot"), "popup");
    EXPECT_EQ(text("InputSlot.label"), "Tray:");
    EXPECT_EQ(titles("InputSlot"), QStringList({"Upper Tray", "Lower & Stand"}));
    EXPECT_EQ(selected("Duplex"), 0);
    show("Quality");
    EXPECT_EQ(kind("Smooth"), "check");
    EXPECT_EQ(control("Smooth")["title"], "Smooth Edges");
    EXPECT_EQ(control("Smooth")["state"], 1);
    EXPECT_EQ(kind("Finish"), "radio");
    EXPECT_EQ(control("Finish")["rows"], QJsonValue(QJsonArray({"None", "Staple", "Punch"})));
    EXPECT_EQ(selected("Finish"), 0);
}

TEST_F(GroupPanel, MarksWhatAPersonChooses)
{
    open(office());
    show("Output");
    pick("InputSlot", 1);
    EXPECT_EQ(marks(), (Marks{{"InputSlot", "Lower"}}));
    show("Quality");
    click("Smooth");
    EXPECT_EQ(marks(), (Marks{{"Smooth", "False"}}));
    click("Smooth");
    EXPECT_EQ(marks(), (Marks{{"Smooth", "True"}}));
    row("Finish", 1);
    row("Finish", 2);
    EXPECT_EQ(marked("Finish"), "Punch");
    EXPECT_EQ(job()["Finish"], "Punch");
    row("Finish", 0);
    EXPECT_FALSE(job().contains("Finish"));
}

TEST_F(GroupPanel, MarksNothingByBeingShown)
{
    open(office(), {{"defaults", QJsonObject{{"Duplex", "Long"}, {"Density", "Custom.3"}}}});
    EXPECT_TRUE(marks().empty());
    for (const char *panel : {"Output", "Quality", "Output"}) {
        show(panel);
        EXPECT_TRUE(marks().empty());
    }
    EXPECT_EQ(selected("Duplex"), 1);
    show("Quality");
    EXPECT_EQ(text("Density.amount"), "3");
}

TEST_F(GroupPanel, ShowsWhatAConstraintHasMoved)
{
    open(office());
    show("Output");
    pick("InputSlot", 1);
    pick("Duplex", 2);
    EXPECT_EQ(marked("InputSlot"), "Upper");
    EXPECT_EQ(selected("InputSlot"), 0);
}

TEST_F(GroupPanel, ShowsLengthsInMillimetresOrInchesAndMarksPoints)
{
    open(office());
    show("Output");
    EXPECT_EQ(titles("Binding").size(), 3);
    pick("Binding", 2);
    EXPECT_EQ(marked("Binding"), "Custom.14.173"); // the smallest
    EXPECT_EQ(text("Binding.amount"), "5");
    EXPECT_EQ(text("Binding.range"), "mm (5 to 30)");
    type("10,5", "Binding.amount");
    EXPECT_EQ(job()["Binding"], "Custom.29.7638");
    open(office(), {{"locale", "en_US"}});
    show("Output");
    pick("Binding", 2);
    EXPECT_EQ(text("Binding.range"), "in (0.2 to 1.18)");
    type("1", "Binding.amount");
    EXPECT_EQ(job()["Binding"], "Custom.72");
}

TEST_F(GroupPanel, HasTheFieldOfAnAmountWhileThatIsChosen)
{
    open(office());
    show("Quality");
    const auto isRefused = [this] {
        request({{"do", "type"}, {"panel", "Quality"}, {"control", "Density.amount"}, {"text", "4"}});
        return !reply()["ok"].toBool();
    };
    EXPECT_TRUE(isRefused());
    pick("Density", 2);
    EXPECT_FALSE(isRefused());
    EXPECT_EQ(marked("Density"), "Custom.4");
    pick("Density", 1);
    EXPECT_TRUE(isRefused());
    EXPECT_EQ(marked("Density"), "7");
    pick("Density", 2);
    EXPECT_EQ(marked("Density"), "Custom.4"); // as it was
}

TEST_F(GroupPanel, LeavesAnAmountAsItIsWritten)
{
    open(office());
    show("Output");
    pick("Binding", 2);
    for (const char *text : {"2", "20", "20.", "20.0", ""}) {
        type(text, "Binding.amount");
        EXPECT_EQ(this->text("Binding.amount"), text);
    }
    EXPECT_EQ(marked("Binding"), "Custom.56.6929"); // the last that was one
}

TEST_F(GroupPanel, RefusesToPrintAnAmountOutOfItsRange)
{
    open(office());
    show("Quality");
    pick("Density", 2);
    for (const char *wrong : {"0", "10", "4.5", "", "x", "1e400"}) {
        type(wrong, "Density.amount");
        EXPECT_TRUE(marks().empty()) << wrong;
        EXPECT_FALSE(print()) << wrong;
        ASSERT_EQ(alerts(), 1);
        EXPECT_EQ(alert()["message"], "The amount is not supported.");
        EXPECT_EQ(alert()["informative"], "Density Level: 1 to 9");
    }
    type("9", "Density.amount");
    EXPECT_TRUE(print());
}

TEST_F(GroupPanel, TakesTheLimitsThatItShows)
{
    open(PPDText()
             .line("*OpenGroup: All/All")
             .option("Width", "Width", "A", {{"A", "a"}})
             .line("*CustomWidth True: \"x\"\n*ParamCustomWidth Width: 1 points 283.46 841.88")
             .line("*CloseGroup: All"));
    show("All");
    pick("Width", 1);
    EXPECT_EQ(text("Width.range"), "mm (100 to 296.9)"); // 297.0 would be a hair too much
    for (const char *limit : {"100", "296.9"}) {
        type(limit, "Width.amount");
        EXPECT_EQ(marks().size(), 1U) << limit;
        EXPECT_TRUE(print()) << limit;
    }
}

TEST_F(GroupPanel, SaysWhatItsOptionsAreMarkedWith)
{
    open(office(), {{"language", "en"}});
    show("Output");
    pick("Binding", 2);
    const QJsonObject summary = this->summary("Output");
    EXPECT_EQ(summary["Tray"], "Upper Tray");
    EXPECT_EQ(summary["Binding Margin"], "5 mm");
}

TEST_F(GroupPanel, SpeaksTheLanguageOfThePPDThenOfTheBundle)
{
    std::setlocale(LC_ALL, "C"); // then the library goes by the environment: it keeps translations of one language
    qputenv("LANG", "de_DE.UTF-8");
    open(PPDText()
             .line("*cupsLanguages: \"en de\"")
             .line("*OpenGroup: Quality/Quality")
             .option("Toner", "Toner", "A", {{"A", "Much"}, {"B", "Off"}})
             .option("MediaType", "Media Type", "A", {{"A", "Plain Paper"}, {"B", "Own"}})
             .line("*CloseGroup: Quality")
             .line("*de.Translation Quality/Güte: \"\"")
             .line("*de.Translation Toner/Tonermenge: \"\"")
             .line("*de.Toner A/Viel: \"\""),
         {{"language", "de_AT"}});
    EXPECT_EQ(name("Quality"), "Güte");
    show("Quality");
    EXPECT_EQ(text("Toner.label"), "Tonermenge:");
    EXPECT_EQ(titles("Toner"), QStringList({"Viel", "Aus"}));
    EXPECT_EQ(text("MediaType.label"), "Papierart:");
    EXPECT_EQ(titles("MediaType"), QStringList({"Normalpapier", "Own"}));
}

TEST_F(GroupPanel, DoesNotTakeTheOneForAnother)
{
    open(office());
    request({{"do", "show"}, {"panel", "nosuch"}});
    EXPECT_FALSE(reply()["ok"].toBool(true));
    open(PPDText()); // of papers only
    EXPECT_TRUE(m_panels.isEmpty());
    EXPECT_TRUE(print());
}

} // namespace
