// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/LevelMeter.h>
#include <ko/qtToolkit/widget/LevelMeter_p.h>

#include <TestSupport.h>
#include <WidgetSupport.h>

#include <QBackingStore>
#include <QMetaProperty>
#include <QPaintEvent>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

#include <cmath>
#include <limits>

using ko::qtToolkit::test::artifactPath;
using ko::qtToolkit::test::PaintCounter;
using ko::qtToolkit::widget::LevelMeter;
using ko::qtToolkit::widget::LevelMeterClock;
using ko::qtToolkit::widget::LevelMeterNotifier;
using ko::qtToolkit::widget::setLevelMeterClock;

namespace {

const QColor background(0xbbbbbb);
const QColor low(0x008000);
const QColor medium(0xfa6500);
const QColor high(0xc82300);
const QColor frame(0x575757);
const QColor red(0xff0000);

// The meter as it paints itself, on black so that any pixel it leaves out shows.
QImage paint(LevelMeter &meter, const QString &name)
{
    QImage image(meter.size(), QImage::Format_RGB32);
    image.fill(Qt::black);
    meter.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    image.save(artifactPath(QStringLiteral("LevelMeter-%1.png").arg(name)));
    return image;
}

QColor at(const QImage &image, int x, int y)
{
    return image.pixelColor(x, y);
}

// What a colour looks like under the muted or disabled wash of half-transparent white.
QColor washed(const QColor &color)
{
    auto mix = [](int c) { return (c * 127 + 255 * 128 + 127) / 255; };
    return QColor(mix(color.red()), mix(color.green()), mix(color.blue()));
}

bool near(const QColor &a, const QColor &b)
{
    return std::abs(a.red() - b.red()) <= 2 && std::abs(a.green() - b.green()) <= 2
        && std::abs(a.blue() - b.blue()) <= 2;
}

QString describe(const QColor &color)
{
    return color.name();
}

// A vertical meter of 20 by 200 pixels with the default ranges.
void makeVertical(LevelMeter &meter, const QSize &size = QSize(20, 200))
{
    meter.setOrientation(Qt::Vertical);
    meter.resize(size);
    meter.show();
}

// The runs of colours across the inner rectangle, through its middle: down a vertical meter,
// from the left along a horizontal one. Each run as (colour, first row or column).
QVector<QPair<QColor, int>> colourRuns(const QImage &image, Qt::Orientation orientation = Qt::Vertical)
{
    QVector<QPair<QColor, int>> runs;
    const bool vertical = orientation == Qt::Vertical;
    const int length = vertical ? image.height() : image.width();
    for (int i = 1; i < length - 1; ++i) {
        const QColor color = vertical ? at(image, image.width() / 2, i) : at(image, i, image.height() / 2);
        if (runs.isEmpty() || runs.last().first != color)
            runs.append({color, i});
    }
    return runs;
}

// The row of a vertical meter of height h where the gradient reaches \a fraction: position 0 is
// at row h - 1 and position 1 at row 1.
double rowOf(double fraction, int h)
{
    return (h - 1) - fraction * (h - 2);
}

// A meter inside a shown window, away from the window's corner, painted through the window's
// backing store as on a screen.
struct MeterInWindow
{
    QWidget window;
    LevelMeter *meter = new LevelMeter(&window);

    MeterInWindow(Qt::Orientation orientation, const QSize &size)
    {
        window.resize(size + QSize(30, 30));
        meter->setOrientation(orientation);
        meter->setGeometry(QRect(QPoint(11, 7), size));
        window.show();
    }

    // What the window's backing store holds of the meter: the pixels on the screen.
    QImage shown() const
    {
        QPaintDevice *device = window.backingStore()->paintDevice();
        if (device == nullptr || device->devType() != QInternal::Image)
            return {};
        return static_cast<QImage *>(device)->copy(meter->geometry()).convertToFormat(QImage::Format_RGB32);
    }

    // The meter painted completely anew, with the window behind it.
    QImage repainted()
    {
        return window.grab(meter->geometry()).toImage().convertToFormat(QImage::Format_RGB32);
    }
};


// A clock that moves only when a test says so, read by the meters while a FakeClock lives.
qint64 fakeNow = 0;

qint64 fakeClock()
{
    return fakeNow;
}

struct FakeClock
{
    LevelMeterClock previous = setLevelMeterClock(fakeClock);

    explicit FakeClock(qint64 now) { fakeNow = now; }
    ~FakeClock() { setLevelMeterClock(previous); }
    FakeClock(const FakeClock &) = delete;
    FakeClock &operator=(const FakeClock &) = delete;
};

// Levels that arrive at given times, with the peak expected after each.
struct TimedLevel
{
    qint64 time;
    float level;
    float peak;
};

} // namespace

Q_DECLARE_METATYPE(QVector<TimedLevel>)

namespace {

// The first row of a vertical meter (or last column of a horizontal one) lit for \a level.
int litEdge(const LevelMeter &meter, float level)
{
    const bool vertical = meter.orientation() == Qt::Vertical;
    const int extent = vertical ? meter.height() : meter.width();
    const int length = std::min(meter.mapValueToPixels(meter.mapLevelToValue(level)), extent - 2);
    return vertical ? extent - 1 - length : length;
}

// Counts the mouse presses that reach a widget.
class PressWatcher : public QObject
{
public:
    int presses = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::MouseButtonPress)
            ++presses;
        return QObject::eventFilter(watched, event);
    }
};
} // namespace

class tst_LevelMeter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void peakHoldSettings();
    void peakFollowsTheLevels_data();
    void peakFollowsTheLevels();
    void peakLineInTheZoneColour_data();
    void peakLineInTheZoneColour();
    void clipLatch();
    void clipLevelFollowsTheMaximumUntilSet();
    void tapReleasesTheClipLatch();
    void clipCap_data();
    void clipCap();
    void peakAndClipPaintTheSamePixelsAsAFullRepaint();
    void properties();
    void setLevel_data();
    void setLevel();
    void setLevelFollowsTheProgressBarRange();
    void levelRangeNearTheFloatLimits();
    void barRangeNearTheIntLimits();
    void mappings();
    void mapValueToPixelsUsesTheFullExtent_data();
    void mapValueToPixelsUsesTheFullExtent();
    void setLevelRange();
    void nonFiniteRangesAreRefused_data();
    void nonFiniteRangesAreRefused();
    void setMinimumAndMaximumLevel_data();
    void setMinimumAndMaximumLevel();
    void thresholds_data();
    void thresholds();
    void repaintsOnlyWhenTheValueChanges();
    void threeBandsWithHardEdges();
    void unlitPartInBackgroundColor_data();
    void unlitPartInBackgroundColor();
    void onePixelFrame();
    void mutedIsWashedOutWithRedDoubleFrame();
    void disabledIsWashedOutWithGreyFrame();
    void horizontalGradientIsMirrored();
    void colourSetters();
    void translucentColoursAreLayered();
    void tinyMeters_data();
    void tinyMeters();
    void gradientFollowsResizeAndThresholdsNotRange();
    void levelChangeRepaintsTheChangedStrip_data();
    void levelChangeRepaintsTheChangedStrip();
    void noRepaintWhileTheLitLengthStays_data();
    void noRepaintWhileTheLitLengthStays();
    void stripsOfAWallEndOnTheWindowGrid();
    void valueSetPastTheMeterRepaintsItWhole();
    void whatAReceiverOfValueChangedRepaintsIsPainted();
    void stripsPaintTheSamePixelsAsAFullRepaint_data();
    void stripsPaintTheSamePixelsAsAFullRepaint();
};

void tst_LevelMeter::defaults()
{
    LevelMeter meter;
    QCOMPARE(meter.level(), -60.0f);
    QCOMPARE(meter.minimumLevel(), -60.0f);
    QCOMPARE(meter.maximumLevel(), 15.0f);
    QCOMPARE(meter.mediumThresholdLevel(), -20.0f);
    QCOMPARE(meter.highThresholdLevel(), 10.0f);
    QCOMPARE(meter.isMuted(), false);
    // The progress bar keeps QProgressBar's own range and value.
    const QProgressBar plain;
    QCOMPARE(meter.minimum(), plain.minimum());
    QCOMPARE(meter.maximum(), plain.maximum());
    QCOMPARE(meter.value(), plain.value());
    QCOMPARE(meter.orientation(), plain.orientation());
}

