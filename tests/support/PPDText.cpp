// PPD files made for one test.
#include "PPDText.h"

#include <QFile>
#include <QTemporaryDir>

#include <array>

namespace support {

namespace {

constexpr auto kHead = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*LanguageVersion: English
*LanguageEncoding: UTF-8
*PCFileName: "QNTEST.PPD"
*Manufacturer: "Qn"
*Product: "(Qn Test)"
*ShortNickName: "Qn Test"
*NickName: "Qn Test"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: False
*DefaultColorSpace: Gray
*FileSystem: False
*Throughput: "1"
*LandscapeOrientation: Plus90
*TTRasterizer: Type42
)ppd";

struct StandardOption
{
    const char *keyword;
    const char *hidden;
    const char *text;
    const char *standard;
    std::vector<std::pair<QByteArray, QByteArray>> choices;
};

const std::vector<StandardOption> &standardOptions()
{
    static const std::vector<StandardOption> options{
        {"QnDensity",
         "QnDensityObjHidden",
         "Print Density",
         "DHome",
         {{"DHome", "Use Printer Setting"},
          {"D0", "Level 0 (Lightest)"},
          {"D1", "Level 1"},
          {"D2", "Level 2"},
          {"D3", "Level 3"},
          {"D4", "Level 4"},
          {"D5", "Level 5"},
          {"D6", "Level 6"},
          {"D7", "Level 7"},
          {"D8", "Level 8"},
          {"D9", "Level 9"},
          {"D10", "Level 10 (Darkest)"}}},
        {"QnSpeed",
         "QnSpeedObjHidden",
         "Print Speed",
         "SHome",
         {{"SHome", "Use Printer Setting"}, {"S0", "Slow"}, {"S1", "Normal"}, {"S2", "Fast"}, {"S3", "Fastest"}}},
        {"QnMedia",
         "QnMediaObjHidden",
         "Paper Type",
         "Thermal",
         {{"Thermal", "Thermal Paper"}, {"ThermalCopy", "Thermal Copy Paper"}}},
        {"QnFormFeedMode",
         "QnFormFeedModeObjHidden",
         "Form Feed",
         "FF0",
         {{"FF0", "No Form Feed"}, {"FF1", "Fixed Page Length"}, {"FF2", "End of Page"}, {"FF3", "Retract Paper"}}},
        {"QnPaperFeed",
         "QnPaperFeedObjHidden",
         "Paper Feed",
         "Feed0",
         {{"Feed0", "None"}, {"Feed1", "1/2 inch"}, {"Feed2", "1 inch"}, {"Feed3", "1-1/2 inch"}, {"Feed4", "2 inch"}}},
        {"QnPerforated", "QnPerforatedObjHidden", "Perforated Paper", "OFF", {{"OFF", "Off"}, {"ON", "On"}}},
        {"QnHalftonePattern",
         nullptr,
         "Halftone",
         "Dither",
         {{"Binary", "Binary"}, {"Dither", "Dither"}, {"ErrorDiffusion", "Error Diffusion"}}},
        {"QnReversal", "QnReversalObjHidden", "Reverse Black and White", "OFF", {{"OFF", "Off"}, {"ON", "On"}}},
        {"QnMirror", "QnMirrorObjHidden", "Mirror Image", "OFF", {{"OFF", "Off"}, {"ON", "On"}}},
        {"QnBiDiPrint", "QnBiDiPrintObjHidden", "Bi-directional Printing", "OFF", {{"OFF", "Off"}, {"ON", "On"}}},
        {"QnRollPrinterCase",
         "QnRollPrinterCaseHidden",
         "Roll Printer Case",
         "Default",
         {{"Default", "Printer Default"},
          {"Off", "Not Used"},
          {"On", "Used"},
          {"OnNoAntiCurl", "Used, without Anti-Curl"}}},
        {"QnPaperSizeType",
         nullptr,
         "Kind of Paper",
         "QnCutSize",
         {{"QnCutSize", "Cut Sheet"},
          {"QnPerforatedSize", "Perforated"},
          {"QnRollSize", "Roll"},
          {"QnInfiniteSize", "Continuous"},
          {"QnPerforatedRetractSize", "Perforated, Retract"},
          {"QnCustomSize", "Custom"}}},
    };
    return options;
}

QByteArray pageSizeLines()
{
    QByteArray lines;
    for (const QByteArray keyword : {"PageSize", "PageRegion"}) {
        lines += "*OpenUI *" + keyword + "/Media Size: PickOne\n*OrderDependency: 10 AnySetup *" + keyword +
                 "\n*Default" + keyword + ": A4\n";
        for (const QByteArray &name : paperNames())
            lines += "*" + keyword + " " + name + "/" + name + ": \"x\"\n";
        lines += "*CloseUI: *" + keyword + "\n";
    }
    lines += "*DefaultImageableArea: A4\n*DefaultPaperDimension: A4\n";
    for (const QByteArray &name : paperNames())
        lines += "*ImageableArea " + name + ": \"0 0 595 842\"\n*PaperDimension " + name + ": \"595 842\"\n";
    return lines;
}

} // namespace

