// The optional part of the border: how a bundle looks over a PPD for the people who write it. Plain data both ways, and
// nothing of it is made before somebody asks. A bundle without checks leaves `PDEPlugInEntry::checks` as it is.
//
// Order of calls, all on the host's main thread, on one `PDEChecks`:
//   1. `checks`, at any time: what there is to look for. The answer is always the same.
//   2. `controls`, at any time: which control shows which option.
//   3. `findings`, for one PPD that the library could open, while its panels stand: each has been prepared, so that it
//      shows what it shows at first, and none is on display. Where no panels could be made there are none.
// What is handed in is the host's and stays for the length of the call; what is answered is the host's own. None of it
// changes the PPD, a mark or a panel.
#pragma once

#include "PDEPlugInInterface.h"

#include <QByteArrayView>

#include <span>

/// "*keyword option/text: value", as bytes of the file, without blanks around them and without the quotation marks of
/// the value. Parts that are not there are null.
struct PDEStatement
{
    int line = 0; // of the asterisk, from 1
    QByteArrayView keyword = {};
    QByteArrayView option = {};
    QByteArrayView text = {};
    QByteArrayView value = {};
};

enum class PDESeverity { note, warning, error };

/// What is looked for, in English: it is read on terminals, as compilers are.
struct PDECheck
{
    QString name; // short and fixed, "hidden-flag", unlike every other one of the bundle
    PDESeverity severity = PDESeverity::error;
    QString looksFor; // one sentence
    QString why;      // what follows where it is not so
    QString good;     // lines of a PPD
    QString bad;      // the same lines, and the check finds them
};

struct PDEFinding
{
    int line = 1;         // where it stands, or, for what is missing, where it would belong; never 0
    QString check = {};   // the check's name
    QString message = {}; // one line: what is wrong, and what it leads to
    QString option = {};  // keyword of the option that it is about; empty when it is about none
};

/// A control that shows the choice of an option by its position: a menu by its item, radio buttons by their row, a box
/// by its state.
struct PDEOptionControl
{
    QString panel; // identifier
    QString control;
    QString option;     // keyword
    bool leads = false; // a menu on which other choices depend, so that all of its items are worth trying
};

struct PDECheckedPPD
{
    std::span<const PDEStatement> statements; // in the order of the file
    ppd_file_t *file;                         // open; never null
    const PDEPanels &panels;
};

class PDEChecks
{
public:
    virtual ~PDEChecks() = default;

    virtual std::vector<PDECheck> checks() const = 0;
    /// In any order.
    virtual std::vector<PDEFinding> findings(const PDECheckedPPD &ppd) const = 0;
    /// Those that lead come from one panel, and in the order in which a person would use them.
    virtual std::vector<PDEOptionControl> controls() const = 0;
};
