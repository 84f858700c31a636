// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// A mixer's channel strips. Each strip has a name, a gain entry in dB that opens the keypad when
// touched, a level meter with peak hold and clip latch beside the gain fader, and a mute button.
// A double tap on a fader's handle returns its gain to 0 dB; a tap on a meter releases its clip
// latch. A timer feeds the meters a simulated signal, measured after the fader.
//
//   ko-qttoolkit-channel-strip                    opens the mixer
//   ko-qttoolkit-channel-strip --screenshot FILE  renders the mixer to FILE (PNG) and exits

#include <ko/qtToolkit/common/DoubleValidator.h>
#include <ko/qtToolkit/singleton/Keypad.h>
#include <ko/qtToolkit/singleton/TextEntry.h>
#include <ko/qtToolkit/widget/Button.h>
#include <ko/qtToolkit/widget/GenericDataFader.h>
#include <ko/qtToolkit/widget/LevelMeter.h>
#include <ko/qtToolkit/widget/LevelScale.h>
#include <ko/qtToolkit/widget/TextEntry.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QEvent>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QRandomGenerator>
#include <QTextStream>
#include <QTimer>
#include <QVBoxLayout>

#include <cmath>

namespace {

using namespace ko::qtToolkit;

constexpr float minimumGain = -60.0f;
constexpr float maximumGain = 10.0f;

// The keypad is a window of its own, kept inside its constrained rectangle. That rectangle is
// empty until the application sets it, and the keypad would then open at negative coordinates,
// off the screen; this keeps it on the mixer window, wherever the window goes.
class KeypadInsideWindow : public QObject
{
public:
    explicit KeypadInsideWindow(QWidget &window)
        : QObject(&window)
    {
        window.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        // The window system may place the window only after Show, and without a Move; it is
        // placed by the time the window is activated.
        const QEvent::Type type = event->type();
        if (type == QEvent::Show || type == QEvent::WindowActivate || type == QEvent::Move
            || type == QEvent::Resize)
            singleton::Keypad::instance()->setConstrainedRect(static_cast<QWidget *>(watched)->geometry());
        return false;
    }
};

// One channel: name, gain entry, meter and fader side by side, mute button.
class ChannelStrip : public QWidget
{
public:
    ChannelStrip(const QString &name, float gain, QWidget *parent = nullptr)
        : QWidget(parent)
    {
        auto *label = new QLabel(name);
        label->setAlignment(Qt::AlignCenter);

        // A numeric entry with a unit, appended as it is given. Its validator sets the range and the decimals, and the
        // keypad's fader takes the range from it; a dynamic entry follows the keypad live.
        m_gain = new widget::TextEntry;
        m_gain->setValidator(new common::DoubleValidator(minimumGain, maximumGain, 1, m_gain));
        m_gain->setSuffix(QStringLiteral(" dB"));
        m_gain->setDynamicTextEntry(true);

        m_meter = new widget::LevelMeter;
        m_meter->setOrientation(Qt::Vertical);
        m_meter->setLevelRange(-60.0f, 6.0f);
        m_meter->setMediumThresholdLevel(-18.0f);
        m_meter->setHighThresholdLevel(-6.0f);
        m_meter->setPeakHoldEnabled(true);
        m_meter->setClipLatchEnabled(true);
        m_meter->setClipLevel(0.0f);
        m_meter->setFixedWidth(16);

        m_fader = new widget::GenericDataFader(Qt::Vertical);
        m_fader->setNumberOfDecimals(1);
        m_fader->setMinimumData(minimumGain);
        m_fader->setMaximumData(maximumGain);
        m_fader->setDefaultData(0.0f);
        m_fader->setResetOnDoubleTapEnabled(true);
        // 700 steps of 0.1 dB: the handle follows the finger over the whole groove.
        m_fader->setDragMode(widget::Fader::FullRangeDrag);
        m_fader->setMinimumHeight(240);

        // A checked "critical" button is red under the style sheet.
        m_mute = new widget::Button(QStringLiteral("MUTE"));
        m_mute->setCheckable(true);
        m_mute->setProperty("class", QStringLiteral("critical"));
        QObject::connect(m_mute, &QPushButton::toggled, m_meter, &widget::LevelMeter::setMuted);

        // The entry and the fader show the same gain; each one's change sets the other, and
        // the loop ends there because the fader signals only when its value changes.
        QObject::connect(m_gain, &widget::TextEntry::textChanged, m_fader,
                         [this](const QString &text) { m_fader->setData(text.toFloat()); });
        QObject::connect(m_fader, &widget::GenericDataFader::dataChanged, m_gain,
                         [this](float data) { m_gain->setText(QString::number(double(data), 'f', 1)); });
        m_gain->setText(QString::number(double(gain), 'f', 1));

        auto *meterAndFader = new QHBoxLayout;
        meterAndFader->addStretch(1);
        // The scale takes the meter's range and its whole height, so its marks meet the bar.
        auto *scale = new widget::LevelScale;
        scale->setLevelRange(m_meter->minimumLevel(), m_meter->maximumLevel());
        meterAndFader->addWidget(m_meter);
        meterAndFader->addSpacing(-meterAndFader->spacing());
        meterAndFader->addWidget(scale);
        meterAndFader->addWidget(m_fader);
        meterAndFader->addStretch(1);

        auto *layout = new QVBoxLayout(this);
        layout->addWidget(label);
        layout->addWidget(m_gain);
        layout->addLayout(meterAndFader, 1);
        layout->addWidget(m_mute);
        setFixedWidth(120);
    }

