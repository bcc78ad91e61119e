// docs/bundles.md tells of every function of the border between dialog and bundle.
#include "Print.h"

#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

QString textOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

TEST(TheDocumentOfBundles, TellsOfEveryFunctionOfTheBorder)
{
    static const QRegularExpression function(R"(virtual [^;{]*?\b(\w+)\((?!\) = default))");
    const QString document = textOf(QN_SOURCE_DIR "/docs/bundles.md");
    int functions = 0;
    for (const char *header : {"PDEPlugInInterface.h", "PDECheckInterface.h"}) {
        for (const auto &match : function.globalMatch(textOf(QString(QN_SOURCE_DIR "/PDEBaseClass/") + header))) {
            if (match.captured(0).contains('~'))
                continue;
            ++functions;
            EXPECT_TRUE(document.contains('`' + match.captured(1) + '`')) << match.captured(1).toStdString();
        }
    }
    EXPECT_GE(functions, 30);
}

} // namespace