const std::vector<QByteArray> &paperNames()
{
    static const std::vector<QByteArray> names{"A4",        "Letter",        "Legal",       "A5",
                                               "A5Rotated", "PerfA4",        "PerfLetter",  "PerfLegal",
                                               "RollA4",    "RollLetter",    "RollLegal",   "ContinuousLetter",
                                               "RetractA4", "RetractLetter", "RetractLegal"};
    return names;
}

PPDText::PPDText() { customPageRange(72, 612, 72, 3600); }

PPDText &PPDText::option(const QByteArray &keyword, const QByteArray &text, const QByteArray &standard,
                         const Choices &choices)
{
    m_lines += "*OpenUI *" + keyword + "/" + text + ": PickOne\n*OrderDependency: 20 AnySetup *" + keyword + "\n";
    if (!standard.isEmpty())
        m_lines += "*Default" + keyword + ": " + standard + "\n";
    for (const auto &[choice, choiceText] : choices)
        m_lines += "*" + keyword + " " + choice + "/" + choiceText + ": \"x\"\n";
    m_lines += "*CloseUI: *" + keyword + "\n";
    return *this;
}

PPDText &PPDText::attribute(const QByteArray &name, const QByteArray &value)
{
    return line("*" + name + ": \"" + value + "\"");
}

PPDText &PPDText::line(const QByteArray &text)
{
    m_lines += text + "\n";
    return *this;
}

PPDText &PPDText::customPageRange(int leastWidth, int largestWidth, int leastHeight, int largestHeight)
{
    const auto number = [](int value) { return QByteArray::number(value); };
    m_pageRange = "*VariablePaperSize: True\n*MaxMediaWidth: \"" + number(largestWidth) + "\"\n*MaxMediaHeight: \"" +
                  number(largestHeight) + "\"\n*CustomPageSize True: \"x\"\n*ParamCustomPageSize Width: 1 points " +
                  number(leastWidth) + " " + number(largestWidth) + "\n*ParamCustomPageSize Height: 2 points " +
                  number(leastHeight) + " " + number(largestHeight) + "\n";
    return *this;
}

PPDText &PPDText::standardOption(const QByteArray &keyword)
{
    for (const StandardOption &row : standardOptions()) {
        if (keyword != row.keyword)
            continue;
        option(row.keyword, row.text, row.standard, row.choices);
        if (row.hidden)
            attribute(row.hidden, "False");
    }
    return *this;
}

PPDText &PPDText::paperFeed()
{
    return standardOption("QnPaperFeed")
        .line("*CustomQnPaperFeed True: \"x\"")
        .line("*ParamCustomQnPaperFeed QnPaperFeed: 1 real 0.03937 2.00788")
        .line("*ParamCustomQnPaperFeed mm: 2 real 1 51");
}

PPDText &PPDText::allOptions()
{
    for (const StandardOption &row : standardOptions()) {
        if (QByteArray(row.keyword) == "QnPaperFeed")
            paperFeed();
        else
            standardOption(row.keyword);
    }
    return *this;
}

QByteArray PPDText::text() const { return QByteArray(kHead) + pageSizeLines() + m_pageRange + m_lines; }

QString PPDText::file() const
{
    static const QTemporaryDir directory;
    static int count = 0;
    const QString path = directory.filePath(QString("test%1.ppd").arg(++count));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text()) < 0)
        qFatal("can't write %s", qPrintable(path));
    return path;
}

} // namespace support
