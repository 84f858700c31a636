// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// A 64-channel console in one window under the library's style sheet: each channel strip a
// level meter, a fader and a button. Every frame changes the level of each meter and moves one
// fader that is being dragged (mouse press on its handle before the frames, a move with the
// button held every frame), then lets the window's backing store paint what the widgets asked
// to repaint, as the event loop does. The same console is built from LevelMeter, Fader and
// Button, and from stock QProgressBar, QSlider and QPushButton; each reports the CPU time per
// frame, and the memory a channel strip takes (growth of the resident size while a console is
// built and first painted, measured in a fresh process of this program for each console).
//
//   bench_console [--benchmark_min_time=2]

#include <ko/qtToolkit/widget/Button.h>
#include <ko/qtToolkit/widget/Fader.h>
#include <ko/qtToolkit/widget/LevelMeter.h>

#include "FrameTimeReporter.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QBoxLayout>
#include <QEvent>
#include <QFile>
#include <QMouseEvent>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QWindow>

#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <limits>
#include <map>
#include <string>
#include <vector>

namespace {

using ko::qtToolkit::widget::Button;
using ko::qtToolkit::widget::Fader;
using ko::qtToolkit::widget::LevelMeter;

constexpr int channelCount = 64;
// Frames of levels played in a loop; consecutive frames differ for every meter.
constexpr int frameCount = 60;
constexpr float minimumLevel = -60.0f;
constexpr float maximumLevel = 15.0f;
// The dragged fader moves this many pixels a frame, back and forth around where it was grabbed.
constexpr int dragStep = 10;
constexpr int dragSteps = 6;

// A simulated programme: each channel a sine of its own phase and speed over the level range.
const std::vector<float> &levels()
{
    static const std::vector<float> table = [] {
        std::vector<float> values;
        const double twoPi = 2.0 * std::acos(-1.0);
        for (int frame = 0; frame < frameCount; ++frame) {
            for (int channel = 0; channel < channelCount; ++channel) {
                const double phase =
                    twoPi * (double(frame) / frameCount * (1 + channel % 3) + double(channel) / channelCount);
                values.push_back(minimumLevel + (maximumLevel - minimumLevel) * float(0.5 + 0.5 * std::sin(phase)));
            }
        }
        return values;
    }();
    return table;
}

int percentOf(float level)
{
    return int((level - minimumLevel) / (maximumLevel - minimumLevel) * 100.0f);
}

// The drag's offset from the grab point in frame \a frame: a triangle wave of dragStep pixels a
// frame, so that every frame moves the handle.
int dragOffset(int frame)
{
    const int period = 4 * dragSteps;
    const int phase = frame % period;
    const int steps = phase < dragSteps ? phase : phase < 3 * dragSteps ? 2 * dragSteps - phase : phase - 4 * dragSteps;
    return -steps * dragStep;
}

QRect handleRect(QSlider *slider)
{
    // initStyleOption() is protected; a pointer to it taken through a subclass is a plain
    // pointer to QSlider's member.
    struct Access : QSlider
    {
        using QSlider::initStyleOption;
    };
    QStyleOptionSlider option;
    (slider->*(&Access::initStyleOption))(&option);
    return slider->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider);
}

