// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

#include <ko/qtToolkit/widget/LevelMeter.h>
#include <ko/qtToolkit/widget/LevelScale.h>

#include <TestSupport.h>

#include <QFontMetrics>
#include <QSignalSpy>
#include <QTest>

#include <cmath>
#include <limits>

using ko::qtToolkit::test::artifactPath;
using ko::qtToolkit::widget::LevelMeter;
using ko::qtToolkit::widget::LevelScale;

namespace {

const QColor ink(Qt::black);
const QColor paper(Qt::white);

void setInk(QWidget &widget)
{
    QPalette palette = widget.palette();
    palette.setColor(QPalette::WindowText, ink);
    palette.setColor(QPalette::Window, paper);
    widget.setPalette(palette);
    widget.setAutoFillBackground(true);
}

QImage render(QWidget &widget, const QString &name)
{
    QImage image(widget.size(), QImage::Format_RGB32);
    image.fill(paper);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    image.save(artifactPath(QStringLiteral("LevelScale-%1.png").arg(name)));
    return image;
}

// The levels of the labelled marks: the multiples of the step within the range.
QVector<double> majorLevels(const LevelScale &scale)
{
    QVector<double> levels;
    const double step = scale.majorStep();
    for (double i = std::ceil(scale.minimumLevel() / step - 1e-9); i * step <= scale.maximumLevel() + 1e-9; ++i)
        levels.append(i * step);
    return levels;
}

bool inkAt(const QImage &image, int x, int y)
{
    return image.pixelColor(x, y) != paper;
}

} // namespace

class tst_LevelScale : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void marksLineUpWithTheMeter_data();
    void marksLineUpWithTheMeter();
    void zoneEdgesAtTheThresholdMarks();
    void labelsNeverOverlap_data();
    void labelsNeverOverlap();
    void minorMarksWhereThereIsRoom();
    void mirrored();
    void styleSheetColour();
};

void tst_LevelScale::defaults()
{
    LevelScale scale;
    QCOMPARE(scale.orientation(), Qt::Vertical);
    QCOMPARE(scale.minimumLevel(), -60.0f);
    QCOMPARE(scale.maximumLevel(), 15.0f);
    QCOMPARE(scale.minimumValue(), 0);
    QCOMPARE(scale.maximumValue(), 100);
    QVERIFY(!scale.isMirrored());
    // The same defaults as a meter's.
    const LevelMeter meter;
    QCOMPARE(scale.minimumLevel(), meter.minimumLevel());
    QCOMPARE(scale.maximumLevel(), meter.maximumLevel());
    QCOMPARE(scale.minimumValue(), meter.minimum());
    QCOMPARE(scale.maximumValue(), meter.maximum());

    scale.setLevelRange(10.0f, 0.0f);
    QCOMPARE(scale.minimumLevel(), -60.0f);
    QTest::ignoreMessage(QtWarningMsg, "LevelScale::setLevelRange: ignoring a level that is not finite");
    scale.setLevelRange(-std::numeric_limits<float>::infinity(), 0.0f);
    QCOMPARE(scale.minimumLevel(), -60.0f);
    scale.setLevelRange(-40.0f, 6.0f);
    QCOMPARE(scale.minimumLevel(), -40.0f);
    QCOMPARE(scale.maximumLevel(), 6.0f);
    scale.setValueRange(5, 5);
    QCOMPARE(scale.maximumValue(), 100);
    scale.setValueRange(0, 1000);
    QCOMPARE(scale.maximumValue(), 1000);
    QVERIFY(scale.setProperty("orientation", QVariant::fromValue(Qt::Horizontal)));
    QCOMPARE(scale.orientation(), Qt::Horizontal);
    QVERIFY(scale.setProperty("mirrored", true));
    QVERIFY(scale.isMirrored());
}

void tst_LevelScale::marksLineUpWithTheMeter_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("barMaximum");
    QTest::addColumn<float>("minimum");
    QTest::addColumn<float>("maximum");

    QTest::newRow("vertical 200") << Qt::Vertical << 200 << 100 << -60.0f << 15.0f;
    QTest::newRow("vertical 117") << Qt::Vertical << 117 << 100 << -60.0f << 15.0f;
    QTest::newRow("vertical 333, fine bar") << Qt::Vertical << 333 << 1000 << -48.0f << 6.0f;
    QTest::newRow("horizontal 300") << Qt::Horizontal << 300 << 100 << -60.0f << 15.0f;
    QTest::newRow("horizontal 451, fine bar") << Qt::Horizontal << 451 << 1000 << -90.0f << 0.0f;
}