void tst_LevelMeter::peakHoldSettings()
{
    LevelMeter meter;
    QVERIFY(!meter.isPeakHoldEnabled());
    QCOMPARE(meter.peakHoldTime(), 1500);
    QCOMPARE(meter.peakDecayRate(), 20.0f);
    // While peak hold is off, the peak is the level.
    meter.setLevel(5.0f);
    meter.setLevel(-30.0f);
    QCOMPARE(meter.peakLevel(), -30.0f);

    meter.setPeakHoldTime(-20);
    QCOMPARE(meter.peakHoldTime(), 0);
    meter.setPeakHoldTime(250);
    QCOMPARE(meter.peakHoldTime(), 250);
    QTest::ignoreMessage(QtWarningMsg, "LevelMeter::setPeakDecayRate: ignoring a rate that is negative or not a number");
    meter.setPeakDecayRate(-1.0f);
    QTest::ignoreMessage(QtWarningMsg, "LevelMeter::setPeakDecayRate: ignoring a rate that is negative or not a number");
    meter.setPeakDecayRate(std::numeric_limits<float>::quiet_NaN());
    QCOMPARE(meter.peakDecayRate(), 20.0f);
    meter.setPeakDecayRate(0.0f);
    QCOMPARE(meter.peakDecayRate(), 0.0f);

    // Switched on, the peak starts at the level; switched off, it is the level again.
    meter.setPeakHoldEnabled(true);
    QVERIFY(meter.isPeakHoldEnabled());
    QCOMPARE(meter.peakLevel(), -30.0f);
    meter.setLevel(0.0f);
    meter.setLevel(-50.0f);
    QCOMPARE(meter.peakLevel(), 0.0f);
    meter.resetPeak();
    QCOMPARE(meter.peakLevel(), -50.0f);
    meter.setLevel(3.0f);
    meter.setPeakHoldEnabled(false);
    meter.setLevel(-10.0f);
    QCOMPARE(meter.peakLevel(), -10.0f);
}

void tst_LevelMeter::peakFollowsTheLevels_data()
{
    QTest::addColumn<int>("holdTime");
    QTest::addColumn<float>("decayRate");
    QTest::addColumn<QVector<TimedLevel>>("levels");

    // Peak hold is switched on at time 0 with the level at -60.
    QTest::newRow("raised at once") << 1500 << 20.0f
                                    << QVector<TimedLevel>{{10, -30.0f, -30.0f}, {20, -10.0f, -10.0f}, {30, -40.0f, -10.0f}};
    QTest::newRow("held, then falling at 20 dB/s")
        << 1500 << 20.0f
        << QVector<TimedLevel>{{0, 0.0f, 0.0f},      {1500, -40.0f, 0.0f},  {2000, -40.0f, -10.0f},
                               {2500, -40.0f, -20.0f}, {2600, -55.0f, -22.0f}};
    QTest::newRow("never below the level, which holds it anew")
        << 1000 << 20.0f
        << QVector<TimedLevel>{{0, 0.0f, 0.0f}, {2000, -30.0f, -20.0f}, {2600, -30.0f, -30.0f},
                               {3500, -60.0f, -30.0f}, {3700, -60.0f, -32.0f}};
    QTest::newRow("a higher level during the fall") << 100 << 10.0f
                                                    << QVector<TimedLevel>{{0, -10.0f, -10.0f}, {1100, -40.0f, -20.0f},
                                                                           {1200, -15.0f, -15.0f}, {1300, -40.0f, -15.0f},
                                                                           {1400, -40.0f, -16.0f}};
    QTest::newRow("rate 0 holds for ever") << 0 << 0.0f
                                           << QVector<TimedLevel>{{0, 12.0f, 12.0f}, {100000, -60.0f, 12.0f}};
    QTest::newRow("levels beyond the range are clamped") << 0 << 1000.0f
                                                         << QVector<TimedLevel>{{0, 40.0f, 15.0f}, {10, -100.0f, 5.0f},
                                                                                {1000, -100.0f, -60.0f}};
}

void tst_LevelMeter::peakFollowsTheLevels()
{
    QFETCH(int, holdTime);
    QFETCH(float, decayRate);
    QFETCH(QVector<TimedLevel>, levels);

    const FakeClock clock(0);
    LevelMeter meter;
    meter.setPeakHoldTime(holdTime);
    meter.setPeakDecayRate(decayRate);
    meter.setPeakHoldEnabled(true);
    QCOMPARE(meter.peakLevel(), -60.0f);
    for (const TimedLevel &step : levels) {
        fakeNow = step.time;
        meter.setLevel(step.level);
        QVERIFY2(std::abs(meter.peakLevel() - step.peak) < 1e-4f,
                 qPrintable(QStringLiteral("at %1 ms: peak %2, expected %3").arg(step.time).arg(meter.peakLevel()).arg(step.peak)));
    }
}

void tst_LevelMeter::peakLineInTheZoneColour_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<float>("peak");
    QTest::addColumn<QColor>("color");

    QTest::newRow("vertical, low zone") << Qt::Vertical << -40.0f << low;
    QTest::newRow("vertical, at the medium threshold") << Qt::Vertical << -20.0f << low;
    QTest::newRow("vertical, medium zone") << Qt::Vertical << 0.0f << medium;
    QTest::newRow("vertical, at the high threshold") << Qt::Vertical << 10.0f << high;
    QTest::newRow("vertical, at the top") << Qt::Vertical << 15.0f << high;
    QTest::newRow("horizontal, medium zone") << Qt::Horizontal << -5.0f << medium;
    QTest::newRow("horizontal, low zone") << Qt::Horizontal << -50.0f << low;
}

void tst_LevelMeter::peakLineInTheZoneColour()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(float, peak);
    QFETCH(QColor, color);

    const FakeClock clock(0);
    LevelMeter meter;
    meter.setOrientation(orientation);
    meter.resize(orientation == Qt::Vertical ? QSize(20, 200) : QSize(200, 20));
    meter.setPeakHoldEnabled(true);
    meter.setLevel(peak);
    meter.setLevel(-60.0f);
    QCOMPARE(meter.peakLevel(), peak);
    const QImage image = paint(meter, QStringLiteral("peak-%1").arg(QTest::currentDataTag()));

    // Two pixels thick across the inside, at the end of a bar lit up to the peak.
    const int edge = litEdge(meter, peak);
    if (orientation == Qt::Vertical) {
        for (int x = 1; x < 19; ++x) {
            QCOMPARE(at(image, x, edge), color);
            QCOMPARE(at(image, x, edge + 1), color);
        }
        QCOMPARE(at(image, 10, edge - 1), edge - 1 == 0 ? frame : background);
        QCOMPARE(at(image, 10, edge + 2), background);
    } else {
        for (int y = 1; y < 19; ++y) {
            QCOMPARE(at(image, edge, y), color);
            QCOMPARE(at(image, edge - 1, y), color);
        }
        QCOMPARE(at(image, edge + 1, 10), background);
        QCOMPARE(at(image, edge - 2, 10), background);
    }

    // Switched off, the line goes.
    meter.setPeakHoldEnabled(false);
    const QImage plain = paint(meter, QStringLiteral("peak-off-%1").arg(QTest::currentDataTag()));
    const QPoint onLine = orientation == Qt::Vertical ? QPoint(10, edge) : QPoint(edge, 10);
    QCOMPARE(at(plain, onLine.x(), onLine.y()), background);
}

