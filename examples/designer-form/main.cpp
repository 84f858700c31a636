// SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
//
// SPDX-License-Identifier: MIT

// A channel strip laid out in Qt Designer: the form's widgets come from ui_ChannelStrip.h, which
// uic writes from ChannelStrip.ui. Run with --check, it builds the strip, checks what the form
// set and exits.
#include "ui_ChannelStrip.h"

#include <QApplication>
#include <QFile>
#include <QTextStream>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);

    QFile sheet(QStringLiteral(":/qtToolkit.qss"));
    if (sheet.open(QIODevice::ReadOnly | QIODevice::Text))
        app.setStyleSheet(QString::fromUtf8(sheet.readAll()));

    QWidget strip;
    Ui::ChannelStrip ui;
    ui.setupUi(&strip);

    // What the form cannot say: a double tap on the handle resets the fader to 0 dB, the meter
    // follows the fader, muted while the switch is off.
    ui.fader->setDefaultValue(60);
    ui.fader->setResetOnDoubleTapEnabled(true);
    QObject::connect(ui.fader, &QSlider::valueChanged, ui.meter, [&ui](int value) {
        ui.meter->setLevel(static_cast<float>(value) - 60.0f);
    });
    QObject::connect(ui.power, &ko::qtToolkit::widget::ToggleButtonGroup::onToggled, ui.meter,
                     [&ui](bool on) { ui.meter->setMuted(!on); });
    ui.meter->setLevel(static_cast<float>(ui.fader->value()) - 60.0f);

    if (app.arguments().contains(QStringLiteral("--check"))) {
        QTextStream out(stdout);
        const bool ok = ui.fader->maximum() == 75 && ui.fader->value() == 48 && ui.fader->defaultValue() == 60
            && ui.meter->level() == -12.0f && ui.name->text() == QStringLiteral("Channel 1")
            && ui.gain->suffix() == QStringLiteral("dB") && ui.solo->text() == QStringLiteral("Solo")
            && ui.power->isOff() && ui.source->count() == 3;
        out << (ok ? "designer-form: the form is as designed\n" : "designer-form: the form differs\n");
        return ok ? 0 : 1;
    }
    strip.show();
    return app.exec();
}
