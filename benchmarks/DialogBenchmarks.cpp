// What a person waits for: opening a dialog, showing a panel, changing the paper, typing; on the example PPD and on a
// generated one with 300 further options of 40 choices each.
#include "PPDText.h"
#include "Session/DialogSession.h"

#include "Foundation/UserDefaults.h"
#include "Toolkit/Alert.h"
#include "Toolkit/Controls.h"

#include <QApplication>
#include <QComboBox>
#include <QPixmap>
#include <QProcess>
#include <QRadioButton>
#include <QSettings>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <array>

using host::DialogSession;

namespace {

constexpr int kFurtherOptions = 300;
constexpr int kChoicesOfEach = 40;

QString largePPD()
{
    support::PPDText ppd;
    ppd.allOptions();
    for (int i = 0; i < kFurtherOptions; ++i) {
        support::PPDText::Choices choices;
        for (int j = 0; j < kChoicesOfEach; ++j)
            choices.emplace_back("C" + QByteArray::number(j), "Choice " + QByteArray::number(j));
        ppd.option("Further" + QByteArray::number(i), "Further Option", "C0", choices);
    }
    return ppd.file();
}

QString ppdOf(const benchmark::State &state)
{
    static const QString large = largePPD();
    return state.range(0) == 0 ? QString(QN_SOURCE_DIR "/examples/ppd/full.ppd") : large;
}

std::unique_ptr<DialogSession> open(const QString &ppd, DialogSession::Prepare prepare)
{
    DialogSession::Parameters parameters;
    parameters.ppdPath = ppd;
    auto opened = DialogSession::open(parameters);
    if (!opened)
        qFatal("%s", qPrintable(opened.problem().sentence));
    auto session = *std::move(opened);
    session->start(prepare);
    return session;
}

template <class Control>
Control &find(DialogSession &session, const QString &panel, const QString &name)
{
    for (const auto &control : session.panel(panel)->inspection().controls())
        if (control.name == name)
            return *qobject_cast<Control *>(control.widget);
    qFatal("no control %s", qPrintable(name));
}

void openSession(benchmark::State &state)
{
    const QString ppd = ppdOf(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(open(ppd, DialogSession::Prepare::everyPanel));
}

void openSessionWithFirstPanelOnly(benchmark::State &state)
{
    const QString ppd = ppdOf(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(open(ppd, DialogSession::Prepare::firstPanel));
}

void firstShow(benchmark::State &state)
{
    const QString ppd = ppdOf(state);
    for (auto _ : state) {
        state.PauseTiming();
        auto session = open(ppd, DialogSession::Prepare::nothing);
        state.ResumeTiming();
        session->show(*session->panel("basic"));
        state.PauseTiming();
        session.reset();
        state.ResumeTiming();
    }
}

void changePaper(benchmark::State &state)
{
    auto session = open(ppdOf(state), DialogSession::Prepare::everyPanel);
    session->show(*session->panel("basic"));
    bool roll = false;
    for (auto _ : state)
        session->changePaper(session->paperNamed((roll = !roll) ? "RollA4" : "A4"));
}

/// Reads every marked choice again and refreshes every control.
void refreshEveryFlag(benchmark::State &state)
{
    auto session = open(ppdOf(state), DialogSession::Prepare::everyPanel);
    PDEPanel &panel = *session->panel("basic");
    session->show(panel);
    for (auto _ : state)
        panel.restoreValuesAndReturnError(nullptr);
}

void typeAmount(benchmark::State &state)
{
    auto session = open(ppdOf(state), DialogSession::Prepare::everyPanel);
    session->show(*session->panel("basic"));
    auto &field = find<toolkit::FieldControl>(*session, "basic", "mPaperFeedTxt");
    bool one = false;
    for (auto _ : state)
        field.paste((one = !one) ? "1" : "2");
}

void stepAmount(benchmark::State &state)
{
    auto session = open(ppdOf(state), DialogSession::Prepare::everyPanel);
    session->show(*session->panel("basic"));
    auto &stepper = find<toolkit::StepperControl>(*session, "basic", "mPaperFeedStepper");
    int direction = 1;
    for (auto _ : state)
        stepper.step(direction = -direction);
}

/// What Qt itself asks for a window with as many controls as the two panels have: the yardstick for opening.
void emptyWindowOfAsManyWidgets(benchmark::State &state)
{
    for (auto _ : state) {
        QWidget window;
        for (int i = 0; i < 20; ++i)
            new QLabel("Label", &window);
        for (int i = 0; i < 14; ++i)
            (new QComboBox(&window))->addItems({"a", "b", "c", "d"});
        for (int i = 0; i < 10; ++i)
            new QCheckBox("Check", &window);
        for (int i = 0; i < 6; ++i)
            new QRadioButton("Radio", &window);
        benchmark::DoNotOptimize(window.grab());
    }
}

/// The whole program, from its start to a painted dialog; the picture's file is part of it.
void wholeProcess(benchmark::State &state)
{
    const QTemporaryDir directory;
    const QString ppd = ppdOf(state);
    for (auto _ : state)
        QProcess::execute(QN_PROGRAM, {"shot", "--ppd", ppd, directory.filePath("shot.png")});
}

constexpr std::array kPPDs{0, 1}; // 0: the example, 1: the large one

} // namespace

#define QN_BENCHMARK(name)                                                                                             \
    BENCHMARK(name)->ArgName("large")->Arg(kPPDs[0])->Arg(kPPDs[1])->Unit(benchmark::kMicrosecond)
QN_BENCHMARK(openSession);
QN_BENCHMARK(openSessionWithFirstPanelOnly);
QN_BENCHMARK(firstShow);
QN_BENCHMARK(changePaper);
QN_BENCHMARK(refreshEveryFlag);
QN_BENCHMARK(typeAmount);
QN_BENCHMARK(stepAmount);
BENCHMARK(emptyWindowOfAsManyWidgets)->Unit(benchmark::kMicrosecond);
QN_BENCHMARK(wholeProcess)->UseRealTime();

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName("qnprint-benchmarks");
    const QTemporaryDir directory;
    auto &defaults = foundation::UserDefaults::standard();
    defaults.useStore(std::make_unique<QSettings>(directory.filePath("defaults.ini"), QSettings::IniFormat));
    toolkit::Alert::setPresenter([](const toolkit::Alert &) {});
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    defaults.useStore(nullptr);
    return 0;
}