void tst_LevelMeter::clipLatch()
{
    LevelMeter meter;
    QVERIFY(!meter.isClipLatchEnabled());
    QSignalSpy clipped(meter.notifier(), &LevelMeterNotifier::clippedChanged);
    QCOMPARE(meter.notifier()->parent(), &meter);

    // Off, nothing latches.
    meter.setLevel(15.0f);
    meter.setLevel(30.0f);
    QVERIFY(!meter.isClipped());

    meter.setClipLatchEnabled(true);
    meter.setLevel(14.9f);
    QVERIFY(!meter.isClipped());
    QCOMPARE(clipped.count(), 0);
    meter.setLevel(15.0f);
    QVERIFY(meter.isClipped());
    QCOMPARE(clipped.count(), 1);
    QCOMPARE(clipped.last().at(0).toBool(), true);
    // Latched: more clipping and falling levels change nothing.
    meter.setLevel(40.0f);
    meter.setLevel(-60.0f);
    QVERIFY(meter.isClipped());
    QCOMPARE(clipped.count(), 1);

    meter.resetClip();
    QVERIFY(!meter.isClipped());
    QCOMPARE(clipped.count(), 2);
    QCOMPARE(clipped.last().at(0).toBool(), false);
    meter.resetClip();
    QCOMPARE(clipped.count(), 2);

    // Switching the latch off releases it.
    meter.setLevel(20.0f);
    QCOMPARE(clipped.count(), 3);
    meter.setClipLatchEnabled(false);
    QVERIFY(!meter.isClipped());
    QCOMPARE(clipped.count(), 4);
    QCOMPARE(clipped.last().at(0).toBool(), false);
}

void tst_LevelMeter::clipLevelFollowsTheMaximumUntilSet()
{
    LevelMeter meter;
    meter.setClipLatchEnabled(true);
    QCOMPARE(meter.clipLevel(), 15.0f);
    meter.setMaximumLevel(6.0f);
    QCOMPARE(meter.clipLevel(), 6.0f);
    meter.setLevelRange(-80.0f, 0.0f);
    QCOMPARE(meter.clipLevel(), 0.0f);
    meter.setLevel(0.0f);
    QVERIFY(meter.isClipped());
    meter.resetClip();

    // Set above the maximum, it catches levels as given, before clamping.
    meter.setClipLevel(3.0f);
    meter.setMaximumLevel(10.0f);
    QCOMPARE(meter.clipLevel(), 3.0f);
    meter.setLevelRange(-80.0f, 0.0f);
    meter.setLevel(2.0f);
    QCOMPARE(meter.level(), 0.0f);
    QVERIFY(!meter.isClipped());
    meter.setLevel(3.5f);
    QVERIFY(meter.isClipped());

    QTest::ignoreMessage(QtWarningMsg, "LevelMeter::setClipLevel: ignoring a level that is not finite");
    meter.setClipLevel(std::numeric_limits<float>::infinity());
    QCOMPARE(meter.clipLevel(), 3.0f);
    // A level that is not a number does not clip.
    meter.resetClip();
    meter.setLevel(std::numeric_limits<float>::quiet_NaN());
    QVERIFY(!meter.isClipped());
}

// A tap on the meter releases the latch, by mouse or by touch; a press that ends off the meter
// does not. With the latch off, presses go on to the parent as before.
void tst_LevelMeter::tapReleasesTheClipLatch()
{
    MeterInWindow shown(Qt::Vertical, QSize(20, 200));
    QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
    LevelMeter &meter = *shown.meter;
    meter.setClipLatchEnabled(true);
    QSignalSpy clipped(meter.notifier(), &LevelMeterNotifier::clippedChanged);
    PressWatcher parentPresses;
    shown.window.installEventFilter(&parentPresses);

    meter.setLevel(15.0f);
    QVERIFY(meter.isClipped());
    QTest::mouseClick(&meter, Qt::LeftButton, {}, QPoint(10, 100));
    QVERIFY(!meter.isClipped());
    QCOMPARE(clipped.count(), 2);

    meter.setLevel(15.0f);
    QTest::mousePress(&meter, Qt::LeftButton, {}, QPoint(10, 100));
    QTest::mouseRelease(&meter, Qt::LeftButton, {}, QPoint(10, 250));
    QVERIFY(meter.isClipped());
    // The meter took those presses; one of another button is not its own.
    QCOMPARE(parentPresses.presses, 0);
    QTest::mouseClick(&meter, Qt::RightButton, {}, QPoint(10, 100));
    QVERIFY(meter.isClipped());
    QCOMPARE(parentPresses.presses, 1);

    auto *touchScreen = QTest::createTouchDevice();
    const QPoint onMeter = meter.mapTo(&shown.window, QPoint(10, 50));
    QTest::touchEvent(&shown.window, touchScreen).press(0, onMeter, &shown.window);
    QTest::touchEvent(&shown.window, touchScreen).release(0, onMeter, &shown.window);
    QTRY_VERIFY(!meter.isClipped());
    QCOMPARE(clipped.count(), 4);

    QCOMPARE(parentPresses.presses, 1);

    // A disabled meter keeps its latch; the press goes on to the parent.
    meter.setLevel(15.0f);
    meter.setEnabled(false);
    QTest::mouseClick(&meter, Qt::LeftButton, {}, QPoint(10, 100));
    QVERIFY(meter.isClipped());
    QCOMPARE(parentPresses.presses, 2);
    meter.setEnabled(true);
    meter.resetClip();
    QCOMPARE(clipped.count(), 6);

    // Off, a press is not the meter's either.
    meter.setClipLatchEnabled(false);
    QTest::mouseClick(&meter, Qt::LeftButton, {}, QPoint(10, 100));
    QCOMPARE(parentPresses.presses, 3);
}

void tst_LevelMeter::clipCap_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::newRow("vertical") << Qt::Vertical;
    QTest::newRow("horizontal") << Qt::Horizontal;
}

void tst_LevelMeter::clipCap()
{
    QFETCH(Qt::Orientation, orientation);

    LevelMeter meter;
    meter.setOrientation(orientation);
    meter.resize(orientation == Qt::Vertical ? QSize(20, 200) : QSize(200, 20));
    meter.setClipLatchEnabled(true);
    meter.setLevel(15.0f);
    meter.setLevel(-60.0f);
    QVERIFY(meter.isClipped());
    const QImage image = paint(meter, QStringLiteral("clip-%1").arg(QTest::currentDataTag()));

    // Four pixels of red inside the frame at the top (the right end), the rest unlit.
    const auto pixel = [&](const QImage &painted, int along, int across) {
        return orientation == Qt::Vertical ? at(painted, across, along) : at(painted, 199 - along, across);
    };
    for (int across = 1; across < 19; ++across) {
        for (int along = 1; along <= 4; ++along)
            QCOMPARE(pixel(image, along, across), red);
        QCOMPARE(pixel(image, 5, across), background);
        QCOMPARE(pixel(image, 0, across), frame);
    }

    meter.resetClip();
    const QImage released = paint(meter, QStringLiteral("clip-released-%1").arg(QTest::currentDataTag()));
    QCOMPARE(pixel(released, 2, 10), background);
}

// With peak hold and the clip latch on, what the strips repaint equals a full repaint.
void tst_LevelMeter::peakAndClipPaintTheSamePixelsAsAFullRepaint()
{
    const FakeClock clock(0);
    MeterInWindow shown(Qt::Vertical, QSize(20, 200));
    LevelMeter &meter = *shown.meter;
    meter.setPeakHoldEnabled(true);
    meter.setPeakHoldTime(100);
    meter.setClipLatchEnabled(true);
    meter.setClipLevel(12.0f);
    QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
    QCoreApplication::processEvents();

    const float levels[] = {-20.0f, -50.0f, -50.0f, 0.0f, -59.0f, -59.0f, 13.0f, -30.0f, -31.0f, -60.0f, -45.0f};
    for (const float level : levels) {
        fakeNow += 120;
        meter.setLevel(level);
        QCoreApplication::processEvents();
        QVERIFY2(shown.shown() == shown.repainted(), qPrintable(QStringLiteral("after level %1").arg(level)));
    }
    QVERIFY(meter.isClipped());
    QVERIFY(meter.peakLevel() > -45.0f);
    shown.shown().save(artifactPath(QStringLiteral("LevelMeter-peak-and-clip-strips.png")));
}

