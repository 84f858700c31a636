// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// A wall of 64 vertical level meters of 20 by 200 pixels, as a 64-channel console shows them.
// The wall is a shown window; every frame changes the level of each meter and then lets the
// window's backing store paint what the meters asked to repaint (their update regions, or the
// repaints they made at once), as the event loop does. The same wall is built from LevelMeter,
// from QProgressBar under the Fusion style, and (when Qwt is found) from QwtThermo with its alarm
// zone on; each reports microseconds per meter per frame, and the ratios are printed at the end.
//
//   bench_levelMeter [--benchmark_min_time=2]

#include <ko/qtToolkit/widget/LevelMeter.h>
#include <ko/qtToolkit/widget/LevelMeter_p.h>

#include "FrameTimeReporter.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QEvent>
#include <QWindow>
#include <QProgressBar>
#include <QStyleFactory>

#ifdef KO_HAVE_QWT
#include <qwt_thermo.h>
#endif

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <limits>
#include <map>
#include <string>
#include <vector>

namespace {

constexpr int meterCount = 64;
constexpr int meterWidth = 20;
constexpr int meterHeight = 200;
// Frames of levels played in a loop; consecutive frames differ for every meter.
constexpr int frameCount = 60;
constexpr float minimumLevel = -60.0f;
constexpr float maximumLevel = 15.0f;
// Each wall runs this many times, interleaved with the others, and its fastest run counts: a
// frame is a tenth of a millisecond, and one stall of a busy machine would otherwise decide a ratio.
constexpr int wallRepetitions = 3;

// A simulated programme: each channel a sine of its own phase and speed over the level range.
std::vector<float> makeLevels()
{
    std::vector<float> levels;
    levels.reserve(frameCount * meterCount);
    const double twoPi = 2.0 * std::acos(-1.0);
    for (int frame = 0; frame < frameCount; ++frame) {
        for (int meter = 0; meter < meterCount; ++meter) {
            const double phase = twoPi * (double(frame) / frameCount * (1 + meter % 3) + double(meter) / meterCount);
            levels.push_back(minimumLevel + (maximumLevel - minimumLevel) * float(0.5 + 0.5 * std::sin(phase)));
        }
    }
    return levels;
}

const std::vector<float> &levels()
{
    static const std::vector<float> table = makeLevels();
    return table;
}

int percentOf(float level)
{
    return int((level - minimumLevel) / (maximumLevel - minimumLevel) * 100.0f);
}

// Counts paint events, to check that a frame is painted at all.
class PaintCounter : public QObject
{
public:
    int paints = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return QObject::eventFilter(watched, event);
    }
};

// Paints what the widgets of the window asked to repaint, as the event loop does when it comes
// to the window's update request: the backing store paints the dirty regions and flushes them.
void paintPendingUpdates()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
}

// One frame: every level set, then painted. Not inlined, so that a profiler can count the
// instructions of frames alone (valgrind --tool=callgrind --toggle-collect='*playFrame*').
template <typename Meter>
Q_NEVER_INLINE void playFrame(const std::vector<Meter *> &meters, const float *frameLevels,
                               const std::function<void(Meter *, float)> &setLevel)
{
    for (std::size_t i = 0; i < meters.size(); ++i)
        setLevel(meters[i], frameLevels[i]);
    paintPendingUpdates();
}

