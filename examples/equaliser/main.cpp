// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// An equaliser view for a dark room: the response of four bands (a low shelf, two peaks, a high
// shelf) on a frequency axis and a level axis in dB, in the library's dark chart style under the
// dark style sheet. A fader per band sets its gain; a double tap on a handle returns it to 0 dB.
// Drag the plot to pan; zoom with the wheel or the buttons.
//
//   ko-qttoolkit-equaliser                    opens the equaliser
//   ko-qttoolkit-equaliser --screenshot FILE  renders the window to FILE (PNG) and exits

#include <ko/qtToolkit/charts/ChartHelpers.h>
#include <ko/qtToolkit/charts/ChartStyle.h>
#include <ko/qtToolkit/charts/FrequencyAxis.h>
#include <ko/qtToolkit/charts/LinearAxis.h>
#include <ko/qtToolkit/widget/Button.h>
#include <ko/qtToolkit/widget/GenericDataFader.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QTextStream>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QtCharts/QChartView>
#include <QtCharts/QLineSeries>

#include <cmath>

namespace {

using namespace ko::qtToolkit;

constexpr double levelMin = -18.0;
constexpr double levelMax = 18.0;

enum class Shape { LowShelf, Peak, HighShelf };

struct Band
{
    QString name;
    Shape shape;
    double frequency;
    double q;
    float gain;
    QColor colour;
};

// The magnitude in dB of an analog filter section at \a f: first-order shelves, a second-order
// peak.
double responseDb(const Band &band, double f)
{
    const double w = f / band.frequency;
    const double a = std::pow(10.0, band.gain / 20.0);
    switch (band.shape) {
    case Shape::LowShelf:
        return 10.0 * std::log10((a * a + w * w) / (1.0 + w * w));
    case Shape::HighShelf:
        return 10.0 * std::log10((1.0 + a * a * w * w) / (1.0 + w * w));
    case Shape::Peak: {
        const double root = std::sqrt(a);
        const double real = (1.0 - w * w) * (1.0 - w * w);
        return 10.0 * std::log10((real + std::pow(w * root / band.q, 2)) / (real + std::pow(w / (root * band.q), 2)));
    }
    }
    return 0.0;
}

// Frequencies from 10 Hz to 100 kHz, evenly spaced on the logarithmic axis.
QVector<double> frequencies()
{
    QVector<double> result;
    for (int i = 0; i <= 400; ++i)
        result.append(10.0 * std::pow(10.0, 4.0 * i / 400));
    return result;
}

// A chart view whose axes pan while the plot is dragged and zoom about the pointer when the wheel
// turns, through the library's axis helpers, which work in the chart's item coordinates.
class PanZoomChartView : public QtCharts::QChartView
{
public:
    PanZoomChartView(QtCharts::QChart *chart, QtCharts::QAbstractAxis &frequency, QtCharts::QAbstractAxis &level)
        : QChartView(chart)
        , m_frequency(frequency)
        , m_level(level)
    {
        setRenderHint(QPainter::Antialiasing);
    }

    // Zooms both axes about the value at \a point, in view coordinates: a factor below 1 zooms in.
    void zoom(double factor, const QPointF &point)
    {
        const QPointF at = chartPoint(point);
        // Never narrower than 1 Hz and 1 dB, never wider than the whole audio range allows.
        charts::scale(m_frequency, charts::pixelToCoord(m_frequency, at.x()), factor, 1.0, 1e6);
        charts::scale(m_level, charts::pixelToCoord(m_level, at.y()), factor, 1.0, 200.0);
    }

protected:
    void mousePressEvent(QMouseEvent *event) override
    {
        m_last = chartPoint(positionOf(*event));
        event->accept();
    }

    void mouseMoveEvent(QMouseEvent *event) override
    {
        // The values under the finger stay under it: each axis moves by the distance in values
        // between the last position and this one. The frequency stays between 10 Hz and 100 kHz.
        const QPointF point = chartPoint(positionOf(*event));
        charts::translate(m_frequency, charts::pixelToCoordDelta(m_frequency, m_last.x(), point.x()), 10.0, 1e5);
        charts::translate(m_level, charts::pixelToCoordDelta(m_level, m_last.y(), point.y()), 0.0, 0.0);
        m_last = point;
        event->accept();
    }

    void wheelEvent(QWheelEvent *event) override
    {
        zoom(event->angleDelta().y() > 0 ? 0.8 : 1.25, event->position());
        event->accept();
    }

private:
    static QPointF positionOf(const QMouseEvent &event)
    {
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
        return event.position();
#else
        return event.localPos();
#endif
    }

    QPointF chartPoint(const QPointF &viewPoint) const
    {
        return chart()->mapFromScene(mapToScene(viewPoint.toPoint()));
    }