void tst_LevelMeter::properties()
{
    const QMetaObject &meta = LevelMeter::staticMetaObject;
    // No signals of its own.
    QCOMPARE(meta.methodCount(), QProgressBar::staticMetaObject.methodCount());

    const QVector<QByteArray> floats{"minimumLevel", "maximumLevel", "mediumThresholdLevel", "highThresholdLevel",
                                     "level"};
    for (const QByteArray &name : floats) {
        const int index = meta.indexOfProperty(name.constData());
        QVERIFY2(index >= meta.propertyOffset(), name.constData());
        QCOMPARE(meta.property(index).userType(), int(QMetaType::Float));
        QVERIFY(meta.property(index).isWritable());
    }
    const int muted = meta.indexOfProperty("isMuted");
    QVERIFY(muted >= meta.propertyOffset());
    QCOMPARE(meta.property(muted).userType(), int(QMetaType::Bool));

    LevelMeter meter;
    QVERIFY(meter.setProperty("maximumLevel", 20.0f));
    QVERIFY(meter.setProperty("minimumLevel", -80.0f));
    QVERIFY(meter.setProperty("highThresholdLevel", 5.0f));
    QVERIFY(meter.setProperty("mediumThresholdLevel", -30.0f));
    QVERIFY(meter.setProperty("level", 0.0f));
    QVERIFY(meter.setProperty("isMuted", true));
    QCOMPARE(meter.maximumLevel(), 20.0f);
    QCOMPARE(meter.minimumLevel(), -80.0f);
    QCOMPARE(meter.highThresholdLevel(), 5.0f);
    QCOMPARE(meter.mediumThresholdLevel(), -30.0f);
    QCOMPARE(meter.level(), 0.0f);
    QVERIFY(meter.isMuted());
    QCOMPARE(meter.property("level").value<float>(), 0.0f);
    QCOMPARE(meter.property("isMuted").toBool(), true);
}

void tst_LevelMeter::setLevel_data()
{
    QTest::addColumn<float>("input");
    QTest::addColumn<float>("level");
    QTest::addColumn<int>("value");

    QTest::newRow("medium threshold maps to 53") << -20.0f << -20.0f << 53;
    QTest::newRow("above the maximum clamps to 15") << 100.0f << 15.0f << 100;
    QTest::newRow("below the minimum clamps to -60") << -100.0f << -60.0f << 0;
    QTest::newRow("maximum") << 15.0f << 15.0f << 100;
    QTest::newRow("minimum") << -60.0f << -60.0f << 0;
    QTest::newRow("fractions truncate") << -59.0f << -59.0f << 1;
    QTest::newRow("zero") << 0.0f << 0.0f << 80;
    QTest::newRow("not a number shows as the minimum") << std::numeric_limits<float>::quiet_NaN() << -60.0f << 0;
    QTest::newRow("infinity clamps to the maximum") << std::numeric_limits<float>::infinity() << 15.0f << 100;
}

void tst_LevelMeter::setLevel()
{
    QFETCH(float, input);
    QFETCH(float, level);
    QFETCH(int, value);

    LevelMeter meter;
    QSignalSpy values(&meter, &QProgressBar::valueChanged);
    meter.setLevel(input);
    QCOMPARE(meter.level(), level);
    QCOMPARE(meter.value(), value);
    QCOMPARE(values.count(), 1);
    QCOMPARE(values.at(0).at(0).toInt(), value);
}

// Near the limits of float the mapping's product overflows; the meter still maps exactly.
void tst_LevelMeter::levelRangeNearTheFloatLimits()
{
    LevelMeter meter;
    meter.setRange(0, 100);
    meter.setLevelRange(-1e38f, 2e38f);
    QCOMPARE(meter.mapLevelToValue(0.0f), 33);
    meter.setLevel(0.0f);
    QCOMPARE(meter.value(), 33);
    meter.setLevel(2e38f);
    QCOMPARE(meter.value(), 100);
}

// Single precision rounds the ends of a bar range near the int limits outwards; a level inside
// the level range still maps inside the bar's range, which QProgressBar requires.
void tst_LevelMeter::barRangeNearTheIntLimits()
{
    LevelMeter meter;
    meter.setRange(-2147483647, 2147483647);
    QCOMPARE(meter.mapLevelToValue(-60.0f), -2147483647);
    QCOMPARE(meter.mapLevelToValue(15.0f), 2147483647);
    meter.setLevel(15.0f);
    QCOMPARE(meter.value(), 2147483647);
    meter.setLevel(-60.0f);
    QCOMPARE(meter.value(), -2147483647);
}

void tst_LevelMeter::setLevelFollowsTheProgressBarRange()
{
    LevelMeter meter;
    meter.setRange(-1000, 1000);
    meter.setLevel(-20.0f);
    QCOMPARE(meter.value(), 66); // truncate(2000 * 40 / 75 - 1000)
    meter.setLevel(15.0f);
    QCOMPARE(meter.value(), 1000);
    meter.setLevel(-60.0f);
    QCOMPARE(meter.value(), -1000);
    QCOMPARE(meter.mapValueToPercentage(0), 0.5f);
}

void tst_LevelMeter::mappings()
{
    LevelMeter meter;
    QCOMPARE(meter.clampLevel(-100.0f), -60.0f);
    QCOMPARE(meter.clampLevel(100.0f), 15.0f);
    QCOMPARE(meter.clampLevel(-3.5f), -3.5f);

    // Fractions, not percentages.
    QCOMPARE(meter.mapLevelToPercentage(15.0f), 1.0f);
    QCOMPARE(meter.mapLevelToPercentage(-60.0f), 0.0f);
    QCOMPARE(meter.mapLevelToPercentage(-22.5f), 0.5f);
    QCOMPARE(meter.mapValueToPercentage(50), 0.5f);
    QCOMPARE(meter.mapValueToPercentage(100), 1.0f);

    // mapLevelToValue does not clamp.
    QCOMPARE(meter.mapLevelToValue(-20.0f), 53);
    QCOMPARE(meter.mapLevelToValue(100.0f), 213);
    QCOMPARE(meter.mapLevelToValue(-100.0f), -53);
    QCOMPARE(meter.value(), -1);

    meter.setRange(0, 200);
    QCOMPARE(meter.mapValueToPercentage(50), 0.25f);
    QCOMPARE(meter.mapLevelToValue(-20.0f), 106);
}

void tst_LevelMeter::mapValueToPixelsUsesTheFullExtent_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("pixels");

    // In single precision 53 / 100 is just below 0.53, so 200 * 0.53 truncates to 105.
    QTest::newRow("vertical uses the height") << Qt::Vertical << QSize(20, 200) << 53 << 105;
    QTest::newRow("horizontal uses the width") << Qt::Horizontal << QSize(300, 20) << 53 << 158;
    QTest::newRow("vertical exact fraction") << Qt::Vertical << QSize(20, 200) << 25 << 50;
    QTest::newRow("full") << Qt::Vertical << QSize(20, 200) << 100 << 200;
    QTest::newRow("empty") << Qt::Vertical << QSize(20, 200) << 0 << 0;
    QTest::newRow("truncates") << Qt::Vertical << QSize(20, 99) << 50 << 49;
}

void tst_LevelMeter::mapValueToPixelsUsesTheFullExtent()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(QSize, size);
    QFETCH(int, value);
    QFETCH(int, pixels);

    LevelMeter meter;
    meter.setOrientation(orientation);
    meter.resize(size);
    QCOMPARE(meter.mapValueToPixels(value), pixels);
}

void tst_LevelMeter::setLevelRange()
{
    LevelMeter meter;
    meter.setLevel(10.0f);
    meter.setLevelRange(10.0f, 0.0f);
    QCOMPARE(meter.minimumLevel(), -60.0f);
    QCOMPARE(meter.maximumLevel(), 15.0f);

    // Neither the level nor the thresholds are clamped to the new range.
    meter.setLevelRange(-40.0f, 0.0f);
    QCOMPARE(meter.minimumLevel(), -40.0f);
    QCOMPARE(meter.maximumLevel(), 0.0f);
    QCOMPARE(meter.level(), 10.0f);
    QCOMPARE(meter.highThresholdLevel(), 10.0f);
    QCOMPARE(meter.mediumThresholdLevel(), -20.0f);
    QCOMPARE(meter.value(), 93);

    // An empty range is a range.
    meter.setLevelRange(-5.0f, -5.0f);
    QCOMPARE(meter.minimumLevel(), -5.0f);
    QCOMPARE(meter.maximumLevel(), -5.0f);
    QCOMPARE(meter.clampLevel(7.0f), -5.0f);
}

