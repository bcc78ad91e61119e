// String tables, made byte by byte: whole ones are read, and none that leads out of itself.
#include "Foundation/StringTable.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtEndian>

#include <gtest/gtest.h>

namespace {

const QByteArray kMagic = QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd");

QByteArray number(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

/// A tag, the length of what follows, and that.
QByteArray counted(int tag, const QByteArray &bytes)
{
    return QByteArray(1, static_cast<char>(tag)) + number(static_cast<quint32>(bytes.size())) + bytes;
}

/// What Qt looks a text up by.
quint32 hashOf(const QByteArray &text)
{
    quint32 hash = 0;
    for (const char each : text) {
        hash = (hash << 4) + static_cast<unsigned char>(each);
        const quint32 high = hash & 0xf0000000;
        hash = (hash ^ (high >> 24)) & ~high;
    }
    return hash;
}

const QByteArray kTranslation = counted(3, QByteArray("\0J\0a", 4)); // in UTF-16
const QByteArray kSource = counted(6, "Yes");
const QByteArray kContext = counted(7, "Localizable");
const QByteArray kComment = counted(8, "");
const QByteArray kEnd("\1");

QByteArray hashes(quint32 offset = 0) { return counted(0x42, number(hashOf("Yes")) + number(offset)); }
QByteArray messages(const QByteArray &message = kTranslation + kSource + kContext + kComment + kEnd)
{
    return counted(0x69, message);
}

struct Table
{
    const char *name;
    QByteArray bytes; // behind the magic number
    bool isRead;
    const char *text = "Ja"; // of what is read
};

void PrintTo(const Table &row, std::ostream *out) { *out << row.name; }

class StringTables : public testing::TestWithParam<Table>
{
protected:
    std::unique_ptr<QTranslator> table(const QByteArray &bytes)
    {
        const QString path = m_folder.filePath("Localizable_de.qm");
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        file.close();
        return foundation::loadStringTable(path);
    }
    QTemporaryDir m_folder;
};

TEST_P(StringTables, AreReadWhenTheyAreWhole)
{
    const auto read = table(kMagic + GetParam().bytes);
    ASSERT_EQ(read != nullptr, GetParam().isRead);
    if (read) {
        EXPECT_EQ(read->translate("Localizable", "Yes"), GetParam().text);
    }
}

const QByteArray kWhole = hashes() + messages();

INSTANTIATE_TEST_SUITE_P(
    Of, StringTables,
    testing::Values(
        Table{"Whole", kWhole, true}, Table{"InTheOtherOrder", messages() + hashes(), true},
        Table{"WithALanguage", counted(0xa7, "de") + kWhole, true},
        Table{"WithRules", kWhole + counted(0x88, ""), true},
        Table{"WithAnUnknownSection", kWhole + counted(0x11, "x"), true},
        Table{"OfAnOlderForm", kWhole + counted(0x2f, "x"), false},
        Table{"OnOthers", kWhole + counted(0x96, ""), false},
        Table{"WithAnObsoletePart", hashes() + messages(QByteArray("\5\0\0\0\0", 5) + kTranslation + kSource + kEnd),
              true},
        Table{"WithoutAnEnd", hashes() + messages(kTranslation + kSource), true, ""},
        Table{"WithAMessageFurtherOn", hashes(6) + messages(QByteArray(6, '\1') + kTranslation + kSource + kEnd), true},
        Table{"LeadingToTheEndOfTheMessages",
              hashes(static_cast<quint32>(kTranslation.size())) + messages(kTranslation), false},
        Table{"LeadingBeyondTheMessages", hashes(1000) + messages(), false}, Table{"WithoutMessages", hashes(), false},
        Table{"WithHalfAHash", counted(0x42, number(hashOf("Yes")) + number(0) + number(1)) + messages(), false},
        Table{"WithASectionCutShort", kWhole + counted(0x11, "xy").chopped(1), false},
        Table{"WithASectionWithoutLength", kWhole + QByteArray("\x11\0\0\0", 4), false},
        Table{"WithATranslationCutShort", hashes() + messages(kSource + kTranslation.chopped(1)), false},
        Table{"WithASourceCutShort", hashes() + messages(kTranslation + kSource.chopped(1)), false},
        Table{"WithAContextCutShort", hashes() + messages(kTranslation + kSource + kContext.chopped(1)), false},
        Table{"WithACommentCutShort", hashes() + messages(kTranslation + kSource + counted(8, "x").chopped(1)), false},
        Table{"WithAnObsoletePartCutShort", hashes() + messages(kTranslation + kSource + QByteArray("\5\0\0\0", 4)),
              false},
        Table{"WithNothing", "", true, ""}),
    [](const auto &row) { return std::string(row.param.name); });

TEST_F(StringTables, AreNotReadWithoutTheirMagicNumber)
{
    EXPECT_FALSE(table(""));
    EXPECT_FALSE(table(kMagic.chopped(1)));
    EXPECT_FALSE(table(QByteArray(16, 'x') + kWhole));
    EXPECT_FALSE(foundation::loadStringTable(m_folder.filePath("none.qm")));
}

TEST_F(StringTables, HoldUpToSixteenMegabytes)
{
    const qsizetype most = qsizetype{16} * 1024 * 1024;
    const qsizetype rest = most - (kMagic + kWhole + counted(0x11, "")).size();
    EXPECT_TRUE(table(kMagic + kWhole + counted(0x11, QByteArray(rest, 'x'))));
    EXPECT_FALSE(table(kMagic + kWhole + counted(0x11, QByteArray(rest + 1, 'x'))));
}

} // namespace