// Beside a meter of the same length, every labelled mark lies on the last pixel the meter
// lights for its level.
void tst_LevelScale::marksLineUpWithTheMeter()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(int, length);
    QFETCH(int, barMaximum);
    QFETCH(float, minimum);
    QFETCH(float, maximum);

    const bool vertical = orientation == Qt::Vertical;
    QWidget panel;
    setInk(panel);
    auto *meter = new LevelMeter(&panel);
    auto *scale = new LevelScale(&panel);
    for (auto *widget : {static_cast<QWidget *>(meter), static_cast<QWidget *>(scale)})
        widget->setPalette(panel.palette());
    meter->setOrientation(orientation);
    meter->setRange(0, barMaximum);
    meter->setLevelRange(minimum, maximum);
    scale->setOrientation(orientation);
    scale->setValueRange(0, barMaximum);
    scale->setLevelRange(minimum, maximum);
    if (vertical) {
        meter->setGeometry(0, 0, 20, length);
        scale->setGeometry(20, 0, 40, length);
        panel.resize(60, length);
    } else {
        meter->setGeometry(0, 0, length, 20);
        scale->setGeometry(0, 20, length, 30);
        panel.resize(length, 50);
    }

    const QVector<double> levels = majorLevels(*scale);
    QVERIFY(levels.size() >= 3);
    for (const double level : levels) {
        meter->setLevel(float(level));
        const QImage image = render(panel, QStringLiteral("%1-%2").arg(QTest::currentDataTag()).arg(level));
        // The meter's last lit pixel along its middle, or its frame when nothing is lit.
        int lastLit = vertical ? length - 1 : 0;
        for (int i = 1; i < length - 1; ++i) {
            const QColor pixel = vertical ? image.pixelColor(10, i) : image.pixelColor(i, 10);
            if (pixel != QColor(0xbbbbbb)) {
                lastLit = i;
                if (vertical)
                    break;
            }
        }
        const int mark = scale->markPosition(float(level));
        QVERIFY2(mark == lastLit, qPrintable(QStringLiteral("level %1: mark %2, meter %3").arg(level).arg(mark).arg(lastLit)));
        // The scale draws its mark there.
        QVERIFY(vertical ? inkAt(image, 20, mark) && inkAt(image, 25, mark) : inkAt(image, mark, 20) && inkAt(image, mark, 25));
    }
}

// On a fully lit meter, the edges between the colour zones lie at the marks of the thresholds,
// within a pixel: the gradient's hard steps and the bar's lengths round apart.
void tst_LevelScale::zoneEdgesAtTheThresholdMarks()
{
    LevelMeter meter;
    meter.setOrientation(Qt::Vertical);
    meter.resize(20, 200);
    meter.setLevel(15.0f);
    LevelScale scale;
    scale.resize(40, 200);
    QCOMPARE(scale.majorStep(), 10.0);

    QImage image(20, 200, QImage::Format_RGB32);
    meter.render(&image);
    QVector<int> edges;
    for (int y = 2; y < 199; ++y) {
        if (image.pixelColor(10, y) != image.pixelColor(10, y - 1))
            edges.append(y);
    }
    QCOMPARE(edges.size(), 2);
    // An edge at row y lies between rows y - 1 and y.
    const int high = scale.markPosition(10.0f);
    const int medium = scale.markPosition(-20.0f);
    QVERIFY2(std::abs(edges.at(0) - high) <= 1, qPrintable(QStringLiteral("%1, mark %2").arg(edges.at(0)).arg(high)));
    QVERIFY2(std::abs(edges.at(1) - medium) <= 1, qPrintable(QStringLiteral("%1, mark %2").arg(edges.at(1)).arg(medium)));
    QCOMPARE(image.pixelColor(10, high - 1), QColor(0xc82300));
    QCOMPARE(image.pixelColor(10, medium + 1), QColor(0x008000));
}

void tst_LevelScale::labelsNeverOverlap_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::newRow("vertical") << Qt::Vertical;
    QTest::newRow("horizontal") << Qt::Horizontal;
}