void sendMouse(QWidget *widget, QEvent::Type type, const QPoint &position, Qt::MouseButton button,
               Qt::MouseButtons buttons)
{
    QMouseEvent event(type, position, position, widget->mapToGlobal(position), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

// Paints what the widgets of the window asked to repaint, as the event loop does when it comes
// to the window's update request.
void paintPendingUpdates()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
}

void showAndPaint(QWidget &window)
{
    window.show();
    for (int i = 0; i < 100 && !(window.windowHandle() != nullptr && window.windowHandle()->isExposed()); ++i)
        QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    paintPendingUpdates();
}

// One console: the window, and per channel what a frame changes.
class Console
{
public:
    virtual ~Console() = default;
    virtual void setLevel(int channel, float level) = 0;
    virtual QSlider *fader(int channel) const = 0;

    QWidget window;

protected:
    void addStrip(QWidget *meter, QSlider *fader, QPushButton *button)
    {
        auto *strip = new QWidget(&window);
        auto *column = new QVBoxLayout(strip);
        column->setContentsMargins(1, 1, 1, 1);
        column->setSpacing(2);
        auto *row = new QHBoxLayout;
        row->setSpacing(1);
        meter->setFixedSize(14, 200);
        fader->setFixedHeight(200);
        fader->setRange(0, 100);
        fader->setValue(50);
        row->addWidget(meter);
        row->addWidget(fader);
        column->addLayout(row);
        column->addWidget(button);
        m_layout->addWidget(strip);
    }

    QHBoxLayout *m_layout = new QHBoxLayout(&window);
};

class ToolkitConsole : public Console
{
public:
    ToolkitConsole(int channels = channelCount)
    {
        m_layout->setSpacing(0);
        for (int channel = 0; channel < channels; ++channel) {
            auto *meter = new LevelMeter;
            meter->setOrientation(Qt::Vertical);
            auto *fader = new Fader;
            m_meters.push_back(meter);
            m_faders.push_back(fader);
            addStrip(meter, fader, new Button(QStringLiteral("M%1").arg(channel + 1)));
        }
    }

    void setLevel(int channel, float level) override { m_meters[std::size_t(channel)]->setLevel(level); }
    QSlider *fader(int channel) const override { return m_faders[std::size_t(channel)]; }

private:
    std::vector<LevelMeter *> m_meters;
    std::vector<Fader *> m_faders;
};

class StockConsole : public Console
{
public:
    StockConsole(int channels = channelCount)
    {
        m_layout->setSpacing(0);
        for (int channel = 0; channel < channels; ++channel) {
            auto *bar = new QProgressBar;
            bar->setOrientation(Qt::Vertical);
            bar->setRange(0, 100);
            auto *slider = new QSlider(Qt::Vertical);
            m_bars.push_back(bar);
            m_sliders.push_back(slider);
            addStrip(bar, slider, new QPushButton(QStringLiteral("M%1").arg(channel + 1)));
        }
    }

    void setLevel(int channel, float level) override { m_bars[std::size_t(channel)]->setValue(percentOf(level)); }
    QSlider *fader(int channel) const override { return m_sliders[std::size_t(channel)]; }

private:
    std::vector<QProgressBar *> m_bars;
    std::vector<QSlider *> m_sliders;
};

// One frame: every level set, the dragged fader moved, then painted. Not inlined, so that a
// profiler can count the instructions of frames alone
// (valgrind --tool=callgrind --toggle-collect='*playFrame*').
Q_NEVER_INLINE void playFrame(Console &console, const float *frameLevels, QSlider *dragged, const QPoint &grab,
                              int offset)
{
    for (int channel = 0; channel < channelCount; ++channel)
        console.setLevel(channel, frameLevels[channel]);
    sendMouse(dragged, QEvent::MouseMove, grab + QPoint(0, offset), Qt::NoButton, Qt::LeftButton);
    paintPendingUpdates();
}

template <typename ConsoleType>
void runConsole(benchmark::State &state)
{
    ConsoleType console;
    showAndPaint(console.window);

    // The fader of the channel in the middle is grabbed at its handle and dragged.
    QSlider *dragged = console.fader(channelCount / 2);
    const QPoint grab = handleRect(dragged).center();
    sendMouse(dragged, QEvent::MouseButtonPress, grab, Qt::LeftButton, Qt::LeftButton);
    paintPendingUpdates();

    const std::vector<float> &table = levels();
    int frame = 0;
    const int valueBefore = dragged->value();
    bool moved = false;
    for (auto _ : state) {
        playFrame(console, table.data() + frame % frameCount * channelCount, dragged, grab, dragOffset(frame + 1));
        moved = moved || dragged->value() != valueBefore;
        ++frame;
    }
    sendMouse(dragged, QEvent::MouseButtonRelease, grab, Qt::LeftButton, Qt::NoButton);
    paintPendingUpdates();
    if (frame > 2 * dragSteps && !moved)
        state.SkipWithError("the dragged fader did not move");
}

void BM_ToolkitConsole(benchmark::State &state)
{
    runConsole<ToolkitConsole>(state);
}
BENCHMARK(BM_ToolkitConsole)->Unit(benchmark::kMicrosecond);

void BM_StockConsole(benchmark::State &state)
{
    runConsole<StockConsole>(state);
}
BENCHMARK(BM_StockConsole)->Unit(benchmark::kMicrosecond);

// The resident size of this process in bytes.
long long residentBytes()
{
    std::ifstream statm("/proc/self/statm");
    long long pages = 0;
    long long resident = 0;
    statm >> pages >> resident;
    return resident * sysconf(_SC_PAGESIZE);
}

// Run in a fresh process: a one-channel console of the same kind is built, shown and dropped
// first, so that what any first console loads (style sheet rules, fonts, the style's caches) is
// not counted; then the growth of the resident size while the full console is built, shown and
// painted, per channel strip.
template <typename ConsoleType>
long long measureBytesPerStrip()
{
    {
        ConsoleType warmUp(1);
        showAndPaint(warmUp.window);
    }
    QCoreApplication::processEvents();
    const long long before = residentBytes();
    ConsoleType console;
    showAndPaint(console.window);
    const long long after = residentBytes();
    return (after - before) / channelCount;
}

// Bytes per strip of the console \a kind ("toolkit" or "stock"), measured by a fresh process of
// this program; -1 when that fails.
long long bytesPerStripInFreshProcess(const QString &kind)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--memory=") + kind});
    if (!process.waitForFinished(120000) || process.exitCode() != 0)
        return -1;
    bool ok = false;
    const long long bytes = process.readAllStandardOutput().trimmed().toLongLong(&ok);
    return ok ? bytes : -1;
}

