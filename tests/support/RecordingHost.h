// A host for panels that writes down what it is asked, and that reports no change: what a panel then knows it has read
// by itself.
#pragma once

#include "PPDText.h"

#include "PDEPlugInInterface.h"

#include <QFile>

namespace support {

class RecordingHost : public PDEPluginCallback_v100_
{
public:
    const printing::Session *printSession() const override { return &m_session; }
    const printing::Settings *printSettings() const override { return &settings; }
    const printing::PageFormat *pageFormat() const override { return &m_format; }
    const printing::Printer *PMPrinter() const override { return &m_printer; }
    ppd_file_t *ppdFile() const override { return m_ppd.get(); }
    bool willChangePPDOptionKeyValue(const QString &key, const QString &choice) override
    {
        asked.append(key + '=' + choice);
        if (marksChoices)
            mark(key, choice);
        return true;
    }

    /// Nothing is marked at first but the defaults, or nothing at all.
    void usePPD(const PPDText &text, bool withDefaults = true)
    {
        m_ppd.reset(ppdOpenFile(QFile::encodeName(text.file()).constData()));
        if (withDefaults)
            ppdMarkDefaults(m_ppd.get());
    }
    void mark(const QString &key, const QString &choice)
    {
        ppdMarkOption(m_ppd.get(), key.toUtf8().constData(), choice.toUtf8().constData());
    }

    QStringList asked;
    bool marksChoices = true;
    printing::Settings settings;
    printing::Printer m_printer;

private:
    printing::Session m_session;
    printing::PageFormat m_format;
    printing::PPDFile m_ppd;
};

} // namespace support
