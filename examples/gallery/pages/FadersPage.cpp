// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// Faders and level meters: touch faders whose handle shows the fine or coarse drag through the
// style sheet and that a double tap resets, a data fader with decimals and a full-range drag,
// and a wall of meters with a scale, peak hold and clip latches, fed by a simulated signal.

#include "GalleryPage.h"

#include <ko/qtToolkit/widget/Fader.h>
#include <ko/qtToolkit/widget/GenericDataFader.h>
#include <ko/qtToolkit/widget/LevelMeter.h>
#include <ko/qtToolkit/widget/LevelScale.h>

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRandomGenerator>
#include <QScrollArea>
#include <QSpinBox>
#include <QTimer>
#include <QVBoxLayout>

#include <cmath>

namespace {

using ko::qtToolkit::widget::Fader;
using ko::qtToolkit::widget::GenericDataFader;
using ko::qtToolkit::widget::LevelMeter;
using ko::qtToolkit::widget::LevelScale;

constexpr int channelCount = 16;
constexpr int frameMilliseconds = 33;

QWidget *createFaders()
{
    auto *box = new QGroupBox(QStringLiteral("Faders"));
    auto *layout = new QVBoxLayout(box);
    auto *hint = new QLabel(QStringLiteral("Grab a handle. Drag along the fader first for fine steps, "
                                           "across it first for coarse steps of 10. "
                                           "Double-tap a handle to reset it to 50."));
    hint->setWordWrap(true);
    layout->addWidget(hint);

    auto *row = new QHBoxLayout;
    const int values[] = {20, 50, 75, 40};
    for (int i = 0; i < 4; ++i) {
        auto *column = new QVBoxLayout;
        auto *fader = new Fader;
        fader->setRange(0, 100);
        fader->setValue(values[i]);
        fader->setMinimumHeight(160);
        fader->setDefaultValue(50);
        fader->setResetOnDoubleTapEnabled(true);
        auto *value = new QLabel(QString::number(values[i]));
        auto *state = new QLabel(QStringLiteral("idle"));
        QObject::connect(fader, &QSlider::valueChanged, value, [value](int v) { value->setNum(v); });
        QObject::connect(fader, &Fader::slidingChanged, state, [state](bool sliding) {
            state->setText(sliding ? QStringLiteral("held") : QStringLiteral("idle"));
        });
        if (i == 3) {
            fader->setEnabled(false);
            state->setText(QStringLiteral("disabled"));
        }
        column->addWidget(fader, 1, Qt::AlignHCenter);
        column->addWidget(value);
        column->addWidget(state);
        row->addLayout(column);
    }
    layout->addLayout(row, 1);

    // What the style sheet makes of the handle while a drag is in each mode; these faders carry
    // the mode's "class" from the start, until they are dragged themselves.
    auto *looks = new QHBoxLayout;
    const QString modes[] = {QString(), QStringLiteral("fine"), QStringLiteral("coarse")};
    for (const QString &mode : modes) {
        auto *column = new QVBoxLayout;
        auto *fader = new Fader;
        fader->setRange(0, 100);
        fader->setValue(50);
        fader->setFixedHeight(70);
        if (!mode.isEmpty())
            fader->setProperty("class", mode);
        column->addWidget(fader, 0, Qt::AlignHCenter);
        column->addWidget(new QLabel(mode.isEmpty() ? QStringLiteral("idle") : mode));
        looks->addLayout(column);
    }
    layout->addWidget(new QLabel(QStringLiteral("Handle while dragging:")));
    layout->addLayout(looks);
    return box;
}

QWidget *createDataFader()
{
    auto *box = new QGroupBox(QStringLiteral("Data fader"));
    auto *layout = new QVBoxLayout(box);
    auto *fader = new GenericDataFader(Qt::Vertical);
    fader->setNumberOfDecimals(2);
    fader->setMinimumData(-1.5f);
    fader->setMaximumData(1.5f);
    fader->setData(0.25f);
    fader->setDefaultData(0.0f);
    fader->setResetOnDoubleTapEnabled(true);
    fader->setMinimumHeight(220);

    auto *value = new QLabel;
    auto *decimals = new QSpinBox;
    decimals->setRange(0, 3);
    decimals->setValue(2);
    decimals->setPrefix(QStringLiteral("Decimals: "));
    auto show = [fader, value] {
        value->setText(QString::number(double(fader->getData()), 'f', int(fader->getNumberOfDecimals())));
    };
    show();
    QObject::connect(fader, &GenericDataFader::dataChanged, value, show);
    QObject::connect(decimals, qOverload<int>(&QSpinBox::valueChanged), fader, [fader, show](int count) {
        fader->setNumberOfDecimals(unsigned(count));
        show();
    });

    // Three decimals make 3,000 steps: dragged step by step, the range takes 15,000 pixels.
    auto *fullRange = new QCheckBox(QStringLiteral("Full-range drag"));
    QObject::connect(fullRange, &QCheckBox::toggled, fader, [fader](bool on) {
        fader->setDragMode(on ? Fader::FullRangeDrag : Fader::StepDrag);
    });

    layout->addWidget(fader, 1, Qt::AlignHCenter);
    layout->addWidget(value);
    layout->addWidget(decimals);
    layout->addWidget(fullRange);
    return box;
}

// Levels of a programme with a few loud passages: each channel a slow envelope of its own with
// some noise, in dB.
class SignalSimulator : public QObject
{
public:
    SignalSimulator(QVector<LevelMeter *> meters, QObject *parent)
        : QObject(parent)
        , m_meters(std::move(meters))
    {
        // Start somewhere in the programme so that a still picture shows varied levels.
        m_time = 7.3;
        step();
        m_timer.setInterval(frameMilliseconds);
        connect(&m_timer, &QTimer::timeout, this, &SignalSimulator::step);
        m_timer.start();
    }