void tst_LevelMeter::nonFiniteRangesAreRefused_data()
{
    QTest::addColumn<QString>("setter");
    QTest::addColumn<float>("value");
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float infinity = std::numeric_limits<float>::infinity();
    QTest::newRow("range from NaN") << QStringLiteral("setLevelRange") << nan;
    QTest::newRow("range from minus infinity") << QStringLiteral("setLevelRange") << -infinity;
    QTest::newRow("minimum NaN") << QStringLiteral("setMinimumLevel") << nan;
    QTest::newRow("minimum minus infinity") << QStringLiteral("setMinimumLevel") << -infinity;
    QTest::newRow("maximum NaN") << QStringLiteral("setMaximumLevel") << nan;
    QTest::newRow("maximum infinity") << QStringLiteral("setMaximumLevel") << infinity;
}

void tst_LevelMeter::nonFiniteRangesAreRefused()
{
    QFETCH(QString, setter);
    QFETCH(float, value);

    LevelMeter meter;
    makeVertical(meter);
    meter.setLevel(-20.0f);
    const QImage before = paint(meter, QStringLiteral("before-refused-range"));
    QTest::ignoreMessage(QtWarningMsg,
                         qPrintable(QStringLiteral("LevelMeter::%1: ignoring a level that is not finite").arg(setter)));
    if (setter == QLatin1String("setLevelRange"))
        meter.setLevelRange(value, 10.0f);
    else if (setter == QLatin1String("setMinimumLevel"))
        meter.setMinimumLevel(value);
    else
        meter.setMaximumLevel(value);
    QCOMPARE(meter.minimumLevel(), -60.0f);
    QCOMPARE(meter.maximumLevel(), 15.0f);
    meter.setLevel(-20.0f);
    QCOMPARE(meter.level(), -20.0f);
    QCOMPARE(paint(meter, QStringLiteral("after-refused-range")), before);
}

void tst_LevelMeter::setMinimumAndMaximumLevel_data()
{
    QTest::addColumn<bool>("setMinimum");
    QTest::addColumn<float>("input");
    QTest::addColumn<float>("minimum");
    QTest::addColumn<float>("maximum");

    QTest::newRow("minimum above the maximum raises it") << true << 20.0f << 20.0f << 20.0f;
    QTest::newRow("minimum below") << true << -70.0f << -70.0f << 15.0f;
    QTest::newRow("minimum inside") << true << 0.0f << 0.0f << 15.0f;
    QTest::newRow("maximum below the minimum lowers it") << false << -70.0f << -70.0f << -70.0f;
    QTest::newRow("maximum above") << false << 20.0f << -60.0f << 20.0f;
    QTest::newRow("maximum inside") << false << 0.0f << -60.0f << 0.0f;
}

void tst_LevelMeter::setMinimumAndMaximumLevel()
{
    QFETCH(bool, setMinimum);
    QFETCH(float, input);
    QFETCH(float, minimum);
    QFETCH(float, maximum);

    LevelMeter meter;
    meter.setLevel(-30.0f);
    if (setMinimum)
        meter.setMinimumLevel(input);
    else
        meter.setMaximumLevel(input);
    QCOMPARE(meter.minimumLevel(), minimum);
    QCOMPARE(meter.maximumLevel(), maximum);
    QCOMPARE(meter.level(), -30.0f);
    QCOMPARE(meter.mediumThresholdLevel(), -20.0f);
    QCOMPARE(meter.highThresholdLevel(), 10.0f);
}

void tst_LevelMeter::thresholds_data()
{
    QTest::addColumn<bool>("setMedium");
    QTest::addColumn<float>("input");
    QTest::addColumn<float>("medium");
    QTest::addColumn<float>("high");

    QTest::newRow("medium above high raises high") << true << 12.0f << 12.0f << 12.0f;
    QTest::newRow("medium below high") << true << -30.0f << -30.0f << 10.0f;
    QTest::newRow("medium clamped to the minimum") << true << -100.0f << -60.0f << 10.0f;
    QTest::newRow("medium clamped to the maximum") << true << 100.0f << 15.0f << 15.0f;
    QTest::newRow("high below medium lowers medium") << false << -30.0f << -30.0f << -30.0f;
    QTest::newRow("high above medium") << false << 0.0f << -20.0f << 0.0f;
    QTest::newRow("high clamped to the maximum") << false << 100.0f << -20.0f << 15.0f;
    QTest::newRow("high clamped to the minimum") << false << -100.0f << -60.0f << -60.0f;
    QTest::newRow("medium not a number is the minimum") << true << std::numeric_limits<float>::quiet_NaN() << -60.0f
                                                        << 10.0f;
    QTest::newRow("high not a number is the minimum") << false << std::numeric_limits<float>::quiet_NaN() << -60.0f
                                                      << -60.0f;
}

void tst_LevelMeter::thresholds()
{
    QFETCH(bool, setMedium);
    QFETCH(float, input);
    QFETCH(float, medium);
    QFETCH(float, high);

    // A threshold at an end of the range leaves out the stop beyond it, without a warning.
    LevelMeter meter;
    {
        const ko::qtToolkit::test::MessageLog log;
        if (setMedium)
            meter.setMediumThresholdLevel(input);
        else
            meter.setHighThresholdLevel(input);
        meter.resize(20, 200);
        meter.setLevelRange(5.0f, 5.0f);
        meter.setLowColor(Qt::green);
        QCOMPARE(log.messages(), QStringList());
    }
    meter.setLevelRange(-60.0f, 15.0f);
    QCOMPARE(meter.mediumThresholdLevel(), medium);
    QCOMPARE(meter.highThresholdLevel(), high);
    QCOMPARE(meter.minimumLevel(), -60.0f);
    QCOMPARE(meter.maximumLevel(), 15.0f);
}

void tst_LevelMeter::repaintsOnlyWhenTheValueChanges()
{
    LevelMeter meter;
    makeVertical(meter);
    QVERIFY(QTest::qWaitForWindowExposed(&meter));
    PaintCounter counter;
    meter.installEventFilter(&counter);
    QCoreApplication::processEvents();

    int paints = counter.paints;
    meter.setLevel(-20.0f);
    QTRY_VERIFY(counter.paints > paints);

    // -19.9 maps to the same value, 53.
    QCoreApplication::processEvents();
    paints = counter.paints;
    meter.setLevel(-19.9f);
    QCOMPARE(meter.level(), -19.9f);
    QCOMPARE(meter.value(), 53);
    QCoreApplication::processEvents();
    QCOMPARE(counter.paints, paints);

    // Changes of many meters are painted together: setLevel itself paints nothing.
    meter.setLevel(0.0f);
    QCOMPARE(counter.paints, paints);
    QTRY_VERIFY(counter.paints > paints);

    // Updates the application disabled stay disabled.
    meter.setUpdatesEnabled(false);
    meter.setLevel(5.0f);
    QVERIFY(!meter.updatesEnabled());
    QCOMPARE(meter.value(), 86);
}

void tst_LevelMeter::threeBandsWithHardEdges()
{
    LevelMeter meter;
    makeVertical(meter);
    meter.setLevel(15.0f);
    const QImage image = paint(meter, QStringLiteral("full"));

    // Every inner pixel is one of the three colours: no blend between them.
    for (int y = 1; y < 199; ++y)
        for (int x = 1; x < 19; ++x)
            QVERIFY2(at(image, x, y) == low || at(image, x, y) == medium || at(image, x, y) == high,
                     qPrintable(QStringLiteral("%1,%2 is %3").arg(x).arg(y).arg(describe(at(image, x, y)))));

    const auto bands = colourRuns(image);
    QCOMPARE(bands.size(), 3);
    QCOMPARE(bands.at(0).first, high);
    QCOMPARE(bands.at(1).first, medium);
    QCOMPARE(bands.at(2).first, low);
    QCOMPARE(bands.at(0).second, 1);
    // The edges sit where the thresholds are: -20 at 40/75 and +10 at 70/75 of the gradient.
    QVERIFY(std::abs(bands.at(1).second - rowOf(70.0 / 75.0, 200)) <= 1.0);
    QVERIFY(std::abs(bands.at(2).second - rowOf(40.0 / 75.0, 200)) <= 1.0);
}

