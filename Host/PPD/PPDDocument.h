// A printer's PPD: what the file says. What is marked in it is the matter of PPDMarks.
#pragma once

#include "CustomValue.h"
#include "OptionValues.h"

#include "Foundation/Or.h"
#include "Printing/CustomText.h"
#include "Printing/ppd_api.h"

#include <QCoreApplication>
#include <QRectF>

#include <memory>
#include <vector>

namespace host {

/// A paper that a printer offers.
struct PaperEntry
{
    QString name;
    QString text; // for people
    printing::Paper size;
};

/// What a custom paper may measure, both ends included.
struct CustomSizeLimits
{
    printing::Paper smallest;
    printing::Paper largest;
};

class PPDDocument
{
    Q_DECLARE_TR_FUNCTIONS(host::PPDDocument)

public:
    /// A problem when the file can't be read or is no PPD. `line` receives the line up to which the library came; it
    /// is left alone when the library did not even begin.
    static foundation::Or<std::unique_ptr<PPDDocument>> open(const QString &path, int *line = nullptr);

    /// Of a text that is in no file.
    static foundation::Or<std::unique_ptr<PPDDocument>> ofText(const QByteArray &text);

    PPDDocument(const PPDDocument &) = delete;
    PPDDocument &operator=(const PPDDocument &) = delete;

    /// The library's record. It is what panels see; it stays the document's.
    ppd_file_t *file() const { return m_file.get(); }
    /// All options, those of groups within groups included, in the order of the file.
    const std::vector<ppd_option_t *> &options() const { return m_options; }
    /// Null when the PPD has no option of exactly this keyword, letter case included.
    ppd_option_t *option(const QString &keyword) const;
    bool hasOption(const QString &keyword) const { return option(keyword); }

    /// What marks a listed choice, a number within the range of a custom option's first parameter, or a text, with the
    /// prefix of custom values, that a custom option allows; nil when the option takes no such choice.
    std::optional<ChoiceValue> choice(const ppd_option_t &option, const QString &text) const;
    /// The same for a text as saved options and command lines write it: custom values and sizes with their prefix too.
    std::optional<ChoiceValue> savedChoice(const ppd_option_t &option, const QString &text) const;
    /// Whether the PPD has the option and takes the choice, as saved options and command lines write it.
    bool accepts(const QString &keyword, const QString &text) const;

    /// Whether the custom choice of an option has a parameter of that name.
    bool hasCustomParameter(const QString &keyword, const char *parameter) const;

    /// What texts an option takes beside its choices; nil when it takes none.
    std::optional<printing::CustomText> customText(const ppd_option_t &option) const;
    /// Keywords of the options that take a passcode or a password.
    QStringList secretOptions() const;

    /// Those that the PPD does not know or can't mean: they concern the server and not the panels.
    OptionValues unknownAmong(const OptionValues &options) const;

    /// Whether the custom choice of an option is a length in points.
    bool takesPoints(const QString &keyword) const;

    /// The PPD's own words for an option and for one of its choices; in a language ("de", "zh_CN") where the PPD has
    /// it. Looked up aside: the record's texts are keys to the panels.
    QString optionText(const QString &keyword, const QString &language = {}) const;
    QString choiceText(const QString &keyword, const QString &choice, const QString &language = {}) const;

    /// The size of a paper by name; nil when the PPD has none of that name.
    std::optional<printing::Paper> pageSize(const QString &name) const;
    /// The part of a paper that the printer can reach, in points, y downward from its upper left corner. A paper that
    /// the PPD does not list has the margins of custom sizes. Where the PPD says nothing sensible, all of it.
    QRectF printableArea(const std::optional<QString> &name, const printing::Paper &size) const;
    /// Whether a landscape page is turned anticlockwise to stand on portrait paper.
    bool turnsLeft() const { return m_file->landscape > 0; }
    std::vector<PaperEntry> papers(const QString &language) const;
    /// Nil when the PPD takes no custom sizes.
    std::optional<CustomSizeLimits> customSizeLimits() const;

    /// The value of an attribute; nil when the PPD has none of that name.
    std::optional<QString> attribute(const char *name) const;

    /// Whether the driver takes a PDF as it comes, untouched by the server's own filters.
    bool takesPDF() const;

private:
    explicit PPDDocument(printing::PPDFile file);

    bool isPageSize(const ppd_option_t &option) const;
    std::optional<QString> translation(const QString &language, const QString &table, const QString &of) const;
    const ppd_size_t *listedSize(const QString &name) const;

    printing::PPDFile m_file;
    std::vector<ppd_option_t *> m_options;
};

} // namespace host
