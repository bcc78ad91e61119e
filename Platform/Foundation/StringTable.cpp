// Looking a string table over before Qt reads it. It is a row of sections, each a tag, a length and its bytes; the one
// of hashes leads into the one of messages, and a message is a row of parts.
#include "StringTable.h"

#include "RegularFile.h"

#include <QTranslator>
#include <QtEndian>

#include <optional>

namespace foundation {

namespace {

constexpr qsizetype kBytesOfMagic = 16;
constexpr qsizetype kBytesOfNumber = 4;
constexpr qsizetype kBytesOfHash = 2 * kBytesOfNumber; // the hash, and where its message begins
constexpr qint64 kLargestTable = qint64{16} * 1024 * 1024;

enum Section : unsigned char {
    contexts = 0x2f, // of an older form
    hashes = 0x42,
    messages = 0x69,
    numerusRules = 0x88,
    dependencies = 0x96, // on tables anywhere
    language = 0xa7,
};

enum Part : unsigned char { end = 1, translation = 3, obsolete = 5, sourceText = 6, context = 7, comment = 8 };

/// What is left to read.
class Bytes
{
public:
    explicit Bytes(QByteArrayView bytes)
        : m_bytes(bytes)
    {}

    bool isEmpty() const { return m_bytes.isEmpty(); }
    std::optional<unsigned char> tag()
    {
        const auto byte = take(1);
        return byte ? std::optional(static_cast<unsigned char>(byte->front())) : std::nullopt;
    }
    std::optional<quint32> number()
    {
        const auto bytes = take(kBytesOfNumber);
        return bytes ? std::optional(qFromBigEndian<quint32>(bytes->data())) : std::nullopt;
    }
    std::optional<QByteArrayView> take(qsizetype count)
    {
        if (m_bytes.size() < count)
            return std::nullopt;
        const QByteArrayView taken = m_bytes.first(count);
        m_bytes = m_bytes.sliced(count);
        return taken;
    }
    /// A length and as many bytes.
    std::optional<QByteArrayView> counted()
    {
        const auto length = number();
        return length ? take(static_cast<qsizetype>(*length)) : std::nullopt;
    }

private:
    QByteArrayView m_bytes;
};

bool isSoundMessage(Bytes bytes)
{
    while (const auto tag = bytes.tag()) {
        switch (*tag) {
        case Part::translation:
        case Part::sourceText:
        case Part::context:
        case Part::comment:
            if (!bytes.counted())
                return false;
            break;
        case Part::obsolete:
            if (!bytes.number())
                return false;
            break;
        default: return true; // the end, or what Qt takes for it
        }
    }
    return true;
}

bool leadIntoMessages(QByteArrayView hashes, QByteArrayView messages)
{
    if (hashes.size() % kBytesOfHash != 0)
        return false;
    for (Bytes rest(hashes); !rest.isEmpty();) {
        rest.number();
        const auto offset = rest.number();
        if (!offset || *offset >= messages.size() || !isSoundMessage(Bytes(messages.sliced(*offset))))
            return false;
    }
    return true;
}

bool isSound(const QByteArray &table)
{
    Bytes rest(table);
    if (!rest.take(kBytesOfMagic))
        return false;
    QByteArrayView hashes;
    QByteArrayView messages;
    while (const auto tag = rest.tag()) {
        const auto section = rest.counted();
        if (!section || *tag == Section::contexts || *tag == Section::dependencies)
            return false;
        if (*tag == Section::hashes)
            hashes = *section;
        else if (*tag == Section::messages)
            messages = *section;
    }
    return leadIntoMessages(hashes, messages);
}

} // namespace

std::unique_ptr<QTranslator> loadStringTable(const QString &path)
{
    const auto file = openRegularFile(path);
    if (!file || (*file)->size() > kLargestTable || !isSound((*file)->readAll()))
        return nullptr;
    auto table = std::make_unique<QTranslator>();
    return table->load(path) ? std::move(table) : nullptr;
}

} // namespace foundation
