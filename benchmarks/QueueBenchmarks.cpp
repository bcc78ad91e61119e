// How long a person waits for the window with few and with many queues on the server.
#include "CupsServer.h"
#include "DialogWindow.h"
#include "QueueSupply.h"

#include <QApplication>
#include <QComboBox>
#include <QPushButton>

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

CommandLine line()
{
    CommandLine line;
    line.queue = "queue0";
    line.language = "en";
    return line;
}

template <class Condition>
void runUntil(Condition condition)
{
    while (!condition())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

bool canPrint(const DialogWindow &window)
{
    for (const auto *button : window.findChildren<QPushButton *>())
        if (button->isDefault())
            return button->isEnabled();
    return false;
}

bool offersAll(const DialogWindow &window, std::int64_t queues)
{
    for (const auto *box : window.findChildren<QComboBox *>())
        if (box->count() == queues)
            return true;
    return false;
}

void firstFrame(benchmark::State &state)
{
    useServerWith(state.range(0));
    for (auto _ : state) {
        DialogWindow window(nullptr);
        new QueueSupply(line(), window);
        window.show();
        benchmark::DoNotOptimize(window.grab());
    }
}

void untilItPrints(benchmark::State &state)
{
    useServerWith(state.range(0));
    for (auto _ : state) {
        DialogWindow window(nullptr);
        new QueueSupply(line(), window);
        window.show();
        runUntil([&] { return canPrint(window); });
    }
}

void untilAllAreOffered(benchmark::State &state)
{
    useServerWith(state.range(0));
    for (auto _ : state) {
        DialogWindow window(nullptr);
        new QueueSupply(line(), window);
        window.show();
        runUntil([&] { return canPrint(window) && offersAll(window, state.range(0)); });
    }
}

BENCHMARK(firstFrame)->Arg(2)->Arg(200)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(untilItPrints)->Arg(2)->Arg(200)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(untilAllAreOffered)->Arg(2)->Arg(200)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
