// Settings, page format and printer of a print session.
#include "Printing/PrintSettings.h"
#include "Printing/Units.h"

#include <gtest/gtest.h>

#include <limits>

using namespace printing;

namespace {

TEST(SessionSettings, HoldNamedValues)
{
    Settings settings;
    EXPECT_EQ(PMPrintSettingsGetValue(&settings, kPaperNameKey), std::nullopt);
    settings.setValue(kPaperNameKey, "A4");
    EXPECT_EQ(PMPrintSettingsGetValue(&settings, kPaperNameKey), QString("A4"));
    settings.setValue(kPaperNameKey, std::nullopt);
    EXPECT_EQ(PMPrintSettingsGetValue(&settings, kPaperNameKey), std::nullopt);
    EXPECT_EQ(PMPrintSettingsGetValue(nullptr, kPaperNameKey), std::nullopt);
}

TEST(SessionSettings, AreAnXMLPropertyList)
{
    Settings settings;
    settings.setValue("paper", "A4 <&>");
    const QByteArray list = PMPrintSettingsCreateDataRepresentation(&settings).value_or(QByteArray());
    EXPECT_TRUE(list.startsWith("<?xml version=\"1.0\""));
    EXPECT_TRUE(list.contains("<key>paper</key>"));
    EXPECT_TRUE(list.contains("<string>A4 &lt;&amp;&gt;</string>"));
    EXPECT_EQ(PMPrintSettingsCreateDataRepresentation(nullptr), std::nullopt);
}

TEST(PaperOfAPageFormat, MayBeUnknown)
{
    EXPECT_EQ(PMGetPageFormatPaper(nullptr), std::nullopt);
    const PageFormat none;
    EXPECT_EQ(PMGetPageFormatPaper(&none), std::nullopt);
    const PageFormat format{Paper{595, 842}};
    EXPECT_EQ(PMGetPageFormatPaper(&format), (Paper{595, 842}));
    EXPECT_EQ(PMPaperGetWidth({595, 842}), 595);
    EXPECT_EQ(PMPaperGetHeight({595, 842}), 842);
    EXPECT_EQ(PMPaperGetWidth({std::numeric_limits<double>::quiet_NaN(), 1}), std::nullopt);
}

struct Address
{
    const char *uri;
    const char *scheme; // "": none
};

class Scheme : public testing::TestWithParam<Address>
{};

TEST_P(Scheme, IsKeptAsItIsWritten)
{
    EXPECT_EQ(uriScheme(GetParam().uri).value_or(QString()), GetParam().scheme) << GetParam().uri;
}

INSTANTIATE_TEST_SUITE_P(Addresses, Scheme,
                         testing::Values(Address{"usb://a", "usb"}, Address{"USB://a", "USB"},
                                         Address{"QNLRUSB:", "QNLRUSB"}, Address{"a+b-c.1:x", "a+b-c.1"},
                                         Address{"", ""}, Address{"usb", ""}, Address{":x", ""}, Address{"1a:x", ""},
                                         Address{"u b:x", ""}, Address{"/path:x", ""}));

TEST(Units, AgreeWithEachOther)
{
    EXPECT_EQ(kPointsPerInch, 72);
    EXPECT_DOUBLE_EQ(kPointsPerMillimetre * 25.4, 72);
    EXPECT_DOUBLE_EQ(kPointsPerHundredthOfMillimetre * 2540, 72);
}

} // namespace
