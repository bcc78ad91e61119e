// Settings, page format and printer of a print session.
#include "PrintSettings.h"

#include <QXmlStreamWriter>

#include <algorithm>
#include <cmath>

namespace printing {

namespace {

std::optional<double> finite(double length) { return std::isfinite(length) ? std::optional(length) : std::nullopt; }

} // namespace

std::optional<QString> Settings::value(const QString &key) const
{
    const auto found = m_values.constFind(key);
    return found == m_values.cend() ? std::nullopt : std::optional(*found);
}

void Settings::setValue(const QString &key, const std::optional<QString> &value)
{
    if (value)
        m_values.insert(key, *value);
    else
        m_values.remove(key);
}

QByteArray Settings::dataRepresentation() const
{
    QByteArray data;
    QXmlStreamWriter xml(&data);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement("plist");
    xml.writeAttribute("version", "1.0");
    xml.writeStartElement("dict");
    for (const auto &[key, value] : m_values.asKeyValueRange()) {
        xml.writeTextElement("key", key);
        xml.writeTextElement("string", value);
    }
    xml.writeEndDocument();
    return data;
}

std::optional<QString> uriScheme(const QString &uri)
{
    // No URL class here: those lower the scheme, and "USB" is not "usb" to a panel.
    const qsizetype colon = uri.indexOf(':');
    if (colon < 1 || uri[0].unicode() > 0x7f || !uri[0].isLetter())
        return std::nullopt;
    const QString scheme = uri.left(colon);
    const bool wellFormed = std::ranges::all_of(scheme, [](QChar c) {
        return c.unicode() < 0x80 && (c.isLetterOrNumber() || QStringView(u"+-.").contains(c));
    });
    return wellFormed ? std::optional(scheme) : std::nullopt;
}

std::optional<QString> PMPrintSettingsGetValue(const Settings *settings, const QString &key)
{
    return settings ? settings->value(key) : std::nullopt;
}

std::optional<QByteArray> PMPrintSettingsCreateDataRepresentation(const Settings *settings)
{
    return settings ? std::optional(settings->dataRepresentation()) : std::nullopt;
}

std::optional<QString> PMPrinterCopyDeviceURI(const Printer *printer)
{
    return printer ? printer->deviceURI() : std::nullopt;
}

std::optional<Paper> PMGetPageFormatPaper(const PageFormat *format) { return format ? format->paper : std::nullopt; }

std::optional<double> PMPaperGetWidth(const Paper &paper) { return finite(paper.width); }
std::optional<double> PMPaperGetHeight(const Paper &paper) { return finite(paper.height); }

} // namespace printing
