#include "PDFText.h"

#include <QFile>
#include <QTemporaryDir>

#include <random>

namespace support {

namespace {

constexpr int kCatalog = 1;
constexpr int kPages = 2;
constexpr double kMark = 20;
constexpr double kLargeMark = 40;

QByteArray number(double value) { return QByteArray::number(value, 'f', 2); }
QByteArray number(int value) { return QByteArray::number(value); }

QByteArray square(double x, double y, double side)
{
    return number(x) + ' ' + number(y) + ' ' + number(side) + ' ' + number(side) + " re f\n";
}

QByteArray reference(int object) { return number(object) + " 0 R"; }

} // namespace

QByteArray marksIn(const QRectF &area)
{
    return "0 g\n" + square(area.left(), area.top(), kMark) +
           square(area.right() - kMark, area.bottom() - kMark, kMark) +
           square(area.left(), area.bottom() - kLargeMark, kLargeMark) +
           square(area.center().x() - kMark / 2, area.center().y() - kMark / 2, kMark);
}

PDFText &PDFText::page(QSizeF size, const QByteArray &content, const QByteArray &entries)
{
    const int drawn = stream(content.isNull() ? marksIn(QRectF({}, size)) : content);
    const int page = object("<< /Type /Page /Parent " + reference(kPages) + " /MediaBox [0 0 " + number(size.width()) +
                            ' ' + number(size.height()) + "] " + entries + " /Contents " + reference(drawn) + " >>");
    m_kids += reference(page) + ' ';
    ++m_count;
    return *this;
}

int PDFText::object(const QByteArray &text)
{
    m_objects.push_back(text);
    return kPages + static_cast<int>(m_objects.size());
}

int PDFText::stream(const QByteArray &content, const QByteArray &entries)
{
    return object("<< " + entries + " /Length " + QByteArray::number(content.size()) + " >>\nstream\n" + content +
                  "\nendstream");
}

QByteArray PDFText::text() const
{
    std::vector<QByteArray> all{"<< /Type /Catalog /Pages " + reference(kPages) + " >>",
                                "<< /Type /Pages /Kids [" + m_kids + "] /Count " + number(m_count) + " >>"};
    all.insert(all.end(), m_objects.begin(), m_objects.end());
    QByteArray text = "%PDF-1.4\n";
    QByteArray places = "0000000000 65535 f \n";
    for (std::size_t i = 0; i < all.size(); ++i) {
        places += QByteArray::number(text.size()).rightJustified(10, '0') + " 00000 n \n";
        text += QByteArray::number(i + 1) + " 0 obj\n" + all[i] + "\nendobj\n";
    }
    const QByteArray size = QByteArray::number(all.size() + 1);
    return text + "xref\n0 " + size + '\n' + places + "trailer\n<< /Size " + size + " /Root " + reference(kCatalog) +
           " >>\nstartxref\n" + QByteArray::number(text.size()) + "\n%%EOF\n";
}

QString PDFText::file() const { return fileOf(text(), "pdf"); }

namespace {

/// Forms within forms, so many deep; each draws the one within it so many times.
PDFText formsWithin(int depth, int times, QSizeF size)
{
    PDFText document;
    QByteArray content = QByteArray("/G gs 0 0 1000 1000 re f ").repeated(times);
    QByteArray forms;
    for (int level = 0; level < depth; ++level) {
        const int form = document.stream(content, "/Type /XObject /Subtype /Form /BBox [0 0 " + number(size.width()) +
                                                      ' ' + number(size.height()) +
                                                      "] /Group << /S /Transparency >> "
                                                      "/Resources << /ExtGState << /G << /ca 0.5 >> >> /XObject << " +
                                                      forms + " >> >>");
        forms = "/F " + QByteArray::number(form) + " 0 R";
        content = QByteArray("/G gs /F Do ").repeated(times);
    }
    return document.page(size, content,
                         "/Resources << /ExtGState << /G << /ca 0.5 >> >> /XObject << " + forms + " >> >>");
}

} // namespace

PDFText endlessPage() { return formsWithin(12, 10, {300, 400}); }
PDFText heavyPage() { return formsWithin(98, 1, {595, 842}); }

QByteArray pathsOver(QSizeF size, int count)
{
    std::minstd_rand random; // the same each time
    std::uniform_real_distribution<double> share(0, 1);
    const auto place = [&] {
        return number(share(random) * size.width()) + ' ' + number(share(random) * size.height());
    };
    QByteArray content = "/G gs\n";
    for (int path = 0; path < count; ++path) {
        content += number(share(random)) + " g " + place() + " m";
        for (int corner = 0; corner < 5; ++corner)
            content += ' ' + place() + " l";
        content += " f\n";
    }
    return content;
}

QString fileOf(const QByteArray &content, const QString &ending)
{
    static const QTemporaryDir folder("/tmp/qndocuments-XXXXXX"); // whatever a test makes of TMPDIR
    static int count = 0;
    const QString path = folder.filePath(QString("file%1.%2").arg(QString::number(++count), ending));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("can't write %s", qPrintable(path));
    return path;
}

} // namespace support