void tst_LevelMeter::unlitPartInBackgroundColor_data()
{
    QTest::addColumn<float>("level");
    QTest::addColumn<int>("firstLitRow");

    // The lit length is measured on the full height of 200: value 53 lights 105 rows.
    QTest::newRow("medium threshold") << -20.0f << 199 - 105;
    QTest::newRow("high threshold") << 10.0f << 199 - 186;
    QTest::newRow("one step") << -59.0f << 199 - 2;
    // Nothing lit: the whole inner rectangle is background.
    QTest::newRow("minimum") << -60.0f << 199;
}

void tst_LevelMeter::unlitPartInBackgroundColor()
{
    QFETCH(float, level);
    QFETCH(int, firstLitRow);

    LevelMeter meter;
    makeVertical(meter);
    meter.setLevel(level);
    const QImage image = paint(meter, QStringLiteral("unlit"));
    for (int y = 1; y < 199; ++y) {
        for (int x = 1; x < 19; ++x) {
            const QColor color = at(image, x, y);
            if (y < firstLitRow)
                QVERIFY2(color == background, qPrintable(QStringLiteral("%1,%2").arg(x).arg(y)));
            else
                QVERIFY2(color == low || color == medium || color == high,
                         qPrintable(QStringLiteral("%1,%2 is %3").arg(x).arg(y).arg(describe(color))));
        }
    }
}

void tst_LevelMeter::onePixelFrame()
{
    LevelMeter meter;
    makeVertical(meter);
    meter.setLevel(-20.0f);
    const QImage image = paint(meter, QStringLiteral("frame"));
    for (int y = 0; y < 200; ++y) {
        QCOMPARE(at(image, 0, y), frame);
        QCOMPARE(at(image, 19, y), frame);
    }
    for (int x = 0; x < 20; ++x) {
        QCOMPARE(at(image, x, 0), frame);
        QCOMPARE(at(image, x, 199), frame);
    }
    // One pixel only: the next ring is the meter.
    QCOMPARE(at(image, 1, 1), background);
    QCOMPARE(at(image, 18, 1), background);
    QCOMPARE(at(image, 1, 198), low);
    QCOMPARE(at(image, 18, 198), low);
}

void tst_LevelMeter::mutedIsWashedOutWithRedDoubleFrame()
{
    LevelMeter meter;
    makeVertical(meter);
    meter.setLevel(15.0f);
    meter.setMuted(true);
    QVERIFY(meter.isMuted());
    const QImage image = paint(meter, QStringLiteral("muted"));

    for (int y = 0; y < 200; ++y) {
        QCOMPARE(at(image, 0, y), red);
        QCOMPARE(at(image, 19, y), red);
        if (y >= 1 && y <= 198) {
            QCOMPARE(at(image, 1, y), red);
            QCOMPARE(at(image, 18, y), red);
        }
    }
    for (int x = 1; x < 19; ++x) {
        QCOMPARE(at(image, x, 1), red);
        QCOMPARE(at(image, x, 198), red);
    }
    // Inside the double frame the three bands are washed out.
    QVERIFY2(near(at(image, 10, 3), washed(high)), qPrintable(describe(at(image, 10, 3))));
    QVERIFY2(near(at(image, 10, 60), washed(medium)), qPrintable(describe(at(image, 10, 60))));
    QVERIFY2(near(at(image, 10, 190), washed(low)), qPrintable(describe(at(image, 10, 190))));
    QVERIFY(at(image, 2, 100) != red);

    // The unlit part is washed out too.
    meter.setLevel(-20.0f);
    const QImage partial = paint(meter, QStringLiteral("muted-partial"));
    QVERIFY(near(at(partial, 10, 50), washed(background)));

    meter.setMuted(false);
    const QImage unmuted = paint(meter, QStringLiteral("unmuted"));
    QCOMPARE(at(unmuted, 0, 100), frame);
    QCOMPARE(at(unmuted, 10, 50), background);
}

void tst_LevelMeter::disabledIsWashedOutWithGreyFrame()
{
    LevelMeter meter;
    makeVertical(meter);
    meter.setLevel(15.0f);
    meter.setEnabled(false);
    const QImage image = paint(meter, QStringLiteral("disabled"));

    for (int y = 0; y < 200; ++y) {
        QCOMPARE(at(image, 0, y), frame);
        QCOMPARE(at(image, 19, y), frame);
    }
    // A single frame: the ring inside it is the washed-out meter.
    QVERIFY2(near(at(image, 1, 50), washed(medium)), qPrintable(describe(at(image, 1, 50))));
    QVERIFY2(near(at(image, 10, 190), washed(low)), qPrintable(describe(at(image, 10, 190))));
    QVERIFY2(near(at(image, 10, 3), washed(high)), qPrintable(describe(at(image, 10, 3))));

    // Muted and disabled: the muted look.
    meter.setMuted(true);
    const QImage both = paint(meter, QStringLiteral("disabled-muted"));
    QCOMPARE(at(both, 0, 100), red);
    QCOMPARE(at(both, 1, 100), red);
    QVERIFY(near(at(both, 10, 190), washed(low)));
}

void tst_LevelMeter::horizontalGradientIsMirrored()
{
    LevelMeter meter;
    meter.setOrientation(Qt::Horizontal);
    meter.resize(200, 20);
    meter.show();
    meter.setLevel(15.0f);
    const QImage full = paint(meter, QStringLiteral("horizontal-full"));

    // The high colour at the left, where the bar starts; the low colour at the right end.
    const auto bands = colourRuns(full, Qt::Horizontal);
    QCOMPARE(bands.size(), 3);
    QCOMPARE(bands.at(0).first, high);
    QCOMPARE(bands.at(1).first, medium);
    QCOMPARE(bands.at(2).first, low);
    // Position 0 at x = 199 and position 1 at x = 1: the same rows as a vertical meter's.
    QVERIFY(std::abs(bands.at(1).second - rowOf(70.0 / 75.0, 200)) <= 1.0);
    QVERIFY(std::abs(bands.at(2).second - rowOf(40.0 / 75.0, 200)) <= 1.0);

    // The bar grows from the left: a low level lights the high colour.
    meter.setLevel(-55.0f);
    QCOMPARE(meter.value(), 6);
    const QImage partial = paint(meter, QStringLiteral("horizontal-low"));
    const auto partialBands = colourRuns(partial, Qt::Horizontal);
    QCOMPARE(partialBands.size(), 2);
    QCOMPARE(partialBands.at(0).first, high);
    QCOMPARE(partialBands.at(0).second, 1);
    QCOMPARE(partialBands.at(1).first, background);
    QCOMPARE(partialBands.at(1).second, 1 + 12);
    QCOMPARE(at(partial, 0, 10), frame);
    QCOMPARE(at(partial, 199, 10), frame);
}

void tst_LevelMeter::colourSetters()
{
    LevelMeter meter;
    makeVertical(meter);
    meter.setLevel(-20.0f);
    const QColor newLow(0x0000ff);
    const QColor newMedium(0x00ffff);
    const QColor newHigh(0xffff00);
    const QColor newBackground(0x202020);
    meter.setLowColor(newLow);
    meter.setMediumColor(newMedium);
    meter.setHighColor(newHigh);
    meter.setBackgroundColor(newBackground);
    meter.setLevel(15.0f);
    QImage image = paint(meter, QStringLiteral("colours"));
    const auto bands = colourRuns(image);
    QCOMPARE(bands.size(), 3);
    QCOMPARE(bands.at(0).first, newHigh);
    QCOMPARE(bands.at(1).first, newMedium);
    QCOMPARE(bands.at(2).first, newLow);
    QCOMPARE(at(image, 0, 0), frame);

    meter.setLevel(-60.0f);
    image = paint(meter, QStringLiteral("colours-background"));
    QCOMPARE(at(image, 10, 100), newBackground);
}

