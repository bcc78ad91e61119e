// A TIFF is a chain of directories, one a picture, of numbers behind tags.
#include "TIFFParts.h"

#include <QHash>

#include <algorithm>
#include <optional>

namespace host {

namespace {

enum Tag : quint32 {
    width = 256,
    height = 257,
    bitsOfSample = 258,
    samplesOfDot = 277,
    rowsOfStrip = 278,
    tileWidth = 322,
    tileHeight = 323
};

constexpr double kBeyondAll = 1e18; // products of it are numbers still
constexpr int kBytesOfEntry = 12;
constexpr int kBytesOfValue = 4; // in the entry itself; what is longer stands elsewhere

bool isOfParts(quint32 tag)
{
    return (tag >= width && tag <= bitsOfSample) || tag == samplesOfDot || tag == rowsOfStrip || tag == tileWidth ||
           tag == tileHeight;
}

/// Bytes of a number; 0 of what no counts are written as.
int bytesOf(quint32 type)
{
    switch (type) {
    case 1: return 1;
    case 3: return 2;
    case 4: return 4;
    default: return 0;
    }
}

class Numbers
{
public:
    explicit Numbers(const QByteArray &content)
        : m_content(content)
        , m_isBigEndian(content.startsWith('M'))
    {}

    /// Nil behind the end.
    std::optional<quint32> at(qint64 place, int bytes) const
    {
        if (place + bytes > m_content.size())
            return std::nullopt;
        quint32 number = 0;
        for (int i = 0; i < bytes; ++i)
            number = number << 8 | static_cast<uchar>(m_content[place + (m_isBigEndian ? i : bytes - 1 - i)]);
        return number;
    }

    /// The first one of an entry that is there.
    double ofEntry(qint64 place) const
    {
        const int bytes = bytesOf(at(place + 2, 2).value_or(0));
        const bool isHere = qint64{bytes} * at(place + 4, 4).value_or(0) <= kBytesOfValue;
        const auto value = bytes ? at(isHere ? place + 8 : at(place + 8, 4).value_or(0), bytes) : std::nullopt;
        return value ? *value : kBeyondAll;
    }

private:
    const QByteArray &m_content;
    bool m_isBigEndian;
};

/// Of a tag that comes again, readers differ in what they take.
double largestPart(const Numbers &numbers, qint64 directory, quint32 entries)
{
    QHash<quint32, double> told;
    for (quint32 i = 0; i < entries; ++i) {
        const qint64 place = directory + 2 + qint64{kBytesOfEntry} * i;
        const auto tag = numbers.at(place, 2);
        if (!tag)
            break;
        if (isOfParts(*tag))
            told[*tag] = std::max(told.value(*tag), numbers.ofEntry(place));
    }
    const double rows = std::max(1.0, std::min(told.value(rowsOfStrip, kBeyondAll), told.value(height)));
    const double dots = std::max(told.value(width) * rows, told.value(tileWidth) * told.value(tileHeight));
    return dots * told.value(samplesOfDot, 1) * told.value(bitsOfSample, 1) / 8;
}

} // namespace

double largestPartOfTIFF(const QByteArray &content, int pictures)
{
    const Numbers numbers(content);
    double largest = 0;
    auto directory = numbers.at(4, 4);
    for (int i = 0; i < pictures && directory && *directory != 0; ++i) {
        const auto entries = numbers.at(*directory, 2);
        if (!entries)
            break;
        largest = std::max(largest, largestPart(numbers, *directory, *entries));
        directory = numbers.at(qint64{*directory} + 2 + qint64{kBytesOfEntry} * *entries, 4);
    }
    return largest;
}

} // namespace host
