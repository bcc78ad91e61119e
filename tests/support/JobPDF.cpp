#include "JobPDF.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>

#include <map>

namespace support {

namespace {

constexpr int kFirstPage = 4; // after the catalogue, the tree and the font; each page is followed by its content

QByteArray output(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished() && process.exitCode() == 0 ? process.readAllStandardOutput() : QByteArray();
}

QByteArray stream(const QByteArray &content)
{
    return "<</Length " + QByteArray::number(content.size()) + ">>stream\n" + content + "\nendstream";
}

QByteArray numbered(const std::map<int, QByteArray> &objects)
{
    QByteArray text = "%PDF-1.6\n";
    std::map<int, qsizetype> places;
    for (const auto &[number, content] : objects) {
        places[number] = text.size();
        text += QByteArray::number(number) + " 0 obj\n" + content + "\nendobj\n";
    }
    const qsizetype table = text.size();
    text += "xref\n0 1\n0000000000 65535 f \n";
    for (const auto &[number, place] : places)
        text += QByteArray::number(number) + " 1\n" + QByteArray::number(place).rightJustified(10, '0') + " 00000 n \n";
    return text + "trailer<</Size " + QByteArray::number(objects.rbegin()->first + 1) + "/Root 1 0 R>>\nstartxref\n" +
           QByteArray::number(table) + "\n%%EOF\n";
}

} // namespace

JobPDF &JobPDF::page(const QByteArray &entries, const QByteArray &drawing)
{
    m_pages.push_back({entries, drawing});
    return *this;
}

JobPDF &JobPDF::words(const QByteArray &entries, const QByteArray &words)
{
    return page(entries, "BT /F 24 Tf 70 70 Td (" + words + ") Tj ET");
}

JobPDF &JobPDF::pages(int count, QSizeF size)
{
    const QByteArray box =
        "/MediaBox[0 0 " + QByteArray::number(size.width()) + ' ' + QByteArray::number(size.height()) + ']';
    for (int i = 1; i <= count; ++i)
        words(box, "Page " + QByteArray::number(i));
    return *this;
}

JobPDF &JobPDF::catalogue(const QByteArray &entries)
{
    m_catalogue += entries;
    return *this;
}

JobPDF &JobPDF::object(const QByteArray &content)
{
    m_objects.push_back(content);
    return *this;
}

QByteArray JobPDF::text() const
{
    std::map<int, QByteArray> objects;
    QByteArray kids;
    int number = kFirstPage;
    for (const Page &page : m_pages) {
        const QByteArray content = QByteArray::number(number + 1) + " 0 R";
        const QByteArray resources = page.entries.contains("/Resources") ? "" : "/Resources<</Font<</F 3 0 R>>>>";
        kids += QByteArray::number(number) + " 0 R ";
        objects[number] = "<</Type/Page/Parent 2 0 R" + resources + "/Contents " + content + page.entries + ">>";
        objects[number + 1] = stream(page.drawing);
        number += 2;
    }
    objects[1] = "<</Type/Catalog/Pages 2 0 R" + m_catalogue + ">>";
    objects[2] = "<</Type/Pages/Count " + QByteArray::number(m_pages.size()) + "/Kids[" + kids + "]>>";
    objects[3] = "<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>";
    number = kFirstFreeObject;
    for (const QByteArray &object : m_objects)
        objects[number++] = object;
    return numbered(objects);
}

QString JobPDF::file(const QString &path) const
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text()) < 0)
        qFatal("can't write %s", qPrintable(path));
    return path;
}

QStringList wordsOf(const QString &path)
{
    QStringList pages = QString::fromUtf8(output("pdftotext", {path, "-"})).split('\f');
    pages.removeLast(); // behind the end of the last one
    for (QString &page : pages)
        page = page.simplified();
    return pages;
}

std::vector<QSizeF> sizesOf(const QString &path)
{
    static const QRegularExpression kSize(R"(^Page +\d+ size: +([0-9.]+) x ([0-9.]+) pts)",
                                          QRegularExpression::MultilineOption);
    std::vector<QSizeF> sizes;
    const QString info = QString::fromUtf8(output("pdfinfo", {"-l", "1000", path}));
    for (auto lines = kSize.globalMatch(info); lines.hasNext();) {
        const auto line = lines.next();
        sizes.emplace_back(line.captured(1).toDouble(), line.captured(2).toDouble());
    }
    return sizes;
}

QImage pictureOf(const QString &path, int page, double resolution)
{
    const QString number = QString::number(page);
    return QImage::fromData(
        output("pdftoppm", {"-gray", "-cropbox", "-r", QString::number(resolution), "-f", number, "-l", number, path}));
}

} // namespace support
