// How long a person waits for the window with few and with many queues on the server.
#include "CupsServer.h"

#include "Dialog/PrintDialog.h"
#include "Window/DialogWindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QThread>

#include <benchmark/benchmark.h>

#include <map>
#include <memory>

using namespace host;

namespace {

/// Makes a server with so many queues the one that is asked.
void useServerWith(std::int64_t queues)
{
    static std::map<std::int64_t, std::unique_ptr<support::CupsServer>> servers;
    auto &server = servers[queues];
    if (!server) {
        server = std::make_unique<support::CupsServer>();
        if (const auto problem = server->start())
            qFatal("%s", qPrintable(*problem));
        for (std::int64_t i = 0; i < queues; ++i)
            if (!server->addQueue(QString("queue%1").arg(i), "usb://Qn/Thermal?serial=1"))
                qFatal("queues can't be added");
    }
    server->adoptEnvironment();
}

PrintRequest requestForTheFirst()
{
    PrintRequest request;
    request.queue = "queue0";
    return request;
}

enum class Until { firstFrame, canPrint, allOffered };

/// Each window is left only when all has come to rest, so that one does not slow down the next.
template <Until until>
void openWindow(benchmark::State &state)
{
    constexpr int kMilliseconds = 20000;
    useServerWith(state.range(0));
    for (auto _ : state) {
        QElapsedTimer clock;
        clock.start();
        qint64 reached = 0;
        const auto reach = [&](bool is) {
            if (is && reached == 0)
                reached = clock.nsecsElapsed();
        };
        PrintDialog dialog(requestForTheFirst(), nullptr);
        if (!dialog.start())
            return state.SkipWithError("the dialog does not start");
        DialogWindow window(dialog);
        window.show();
        benchmark::DoNotOptimize(window.grab());
        reach(until == Until::firstFrame);
        const auto canPrint = [&] { return dialog.state() == PrintDialog::State::ready; };
        while (!(canPrint() && std::ssize(dialog.printers()) == state.range(0))) {
            if (clock.elapsed() > kMilliseconds)
                return state.SkipWithError("the printers do not come");
            QThread::usleep(100); // leaves the processor to the server
            QCoreApplication::processEvents();
            reach(until == Until::canPrint && canPrint());
        }
        reach(true);
        state.SetIterationTime(static_cast<double>(reached) / 1e9);
    }
}

BENCHMARK(openWindow<Until::firstFrame>)->Arg(2)->Arg(200)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(openWindow<Until::canPrint>)->Arg(2)->Arg(200)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(openWindow<Until::allOffered>)->Arg(2)->Arg(200)->Unit(benchmark::kMillisecond)->UseManualTime();

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