    QtCharts::QAbstractAxis &m_frequency;
    QtCharts::QAbstractAxis &m_level;
    QPointF m_last;
};

QString styleSheet(const QString &path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly | QIODevice::Text);
    return QString::fromUtf8(file.readAll());
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("An equaliser view made with ko_qtToolkit_cxx."));
    parser.addHelpOption();
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                        QStringLiteral("Render the window to a PNG <file> and exit."),
                                        QStringLiteral("file"));
    parser.addOption(screenshot);
    parser.process(app);

    app.setStyleSheet(styleSheet(QStringLiteral(":/ko/qtToolkit-dark.qss")));

    QVector<Band> bands{
        {QStringLiteral("Low"), Shape::LowShelf, 120.0, 0.7, 4.0f, QColor(0x4f, 0xc3, 0xf7)},
        {QStringLiteral("Low mid"), Shape::Peak, 450.0, 1.4, -5.0f, QColor(0x81, 0xc7, 0x84)},
        {QStringLiteral("High mid"), Shape::Peak, 3000.0, 1.2, 6.0f, QColor(0xff, 0xb7, 0x4d)},
        {QStringLiteral("High"), Shape::HighShelf, 9000.0, 0.7, -3.0f, QColor(0xf0, 0x62, 0x92)},
    };

    // The chart: a frequency axis below, a level axis in dB on the left, one thin curve per band
    // and their sum. The style sheet cannot reach Qt Charts' items: the chart style does that.
    auto *chart = new QtCharts::QChart;
    auto *frequency = new charts::FrequencyAxis;
    auto *level = new charts::LinearAxis;
    level->setRange(levelMin, levelMax);
    level->setLabelFormat(QStringLiteral("%.0f dB"));
    chart->addAxis(frequency, Qt::AlignBottom);
    chart->addAxis(level, Qt::AlignLeft);
    QVector<QtCharts::QLineSeries *> curves;
    for (const Band &band : bands) {
        auto *curve = new QtCharts::QLineSeries;
        curve->setPen(QPen(band.colour, 1.0, Qt::DashLine));
        curves.append(curve);
    }
    auto *sum = new QtCharts::QLineSeries;
    sum->setPen(QPen(QColor(0xee, 0xee, 0xee), 2.5));
    curves.append(sum);
    for (QtCharts::QLineSeries *curve : curves) {
        chart->addSeries(curve);
        curve->attachAxis(frequency);
        curve->attachAxis(level);
    }
    charts::style::applyTo(chart);
    charts::style::applyTo(frequency);
    charts::style::applyTo(level);
    charts::style::applyTo(chart->legend());

    const QVector<double> fs = frequencies();
    auto redraw = [&bands, curves, fs] {
        QVector<QPointF> total(fs.size());
        for (int b = 0; b < bands.size(); ++b) {
            QVector<QPointF> points;
            for (int i = 0; i < fs.size(); ++i) {
                const double db = responseDb(bands.at(b), fs.at(i));
                points.append({fs.at(i), db});
                total[i] = {fs.at(i), total.at(i).y() + db};
            }
            curves.at(b)->replace(points);
        }
        curves.last()->replace(total);
    };

    auto *view = new PanZoomChartView(chart, *frequency, *level);
    view->setMinimumSize(560, 360);

    // A fader per band, with its name in the band's colour and its gain below.
    auto *faders = new QGridLayout;
    for (int b = 0; b < bands.size(); ++b) {
        auto *name = new QLabel(bands.at(b).name);
        name->setStyleSheet(QStringLiteral("color: %1").arg(bands.at(b).colour.name()));
        auto *fader = new widget::GenericDataFader(Qt::Vertical);
        fader->setMinimumData(-12.0f);
        fader->setMaximumData(12.0f);
        fader->setNumberOfDecimals(1);
        fader->setDefaultData(0.0f);
        fader->setResetOnDoubleTapEnabled(true);
        fader->setDragMode(widget::Fader::FullRangeDrag);
        fader->setData(bands.at(b).gain);
        auto *gain = new QLabel;
        auto show = [gain](float data) { gain->setText(QStringLiteral("%1 dB").arg(double(data), 0, 'f', 1)); };
        show(fader->getData());
        QObject::connect(fader, &widget::GenericDataFader::dataChanged, gain, show);
        QObject::connect(fader, &widget::GenericDataFader::dataChanged, view, [&bands, b, redraw](float data) {
            bands[b].gain = data;
            redraw();
        });
        faders->addWidget(name, 0, b, Qt::AlignHCenter);
        faders->addWidget(fader, 1, b, Qt::AlignHCenter);
        faders->addWidget(gain, 2, b, Qt::AlignHCenter);
    }
    faders->setRowStretch(1, 1);
    faders->setHorizontalSpacing(16);
    redraw();

    // Buttons for touch screens, which have no wheel.
    auto *zoomIn = new widget::Button(QStringLiteral("Zoom in"));
    auto *zoomOut = new widget::Button(QStringLiteral("Zoom out"));
    auto *reset = new widget::Button(QStringLiteral("Reset view"));
    const auto centre = [view] { return QPointF(view->viewport()->rect().center()); };
    QObject::connect(zoomIn, &QPushButton::clicked, view, [view, centre] { view->zoom(0.8, centre()); });
    QObject::connect(zoomOut, &QPushButton::clicked, view, [view, centre] { view->zoom(1.25, centre()); });
    QObject::connect(reset, &QPushButton::clicked, view, [frequency, level] {
        frequency->setRange(20.0, 20000.0);
        level->setRange(levelMin, levelMax);
    });
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(new QLabel(QStringLiteral("Drag the plot to pan")), 1);
    buttons->addWidget(zoomIn);
    buttons->addWidget(zoomOut);
    buttons->addWidget(reset);

    QWidget window;
    window.setWindowTitle(QStringLiteral("Equaliser"));
    auto *left = new QVBoxLayout;
    left->addWidget(view, 1);
    left->addLayout(buttons);
    auto *layout = new QHBoxLayout(&window);
    layout->addLayout(left, 1);
    layout->addLayout(faders);
    window.resize(1200, 600);
    window.show();

    if (parser.isSet(screenshot)) {
        QApplication::processEvents();
        const QString file = parser.value(screenshot);
        if (!window.grab().save(file, "PNG")) {
            QTextStream(stderr) << "could not write " << file << '\n';
            return 1;
        }
        return 0;
    }
    return app.exec();
}