    void setRunning(bool running)
    {
        if (running)
            m_timer.start();
        else
            m_timer.stop();
    }

    void step()
    {
        m_time += frameMilliseconds / 1000.0;
        for (int i = 0; i < m_meters.size(); ++i) {
            const double envelope = 0.5 + 0.5 * std::sin(m_time * (0.4 + 0.07 * i) + i * 1.7);
            const double noise = m_random.bounded(6.0);
            m_meters.at(i)->setLevel(float(-60.0 + 72.0 * envelope + noise));
        }
    }

private:
    QVector<LevelMeter *> m_meters;
    QTimer m_timer;
    QRandomGenerator m_random{20240611};
    double m_time = 0.0;
};

QWidget *createMeterWall()
{
    auto *box = new QGroupBox(QStringLiteral("Level meters"));
    auto *layout = new QVBoxLayout(box);
    auto *grid = new QGridLayout;
    // Close enough for the wall to fit beside the faders on a 1024-pixel panel.
    grid->setHorizontalSpacing(4);
    // The scale before the first meter, its marks facing it: same height, same top.
    auto *scale = new LevelScale;
    scale->setMirrored(true);
    scale->setFixedHeight(200);
    grid->addWidget(scale, 0, 0, Qt::AlignRight);
    QVector<LevelMeter *> meters;
    for (int i = 0; i < channelCount; ++i) {
        auto *meter = new LevelMeter;
        meter->setOrientation(Qt::Vertical);
        meter->setFixedSize(20, 200);
        meter->setPeakHoldEnabled(true);
        meter->setClipLatchEnabled(true);
        auto *mute = new QPushButton(QStringLiteral("M"));
        mute->setCheckable(true);
        mute->setFixedWidth(28);
        QObject::connect(mute, &QPushButton::toggled, meter, &LevelMeter::setMuted);
        mute->setChecked(i == 5 || i == 11);
        grid->addWidget(meter, 0, i + 1, Qt::AlignHCenter);
        grid->addWidget(mute, 1, i + 1, Qt::AlignHCenter);
        grid->addWidget(new QLabel(QString::number(i + 1)), 2, i + 1, Qt::AlignHCenter);
        meters.append(meter);
    }
    layout->addLayout(grid);

    auto *horizontal = new LevelMeter;
    horizontal->setFixedHeight(20);
    horizontal->setPeakHoldEnabled(true);
    horizontal->setClipLatchEnabled(true);
    auto *horizontalLabel = new QLabel(QStringLiteral("Horizontal: the colours run mirrored"));
    layout->addWidget(horizontalLabel);
    layout->addWidget(horizontal);
    meters.append(horizontal);

    auto *running = new QCheckBox(QStringLiteral("Signal running"));
    running->setChecked(true);
    layout->addWidget(running);
    auto *peaks = new QCheckBox(QStringLiteral("Peak hold and clip latch (tap a meter to release its latch)"));
    peaks->setChecked(true);
    QObject::connect(peaks, &QCheckBox::toggled, box, [meters](bool on) {
        for (LevelMeter *meter : meters) {
            meter->setPeakHoldEnabled(on);
            meter->setClipLatchEnabled(on);
        }
    });
    layout->addWidget(peaks);
    layout->addStretch(1);

    auto *simulator = new SignalSimulator(meters, box);
    QObject::connect(running, &QCheckBox::toggled, simulator, [simulator](bool on) { simulator->setRunning(on); });
    return box;
}

QWidget *createFadersPage()
{
    auto *page = new QWidget;
    auto *layout = new QGridLayout(page);
    QWidget *faders = createFaders();
    QWidget *dataFader = createDataFader();
    QWidget *meters = createMeterWall();

    // The faders beside the meter wall where they fit; on narrower panels the wall goes below
    // them and the page scrolls down.
    layout->addWidget(faders, 0, 0);
    layout->addWidget(dataFader, 0, 1);
    return gallery::reflowing(page, layout, [layout, meters](bool narrow) {
        layout->removeWidget(meters);
        if (narrow) {
            layout->addWidget(meters, 1, 0, 1, 2);
            layout->setColumnStretch(0, 2);
            layout->setColumnStretch(1, 1);
            layout->setColumnStretch(2, 0);
        } else {
            layout->addWidget(meters, 0, 2);
            layout->setColumnStretch(0, 0);
            layout->setColumnStretch(1, 0);
            layout->setColumnStretch(2, 1);
        }
    });
}

const gallery::PageRegistration registration{30, QStringLiteral("Faders"), createFadersPage};

} // namespace
