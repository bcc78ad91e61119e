// The box that tells of a job that failed. The document is in our hands only: it goes with the box.
#include "JobFailedBox.h"

#include "Foundation/PlainText.h"
#include "Foundation/RegularFile.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QSaveFile>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace host {

namespace {

constexpr int kWidthInLetters = 56;

/// What a folder takes as a name.
QString fileName(const Document &document)
{
    QString name = foundation::plainLine(document.title()).replace('/', '_');
    const QString ending = '.' + document.extension();
    return name.endsWith(ending, Qt::CaseInsensitive) ? name : name + ending;
}

} // namespace

JobFailedBox::JobFailedBox(std::shared_ptr<Document> document)
    : m_document(std::move(document))
    , m_sentence(new QLabel)
{
    setWindowTitle(m_document ? tr("%1 Was Not Printed").arg(foundation::plainLine(m_document->title()))
                              : tr("A Document Was Not Printed"));
    m_sentence->setTextFormat(Qt::PlainText);
    m_sentence->setWordWrap(true);
    m_sentence->setMinimumWidth(kWidthInLetters * fontMetrics().averageCharWidth());
    m_sentence->setMinimumHeight(3 * fontMetrics().lineSpacing()); // so that the box stands still
    auto *const buttons = new QDialogButtonBox;
    if (m_document) {
        auto *const again = buttons->addButton(tr("Try &Again"), QDialogButtonBox::AcceptRole);
        auto *const other = buttons->addButton(tr("Another &Printer…"), QDialogButtonBox::ActionRole);
        const bool isPDF = m_document->extension() == "pdf";
        auto *const save = buttons->addButton(isPDF ? tr("&Save as PDF…") : tr("&Save…"), QDialogButtonBox::ActionRole);
        connect(again, &QPushButton::clicked, this, [this] {
            setBusy(true);
            Q_EMIT againWanted();
        });
        connect(other, &QPushButton::clicked, this, &JobFailedBox::otherPrinterWanted);
        connect(save, &QPushButton::clicked, this, &JobFailedBox::askWhere);
        m_ways = {again, other, save};
    }
    buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *const rows = new QVBoxLayout(this);
    rows->addWidget(m_sentence);
    rows->addWidget(buttons);
}

void JobFailedBox::tell(const QString &sentence)
{
    setBusy(false);
    m_sentence->setText(foundation::withoutControls(sentence));
}

void JobFailedBox::setBusy(bool isBusy)
{
    if (isBusy)
        m_sentence->setText(tr("Printing…"));
    for (QPushButton *way : m_ways)
        way->setEnabled(!isBusy);
}

void JobFailedBox::askWhere()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    auto *const box = new QFileDialog(this, tr("Save the Document"), folder);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setAcceptMode(QFileDialog::AcceptSave);
    box->selectFile(fileName(*m_document));
    connect(box, &QFileDialog::fileSelected, this, &JobFailedBox::saveAs);
    box->open();
}

/// All of it or nothing.
void JobFailedBox::saveAs(const QString &path)
{
    QSaveFile file(path);
    bool isWritten = file.open(QIODevice::WriteOnly);
    m_document->rewind();
    while (isWritten) {
        const auto part = m_document->read();
        if (part && part->isEmpty() && file.commit())
            return accept(); // the person has it now
        isWritten = part && !part->isEmpty() && file.write(*part) == part->size();
    }
    tell(QString("%1: %2").arg(path, foundation::fileErrorText(file)));
}

} // namespace host
