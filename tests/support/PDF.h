// A PDF as another program reads it.
#pragma once

#include "Jobs/Document.h"

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace support {

/// Lengths are in points, from the upper left corner of the page.
class PDF
{
public:
    struct Word
    {
        QString text;
        double x = 0;
        double y = 0;
        int page = 0; // from 0
    };

    explicit PDF(const std::shared_ptr<host::Document> &document)
    {
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        document->rewind();
        for (auto part = document->read(); part && !part->isEmpty(); part = document->read())
            file.write(*part);
    }

    QString path() const { return m_folder.filePath("a.pdf"); }

    int pages() const { return information("Pages").toInt(); }
    QString title() const { return information("Title"); }
    QSizeF pageSize() const
    {
        const QStringList words = information("Page size").split(' ');
        return {words.value(0).toDouble(), words.value(2).toDouble()};
    }

    /// Page by page, without what ends the lines.
    QStringList texts() const
    {
        QStringList texts = QString::fromUtf8(run("pdftotext", {"-layout", path(), "-"})).split('\f');
        texts.removeLast(); // behind the end of the last page
        for (QString &each : texts)
            each = each.trimmed();
        return texts;
    }

    /// In the order of reading from the left.
    QList<Word> words() const
    {
        static const QRegularExpression word(
            R"re(<page |<word xMin="([-\d.]+)" yMin="([-\d.]+)"[^>]*>([^<]*)</word>)re");
        const QString found = QString::fromUtf8(run("pdftotext", {"-bbox", path(), "-"}));
        QList<Word> words;
        int page = -1;
        for (auto each = word.globalMatch(found); each.hasNext();) {
            const auto match = each.next();
            if (match.captured() == "<page ")
                ++page;
            else
                words.append({match.captured(3), match.captured(1).toDouble(), match.captured(2).toDouble(), page});
        }
        std::ranges::sort(words, {}, [](const Word &each) { return std::tuple(each.page, qRound(each.y), each.x); });
        return words;
    }

    /// The first page in grey, so many dots an inch.
    QImage picture(int resolution = 72) const
    {
        run("pdftoppm", {"-r", QString::number(resolution), "-gray", "-singlefile", path(), m_folder.filePath("page")});
        return QImage(m_folder.filePath("page.pgm"));
    }

    /// What is darker than half grey on the first page.
    QRectF ink() const
    {
        constexpr int kScale = 4;
        const QImage page = picture(72 * kScale);
        QRect found;
        for (int y = 0; y < page.height(); ++y)
            for (int x = 0; x < page.width(); ++x)
                if (qGray(page.pixel(x, y)) < 128)
                    found |= QRect(x, y, 1, 1);
        return {found.x() / double(kScale), found.y() / double(kScale), found.width() / double(kScale),
                found.height() / double(kScale)};
    }

    /// The first picture in it, as it is stored.
    QImage image() const
    {
        run("pdfimages", {"-png", path(), m_folder.filePath("image")});
        return QImage(m_folder.filePath("image-000.png"));
    }

private:
    static QByteArray run(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
        EXPECT_EQ(process.exitCode(), 0);
        return process.readAllStandardOutput();
    }
    QString information(const QString &key) const
    {
        const QRegularExpression line("^" + key + ": +(.*)$", QRegularExpression::MultilineOption);
        return line.match(QString::fromUtf8(run("pdfinfo", {path()}))).captured(1);
    }

    QTemporaryDir m_folder;
};

} // namespace support
