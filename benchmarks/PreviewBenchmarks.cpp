// What a person waits for who looks at the page before it is printed: the first picture, the picture after a choice,
// another page. Everything that draws runs as it does for them: pdfinfo and pdftoppm as processes of their own.
#include "Dialog/PagePreview.h"
#include "Foundation/UserDefaults.h"

#include <QApplication>
#include <QEventLoop>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <array>
#include <memory>

using namespace host;

namespace {

constexpr auto kTicket = QN_SOURCE_DIR "/examples/documents/ticket.pdf";
constexpr auto kPPD = QN_SOURCE_DIR "/examples/ppd/full.ppd";
constexpr QSize kFit{224, 317}; // A4 as it stands in the window
constexpr int kPages = 500;

/// A dialog on a PPD file, with its preview.
class Previewed
{
public:
    explicit Previewed(const QString &document)
        : m_dialog(request(), *Document::open(document))
        , m_preview(m_dialog)
    {
        if (const auto started = m_dialog.start(); !started)
            qFatal("%s", qPrintable(started.problem().sentence));
        m_dialog.prepareAll();
        m_preview.setSize(kFit);
    }
    PrintDialog &dialog() { return m_dialog; }
    PagePreview &preview() { return m_preview; }
    void wait()
    {
        QCoreApplication::processEvents();
        while (m_preview.isBusy())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (m_preview.picture().isNull())
            qFatal("%s", qPrintable(m_preview.problem()));
    }

private:
    static PrintRequest request()
    {
        PrintRequest request;
        request.ppd = kPPD;
        return request;
    }
    PrintDialog m_dialog;
    PagePreview m_preview;
};

QString manyPages()
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath("pages.pdf");
    QPdfWriter writer(path);
    writer.setPageSize(QPageSize(QPageSize::A4));
    QPainter painter(&writer);
    for (int page = 1; page <= kPages; ++page) {
        for (int line = 0; line < 50; ++line)
            painter.drawText(200, 200 + line * 250,
                             QStringLiteral("Page %1, line %2 of an invoice").arg(page).arg(line));
        if (page < kPages)
            writer.newPage();
    }
    return path;
}

void firstPicture(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto previewed = std::make_unique<Previewed>(kTicket);
        state.ResumeTiming();
        previewed->preview().setShown(true);
        previewed->wait();
        state.PauseTiming();
        previewed.reset();
        state.ResumeTiming();
    }
}

void pictureAfterAChoice(benchmark::State &state)
{
    constexpr std::array kMethods{"Binary", "Dither", "ErrorDiffusion"};
    Previewed previewed(kTicket);
    previewed.preview().setShown(true);
    previewed.wait();
    auto &session = const_cast<DialogSession &>(dynamic_cast<PPDTarget &>(*previewed.dialog().target()).session());
    std::size_t next = 0;
    for (auto _ : state) {
        session.mark("QnHalftonePattern", kMethods.at(next++ % kMethods.size()));
        previewed.wait();
    }
}

void anotherPageOfMany(benchmark::State &state)
{
    static const QString document = manyPages();
    Previewed previewed(document);
    previewed.preview().setShown(true);
    previewed.wait();
    bool isLast = false;
    for (auto _ : state) {
        isLast = !isLast;
        previewed.preview().setPage(isLast ? kPages - 1 : kPages - 2);
        previewed.wait();
    }
}

BENCHMARK(firstPicture)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(pictureAfterAChoice)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(anotherPageOfMany)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char *argv[])
{
    benchmark::Initialize(&argc, argv);
    const QApplication application(argc, argv);
    const QTemporaryDir directory; // nobody's own settings
    const foundation::ScopedDefaults defaults(directory.filePath("defaults.ini"));
    benchmark::RunSpecifiedBenchmarks();
}