    // The meter shows the input after the fader's gain; a muted channel's meter is washed out.
    void setInputLevel(float decibels) { m_meter->setLevel(decibels + m_fader->getData()); }

    void setMuted(bool muted) { m_mute->setChecked(muted); }

private:
    widget::TextEntry *m_gain;
    widget::LevelMeter *m_meter;
    widget::GenericDataFader *m_fader;
    widget::Button *m_mute;
};

// Input levels of a programme: each channel a slow envelope of its own with some noise, in dB.
class SignalSimulator : public QObject
{
public:
    SignalSimulator(QVector<ChannelStrip *> strips, QObject *parent)
        : QObject(parent)
        , m_strips(std::move(strips))
    {
        connect(&m_timer, &QTimer::timeout, this, &SignalSimulator::step);
        m_timer.start(33);
    }

    void step()
    {
        m_time += 0.033;
        for (int i = 0; i < m_strips.size(); ++i) {
            const double envelope = 0.5 + 0.5 * std::sin(m_time * (0.5 + 0.13 * i) + i * 2.1);
            m_strips.at(i)->setInputLevel(float(-42.0 + 36.0 * envelope + m_random.bounded(8.0)));
        }
    }

private:
    QVector<ChannelStrip *> m_strips;
    QTimer m_timer;
    QRandomGenerator m_random{19};
    double m_time = 0.0;
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
    parser.setApplicationDescription(QStringLiteral("Mixer channel strips made of ko_qtToolkit_cxx widgets."));
    parser.addHelpOption();
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                        QStringLiteral("Render the window to a PNG <file> and exit."),
                                        QStringLiteral("file"));
    parser.addOption(screenshot);
    parser.process(app);

    app.setStyleSheet(styleSheet(QStringLiteral(":/qtToolkit.qss")));
    // Numeric entries open the keypad when touched.
    singleton::TextEntry::instance()->setUseKeypad(true);

    QWidget window;
    window.setWindowTitle(QStringLiteral("Channel strips"));
    new KeypadInsideWindow(window);

    auto *layout = new QHBoxLayout(&window);
    const QString names[] = {QStringLiteral("Lead vocal"), QStringLiteral("Guitar"), QStringLiteral("Keys"),
                             QStringLiteral("Bass DI"), QStringLiteral("Kick drum")};
    const float gains[] = {0.0f, -4.5f, -12.0f, -2.0f, 8.0f};
    QVector<ChannelStrip *> strips;
    for (int i = 0; i < 5; ++i) {
        auto *strip = new ChannelStrip(names[i], gains[i]);
        layout->addWidget(strip);
        strips.append(strip);
    }
    strips.at(2)->setMuted(true);

    auto *simulator = new SignalSimulator(strips, &window);
    // A few seconds of programme, so that levels, held peaks and a clip show from the start.
    for (int i = 0; i < 90; ++i)
        simulator->step();

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
