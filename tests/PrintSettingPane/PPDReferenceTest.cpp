// docs/ppd.md says what the panels read: all of it, and nothing else.
#include "PanelOptions.h"
#include "PaperRules.h"
#include "Print.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

QString textOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

QString reference() { return textOf(QN_SOURCE_DIR "/docs/ppd.md"); }

QStringList words(const QString &text, const char *expression)
{
    QStringList found;
    for (const auto &match : QRegularExpression(QLatin1String(expression)).globalMatch(text))
        found.append(match.captured(1));
    found.removeDuplicates();
    return found;
}

/// The cells of the rows of all tables.
QList<QStringList> rows()
{
    QList<QStringList> found;
    for (const QString &line : reference().split('\n'))
        if (line.startsWith("| `") || line.startsWith("| every"))
            found.append(line.split('|').mid(1));
    return found;
}

/// Names that the code of the panels says in full.
QStringList namesInCode()
{
    QStringList names;
    for (const char *folder : {"PrintSettingPane", "PDEBaseClass", "UtilitiesSources"})
        for (const QFileInfo &file : QDir(QString(QN_SOURCE_DIR "/%1").arg(folder)).entryInfoList({"*.cpp", "*.h"}))
            if (!file.fileName().startsWith("Checks")) // what they look for may be mistakes
                names += words(textOf(file.filePath()), R"-("(Qn[A-Z]\w+)")-");
    names.removeDuplicates();
    return names;
}

TEST(TheReferenceOfPPDs, HasARowForEveryOption)
{
    QStringList documented;
    for (const QStringList &row : rows())
        documented += words(row[0], R"(^ `(Qn\w+)` $)");
    QStringList expected{"QnPaperSizeType"};
    for (const OptionRow &row : kOptionRows)
        expected.append(row.keyword);
    documented.sort();
    expected.sort();
    EXPECT_EQ(documented, expected);
}

TEST(TheReferenceOfPPDs, HasEveryNameThatTheCodeReads)
{
    const QString text = reference();
    const QStringList names = namesInCode();
    EXPECT_GE(names.size(), 20);
    for (const QString &name : names)
        EXPECT_TRUE(text.contains('`' + name + '`')) << name.toStdString();
}

TEST(TheReferenceOfPPDs, HasNoNameThatNobodyReads)
{
    QStringList read = namesInCode();
    for (const OptionRow &row : kOptionRows)
        read << QString(row.keyword) + "ObjHidden";
    read << "QnRollPrinterCaseHidden" << "QnDensityUS" << "QnSpeedUS"; // made of an option and an ending
    for (const QString &name : words(reference(), R"(`(Qn\w+)`)"))
        EXPECT_TRUE(read.contains(name)) << name.toStdString();
}

TEST(TheReferenceOfPPDs, HasEveryPaperWithItsKind)
{
    QMap<QString, QString> documented; // paper, kind
    for (const QStringList &row : rows())
        if (row.size() > 2 && row[2].contains("Size`"))
            for (const QString &paper : words(row[0], "`(\\w+)`"))
                documented[paper] = words(row[2], "`(\\w+)`").value(0);
    QMap<QString, QString> expected;
    for (const paper::NamedPaper &named : paper::kPapers)
        expected[QString::fromUtf16(named.name.data(), static_cast<qsizetype>(named.name.size()))] =
            paper::availability(named.group).sizeType;
    EXPECT_EQ(documented, expected);
}

} // namespace