void tst_LevelMeter::translucentColoursAreLayered()
{
    LevelMeter meter;
    makeVertical(meter);
    meter.setLevel(-20.0f);

    // The unlit part is the background colour laid over the gradient.
    meter.setBackgroundColor(QColor(0, 0, 0, 128));
    QImage image = paint(meter, QStringLiteral("translucent-background"));
    QVERIFY2(near(at(image, 10, 5), QColor(high.red() * 127 / 255, high.green() * 127 / 255, high.blue() * 127 / 255)),
             qPrintable(describe(at(image, 10, 5))));
    QVERIFY2(near(at(image, 10, 50), QColor(medium.red() * 127 / 255, medium.green() * 127 / 255,
                                            medium.blue() * 127 / 255)),
             qPrintable(describe(at(image, 10, 50))));
    QCOMPARE(at(image, 10, 150), low);
    QCOMPARE(at(image, 0, 50), frame);
    QCOMPARE(at(image, 10, 0), frame);

    // The gradient is laid over what is behind the meter (black here), inside the frame.
    meter.setBackgroundColor(background);
    meter.setLowColor(QColor(0, 255, 0, 128));
    image = paint(meter, QStringLiteral("translucent-low"));
    QVERIFY2(near(at(image, 10, 150), QColor(0, 128, 0)), qPrintable(describe(at(image, 10, 150))));
    QCOMPARE(at(image, 10, 50), background);
    QCOMPARE(at(image, 0, 150), frame);
    QCOMPARE(at(image, 19, 150), frame);
    QCOMPARE(at(image, 10, 199), frame);
}

void tst_LevelMeter::tinyMeters_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("muted");

    QTest::newRow("one pixel") << QSize(1, 1) << false;
    QTest::newRow("two by two") << QSize(2, 2) << false;
    QTest::newRow("one row") << QSize(20, 1) << false;
    QTest::newRow("three by three muted") << QSize(3, 3) << true;
    QTest::newRow("two wide muted") << QSize(2, 50) << true;
}

void tst_LevelMeter::tinyMeters()
{
    QFETCH(QSize, size);
    QFETCH(bool, muted);

    // Too small for an inside: all frame, and nothing painted beyond the widget.
    LevelMeter meter;
    makeVertical(meter, size);
    QCOMPARE(meter.size(), size);
    meter.setLevel(0.0f);
    meter.setMuted(muted);
    QImage image(size + QSize(4, 4), QImage::Format_RGB32);
    image.fill(Qt::black);
    meter.render(&image, QPoint(2, 2), QRegion(), QWidget::DrawChildren);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool inside = QRect(QPoint(2, 2), size).contains(x, y);
            const QColor expected = inside ? (muted ? red : frame) : QColor(Qt::black);
            QVERIFY2(at(image, x, y) == expected, qPrintable(QStringLiteral("%1,%2 is %3").arg(x).arg(y).arg(describe(at(image, x, y)))));
        }
    }
}

void tst_LevelMeter::gradientFollowsResizeAndThresholdsNotRange()
{
    LevelMeter meter;
    makeVertical(meter);
    meter.setLevel(15.0f);
    const auto before = colourRuns(paint(meter, QStringLiteral("range-before")));
    QCOMPARE(before.size(), 3);

    // A new range alone leaves the zones where they were.
    meter.setLevelRange(-100.0f, 15.0f);
    meter.setLevel(15.0f);
    QCOMPARE(colourRuns(paint(meter, QStringLiteral("range-changed"))), before);

    // Setting a threshold, even to its value, rebuilds them for the new range.
    meter.setMediumThresholdLevel(-20.0f);
    const auto rebuilt = colourRuns(paint(meter, QStringLiteral("range-rebuilt")));
    QCOMPARE(rebuilt.size(), 3);
    QVERIFY(std::abs(rebuilt.at(1).second - rowOf(110.0 / 115.0, 200)) <= 1.0);
    QVERIFY(std::abs(rebuilt.at(2).second - rowOf(80.0 / 115.0, 200)) <= 1.0);

    // A threshold at the minimum leaves no low zone.
    meter.setMediumThresholdLevel(-100.0f);
    const auto noLow = colourRuns(paint(meter, QStringLiteral("no-low")));
    QCOMPARE(noLow.size(), 2);
    QCOMPARE(noLow.at(0).first, high);
    QCOMPARE(noLow.at(1).first, medium);

    // A resize rebuilds the zones for the new height.
    LevelMeter other;
    makeVertical(other, QSize(20, 100));
    other.setLevel(15.0f);
    const auto small = colourRuns(paint(other, QStringLiteral("small")));
    QCOMPARE(small.size(), 3);
    QVERIFY(std::abs(small.at(2).second - rowOf(40.0 / 75.0, 100)) <= 1.0);
    other.resize(20, 300);
    const auto tall = colourRuns(paint(other, QStringLiteral("tall")));
    QCOMPARE(tall.size(), 3);
    QVERIFY(std::abs(tall.at(1).second - rowOf(70.0 / 75.0, 300)) <= 1.0);
    QVERIFY(std::abs(tall.at(2).second - rowOf(40.0 / 75.0, 300)) <= 1.0);
}

void tst_LevelMeter::levelChangeRepaintsTheChangedStrip_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<float>("from");
    QTest::addColumn<float>("to");
    QTest::addColumn<QRect>("strip");

    // 20 by 200 (or 200 by 20) at (11, 7) in its window, bar range 0 to 100: -20 lights 105
    // pixels, +10 lights 186, -55 lights 12, +15 the whole inside of 198. The strip between two
    // lengths reaches out to the window's 40-pixel grid (rows 0, 40, 80... of the window), within
    // the inside: rows 94 to 198 of the meter are 101 to 205 of the window, widened to 80 to 205.
    QTest::newRow("vertical rising from nothing") << Qt::Vertical << -60.0f << -20.0f << QRect(1, 73, 18, 126);
    QTest::newRow("vertical falling to nothing") << Qt::Vertical << -20.0f << -60.0f << QRect(1, 73, 18, 126);
    QTest::newRow("vertical rising between zones") << Qt::Vertical << -20.0f << 10.0f << QRect(1, 1, 18, 112);
    QTest::newRow("vertical falling between zones") << Qt::Vertical << 10.0f << -20.0f << QRect(1, 1, 18, 112);
    QTest::newRow("vertical to full") << Qt::Vertical << 10.0f << 15.0f << QRect(1, 1, 18, 32);
    QTest::newRow("horizontal rising from nothing") << Qt::Horizontal << -60.0f << -55.0f << QRect(1, 1, 28, 18);
    QTest::newRow("horizontal rising") << Qt::Horizontal << -55.0f << -20.0f << QRect(1, 1, 108, 18);
    QTest::newRow("horizontal falling from full") << Qt::Horizontal << 15.0f << 10.0f << QRect(149, 1, 50, 18);
}

void tst_LevelMeter::levelChangeRepaintsTheChangedStrip()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(float, from);
    QFETCH(float, to);
    QFETCH(QRect, strip);

    MeterInWindow shown(orientation, orientation == Qt::Vertical ? QSize(20, 200) : QSize(200, 20));
    QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
    shown.meter->setLevel(from);
    QCoreApplication::processEvents();
    PaintCounter painted;
    shown.meter->installEventFilter(&painted);

    QSignalSpy values(shown.meter, &QProgressBar::valueChanged);
    shown.meter->setLevel(to);
    QCOMPARE(values.count(), 1);
    QCOMPARE(shown.meter->level(), to);
    QCOMPARE(painted.regions.size(), 0);
    QTRY_COMPARE(painted.regions.size(), 1);
    QCOMPARE(painted.regions.first(), QRegion(strip));
}

// Side by side, meters at different levels repaint strips whose ends lie on the window's
// 40-pixel grid (or on the edges of the insides), so that the strips of a whole wall end on few
// rows.
void tst_LevelMeter::stripsOfAWallEndOnTheWindowGrid()
{
    constexpr int count = 8;
    QWidget window;
    window.resize(count * 20 + 20, 220);
    std::vector<LevelMeter *> meters;
    PaintCounter painted[count];
    for (int i = 0; i < count; ++i) {
        auto *meter = new LevelMeter(&window);
        meter->setOrientation(Qt::Vertical);
        meter->setGeometry(5 + 20 * i, 9, 20, 200);
        meters.push_back(meter);
    }
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCoreApplication::processEvents();
    for (int i = 0; i < count; ++i)
        meters[std::size_t(i)]->installEventFilter(&painted[i]);

    // The inside of each meter covers rows 10 to 207 of the window.
    const float frames[][count] = {{-60.0f, -50.0f, -41.0f, -33.3f, -20.0f, -7.5f, 3.0f, 15.0f},
                                   {-3.0f, -58.0f, 12.0f, -21.0f, -19.0f, 1.0f, -44.0f, -60.0f}};
    QSet<int> ends;
    for (const auto &levels : frames) {
        for (int i = 0; i < count; ++i)
            meters[std::size_t(i)]->setLevel(levels[i]);
        QCoreApplication::processEvents();
    }
    int strips = 0;
    for (int i = 0; i < count; ++i) {
        for (const QRegion &region : painted[i].regions) {
            QCOMPARE(region.rectCount(), 1);
            const QRect strip = region.boundingRect().translated(meters[std::size_t(i)]->pos());
            QCOMPARE(strip.left(), 5 + 20 * i + 1);
            QCOMPARE(strip.width(), 18);
            QVERIFY2(strip.top() == 10 || strip.top() % 40 == 0, qPrintable(QString::number(strip.top())));
            QVERIFY2(strip.bottom() == 207 || strip.bottom() % 40 == 39, qPrintable(QString::number(strip.bottom())));
            ends << strip.top() << strip.bottom();
            ++strips;
        }
    }
    // Every meter but the first changed in the first frame, and every one in the second.
    QCOMPARE(strips, 2 * count - 1);
    QVERIFY(ends.size() <= 200 / 40 * 2 + 2);
}

