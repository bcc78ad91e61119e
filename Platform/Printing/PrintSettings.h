// What a print session knows about the job: settings by key, the page format with its paper, the printer.
// The host makes and changes them; panels read them.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

#include <optional>

namespace printing {

/// The print setting that carries the name of the chosen paper.
inline constexpr auto kPaperNameKey = "com.apple.print.PageToPaperMappingMediaName";

/// The paper name that stands for a size which the user defined.
inline constexpr auto kUserDefinedPaper = "customsize";

/// Posted when the user has chosen another paper.
inline constexpr auto kPaperDidChangeNotification = "PMPrintDestinationPaperDidChangeNotification";

class Settings
{
public:
    /// nil when the settings hold no value for the key.
    std::optional<QString> value(const QString &key) const;
    void setValue(const QString &key, const std::optional<QString> &value);

    /// All values as an XML property list.
    QByteArray dataRepresentation() const;

private:
    QMap<QString, QString> m_values; // sorted, so that a representation is always the same
};

/// Width and height in points, 1/72 inch.
struct Paper
{
    double width = 0;
    double height = 0;

    friend bool operator==(const Paper &, const Paper &) = default;
};

struct PageFormat
{
    std::optional<Paper> paper; // nil when the size is not known
};

class Printer
{
public:
    /// nil when the printer has no address.
    const std::optional<QString> &deviceURI() const { return m_deviceURI; }
    void setDeviceURI(std::optional<QString> uri) { m_deviceURI = std::move(uri); }

private:
    std::optional<QString> m_deviceURI;
};

/// Stands for one print dialog; holds nothing that a panel reads.
class Session
{};

/// The scheme of an address as it is written, letter case included; nil when there is none.
std::optional<QString> uriScheme(const QString &uri);

// The printing system's operations, under the names that panels know. Each accepts null and then has no answer.
std::optional<QString> PMPrintSettingsGetValue(const Settings *settings, const QString &key);
std::optional<QByteArray> PMPrintSettingsCreateDataRepresentation(const Settings *settings);
std::optional<QString> PMPrinterCopyDeviceURI(const Printer *printer);
std::optional<Paper> PMGetPageFormatPaper(const PageFormat *format);
std::optional<double> PMPaperGetWidth(const Paper &paper);
std::optional<double> PMPaperGetHeight(const Paper &paper);

} // namespace printing
