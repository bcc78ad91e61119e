// PPDs looked over, as tests do it.
#pragma once

#include "Lint/LintReport.h"
#include "Print.h"
#include "Results.h"

#include "Foundation/UserDefaults.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace support {

inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error(path.toStdString());
    return file.readAll();
}

inline QByteArray fullPPD() { return contentOf(QN_SOURCE_DIR "/examples/ppd/full.ppd"); }

/// The text with another one in place of what must be in it.
inline QByteArray edited(QByteArray text, const QByteArray &from, const QByteArray &to)
{
    const qsizetype at = text.indexOf(from);
    if (at < 0)
        throw std::runtime_error("not there: " + from.toStdString());
    return text.replace(at, from.size(), to);
}

class LintTest : public testing::Test
{
protected:
    QString fileOf(const QByteArray &content)
    {
        const QString path = m_directory.filePath("printer.ppd");
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        return path;
    }
    host::Linted lint(const QByteArray &content) { return value(host::lint(fileOf(content), {})); }
    /// Those of one check, "line: message".
    QStringList found(const QByteArray &content, const QString &check)
    {
        QStringList result;
        for (const PDEFinding &each : lint(content).findings)
            if (each.check == check)
                result.append(QString("%1: %2").arg(each.line).arg(each.message));
        return result;
    }

    QTemporaryDir m_directory;
    foundation::ScopedDefaults m_defaults{m_directory.filePath("defaults.ini")};
};

} // namespace support
