// A printer's PPD as the host keeps it: opened, marked, asked. The only place that marks choices.
#pragma once

#include "Printing/PrintSettings.h"
#include "Printing/ppd_api.h"

#include <QHash>
#include <QMap>
#include <QString>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace host {

using OptionValues = QMap<QString, QString>; // keyword to choice or value

class PPDDocument
{
public:
    struct Change
    {
        QString keyword;
        QString choice;
    };
    using Changes = std::vector<Change>;

    /// A choice that the PPD's constraints put in another's place, to go with a choice of a further option.
    struct Move
    {
        Change from;
        QString to;
        Change cause; // no keyword: all the others together
    };

    struct PageSize
    {
        QString name;
        QString text; // for people
        printing::Paper paper;
    };

    /// Opens a PPD and marks its defaults. Null, with one sentence that names the file, when it can't be read.
    static std::unique_ptr<PPDDocument> open(const QString &path, QString *error);

    PPDDocument(const PPDDocument &) = delete;
    PPDDocument &operator=(const PPDDocument &) = delete;

    ppd_file_t *file() const { return m_file.get(); }

    /// Makes the user's own choices the defaults of their options and marks them. Choices that the PPD lacks are
    /// passed over: saved options outlive the PPD that they were saved for.
    void adoptDefaults(const OptionValues &values);

    /// Whether an option of the PPD can have a value as saved options and command lines give it.
    bool canTake(const QString &keyword, const QString &value) const;

    /// Marks, for each option, the value given or else its declared default; values that the PPD lacks are passed over.
    Changes restore(const OptionValues &values);

    /// Marks a listed choice, or a number within the range of a custom option's first parameter, and lets the PPD's
    /// constraints move other options. Nil when nothing could be marked; otherwise every option whose marked choice is
    /// another than before, the one asked for first, then in PPD order.
    std::optional<Changes> mark(const QString &keyword, const QString &choice);
    /// What constraints moved since this was asked last, in order.
    std::vector<Move> takeMoves() { return std::exchange(m_moves, {}); }

    /// In points.
    std::optional<Changes> markCustomPageSize(const printing::Paper &paper);

    /// Every option with a marked choice; custom values as "Custom.<value>".
    OptionValues marked() const;
    /// What a job has to say: every choice that is not the PPD's own default as the file declared it, and the page
    /// size.
    OptionValues jobOptions() const;

    bool hasOption(const QString &keyword) const { return findOption(keyword); }
    /// Those that the PPD does not know, and that therefore are none of the panels' business.
    OptionValues generalAmong(const OptionValues &options) const;
    QString choiceMarked(const QString &keyword) const; // empty when none is
    QString defaultOf(const QString &keyword) const;    // as the file declared it
    /// The PPD's own words for an option and for one of its choices; for a choice in a language ("de", "zh_CN") where
    /// the PPD has it. Looked up aside: the record's texts are keys to the panels.
    QString optionText(const QString &keyword) const;
    QString choiceText(const QString &keyword, const QString &choice, const QString &language = {}) const;

    QString pageSizeName() const; // marked; empty when none is
    /// Of the custom size that is marked; nil when another one is.
    std::optional<printing::Paper> customPageSize() const;
    std::optional<printing::Paper> pageSize(const QString &name) const;
    std::vector<PageSize> pageSizes(const QString &language) const;
    bool hasCustomPageSize() const { return m_file->variable_sizes; }

    /// The value of an attribute; nil when the PPD has none of that name.
    std::optional<QString> attribute(const char *name) const;

private:
    using Marks = std::vector<QByteArray>; // one keyword an option, empty for none

    explicit PPDDocument(printing::PPDFile file);

    ppd_option_t *findOption(const QString &keyword) const;
    std::optional<QString> savedMark(const ppd_option_t &option, const QString &value) const;
    bool canMark(const ppd_option_t &option, const QString &choice, QString *markAs) const;
    Changes apply(ppd_option_t &option, const QString &markAs);
    Changes changesSince(const Marks &before, const ppd_option_t *first) const;
    void markOne(ppd_option_t &option, const QByteArray &choice);
    void resolveConflicts(const ppd_option_t *asked, const QByteArray &choice);
    Change causeOf(const Change &moved, const ppd_option_t *asked) const;
    Marks marks() const;
    const char *markedKeyword(const ppd_option_t &option) const;
    QString markedValue(const ppd_option_t &option, bool forPeople) const;

    printing::PPDFile m_file;
    std::vector<ppd_option_t *> m_options;               // in PPD order
    std::vector<QByteArray> m_declaredDefaults;          // beside m_options
    QHash<const ppd_option_t *, QString> m_customValues; // as they were asked for
    std::vector<Move> m_moves;
};

} // namespace host