void printComparison(const FrameTimeReporter &reporter)
{
    const double ours = reporter.microsecondsPerFrame("BM_ToolkitConsole");
    const double stock = reporter.microsecondsPerFrame("BM_StockConsole");
    const long long oursBytes = bytesPerStripInFreshProcess(QStringLiteral("toolkit"));
    const long long stockBytes = bytesPerStripInFreshProcess(QStringLiteral("stock"));
    std::printf("\nConsole of 64 channel strips under qtToolkit.qss, every meter changed and one fader "
                "dragged each frame:\n");
    std::printf("  microseconds CPU per frame:  LevelMeter/Fader/Button %9.1f   QProgressBar/QSlider/QPushButton %9.1f\n",
                ours, stock);
    std::printf("  bytes per channel strip:     LevelMeter/Fader/Button %9lld   QProgressBar/QSlider/QPushButton %9lld\n",
                oursBytes, stockBytes);
    std::printf("ratio ours/stock console: %.3f (target <= 0.3)\n", ours / stock);
}

} // namespace

int main(int argc, char **argv)
{
    // Painting needs no display.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QFile sheet(QStringLiteral(":/qtToolkit.qss"));
    if (!sheet.open(QIODevice::ReadOnly | QIODevice::Text)) {
        std::fprintf(stderr, "cannot read :/qtToolkit.qss\n");
        return 1;
    }
    app.setStyleSheet(QString::fromUtf8(sheet.readAll()));

    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.contains(QStringLiteral("--memory=toolkit"))) {
        std::printf("%lld\n", measureBytesPerStrip<ToolkitConsole>());
        return 0;
    }
    if (arguments.contains(QStringLiteral("--memory=stock"))) {
        std::printf("%lld\n", measureBytesPerStrip<StockConsole>());
        return 0;
    }

    return runBenchmarks(argc, argv, printComparison);
}
