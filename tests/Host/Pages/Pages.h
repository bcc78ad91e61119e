// What tests of pages lay out, and on what.
#pragma once

#include "PDF.h"
#include "Print.h"
#include "Results.h"

#include "Pages/LaidOut.h"

#include <QFile>
#include <QTemporaryDir>

/// Letter with a margin of half an inch: 75 columns, 60 lines.
inline const host::Sheet kLetter{{612, 792}, QRectF(36, 36, 540, 720)};

class Pages : public testing::Test
{
protected:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    std::shared_ptr<host::Document> document(const QByteArray &content, const QString &name = "a.txt") const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        file.close();
        return support::value(host::Document::open(path(name)));
    }
    support::PDF pdf(const QByteArray &content, const host::Sheet &sheet = kLetter) const
    {
        return support::PDF(support::value(host::laidOut(document(content), sheet)));
    }
    QString refusal(const QByteArray &content, const QString &name = "a.txt", const host::Sheet &sheet = kLetter) const
    {
        return support::sentence(host::laidOut(document(content, name), sheet));
    }
    QTemporaryDir m_folder;
};