// Builds the wall with \a create, shows it, then per frame sets every level with \a setLevel and
// paints the pending updates.
template <typename Meter>
void runWall(benchmark::State &state, const std::function<Meter *(QWidget *)> &create,
             const std::function<void(Meter *, float)> &setLevel)
{
    QWidget wall;
    wall.resize(meterCount * meterWidth, meterHeight);
    std::vector<Meter *> meters;
    for (int i = 0; i < meterCount; ++i) {
        Meter *meter = create(&wall);
        meter->setGeometry(i * meterWidth, 0, meterWidth, meterHeight);
        meters.push_back(meter);
    }
    // Shown and painted once first, so that polishing, the first layout and the first paint are
    // not measured.
    wall.show();
    for (int i = 0; i < 100 && !(wall.windowHandle() != nullptr && wall.windowHandle()->isExposed()); ++i)
        QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    paintPendingUpdates();

    const std::vector<float> &table = levels();
    int frame = 0;
    for (auto _ : state) {
        playFrame(meters, table.data() + frame * meterCount, setLevel);
        frame = (frame + 1) % frameCount;
    }

    // A frame that paints nothing measures nothing: one more, watched.
    PaintCounter counter;
    meters.front()->installEventFilter(&counter);
    setLevel(meters.front(), minimumLevel);
    setLevel(meters.front(), maximumLevel);
    paintPendingUpdates();
    if (counter.paints == 0)
        state.SkipWithError("a level change was not painted");

    // Seconds per meter and frame (shown in microseconds).
    state.counters["per_meter"] =
        benchmark::Counter(meterCount, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void BM_LevelMeterWall(benchmark::State &state)
{
    using ko::qtToolkit::widget::LevelMeter;
    runWall<LevelMeter>(
        state,
        [](QWidget *parent) {
            auto *meter = new LevelMeter(parent);
            meter->setOrientation(Qt::Vertical);
            return meter;
        },
        [](LevelMeter *meter, float level) { meter->setLevel(level); });
}
BENCHMARK(BM_LevelMeterWall)->Unit(benchmark::kMicrosecond)->Repetitions(wallRepetitions);

// Levels set so far; the meters' clock below makes 50 frames of all meters a second of them.
qint64 levelsSet = 0;

qint64 fiftyFramesASecond()
{
    return levelsSet * 20 / meterCount;
}

// The same wall with every meter holding its peak and latching clips, fed 50 times a second by
// the clock: levels reach the top, so latches engage, and peaks hold and fall as in use.
void BM_LevelMeterWallPeakAndClip(benchmark::State &state)
{
    using namespace ko::qtToolkit::widget;
    const LevelMeterClock previous = setLevelMeterClock(fiftyFramesASecond);
    runWall<LevelMeter>(
        state,
        [](QWidget *parent) {
            auto *meter = new LevelMeter(parent);
            meter->setOrientation(Qt::Vertical);
            meter->setPeakHoldEnabled(true);
            meter->setClipLatchEnabled(true);
            meter->setClipLevel(14.0f);
            return meter;
        },
        [](LevelMeter *meter, float level) {
            ++levelsSet;
            meter->setLevel(level);
        });
    setLevelMeterClock(previous);
}
BENCHMARK(BM_LevelMeterWallPeakAndClip)->Unit(benchmark::kMicrosecond)->Repetitions(wallRepetitions);

void BM_ProgressBarWall(benchmark::State &state)
{
    runWall<QProgressBar>(
        state,
        [](QWidget *parent) {
            auto *bar = new QProgressBar(parent);
            bar->setOrientation(Qt::Vertical);
            bar->setRange(0, 100);
            return bar;
        },
        [](QProgressBar *bar, float level) { bar->setValue(percentOf(level)); });
}
BENCHMARK(BM_ProgressBarWall)->Unit(benchmark::kMicrosecond)->Repetitions(wallRepetitions);

#ifdef KO_HAVE_QWT
void BM_QwtThermoWall(benchmark::State &state)
{
    runWall<QwtThermo>(
        state,
        [](QWidget *parent) {
            auto *thermo = new QwtThermo(parent);
            thermo->setOrientation(Qt::Vertical);
            thermo->setScalePosition(QwtThermo::NoScale);
            thermo->setScale(minimumLevel, maximumLevel);
            thermo->setPipeWidth(meterWidth - 4);
            thermo->setFillBrush(QColor(0x008000));
            thermo->setAlarmBrush(QColor(0xc82300));
            thermo->setAlarmLevel(10.0);
            thermo->setAlarmEnabled(true);
            return thermo;
        },
        [](QwtThermo *thermo, float level) { thermo->setValue(level); });
}
BENCHMARK(BM_QwtThermoWall)->Unit(benchmark::kMicrosecond)->Repetitions(wallRepetitions);
#endif

double microsecondsPerMeter(const FrameTimeReporter &reporter, const std::string &name)
{
    return reporter.microsecondsPerFrame(name) / meterCount;
}

void printComparison(const FrameTimeReporter &reporter)
{
    const double ours = microsecondsPerMeter(reporter, "BM_LevelMeterWall");
    const double progressBar = microsecondsPerMeter(reporter, "BM_ProgressBarWall");
    std::printf("\nMicroseconds per meter per frame (64 meters of 20x200 in a window, level change and the\n"
                "backing store's paint of what changed):\n");
    const double withPeakAndClip = microsecondsPerMeter(reporter, "BM_LevelMeterWallPeakAndClip");
    std::printf("  LevelMeter            %8.2f\n", ours);
    std::printf("  LevelMeter, peak hold and clip latch on %8.2f\n", withPeakAndClip);
    std::printf("  QProgressBar (Fusion) %8.2f\n", progressBar);
#ifdef KO_HAVE_QWT
    const double thermo = microsecondsPerMeter(reporter, "BM_QwtThermoWall");
    std::printf("  QwtThermo (alarm on)  %8.2f\n", thermo);
#endif
    std::printf("ratio peak hold and clip latch on/off: %.3f (target <= 1.2)\n", withPeakAndClip / ours);
    std::printf("ratio ours/QProgressBar: %.3f (target <= 0.1)\n", ours / progressBar);
#ifdef KO_HAVE_QWT
    std::printf("ratio ours/QwtThermo: %.3f (target <= 0.25)\n", ours / thermo);
#else
    std::printf("ratio ours/QwtThermo: not measured (Qwt not found)\n");
#endif
}

} // namespace

int main(int argc, char **argv)
{
    // Painting needs no display.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));

    // The runs of the walls are interleaved in a random order, so that a stall of the machine
    // does not fall on every run of one wall; flags given on the command line come after, and win.
    std::vector<char *> arguments(argv, argv + argc);
    char interleaved[] = "--benchmark_enable_random_interleaving=true";
    arguments.insert(arguments.begin() + 1, interleaved);
    int argumentCount = int(arguments.size());
    return runBenchmarks(argumentCount, arguments.data(), printComparison);
}
