// The host serves any bundle: nothing in it is called after what ours has.
#include "PanelOptions.h"
#include "PaperRules.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QStringList>

#include <gtest/gtest.h>

namespace {

QString read(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

/// Names of a paper that every printer may have are nobody's.
QStringList paperNames()
{
    QStringList names;
    for (const paper::NamedPaper &each : paper::kPapers)
        if (each.group != paper::Group::plain)
            names.append(QString::fromUtf16(each.name.data(), static_cast<qsizetype>(each.name.size())));
    return names;
}

QStringList controlNames()
{
    static const QRegularExpression name("<widget class=\"toolkit::\\w+\" name=\"(\\w+)\">");
    QStringList names;
    for (const char *file : {"PrintSettingPDE", "PrintSettingAdvancedPDE"}) {
        auto matches = name.globalMatch(read(QString(QN_SOURCE_DIR "/Resources/%1.ui").arg(file)));
        while (matches.hasNext())
            names.append(matches.next().captured(1));
    }
    return names;
}

QStringList namesOfTheBundle()
{
    QStringList names = paperNames() + controlNames();
    for (const OptionRow &row : kOptionRows)
        names.append(row.keyword);
    // A panel's identifier is a word like any other: where it is meant, it stands in quotes.
    return names << "QnPaperSizeType" << "QNKVPageSettings15" << "\"basic\"" << "\"advanced\"";
}

TEST(TheHost, NamesNoOptionPanelOrPaperOfTheBundle)
{
    const QStringList names = namesOfTheBundle();
    ASSERT_GT(names.size(), 40);
    int files = 0;
    QDirIterator sources(QN_SOURCE_DIR "/Host", {"*.cpp", "*.h", "*.ui", "*.ts"}, QDir::Files,
                         QDirIterator::Subdirectories);
    for (; sources.hasNext(); ++files) {
        const QString path = sources.next();
        const QString text = read(path);
        for (const QString &name : names)
            EXPECT_FALSE(text.contains(name)) << path.toStdString() << " knows " << name.toStdString();
    }
    EXPECT_GT(files, 100);
}

} // namespace
