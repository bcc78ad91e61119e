// The paper of the dialog: the printer's papers, and a size of the user's own within the printer's limits.
#pragma once

#include "Dialog/PrintTarget.h"

#include <QElapsedTimer>
#include <QObject>

class QComboBox;
class QWidget;

namespace host {

class LengthBox;

class PaperChooser : public QObject
{
    Q_OBJECT

public:
    /// The widgets are the window's. `ownSize` holds the two sides and shows for a size of the user's own only.
    struct Parts
    {
        QComboBox *papers;
        QWidget *ownSize;
        LengthBox *width;
        LengthBox *height;
    };
    PaperChooser(const Parts &parts, QObject *parent);

    /// Shows the papers of a printer with the chosen one selected; nothing is reported.
    void offer(const PrintTarget &target);
    bool isEmpty() const;
    /// Takes what stands in the fields, before it is printed. False when a size was corrected just now, and nobody can
    /// have read of it.
    bool commit();

Q_SIGNALS:
    void chose(const host::ChosenPaper &paper); // a person did
    /// The size that was chosen last is not the one that was typed.
    void corrected(const QString &sentence);

private:
    void offerOwnSize(const CustomSizeLimits &limits);
    void showSides();
    void choose();
    void chooseOther();
    std::pair<double, double> sides() const;

    Parts m_parts;
    std::pair<double, double> m_settled; // the sides that the printer has, as the fields show them
    QElapsedTimer m_corrected;           // runs since the last correction
    QString m_correction;                // that the next choice tells of
    double m_pointsPerUnit;
    std::vector<PaperEntry> m_papers;
};

} // namespace host