void tst_LevelMeter::noRepaintWhileTheLitLengthStays_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<float>("from");
    QTest::addColumn<float>("to");
    QTest::addColumn<int>("value");

    // 50 pixels for a bar range of 0 to 100: values 50 and 51 both light 25 pixels.
    QTest::newRow("vertical") << Qt::Vertical << -22.5f << -21.7f << 51;
    QTest::newRow("horizontal") << Qt::Horizontal << -22.5f << -21.7f << 51;
    // Values 99 and 100 both light more than the 48 pixels inside the frame.
    QTest::newRow("beyond the inside") << Qt::Vertical << 14.3f << 15.0f << 100;
}

void tst_LevelMeter::noRepaintWhileTheLitLengthStays()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(float, from);
    QFETCH(float, to);
    QFETCH(int, value);

    MeterInWindow shown(orientation, orientation == Qt::Vertical ? QSize(20, 50) : QSize(50, 20));
    QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
    shown.meter->setLevel(from);
    QCoreApplication::processEvents();
    const int before = shown.meter->value();
    PaintCounter painted;
    shown.meter->installEventFilter(&painted);

    // The value and its signal change as always; the pixels do not.
    QSignalSpy values(shown.meter, &QProgressBar::valueChanged);
    shown.meter->setLevel(to);
    QCOMPARE(shown.meter->level(), to);
    QCOMPARE(shown.meter->value(), value);
    QVERIFY(before != value);
    QCOMPARE(values.count(), 1);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    QCOMPARE(painted.regions.size(), 0);
}

// A value set on the progress bar itself may or may not have been repainted: the next level
// change repaints the whole meter.
void tst_LevelMeter::valueSetPastTheMeterRepaintsItWhole()
{
    MeterInWindow shown(Qt::Vertical, QSize(20, 200));
    QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
    shown.meter->setLevel(-20.0f);
    QCoreApplication::processEvents();
    shown.meter->setTextVisible(false);
    shown.meter->setValue(54);
    QCoreApplication::processEvents();
    PaintCounter painted;
    shown.meter->installEventFilter(&painted);

    shown.meter->setLevel(10.0f);
    QTRY_COMPARE(painted.regions.size(), 1);
    QCOMPARE(painted.regions.first(), QRegion(shown.meter->rect()));
    QCOMPARE(shown.shown(), shown.repainted());
}

// What a receiver of valueChanged() asks to repaint (all of the meter, here) is not lost to
// the strip.
void tst_LevelMeter::whatAReceiverOfValueChangedRepaintsIsPainted()
{
    MeterInWindow shown(Qt::Vertical, QSize(20, 200));
    QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
    QCoreApplication::processEvents();
    connect(shown.meter, &QProgressBar::valueChanged, shown.meter, [&shown] { shown.meter->setMuted(true); });
    PaintCounter painted;
    shown.meter->installEventFilter(&painted);

    shown.meter->setLevel(-20.0f);
    QTRY_COMPARE(painted.regions.size(), 1);
    QCOMPARE(painted.regions.first(), QRegion(shown.meter->rect()));
    QCOMPARE(shown.shown(), shown.repainted());
}

void tst_LevelMeter::stripsPaintTheSamePixelsAsAFullRepaint_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("look");

    QTest::newRow("vertical") << Qt::Vertical << QSize(20, 200) << QString();
    QTest::newRow("horizontal") << Qt::Horizontal << QSize(200, 20) << QString();
    QTest::newRow("odd height") << Qt::Vertical << QSize(13, 117) << QString();
    QTest::newRow("muted") << Qt::Vertical << QSize(20, 200) << QStringLiteral("muted");
    QTest::newRow("disabled") << Qt::Horizontal << QSize(200, 20) << QStringLiteral("disabled");
    QTest::newRow("translucent background") << Qt::Vertical << QSize(20, 200) << QStringLiteral("translucent background");
    QTest::newRow("translucent low colour") << Qt::Vertical << QSize(20, 200) << QStringLiteral("translucent low");
    QTest::newRow("thresholds at the ends") << Qt::Vertical << QSize(20, 200) << QStringLiteral("thresholds at the ends");
    QTest::newRow("turned after sizing") << Qt::Horizontal << QSize(60, 60) << QStringLiteral("turned");
    QTest::newRow("peak hold") << Qt::Vertical << QSize(20, 200) << QStringLiteral("peak hold");
    QTest::newRow("peak hold, horizontal") << Qt::Horizontal << QSize(200, 20) << QStringLiteral("peak hold");
    QTest::newRow("clip latch") << Qt::Vertical << QSize(20, 200) << QStringLiteral("clip latch");
    QTest::newRow("translucent high colour, peak hold")
        << Qt::Vertical << QSize(20, 200) << QStringLiteral("translucent high, peak hold");
}

void tst_LevelMeter::stripsPaintTheSamePixelsAsAFullRepaint()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(QSize, size);
    QFETCH(QString, look);

    MeterInWindow shown(orientation, size);
    QPalette palette = shown.window.palette();
    palette.setColor(QPalette::Window, QColor(0x2040a0));
    shown.window.setPalette(palette);
    LevelMeter &meter = *shown.meter;
    if (look == QLatin1String("muted")) {
        meter.setMuted(true);
    } else if (look == QLatin1String("disabled")) {
        meter.setEnabled(false);
    } else if (look == QLatin1String("translucent background")) {
        meter.setBackgroundColor(QColor(0, 0, 0, 100));
    } else if (look == QLatin1String("translucent low")) {
        meter.setLowColor(QColor(0, 255, 0, 128));
    } else if (look == QLatin1String("thresholds at the ends")) {
        meter.setHighThresholdLevel(15.0f);
        meter.setMediumThresholdLevel(-60.0f);
    } else if (look == QLatin1String("peak hold")) {
        meter.setPeakHoldEnabled(true);
    } else if (look == QLatin1String("clip latch")) {
        meter.setClipLatchEnabled(true);
        meter.setClipLevel(10.0f);
    } else if (look == QLatin1String("translucent high, peak hold")) {
        meter.setHighColor(QColor(255, 0, 0, 90));
        meter.setPeakHoldEnabled(true);
    }
    QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
    if (look == QLatin1String("turned"))
        meter.setOrientation(Qt::Vertical);
    QCoreApplication::processEvents();

    // Levels that rise and fall, repeat, stay within a pixel and cross both thresholds.
    const float levels[] = {-60.0f, -20.0f, -19.9f, 10.0f, 15.0f, -55.0f, -55.0f, 0.0f, -59.0f, 12.5f, -60.0f, 3.0f};
    for (const float level : levels) {
        meter.setLevel(level);
        QCoreApplication::processEvents();
        const QImage onScreen = shown.shown();
        QVERIFY(!onScreen.isNull());
        const QImage full = shown.repainted();
        QVERIFY2(onScreen == full, qPrintable(QStringLiteral("after level %1").arg(level)));
    }
    shown.shown().save(artifactPath(QStringLiteral("LevelMeter-strips-%1.png").arg(QTest::currentDataTag())));
}

QTEST_MAIN(tst_LevelMeter)
#include "tst_LevelMeter.moc"