// From long to short, the step grows so that labels keep at least two pixels apart, and it is
// the smallest that does.
void tst_LevelScale::labelsNeverOverlap()
{
    QFETCH(Qt::Orientation, orientation);

    const bool vertical = orientation == Qt::Vertical;
    LevelScale scale;
    scale.setOrientation(orientation);
    const QFontMetrics metrics = scale.fontMetrics();
    double previousStep = 0.0;
    for (int length = 800; length >= 40; length -= 20) {
        scale.resize(vertical ? QSize(40, length) : QSize(length, 30));
        const double step = scale.majorStep();
        QVERIFY(step >= previousStep);
        previousStep = step;
        // The labels' extents along the scale, centred on their marks.
        const auto extent = [&](double level, double withStep) {
            const int decimals = std::max(0, -int(std::floor(std::log10(withStep) + 1e-9)));
            const QString text = QString::number(std::abs(level) < 1e-9 ? 0.0 : level, 'f', decimals);
            const int size = vertical ? metrics.height() : metrics.horizontalAdvance(text);
            const int start = scale.markPosition(float(level)) - size / 2;
            return qMakePair(start, start + size);
        };
        const auto apart = [&](double withStep) {
            QVector<QPair<int, int>> spans;
            for (double i = std::ceil(-60.0 / withStep - 1e-9); i * withStep <= 15.0 + 1e-9; ++i)
                spans.append(extent(i * withStep, withStep));
            std::sort(spans.begin(), spans.end());
            for (int i = 1; i < spans.size(); ++i) {
                if (spans.at(i).first < spans.at(i - 1).second + 2)
                    return false;
            }
            return true;
        };
        QVERIFY2(apart(step), qPrintable(QStringLiteral("length %1, step %2").arg(length).arg(step)));
        // The next finer step of 1, 2, 5 times a power of ten would overlap.
        const double magnitude = std::pow(10.0, std::floor(std::log10(step) + 1e-9));
        const double mantissa = step / magnitude;
        const double finer = mantissa > 4.0 ? 2.0 * magnitude : mantissa > 1.5 ? magnitude : 0.5 * magnitude;
        if (finer * length >= 75.0)
            QVERIFY2(!apart(finer), qPrintable(QStringLiteral("length %1: %2 would do").arg(length).arg(finer)));

        // Drawn, the labels of a vertical scale are runs of ink rows no taller than a line,
        // at least two rows apart, and all but at most the two at the ends are there.
        if (vertical) {
            setInk(scale);
            const QImage image = render(scale, QStringLiteral("labels-%1").arg(length));
            QVector<QPair<int, int>> runs;
            for (int y = 0; y < image.height(); ++y) {
                bool any = false;
                for (int x = 9; x < image.width(); ++x)
                    any = any || inkAt(image, x, y);
                if (any && (runs.isEmpty() || runs.last().second != y - 1))
                    runs.append({y, y});
                else if (any)
                    runs.last().second = y;
            }
            for (int i = 0; i < runs.size(); ++i) {
                QVERIFY(runs.at(i).second - runs.at(i).first < metrics.height());
                if (i > 0)
                    QVERIFY2(runs.at(i).first - runs.at(i - 1).second > 2, qPrintable(QString::number(length)));
            }
            QVERIFY(runs.size() >= majorLevels(scale).size() - 2);
            QVERIFY(runs.size() <= majorLevels(scale).size());
        }
    }
    QVERIFY(previousStep >= 20.0);
}

// Minor marks divide the major step in four (a step of 2) or five, where they keep 4 pixels apart.
void tst_LevelScale::minorMarksWhereThereIsRoom()
{
    LevelScale scale;
    setInk(scale);
    int withMinors = 0;
    for (const int length : {600, 400, 200, 100, 40}) {
        scale.resize(40, length);
        const QImage image = render(scale, QStringLiteral("minor-%1").arg(length));
        // Minor marks are 3 pixels long, major ones 6.
        int all = 0;
        int majors = 0;
        for (int y = 0; y < length; ++y) {
            all += inkAt(image, 1, y);
            majors += inkAt(image, 4, y) && !inkAt(image, 7, y);
        }
        const double step = scale.majorStep();
        QCOMPARE(majors, majorLevels(scale).size());
        const double magnitude = std::pow(10.0, std::floor(std::log10(step) + 1e-9));
        const double minorStep = step / (std::abs(step / magnitude - 2.0) < 1e-9 ? 4.0 : 5.0);
        int minorLevels = 0;
        for (double i = std::ceil(-60.0 / minorStep - 1e-9); i * minorStep <= 15.0 + 1e-9; ++i)
            ++minorLevels;
        const bool room = minorStep * length / 75.0 >= 4.0;
        QCOMPARE(all, room ? minorLevels : majors);
        withMinors += room;
    }
    QVERIFY(withMinors > 0);
}

void tst_LevelScale::mirrored()
{
    LevelScale scale;
    setInk(scale);
    scale.resize(40, 200);
    scale.setMirrored(true);
    const QImage image = render(scale, QStringLiteral("mirrored"));
    const int mark = scale.markPosition(0.0f);
    QVERIFY(inkAt(image, 39, mark));
    QVERIFY(inkAt(image, 34, mark));
    QVERIFY(!inkAt(image, 0, mark));

    LevelScale horizontal;
    setInk(horizontal);
    horizontal.setOrientation(Qt::Horizontal);
    horizontal.setMirrored(true);
    horizontal.resize(300, 30);
    const QImage turned = render(horizontal, QStringLiteral("mirrored-horizontal"));
    const int column = horizontal.markPosition(-30.0f);
    QVERIFY(inkAt(turned, column, 29));
    QVERIFY(!inkAt(turned, column, 0));
}

void tst_LevelScale::styleSheetColour()
{
    QWidget panel;
    panel.setStyleSheet(QStringLiteral("ko--qtToolkit--widget--LevelScale { color: #ff0000; background: white; }"));
    auto *scale = new LevelScale(&panel);
    scale->resize(40, 200);
    panel.resize(40, 200);
    panel.ensurePolished();
    scale->ensurePolished();
    QImage image(40, 200, QImage::Format_RGB32);
    image.fill(Qt::white);
    scale->render(&image);
    QCOMPARE(image.pixelColor(2, scale->markPosition(-10.0f)), QColor(0xff0000));
}

QTEST_MAIN(tst_LevelScale)

#include "tst_LevelScale.moc"
